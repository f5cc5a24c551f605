// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionscmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/machineinfotesting.h"

namespace {

using namespace testing_base;
using Cmd = GetConnectionsCmd;

constexpr char notMade[] = "Failed to create GetConnectionsAnswer";
constexpr char ofValue[] = "GetConnectionsCmd::GetConnectionsCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetConnectionsCmd::GetConnectionsCmd(QList<QVariant>)";
constexpr char noStruct[] = "GetConnectionsCmd: expected STRUCT parameter";
constexpr char noType[] = "Connection type: expected INT parameter";
constexpr char noFilter[] = "Bluetooth connection filter: expected INT parameter";

Value request(const Value &type, const Value &filter)
{
    return arrayOf(structOf({{"conn_type", type}, {"bt_conn_filter", filter}}));
}

AnswerFacts answers()
{
    const std::string written = std::string("{\"connection_data_list\": [") + dispenserInfoDump + "]}";
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue("GetConnectionsAnswer",
                      structOf({{"connection_data_list", arrayOf(dispenserInfoStruct())}}), written)
            .failsWith("DE03223", notMade)
            .refuses(Value(0), "DE03225", "GetConnectionsAnswer: expected connection_data_list value",
                     "GetConnectionsAnswer::GetConnectionsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("GetConnectionsAnswer", {QVariant::fromValue(filledDispenserInfo())}, written)
            .failsWith("DE03224", notMade)
            .refuses({7}, "DE00937", "GetConnectionsAnswer decoding failed: invalid QVariant value",
                     "GetConnectionsAnswer::GetConnectionsAnswer(QList<QVariant>&)");
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"GET_CONNECTIONS", 102, "", 0};
    facts.protoType = 2;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.readsByHand = true;
    facts.getters = {getter(&Cmd::connectionType), getter(&Cmd::filter)};
    facts.words = Words("Connections read", "Scanning available dispenser connections");
    facts.defaults = Request().parameters({-1, 0}).written(R"([{"bt_conn_filter": 0, "conn_type": -1}])");
    facts.requests = {
        Request({1, 2})
            .typed<Cmd>(1, Cmd::ConnectionFilter)
            .value(request(1, 2))
            .written(R"([{"bt_conn_filter": 2, "conn_type": 1}])"),
        Request({2})
            .value(arrayOf(structOf({{"conn_type", 2}})))
            .parameters({2, 0})
            .written(R"([{"bt_conn_filter": 0, "conn_type": 2}])"),
        Request({-1, 7})
            .value(arrayOf(structOf({{"bt_conn_filter", 7}})))
            .written(R"([{"bt_conn_filter": 7, "conn_type": -1}])"),
        Request().typed<Cmd>().parameters({-1, 0}).written(R"([{"bt_conn_filter": 0, "conn_type": -1}])"),
    };
    facts.answers = answers();
    return facts;
}

TEST(GetConnectionsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetConnectionsCmd, refusesWhatIsNoStructOfInts)
{
    for (const Value &bad : {Value(1), Value("x"), Value(true), arrayOf(1)})
        expectRefusal("DE03220", noStruct, ofValue, [&] { Cmd{arrayOf(bad)}; });
    for (const Value &bad : {Value(1.0), Value("1"), Value(true), structOf({})}) {
        expectRefusal("DE03221", noType, ofValue, [&] { Cmd{request(bad, bad)}; });
        expectRefusal("DE03222", noFilter, ofValue, [&] { Cmd{request(1, bad)}; });
    }
}

TEST(GetConnectionsCmd, refusesAListOfOtherThings)
{
    for (const QVariant &bad :
         {QVariant(), QVariant(1.0), QVariant("1"), QVariant(true), QVariant(4294967296LL)}) {
        expectRefusal("DE03221", noType, ofList, [&] { Cmd(List{bad, bad}); });
        expectRefusal("DE03222", noFilter, ofList, [&] { Cmd(List{1, bad}); });
    }
}

TEST(GetConnectionsCmd, namesTheFilters)
{
    const char *const names[] = {"Discovery", "Pairing", "Connection", "Machine info"};
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(Cmd::BTconnectionFilterStr(static_cast<Cmd::BTConnectionFilter>(number)), names[number]);
    for (int number : {-1, 4, 245})
        EXPECT_EQ(Cmd::BTconnectionFilterStr(static_cast<Cmd::BTConnectionFilter>(number)), "") << number;
}

TEST(GetConnectionsCmd, tellsItsArgument)
{
    const testing_base::Lines lines = argumentsOf("GET_CONNECTIONS");
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines.at(0).rfind(R"(connections (struct) = {"bt_conn_filter": 0, "conn_type": -1}: )", 0), 0U)
        << lines.at(0);
    EXPECT_EQ(lines.at(1), "  XML-RPC, another type: DE03220");
    EXPECT_EQ(lines.at(2), "  XML-RPC, conn_type is of another type: DE03221");
    EXPECT_EQ(lines.at(3), "  list, conn_type is of another type: DE03221");
}

TEST(GetConnectionsCmd, tellsTheElementsOfAListInItsAnswer)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_CONNECTIONS");
    ASSERT_EQ(facts.members.size(), 1);
    testing_base::Lines lines;
    appendRefusals(lines, facts.members.at(0).refusals);
    ASSERT_EQ(lines.size(), 10U);
    EXPECT_EQ(lines.at(7), "  XML-RPC, an element that cannot be made: DE01884");
    EXPECT_EQ(lines.at(8), "  list, an element that cannot be made: DE01884");
    EXPECT_EQ(lines.at(9), "  list, an element of another type: DE00937");
}

} // namespace
