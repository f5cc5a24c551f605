// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/channeltintcmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

namespace {

using namespace testing_dispensing;

/** A language in which a channel has no name. */
class NamelessChannels : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return qstrcmp(text, "%1 %2 %3") == 0 ? QString("") : QString();
    }
    bool isEmpty() const override { return false; }
};

constexpr char ofFormula[] = "ChannelTintCmd::ChannelTintCmd(int, const Formula&, const FW_Dispenser*)";
constexpr char ofValue[] = "ChannelTintCmd::ChannelTintCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "ChannelTintCmd::ChannelTintCmd(QList<QVariant>, const FW_Dispenser*)";

constexpr char noDispenser[] = "ChannelTintCmd failed: invalid dispenser decoding";
constexpr char badChannel[] = "ChannelTintCmd failed: invalid channel ID parameter";
constexpr char notDual[] = "ChannelTintCmd failed: command relay to DUAL dispenser";

Formula someFormula()
{
    return grams({{"3", 30}, {"4", 1}});
}

ChannelTintCmd channelTint(int channel, const Formula &formula)
{
    const FW_Dispenser machine = dualHead();
    return ChannelTintCmd(channel, formula, &machine);
}

void expectRefused(const char *code, const char *text, int channel, const Formula &formula,
                   const FW_Dispenser *machine)
{
    expectRefusal(code, text, ofFormula, [&] { ChannelTintCmd(channel, formula, machine); });
    expectRefusal(code, text, ofValue,
                  [&] { ChannelTintCmd(arrayOf(channel, formula.toXmlRpcValue()), machine); });
    expectRefusal(code, text, ofList, [&] {
        ChannelTintCmd(List{channel, QVariant::fromValue(formula)}, machine);
    });
}

/** A dual machine that differs in one circuit's calibration. */
FW_Dispenser dualWith(int position, const FW_Calibration &calibration)
{
    FW_Dispenser machine = dualHead();
    machine.getCircuitByPosition(position)->setCalibration(calibration);
    return machine;
}

/** The label is a text for displays, too, and the other texts hold it. */
Words channelWords(int channel, const QString &formula)
{
    const QString label = QString("Channel %1 dosing").arg(channel);
    const QString translatedLabel =
        translation(translation("Channel") + QString(" %1 ").arg(channel) + translation("dosing"));
    const auto phrase = [&](const QString &rest) {
        Phrase made((label + rest).toUtf8().constData(), "QuvProtocol", translation(translatedLabel + rest));
        made.logged = translatedLabel + rest;
        return made;
    };
    Words words(label.toUtf8().constData(), phrase(" in progress"), phrase(" with formula: " + formula));
    words.translatedCommand = translatedLabel;
    return words;
}

CommandFacts facts(const FW_Dispenser &machine)
{
    CommandFacts facts(formsOf<ChannelTintCmd>(&machine));
    facts.catalogue = {"CHANNEL_TINT", 31, "0017", 2};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required(ConvertedInteger,
                 {"DE01424", "DE01426", "ChannelTintCmd failed: expected Int type for first parameter",
                  badChannel})
            .outOfRange({-1, 0, 3}, {"DE01432", "DE01432", badChannel})
            .takes({1, 2}),
        required()
            .refuses({Value(1), Value("B"), unreadableFormula()}, {QVariant(), 1, QVariantMap()},
                     {"DE01425", "DE01428", "ChannelTintCmd failed: invalid Formula type parameter",
                      "ChannelTintCmd failed: expected Formula type parameter"})
            .refuses({}, {unreadableFormulaVariant()},
                     {"", "DE01427", "ChannelTintCmd failed: incorrect Formula type parameter"})};
    facts.getters = {getter(&ChannelTintCmd::channelID), getter(&ChannelTintCmd::formula)};
    facts.defaults = Request()
                         .parameters({0, variantOf(Formula())})
                         .written(std::string("[0, ") + emptyFormulaWritten + "]")
                         .says(channelWords(0, ""));
    constexpr char twoCircuits[] =
        R"({"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": ["3", "4"], )"
        R"("levels_policy": 0, "quantities": [30.0000, 1.00000], "quantity_unit": 3}])";
    for (int channel : {2, 1})
        facts.requests.push_back(Request({channel, variantOf(someFormula())})
                                     .value(arrayOf(channel, someFormula().toXmlRpcValue()))
                                     .typed<ChannelTintCmd>(channel, someFormula(), &machine)
                                     .written('[' + std::to_string(channel) + ", " + twoCircuits)
                                     .sends({2, 2, 3, channel, 40, 2, 54, 1, 4, channel, 40, 1, 10})
                                     .says(channelWords(channel, "3 30.000, 4 1.000")));
    facts.afterDefaults = Request()
                              .parameters({0, variantOf(someFormula())})
                              .written(std::string("[0, ") + twoCircuits)
                              .sends({2, 2, 3, 0, 40, 2, 54, 1, 4, 0, 40, 1, 10})
                              .says(channelWords(0, "3 30.000, 4 1.000"));
    facts.answers = serialAnswers();
    return facts;
}

TEST(ChannelTintCmd, keepsTheCommandContract)
{
    expectCommandContract(facts(dualHead()));
}

TEST(ChannelTintCmd, hasNoMachineAtFirst)
{
    FW_DriverError error;
    EXPECT_FALSE(ChannelTintCmd().checkFormula(error));
    expectError(error, "DE01109", "Invalid dispenser data");
}

TEST(ChannelTintCmd, namesItsChannel)
{
    const ChannelTintCmd command = channelTint(1, grams({{"3", 30}}));
    EXPECT_EQ(command.channelIDStr(), "Channel 1 dosing");
    EXPECT_EQ(command.commandString(), "Channel 1 dosing");
    EXPECT_EQ(command.actionString(false).m_text, "Channel 1 dosing in progress");
    EXPECT_EQ(command.actionString(true).m_text, "Channel 1 dosing with formula: 3 30.000");
    EXPECT_EQ(ChannelTintCmd().channelIDStr(), "Channel 0 dosing");
    EXPECT_EQ(channelTint(2, someFormula()).channelIDStr(), "Channel 2 dosing");
    const TranslatedTexts translated;
    EXPECT_EQ(command.channelIDStr(), translation(translation("Channel") + " 1 " + translation("dosing")));
}

// ---------------------------------------------------------------- refusals

TEST(ChannelTintCmd, refusesAChannelThatTheMachineDoesNotHave)
{
    const FW_Dispenser dual = dualHead();
    const FW_Dispenser single = dispenser();
    FW_Dispenser parallel = dispenser();
    parallel.setTintingParallelism(4);
    FW_Dispenser dualOneByOne = dualHead();
    dualOneByOne.setTintingParallelism(1);
    const Formula formula = someFormula();
    for (int channel : {-1, 0, 1, 2, 3}) {
        SCOPED_TRACE(channel);
        expectRefused("DE01429", noDispenser, channel, formula, nullptr);
    }
    for (int channel : {-1, 0, 3}) {
        SCOPED_TRACE(channel);
        expectRefused("DE01432", badChannel, channel, formula, &dual);
        expectRefused("DE01432", badChannel, channel, formula, &parallel);
        expectRefused("DE01432", badChannel, channel, formula, &single);
    }
    expectRefused("DE01430", badChannel, 2, formula, &dualOneByOne);
    expectRefused("DE01430", badChannel, 2, formula, &single); // before the heads are looked at
    expectRefused("DE01431", notDual, 1, formula, &single);
    expectRefused("DE01431", notDual, 2, formula, &parallel);
    EXPECT_NO_THROW(ChannelTintCmd(1, formula, &dualOneByOne));
}

TEST(ChannelTintCmd, checksAChannelByItself)
{
    const FW_Dispenser dual = dualHead();
    FW_DriverError error;
    EXPECT_TRUE(ChannelTintCmd::checkChannelID(1, &dual, error));
    EXPECT_TRUE(ChannelTintCmd::checkChannelID(2, &dual, error));
    EXPECT_EQ(error.code(), "");
    EXPECT_FALSE(ChannelTintCmd::checkChannelID(3, &dual, error));
    expectError(error, "DE01432", badChannel);
    EXPECT_FALSE(ChannelTintCmd::checkChannelID(1, nullptr, error));
    expectError(error, "DE01429", noDispenser);
}

TEST(ChannelTintCmd, looksAtTheChannelBeforeTheFormula)
{
    const FW_Dispenser dual = dualHead();
    expectRefused("DE01432", badChannel, 3, grams({{"3", -30}}), &dual);
    expectRefusal("DE01432", badChannel, ofValue,
                  [&] { ChannelTintCmd(arrayOf(3, unreadableFormula()), &dual); });
    expectRefusal("DE01429", noDispenser, ofList, [&] { ChannelTintCmd(List{2, 7}, nullptr); });
}

TEST(ChannelTintCmd, refusesAFormulaThatTheMachineCannotPour)
{
    const FW_Dispenser dual = dualHead();
    const FW_Dispenser uncalibrated = dualWith(4, {});
    const FW_Dispenser speedless = dualWith(4, FW_Calibration({{1000, 100, 0, 0}}));
    FW_Dispenser disabled = dualHead();
    disabled.getCircuitByPosition(3)->setEnabled(false);
    expectRefused("DE01433", notPositive, 2, grams({{"3", 30}, {"4", -1}}), &dual);
    expectRefused("DE01433", notPositive, 2, grams({{"3", 30}, {"4", 0}}), &dual);
    expectRefused("DE03021", R"(Formula: the dispenser does not have "9")", 2, grams({{"9", 30}}), &dual);
    expectRefused("DE03022", R"(Formula: "3" is disabled)", 2, someFormula(), &disabled);
    expectRefused("DE01434", "Empty Formula found", 2, grams({}), &dual);
    expectRefused("DE01435", "Bad steps value in formula", 2, someFormula(), &uncalibrated);
    expectRefused("DE01436", "Bad speed value in formula", 2, someFormula(), &speedless);
}

TEST(ChannelTintCmd, checksInOneOrder)
{
    FW_Dispenser machine = dualWith(4, {});
    machine.getCircuitByPosition(3)->setCalibration(FW_Calibration({{1000, 100, 0, 0}}));
    expectRefused("DE01433", notPositive, 2, grams({{"9", 30}, {"4", 0}}), &machine);
    expectRefused("DE03021", R"(Formula: the dispenser does not have "9")", 2, grams({{"4", 1}, {"9", 30}}),
                  &machine);
    expectRefused("DE01436", "Bad speed value in formula", 2, grams({{"3", 30}, {"4", 1}}), &machine);
    expectRefused("DE01435", "Bad steps value in formula", 2, grams({{"4", 1}, {"3", 30}}), &machine);
}

TEST(ChannelTintCmd, checksNeitherLevelsNorNozzleValves)
{
    FW_Dispenser machine = nozzleBased();
    machine.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    Formula formula = steps({{"3", 20000}, {"4", 1, 0, 99}});
    formula.setLevelsManagementPolicy(2);
    EXPECT_NO_THROW(ChannelTintCmd(1, formula, &machine));
}

TEST(ChannelTintCmd, fillsTheErrorOfItsCheck)
{
    FW_DriverError error;
    EXPECT_TRUE(channelTint(2, someFormula()).checkFormula(error));
    EXPECT_EQ(error.code(), "");
}

// ---------------------------------------------------------------- towards the firmware

TEST(ChannelTintCmd, sendsTheChannelInTheQueuesPlace)
{
    EXPECT_EQ(channelTint(2, someFormula()).serialParameters(1),
              (QList<int>{2, 2, 3, 2, 40, 2, 54, 1, 4, 2, 40, 1, 10}));
    Formula unqueued = steps({{"1", 60516, 7}});
    unqueued.setExecutionCriterion(1);
    EXPECT_EQ(channelTint(1, unqueued).serialParameters(2), (QList<int>{2, 1, 1, 1, 50, 3, 0, 0, 1}));
}

TEST(ChannelTintCmd, leavesOutWhatHasNoStepsButCountsIt)
{
    EXPECT_EQ(channelTint(2, grams({{"3", 0.01}, {"4", 1}})).serialParameters(1),
              (QList<int>{2, 2, 4, 2, 40, 1, 10}));
    EXPECT_EQ(channelTint(2, grams({{"3", 0.01}})).serialParameters(1), (QList<int>{2, 1}));
}

// ---------------------------------------------------------------- texts

TEST(ChannelTintCmd, isInProgressWithoutAName)
{
    const ChannelTintCmd command = channelTint(1, grams({{"3", 30}}));
    const TranslatedTexts translated;
    NamelessChannels nameless;
    ASSERT_TRUE(QCoreApplication::installTranslator(&nameless));
    EXPECT_EQ(command.channelIDStr(), "");
    EXPECT_EQ(command.actionString(false).m_text, "In progress");
    EXPECT_EQ(command.actionString(false).m_translated, translation("In progress"));
    QCoreApplication::removeTranslator(&nameless);
}

} // namespace
