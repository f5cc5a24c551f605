// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** SET_DISP_ID: gives a stored dispenser another ID; carried out by the driver. */
class QUVPROTOCOL_EXPORT SetDispIDCmd : public quv::DescribedCommand<SetDispIDCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetDispIDCmd() = default;
    SetDispIDCmd(int oldID, int newID);
    /** The old and the new ID (int). Throws DE01858 and DE01859 for another type; the base counts both before (DE00312). */
    explicit SetDispIDCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01860 and DE01861, and the base DE00313. */
    explicit SetDispIDCmd(QList<QVariant> list);
    explicit SetDispIDCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetDispIDCmd(int) = delete;
    explicit SetDispIDCmd(double) = delete;
    explicit SetDispIDCmd(const char *) = delete;

    SetDispIDCmd *clone() const override;
    using DescribedCommand::setDefaults;

    TString actionString(bool detailed) const override;

    int oldID() const { return m_oldID; }
    int newID() const { return m_newID; }

private:
    int m_oldID = 0;
    int m_newID = 0;
};
