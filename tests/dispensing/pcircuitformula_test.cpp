// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pcircuitformula.h"

#include "dispensing/dispensertesting.h"

#include <QuvFramework/fw_version.h>

#include <type_traits>
#include <vector>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "PCircuitFormula::PCircuitFormula(const XmlRpc::XmlRpcValue&)";
constexpr char ofCircuit[] = "PCircuit::PCircuit(const XmlRpc::XmlRpcValue&)";
constexpr char badValues[] = "PCircuit: bad xml-rpc values";

Value circuitValue(int position)
{
    return structOf({{"position_id", Value(position)},
                     {"queue_id", Value(31)},
                     {"speed", Value(50)},
                     {"strokes", Value(2)}});
}

const PCircuitFormula twoCircuits(2, {{1, 31, 50, 2}, {3, 31, 50, 2}});

Value twoCircuitsValue()
{
    return structOf(
        {{"exec_criterion", Value(2)}, {"target_circuits", arrayOf(circuitValue(1), circuitValue(3))}});
}

QVariantMap twoCircuitsMap()
{
    const auto circuit = [](int position) {
        return QVariantMap{{"position_id", position}, {"queue_id", 31}, {"speed", 50}, {"strokes", 2}};
    };
    return {{"exec_criterion", 2}, {"target_circuits", QVariantList{circuit(1), circuit(3)}}};
}

TEST(PCircuitFormula, isEmptyAtFirst)
{
    const PCircuitFormula formula;
    EXPECT_EQ(formula.executionCriterion, 0);
    EXPECT_TRUE(formula.targetCircuits.isEmpty());
    EXPECT_EQ(dumped(formula.toXmlRpcValue()), R"({"exec_criterion": 0, "target_circuits": []})");
}

TEST(PCircuitFormula, namesItsMembers)
{
    EXPECT_STREQ(PCircuitFormula::executionCriterion_TAG, "exec_criterion");
    EXPECT_STREQ(PCircuitFormula::targetCircuits_TAG, "target_circuits");
}

TEST(PCircuitFormula, isAStructWithAnArray)
{
    EXPECT_EQ(dumped(twoCircuits.toXmlRpcValue()),
              R"({"exec_criterion": 2, "target_circuits": [)"
              R"({"position_id": 1, "queue_id": 31, "speed": 50, "strokes": 2}, )"
              R"({"position_id": 3, "queue_id": 31, "speed": 50, "strokes": 2}]})");
    EXPECT_EQ(PCircuitFormula(twoCircuitsValue()), twoCircuits);
}

TEST(PCircuitFormula, mayLeaveTheCircuitsOut)
{
    EXPECT_EQ(PCircuitFormula(structOf({{"exec_criterion", Value(16)}})), PCircuitFormula(16, {}));
    EXPECT_EQ(PCircuitFormula(structOf({{"exec_criterion", Value(-1)}, {"target_circuits", arrayOf()}})),
              PCircuitFormula(-1, {}));
}

TEST(PCircuitFormula, isNothingButAStruct)
{
    for (const Value &value :
         {Value(), Value(2), Value("2"), arrayOf(2, arrayOf(circuitValue(1))), arrayOf()}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02318", badValues, ofFormula, [&] { const PCircuitFormula formula(value); });
    }
    static_assert(!std::is_constructible_v<PCircuitFormula, int>);
    static_assert(!std::is_constructible_v<PCircuitFormula, const char *>);
}

TEST(PCircuitFormula, needsACriterion)
{
    Value none;
    none["target_circuits"] = arrayOf(circuitValue(1));
    expectRefusal("DE02319", badValues, ofFormula, [&] { const PCircuitFormula formula(none); });
    expectRefusal("DE02319", badValues, ofFormula, [&] { const PCircuitFormula formula(structOf({})); });
    for (const Value &other : {Value(true), Value(2.0), Value("2"), arrayOf(2)}) {
        SCOPED_TRACE(dumped(other));
        Value value = twoCircuitsValue();
        value["exec_criterion"] = other;
        value["target_circuits"] = 7; // is looked at later
        expectRefusal("DE02319", badValues, ofFormula, [&] { const PCircuitFormula formula(value); });
    }
}

TEST(PCircuitFormula, needsAnArrayWhereThereAreCircuits)
{
    for (const Value &other : {Value(7), Value("1"), Value(false), circuitValue(1)}) {
        SCOPED_TRACE(dumped(other));
        Value value = twoCircuitsValue();
        value["target_circuits"] = other;
        expectRefusal("DE02317", badValues, ofFormula, [&] { const PCircuitFormula formula(value); });
    }
}

TEST(PCircuitFormula, needsEveryCircuitWhole)
{
    Value noSpeed;
    for (const char *key : {"position_id", "queue_id", "strokes"})
        noSpeed[key] = 1;
    for (const Value &bad : {noSpeed, Value(1), arrayOf(1, 31, 50, 2)}) {
        SCOPED_TRACE(dumped(bad));
        Value value = twoCircuitsValue();
        value["target_circuits"][1] = bad;
        expectRefusal("DE02317", badValues, ofCircuit, [&] { const PCircuitFormula formula(value); });
    }
}

TEST(PCircuitFormula, differsInCriterionAndCircuits)
{
    PCircuitFormula other = twoCircuits;
    EXPECT_TRUE(other == twoCircuits);
    EXPECT_FALSE(other != twoCircuits);
    other.executionCriterion = 1;
    EXPECT_TRUE(other != twoCircuits);
    other = twoCircuits;
    other.targetCircuits[1].strokes = 3;
    EXPECT_FALSE(other == twoCircuits);
    other = twoCircuits;
    other.targetCircuits.removeLast();
    EXPECT_FALSE(other == twoCircuits);
}

TEST(PCircuitFormula, travelsInAVariant)
{
    EXPECT_EQ(QMetaType::type("PCircuitFormula"), qMetaTypeId<PCircuitFormula>());
    const QVariant variant = QVariant::fromValue(twoCircuits);
    EXPECT_EQ(variant.value<PCircuitFormula>(), twoCircuits);
    EXPECT_EQ(variant, QVariant::fromValue(PCircuitFormula(twoCircuitsValue())));
    EXPECT_NE(variant, QVariant::fromValue(PCircuitFormula()));
    EXPECT_EQ(variant.toMap(), twoCircuitsMap());
    EXPECT_EQ(QVariant(twoCircuitsMap()).value<PCircuitFormula>(), twoCircuits);
}

TEST(PCircuitFormula, refusesAVariantMapAsItRefusesAStruct)
{
    QVariantMap map = twoCircuitsMap();
    map["exec_criterion"] = QStringLiteral("2");
    expectRefusal("DE02319", badValues, ofFormula, [&] { QVariant(map).value<PCircuitFormula>(); });
    map = twoCircuitsMap();
    map["target_circuits"] = 1;
    expectRefusal("DE02317", badValues, ofFormula, [&] { QVariant(map).value<PCircuitFormula>(); });
}

TEST(PCircuitFormula, knowsWhichFirmwareHasWhichCriterion)
{
    struct Row
    {
        int criterion;
        FW_Version version;
        bool supported;
    };
    const std::vector<Row> rows = {
        {1, {}, true},        {1, {1, 0}, true},    {1, {68, 0}, true},   {2, {}, true},
        {2, {63, 1}, true},   {2, {72, 0}, true},   {8, {72, 0}, true},   {8, {72, 9}, true},
        {8, {68, 0}, false},  {8, {68, 2}, false},  {8, {68, 3}, true},   {8, {70, 9}, false},
        {8, {63, 99}, false}, {8, {}, false},       {16, {70, 0}, false}, {16, {70, 1}, false},
        {16, {70, 2}, true},  {16, {72, 9}, false}, {16, {68, 9}, false}, {16, {}, false},
        {0, {72, 9}, false},  {3, {72, 9}, false},  {4, {70, 9}, false},  {9, {72, 9}, false},
        {24, {70, 9}, false}, {-1, {72, 9}, false},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(PCircuitFormula::isSupportedExecutionCriterion(row.criterion, row.version), row.supported)
            << row.criterion << " on family " << row.version.m_family << " revision "
            << row.version.m_revision;
    }
}

} // namespace
