// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "dispinfocmd.h"

/** CLEAR_DISP_INFO: clears a text about the machine in its firmware. */
class QUVPROTOCOL_EXPORT ClearDispInfoCmd : public quv::DescribedCommand<ClearDispInfoCmd, DispInfoCmd>
{
public:
    struct Description;

    ClearDispInfoCmd() = default;
    explicit ClearDispInfoCmd(int infoType);
    /** The info type (int). Throws as DispInfoCmd; without it the base refuses (DE00312). */
    explicit ClearDispInfoCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list; without the type the base refuses (DE00313). */
    explicit ClearDispInfoCmd(QList<QVariant> list);
    explicit ClearDispInfoCmd(bool) = delete; // would read as a type, as would the next two
    explicit ClearDispInfoCmd(double) = delete;
    explicit ClearDispInfoCmd(const char *) = delete;

    ClearDispInfoCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< info type, 0
};
