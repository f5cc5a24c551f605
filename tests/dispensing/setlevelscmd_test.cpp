// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/setlevelscmd.h"

#include "catalogue/protocommandlist.h"
#include "dispensing/querytesting.h"

#include <memory>

namespace {

using namespace testing_dispensing;

constexpr char ofValue[] = "SetLevelsCmd::SetLevelsCmd(const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char ofList[] = "SetLevelsCmd::SetLevelsCmd(QList<QVariant>)";
constexpr char noFlag[] = "SetLevelsCmd failed: expected Bool type for first parameter";
constexpr char noFormula[] = "SetLevelsCmd failed: expected Formula type for second parameter";

using Refills = QList<FW_CanisterRefill>;

TEST(SetLevelsCmd, isCarriedOutByTheDriver)
{
    const SetLevelsCmd command;
    EXPECT_EQ(command.command(), "SET_LEVELS");
    EXPECT_EQ(command.protoType(), 2);
    EXPECT_EQ(ProtoCommandList::row(command.command())->id, 72);
    EXPECT_EQ(command.formula(), Formula());
    EXPECT_TRUE(command.delta());
    EXPECT_TRUE(command.refill());
    EXPECT_EQ(command.parameters(), (List{true, variantOf(Formula()), true}));
}

TEST(SetLevelsCmd, takesAFormulaAndTwoFlags)
{
    for (bool delta : {false, true}) {
        for (bool refill : {false, true}) {
            const SetLevelsCmd command(formula(), delta, refill);
            EXPECT_EQ(command.formula(), formula());
            EXPECT_EQ(command.delta(), delta);
            EXPECT_EQ(command.refill(), refill);
            EXPECT_EQ(command.parameters(), (List{delta, variantOf(formula()), refill}));
            bool ok = false;
            EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), std::string(delta ? "[true, " : "[false, ") +
                                                                  formulaWritten +
                                                                  (refill ? ", true]" : ", false]"));
            EXPECT_TRUE(ok);
        }
    }
}

TEST(SetLevelsCmd, readsOnlyTheFirstTwo)
{
    for (bool delta : {false, true}) {
        for (const SetLevelsCmd &command : {SetLevelsCmd(arrayOf(delta, formulaStruct()), nullptr),
                                            SetLevelsCmd(arrayOf(delta, formulaStruct(), false), nullptr),
                                            SetLevelsCmd(arrayOf(delta, formulaStruct(), "rest"), nullptr),
                                            SetLevelsCmd(List{delta, variantOf(formula())}),
                                            SetLevelsCmd(List{delta, variantOf(formula()), false}),
                                            SetLevelsCmd(List{delta, formulaMap(), QVariant()})}) {
            EXPECT_EQ(command.delta(), delta);
            EXPECT_EQ(command.formula(), formula());
            EXPECT_TRUE(command.refill()) << "whatever was sent";
        }
    }
}

TEST(SetLevelsCmd, comesBackAsItWasWrittenButForTheRefill)
{
    const SetLevelsCmd command(formula(), false, false);
    EXPECT_EQ(SetLevelsCmd(command.xmlrpc_parameters(), nullptr).parameters(),
              (List{false, variantOf(formula()), true}));
    EXPECT_EQ(SetLevelsCmd(command.parameters()).parameters(), (List{false, variantOf(formula()), true}));
    EXPECT_EQ(dumped(command.toXmlRpcValue("user")),
              std::string(R"(["user", "SET_LEVELS", false, )") + formulaWritten + ", false]");
}

TEST(SetLevelsCmd, refusesAFlagThatIsNone)
{
    for (const Value &bad : {Value(1), Value("true"), Value(1.0), formulaStruct(), arrayOf(true)})
        expectRefusal("DE00435", noFlag, ofValue,
                      [&] { const SetLevelsCmd command(arrayOf(bad, Value(7)), nullptr); });
    for (const QVariant &bad : {QVariant(1), QVariant("true"), QVariant(), variantOf(formula())})
        expectRefusal("DE01322", noFlag, ofList, [&] { const SetLevelsCmd command(List{bad, 7}); });
}

TEST(SetLevelsCmd, refusesWhatIsNoFormula)
{
    for (const Value &bad :
         {Value(7), Value(true), purgeStruct(), unreadableFormula(), arrayOf(formulaStruct())})
        expectRefusal("DE00436", noFormula, ofValue,
                      [&] { const SetLevelsCmd command(arrayOf(true, bad), nullptr); });
    for (const QVariant &bad : {QVariant(7), QVariant(), variantOf(purge()), unreadableFormulaVariant(),
                                QVariant(List{formulaMap()})})
        expectRefusal("DE01323", noFormula, ofList, [&] { const SetLevelsCmd command(List{true, bad}); });
}

TEST(SetLevelsCmd, needsTwoArguments)
{
    constexpr char tooFew[] = "SET_LEVELS command : expected at least 2 parameters, received 1 instead!";
    expectRefusal("DE00312", tooFew,
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { const SetLevelsCmd command(arrayOf(true), nullptr); });
    expectRefusal("DE00313", tooFew,
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { const SetLevelsCmd command(List{true}); });
}

TEST(SetLevelsCmd, goesBackToItsDefaults)
{
    SetLevelsCmd command(formula(), false, false);
    command.setDefaults();
    EXPECT_EQ(command.parameters(), (List{true, variantOf(Formula()), true}));
    EXPECT_EQ(command.command(), "SET_LEVELS");
}

TEST(SetLevelsCmd, saysWhatItDoes)
{
    const Formula colorants =
        formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{"B", 12.5}, {"KX", -0.3}});
    EXPECT_EQ(SetLevelsCmd().commandString(), "Update levels");
    EXPECT_EQ(SetLevelsCmd(colorants, true, true).actionString(false).m_text, "Updating levels");
    EXPECT_EQ(
        SetLevelsCmd(colorants, false, false).actionString(true).m_text,
        "Updating levels with the formula: colorants: B 12.500, KX -0.300 (weight or volume) (colorants)");
    EXPECT_EQ(SetLevelsCmd(colorants, true, false).actionString(true).m_text,
              "Updating levels with the delta formula: colorants: B 12.500, KX -0.300 (weight or volume) "
              "(colorants)");
    EXPECT_EQ(SetLevelsCmd(colorants, false, true).actionString(true).m_text,
              "Updating levels with the formula (refill): colorants: B 12.500, KX -0.300 (weight or volume) "
              "(colorants)");
    EXPECT_EQ(SetLevelsCmd(steps({{"2", 40}}), true, true).actionString(true).m_text,
              "Updating levels with the delta formula (refill): circuit positions: 2 40 (steps) "
              "(circuit positions)");
}

TEST(SetLevelsCmd, saysItInTheRunningLanguage)
{
    const TranslatedTexts translated;
    const Formula one = steps({{"2", 40}});
    EXPECT_EQ(SetLevelsCmd(one, true, true).actionString(false).m_translated, translation("Updating levels"));
    EXPECT_EQ(SetLevelsCmd(one, false, false).actionString(true).m_translated,
              translation("Updating levels with the formula: circuit positions: 2 40 (steps) "
                          "(circuit positions)"));
    EXPECT_EQ(SetLevelsCmd(one, true, true).actionString(true).m_translated,
              translation("Updating levels with the " + translation("delta ") + "formula" +
                          translation(" (refill)") +
                          ": circuit positions: 2 40 (steps) (circuit positions)"));
}

TEST(SetLevelsCmd, isAnsweredPlainly)
{
    SetLevelsCmd command(formula(), true, true);
    EXPECT_TRUE(command.setAnswer(envelope(0, Value(0)), false, nullptr));
    EXPECT_EQ(className(command.getProtoAnswer()), "ConfProtoAnswer");
}

TEST(SetLevelsCmd, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    const SetLevelsCmd command(arrayOf(false, formulaStruct()), &machine);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<SetLevelsCmd *>(clone.get()));
    EXPECT_EQ(clone->parameters(), (List{false, variantOf(formula()), true}));
    EXPECT_TRUE(clone->machine());
    EXPECT_NE(clone->machine(), command.machine());
}

// ---------------------------------------------------------------- what was refilled

TEST(SetLevelsCmd, noteWhatTheCanistersOfAFormulaHold)
{
    const FW_Dispenser machine = withContent(3, 120.25);
    Refills refills = {{7, 7, 7}};
    EXPECT_TRUE(SetLevelsCmd::createPreviousQuantities(grams({{"3", 2.5}, {"1", 1}}), machine, refills));
    EXPECT_EQ(refills, (Refills{{103, 120.25, 0}, {101, 500, 0}}));
    EXPECT_TRUE(SetLevelsCmd::createPreviousQuantities(
        formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{"KX", -2.5}}), machine, refills));
    EXPECT_EQ(refills, (Refills{{103, 120.25, 0}}));
    EXPECT_TRUE(SetLevelsCmd::createPreviousQuantities(Formula(), machine, refills));
    EXPECT_EQ(refills, Refills());
}

TEST(SetLevelsCmd, notesNothingOfAFormulaThatDoesNotFit)
{
    Refills refills = {{7, 7, 7}};
    EXPECT_FALSE(SetLevelsCmd::createPreviousQuantities(grams({{"1", 1}, {"9", 1}}), dispenser(), refills));
    EXPECT_EQ(refills, Refills());
}

TEST(SetLevelsCmd, keepsWhatChangedByOneAtLeast)
{
    struct Row
    {
        double previous;
        double current;
        bool isKept;
    };
    constexpr Row rows[] = {
        {500, 500, false},       {500, 500.9, false}, {500, 500.9999, false}, {500, 501, true},
        {500, 501.99, true},     {500, 499.1, false}, {500, 499, true},       {500, 498.5, true},
        {500, 0, true},          {0, 1000, true},     {0.5, 1.4, false},      {0.5, 1.5, true},
        {0, 5000000000.0, true}, {500, -500.5, true}, {-0.5, 0.4, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.current);
        Refills refills = {{101, row.previous, 7}};
        EXPECT_TRUE(SetLevelsCmd::updateCurrentQuantities(withContent(1, row.current), refills));
        EXPECT_EQ(refills, row.isKept ? (Refills{{101, row.previous, row.current}}) : Refills());
    }
}

TEST(SetLevelsCmd, keepsTheOrderOfWhatChanged)
{
    Refills refills = {{104, 400, 0}, {102, 499.5, 0}, {101, 600, 0}, {103, 500, 0}};
    EXPECT_TRUE(SetLevelsCmd::updateCurrentQuantities(dispenser(), refills));
    EXPECT_EQ(refills, (Refills{{104, 400, 500}, {101, 600, 500}}));
}

TEST(SetLevelsCmd, leavesTheListAloneWhenACanisterIsMissing)
{
    const Refills before = {{101, 400, 0}, {105, 400, 0}, {102, 500, 0}};
    Refills refills = before;
    EXPECT_FALSE(SetLevelsCmd::updateCurrentQuantities(dispenser(), refills));
    EXPECT_EQ(refills, before);
}

TEST(SetLevelsCmd, hasNothingToSayOfAnEmptyList)
{
    Refills refills;
    EXPECT_FALSE(SetLevelsCmd::updateCurrentQuantities(dispenser(), refills));
    EXPECT_EQ(refills, Refills());
}

TEST(SetLevelsCmd, tellsWhatARefillChanged)
{
    Refills refills;
    const Formula refilled = grams({{"1", 100}, {"2", 0.5}});
    ASSERT_TRUE(SetLevelsCmd::createPreviousQuantities(refilled, dispenser(), refills));
    FW_Dispenser after = withContent(1, 600);
    after.getCanisterById(102)->setCurrentQuantity(500.5);
    ASSERT_TRUE(SetLevelsCmd::updateCurrentQuantities(after, refills));
    EXPECT_EQ(refills, (Refills{{101, 500, 600}}));
}

} // namespace
