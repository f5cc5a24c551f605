// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_dispenser.h>

/** SAVE_DISP_CONFIG: gives the driver the configuration of one dispenser in the place of the one that it keeps. */
class QUVPROTOCOL_EXPORT SaveDispenserConfigCmd
    : public quv::DescribedCommand<SaveDispenserConfigCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char dispData_TAG[] = "disp_data";
    static constexpr char dispenserConfig_TAG[] = "dispenser_config";
    static constexpr char updateBoardConfig_TAG[] = "update_board_config";
    static constexpr char factoryConfig_TAG[] = "factory_config";

    SaveDispenserConfigCmd() = default; ///< a dispenser as when new, and neither flag
    /** \a updateBoard: the dispenser's boards get it as well; \a factory: it is that of the factory. */
    SaveDispenserConfigCmd(const FW_Dispenser &dispenser, bool updateBoard, bool factory);
    /**
     * A struct with "disp_data", a struct of "dispenser_config" and, if given, "update_board_config" and "factory_config" (bools). Throws
     * DE01521 for what is no struct, DE01522 without the data, DE01523 for data that are no struct, DE01524 without a dispenser, DE01525
     * for one that is no struct or cannot be made, what the dispenser is refused with, DE01526 and DE03360 for a flag of another type.
     */
    explicit SaveDispenserConfigCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * A dispenser or its map, the flag for the boards, and if given that of the factory. Throws DE01520 for an empty list, DE01518
     * without a dispenser or when it cannot be made, what it is refused with, DE01519 without the first flag, DE03360 when the second
     * has another type.
     */
    explicit SaveDispenserConfigCmd(QList<QVariant> list);
    explicit SaveDispenserConfigCmd(int) = delete; // would be an XML-RPC value

    SaveDispenserConfigCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QVariant dispenserValue() const { return QVariant::fromValue(m_dispenser); }
    QVariant updateBoardConfigValue() const { return m_updateBoard; }
    QVariant factoryConfigValue() const { return m_factory; }

private:
    FW_Dispenser m_dispenser;
    bool m_updateBoard = false;
    bool m_factory = false;
};
