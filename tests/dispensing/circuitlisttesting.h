// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "dispensing/dispensertesting.h"
#include "dispensing/pcircuitformula.h"

#include <QuvFramework/fw_exception.h>

#include <memory>
#include <string>

// What the tests of commands with a list of circuits share.

namespace testing_dispensing {

/** Circuits 1 and 3 of the dispenser, 2 and 300 strokes, and 4 without any. */
inline PCircuitFormula threeCircuits(int criterion)
{
    return {criterion, {{1, 31, 50, 2}, {3, 0, 40, 300}, {4, 34, 30, 0}}};
}

inline PCircuitFormula oneCircuit(int position, int strokes = 1)
{
    return {2, {{position, 0, 50, strokes}}};
}

inline Value oneCircuitValue(int criterion)
{
    return structOf({{"exec_criterion", Value(criterion)},
                     {"target_circuits", arrayOf(structOf({{"position_id", Value(1)},
                                                           {"queue_id", Value(0)},
                                                           {"speed", Value(50)},
                                                           {"strokes", Value(1)}}))}});
}

inline QVariantMap oneCircuitMap(int criterion)
{
    return {{"exec_criterion", criterion},
            {"target_circuits",
             QVariantList{QVariantMap{{"position_id", 1}, {"queue_id", 0}, {"speed", 50}, {"strokes", 1}}}}};
}

inline List listOf(const PCircuitFormula &formula)
{
    return {QVariant::fromValue(formula)};
}

/** The signatures of the constructors, and the codes of what they refuse, of one class. */
struct CircuitListRefusals
{
    std::string className;
    const char *invalidTyped = "";
    const char *invalidValue = "";
    const char *incorrect = "";
    const char *expected = "";

    std::string ofFormula() const { return signature("const PCircuitFormula&"); }
    std::string ofValue() const { return signature("const XmlRpc::XmlRpcValue&"); }
    std::string ofList() const { return signature("QList<QVariant>"); }
    std::string text(const char *kind) const
    {
        return className + " failed: " + kind + " Formula type parameter";
    }

private:
    std::string signature(const char *argument) const
    {
        return className + "::" + className + '(' + argument + ", const FW_Dispenser*)";
    }
};

/** Expects the refusal of all three constructors. */
template <class Command>
void expectCheckRefused(const CircuitListRefusals &refusals, const PCircuitFormula &formula,
                        const FW_Dispenser &machine, const char *code)
{
    expectRefusal(code, "Invalid data", refusals.ofFormula().c_str(),
                  [&] { const Command command(formula, &machine); });
    expectRefusal(code, "Invalid data", refusals.ofValue().c_str(),
                  [&] { const Command command(arrayOf(formula.toXmlRpcValue()), &machine); });
    expectRefusal(code, "Invalid data", refusals.ofList().c_str(),
                  [&] { const Command command(listOf(formula), &machine); });
}

template <class Command>
void expectCheckPassed(const PCircuitFormula &formula, const FW_Dispenser &machine)
{
    EXPECT_EQ(Command(formula, &machine).formula().targetCircuits, formula.targetCircuits);
    EXPECT_EQ(Command(arrayOf(formula.toXmlRpcValue()), &machine).formula().targetCircuits,
              formula.targetCircuits);
    EXPECT_EQ(Command(listOf(formula), &machine).formula().targetCircuits, formula.targetCircuits);
    FW_DriverError error;
    EXPECT_TRUE(Command(formula, &machine).checkFormula(error));
    EXPECT_EQ(error.code(), "");
}

} // namespace testing_dispensing
