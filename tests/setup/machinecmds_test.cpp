// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/clonedispenseranswer.h"
#include "setup/clonedispensercmd.h"
#include "setup/clonemachineanswer.h"
#include "setup/clonemachinecmd.h"
#include "setup/deletedispensercmd.h"
#include "setup/deletemachinecmd.h"
#include "setup/setactivedispcmd.h"
#include "setup/setactivemachinecmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"

#include <memory>
#include <type_traits>
#include <vector>

// The commands that name machines by their IDs.

namespace {

using namespace testing_base;
using Type = SerialDeviceType;

constexpr char badMachine[] = "Bad Machine ID value";
constexpr char ofMachine[] = "MachineID::MachineID(const XmlRpc::XmlRpcValue&)";

const MachineID mixer7(7, Type::Mixer);
const MachineID dispenser3(3, Type::Dispenser);

Value idStruct(const MachineID &machine)
{
    return structOf({{"id", machine.id}, {"machine", static_cast<int>(machine.type)}});
}

/** What is no machine's ID, by the code of its refusal. */
const std::vector<std::pair<const char *, Value>> badMachines = {
    {"DE02679", structOf({})},
    {"DE02679", structOf({{"machine", 4}})},
    {"DE02679", structOf({{"id", "7"}, {"machine", 4}})},
    {"DE02680", structOf({{"id", 7}})},
    {"DE02680", structOf({{"id", 7}, {"machine", "4"}})},
};

template <class Command>
void expectValuesRefused(const char *code, const char *text, const char *function,
                         const std::vector<Value> &arguments)
{
    for (const Value &argument : arguments) {
        SCOPED_TRACE(dumped(argument));
        expectRefusal(code, text, function, [&] { Command{arrayOf(argument)}; });
    }
}

template <class Command>
void expectListsRefused(const char *code, const char *text, const char *function, const List &arguments)
{
    for (const QVariant &argument : arguments) {
        SCOPED_TRACE(shown({argument}));
        expectRefusal(code, text, function, [&] { Command{List{argument}}; });
    }
}

CommandFacts factsOf(const CommandForms &forms, const CatalogueFacts &row)
{
    CommandFacts facts(forms);
    facts.catalogue = row;
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.answers = confAnswers();
    return facts;
}

// ---------------------------------------------------------------- CLONE_DISPENSER

constexpr char cloneDispenserNotMade[] = "Failed to create CloneDispenserAnswer";
constexpr char noDispenserInAnswer[] = "CloneDispenserAnswer: Failed to parse dispenser ID";
constexpr char dispenserAnswerOfValue[] =
    "CloneDispenserAnswer::CloneDispenserAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char dispenserAnswerOfList[] = "CloneDispenserAnswer::CloneDispenserAnswer(QList<QVariant>&)";

Value dispData(const Value &id)
{
    return structOf({{"disp_data", structOf({{"disp_id", id}})}});
}

TEST(CloneDispenserCmd, keepsTheCommandContract)
{
    CommandFacts facts = factsOf(formsOf<CloneDispenserCmd>(), {"CLONE_DISPENSER", 57, "", 1});
    facts.words = {"Dispenser configuration clone", "Cloning dispenser configuration"};
    facts.getters = {getter(&CloneDispenserCmd::dispIDValue)};
    facts.defaults = Request().parameters({0}).written(R"([{"disp_data": {"disp_id": 0}}])");
    facts.requests = {Request({3})
                          .typed<CloneDispenserCmd>(3)
                          .value(arrayOf(dispData(3)))
                          .written(R"([{"disp_data": {"disp_id": 3}}])")};
    facts.answers.value =
        AnswerOfValue("CloneDispenserAnswer", structOf({{"disp_id", 4}}), R"({"disp_id": 4})")
            .failsWith("DE01540", cloneDispenserNotMade)
            .refuses(Value(0), "DE01481", noDispenserInAnswer, dispenserAnswerOfValue);
    facts.answers.list =
        AnswerOfList("CloneDispenserAnswer", {4}, R"({"disp_id": 4})")
            .failsWith("DE01540", cloneDispenserNotMade)
            .refuses({}, "DE01476", "CloneDispenserAnswer decoding failed: invalid QVariant value",
                     dispenserAnswerOfList)
            .refuses({"4"}, "DE01475", noDispenserInAnswer, dispenserAnswerOfList);
    expectCommandContract(facts);
}

TEST(CloneDispenserCmd, refusesWhatNamesNoDispenser)
{
    constexpr char ofValue[] = "CloneDispenserCmd::CloneDispenserCmd(const XmlRpc::XmlRpcValue&)";
    constexpr char notStruct[] = "CloneDispenserCmd: invalid xml-rpc type (not struct)";
    expectValuesRefused<CloneDispenserCmd>("DE01535", notStruct, ofValue, {3, "3", true, arrayOf(3)});
    expectValuesRefused<CloneDispenserCmd>("DE01536", notStruct, ofValue,
                                           {structOf({}), structOf({{"disp_id", 3}})});
    expectValuesRefused<CloneDispenserCmd>(
        "DE01537", notStruct, ofValue, {structOf({{"disp_data", 3}}), structOf({{"disp_data", arrayOf(3)}})});
    expectValuesRefused<CloneDispenserCmd>(
        "DE01538", "CloneDispenserCmd failed: expected Int type for dispenser ID parameter", ofValue,
        {structOf({{"disp_data", structOf({})}}), dispData("3"), dispData(true), dispData(3.0)});
    expectListsRefused<CloneDispenserCmd>("DE01533", "CloneDispenserCmd: Failed to parse dispenser ID",
                                          "CloneDispenserCmd::CloneDispenserCmd(QList<QVariant>)",
                                          {QVariant(), "3", true, 3.0, QVariantMap{{"disp_id", 3}}});
}

TEST(CloneDispenserAnswer, holdsTheIDOfTheCopy)
{
    EXPECT_STREQ(CloneDispenserAnswer::dispID_TAG, "disp_id");
    EXPECT_EQ(CloneDispenserAnswer().dispID(), 0);
    EXPECT_EQ(CloneDispenserAnswer(4).dispID(), 4);
    EXPECT_EQ(CloneDispenserAnswer(structOf({{"disp_id", 4}})), CloneDispenserAnswer(4));
    EXPECT_NE(CloneDispenserAnswer(5), CloneDispenserAnswer(4));
    const std::unique_ptr<ConfProtoAnswer> copy(CloneDispenserAnswer(4).clone());
    EXPECT_TRUE(CloneDispenserAnswer(4).equalTo(copy.get()));
    for (const Value &value : {Value("4"), structOf({}), structOf({{"disp_id", "4"}}), arrayOf(4)})
        expectRefusal("DE01481", noDispenserInAnswer, dispenserAnswerOfValue,
                      [&] { CloneDispenserAnswer{value}; });
}

// ---------------------------------------------------------------- CLONE_MACHINE

constexpr char cloneMachineNotMade[] = "Failed to create CloneMachineAnswer";
constexpr char noMachineInAnswer[] = "CloneMachineAnswer: expected machine_id value";
constexpr char machineAnswerOfValue[] = "CloneMachineAnswer::CloneMachineAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char machineAnswerOfList[] = "CloneMachineAnswer::CloneMachineAnswer(QList<QVariant>&)";

TEST(CloneMachineCmd, keepsTheCommandContract)
{
    constexpr char dump[] = R"({"machine_id": {"id": 7, "machine": 4}})";
    CommandFacts facts = factsOf(formsOf<CloneMachineCmd>(), {"CLONE_MACHINE", 138, "", 1});
    facts.words = {"Machine configuration clone", "Cloning machine configuration"};
    facts.getters = {getter(&CloneMachineCmd::machineIDValue)};
    facts.defaults = Request()
                         .parameters({QVariant::fromValue(MachineID())})
                         .written(R"([{"machine_id": {"id": 0, "machine": 1}}])");
    facts.requests = {Request({QVariant::fromValue(mixer7)})
                          .typed<CloneMachineCmd>(mixer7)
                          .value(arrayOf(structOf({{"machine_id", idStruct(mixer7)}})))
                          .written(std::string("[") + dump + "]")};
    facts.answers.value =
        AnswerOfValue("CloneMachineAnswer", structOf({{"machine_id", idStruct(mixer7)}}), dump)
            .failsWith("DE03362", cloneMachineNotMade)
            .refuses(Value(0), "DE03364", noMachineInAnswer, machineAnswerOfValue)
            .refuses(structOf({{"machine_id", structOf({{"id", 7}})}}), "DE02680", badMachine, ofMachine);
    facts.answers.list =
        AnswerOfList("CloneMachineAnswer", {QVariant::fromValue(mixer7)}, dump)
            .failsWith("DE03362", cloneMachineNotMade)
            .refuses({}, "DE02692", "CloneMachineCmd: empty parameters list received", machineAnswerOfList)
            .refuses({7}, "DE02691", "CloneMachineCmd: Failed to parse machine ID", machineAnswerOfList);
    expectCommandContract(facts);
}

TEST(CloneMachineCmd, refusesWhatNamesNoMachine)
{
    constexpr char ofValue[] = "CloneMachineCmd::CloneMachineCmd(const XmlRpc::XmlRpcValue&)";
    constexpr char notStruct[] = "CloneMachineCmd: invalid xml-rpc type (not struct)";
    expectValuesRefused<CloneMachineCmd>("DE02686", notStruct, ofValue, {7, "7", arrayOf(7)});
    expectValuesRefused<CloneMachineCmd>("DE02687", notStruct, ofValue,
                                         {structOf({}), idStruct(mixer7), structOf({{"machine_id", 7}}),
                                          structOf({{"machine_id", arrayOf(7, 4)}})});
    for (const auto &[code, value] : badMachines)
        expectValuesRefused<CloneMachineCmd>(code, badMachine, ofMachine,
                                             {structOf({{"machine_id", value}})});
    expectListsRefused<CloneMachineCmd>("DE02684", "CloneMachineCmd: Failed to parse machine ID",
                                        "CloneMachineCmd::CloneMachineCmd(QList<QVariant>)",
                                        {QVariant(), 7, "7", QVariantMap(), QVariantMap{{"machine", 4}}});
    expectListsRefused<CloneMachineCmd>("DE02680", badMachine, ofMachine, {QVariantMap{{"id", 7}}});
    EXPECT_EQ(CloneMachineCmd(List{QVariantMap{{"id", 7}, {"machine", 4}}}).machineIDValue(),
              QVariant::fromValue(mixer7));
}

TEST(CloneMachineAnswer, holdsTheIDOfTheCopy)
{
    EXPECT_STREQ(CloneMachineAnswer::machineID_TAG, "machine_id");
    EXPECT_EQ(CloneMachineAnswer().machineID(), MachineID());
    EXPECT_EQ(CloneMachineAnswer(mixer7).machineID(), mixer7);
    EXPECT_EQ(CloneMachineAnswer(structOf({{"machine_id", idStruct(mixer7)}})), CloneMachineAnswer(mixer7));
    EXPECT_NE(CloneMachineAnswer(dispenser3), CloneMachineAnswer(mixer7));
    const std::unique_ptr<ConfProtoAnswer> copy(CloneMachineAnswer(mixer7).clone());
    EXPECT_TRUE(CloneMachineAnswer(mixer7).equalTo(copy.get()));
    expectRefusal("DE03364", noMachineInAnswer, machineAnswerOfValue,
                  [] { CloneMachineAnswer{structOf({})}; });
    List map = {QVariantMap{{"id", 7}, {"machine", 4}}};
    EXPECT_EQ(CloneMachineAnswer(map).machineID(), mixer7);
}

// ---------------------------------------------------------------- DELETE_DISPENSER

TEST(DeleteDispenserCmd, keepsTheCommandContract)
{
    const auto ids = [](const QList<int> &numbers) { return QVariant::fromValue(numbers); };
    CommandFacts facts = factsOf(formsOf<DeleteDispenserCmd>(), {"DELETE_DISPENSER", 56, "", 1});
    facts.words = {"Dispenser configuration delete", "Deleting dispenser configuration"};
    facts.getters = {getter(&DeleteDispenserCmd::dispIDValue)};
    facts.defaults = Request().parameters({ids({})}).written(R"([{"disp_id_list": []}])");
    facts.requests = {
        Request({ids({3, 5})})
            .typed<DeleteDispenserCmd>(QList<int>{3, 5})
            .value(arrayOf(structOf({{"disp_id_list", arrayOf(3, 5)}})))
            .written(R"([{"disp_id_list": [3, 5]}])"),
        Request({ids({})})
            .typed<DeleteDispenserCmd>(QList<int>())
            .value(arrayOf(structOf({{"disp_id_list", arrayOf()}})))
            .written(R"([{"disp_id_list": []}])"),
        Request({QVariant(List{3, 5})})
            .onlyFromList()
            .parameters({ids({3, 5})})
            .written(R"([{"disp_id_list": [3, 5]}])"),
    };
    expectCommandContract(facts);
}

TEST(DeleteDispenserCmd, refusesWhatIsNoListOfDispensers)
{
    constexpr char ofValue[] = "DeleteDispenserCmd::DeleteDispenserCmd(const XmlRpc::XmlRpcValue&)";
    expectValuesRefused<DeleteDispenserCmd>(
        "DE01529", "DeleteDispenserCmd: invalid xml-rpc type (not struct)", ofValue,
        {3, "3", arrayOf(3), structOf({}), structOf({{"disp_id", 3}}), structOf({{"disp_id_list", 3}}),
         structOf({{"disp_id_list", structOf({})}})});
    expectValuesRefused<DeleteDispenserCmd>(
        "DE01532", "DeleteDispenserCmd failed: expected Int type for dispenser ID parameter", ofValue,
        {structOf({{"disp_id_list", arrayOf(3, "5")}}), structOf({{"disp_id_list", arrayOf(true)}})});
    expectListsRefused<DeleteDispenserCmd>("DE01527", "DeleteDispenserCmd: Failed to parse dispenser ID list",
                                           "DeleteDispenserCmd::DeleteDispenserCmd(QList<QVariant>)",
                                           {QVariant(), 3, "3", QVariant(List{3, "5"})});
}

// ---------------------------------------------------------------- DELETE_MACHINE

TEST(DeleteMachineCmd, keepsTheCommandContract)
{
    const auto ids = [](const QList<MachineID> &machines) { return QVariant::fromValue(machines); };
    constexpr char dump[] = R"([{"machine_id_list": [{"id": 7, "machine": 4}, {"id": 3, "machine": 1}]}])";
    CommandFacts facts = factsOf(formsOf<DeleteMachineCmd>(), {"DELETE_MACHINE", 137, "", 1});
    facts.words = {"Machine configuration delete", "Deleting machine configuration"};
    facts.getters = {getter(&DeleteMachineCmd::machinesIDlistValue)};
    facts.defaults = Request().parameters({ids({})}).written(R"([{"machine_id_list": []}])");
    facts.requests = {
        Request({ids({mixer7, dispenser3})})
            .typed<DeleteMachineCmd>(QList<MachineID>{mixer7, dispenser3})
            .value(arrayOf(structOf({{"machine_id_list", arrayOf(idStruct(mixer7), idStruct(dispenser3))}})))
            .written(dump),
        Request({ids({})})
            .typed<DeleteMachineCmd>(QList<MachineID>())
            .value(arrayOf(structOf({{"machine_id_list", arrayOf()}})))
            .written(R"([{"machine_id_list": []}])"),
        Request({QVariant(List{QVariant::fromValue(mixer7), QVariantMap{{"id", 3}, {"machine", 1}}})})
            .onlyFromList()
            .parameters({ids({mixer7, dispenser3})})
            .written(dump),
    };
    expectCommandContract(facts);
}

TEST(DeleteMachineCmd, refusesWhatIsNoListOfMachines)
{
    constexpr char ofValue[] = "DeleteMachineCmd::DeleteMachineCmd(const XmlRpc::XmlRpcValue&)";
    expectValuesRefused<DeleteMachineCmd>(
        "DE02683", "DeleteMachineCmd: invalid xml-rpc type (not struct)", ofValue,
        {7, "7", arrayOf(7), structOf({}), idStruct(mixer7), structOf({{"machine_id_list", 7}}),
         structOf({{"machine_id_list", idStruct(mixer7)}})});
    for (const auto &[code, value] : badMachines)
        expectValuesRefused<DeleteMachineCmd>(
            code, badMachine, ofMachine, {structOf({{"machine_id_list", arrayOf(idStruct(mixer7), value)}})});
    expectValuesRefused<DeleteMachineCmd>("DE02679", badMachine, ofMachine,
                                          {structOf({{"machine_id_list", arrayOf(7)}})});
    expectListsRefused<DeleteMachineCmd>(
        "DE02681", "DeleteMachineCmd: Failed to parse machine ID list",
        "DeleteMachineCmd::DeleteMachineCmd(QList<QVariant>)",
        {QVariant(), 7, "7", QVariant::fromValue(mixer7), QVariant(List{QVariant::fromValue(mixer7), 7})});
    expectListsRefused<DeleteMachineCmd>("DE02680", badMachine, ofMachine,
                                         {QVariant(List{QVariantMap{{"id", 7}}})});
    // an ID without a value is not that of machine 0
    expectListsRefused<DeleteMachineCmd>("DE02679", badMachine, ofMachine,
                                         {QVariant(List{QVariantMap{{"id", QVariant()}, {"machine", 4}}}),
                                          QVariant(List{QVariantMap{{"id", QDateTime()}, {"machine", 4}}})});
}

// ---------------------------------------------------------------- SET_ACTIVE_DISP

TEST(SetActiveDispCmd, keepsTheCommandContract)
{
    CommandFacts facts = factsOf(formsOf<SetActiveDispCmd>(), {"SET_ACTIVE_DISP", 76, "", 2});
    facts.readsByHand = false;
    facts.valueFunction = "SetActiveDispCmd::SetActiveDispCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetActiveDispCmd::SetActiveDispCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00738", "DE00738",
                           "Set Active Dispenser command failed: expected Int type for first parameter"}),
        required(Integer, {"DE00752", "DE00752",
                           "Set Active Dispenser command failed: expected Int type for second parameter"}),
        optional(Flag, {"DE01678", "DE01678",
                        "Set Active Dispenser command failed: expected Boolean type for third parameter"}),
    };
    facts.getters = {getter(&SetActiveDispCmd::dispID), getter(&SetActiveDispCmd::sourceDispID),
                     getter(&SetActiveDispCmd::flag)};
    const auto words = [](const char *brief, const char *full) {
        return Words("Activate dispenser", brief, full);
    };
    facts.defaults = Request()
                         .parameters({0, 0, false})
                         .written("[0, 0, false]")
                         .says(words("Activating configuration of dispenser 0",
                                     "Activating configuration of dispenser 0 from dispenser 0"));
    const Words both = words("Activating configuration of dispenser 3",
                             "Activating configuration of dispenser 3 from dispenser 5");
    facts.requests = {
        Request({3, 5, true}).typed<SetActiveDispCmd>(3, 5, true).written("[3, 5, true]").says(both),
        Request({3, 5})
            .typed<SetActiveDispCmd>(3, 5, false)
            .parameters({3, 5, false})
            .written("[3, 5, false]")
            .says(both),
    };
    expectCommandContract(facts);
}

// ---------------------------------------------------------------- SET_ACTIVE_MACHINE

TEST(SetActiveMachineCmd, keepsTheCommandContract)
{
    CommandFacts facts = factsOf(formsOf<SetActiveMachineCmd>(), {"SET_ACTIVE_MACHINE", 136, "", 2});
    facts.getters = {getter(&SetActiveMachineCmd::machineID), getter(&SetActiveMachineCmd::source),
                     getter(&SetActiveMachineCmd::flag)};
    const auto words = [](const char *brief, const char *full) {
        return Words("Activate configuration", brief, full);
    };
    const auto none = QVariant::fromValue(MachineID());
    facts.defaults =
        Request()
            .parameters({none, none, false})
            .written(R"([{"id": 0, "machine": 1}, {"id": 0, "machine": 1}, false])")
            .says(words("Activating configuration ID 0 - TYPE: Dispenser",
                        "Activating configuration ID 0 - TYPE: Dispenser from ID 0 - TYPE: Dispenser"));
    const Words both = words("Activating configuration ID 7 - TYPE: Mixer",
                             "Activating configuration ID 7 - TYPE: Mixer from ID 3 - TYPE: Dispenser");
    const auto target = QVariant::fromValue(mixer7);
    const auto source = QVariant::fromValue(dispenser3);
    facts.requests = {
        Request({target, source, true})
            .typed<SetActiveMachineCmd>(mixer7, dispenser3, true)
            .value(arrayOf(idStruct(mixer7), idStruct(dispenser3), true))
            .written(R"([{"id": 7, "machine": 4}, {"id": 3, "machine": 1}, true])")
            .says(both),
        Request({target, source})
            .typed<SetActiveMachineCmd>(mixer7, dispenser3, false)
            .value(arrayOf(idStruct(mixer7), idStruct(dispenser3)))
            .parameters({target, source, false})
            .written(R"([{"id": 7, "machine": 4}, {"id": 3, "machine": 1}, false])")
            .says(both),
    };
    expectCommandContract(facts);
}

TEST(SetActiveMachineCmd, refusesWhatNamesNoMachine)
{
    constexpr char noFlag[] = "Set Active Machine command failed: expected Boolean type for third parameter";
    const Value target = idStruct(mixer7);
    const Value source = idStruct(dispenser3);
    auto values = badMachines;
    values.emplace_back("DE02679", Value(7));
    for (const auto &bad : values) {
        SCOPED_TRACE(dumped(bad.second));
        for (const Value &request : {arrayOf(bad.second, source), arrayOf(target, bad.second)})
            expectRefusal(bad.first, badMachine, ofMachine, [&] { SetActiveMachineCmd{request}; });
    }
    for (const Value &flag : {Value(1), Value("true"), Value(1.0), structOf({})})
        expectRefusal("DE02531", noFlag,
                      "SetActiveMachineCmd::SetActiveMachineCmd(const XmlRpc::XmlRpcValue&)",
                      [&] { SetActiveMachineCmd{arrayOf(target, source, flag)}; });

    constexpr char ofList[] = "SetActiveMachineCmd::SetActiveMachineCmd(QList<QVariant>)";
    const auto good = QVariant::fromValue(mixer7);
    for (const QVariant &other : {QVariant(), QVariant(7), QVariant("7"), QVariant(QVariantMap())}) {
        expectRefusal("DE02532",
                      "Set Active Machine command failed: expected Machine ID type for first parameter",
                      ofList, [&] {
                          SetActiveMachineCmd{List{other, other, other}};
                      });
        expectRefusal("DE02533",
                      "Set Active Machine command failed: expected Machine ID type for second parameter",
                      ofList, [&] {
                          SetActiveMachineCmd{List{good, other, other}};
                      });
        expectRefusal("DE02534", noFlag, ofList, [&] { SetActiveMachineCmd{List{good, good, other}}; });
    }
    const QVariantMap map = {{"id", 7}, {"machine", 4}};
    EXPECT_EQ(SetActiveMachineCmd(List{map, good}).machineID(), mixer7);
    expectRefusal("DE02680", badMachine, ofMachine, [&] {
        SetActiveMachineCmd{List{good, QVariantMap{{"id", 7}}}};
    });
}

TEST(SetActiveMachineCmd, saysNothingBehindTheBlankForATypeThatThereIsNot)
{
    const SetActiveMachineCmd command(MachineID(5, static_cast<Type>(3)), dispenser3, false);
    EXPECT_EQ(command.actionString(false).m_text, "Activating configuration ID 5 - TYPE: ");
}

// ---------------------------------------------------------------- all of them

TEST(MachineCommands, tellTheirArguments)
{
    EXPECT_EQ(argumentsOf("SET_ACTIVE_DISP"),
              (Lines{"disp_id (int)", "  XML-RPC, another type: DE00738", "  list, another type: DE00738",
                     "source_disp_id (int)", "  XML-RPC, another type: DE00752",
                     "  list, another type: DE00752", "flag (bool) = false: between client and driver",
                     "  XML-RPC, another type: DE01678", "  list, another type: DE01678"}));
    EXPECT_EQ(argumentsOf("CLONE_DISPENSER"),
              (Lines{R"(dispenser (struct): "disp_data" with "disp_id"; in a list the ID)",
                     "  XML-RPC, another type: DE01535", "  list, another type: DE01533",
                     "  XML-RPC, without disp_data: DE01536", "  XML-RPC, disp_data is no struct: DE01537",
                     "  XML-RPC, without a good disp_id: DE01538"}));
    EXPECT_EQ(argumentsOf("DELETE_DISPENSER"),
              (Lines{R"(dispensers (struct): "disp_id_list", an array of IDs; in a list that array itself)",
                     "  XML-RPC, another type: DE01529", "  list, another type: DE01527",
                     "  XML-RPC, disp_id_list is missing or no array: DE01529",
                     "  XML-RPC, an element of another type: DE01532",
                     "  list, an element of another type: DE01527"}));
}

TEST(MachineCommands, tellTheirAnswers)
{
    EXPECT_EQ(
        membersOf("CLONE_DISPENSER"),
        (Lines{"CloneDispenserAnswer", "disp_id (int): of the copy",
               "  XML-RPC, missing or another type: DE01481", "  list, missing or another type: DE01475",
               "  list, the list is empty: DE01476", "  XML-RPC, : DE01540", "  list, : DE01540"}));
}

TEST(MachineCommands, takeNothingThatWouldBeAnotherArgument)
{
    static_assert(!std::is_constructible_v<CloneDispenserCmd, bool>);
    static_assert(!std::is_constructible_v<CloneDispenserCmd, double>);
    static_assert(!std::is_constructible_v<CloneDispenserCmd, const char *>);
    static_assert(!std::is_constructible_v<CloneDispenserAnswer, bool>);
    static_assert(!std::is_constructible_v<CloneDispenserAnswer, double>);
    static_assert(!std::is_constructible_v<CloneDispenserAnswer, const char *>);
    static_assert(!std::is_constructible_v<CloneMachineCmd, int>);
    static_assert(!std::is_constructible_v<CloneMachineAnswer, int>);
    static_assert(!std::is_constructible_v<DeleteDispenserCmd, int>);
    static_assert(!std::is_constructible_v<DeleteMachineCmd, int>);
    static_assert(!std::is_constructible_v<SetActiveDispCmd, int>);
    static_assert(!std::is_constructible_v<SetActiveMachineCmd, int>);
}

} // namespace
