// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "fw_command.h"

#include <QtCore/QList>

/** The answer to GET_FW_COMMANDS: the firmware's own table of commands, the member "fw_commands" of a struct. */
class QUVPROTOCOL_EXPORT FirmwareCommandsAnswer
    : public quv::DescribedAnswer<FirmwareCommandsAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char fwCommandList_TAG[] = "fw_commands";

    FirmwareCommandsAnswer() = default;
    explicit FirmwareCommandsAnswer(const QList<FW_Command> &commands);
    /**
     * The number of commands, then as many groups of tokens of one size, each an FW_Command; what is left over is not read. Throws
     * DE00670 (fewer than four parameters), DE00671 (the number is none), DE00672 (a command cannot be made), what FW_Command
     * throws and what SerialProtoAnswer throws.
     */
    explicit FirmwareCommandsAnswer(QStringList tokens);
    /**
     * Throws DE00675 for an empty value, DE00677 without the member, DE00801 when it is no array, DE00676 for a command that cannot be
     * made, and as FW_Command does.
     */
    explicit FirmwareCommandsAnswer(const XmlRpc::XmlRpcValue &value);
    /** Each element a command. Throws DE00676 for another type, and as FW_Command does. */
    explicit FirmwareCommandsAnswer(QList<QVariant> &list);

    FirmwareCommandsAnswer *clone() const override;

    const QList<FW_Command> &fwCommandList() const { return m_commands; }

private:
    QList<FW_Command> m_commands;
};
