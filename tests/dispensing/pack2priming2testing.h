// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "dispensing/circuitlisttesting.h"

#include <QuvFramework/fw_version.h>

#include <gtest/gtest.h>

#include <vector>

// What the tests of a pack and of a priming of circuits share.

namespace testing_dispensing {

/** Expects the refusal of the Kind's Command by all three constructors. */
template <class Kind>
void expectKindRefused(const PCircuitFormula &formula, const FW_Dispenser &machine, const char *code)
{
    const CircuitListRefusals refusals = {Kind::className, "", "", "", ""};
    expectCheckRefused<typename Kind::Command>(refusals, formula, machine, code);
}

/**
 * The tests of the check against a dispenser, of the firmware and of the words. A Kind tells the Command, its className
 * and name, its defaults(), the codes of its check (withoutDispenser, withoutCircuits, unknownCircuit), and its words
 * (words, wordsOfThree circuits, wordsOfNone).
 */
template <class Kind>
class CircuitWorkCommand : public testing::Test
{};

TYPED_TEST_SUITE_P(CircuitWorkCommand);

TYPED_TEST_P(CircuitWorkCommand, goesBackToItsDefaults)
{
    typename TypeParam::Command command(oneCircuit(1), nullptr);
    command.setDefaults();
    EXPECT_EQ(command.formula(), TypeParam::defaults());
    EXPECT_EQ(command.command(), TypeParam::name);
}

TYPED_TEST_P(CircuitWorkCommand, takesCircuitsThatTheMachineHas)
{
    using Command = typename TypeParam::Command;
    expectCheckPassed<Command>({2, {{1, 0, 50, 1}, {4, 0, 50, 300}}}, dispenser());
    expectCheckPassed<Command>(oneCircuit(1), withDisabledCircuit(2));
}

TYPED_TEST_P(CircuitWorkCommand, cannotBeCheckedWithoutADispenser)
{
    using Command = typename TypeParam::Command;
    FW_DriverError error;
    EXPECT_FALSE(Command(oneCircuit(1), nullptr).checkFormula(error));
    expectError(error, TypeParam::withoutDispenser, "Invalid data");
    EXPECT_FALSE(Command().checkFormula(error)); // comes before the circuits
    expectError(error, TypeParam::withoutDispenser, "Invalid data");
}

TYPED_TEST_P(CircuitWorkCommand, needsCircuits)
{
    expectKindRefused<TypeParam>({2, {}}, dispenser(), TypeParam::withoutCircuits);
}

TYPED_TEST_P(CircuitWorkCommand, needsCircuitsThatTheMachineHas)
{
    const char *const code = TypeParam::unknownCircuit;
    expectKindRefused<TypeParam>(oneCircuit(99), dispenser(), code);
    expectKindRefused<TypeParam>(oneCircuit(0), dispenser(), code);
    expectKindRefused<TypeParam>(oneCircuit(1), withDisabledCircuit(1), code);
    expectKindRefused<TypeParam>({2, {{1, 0, 50, 1}, {2, 0, 50, 1}, {99, 0, 50, 1}}}, dispenser(), code);
}

TYPED_TEST_P(CircuitWorkCommand, isKnownToNewFirmware)
{
    struct Row
    {
        FW_Version version;
        bool supported;
    };
    const std::vector<Row> rows = {{{63, 0}, false},  {{63, 32}, false}, {{63, 33}, true},  {{68, 0}, false},
                                   {{68, 99}, false}, {{70, 0}, true},   {{70, 5}, true},   {{72, 0}, true},
                                   {{72, 5}, true},   {{1, 99}, false},  {{64, 99}, false}, {{71, 99}, false},
                                   {{}, false}};
    for (const Row &row : rows) {
        EXPECT_EQ(typename TypeParam::Command().isSupportedCommand(row.version), row.supported)
            << row.version.m_family << ' ' << row.version.m_revision;
    }
}

TYPED_TEST_P(CircuitWorkCommand, saysWhatItDoes)
{
    using Command = typename TypeParam::Command;
    const Command command(threeCircuits(2), nullptr);
    EXPECT_EQ(command.actionString(false).m_text, TypeParam::words);
    EXPECT_EQ(command.actionString(true).m_text, TypeParam::wordsOfThree);
    EXPECT_EQ(Command().actionString(true).m_text, TypeParam::wordsOfNone);
}

TYPED_TEST_P(CircuitWorkCommand, translatesItsWords)
{
    const TranslatedTexts translated;
    const typename TypeParam::Command command(threeCircuits(2), nullptr);
    EXPECT_EQ(command.actionString(false).m_translated, translation(TypeParam::words));
    EXPECT_EQ(command.actionString(true).m_text, TypeParam::wordsOfThree);
    EXPECT_EQ(command.actionString(true).m_translated, translation(TypeParam::wordsOfThree));
}

REGISTER_TYPED_TEST_SUITE_P(CircuitWorkCommand, goesBackToItsDefaults, takesCircuitsThatTheMachineHas,
                            cannotBeCheckedWithoutADispenser, needsCircuits, needsCircuitsThatTheMachineHas,
                            isKnownToNewFirmware, saysWhatItDoes, translatesItsWords);

} // namespace testing_dispensing
