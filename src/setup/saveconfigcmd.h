// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_configuration.h>

/** SAVE_CONFIG: gives the driver a configuration of all its machines in the place of the one that it keeps. */
class QUVPROTOCOL_EXPORT SaveConfigCmd : public quv::DescribedCommand<SaveConfigCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char configData_TAG[] = "config_data";
    static constexpr char configuration_TAG[] = "configuration";
    static constexpr char updateBoardConfig_TAG[] = "update_board_config";

    SaveConfigCmd() = default; ///< without machines, not for the boards
    /** \a updateBoard: the boards of the machines get it as well. */
    SaveConfigCmd(const FW_Configuration &configuration, bool updateBoard);
    /**
     * A struct with "config_data", a struct of "configuration" and, if given, "update_board_config" (bool). Throws DE00678 for what is
     * no struct, DE00679 without a struct of data, DE00370 without a configuration, DE00577 for one that is no struct or cannot be made,
     * what the configuration is refused with, DE00574 for a flag of another type.
     */
    explicit SaveConfigCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * A configuration or its map, and the flag. Throws DE00681 for an empty list, DE00680 without a configuration or when it cannot be
     * made, what it is refused with, DE00802 without the flag.
     */
    explicit SaveConfigCmd(QList<QVariant> list);
    explicit SaveConfigCmd(int) = delete; // would be an XML-RPC value

    SaveConfigCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QVariant configurationValue() const { return QVariant::fromValue(m_configuration); }
    QVariant updateBoardConfigValue() const { return m_updateBoard; }

private:
    FW_Configuration m_configuration;
    bool m_updateBoard = false;
};
