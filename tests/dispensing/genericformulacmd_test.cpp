// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/genericformulacmd.h"

#include "dispensing/querytesting.h"

#include <QuvFramework/formulaprogress.h>
#include <QuvFramework/fw_mixer.h>

namespace {

using namespace testing_dispensing;

constexpr char ofValue[] =
    "GenericFormulaCmd::GenericFormulaCmd(QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char notCreated[] = "Failed to create answer for formula command";
const char *const names[] = {"GET_LOW_LEVEL_FORMULA", "GET_FORMULA_EXECUTION"};

Value lowLevelStruct()
{
    return structOf({{"low_level_formula", formulaStruct()}});
}

Value progressStruct()
{
    return structOf({{"frm_progress", structOf({{"channels", arrayOf()}})}});
}

AnswerFacts lowLevelAnswers()
{
    constexpr char answerClass[] = "GetLowLevelFormulaAnswer";
    const std::string written = std::string(R"({"low_level_formula": )") + formulaWritten + '}';
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue(answerClass, lowLevelStruct(), written)
            .failsWith("DE01278", notCreated)
            .refuses(progressStruct(), "DE00904",
                     "GetLowLevelFormulaAnswer failed: expected Formula type for first parameter",
                     "GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList(answerClass, {variantOf(formula())}, written)
            .failsWith("DE00901", notCreated)
            .refuses(
                {}, "DE00902",
                "GetLowLevelFormulaAnswer decoding failed: invalid QVariant value (expected Formula type)",
                "GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00899", notCreated};
    return answers;
}

AnswerFacts executionAnswers()
{
    constexpr char answerClass[] = "GetFormulaExecutionAnswer";
    constexpr char written[] = R"({"frm_progress": {"channels": []}})";
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue(answerClass, progressStruct(), written)
            .failsWith("DE01278", notCreated)
            .refuses(lowLevelStruct(), "DE02936",
                     "GetFormulaExecutionAnswer failed: expected FormulaProgress type for first parameter",
                     "GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList(answerClass, {QVariant::fromValue(FormulaProgress())}, written)
                       .failsWith("DE00901", notCreated)
                       .refuses({}, "DE02935",
                                "GetFormulaExecutionAnswer decoding failed: invalid QVariant value (expected "
                                "FormulaProgress type)",
                                "GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00899", notCreated};
    return answers;
}

/** Of the command by one of its names. */
CommandFacts facts(const char *name, int row, const FW_Dispenser &machine)
{
    CommandFacts facts(formsOf<GenericFormulaCmd>(&machine, QString(name)));
    facts.catalogue = {name, row, "", 1};
    facts.protoType = 2;
    facts.valueFunction = ofValue;
    facts.listFunction = "-"; // a list is kept as it is
    facts.keepsTheList = true;
    facts.arguments = {required().refuses(
        {Value(7), Value(true), unreadableFormula(), purgeStruct()}, {},
        {"DE00898", "", "GenericFormulaCmd failed: expected Formula type for first parameter"})};
    facts.defaults = Request().notWritten();
    const Request request = Request({variantOf(formula())})
                                .value(arrayOf(formulaStruct()))
                                .typed<GenericFormulaCmd>(QString(name), formula())
                                .written(std::string("[") + formulaWritten + ']');
    facts.requests = {request, request.alsoFromList({formulaMap()})};
    return facts;
}

TEST(GenericFormulaCmd, keepsTheCommandContractByBothNames)
{
    const FW_Dispenser machine = dispenser();
    CommandFacts lowLevel = facts("GET_LOW_LEVEL_FORMULA", 75, machine);
    lowLevel.answers = lowLevelAnswers();
    expectCommandContract(lowLevel);
    CommandFacts execution = facts("GET_FORMULA_EXECUTION", 164, machine);
    execution.answers = executionAnswers();
    execution.words = silence(); // it is asked over and over
    expectCommandContract(execution);
}

TEST(GenericFormulaCmd, writesTheFirstElementAlone)
{
    const GenericFormulaCmd command(names[0], List{variantOf(formula()), true});
    EXPECT_EQ(command.parameters(), (List{variantOf(formula()), true}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), std::string("[") + formulaWritten + ']');
}

TEST(GenericFormulaCmd, writesNothingOfWhatIsNoFormula)
{
    for (const List &list : {List{7}, List{QVariant()}, List{unreadableFormulaVariant()},
                             List{variantOf(purge())}, List{QStringLiteral("formula")}}) {
        SCOPED_TRACE(shown(list));
        const GenericFormulaCmd command(names[0], list);
        EXPECT_EQ(command.parameters(), list);
        bool ok = true;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
        EXPECT_FALSE(ok);
    }
}

TEST(GenericFormulaCmd, needsADispenserToReadARequest)
{
    const FW_Mixer mixer;
    for (const char *name : names) {
        SCOPED_TRACE(name);
        expectRefusal("DE00334", "Invalid dispenser data", ofValue,
                      [&] { const GenericFormulaCmd command(name, arrayOf(formulaStruct()), nullptr); });
        expectRefusal("DE00334", "Invalid dispenser data", ofValue,
                      [&] { const GenericFormulaCmd command(name, arrayOf(formulaStruct()), &mixer); });
    }
}

TEST(GenericFormulaCmd, refusesNegativeQuantities)
{
    const FW_Dispenser machine = dispenser();
    expectRefusal("DE00905", notPositive, ofValue, [&] {
        const GenericFormulaCmd command(names[1], arrayOf(negativeFormulaStruct()), &machine);
    });
}

TEST(GenericFormulaCmd, getsNoAnswerUnderAnotherName)
{
    GenericFormulaCmd command{QString("GET_FORMULA_CIRCUITS")};
    List list = {variantOf(formula())};
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(lowLevelStruct(), &error));
    expectError(error, "DE02937", notCreated);
    EXPECT_FALSE(command.buildProtoAnswer(list, &error));
    expectError(error, "DE02938", notCreated);
    EXPECT_FALSE(command.setAnswer(envelope(0, lowLevelStruct()), false, &error));
    expectError(error, "DE02937", notCreated);
    EXPECT_FALSE(command.setAnswer(list, &error));
    expectError(error, "DE02938", notCreated);
    EXPECT_FALSE(command.getProtoAnswer());
    EXPECT_FALSE(command.buildProtoAnswer(lowLevelStruct(), nullptr));
    EXPECT_FALSE(command.buildProtoAnswer(list, nullptr));

    GenericFormulaCmd renamed{QString(names[0])};
    ASSERT_TRUE(renamed.buildProtoAnswer(lowLevelStruct(), nullptr));
    ASSERT_TRUE(renamed.setCommand("TINT"));
    EXPECT_FALSE(renamed.buildProtoAnswer(lowLevelStruct(), &error));
    expectError(error, "DE02937", notCreated);
    EXPECT_FALSE(renamed.getProtoAnswer()) << "the old answer is gone as well";
}

} // namespace
