// SPDX-License-Identifier: LGPL-3.0-or-later
#include "circuitchoice.h"

#include "canisters.h"
#include "excerpt.h"
#include "executed.h"

#include "masterdata/getcanisterlistanswer.h"
#include "masterdata/getcircuitlistanswer.h"

#include <optional>

namespace quv {

namespace {

/// \throws UsageError for a position without a circuit; a driver that does not tell its circuits leaves that to the machine
void requireCircuits(const Driver &driver, const QList<int> &positions)
{
    const auto answer = answerIfAny<GetCircuitListAnswer>(ProtoCommandList::GET_CIRCUIT_LIST, driver);
    if (!answer)
        return;
    QList<int> known;
    for (const CircuitData &circuit : answer->circuitList())
        known.append(circuit.positionID);
    for (const int position : positions)
        if (!known.contains(position))
            throw UsageError(
                QStringLiteral("the machine has no circuit %1; quvctl circuits tells which it has")
                    .arg(position));
}

QList<int> positionsOfColorant(const Driver &driver, const QString &code)
{
    const auto list = answerTo<GetCanisterListAnswer>(ProtoCommandList::GET_CANISTER_LIST, driver);
    QList<int> positions;
    for (const CanisterData &canister : list.canisterList())
        if (canister.enabled && canister.colorantCode == code)
            positions.append(canister.positionIDs);
    if (positions.isEmpty())
        throw UsageError(QStringLiteral("the machine has no circuit with the colorant %1%2")
                             .arg(excerpt(code), didYouMeanColorant(code, list.canisterList())));
    return positions;
}

/// Nothing for the code of a colorant. \throws UsageError for a number that is no position
std::optional<int> positionIn(const QString &word)
{
    bool isNumber = false;
    const int position = word.toInt(&isNumber);
    if (!isNumber)
        return std::nullopt;
    if (position < 1 || position > 255)
        throw UsageError(
            QStringLiteral("a circuit's position is a number from 1 to 255, not %1").arg(position));
    return position;
}

QList<int> positionsOf(const Driver &driver, const QString &word)
{
    const std::optional<int> position = positionIn(word);
    return position ? QList<int>{*position} : positionsOfColorant(driver, word);
}

} // namespace

void requirePositions(const CommandLine &line)
{
    for (const QString &word : line.value("circuit", QString()).split(QLatin1Char(',')))
        positionIn(word);
}

CircuitChoice chosenCircuits(const Driver &driver, const CommandLine &line)
{
    if (!line.isSet("circuit"))
        return {{0}, QStringLiteral("all circuits")};
    const QString told = line.value("circuit", QString());
    const QStringList words = told.split(QLatin1Char(','));
    if (words.contains(QString()))
        throw UsageError(
            QStringLiteral("--circuit takes positions and codes of colorants, such as 3,KX; not \"%1\"")
                .arg(excerpt(told)));
    CircuitChoice choice{{}, QString()};
    for (const QString &word : words)
        for (const int position : positionsOf(driver, word))
            if (!choice.positions.contains(position))
                choice.positions.append(position);
    requireCircuits(driver, choice.positions);
    QStringList names;
    for (const int position : qAsConst(choice.positions))
        names.append(QString::number(position));
    choice.words = (names.size() == 1 ? QStringLiteral("circuit ") : QStringLiteral("circuits ")) +
                   names.join(QStringLiteral(", "));
    return choice;
}

} // namespace quv
