// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilemanagementcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/getcmdestimatedexectimecmd.h"
#include "base/nccommand.h"
#include "base/outofmemory.h"
#include "firmware/resourcefilemanagementanswer.h"
#include "firmware/resourcetesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

using Cmd = ResourceFileManagementCmd;

constexpr char notMade[] = "Failed to create ResourceFileManagementAnswer";
constexpr char ofBaseValue[] =
    "ResourceFileManagementBase::ResourceFileManagementBase(const XmlRpc::XmlRpcValue&)";
constexpr char ofBaseList[] = "ResourceFileManagementBase::ResourceFileManagementBase(QList<QVariant>&)";
constexpr char noBlock[] = "ResourceFileManagementBase: invalid parameter";
constexpr char emptyList[] = "ResourceFileManagementBase decoding failed: invalid QVariant value";
constexpr char otherItem[] = "ResourceFileManagementBase: invalid FwResourceDataList parameter";

FwResourceData block()
{
    return {RFM_Subcommand{2}, 243, 300, twoBytes()};
}

Value blockValue()
{
    return structOf({{"res_data", blockStruct(2, 243, 300, binary(twoBytes()))}});
}

AnswerFacts answers()
{
    constexpr char answerClass[] = "ResourceFileManagementAnswer";
    constexpr char written[] = R"({"res_data": [2, 243, 300, 0]})";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens(answerClass, {"9", "2", "F3", "38", "1", "2", "0", "0", "A", "5"}, written)
            .failsWith("DE02739", notMade)
            .refuses({"1", "2"}, "DE02741", "Error during command answer decoding: bad length",
                     "FwResourceData::FwResourceData(QStringList)");
    answers.value = AnswerOfValue(answerClass, blockValue(), written)
                        .failsWith("DE02737", notMade)
                        .refuses(structOf({}), "DE02735", noBlock, ofBaseValue);
    answers.list = AnswerOfList(answerClass, {QVariant::fromValue(block())}, written)
                       .failsWith("DE02738", notMade)
                       .refuses({}, "DE02733", emptyList, ofBaseList)
                       .refuses({7}, "DE02732", otherItem, ofBaseList);
    answers.envelope = {"DE02726", notMade};
    return answers;
}

Request requestOf(Request request)
{
    return request.notReadBack()
        .parameters({2, 243, 300, twoBytes()})
        .written(R"({"res_data": [2, 243, 300, 0]})")
        .sends({2, 243, 56, 1, 2, 0, 0, 10, 5})
        .holds({QVariant::fromValue(block())});
}

TEST(ResourceFileManagementCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"RES_FILE_MNGM", 148, "3F80", 2};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.valueIsCheckedByBase = false; // a struct is a request, too
    facts.listIsCountedByBase = false;  // one item is enough
    facts.getters = {getter(&Cmd::resourceData)};
    facts.defaults = Request()
                         .parameters({0, 0, 0, QByteArray()})
                         .written(R"({"res_data": [0, 0, 0, 0]})")
                         .sends({0, 0, 0, 0, 0})
                         .holds({QVariant::fromValue(FwResourceData())});
    facts.requests = {
        requestOf(Request({QVariant::fromValue(block())}).typed<Cmd>(block()).value(blockValue())),
        requestOf(Request({blockMap(2, 243, 300, twoBytes()), "rest"}).value(arrayOf(blockValue(), "rest")))};
    facts.answers = answers();
    expectCommandContract(facts);
}

TEST(ResourceFileManagementCmd, needsABlock)
{
    for (const Value &none : {Value(), Value(7), arrayOf(), arrayOf(7, blockValue()), structOf({}),
                              arrayOf(arrayOf(blockValue())), Cmd(block()).xmlrpc_parameters()["res_data"]}) {
        SCOPED_TRACE(dumped(none));
        expectRefusal("DE02735", noBlock, ofBaseValue, [&] { const Cmd command(none); });
    }
    expectRefusal("DE02728", badBlock, ofBlock, [] { const Cmd command(Cmd(block()).xmlrpc_parameters()); });
    expectRefusal("DE02733", emptyList, ofBaseList, [] { const Cmd command{List()}; });
    expectRefusal("DE02732", otherItem, ofBaseList, [] { const Cmd command{Cmd(block()).parameters()}; });
    static_assert(!std::is_constructible_v<Cmd, int>);
    static_assert(!std::is_constructible_v<Cmd, const char *>);
}

TEST(ResourceFileManagementCmd, sendsItsStructAsOneArgument)
{
    Cmd command(block());
    const Value request = command.toXmlRpcValue(QString());
    EXPECT_EQ(dumped(request), R"(["RES_FILE_MNGM", {"res_data": [2, 243, 300, 0]}])");
    EXPECT_EQ(dumped(command.toXmlRpcValue("key")),
              R"(["key", "RES_FILE_MNGM", {"res_data": [2, 243, 300, 0]}])");
    EXPECT_EQ(dumped(NCCommand(&command, nullptr, 100, 2000).toXmlRpcValue(QString())),
              R"(["RES_FILE_MNGM", {"cmd_parameters": [{"res_data": [2, 243, 300, 0]}]}, 100, 2000])");
    EXPECT_EQ(dumped(GetCmdEstimatedExecTimeCmd(&command).toXmlRpcValue(QString())),
              R"(["GET_CMD_EST_EXEC_TIME", {"command": ["RES_FILE_MNGM", {"res_data": [2, 243, 300, 0]}]}])");
    expectRefusal("DE02728", badBlock, ofBlock, [&] { const Cmd again(arrayOf(request[1])); });
}

TEST(ResourceFileManagementCmd, forgetsTheAddressWithTheBlock)
{
    Cmd command(block());
    command.setModuleID(4);
    command.setDefaults();
    EXPECT_EQ(command.moduleID(), 0);
    EXPECT_EQ(command.resourceData(), FwResourceData());
}

TEST(ResourceFileManagementCmd, takesAReadyAnswerOfItsOwnClass)
{
    Cmd command;
    ResourceFileManagementAnswer answer(block());
    FW_DriverError error;
    EXPECT_TRUE(command.setAnswer(answer, &error));
    EXPECT_TRUE(command.setAnswer(answer, nullptr));
    expectError(error, "", "");
    EXPECT_NE(command.getProtoAnswer(), &answer);
    EXPECT_TRUE(answer.equalTo(command.getProtoAnswer()));
    auto &own = dynamic_cast<ResourceFileManagementAnswer &>(*command.getProtoAnswer());
    EXPECT_TRUE(command.setAnswer(own, &error));
    EXPECT_TRUE(answer.equalTo(command.getProtoAnswer()));
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(answer, &error); }));
    expectError(error, "DE02736", notMade);
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
}

TEST(ResourceFileManagementCmd, isExplained)
{
    EXPECT_EQ(argumentsOf("RES_FILE_MNGM"),
              (Lines{"res_data (struct): a struct of this one member: a struct of \"subcmd\", \"res_index\", "
                     "\"block_address\" (ints) and \"data\" (base64, or a text)",
                     "  XML-RPC, missing: DE02735", "  list, missing: DE02733",
                     "  list, another type: DE02732", "  XML-RPC, without an int as subcmd: DE02728",
                     "  XML-RPC, without an int as res_index: DE02729",
                     "  XML-RPC, without an int as block_address: DE02730",
                     "  XML-RPC, without bytes as data: DE02731"}));
}

} // namespace
