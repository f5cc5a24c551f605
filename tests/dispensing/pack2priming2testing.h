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
    expectCheckRefused<typename Kind::Command>({Kind::className, "", "", "", ""}, formula, machine, code);
}

/** Both are known to the same firmware. */
inline std::vector<Gate> firmwareOfCircuitWork()
{
    return {{{63, 0}, false},  {{63, 32}, false}, {{63, 33}, true},     {{68, 0}, false}, {{68, 99}, false},
            {{70, 0}, true},   {{70, 5}, true},   {{72, 0}, true},      {{72, 5}, true},  {{1, 99}, false},
            {{64, 99}, false}, {{71, 99}, false}, {FW_Version(), false}};
}

/**
 * The tests of the check against a dispenser. A Kind tells the Command, its className, and the codes of its check
 * (withoutDispenser, withoutCircuits, unknownCircuit).
 */
template <class Kind>
class CircuitWorkCommand : public testing::Test
{};

TYPED_TEST_SUITE_P(CircuitWorkCommand);

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

REGISTER_TYPED_TEST_SUITE_P(CircuitWorkCommand, takesCircuitsThatTheMachineHas,
                            cannotBeCheckedWithoutADispenser, needsCircuits, needsCircuitsThatTheMachineHas);

} // namespace testing_dispensing
