// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "getdispensedformulacmdbase.h"

/**
 * GET_DISPENSED_FORMULA for a driver that keeps the formula itself and answers by itself; the answer is a
 * GetDispensedFormulaAnswer.
 */
class QUVPROTOCOL_EXPORT GetDispensedFormulaConfCmd
    : public GetDispensedFormulaCmdBase,
      public quv::DescribedCommand<GetDispensedFormulaConfCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetDispensedFormulaConfCmd() = default;
    GetDispensedFormulaConfCmd(int formulaType, int quantityUnit);
    explicit GetDispensedFormulaConfCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetDispensedFormulaConfCmd(QList<QVariant> list);

    GetDispensedFormulaConfCmd *clone() const override;

    // which the other base has too
    using DescribedCommand::parameters;
    using DescribedCommand::setDefaults;
    using DescribedCommand::toXmlRpcValue;
};
