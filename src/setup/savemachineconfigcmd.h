// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_machine.h>

#include <memory>

/** SAVE_MACHINE_CONFIG: gives the driver the configuration of one machine in the place of the one that it keeps. */
class QUVPROTOCOL_EXPORT SaveMachineConfigCmd
    : public quv::DescribedCommand<SaveMachineConfigCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char configData_TAG[] = "config_data";
    static constexpr char machineConfig_TAG[] = "machine_config";
    static constexpr char updateBoardConfig_TAG[] = "update_board_config";
    static constexpr char factoryConfig_TAG[] = "factory_config";

    SaveMachineConfigCmd() = default; ///< no machine, and neither flag
    /**
     * Clones the machine, which may be null. \a updateBoard: the machine's boards get it as well; \a factory: it is that of the
     * factory.
     */
    SaveMachineConfigCmd(const FW_Machine *machine, bool updateBoard, bool factory);
    /**
     * A struct with "config_data", a struct of "machine_config" and, if given, "update_board_config" and "factory_config" (bools). Throws
     * DE02701 for what is no struct, DE02702 without the data, DE02703 for data that are no struct, DE02706 without a machine, DE02704 for
     * one that is neither dispenser nor mixer, DE02705 when it cannot be made, what the machine is refused with, DE02707 and DE03361 for a
     * flag of another type.
     */
    explicit SaveMachineConfigCmd(const XmlRpc::XmlRpcValue &value);
    explicit SaveMachineConfigCmd(QList<QVariant> list);     ///< keeps the list, and reads nothing of it
    explicit SaveMachineConfigCmd(int) = delete;             // would be an XML-RPC value
    SaveMachineConfigCmd(const SaveMachineConfigCmd &other); ///< deep
    SaveMachineConfigCmd &operator=(const SaveMachineConfigCmd &) = delete;
    ~SaveMachineConfigCmd() override;

    SaveMachineConfigCmd *clone() const override;
    void setDefaults();

    /** The list that it was made of, or else the machine, as an FW_Dispenser or an FW_Mixer, and the flags. */
    QList<QVariant> parameters() const override;
    /** Without a machine there are only the flags, which cannot be read back. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const FW_Machine *machineConfig() const { return m_machineConfig.get(); } ///< null for none
    bool updateBoardConfig() const { return m_updateBoard; }
    bool factoryConfig() const { return m_factory; }

private:
    std::unique_ptr<FW_Machine> m_machineConfig;
    bool m_updateBoard = false;
    bool m_factory = false;
};
