// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandcontract.h"
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

/** What the classes with a list of circuits do not share. */
struct CircuitListKind
{
    CircuitListRefusals refusals;
    CatalogueFacts catalogue;
    int criterion = 0;               ///< by default
    bool hasItsOwnCriterion = false; ///< which is the default one, whatever was given
    Words ofNone;                    ///< of a command without circuits
    Words ofCircuit1;
    Words ofThreeCircuits;
    std::vector<Gate> firmware;
};

/** What is no list of circuits in a list. */
inline List otherThanCircuits()
{
    QVariantMap withoutCriterion = oneCircuitMap(1);
    withoutCriterion.remove("exec_criterion");
    return {7,
            QStringLiteral("circuits"),
            QVariant(),
            QVariantMap{},
            withoutCriterion,
            List{oneCircuitMap(1)},
            QVariant::fromValue(strokes({{"1", 1}}))}; // another formula, which has a criterion
}

/** A request of one circuit, in all forms. */
template <class Command>
Request requestOfOneCircuit(const CircuitListKind &kind, int criterion, const FW_Dispenser *machine)
{
    const PCircuitFormula given(criterion, {{1, 0, 50, 1}});
    const int sent = kind.hasItsOwnCriterion ? kind.criterion : criterion;
    return Request(listOf(given))
        .value(arrayOf(oneCircuitValue(criterion)))
        .template typed<Command>(given, machine)
        .parameters(listOf({sent, {{1, 0, 50, 1}}}))
        .written(R"([{"exec_criterion": )" + std::to_string(sent) +
                 R"(, "target_circuits": [{"position_id": 1, "queue_id": 0, "speed": 50, "strokes": 1}]}])")
        .sends({sent, 1, 1, 0, 50, 1, 1})
        .says(kind.ofCircuit1);
}

/** A request that no machine checks: one of the circuits has no stroke. */
template <class Command>
Request requestOfThreeCircuits(const CircuitListKind &kind)
{
    const int sent = kind.hasItsOwnCriterion ? kind.criterion : 16;
    return Request(listOf(threeCircuits(16)))
        .value(arrayOf(threeCircuits(16).toXmlRpcValue()))
        .template typed<Command>(threeCircuits(16), nullptr)
        .parameters(listOf(threeCircuits(sent)))
        .written(R"([{"exec_criterion": )" + std::to_string(sent) +
                 R"(, "target_circuits": [)"
                 R"({"position_id": 1, "queue_id": 31, "speed": 50, "strokes": 2}, )"
                 R"({"position_id": 3, "queue_id": 0, "speed": 40, "strokes": 300}, )"
                 R"({"position_id": 4, "queue_id": 34, "speed": 30, "strokes": 0}]}])")
        .sends({sent, 3, 1, 31, 50, 1, 2, 3, 0, 40, 2, 54, 1, 4, 34, 30})
        .says(kind.ofThreeCircuits);
}

template <class Command>
CommandFacts circuitListFacts(const CircuitListKind &kind, const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<Command>(machine));
    facts.catalogue = kind.catalogue;
    facts.protoType = 1;
    facts.valueFunction = kind.refusals.ofValue();
    facts.listFunction = kind.refusals.ofList();
    facts.arguments = {required().refuses({}, otherThanCircuits(),
                                          {"", kind.refusals.expected, kind.refusals.text("expected")})};
    facts.getters = {getter(&Command::formula)};
    facts.firmware = kind.firmware;
    facts.defaults = Request()
                         .parameters(listOf(PCircuitFormula(kind.criterion, {})))
                         .written(R"([{"exec_criterion": )" + std::to_string(kind.criterion) +
                                  R"(, "target_circuits": []}])")
                         .sends({kind.criterion, 0})
                         .says(kind.ofNone);
    for (int criterion : {1, 2, 8, 16}) {
        facts.requests.push_back(requestOfOneCircuit<Command>(kind, criterion, machine));
        facts.requests.push_back(facts.requests.back().alsoFromList({oneCircuitMap(criterion)}));
    }
    if (!machine)
        facts.requests.push_back(requestOfThreeCircuits<Command>(kind));
    facts.answers = serialAnswers();
    return facts;
}

/** As a client makes the command, without a machine, and as the driver does. */
template <class Command>
void expectCircuitListContract(const CircuitListKind &kind)
{
    const FW_Dispenser machine = dispenser();
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        SCOPED_TRACE(given ? "with a machine" : "without a machine");
        expectCommandContract(circuitListFacts<Command>(kind, given));
    }
}

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
