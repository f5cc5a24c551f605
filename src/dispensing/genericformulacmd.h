// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"

class Formula;

namespace quv {

struct CommandFacts;

} // namespace quv

/**
 * A question about one Formula, named by whoever asks: GET_LOW_LEVEL_FORMULA, answered by a GetLowLevelFormulaAnswer, or
 * GET_FORMULA_EXECUTION, answered by a GetFormulaExecutionAnswer. A command of another name gets no answer.
 */
class QUVPROTOCOL_EXPORT GenericFormulaCmd : public ConfProtoCommand
{
public:
    explicit GenericFormulaCmd(QString name);
    GenericFormulaCmd(QString name, const Formula &formula);
    /**
     * The formula as the first element of an array. Throws DE00898 when it cannot be read, DE00334 when the machine is no
     * dispenser, DE00905 for a negative quantity.
     */
    GenericFormulaCmd(QString name, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The formula as the first element of a list, which is not checked but when it is written. */
    GenericFormulaCmd(QString name, QList<QVariant> list);

    GenericFormulaCmd *clone() const override;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    using ConfProtoCommand::setAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;

    /** Adds what is known of the command that \a facts name. */
    static void tell(quv::CommandFacts &facts);
};
