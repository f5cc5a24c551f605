// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulaanswer.h"
#include "fuzzinput.h"

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>

/** Blank-separated tokens of a firmware answer give the report of a pour, or a refusal with its code. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    try {
        const GetDispensedFormulaAnswer report(text.split(QLatin1Char(' ')));
        quv::require(report.dispensedFormula().items().size() == report.totalFormula().items().size(),
                     "both formulas of a report have the same circuits");
        quv::require(GetDispensedFormulaAnswer(report.toXmlRpcValue()).equalTo(&report),
                     "a report reads back from its struct");
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code().size() == 7 && !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                     "a refusal has its code, its text and its function");
    }
    return 0;
}
