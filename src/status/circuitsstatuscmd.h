// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

class FW_Dispenser;

/**
 * GET_CIRCUITS_STATUS: asks what several circuits are doing. The driver sends the firmware one GET_STATUS for each and hands every
 * answer to this command, which gathers them in a CircuitsStatusAnswer.
 *
 * With a dispenser, its enabled circuits alone can be asked, and without a position all of them are.
 */
class QUVPROTOCOL_EXPORT CircuitsStatusCmd
    : public quv::DescribedCommand<CircuitsStatusCmd, SerialProtoCommand>
{
public:
    struct Description;

    static constexpr char CIRCUIT_POSITIONS[] = "circuit_positions";

    CircuitsStatusCmd() = default; ///< no positions
    /**
     * Throws DE01154 for a circuit that the dispenser has not, or not enabled. Like the two below it throws DE01175 when the
     * dispenser's positions cannot be listed.
     */
    CircuitsStatusCmd(QList<int> positions, const FW_Dispenser *dispenser);
    /**
     * One optional argument, a position (int) or a struct with an array of them. Throws DE01155 for another type, DE01156 for a
     * struct without the array, DE01157 for an element of another type, and DE01158 as the typed form DE01154.
     */
    CircuitsStatusCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The positions. Throws DE01159 for another type than int, and DE01160 as the typed form DE01154. */
    CircuitsStatusCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    CircuitsStatusCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override; ///< the struct; nothing for all

    using DescribedCommand::setAnswer;
    /**
     * Appends a DispenserStatusAnswer to what was gathered before, under the position of the DispenserStatusCmd that it answers;
     * does nothing for any other answer. False with DE01174 without that command, DE01162 or DE01163 when there is no memory
     * for it, DE01164 when this command holds an answer of another kind; what it holds stays.
     */
    bool setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error) override;

    const QList<int> &positions() const { return m_positions; }

private:
    QList<int> m_positions;
};
