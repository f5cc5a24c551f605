// SPDX-License-Identifier: LGPL-3.0-or-later
#include "canisters.h"

#include "bar.h"
#include "executed.h"
#include "quantities.h"
#include "suggestions.h"
#include "terminal.h"

#include "masterdata/getcanisterlistanswer.h"

namespace quv {

namespace {

double percentageOf(const CanisterData &canister)
{
    return canister.maximumQuantity > 0 ? 100 * canister.currentQuantity / canister.maximumQuantity : 0;
}

QString nameOf(const CanisterData &canister)
{
    const QString number = QString::number(canister.id);
    return canister.colorantCode.isEmpty() ? number
                                           : QStringLiteral("%1 (%2)").arg(number, canister.colorantCode);
}

QString notice(const CanisterData &canister)
{
    if (!canister.enabled)
        return QStringLiteral("disabled");
    switch (levelOf(canister)) {
    case Level::BelowReserve:
        return QStringLiteral("below its reserve");
    case Level::BelowWarning:
        return QStringLiteral("below its warning level");
    case Level::Good:
        break;
    }
    return {};
}

QString wordOf(Level level)
{
    switch (level) {
    case Level::BelowReserve:
        return QStringLiteral("reserve");
    case Level::BelowWarning:
        return QStringLiteral("warning");
    case Level::Good:
        break;
    }
    return QStringLiteral("good");
}

} // namespace

std::optional<QList<CanisterData>> canistersOf(const Driver &driver)
{
    const auto answer = answerIfAny<GetCanisterListAnswer>(ProtoCommandList::GET_CANISTER_LIST, driver);
    return answer ? std::optional(answer->canisterList()) : std::nullopt;
}

Level levelOf(const CanisterData &canister)
{
    if (canister.currentQuantity < canister.reserveQuantity)
        return Level::BelowReserve;
    return canister.currentQuantity < canister.reserveWarning ? Level::BelowWarning : Level::Good;
}

QString levelInWords(const CanisterData &canister)
{
    const QString standing =
        levelOf(canister) == Level::Good ? QStringLiteral("above its warning level again") : notice(canister);
    return QStringLiteral("canister %1 is %2: %3 of %4")
        .arg(nameOf(canister), standing, quantityInWords(canister.currentQuantity),
             quantityInWords(canister.maximumQuantity));
}

QString didYouMeanColorant(const QString &code, const QList<CanisterData> &canisters)
{
    QStringList codes;
    for (const CanisterData &canister : canisters)
        if (canister.colorantCode.compare(code, Qt::CaseInsensitive) == 0)
            codes.append(canister.colorantCode);
    codes.removeDuplicates();
    return didYouMean(code, codes);
}

void printCanisters(const QList<CanisterData> &canisters)
{
    Columns columns;
    columns.add({QStringLiteral("CANISTER"), QStringLiteral("COLORANT"), QStringLiteral("LEVEL"), QString(),
                 QStringLiteral("OF"), QStringLiteral("WARNING"), QStringLiteral("RESERVE")});
    for (const CanisterData &canister : canisters) {
        QStringList cells = {QString::number(canister.id),
                             canister.colorantCode,
                             bar(percentageOf(canister)),
                             quantityInWords(canister.currentQuantity),
                             quantityInWords(canister.maximumQuantity),
                             quantityInWords(canister.reserveWarning),
                             quantityInWords(canister.reserveQuantity)};
        if (const QString text = notice(canister); !text.isEmpty())
            cells.append(text);
        columns.add(cells);
    }
    columns.print(true);
}

OrderedJson canistersJson(const QList<CanisterData> &canisters)
{
    OrderedJson list = OrderedJson::array();
    for (const CanisterData &canister : canisters) {
        OrderedJson told = toJson(canister.toXmlRpcValue());
        told["level"] = toJson(wordOf(levelOf(canister)));
        list.push_back(std::move(told));
    }
    return list;
}

} // namespace quv
