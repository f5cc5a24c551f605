// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "getdispensedformulacmdbase.h"

/** GET_DISPENSED_FORMULA for a driver that asks the firmware, whose answer is a GetDispensedFormulaAnswer. */
class QUVPROTOCOL_EXPORT GetDispensedFormulaSerialCmd
    : public GetDispensedFormulaCmdBase,
      public quv::DescribedCommand<GetDispensedFormulaSerialCmd, SerialProtoCommand>
{
public:
    struct Description;

    GetDispensedFormulaSerialCmd() = default;
    explicit GetDispensedFormulaSerialCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetDispensedFormulaSerialCmd(QList<QVariant> list);

    GetDispensedFormulaSerialCmd *clone() const override;

    // which the other base has too
    using DescribedCommand::parameters;
    using DescribedCommand::setDefaults;
    using DescribedCommand::toXmlRpcValue;
};
