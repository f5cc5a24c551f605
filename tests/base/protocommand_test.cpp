// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/protocommand.h"

#include "base/answercontract.h"
#include "base/basetesting.h"
#include "base/serialprotocommand.h"
#include "base/xmlrpcanswer.h"

#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_version.h>

#include <memory>

using namespace testing_base;

namespace {

constexpr char valueConstructor[] =
    "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char listConstructor[] =
    "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";

/** Opens what only subclasses reach, and has arguments of its own. */
class OpenCommand : public ProtoCommand
{
public:
    using ProtoCommand::clear;
    using ProtoCommand::ProtoCommand;
    using ProtoCommand::setDefaults;

    Value xmlrpc_parameters(bool *ok = nullptr) const override
    {
        if (ok)
            *ok = true;
        return m_arguments;
    }

    Value m_arguments = arrayOf(7, "text");
};

/** Its answer operation breaks the rule that answer operations never throw. */
class ThrowingCommand : public ProtoCommand
{
public:
    explicit ThrowingCommand(Failure failure) : ProtoCommand(QStringLiteral("TINT")), m_failure(failure) {}

    bool buildProtoAnswer(const Value &, FW_DriverError *) override
    {
        const CountedAnswer<ProtoAnswer> half(1);
        m_protoAnswer.reset(half.clone());
        const UncopyableAnswer<ProtoAnswer> answer(m_failure);
        return answer.clone() != nullptr;
    }

    Failure m_failure = Failure::OfNoClass;
};

} // namespace

TEST(ProtoCommand, startsEmpty)
{
    const ProtoCommand command;
    EXPECT_TRUE(command.command().isNull());
    EXPECT_EQ(command.protoType(), 0);
    EXPECT_EQ(command.machine(), nullptr);
    EXPECT_EQ(command.parameters(), List());
    bool ok = true;
    EXPECT_EQ(command.getProtoAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(command.getXmlRpcAnswer(&ok), nullptr);
    EXPECT_FALSE(ok);
    EXPECT_EQ(command.getProtoAnswer(nullptr), nullptr);
    EXPECT_EQ(command.getXmlRpcAnswer(nullptr), nullptr);
}

TEST(ProtoCommand, isMadeFromANameOrATypeOrBoth)
{
    const ProtoCommand named(QStringLiteral("TINT"));
    EXPECT_EQ(named.command(), "TINT");
    EXPECT_EQ(named.protoType(), 0);
    const ProtoCommand typed(2);
    EXPECT_TRUE(typed.command().isNull());
    EXPECT_EQ(typed.protoType(), 2);
    const ProtoCommand both(3, "WEIGHT", nullptr);
    EXPECT_EQ(both.command(), "WEIGHT");
    EXPECT_EQ(both.protoType(), 3);
    EXPECT_EQ(both.machine(), nullptr);
}

TEST(ProtoCommand, doesNotCheckItsNameWhenMade)
{
    EXPECT_EQ(ProtoCommand(QStringLiteral("NO_SUCH_COMMAND")).command(), "NO_SUCH_COMMAND");
}

TEST(ProtoCommand, keepsACloneOfTheMachine)
{
    {
        std::unique_ptr<ProtoCommand> command;
        {
            CountedMachine machine;
            machine.setId(4);
            command = std::make_unique<ProtoCommand>(1, "RESET", &machine);
            EXPECT_EQ(CountedMachine::alive, 2);
            EXPECT_NE(command->machine(), &machine);
            machine.setId(5);
        }
        EXPECT_EQ(CountedMachine::alive, 1);
        ASSERT_NE(command->machine(), nullptr);
        EXPECT_EQ(command->machine()->id(), 4);

        const std::unique_ptr<ProtoCommand> copy(command->clone());
        EXPECT_EQ(CountedMachine::alive, 2);
        EXPECT_NE(copy->machine(), command->machine());
        command.reset();
        EXPECT_EQ(CountedMachine::alive, 1);
        EXPECT_EQ(copy->machine()->id(), 4);
    }
    EXPECT_EQ(CountedMachine::alive, 0);

    const FW_Mixer mixer;
    const ProtoCommand command(1, "MIX", arrayOf(1, 2, 3, 4), &mixer);
    EXPECT_NE(dynamic_cast<const FW_Mixer *>(command.machine()), nullptr);
    const ProtoCommand fromList(1, "MIX", List{1, 2, 3, 4}, &mixer);
    EXPECT_NE(dynamic_cast<const FW_Mixer *>(fromList.machine()), nullptr);
}

TEST(ProtoCommand, deletesTheMachineWhenConstructionFails)
{
    const CountedMachine machine;
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", valueConstructor,
                  [&] { ProtoCommand(1, "TINT", Value(), &machine); });
    expectRefusal("DE00313", "TINT command : expected at least 1 parameters, received 0 instead!",
                  listConstructor, [&] { ProtoCommand(1, "TINT", List(), &machine); });
    EXPECT_EQ(CountedMachine::alive, 1);
}

TEST(ProtoCommand, needsAnArrayOfEnoughElements)
{
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", valueConstructor,
                  [] { ProtoCommand(1, "RESET", Value(), nullptr); });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", valueConstructor,
                  [] { ProtoCommand(1, "RESET", Value(5), nullptr); });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", valueConstructor, [] {
        ProtoCommand(1, "RESET", structOf({{"a", 1}}), nullptr);
    });
    expectRefusal("DE00312", "LOGIN command : expected at least 2 parameters, received 1 instead!",
                  valueConstructor, [] { ProtoCommand(2, "LOGIN", arrayOf("me"), nullptr); });

    const ProtoCommand enough(2, "LOGIN", arrayOf("me", "secret"), nullptr);
    EXPECT_EQ(enough.command(), "LOGIN");
    EXPECT_EQ(enough.protoType(), 2);
    EXPECT_EQ(enough.parameters(), List()) << "the value is not stored";
    const ProtoCommand none(1, "RESET", arrayOf(), nullptr);
    EXPECT_EQ(none.command(), "RESET");
}

TEST(ProtoCommand, needsAListOfEnoughElements)
{
    expectRefusal("DE00313", "TINT command : expected at least 1 parameters, received 0 instead!",
                  listConstructor, [] { ProtoCommand(1, "TINT", List(), nullptr); });
    expectRefusal("DE00313", "BOARD_MEMORY command : expected at least 6 parameters, received 5 instead!",
                  listConstructor, [] {
                      ProtoCommand(1, "BOARD_MEMORY", List{1, 2, 3, 4, 5}, nullptr);
                  });
    const ProtoCommand enough(2, "LOGIN", List{"me", 5}, nullptr);
    EXPECT_EQ(enough.parameters(), (List{"me", 5}));
    EXPECT_EQ(enough.protoType(), 2);
}

TEST(ProtoCommand, neverRefusesMoreThanTheGreatestNumberOfParameters)
{
    EXPECT_NO_THROW(ProtoCommand(1, "RESET", List{1, 2, 3, 4, 5, 6}, nullptr));
    EXPECT_NO_THROW(ProtoCommand(1, "RESET", arrayOf(1, 2, 3, 4, 5, 6), nullptr));
}

TEST(ProtoCommand, needsNoParametersUnderAnUnknownName)
{
    EXPECT_NO_THROW(ProtoCommand(1, "NO_SUCH_COMMAND", List(), nullptr));
    EXPECT_NO_THROW(ProtoCommand(1, "NO_SUCH_COMMAND", arrayOf(), nullptr));
}

TEST(ProtoCommand, checksTheNumberOfParameters)
{
    const ProtoCommand command;
    QString error = "untouched";
    EXPECT_TRUE(command.checkParameters("TINT", 1, &error));
    EXPECT_TRUE(command.checkParameters("TINT", 100, &error));
    EXPECT_TRUE(command.checkParameters("RESET", 0, &error));
    EXPECT_TRUE(command.checkParameters("NO_SUCH_COMMAND", 0, &error));
    EXPECT_EQ(error, "untouched");
    EXPECT_FALSE(command.checkParameters("TINT", 0, &error));
    EXPECT_EQ(error, "TINT command : expected at least 1 parameters, received 0 instead!");
    EXPECT_FALSE(command.checkParameters("TINT", 0, nullptr));
    EXPECT_FALSE(command.checkParameters("NO_SUCH_%2_COMMAND", -2, &error));
    EXPECT_EQ(error, "NO_SUCH_%2_COMMAND command : expected at least -1 parameters, received -2 instead!");
}

TEST(ProtoCommand, isRenamedWithinTheCatalogueOnly)
{
    ProtoCommand command(QStringLiteral("TINT"));
    EXPECT_TRUE(command.setCommand("PURGE"));
    EXPECT_EQ(command.command(), "PURGE");
    for (const char *unknown : {"NO_SUCH_COMMAND", "tint", "TIN", "TINT ", ""}) {
        SCOPED_TRACE(unknown);
        EXPECT_FALSE(command.setCommand(unknown));
        EXPECT_EQ(command.command(), "PURGE");
    }
    ProtoCommand nameless;
    EXPECT_TRUE(nameless.setCommand("PAUSE"));
    EXPECT_EQ(nameless.command(), "PAUSE");
}

TEST(ProtoCommand, forgetsNameAndTypeWithItsDefaults)
{
    for (void (OpenCommand::*reset)() : {&OpenCommand::clear, &OpenCommand::setDefaults}) {
        SCOPED_TRACE(reset == &OpenCommand::clear ? "clear" : "setDefaults");
        OpenCommand command(3, "WEIGHT", List{1}, nullptr);
        (command.*reset)();
        EXPECT_TRUE(command.command().isNull());
        EXPECT_EQ(command.protoType(), 0);
        EXPECT_EQ(command.parameters(), List{1});
    }
}

TEST(ProtoCommand, forgetsPointersWithoutDeletingThem)
{
    const CountedMachine machine;
    for (void (OpenCommand::*reset)() : {&OpenCommand::clear, &OpenCommand::setDefaults}) {
        SCOPED_TRACE(reset == &OpenCommand::clear ? "clear" : "setDefaults");
        const int before = CountedMachine::alive;
        OpenCommand command(1, "RESET", &machine);
        CountedAnswer<ProtoAnswer> answer(1);
        command.setProtoAnswer(&answer);
        EXPECT_TRUE(command.setAnswer(
            structOf({{"ret_code", 1}, {"info", ""}, {"ret_value", 0}, {"errors", arrayOf()}}), false,
            nullptr));
        command.setProtoAnswer(&answer);

        // kept here, so that nothing is lost that the command forgets
        const std::unique_ptr<ProtoAnswer> oldAnswer(command.getProtoAnswer());
        const std::unique_ptr<XmlRpcAnswer> oldEnvelope(command.getXmlRpcAnswer());
        const std::unique_ptr<const FW_Machine> oldMachine(command.machine());
        (command.*reset)();
        EXPECT_EQ(command.getProtoAnswer(), nullptr);
        EXPECT_EQ(command.getXmlRpcAnswer(), nullptr);
        EXPECT_EQ(command.machine(), nullptr);
        EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 2);
        EXPECT_EQ(CountedMachine::alive, before + 1);
    }
}

TEST(ProtoCommand, supportsEverythingAndEstimatesNothing)
{
    const ProtoCommand command(QStringLiteral("TINT"));
    EXPECT_TRUE(command.isSupportedCommand(FW_Version()));
    EXPECT_TRUE(command.isSupportedCommand(FW_Version(63, 1)));
    const FW_Dispenser dispenser;
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&dispenser), 0);
    EXPECT_EQ(ProtoCommand(QStringLiteral("GET_USS_W_STATUS")).getCmdEstimatedExecutionTime(nullptr), 0);
}

TEST(ProtoCommand, hasNoXmlRpcArguments)
{
    const ProtoCommand command(1, "LOGIN", List{"me", "secret"}, nullptr);
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), "[]");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(command.xmlrpc_parameters(nullptr)), "[]");
}

TEST(ProtoCommand, givesACopyOfItsParameters)
{
    const ProtoCommand command(1, "LOGIN", List{"me", "secret"}, nullptr);
    List parameters = command.parameters();
    parameters.clear();
    EXPECT_EQ(command.parameters(), (List{"me", "secret"}));
}

TEST(ProtoCommand, writesTheRequest)
{
    bool ok = false;
    EXPECT_EQ(dumped(ProtoCommand(QStringLiteral("TINT")).toXmlRpcValue("", &ok)), R"(["TINT"])");
    EXPECT_TRUE(ok);
    ok = false;
    EXPECT_EQ(dumped(ProtoCommand(QStringLiteral("TINT")).toXmlRpcValue("first", &ok)),
              R"(["first", "TINT"])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(ProtoCommand(QStringLiteral("TINT")).toXmlRpcValue("first")), R"(["first", "TINT"])");

    OpenCommand command(QStringLiteral("SHELF_MOVE"));
    EXPECT_EQ(dumped(command.toXmlRpcValue("", &ok)), R"(["SHELF_MOVE", 7, "text"])");
    EXPECT_EQ(dumped(command.toXmlRpcValue("first", &ok)), R"(["first", "SHELF_MOVE", 7, "text"])");
    command.m_arguments = Value(7);
    EXPECT_EQ(dumped(command.toXmlRpcValue("first", &ok)), "[]");
    EXPECT_FALSE(ok);
}

TEST(ProtoCommand, makesNoRequestWithoutAName)
{
    bool ok = true;
    EXPECT_EQ(dumped(ProtoCommand().toXmlRpcValue("", &ok)), "[]");
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(dumped(ProtoCommand().toXmlRpcValue("first", &ok)), "[]");
    EXPECT_FALSE(ok);
    EXPECT_EQ(dumped(ProtoCommand().toXmlRpcValue("first", nullptr)), "[]");
}

TEST(ProtoCommand, buildsRequestsOfAnyArguments)
{
    const Value arguments = arrayOf(5, true, 2.5, "text", arrayOf(1, 2), structOf({{"a", 1}}));
    bool ok = false;
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("TINT", arguments, "", &ok)),
              R"(["TINT", 5, true, 2.50000, "text", [1, 2], {"a": 1}])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("TINT", arrayOf(1), "L", nullptr)),
              R"(["L", "TINT", 1])");
    ok = false;
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("TINT", "L", &ok)), R"(["L", "TINT"])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("TINT", "", &ok)), R"(["TINT"])");
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("NO_SUCH_COMMAND", "", &ok)), R"(["NO_SUCH_COMMAND"])");
    EXPECT_TRUE(ok);
}

TEST(ProtoCommand, buildsNoRequestOfAnythingButAnArray)
{
    for (const Value &bad : {Value(), Value(5), Value("text"), structOf({{"a", 1}})}) {
        SCOPED_TRACE(dumped(bad));
        bool ok = true;
        EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("TINT", bad, "first", &ok)), "[]");
        EXPECT_FALSE(ok);
    }
    bool ok = true;
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("", arrayOf(1), "first", &ok)), "[]");
    EXPECT_FALSE(ok);
    ok = true;
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue("", "first", &ok)), "[]");
    EXPECT_FALSE(ok);
}

TEST(ProtoCommand, writesLeadingTextAndNameInLatin1)
{
    const QString leading = QString::fromUtf8("Müller");
    const QString name = QString::fromUtf8("Größe");
    EXPECT_EQ(dumped(ProtoCommand::buildXmlRpcValue(name, leading)), "[\"M\xFCller\", \"Gr\xF6\xDF"
                                                                     "e\"]");
    EXPECT_EQ(dumped(ProtoCommand(name).toXmlRpcValue(leading)), "[\"M\xFCller\", \"Gr\xF6\xDF"
                                                                 "e\"]");
}

TEST(ProtoCommand, keepsTheAnswerContract)
{
    ProtoCommand command(QStringLiteral("TINT"));
    expectAnswerContract(command, plainAnswers());
}

TEST(ProtoCommand, givesItsAnswersTypeZero)
{
    ProtoCommand command(2, "GET_CALIB_PROFILES", nullptr);
    List list = {1};
    ASSERT_TRUE(command.buildProtoAnswer(Value(1), nullptr));
    EXPECT_EQ(command.getProtoAnswer()->protoType(), 0);
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_EQ(command.getProtoAnswer()->protoType(), 0);
}

TEST(ProtoCommand, deletesItsAnswerWhenCleared)
{
    ProtoCommand command(QStringLiteral("TINT"));
    {
        CountedAnswer<ProtoAnswer> answer(1);
        command.setProtoAnswer(&answer);
    }
    EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 1);
    command.clearProtoAnswer();
    EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 0);
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    command.clearProtoAnswer();
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
}

TEST(ProtoCommand, keepsTheEnvelopeOfASubclassThatThrows)
{
    const Value envelope = structOf({{"ret_code", 0}, {"info", ""}, {"ret_value", 1}, {"errors", arrayOf()}});
    for (const Failure failure : {Failure::OfStandard, Failure::OfNoClass}) {
        SCOPED_TRACE(static_cast<int>(failure));
        ThrowingCommand command(failure);
        FW_DriverError error;
        EXPECT_FALSE(command.setAnswer(envelope, false, &error));
        expectError(error, "DE00350", "Failed to create answer");
        EXPECT_EQ(command.getProtoAnswer(), nullptr);
        EXPECT_NE(command.getXmlRpcAnswer(), nullptr);
        EXPECT_FALSE(command.setAnswer(envelope, false, nullptr));
    }
    ThrowingCommand command(Failure::OfFramework);
    FW_DriverError error;
    EXPECT_FALSE(command.setAnswer(envelope, false, &error));
    expectError(error, "DE09999", "Not to be copied");
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 0);
}

TEST(ProtoCommand, deletesItsAnswers)
{
    {
        ProtoCommand command(QStringLiteral("TINT"));
        CountedAnswer<ProtoAnswer> answer(1);
        command.setProtoAnswer(&answer);
        EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 2);
    }
    EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 0);
}

TEST(ProtoCommand, makesIndependentCopies)
{
    CountedAnswer<ProtoAnswer> answer(9);
    ProtoCommand command(2, "LOGIN", List{"me", "secret"}, nullptr);
    EXPECT_TRUE(command.setAnswer(
        structOf({{"ret_code", 3}, {"info", "no"}, {"ret_value", arrayOf(1)}, {"errors", arrayOf()}}), false,
        nullptr));
    command.setProtoAnswer(&answer);

    std::unique_ptr<ProtoCommand> copy(command.clone());
    EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 3);
    EXPECT_EQ(copy->command(), "LOGIN");
    EXPECT_EQ(copy->protoType(), 2);
    EXPECT_EQ(copy->parameters(), (List{"me", "secret"}));
    ASSERT_NE(copy->getProtoAnswer(), nullptr);
    EXPECT_NE(copy->getProtoAnswer(), command.getProtoAnswer());
    EXPECT_EQ(dumped(copy->getProtoAnswer()->toXmlRpcValue()), "9");
    ASSERT_NE(copy->getXmlRpcAnswer(), nullptr);
    EXPECT_NE(copy->getXmlRpcAnswer(), command.getXmlRpcAnswer());
    EXPECT_EQ(copy->getXmlRpcAnswer()->retCode(), 3);
    EXPECT_EQ(dumped(copy->getXmlRpcAnswer()->xmlrpcRetValue()), "[1]");

    copy->getXmlRpcAnswer()->setRetCode(4);
    EXPECT_EQ(command.getXmlRpcAnswer()->retCode(), 3);
    EXPECT_TRUE(copy->setCommand("LOGOUT"));
    copy.reset();
    EXPECT_EQ(CountedAnswer<ProtoAnswer>::alive, 2);
    EXPECT_EQ(command.command(), "LOGIN");
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), "9");
    EXPECT_EQ(command.getXmlRpcAnswer()->retCode(), 3);
}

TEST(ProtoCommand, makesEmptyCopiesOfAnEmptyCommand)
{
    const ProtoCommand empty;
    const ProtoCommand copy(empty);
    EXPECT_TRUE(copy.command().isNull());
    EXPECT_EQ(copy.protoType(), 0);
    EXPECT_EQ(copy.machine(), nullptr);
    EXPECT_EQ(copy.getProtoAnswer(), nullptr);
    EXPECT_EQ(copy.getXmlRpcAnswer(), nullptr);
}

TEST(ProtoCommand, isDeletedThroughTheRoot)
{
    const CountedMachine machine;
    std::unique_ptr<ProtoCommand> command = std::make_unique<SerialProtoCommand>("RESET", &machine);
    EXPECT_EQ(CountedMachine::alive, 2);
    command.reset();
    EXPECT_EQ(CountedMachine::alive, 1);
}
