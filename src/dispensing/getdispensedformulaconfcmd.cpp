// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaconfcmd.h"

#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/getdispensedformulacmdbase_p.h"

struct GetDispensedFormulaConfCmd::Description : GetDispensedFormulaCmdBase::Description
{
    static constexpr quv::AnsweredBy<GetDispensedFormulaAnswer> answer = {
        {}, {"DE01723", quv::dispensedFormulaFailed}, {"DE01724", quv::dispensedFormulaFailed}, {}};
};

template class quv::DescribedCommand<GetDispensedFormulaConfCmd, ConfProtoCommand>;

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd(int formulaType, int quantityUnit)
    : GetDispensedFormulaCmdBase(formulaType, quantityUnit)
{}

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd(const XmlRpc::XmlRpcValue &value)
    : GetDispensedFormulaCmdBase(value),
      DescribedCommand(value)
{}

GetDispensedFormulaConfCmd::GetDispensedFormulaConfCmd(QList<QVariant> list)
    : GetDispensedFormulaCmdBase(list),
      DescribedCommand(list)
{}

GetDispensedFormulaConfCmd *GetDispensedFormulaConfCmd::clone() const
{
    return new GetDispensedFormulaConfCmd(*this);
}
