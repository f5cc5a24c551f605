// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "confdata.h"

#include <memory>

/** WRITE_CONFIG_ROW: gives the firmware a row of one structure. It holds none by default. */
class QUVPROTOCOL_EXPORT WriteConfigurationParamCmd
    : public quv::DescribedCommand<WriteConfigurationParamCmd, SerialProtoCommand>
{
public:
    struct Description;

    WriteConfigurationParamCmd();
    /**
     * The row that the machine has. \a id is the circuit or reference of a structure that exists once for each. Throws
     * DE00172, DE00582 or DE00176, and what the structure's class throws.
     */
    WriteConfigurationParamCmd(int code, const FW_Machine *machine, int id = -1);
    /**
     * A struct, alone or first in an array: "cmd_value" (int, the structure) and "cmd_parameters" (string, the row as text).
     * Without either the command holds no row. Throws DE00171, DE00169, DE00170 or DE00175, and what the class throws.
     */
    explicit WriteConfigurationParamCmd(const XmlRpc::XmlRpcValue &value);
    explicit WriteConfigurationParamCmd(QList<QVariant> list); ///< holds no row
    WriteConfigurationParamCmd(const WriteConfigurationParamCmd &other);
    explicit WriteConfigurationParamCmd(int) = delete; // would read as a value
    ~WriteConfigurationParamCmd() override;

    WriteConfigurationParamCmd *clone() const override;

    const ConfData *confData() const { return m_confData.get(); } ///< null without a row
    int commandCode() const { return m_code; }
    void setCommandCode(int code) { m_code = code; }
    int id() const { return m_id; }
    /** The structure's name, a blank, the row as text; empty without a row. */
    QString configurationDataStr() const;
    /** Applies the row; false without one, and when the machine does not take it. */
    bool updateConfiguration(FW_Machine *machine);

    /** Structure code, number of serial parameters, the serial parameters. */
    QList<QVariant> parameters() const override;
    /** The struct of the row; nothing without one. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** In family 1: structure code, field count (with `cmd_enabled`), the row. */
    QList<int> serialParameters(int family) const override;

private:
    void takeRow(std::unique_ptr<ConfData> row, const char *failureCode, const char *function);

    std::unique_ptr<ConfData> m_confData;
    int m_code = 0;
    QList<int> m_serialParameters;
    int m_id = -1;
    int m_parameterCount = 0;
};
