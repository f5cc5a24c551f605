// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** SET_ACTIVE_DISP: makes a dispenser of the driver the active one. */
class QUVPROTOCOL_EXPORT SetActiveDispCmd : public quv::DescribedCommand<SetActiveDispCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetActiveDispCmd() = default;
    /** \a flag is between client and driver: it only travels. */
    SetActiveDispCmd(int dispID, int sourceDispID, bool flag);
    /** The IDs (ints) and, if given, the flag (bool). Throws DE00738, DE00752, DE01678 in this order for another type. */
    explicit SetActiveDispCmd(const XmlRpc::XmlRpcValue &value);
    explicit SetActiveDispCmd(QList<QVariant> list); ///< likewise
    explicit SetActiveDispCmd(int) = delete;         // would be an XML-RPC value

    SetActiveDispCmd *clone() const override;
    TString actionString(bool detailed) const override;

    int dispID() const { return m_dispID; }
    int sourceDispID() const { return m_sourceDispID; }
    bool flag() const { return m_flag; }

private:
    int m_dispID = 0;
    int m_sourceDispID = 0;
    bool m_flag = false;
};
