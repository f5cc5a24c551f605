// SPDX-License-Identifier: LGPL-3.0-or-later
#include "factory/commandtables_p.h"

namespace quv {

constexpr CommandTable<ScaleProtoCommand> scaleTable{Dispatch::Scale, {}};

} // namespace quv
