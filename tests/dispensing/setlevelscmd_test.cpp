// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/setlevelscmd.h"

#include "dispensing/querytesting.h"

namespace {

using namespace testing_dispensing;

using Refills = QList<FW_CanisterRefill>;

/** The text for displays is put together of texts of their own. */
Words updating(const char *source, const QString &translated)
{
    return {"Update levels", "Updating levels", {source, "QuvProtocol", translated}};
}

/** In every form but the typed one somebody is taken to have refilled. */
Request request(bool delta, bool refill, const Words &words)
{
    Request request({delta, variantOf(formula())});
    if (!refill)
        request.onlyTyped().notReadBack();
    return request.value(arrayOf(delta, formulaStruct()))
        .typed<SetLevelsCmd>(formula(), delta, refill)
        .parameters({delta, variantOf(formula()), refill})
        .written(std::string(delta ? "[true, " : "[false, ") + formulaWritten +
                 (refill ? ", true]" : ", false]"))
        .says(words);
}

std::vector<Request> requests()
{
    const QString one = "circuit positions: 1 2.500 (weight or volume) (circuit positions)";
    const QString levels = "Updating levels with the ";
    const Request refilled = request(
        false, true,
        updating("Updating levels with the formula (refill): circuit positions: 1 2.500 (weight or volume) "
                 "(circuit positions)",
                 translation(levels + "formula" + translation(" (refill)") + ": " + one)));
    return {
        refilled,
        refilled.alsoFromList({false, formulaMap(), QVariant()}),
        refilled.alsoFromList({false, variantOf(formula()), false}),
        refilled.alsoFromValue(arrayOf(false, formulaStruct(), false)),
        request(true, true,
                updating("Updating levels with the delta formula (refill): circuit positions: 1 2.500 "
                         "(weight or volume) (circuit positions)",
                         translation(levels + translation("delta ") + "formula" + translation(" (refill)") +
                                     ": " + one))),
        request(
            true, false,
            updating("Updating levels with the delta formula: circuit positions: 1 2.500 (weight or volume) "
                     "(circuit positions)",
                     translation(levels + translation("delta ") + "formula: " + one))),
        request(false, false,
                updating("Updating levels with the formula: circuit positions: 1 2.500 (weight or volume) "
                         "(circuit positions)",
                         translation(levels + "formula: " + one))),
    };
}

CommandFacts facts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<SetLevelsCmd>(machine));
    facts.catalogue = {"SET_LEVELS", 72, "", 2};
    facts.protoType = 2;
    facts.valueFunction = "SetLevelsCmd::SetLevelsCmd(const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    facts.listFunction = "SetLevelsCmd::SetLevelsCmd(QList<QVariant>)";
    facts.arguments = {
        required(Flag, {"DE00435", "DE01322", "SetLevelsCmd failed: expected Bool type for first parameter"}),
        required().refuses(
            {Value(7), Value(true), purgeStruct(), unreadableFormula(), arrayOf(formulaStruct())},
            {7, QVariant(), variantOf(purge()), unreadableFormulaVariant(), List{formulaMap()}},
            {"DE00436", "DE01323", "SetLevelsCmd failed: expected Formula type for second parameter"})};
    facts.getters = {getter(&SetLevelsCmd::delta), getter(&SetLevelsCmd::formula),
                     getter(&SetLevelsCmd::refill)};
    facts.defaults =
        Request()
            .parameters({true, variantOf(Formula()), true})
            .written(std::string("[true, ") + emptyFormulaWritten + ", true]")
            .says(updating("Updating levels with the delta formula (refill): circuit positions:  "
                           "(weight or volume) (circuit positions)",
                           translation("Updating levels with the " + translation("delta ") + "formula" +
                                       translation(" (refill)") +
                                       ": circuit positions:  (weight or volume) (circuit positions)")));
    facts.requests = requests();
    facts.answers = confAnswers();
    return facts;
}

TEST(SetLevelsCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenser();
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

TEST(SetLevelsCmd, saysWhatTheFormulaNamesAndMeasures)
{
    const Formula colorants =
        formulaOf(Formula::ColorantCodes, Formula::WeightOrVolume, {{"B", 12.5}, {"KX", -0.3}});
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

// ---------------------------------------------------------------- what was refilled

TEST(SetLevelsCmd, notesWhatTheCanistersOfAFormulaHold)
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
