// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** READ_CONFIG_ROW: asks the firmware for its row of one structure; the answer is a ReadConfigurationParamAnswer. */
class QUVPROTOCOL_EXPORT ReadConfigurationParamCmd
    : public quv::DescribedCommand<ReadConfigurationParamCmd, SerialProtoCommand>
{
public:
    struct Description;

    ReadConfigurationParamCmd() = default;
    /** \a id is the circuit or reference of a structure that exists once for each. */
    ReadConfigurationParamCmd(int code, int id);
    /** Two ints, code and ID. Throws DE00314 or DE00084 for the code, DE00316 or DE00315 for the ID. */
    explicit ReadConfigurationParamCmd(const XmlRpc::XmlRpcValue &value);
    explicit ReadConfigurationParamCmd(QList<QVariant> list); ///< the same as a list, with the same codes

    ReadConfigurationParamCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int commandCode() const { return m_code; }
    int id() const { return m_id; }

    QList<int> serialParameters(int family) const override; ///< code, ID

private:
    int m_code = 0;
    int m_id = 1;
};
