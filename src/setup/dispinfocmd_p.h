// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedcommand_p.h"
#include "setup/dispinfocmd.h"

/** What the descriptions of the commands have in common. */
struct DispInfoCmd::Description : quv::Description
{
    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required({"info_type", "1 to 6; 6 is the machine's key code"}, self.m_infoType,
                         {"DE00303", "DE00305", "Too few parameters received"},
                         {"DE00304", "DE00306", "Dispenser info type: expected INT parameter"});
    }
};
