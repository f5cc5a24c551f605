// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getdatalistcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "catalogue/protocommandlist.h"
#include "masterdata/colorantsposlist.h"
#include "masterdata/devicedata.h"
#include "masterdata/protocolcommandinfo.h"
#include "status/dispenserstatus.h"

#include <QuvFramework/fw_dispenser.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;
using Cmd = GetDataListCmd;

constexpr char ofValue[] = "GetDataListCmd::GetDataListCmd(QString, const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetDataListCmd::GetDataListCmd(QString, QList<QVariant>)";
constexpr char notMade[] = "Failed to create DispenserStatusAnswer";

/** One of the names, and its answer: with one machine or record of it in the list form, without any over XML-RPC. */
struct NamedList
{
    const char *name;
    int row;
    const char *answerClass;
    const char *member;
    List list;
    const char *ofList;
    const char *valueCode; ///< without the member; none where it may be missing
    const char *valueText;
    const char *listCode; ///< of an element that is no such thing
    const char *listText;
};

FW_Dispenser dispenser()
{
    FW_Dispenser machine;
    FW_Canister canister(3);
    canister.setColorantCode("B");
    machine.addCanister(canister);
    return machine;
}

std::vector<NamedList> namedLists()
{
    const List machines = {QVariant::fromValue(DispenserStatus(DispenserInfo()))};
    const List command = {QVariant::fromValue(ProtocolCommandInfo())};
    static constexpr char machinesWritten[] =
        R"({"disp_list": [{"active": false, "conf_mng": false, "dispenser_info": {"bt_conn_address": "", )"
        R"("bt_conn_name": "", "conn_type": "", "description": "", "device_type": 1, "disp_id": 0, )"
        R"("enabled": false, "key_code": "", "model": "", "product_code": "", "rotating_disp": false, )"
        R"("serial_number": "", "serial_port": "", "sid": -1, "tinting_parallelism": 0}, "fw_update": false, )"
        R"("grav_sw_dose": false, "scale_mngm": false, "slave_scan": false, "stats_mng": false}], )"
        R"("mixer_list": []})";
    static constexpr char otherMachine[] = "GetActiveDispAnswer decoding failed: invalid QVariant value";
    return {
        {"GET_DISP_LIST", 64, "GetActiveDispAnswer", "disp_list", machines, machinesWritten, nullptr, nullptr,
         "DE03211", otherMachine},
        {"GET_MIXER_LIST", 135, "GetActiveDispAnswer", "mixer_list", machines, machinesWritten, nullptr,
         nullptr, "DE03211", otherMachine},
        {"GET_CIRCUIT_LIST",
         67,
         "GetCircuitListAnswer",
         "circuit_list",
         {QVariant::fromValue(FW_Circuit(5, 2)), 3},
         R"({"circuit_list": [{"canister_id": 3, "colorant_id": 0, "enabled": true, "head_ref_id": 0, "id": 5, )"
         R"("position_id": 2, "pump_serial_number": "", "pump_type": 1, "recirculation_enabled": false, )"
         R"("stirring_enabled": false}]})",
         "DE03381",
         "GetCircuitListAnswer: Errors during CircuitData list creation",
         "DE03390",
         "GetCircuitListAnswer decoding failed: invalid QVariant value (expected FW_Circuit)"},
        {"GET_CANISTER_LIST",
         68,
         "GetCanisterListAnswer",
         "canister_list",
         {QVariant::fromValue(dispenser()), 3LL},
         R"({"canister_list": [{"circuits": [], "colorant_code": "B", "colorant_id": 0, "cur_q": 0.00000, )"
         R"("enabled": true, "id": 3, "max_q": 0.00000, "positions": [], "res_q": 0.00000, "res_w": 0.00000}]})",
         "DE03380",
         "GetCanisterListAnswer: Errors during CanisterData list creation",
         "DE03388",
         "GetCanisterListAnswer decoding failed: invalid QVariant value (expected FW_Dispenser)"},
        {"GET_COLORANT_LIST",
         69,
         "GetColorantListAnswer",
         "colorant_list",
         {QVariant::fromValue(ColorantsPOSList(FW_Colorant("B"), 3))},
         R"({"colorant_list": [{"code": "B", "disp_algorithm_mask": 3, "enabled": true, "name": "", )"
         R"("system_id": 0}]})",
         "DE03383",
         "GetColorantListAnswer: Errors during FW_Colorant list creation",
         "DE03393",
         "GetColorantListAnswer decoding failed: invalid QVariant value"},
        {"GET_DEVICE_LIST",
         66,
         "GetDeviceListAnswer",
         "device_list",
         {QVariant::fromValue(DeviceData(1, true, "shelf", true, 1))},
         R"({"device_list": [{"accept_commands": true, "description": "shelf", "enabled": true, "id": 1, )"
         R"("type": 1}]})",
         "DE03382",
         "GetDeviceListAnswer: Errors during DeviceData list creation",
         "DE03392",
         "GetDeviceListAnswer decoding failed: invalid QVariant value"},
        {"GET_CMD_LIST", 65, "GetCommandListAnswer", "command_list", command,
         R"({"command_list": [{"code": "", "driver_cmd": false, "enabled": true, "id": 0, "max_params": 0, )"
         R"("min_params": 0, "name": "", "time_tracking": false, "version": 0}]})",
         "DE00433", "GetCommandListAnswer: Errors during ProtocolCommandInfo list creation", "DE00429",
         "GetCommandListAnswer: errors during ProtocolCommandInfo creation"},
    };
}

std::string writtenEmpty(const NamedList &list)
{
    return list.valueCode ? std::string("{\"") + list.member + "\": []}"
                          : R"({"disp_list": [], "mixer_list": []})";
}

AnswerFacts answersOf(const NamedList &list)
{
    const std::string signature = std::string(list.answerClass) + "::" + list.answerClass;
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue(list.answerClass, structOf({{list.member, arrayOf()}}), writtenEmpty(list))
                        .failsWith("DE01287", notMade);
    if (list.valueCode)
        answers.value.refuses(structOf({}), list.valueCode, list.valueText,
                              signature + "(const XmlRpc::XmlRpcValue&)");
    else
        answers.value.refusesNothing();
    answers.list = AnswerOfList(list.answerClass, list.list, list.ofList)
                       .failsWith("DE01287", notMade)
                       .refuses({7}, list.listCode, list.listText, signature + "(QList<QVariant>&)");
    return answers;
}

CommandFacts factsOf(const NamedList &list)
{
    CommandFacts facts(formsOf<Cmd>(nullptr, QString(list.name)));
    facts.catalogue = {list.name, list.row, "", 0};
    facts.protoType = 2;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {optional(
        Flag, {"DE00391", "DE00391", std::string(list.name) + ": expected Bool type for first parameter"})};
    facts.getters = {getter(&Cmd::option)};
    facts.defaults = Request().parameters({false}).written("[false]");
    facts.requests = {Request({true}).typed<Cmd>(QString(list.name), true).written("[true]"),
                      Request().parameters({false}).written("[false]"),
                      Request({false}).typed<Cmd>(QString(list.name), false).written("[false]")};
    if (list.name == std::string("GET_CANISTER_LIST"))
        facts.words = Words("Canister levels read", "Reading canister levels");
    facts.answers = answersOf(list);
    return facts;
}

TEST(GetDataListCmd, keepsTheCommandContractByEachName)
{
    for (const NamedList &list : namedLists())
        expectCommandContract(factsOf(list));
}

TEST(GetDataListCmd, withoutANameAsksForNothing)
{
    const Cmd command;
    EXPECT_TRUE(command.command().isNull());
    EXPECT_EQ(command.protoType(), 2);
    EXPECT_FALSE(command.option());
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[false]");
}

TEST(GetDataListCmd, getsAPlainAnswerByAnyOtherName)
{
    for (const char *name : {"GET_CALIB_LIST", "GET_ACTIVE_DISP", "NO_SUCH_COMMAND", ""}) {
        SCOPED_TRACE(name);
        Cmd command{QString(name)};
        ASSERT_TRUE(command.buildProtoAnswer(structOf({{"circuit_list", arrayOf()}}), nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), "ConfProtoAnswer");
        List list = {7};
        ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
        EXPECT_EQ(className(command.getProtoAnswer()), "ConfProtoAnswer");
    }
}

TEST(GetDataListCmd, answersByTheNameThatItHasThen)
{
    Cmd command{QString("GET_CIRCUIT_LIST")};
    ASSERT_TRUE(command.setCommand("GET_DEVICE_LIST"));
    ASSERT_TRUE(command.buildProtoAnswer(structOf({{"device_list", arrayOf()}}), nullptr));
    EXPECT_EQ(className(command.getProtoAnswer()), "GetDeviceListAnswer");
    EXPECT_EQ(command.commandString(), "");
    ASSERT_TRUE(command.setCommand("GET_CANISTER_LIST"));
    EXPECT_EQ(command.commandString(), "Canister levels read");
}

TEST(GetDataListCmd, takesNoOptionThatIsNoBool)
{
    static_assert(!std::is_constructible_v<Cmd, QString, int>);
    static_assert(!std::is_constructible_v<Cmd, QString, double>);
    static_assert(!std::is_constructible_v<Cmd, QString, const char *>);
    static_assert(!std::is_convertible_v<QString, Cmd>);
}

TEST(GetDataListCmd, isMadeByTheFactoryForAllItsNames)
{
    for (const NamedList &list : namedLists()) {
        Value none = arrayOf();
        const Made ofNothing(ProtoCommandList::getProtoCommand(list.name, none, nullptr));
        EXPECT_EQ(ofNothing->command(), list.name);
        EXPECT_FALSE(dynamic_cast<const Cmd &>(*ofNothing).option());
        Value text = arrayOf("yes");
        const std::string refusal = std::string(list.name) + ": expected Bool type for first parameter";
        expectRefusal("DE00391", refusal.c_str(), ofValue,
                      [&] { const Made made(ProtoCommandList::getProtoCommand(list.name, text, nullptr)); });
    }
}

TEST(GetDataListCmd, tellsItsArgumentAndItsAnswer)
{
    EXPECT_EQ(argumentsOf("GET_DEVICE_LIST"),
              (Lines{"option (bool) = false: what it stands for only the driver knows",
                     "  XML-RPC, another type: DE00391", "  list, another type: DE00391"}));
    EXPECT_EQ(
        membersOf("GET_DEVICE_LIST"),
        (Lines{"GetDeviceListAnswer",
               "device_list (array of structs): of each device which it is, and whether it can be moved by "
               "command",
               "  XML-RPC, missing or another type: DE03382",
               "  XML-RPC, an element without a good id: DE00419",
               "  XML-RPC, an element without a good enabled: DE00420",
               "  XML-RPC, an element without a good description: DE00421",
               "  XML-RPC, an element without a good accept_commands: DE00659",
               "  XML-RPC, an element without a good type: DE00267",
               "  XML-RPC, an element that cannot be made: DE03386",
               "  list, an element that cannot be made: DE03386",
               "  list, an element of another type: DE03392", "  XML-RPC, : DE01287", "  list, : DE01287"}));
    const Lines ofCommands = membersOf("GET_CMD_LIST");
    ASSERT_GT(ofCommands.size(), 5U);
    EXPECT_EQ(
        Lines(ofCommands.end() - 5, ofCommands.end()),
        (Lines{"  XML-RPC, an element that cannot be made: DE00432",
               "  list, an element of another type: DE00429", "  list, an element without a value: DE00430",
               "  XML-RPC, : DE01287", "  list, : DE01287"}));
    for (const NamedList &list : namedLists())
        EXPECT_EQ(quv::commandFacts(list.name).answerClass, list.answerClass) << list.name;
}

} // namespace
