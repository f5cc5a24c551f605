// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedcommand_p.h"
#include "processes/stopcmd.h"

namespace quv {

constexpr Refusal badFwStopType = {"DE01332", "StopCmd: invalid fw stop type value"};
constexpr Refusal badSwStopType = {"DE01334", "StopCmd: invalid sw stop type value"};

} // namespace quv

/** What the descriptions of the two commands have in common. Every form refuses with the same codes. */
struct StopCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::STOP;
    static constexpr auto commandText = "Stop";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Stop in progress");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal badFwType = {quv::badFwStopType, quv::badFwStopType};
        constexpr quv::ArgumentRefusal badSwType = {quv::badSwStopType, quv::badSwStopType};
        archive.optional({"fw_stop_type", "0 to 3"}, self.m_fwStopType, badFwType);
        archive.refuseUnless(checkFwStopType(self.m_fwStopType), badFwType);
        archive.optional({"sw_stop_type", "0 to 2"}, self.m_swStopType, badSwType);
        archive.refuseUnless(checkSwStopType(self.m_swStopType), badSwType);
    }
};
