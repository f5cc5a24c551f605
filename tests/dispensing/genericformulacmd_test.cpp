// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/genericformulacmd.h"

#include "dispensing/querytesting.h"

#include <QuvFramework/formulaprogress.h>
#include <QuvFramework/fw_mixer.h>

#include <memory>

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

Value writtenLowLevel()
{
    Value written = formulaStruct();
    written["decimals"] = 3;
    written["exec_criterion"] = 0;
    written["levels_policy"] = 0;
    return structOf({{"low_level_formula", written}});
}

Value progressStruct()
{
    return structOf({{"frm_progress", structOf({{"channels", arrayOf()}})}});
}

TEST(GenericFormulaCmd, isNamedByWhoeverAsks)
{
    for (const char *name : names) {
        SCOPED_TRACE(name);
        const GenericFormulaCmd command{QString(name)};
        EXPECT_EQ(command.command(), name);
        EXPECT_EQ(command.protoType(), 2);
        EXPECT_EQ(command.parameters(), List());
        bool ok = true;
        EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
        EXPECT_FALSE(ok);
    }
}

TEST(GenericFormulaCmd, takesAFormula)
{
    const FW_Dispenser machine = dispenser();
    for (const char *name : names) {
        SCOPED_TRACE(name);
        for (const GenericFormulaCmd &command :
             {GenericFormulaCmd(name, formula()), GenericFormulaCmd(name, List{variantOf(formula())}),
              GenericFormulaCmd(name, List{formulaMap()}),
              GenericFormulaCmd(name, arrayOf(formulaStruct()), &machine),
              GenericFormulaCmd(name, arrayOf(formulaStruct(), "rest"), &machine)}) {
            EXPECT_EQ(command.command(), name);
            EXPECT_EQ(command.parameters(), List{variantOf(formula())});
            bool ok = false;
            EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), std::string("[") + formulaWritten + ']');
            EXPECT_TRUE(ok);
        }
        EXPECT_EQ(dumped(GenericFormulaCmd(name, formula()).toXmlRpcValue(QString())),
                  std::string("[\"") + name + "\", " + formulaWritten + ']');
    }
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
        expectRefusal("DE00334", "Invalid dispenser data", ofValue,
                      [&] { const GenericFormulaCmd command(name, arrayOf(formulaStruct()), nullptr); });
        expectRefusal("DE00334", "Invalid dispenser data", ofValue,
                      [&] { const GenericFormulaCmd command(name, arrayOf(formulaStruct()), &mixer); });
    }
}

TEST(GenericFormulaCmd, refusesWhatIsNoFormula)
{
    const FW_Dispenser machine = dispenser();
    for (const Value &request :
         {arrayOf(7), arrayOf(unreadableFormula()), arrayOf(purgeStruct()), arrayOf(true, formulaStruct())})
        expectRefusal("DE00898", "GenericFormulaCmd failed: expected Formula type for first parameter",
                      ofValue, [&] { const GenericFormulaCmd command(names[1], request, &machine); });
    expectRefusal("DE00905", notPositive, ofValue, [&] {
        const GenericFormulaCmd command(names[1], arrayOf(negativeFormulaStruct()), &machine);
    });
}

TEST(GenericFormulaCmd, needsAnArrayOfOneElementAtLeast)
{
    constexpr char ofBase[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    constexpr char tooFew[] =
        "GET_LOW_LEVEL_FORMULA command : expected at least 1 parameters, received 0 instead!";
    const FW_Dispenser machine = dispenser();
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBase,
                  [&] { const GenericFormulaCmd command(names[0], Value(), &machine); });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBase,
                  [&] { const GenericFormulaCmd command(names[0], formulaStruct(), &machine); });
    expectRefusal("DE00312", tooFew, ofBase,
                  [&] { const GenericFormulaCmd command(names[0], arrayOf(), &machine); });
    expectRefusal("DE00313", tooFew,
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [&] { const GenericFormulaCmd command(names[0], List()); });
}

TEST(GenericFormulaCmd, isAnsweredByItsName)
{
    GenericFormulaCmd lowLevel(names[0], formula());
    const List formulaList = {variantOf(formula())};
    expectAnswers(lowLevel, "GetLowLevelFormulaAnswer", lowLevelStruct(), formulaList, writtenLowLevel());
    expectAnswerFailures(lowLevel, {notCreated, "DE01278", "DE00901", "DE00899"}, lowLevelStruct(),
                         formulaList);

    GenericFormulaCmd execution(names[1], formula());
    const List progressList = {QVariant::fromValue(FormulaProgress())};
    expectAnswers(execution, "GetFormulaExecutionAnswer", progressStruct(), progressList, progressStruct());
    expectAnswerFailures(execution, {notCreated, "DE01278", "DE00901", "DE00899"}, progressStruct(),
                         progressList);
}

TEST(GenericFormulaCmd, passesTheAnswersRefusalOn)
{
    FW_DriverError error;
    List none;
    GenericFormulaCmd lowLevel{QString(names[0])};
    EXPECT_FALSE(lowLevel.buildProtoAnswer(progressStruct(), &error));
    EXPECT_EQ(error.code(), "DE00904");
    EXPECT_FALSE(lowLevel.buildProtoAnswer(none, &error));
    EXPECT_EQ(error.code(), "DE00902");
    GenericFormulaCmd execution{QString(names[1])};
    EXPECT_FALSE(execution.buildProtoAnswer(lowLevelStruct(), &error));
    EXPECT_EQ(error.code(), "DE02936");
    EXPECT_FALSE(execution.buildProtoAnswer(none, &error));
    EXPECT_EQ(error.code(), "DE02935");
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

TEST(GenericFormulaCmd, saysNothingOfItself)
{
    EXPECT_EQ(GenericFormulaCmd(names[0], formula()).commandString(), QString());
    EXPECT_EQ(GenericFormulaCmd(names[0], formula()).actionString(true).m_text, "In progress");
    EXPECT_EQ(GenericFormulaCmd(names[1], formula()).actionString(true).m_text, QString())
        << "it is asked over and over";
}

TEST(GenericFormulaCmd, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    GenericFormulaCmd command(names[0], arrayOf(formulaStruct()), &machine);
    ASSERT_TRUE(command.buildProtoAnswer(lowLevelStruct(), nullptr));
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<GenericFormulaCmd *>(clone.get()));
    EXPECT_EQ(clone->command(), names[0]);
    EXPECT_EQ(clone->parameters(), command.parameters());
    EXPECT_TRUE(clone->machine());
    EXPECT_NE(clone->machine(), command.machine());
    EXPECT_EQ(className(clone->getProtoAnswer()), "GetLowLevelFormulaAnswer");
    EXPECT_NE(clone->getProtoAnswer(), command.getProtoAnswer());
}

} // namespace
