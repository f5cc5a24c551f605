// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/newtransparentcmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char noCode[] = "NewTransparentCmd: expected a command code of four hexadecimal digits";

AnswerFacts answers()
{
    constexpr char failed[] = "Failed to create NewTransparentCmdAnswer";
    constexpr char noParameters[] = "NewTransparentCmdAnswer: expected parameters value";
    const std::string written = R"({"parameters": [3, 255]})";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens("NewTransparentCmdAnswer", {"2", "3", "FF"}, written)
            .failsWith("DE03182", failed)
            .refuses({"1", "x"}, "DE03186", "NewTransparentCmdAnswer: expected a hexadecimal number",
                     "NewTransparentCmdAnswer::NewTransparentCmdAnswer(QStringList)");
    answers.value =
        AnswerOfValue("NewTransparentCmdAnswer", structOf({{"parameters", arrayOf(3, 255)}}), written)
            .failsWith("DE03183", failed)
            .refuses(structOf({}), "DE03187", noParameters,
                     "NewTransparentCmdAnswer::NewTransparentCmdAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("NewTransparentCmdAnswer", {QVariant(List{3, 255})}, written)
                       .failsWith("DE03184", failed)
                       .refuses({}, "DE03188", noParameters,
                                "NewTransparentCmdAnswer::NewTransparentCmdAnswer(QList<QVariant>&)");
    answers.envelope = {"DE03185", failed};
    return answers;
}

CommandFacts facts()
{
    const auto numbers = [](const List &list) { return QVariant(list); };
    CommandFacts facts(formsOf<NewTransparentCmd>());
    facts.catalogue = {"DEEP_SERVICE", 132, "002C", 3};
    facts.protoType = 1;
    facts.valueFunction = "NewTransparentCmd::NewTransparentCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "NewTransparentCmd::NewTransparentCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE03172", "DE03177", "NewTransparentCmd: expected a module"}).takes({-1, 300}),
        required(Integer, {"DE03173", "DE03178", "NewTransparentCmd: expected a board"}).takes({-1, 300}),
        required(Text, {"DE03174", "DE03179", "NewTransparentCmd: expected a command code"})
            .outOfRange({"", "FR", "002", "00200", "00G0", " 020", "+1+2", "0x10"},
                        {"DE03176", "DE03181", noCode})
            .takes({"0000", "ffFF"}),
        optional().refuses({Value(7), Value(true), Value("7"), structOf({}), arrayOf(7, "8"), arrayOf(7.0)},
                           {QVariant(), 7, true, "7", QVariantMap(), List{7, "8"}, List{7.0},
                            QStringList{"7"}, List{2147483648LL}},
                           {"DE03175", "DE03180", "NewTransparentCmd: expected the command's parameters"})};
    facts.getters = {getter(&NewTransparentCmd::moduleID), getter(&NewTransparentCmd::board)};
    facts.defaults = Request()
                         .parameters({0, 0, "", numbers({})})
                         .written(R"([0, 0, "", []])")
                         .holds({0, 0})
                         .sends({0, 0, 0})
                         .notReadBack();
    facts.requests = {
        Request({3, 200, "0A2c", numbers({1, 300, -1})})
            .value(arrayOf(3, 200, "0A2c", arrayOf(1, 300, -1)))
            .typed<NewTransparentCmd>(3, 200, CommandCode("0A2c"), QList<int>{1, 300, -1})
            .written(R"([3, 200, "0A2c", [1, 300, -1]])")
            .holds({3, 200})
            .sends({200, 10, 44, 1, 300, -1})
            .module(3),
        Request({0, 0, "0006"})
            .parameters({0, 0, "0006", numbers({})})
            .typed<NewTransparentCmd>(0, 0, CommandCode("00", "06"), QList<int>())
            .written(R"([0, 0, "0006", []])")
            .holds({0, 0})
            .sends({0, 0, 6}),
    };
    facts.requests.push_back(
        facts.requests.front().alsoFromList({3, 200, "0A2c", QVariant::fromValue(QList<int>{1, 300, -1})}));
    for (const CommandCode &code :
         {CommandCode(), CommandCode("1", "3"), CommandCode("FR"), CommandCode("00ZZ")})
        facts.typedRefusals.push_back(
            {made<NewTransparentCmd>(1, 2, code, QList<int>{}),
             {"DE03171", noCode},
             "NewTransparentCmd::NewTransparentCmd(int, int, const CommandCode&, const QList<int>&)"});
    facts.firmware = {{FW_Version(), false},      {FW_Version(0, 0), true},    {FW_Version(63, 0), true},
                      {FW_Version(72, 99), true}, {FW_Version(63, -1), false}, {FW_Version(-1, 40), false}};
    facts.answers = answers();
    return facts;
}

TEST(NewTransparentCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(NewTransparentCmd, holdsCodeAndParameters)
{
    const NewTransparentCmd commands[] = {
        NewTransparentCmd(1, 2, CommandCode("0A2c"), {7}),
        NewTransparentCmd(arrayOf(1, 2, "0A2c", arrayOf(7))),
        NewTransparentCmd(List{1, 2, "0A2c", List{7}}),
    };
    for (const NewTransparentCmd &command : commands) {
        EXPECT_EQ(command.commandCode().code, "0A2c");
        EXPECT_EQ(command.commandCode().hi, "0A");
        EXPECT_EQ(command.commandCode().lo, "2c");
        EXPECT_EQ(command.commandParameters(), QList<int>{7});
    }
}

TEST(NewTransparentCmd, knowsItsFirmware)
{
    for (const Gate &gate : facts().firmware)
        EXPECT_EQ(NewTransparentCmd::isCommandSupported(gate.version), gate.isSupported)
            << gate.version.toString().toStdString();
}

TEST(NewTransparentCmd, doesNotMistakeOneArgumentForACommand)
{
    static_assert(!std::is_constructible_v<NewTransparentCmd, int>);
    static_assert(!std::is_constructible_v<NewTransparentCmd, bool>);
    static_assert(!std::is_constructible_v<NewTransparentCmd, double>);
    static_assert(!std::is_constructible_v<NewTransparentCmd, const char *>);
}

} // namespace
