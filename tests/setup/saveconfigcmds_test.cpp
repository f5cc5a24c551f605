// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/saveconfigcmd.h"
#include "setup/savedispenserconfigcmd.h"
#include "setup/savemachineconfigcmd.h"

#include "base/commandcontract.h"
#include "base/outofmemory.h"
#include "setup/machines.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

namespace {

using namespace testing_base;
using namespace testing_setup;

constexpr char notAMachine[] = "machines[0] is neither a dispenser nor a mixer";

const std::vector<Value> noStructs = {Value(5), Value("config_data"), Value(true), arrayOf()};
const std::vector<Value> noFlags = {Value(1), Value("true"), Value(1.0), arrayOf(true), structOf({})};
const List noFlagVariants = {QVariant(), 1, "true", 1.0};

/** A request of one struct with one member. */
Value requestOf(const char *key, const Value &data)
{
    return arrayOf(structOf({{key, data}}));
}

/** A value that a command refuses, and with what. */
struct Refused
{
    const char *code;
    const char *text;
    std::vector<Value> values;
};

/** \a make makes the command of a request. */
void expectAllRefused(const std::vector<Refused> &rows, const char *function,
                      const std::function<void(const Value &)> &make)
{
    for (const Refused &row : rows) {
        for (const Value &value : row.values) {
            SCOPED_TRACE(dumped(value));
            expectRefusal(row.code, row.text, function, [&] { make(value); });
        }
    }
}

/** The same of several data that stand in the request as \a key. */
std::vector<Value> requestsOf(const char *key, const std::vector<Value> &data)
{
    std::vector<Value> requests;
    for (const Value &value : data)
        requests.push_back(requestOf(key, value));
    return requests;
}

/** Requests in which one member of the data is each of these values. */
std::vector<Value> requestsWith(const char *key, const Value &data, const char *member,
                                const std::vector<Value> &values)
{
    std::vector<Value> requests;
    for (const Value &value : values) {
        Value changed = data;
        changed[member] = value;
        requests.push_back(requestOf(key, changed));
    }
    return requests;
}

std::vector<Value> asRequests(const std::vector<Value> &arguments)
{
    std::vector<Value> requests;
    for (const Value &argument : arguments)
        requests.push_back(arrayOf(argument));
    return requests;
}

// ---------------------------------------------------------------- SAVE_CONFIG

namespace all {

constexpr char ofValue[] = "SaveConfigCmd::SaveConfigCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "SaveConfigCmd::SaveConfigCmd(QList<QVariant>)";
constexpr char notStruct[] = "SaveConfigCmd: invalid xml-rpc type (not struct)";
constexpr char notCreated[] = "SaveConfigCmd: Failed to create FW_Configuration object";
constexpr char ofConfiguration[] = "FW_Configuration::FW_Configuration(const XmlRpc::XmlRpcValue&)";

std::string dump(const std::string &configuration, const char *flag)
{
    return R"([{"config_data": {"configuration": )" + configuration + R"(, "update_board_config": )" + flag +
           "}}]";
}

Value data()
{
    return structOf({{"configuration", configurationStruct()}, {"update_board_config", true}});
}

CommandFacts facts()
{
    const QVariant variant = QVariant::fromValue(configuration());
    CommandFacts facts(formsOf<SaveConfigCmd>());
    facts.catalogue = {"SAVE_CONFIG", 49, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.words = {"Configuration write", "Updating dispenser configurations"};
    facts.getters = {getter(&SaveConfigCmd::configurationValue),
                     getter(&SaveConfigCmd::updateBoardConfigValue)};
    facts.defaults = Request()
                         .parameters({QVariant::fromValue(FW_Configuration()), false})
                         .written(dump(R"({"machines": []})", "false"));
    facts.requests = {
        Request({variant, true})
            .typed<SaveConfigCmd>(configuration(), true)
            .value(requestOf("config_data", data()))
            .written(dump(configurationDump(), "true")),
        Request({variant, false})
            .typed<SaveConfigCmd>(configuration(), false)
            .value(requestOf("config_data", structOf({{"configuration", configurationStruct()}})))
            .written(dump(configurationDump(), "false")),
    };
    facts.answers = confAnswers();
    return facts;
}

} // namespace all

TEST(SaveConfigCmd, keepsTheCommandContract)
{
    expectCommandContract(all::facts());
}

TEST(SaveConfigCmd, refusesAValue)
{
    const std::vector<Refused> rows = {
        {"DE00678", all::notStruct, asRequests(noStructs)},
        {"DE00679", all::notStruct, asRequests({structOf({}), structOf({{"disp_data", all::data()}})})},
        {"DE00679", all::notStruct, requestsOf("config_data", noStructs)},
        {"DE00370",
         all::notCreated,
         {requestOf("config_data", structOf({})),
          requestOf("config_data", structOf({{"machine_config", mixerStruct()}}))}},
        {"DE00577", all::notCreated, requestsWith("config_data", all::data(), "configuration", noStructs)},
        {"DE00574", "SaveConfigCmd failed: expected Bool type for update board parameter",
         requestsWith("config_data", all::data(), "update_board_config", noFlags)},
    };
    expectAllRefused(rows, all::ofValue, [](const Value &value) { SaveConfigCmd{value}; });
}

TEST(SaveConfigCmd, refusesAList)
{
    const QVariant variant = QVariant::fromValue(configuration());
    for (const QVariant &other : {QVariant(), QVariant(5), QVariant("machines"), QVariant(QVariantMap()),
                                  QVariant::fromValue(mixer())})
        expectRefusal("DE00680", all::notCreated, all::ofList, [&] { SaveConfigCmd{List{other, true}}; });
    constexpr char noFlag[] = "SaveConfigCmd: expected update board parameter";
    expectRefusal("DE00802", noFlag, all::ofList, [&] { SaveConfigCmd{List{variant}}; });
    for (const QVariant &other : noFlagVariants)
        expectRefusal("DE00802", noFlag, all::ofList, [&] { SaveConfigCmd{List{variant, other}}; });
}

TEST(SaveConfigCmd, passesOnWhatAConfigurationIsRefusedWith)
{
    const Value bad = structOf({{"machines", arrayOf(structOf({{"id", 7}}))}});
    const std::string text = std::string("FW_Configuration: ") + notAMachine;
    expectRefusal("DE03366", text.c_str(), all::ofConfiguration, [&] {
        SaveConfigCmd{requestOf("config_data", structOf({{"configuration", bad}}))};
    });
    expectRefusal("DE03366", text.c_str(), all::ofConfiguration, [&] {
        SaveConfigCmd{List{QVariantMap{{"machines", List{QVariantMap{{"id", 7}}}}}, true}};
    });
}

TEST(SaveConfigCmd, takesTheMapOfAConfigurationInAList)
{
    const QVariantMap map = QVariant::fromValue(configuration()).toMap();
    EXPECT_EQ(dumped(SaveConfigCmd(List{map, true}).xmlrpc_parameters()),
              all::dump(configurationDump(), "true"));
}

TEST(SaveConfigCmd, makesNoCopyOfAMachine)
{
    {
        FW_Configuration counted;
        counted.setMachine(std::make_unique<CountedMachine>());
        const SaveConfigCmd command(counted, true);
        const SaveConfigCmd copy(command);
        EXPECT_EQ(copy.parameters().size(), 2);
        EXPECT_EQ(SaveConfigCmd(command.parameters()).configurationValue(), command.configurationValue());
        EXPECT_EQ(CountedMachine::alive, 1);
    }
    EXPECT_EQ(CountedMachine::alive, 0);
}

// ---------------------------------------------------------------- SAVE_DISP_CONFIG

namespace disp {

constexpr char ofValue[] = "SaveDispenserConfigCmd::SaveDispenserConfigCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "SaveDispenserConfigCmd::SaveDispenserConfigCmd(QList<QVariant>)";
constexpr char notStruct[] = "SaveDispenserConfigCmd: invalid xml-rpc type (not struct)";
constexpr char notCreated[] = "SaveDispenserConfigCmd: Failed to create FW_Dispenser object";
constexpr char noFactory[] =
    "SaveDispenserConfigCmd failed: expected Bool type for factory configuration parameter";

std::string dump(const std::string &dispenser, const char *updateBoard, const char *factory)
{
    return R"([{"disp_data": {"dispenser_config": )" + dispenser + R"(, "factory_config": )" + factory +
           R"(, "update_board_config": )" + updateBoard + "}}]";
}

Value data()
{
    return structOf(
        {{"dispenser_config", dispenserStruct()}, {"update_board_config", true}, {"factory_config", false}});
}

CommandFacts facts()
{
    const QVariant variant = QVariant::fromValue(dispenser());
    CommandFacts facts(formsOf<SaveDispenserConfigCmd>());
    facts.catalogue = {"SAVE_DISP_CONFIG", 58, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.words = {"Configuration write", "Updating dispenser configuration"};
    facts.getters = {getter(&SaveDispenserConfigCmd::dispenserValue),
                     getter(&SaveDispenserConfigCmd::updateBoardConfigValue),
                     getter(&SaveDispenserConfigCmd::factoryConfigValue)};
    facts.defaults = Request()
                         .parameters({QVariant::fromValue(FW_Dispenser()), false, false})
                         .written(dump(dumped(FW_Dispenser().toXmlRpcValue()), "false", "false"));
    facts.requests = {
        Request({variant, true, false})
            .typed<SaveDispenserConfigCmd>(dispenser(), true, false)
            .value(requestOf("disp_data", data()))
            .written(dump(dispenserDump(), "true", "false")),
        Request({variant, false, true})
            .typed<SaveDispenserConfigCmd>(dispenser(), false, true)
            .value(requestOf("disp_data",
                             structOf({{"dispenser_config", dispenserStruct()}, {"factory_config", true}})))
            .written(dump(dispenserDump(), "false", "true")),
        Request({variant, false})
            .value(requestOf("disp_data", structOf({{"dispenser_config", dispenserStruct()}})))
            .parameters({variant, false, false})
            .written(dump(dispenserDump(), "false", "false")),
    };
    facts.answers = confAnswers();
    return facts;
}

} // namespace disp

TEST(SaveDispenserConfigCmd, keepsTheCommandContract)
{
    expectCommandContract(disp::facts());
}

TEST(SaveDispenserConfigCmd, refusesAValue)
{
    const std::vector<Refused> rows = {
        {"DE01521", disp::notStruct, asRequests(noStructs)},
        {"DE01522", disp::notStruct, asRequests({structOf({}), structOf({{"config_data", disp::data()}})})},
        {"DE01523", disp::notStruct, requestsOf("disp_data", noStructs)},
        {"DE01524",
         disp::notCreated,
         {requestOf("disp_data", structOf({})),
          requestOf("disp_data", structOf({{"machine_config", dispenserStruct()}}))}},
        {"DE01525", disp::notCreated, requestsWith("disp_data", disp::data(), "dispenser_config", noStructs)},
        {"DE01526", "SaveDispenserConfigCmd failed: expected Bool type for update board parameter",
         requestsWith("disp_data", disp::data(), "update_board_config", noFlags)},
        {"DE03360", disp::noFactory, requestsWith("disp_data", disp::data(), "factory_config", noFlags)},
    };
    expectAllRefused(rows, disp::ofValue, [](const Value &value) { SaveDispenserConfigCmd{value}; });
}

TEST(SaveDispenserConfigCmd, refusesAList)
{
    const QVariant variant = QVariant::fromValue(dispenser());
    for (const QVariant &other :
         {QVariant(), QVariant(5), QVariant("type"), QVariant(QVariantMap()), QVariant::fromValue(mixer())})
        expectRefusal("DE01518", disp::notCreated, disp::ofList, [&] {
            SaveDispenserConfigCmd{List{other, true}};
        });
    constexpr char noFlag[] = "SaveDispenserConfigCmd: expected update board parameter";
    expectRefusal("DE01519", noFlag, disp::ofList, [&] { SaveDispenserConfigCmd{List{variant}}; });
    for (const QVariant &other : noFlagVariants) {
        expectRefusal("DE01519", noFlag, disp::ofList, [&] {
            SaveDispenserConfigCmd{List{variant, other, true}};
        });
        expectRefusal("DE03360", disp::noFactory, disp::ofList, [&] {
            SaveDispenserConfigCmd{List{variant, true, other}};
        });
    }
}

TEST(SaveDispenserConfigCmd, passesOnWhatADispenserIsRefusedWith)
{
    constexpr char text[] = "Machine data: heads must be an integer from 1 to 2";
    constexpr char function[] = "FW_Dispenser::FW_Dispenser(const XmlRpc::XmlRpcValue&)";
    const Value bad = structOf({{"type", "dispenser"}, {"heads", 3}});
    expectRefusal("DE03350", text, function, [&] {
        SaveDispenserConfigCmd{requestOf("disp_data", structOf({{"dispenser_config", bad}}))};
    });
    expectRefusal("DE03350", text, function, [] {
        SaveDispenserConfigCmd{List{QVariantMap{{"type", "dispenser"}, {"heads", 3}}, true}};
    });
}

// ---------------------------------------------------------------- SAVE_MACHINE_CONFIG

namespace machine {

constexpr char ofValue[] = "SaveMachineConfigCmd::SaveMachineConfigCmd(const XmlRpc::XmlRpcValue&)";
constexpr char notStruct[] = "SaveMachineConfigCmd: invalid xml-rpc type (not struct)";
constexpr char notCreated[] = "SaveMachineConfigCmd: Failed to create machine object";

std::string dump(const std::string &machine, const char *updateBoard, const char *factory)
{
    const std::string member = machine.empty() ? "" : R"(, "machine_config": )" + machine;
    return R"([{"config_data": {"factory_config": )" + std::string(factory) + member +
           R"(, "update_board_config": )" + updateBoard + "}}]";
}

Value data()
{
    return structOf(
        {{"machine_config", mixerStruct()}, {"update_board_config", false}, {"factory_config", true}});
}

CommandFacts facts()
{
    static const FW_Dispenser aDispenser = dispenser();
    static const FW_Mixer aMixer = mixer();
    const QVariant ofDispenser = QVariant::fromValue(aDispenser);
    const QVariant ofMixer = QVariant::fromValue(aMixer);
    CommandFacts facts(formsOf<SaveMachineConfigCmd>());
    facts.catalogue = {"SAVE_MACHINE_CONFIG", 139, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.comesBackFromList = false; // which is not read
    facts.words = {"Configuration write", "Updating machine configuration"};
    facts.getters = {getter(&SaveMachineConfigCmd::updateBoardConfig),
                     getter(&SaveMachineConfigCmd::factoryConfig)};
    facts.defaults = Request()
                         .parameters({QVariant(), false, false})
                         .holds({false, false})
                         .written(dump("", "false", "false"));
    facts.requests = {
        Request({ofDispenser, true, false})
            .typed<SaveMachineConfigCmd>(&aDispenser, true, false)
            .value(requestOf("config_data", structOf({{"machine_config", dispenserStruct()},
                                                      {"update_board_config", true}})))
            .onlyFromValue()
            .holds({true, false})
            .written(dump(dispenserDump(), "true", "false")),
        Request({ofMixer, false, true})
            .typed<SaveMachineConfigCmd>(&aMixer, false, true)
            .value(requestOf("config_data", data()))
            .onlyFromValue()
            .holds({false, true})
            .written(dump(mixerDump, "false", "true")),
        Request({ofMixer, false, false})
            .value(requestOf("config_data", structOf({{"machine_config", mixerStruct()}})))
            .onlyFromValue()
            .holds({false, false})
            .written(dump(mixerDump, "false", "false")),
        Request({QVariant(), true, true})
            .typed<SaveMachineConfigCmd>(static_cast<const FW_Machine *>(nullptr), true, true)
            .onlyTyped()
            .notReadBack()
            .holds({true, true})
            .written(dump("", "true", "true")),
        Request({ofMixer, true, true})
            .onlyFromList()
            .notReadBack()
            .holds({false, false})
            .written(dump("", "false", "false")),
    };
    facts.answers = confAnswers();
    return facts;
}

} // namespace machine

TEST(SaveMachineConfigCmd, keepsTheCommandContract)
{
    expectCommandContract(machine::facts());
}

TEST(SaveMachineConfigCmd, refusesAValue)
{
    const Value unknownModel = structOf({{"type", "mixer"}, {"machine_model", -1}});
    const Value nameless = structOf({{"id", 7}, {"description", "back room"}});
    std::vector<Value> others = noStructs;
    others.push_back(structOf({}));
    others.push_back(unknownModel);
    others.push_back(nameless);
    others.push_back(structOf({{"type", "scale"}}));
    const std::vector<Refused> rows = {
        {"DE02701", machine::notStruct, asRequests(noStructs)},
        {"DE02702", machine::notStruct,
         asRequests({structOf({}), structOf({{"disp_data", machine::data()}})})},
        {"DE02703", machine::notStruct, requestsOf("config_data", noStructs)},
        {"DE02706",
         machine::notCreated,
         {requestOf("config_data", structOf({})),
          requestOf("config_data", structOf({{"configuration", configurationStruct()}}))}},
        {"DE02704", machine::notCreated,
         requestsWith("config_data", machine::data(), "machine_config", others)},
        {"DE02707", "SaveMachineConfigCmd failed: expected Bool type for update board parameter",
         requestsWith("config_data", machine::data(), "update_board_config", noFlags)},
        {"DE03361", "SaveMachineConfigCmd failed: expected Bool type for factory configuration parameter",
         requestsWith("config_data", machine::data(), "factory_config", noFlags)},
    };
    expectAllRefused(rows, machine::ofValue, [](const Value &value) { SaveMachineConfigCmd{value}; });
}

TEST(SaveMachineConfigCmd, cannotReadWhatItWritesWithoutAMachine)
{
    const SaveMachineConfigCmd command(nullptr, true, false);
    EXPECT_EQ(command.machineConfig(), nullptr);
    expectRefusal("DE02706", machine::notCreated, machine::ofValue,
                  [&] { SaveMachineConfigCmd{command.xmlrpc_parameters()}; });
}

TEST(SaveMachineConfigCmd, passesOnWhatAMachineIsRefusedWith)
{
    const Value bad = structOf({{"type", "dispenser"}, {"heads", 3}});
    expectRefusal("DE03350", "Machine data: heads must be an integer from 1 to 2",
                  "FW_Dispenser::FW_Dispenser(const XmlRpc::XmlRpcValue&)", [&] {
                      SaveMachineConfigCmd{requestOf("config_data", structOf({{"machine_config", bad}}))};
                  });
}

TEST(SaveMachineConfigCmd, buildsTheMachineOfItsKind)
{
    const auto made = [](const Value &value) {
        return SaveMachineConfigCmd(requestOf("config_data", structOf({{"machine_config", value}})));
    };
    EXPECT_TRUE(made(dispenserStruct()).machineConfig()->equalTo(dispenser()));
    EXPECT_TRUE(made(mixerStruct()).machineConfig()->equalTo(mixer()));
    EXPECT_EQ(made(mixerStruct()).machine(), nullptr) << "the machine is what it is about, not where it goes";
}

TEST(SaveMachineConfigCmd, ownsACloneOfTheMachine)
{
    {
        CountedMachine original;
        SaveMachineConfigCmd command(&original, true, true);
        EXPECT_EQ(CountedMachine::alive, 2);
        EXPECT_NE(command.machineConfig(), &original);
        {
            const SaveMachineConfigCmd copy(command);
            const std::unique_ptr<ConfProtoCommand> clone(command.clone());
            EXPECT_NE(copy.machineConfig(), command.machineConfig());
            EXPECT_EQ(CountedMachine::alive, 4);
        }
        command.setDefaults();
        EXPECT_EQ(CountedMachine::alive, 1);
        EXPECT_EQ(command.machineConfig(), nullptr);
        EXPECT_FALSE(command.updateBoardConfig());
        EXPECT_FALSE(command.factoryConfig());
    }
    EXPECT_EQ(CountedMachine::alive, 0);
}

// ---------------------------------------------------------------- all three

TEST(SaveConfigCommands, tellAShortageOfMemory)
{
    const Value configurations = requestOf("config_data", all::data());
    const Value machines = requestOf("config_data", machine::data());
    expectRefusal("DE00577", all::notCreated, all::ofValue,
                  [&] { outOfMemoryOnce([&] { SaveConfigCmd{configurations}; }); });
    expectRefusal("DE02705", machine::notCreated, machine::ofValue,
                  [&] { outOfMemoryOnce([&] { SaveMachineConfigCmd{machines}; }); });
}

TEST(SaveConfigCommands, takeNoNumberAlone)
{
    static_assert(!std::is_constructible_v<SaveConfigCmd, int>);
    static_assert(!std::is_constructible_v<SaveDispenserConfigCmd, int>);
    static_assert(!std::is_constructible_v<SaveMachineConfigCmd, int>);
}

TEST(SaveConfigCommands, nameTheirMembers)
{
    EXPECT_STREQ(SaveConfigCmd::configData_TAG, "config_data");
    EXPECT_STREQ(SaveMachineConfigCmd::configData_TAG, "config_data");
    EXPECT_STREQ(SaveDispenserConfigCmd::dispData_TAG, "disp_data");
}

} // namespace
