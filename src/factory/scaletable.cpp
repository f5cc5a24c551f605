// SPDX-License-Identifier: LGPL-3.0-or-later
#include "factory/commandtables_p.h"
#include "scale/displaystringcmd.h"
#include "scale/tarecmd.h"
#include "scale/taresetcmd.h"
#include "scale/weightcmd.h"

namespace quv {

using Cmd = ProtoCommandList;

constexpr CommandTable<ScaleProtoCommand> scaleTable{
    Dispatch::Scale,
    {
        {Cmd::WEIGHT, fromArguments<WeightCmd>()},
        {Cmd::TARE, fromArguments<TareCmd>()},
        {Cmd::TARE_SET, fromArguments<TareSetCmd>()},
        {Cmd::DISPLAY_STRING, fromArguments<DisplayStringCmd>()},
    }};

} // namespace quv
