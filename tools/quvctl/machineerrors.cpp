// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machineerrors.h"

#include "executed.h"
#include "terminal.h"

#include "status/geterrorsanswer.h"

#include <QuvFramework/fw_error.h>

#include <algorithm>
#include <iterator>

namespace quv {

namespace {

struct ErrorWords
{
    FW_Error::Type type;
    int code;
    const char *text; ///< %1 is the module
};

/// Those of the firmwares that this system knows; any other is told by its numbers.
constexpr ErrorWords errorWords[] = {
    {FW_Error::Hardware, 1, "the emergency button was pressed"},
    {FW_Error::Hardware, 2, "the canister of circuit %1 is empty"},
    {FW_Error::Hardware, 3, "circuit %1 is blocked"},
    {FW_Error::Hardware, 4, "board %1 refuses to work"},
    {FW_Error::Configuration, 5, "the configuration has a field that is out of its range"},
    {FW_Error::Hardware, 6, "errors were lost, for which there was no room"}};

template <class Numbered>
QString numberedInWords(const Numbered &error, const char *kind)
{
    const auto words =
        std::find_if(std::begin(errorWords), std::end(errorWords), [&](const ErrorWords &each) {
            return each.type == error.errorType() && each.code == error.code();
        });
    const QString numbers = QStringLiteral("%1 error %2").arg(QLatin1String(kind)).arg(error.code());
    if (words != std::end(errorWords)) {
        const QString text = QLatin1String(words->text);
        return QStringLiteral("%1: %2").arg(
            numbers, text.contains(QLatin1String("%1")) ? text.arg(error.module()) : text);
    }
    return QStringLiteral("%1 of module %2, value %3").arg(numbers).arg(error.module()).arg(error.value());
}

} // namespace

std::optional<FW_ErrorList> errorsOf(const Driver &driver)
{
    const auto answer = answerIfAny<GetErrorsAnswer>(ProtoCommandList::GET_ERRORS, driver);
    return answer ? std::optional(answer->errorList()) : std::nullopt;
}

QString errorInWords(const FW_Error &error)
{
    if (const auto *hardware = dynamic_cast<const FW_HwError *>(&error))
        return numberedInWords(*hardware, "hardware");
    if (const auto *configuration = dynamic_cast<const FW_ConfError *>(&error))
        return numberedInWords(*configuration, "configuration");
    return error.toPrintableString();
}

void printErrors(const FW_ErrorList &errors)
{
    for (int i = 0; i < errors.size(); ++i)
        printLine(errors[i]->timestamp().toLocalTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss  ")) +
                      errorInWords(*errors[i]),
                  Colour::Red);
}

OrderedJson errorsJson(const FW_ErrorList &errors)
{
    OrderedJson list = OrderedJson::array();
    for (int i = 0; i < errors.size(); ++i) {
        OrderedJson told = toJson(errors[i]->toXmlRpcValue());
        told["words"] = toJson(errorInWords(*errors[i]));
        list.push_back(std::move(told));
    }
    return list;
}

} // namespace quv
