// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaserialcmd.h"

#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/getdispensedformulacmdbase_p.h"

struct GetDispensedFormulaSerialCmd::Description : GetDispensedFormulaCmdBase::Description
{
    static constexpr quv::AnsweredBy<GetDispensedFormulaAnswer> answer = {
        {"DE01726", quv::dispensedFormulaFailed}, {}, {}, {}};
};

template class quv::DescribedCommand<GetDispensedFormulaSerialCmd, SerialProtoCommand>;

GetDispensedFormulaSerialCmd::GetDispensedFormulaSerialCmd(const XmlRpc::XmlRpcValue &value)
    : GetDispensedFormulaCmdBase(value),
      DescribedCommand(value)
{}

GetDispensedFormulaSerialCmd::GetDispensedFormulaSerialCmd(QList<QVariant> list)
    : GetDispensedFormulaCmdBase(list),
      DescribedCommand(list)
{}

GetDispensedFormulaSerialCmd *GetDispensedFormulaSerialCmd::clone() const
{
    return new GetDispensedFormulaSerialCmd(*this);
}
