// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/**
 * GET_CMD_ID: asks a machine's firmware which identifiers it has for the code of a command; the answer is a CommandIDAnswer. The
 * driver makes it: by its name the factory gives a plain command.
 */
class QUVPROTOCOL_EXPORT CommandIDCmd : public quv::DescribedCommand<CommandIDCmd, SerialProtoCommand>
{
public:
    struct Description;

    CommandIDCmd() = default;
    explicit CommandIDCmd(int commandCode);
    /** The code (int). Throws DE00294 for another type; without one the base refuses (DE00312). */
    explicit CommandIDCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00296 for another type; without one the base refuses (DE00313). */
    explicit CommandIDCmd(QList<QVariant> list);
    explicit CommandIDCmd(bool) = delete; // would read as a code, as would the next two
    explicit CommandIDCmd(double) = delete;
    explicit CommandIDCmd(const char *) = delete;

    CommandIDCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< the code

    int commandCode() const { return m_commandCode; }

private:
    int m_commandCode = 0;
};
