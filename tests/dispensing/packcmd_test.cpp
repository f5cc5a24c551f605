// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/packcmd.h"

#include "catalogue/protocommandlist.h"
#include "dispensing/dispensertesting.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_version.h>

#include <memory>
#include <vector>

namespace {

using namespace testing_dispensing;

constexpr char ofFormula[] = "PackCmd::PackCmd(int, const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] = "PackCmd::PackCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "PackCmd::PackCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char ofBase[] =
    "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char ofListBase[] = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";

constexpr char badMovement[] = "PackCmd failed: invalid pump movement type parameter";

Value tenGramsValue()
{
    return structOf({{"formula_type", Value(1)},
                     {"quantity_unit", Value(3)},
                     {"exec_criterion", Value(0)},
                     {"levels_policy", Value(0)},
                     {"decimals", Value(3)},
                     {"ids", arrayOf("1")},
                     {"quantities", arrayOf(10.0)}});
}

QVariantMap tenGramsMap()
{
    return {{"formula_type", 1},
            {"quantity_unit", 3},
            {"ids", QVariantList{"1"}},
            {"quantities", QVariantList{10.0}}};
}

List listOf(const QVariant &movement, const Formula &formula)
{
    return {movement, QVariant::fromValue(formula)};
}

void expectRefused(const Formula &formula, const FW_Dispenser &machine, const char *code, const char *text)
{
    expectRefusal(code, text, ofFormula, [&] { const PackCmd command(1, formula, &machine); });
    expectRefusal(code, text, ofValue,
                  [&] { const PackCmd command(arrayOf(1, formula.toXmlRpcValue()), &machine); });
    expectRefusal(code, text, ofList, [&] { const PackCmd command(listOf(1, formula), &machine); });
}

void expectTaken(const Formula &formula, const FW_Dispenser &machine)
{
    EXPECT_EQ(PackCmd(1, formula, &machine).formula(), formula);
    EXPECT_EQ(PackCmd(arrayOf(1, formula.toXmlRpcValue()), &machine).formula(), formula);
    EXPECT_EQ(PackCmd(listOf(1, formula), &machine).formula(), formula);
    FW_DriverError error;
    EXPECT_TRUE(PackCmd(1, formula, &machine).checkFormula(error));
    EXPECT_EQ(error.code(), "");
}

// ---------------------------------------------------------------- construction

TEST(PackCmd, hasNoMovementAtFirst)
{
    const PackCmd command;
    EXPECT_EQ(command.command(), "PACK");
    EXPECT_EQ(command.protoType(), 1);
    EXPECT_EQ(command.pumpMovementType(), -1);
    EXPECT_EQ(command.formula(), Formula());
    EXPECT_FALSE(command.machine());
    EXPECT_EQ(command.parameters(), listOf(-1, Formula()));
}

TEST(PackCmd, isRow16OfTheCatalogue)
{
    const CMD_STRUCT *row = ProtoCommandList::row(PackCmd().command());
    ASSERT_TRUE(row);
    EXPECT_EQ(row->id, 16);
    EXPECT_EQ(row->code, "0017");
}

TEST(PackCmd, knowsTwoMovements)
{
    for (int type : {0, 1})
        EXPECT_TRUE(PackCmd::checkPumpMovementType(type)) << type;
    for (int type : {-2, -1, 2, 3, 100})
        EXPECT_FALSE(PackCmd::checkPumpMovementType(type)) << type;
}

TEST(PackCmd, takesMovementAndFormulaInEveryForm)
{
    const Formula formula = grams({{"1", 10}});
    for (int movement : {0, 1}) {
        for (const PackCmd &command :
             {PackCmd(movement, formula, nullptr), PackCmd(arrayOf(movement, tenGramsValue()), nullptr),
              PackCmd(listOf(movement, formula), nullptr), PackCmd(List{movement, tenGramsMap()}, nullptr)}) {
            EXPECT_EQ(command.command(), "PACK");
            EXPECT_EQ(command.protoType(), 1);
            EXPECT_EQ(command.pumpMovementType(), movement);
            EXPECT_EQ(command.formula(), formula);
            EXPECT_FALSE(command.machine());
            EXPECT_EQ(command.parameters(), listOf(movement, formula));
            bool ok = false;
            EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), dumped(arrayOf(movement, tenGramsValue())));
            EXPECT_TRUE(ok);
        }
    }
}

TEST(PackCmd, goesRoundInBothForms)
{
    const Formula formula = steps({{"1", 1, 7}, {"3", 300, 0, 2}});
    const PackCmd command(1, formula, nullptr);
    for (const PackCmd &same :
         {PackCmd(command.xmlrpc_parameters(), nullptr), PackCmd(command.parameters(), nullptr)}) {
        EXPECT_EQ(same.pumpMovementType(), 1);
        EXPECT_EQ(same.formula(), formula);
    }
    EXPECT_EQ(dumped(PackCmd(0, grams({{"1", 10}}), nullptr).toXmlRpcValue(QString())),
              dumped(arrayOf("PACK", 0, tenGramsValue())));
}

TEST(PackCmd, checksNoFormulaWithoutADispenser)
{
    for (const Formula &formula : {Formula(), grams({{"1", -1}}), grams({{"99", 0}})}) {
        EXPECT_EQ(PackCmd(0, formula, nullptr).formula(), formula);
        EXPECT_EQ(PackCmd(arrayOf(0, formula.toXmlRpcValue()), nullptr).formula(), formula);
        EXPECT_EQ(PackCmd(listOf(0, formula), nullptr).formula(), formula);
    }
}

TEST(PackCmd, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    const PackCmd command(1, grams({{"1", 10}}), &machine);
    const PackCmd copy(command);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *cloned = dynamic_cast<const PackCmd *>(clone.get());
    ASSERT_TRUE(cloned);
    for (const PackCmd *same : {&copy, cloned}) {
        EXPECT_EQ(same->command(), "PACK");
        EXPECT_EQ(same->pumpMovementType(), 1);
        EXPECT_EQ(same->formula(), command.formula());
        EXPECT_NE(same->machine(), command.machine());
        EXPECT_EQ(same->serialParameters(1), (QList<int>{3, 1, 1, 0, 40, 1, 1}));
    }
}

TEST(PackCmd, checksTheMovementAlwaysAndFirst)
{
    const FW_Dispenser machine = dispenser();
    const Formula bad = grams({{"1", -1}});
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        for (int movement : {-1, 2, 100}) {
            SCOPED_TRACE(movement);
            expectRefusal("DE00506", badMovement, ofFormula,
                          [&] { const PackCmd command(movement, bad, given); });
            expectRefusal("DE00987", badMovement, ofValue,
                          [&] { const PackCmd command(arrayOf(movement, unreadableFormula()), given); });
            expectRefusal("DE00992", badMovement, ofList, [&] {
                const PackCmd command(List{movement, QVariant()}, given);
            });
        }
    }
}

TEST(PackCmd, refusesAMovementThatIsNoInteger)
{
    for (const Value &other : {Value(true), Value(1.0), Value("1"), arrayOf(1), tenGramsValue()}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00988", "PackCmd failed: expected Int type for first parameter", ofValue,
                      [&] { const PackCmd command(arrayOf(other, unreadableFormula()), nullptr); });
    }
    const List others = {QStringLiteral("in"), 4294967296LL, QVariant(), List{1}, tenGramsMap()};
    for (const QVariant &other : others) {
        expectRefusal("DE00863", badMovement, ofList, [&] {
            const PackCmd command(List{other, QVariant()}, nullptr);
        });
    }
}

TEST(PackCmd, takesAMovementThatConvertsInAList)
{
    for (const QVariant &movement : {QVariant(true), QVariant(1.0), QVariant("1")})
        EXPECT_EQ(PackCmd(List{movement, tenGramsMap()}, nullptr).pumpMovementType(), 1);
}

TEST(PackCmd, refusesAValueThatIsNoFormula)
{
    for (const Value &bad : {unreadableFormula(), Value(7), Value("formula"), arrayOf(), structOf({})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00989", "PackCmd failed: invalid Formula type parameter", ofValue,
                      [&] { const PackCmd command(arrayOf(0, bad), nullptr); });
    }
}

TEST(PackCmd, refusesAListWithoutAFormula)
{
    const List others = {7,
                         QStringLiteral("formula"),
                         QVariant(),
                         QVariantMap{},
                         QVariantMap{{"ids", List{"1"}}},
                         List{tenGramsMap()}};
    for (const QVariant &other : others) {
        expectRefusal("DE00994", "PackCmd failed: expected Formula type parameter", ofList, [&] {
            const PackCmd command(List{0, other}, nullptr);
        });
    }
    expectRefusal("DE00993", "PackCmd failed: incorrect Formula type parameter", ofList, [] {
        const PackCmd command(List{0, unreadableFormulaVariant()}, nullptr);
    });
}

TEST(PackCmd, leavesTheCountToTheBase)
{
    constexpr char tooFew[] = "PACK command : expected at least 2 parameters, received 1 instead!";
    expectRefusal("DE00312", tooFew, ofBase, [] { const PackCmd command(arrayOf(0), nullptr); });
    expectRefusal("DE00313", tooFew, ofListBase, [] { const PackCmd command(List{0}, nullptr); });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [] { const PackCmd command(tenGramsValue(), nullptr); });
}

// ---------------------------------------------------------------- the check

TEST(PackCmd, looksAtNeitherUnitNorStepsNorLevels)
{
    for (int unit : {0, 1, 2, 3})
        expectTaken(formulaOf(1, unit, {{"1", 1}, {"4", 0.5}}), dispenser());
    expectTaken(strokes({{"1", 3e9}}), dispenser());
    expectTaken(steps({{"1", 1}}), withoutCalibration(1));
    Formula tooMuch = grams({{"1", 600}});
    tooMuch.setLevelsManagementPolicy(2);
    expectTaken(tooMuch, dispenser());
}

TEST(PackCmd, cannotBeCheckedWithoutADispenser)
{
    FW_DriverError error;
    EXPECT_FALSE(PackCmd(0, grams({{"1", 10}}), nullptr).checkFormula(error));
    expectError(error, "DE01195", "Invalid dispenser data");
    EXPECT_FALSE(PackCmd(0, grams({{"1", -1}}), nullptr).checkFormula(error)); // comes first
    expectError(error, "DE01195", "Invalid dispenser data");
}

TEST(PackCmd, needsPositiveQuantities)
{
    expectRefused(grams({{"1", 1}, {"2", -1}}), dispenser(), "DE00990", notPositive);
    expectRefused(grams({{"1", 1}, {"2", 0}}), dispenser(), "DE00990", notPositive);
    expectRefused(grams({{"99", -1}}), dispenser(), "DE00990", notPositive); // before the circuits
}

TEST(PackCmd, passesOnWhatTheFormulaSaysOfTheMachine)
{
    expectRefused(grams({{"1", 1}, {"99", 1}}), dispenser(), "DE03021",
                  "Formula: the dispenser does not have \"99\"");
    expectRefused(grams({{"1", 1}}), withDisabledCircuit(1), "DE03022", "Formula: \"1\" is disabled");
    expectRefused(grams({{"1", 1}, {"99", 1}}), withoutSpeed(1), "DE03021",
                  "Formula: the dispenser does not have \"99\"");
}

TEST(PackCmd, needsItems)
{
    expectRefused(grams({}), dispenser(), "DE00991", "Empty Formula found");
}

TEST(PackCmd, needsASpeedOfEveryCircuit)
{
    expectRefused(grams({{"1", 1}, {"2", 1}}), withoutSpeed(2), "DE00995", "Bad speed value in formula");
    expectRefused(grams({{"2", 1}}), withoutCalibration(2), "DE00995", "Bad speed value in formula");
}

// ---------------------------------------------------------------- towards the firmware

TEST(PackCmd, sendsTheMovementInThePlaceOfSteps)
{
    const FW_Dispenser machine = dispenser();
    const Formula formula = grams({{"4", 300}, {"1", 10, 9}});
    for (int family : {1, 2}) {
        EXPECT_EQ(PackCmd(0, formula, &machine).serialParameters(family),
                  (QList<int>{3, 2, 4, 0, 40, 1, 0, 1, 0, 40, 1, 0}));
        EXPECT_EQ(PackCmd(1, formula, &machine).serialParameters(family),
                  (QList<int>{3, 2, 4, 0, 40, 1, 1, 1, 0, 40, 1, 1}));
    }
    EXPECT_EQ(PackCmd(1, strokes({{"3", 0.1}}), &machine).serialParameters(1),
              (QList<int>{3, 1, 3, 0, 50, 1, 1})); // no stroke at all is no reason to leave it out
}

TEST(PackCmd, sendsNothingWithoutADispenser)
{
    EXPECT_EQ(PackCmd().serialParameters(1), QList<int>());
    EXPECT_EQ(PackCmd(0, grams({{"1", 10}}), nullptr).serialParameters(1), QList<int>());
}

TEST(PackCmd, takesTheTimeOfItsFormulaOnItsOwnMachine)
{
    const FW_Dispenser machine = dispenser();
    const FW_Dispenser other = dualHead();
    const PackCmd command(0, grams({{"1", 10}, {"2", 20}}), &machine);
    for (const FW_Machine *asked :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&machine),
          static_cast<const FW_Machine *>(&other)}) {
        EXPECT_EQ(command.getCmdEstimatedExecutionTime(asked), 750 + 1500);
        EXPECT_EQ(PackCmd(0, strokes({{"1", 2}}), &machine).getCmdEstimatedExecutionTime(asked), 36000);
        EXPECT_EQ(PackCmd(0, grams({{"1", 10}}), nullptr).getCmdEstimatedExecutionTime(asked), 0);
        EXPECT_EQ(PackCmd().getCmdEstimatedExecutionTime(asked), 0);
    }
    EXPECT_EQ(PackCmd(0, strokes({{"1", 3e18}}), &machine).getCmdEstimatedExecutionTime(nullptr), 0)
        << "steps beyond all numbers take no time that could be told";
}

TEST(PackCmd, isKnownToEveryFirmware)
{
    EXPECT_TRUE(PackCmd().isSupportedCommand(FW_Version()));
    EXPECT_TRUE(PackCmd().isSupportedCommand(FW_Version(1, 0)));
}

// ---------------------------------------------------------------- words

TEST(PackCmd, saysWhatItDoes)
{
    const Formula formula = grams({{"1", 10}, {"4", 0.5}});
    const PackCmd pack(0, formula, nullptr);
    EXPECT_EQ(pack.pumpMovementTypeStr(), "Pump pack");
    EXPECT_EQ(pack.commandString(), "Pump pack");
    EXPECT_EQ(pack.actionString(false).m_text, "Pump pack in progress");
    EXPECT_EQ(pack.actionString(true).m_text, "Pump pack with formula: 1 10.000, 4 0.500");

    const PackCmd unpack(1, formula, nullptr);
    EXPECT_EQ(unpack.pumpMovementTypeStr(), "Pump unpack");
    EXPECT_EQ(unpack.commandString(), "Pump unpack");
    EXPECT_EQ(unpack.actionString(false).m_text, "Pump unpack in progress");
    EXPECT_EQ(unpack.actionString(true).m_text, "Pump unpack with formula: 1 10.000, 4 0.500");
}

TEST(PackCmd, hasFewWordsWithoutAMovement)
{
    const PackCmd command;
    EXPECT_EQ(command.pumpMovementTypeStr(), "");
    EXPECT_EQ(command.commandString(), "");
    EXPECT_EQ(command.actionString(false).m_text, "In progress");
    EXPECT_EQ(command.actionString(true).m_text, "In progress");
}

TEST(PackCmd, translatesItsWords)
{
    const TranslatedTexts translated;
    const PackCmd command(1, grams({{"1", 10}}), nullptr);
    EXPECT_EQ(command.pumpMovementTypeStr(), translation("Pump unpack"));
    EXPECT_EQ(command.commandString(), translation("Pump unpack"));
    EXPECT_EQ(command.actionString(false).m_text, "Pump unpack in progress");
    EXPECT_EQ(command.actionString(false).m_translated,
              QString::fromUtf8("\u00AB\u00ABPump unpack\u00BB in progress\u00BB"));
    EXPECT_EQ(command.actionString(true).m_text, "Pump unpack with formula: 1 10.000");
    EXPECT_EQ(command.actionString(true).m_translated,
              QString::fromUtf8("\u00AB\u00ABPump unpack\u00BB with formula: 1 10.000\u00BB"));
    EXPECT_EQ(PackCmd().actionString(true).m_text, "In progress");
    EXPECT_EQ(PackCmd().actionString(true).m_translated, translation("In progress"));
}

} // namespace
