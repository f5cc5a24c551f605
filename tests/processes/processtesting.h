// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandcontract.h"
#include "base/translatedtexts.h"

#include <QuvFramework/fw_dispenser.h>

#include <initializer_list>
#include <utility>

// What the tests of timed processes share.

namespace testing_processes {

using namespace testing_base;

/** A text for displays with one word in it that is translated by itself. */
inline Phrase withWord(const QString &before, const char *word, const QString &after)
{
    const QString source = before + word + after;
    return {source.toUtf8().constData(), "QuvProtocol", translation(before + translation(word) + after)};
}

/** A dispenser with a canister for each position, whose number it has, and in it the circuit of 10 times the number. */
inline FW_Dispenser dispenserWith(std::initializer_list<int> positions)
{
    FW_Dispenser dispenser;
    for (const int position : positions) {
        FW_Canister canister(position);
        canister.addCircuit(FW_Circuit(10 * position, position));
        dispenser.addCanister(canister);
    }
    return dispenser;
}

/** At which of the families and revisions around its gates a firmware has something. */
struct GateRow
{
    int family = 0;
    int revision = 0;
    bool passes = false;
};

template <class Asks>
void expectGates(std::initializer_list<GateRow> rows, Asks asks)
{
    for (const GateRow &row : rows) {
        SCOPED_TRACE(std::to_string(row.family) + '.' + std::to_string(row.revision));
        EXPECT_EQ(asks(FW_Version(row.family, row.revision)), row.passes);
    }
    EXPECT_FALSE(asks(FW_Version()));
}

/** What commandVersion tells of firmwares, and of none. */
template <class Tells>
void expectVersions(std::initializer_list<std::pair<FW_Version, int>> versions, Tells tells)
{
    EXPECT_EQ(tells(nullptr), 0);
    for (const auto &[version, expected] : versions)
        EXPECT_EQ(tells(&version), expected) << version.toString().toStdString();
}

} // namespace testing_processes
