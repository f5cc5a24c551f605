// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "dispinfocmd.h"

/** SET_DISP_INFO: writes a text about the machine into its firmware; an empty one clears it. */
class QUVPROTOCOL_EXPORT SetDispInfoCmd : public quv::DescribedCommand<SetDispInfoCmd, DispInfoCmd>
{
public:
    struct Description;

    SetDispInfoCmd() = default;
    SetDispInfoCmd(int infoType, const QString &value);
    /**
     * The info type (int) and the text. Throws as DispInfoCmd for the type, DE00307 without a text, DE00308 for another type of
     * argument; the base counts both before (DE00312).
     */
    explicit SetDispInfoCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00309 and DE00310, and the base DE00313. */
    explicit SetDispInfoCmd(QList<QVariant> list);
    explicit SetDispInfoCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetDispInfoCmd(int) = delete;
    explicit SetDispInfoCmd(double) = delete;
    explicit SetDispInfoCmd(const char *) = delete;

    SetDispInfoCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Info type, 2, and the Latin-1 code of each character, 0 for one that has none; without a text info type, 0. */
    QList<int> serialParameters(int family) const override;

    QString value() const { return m_value; }

private:
    QString m_value;
};
