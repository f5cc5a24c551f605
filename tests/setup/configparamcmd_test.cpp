// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/configparamcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "setup/configparamanswer.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr auto ultrasound = ConfigParamCmd::UltrasoundCleaning;
constexpr auto readType = ConfigParamCmd::Read;
constexpr auto writeType = ConfigParamCmd::Write;

constexpr char bad[] = "Configuration param command: error in value decoding";
constexpr char ofParamsValue[] = "ConfigParams::ConfigParams(const XmlRpc::XmlRpcValue&)";
constexpr char ofParamsList[] = "ConfigParams::ConfigParams(QList<QVariant>)";
constexpr char dump[] =
    R"({"config_params": {"emptying_time": 6.50000, "filling_time": 9.00000, "ultrasound_duration": 41}})";

const QVariantMap params = {{"ultrasound_duration", 41}, {"emptying_time", 6.5}, {"filling_time", 9.0}};

Value paramsStruct()
{
    return structOf(
        {{"config_params",
          structOf({{"ultrasound_duration", 41}, {"emptying_time", 6.5}, {"filling_time", 9.0}})}});
}

/** What is no struct of parameters. */
std::vector<Value> otherStructs()
{
    return {Value(7),
            Value("config_params"),
            arrayOf(paramsStruct()),
            structOf({}),
            structOf({{"params", structOf({})}}),
            structOf({{"config_params", 7}}),
            structOf({{"config_params", arrayOf()}})};
}

/** What is no map of parameters. */
List otherMaps()
{
    return {QVariant(), 7, "config_params", List{params}, QStringList{"config_params"}};
}

FW_Dispenser cleaningDispenser()
{
    FW_UltrasoundCleaning cleaning;
    cleaning.setUltrasoundDuration(20);
    cleaning.setEmptyingTime(3.5);
    cleaning.setFillingTime(4.5);
    FW_Dispenser dispenser;
    dispenser.setDevice(cleaning);
    return dispenser;
}

const FW_UltrasoundCleaning &cleaningOf(const FW_Dispenser &dispenser)
{
    return dynamic_cast<const FW_UltrasoundCleaning &>(*dispenser.getDevice(16));
}

// ---------------------------------------------------------------- parameters and answer

TEST(ConfigParams, holdParametersByTheirNames)
{
    EXPECT_STREQ(ConfigParams::configParams_TAG, "config_params");
    EXPECT_EQ(ConfigParams().configParams(), QVariantMap());
    const ConfigParams held(params);
    EXPECT_EQ(held.configParams(), params);
    bool ok = false;
    EXPECT_EQ(dumped(held.xmlrpcvalue(&ok)), dump);
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(ConfigParams().xmlrpcvalue(nullptr)), R"({"config_params": {}})");
    EXPECT_EQ(ConfigParams(paramsStruct()), held);
    EXPECT_EQ(ConfigParams(List{params, "more"}), held);
    EXPECT_EQ(ConfigParams(List{QVariantHash{{"a", true}}}), ConfigParams(QVariantMap{{"a", true}}));
    EXPECT_TRUE(ConfigParams() != held);
    static_assert(!std::is_constructible_v<ConfigParams, int>);
    static_assert(!std::is_constructible_v<ConfigParams, const char *>);
}

TEST(ConfigParams, areRefusedWithoutParameters)
{
    for (const Value &other : otherStructs()) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE02815", bad, ofParamsValue, [&] { ConfigParams{other}; });
        expectRefusal("DE02815", bad, ofParamsValue, [&] { ConfigParamAnswer{other}; });
    }
    expectRefusal("DE02815", bad, ofParamsValue, [] { ConfigParams{Value()}; });
    expectRefusal("DE02815", bad, ofParamsList, [] { ConfigParams{List()}; });
    for (const QVariant &other : otherMaps()) {
        SCOPED_TRACE(shown({other}));
        List list = {other};
        expectRefusal("DE02815", bad, ofParamsList, [&] { ConfigParams{list}; });
        expectRefusal("DE02815", bad, ofParamsList, [&] { ConfigParamAnswer{list}; });
    }
}

TEST(ConfigParamAnswer, tellsTheParameters)
{
    EXPECT_EQ(ConfigParamAnswer().protoType(), 2);
    EXPECT_EQ(dumped(ConfigParamAnswer().toXmlRpcValue()), R"({"config_params": {}})");
    const ConfigParamAnswer answer(params);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dump);
    EXPECT_EQ(ConfigParamAnswer(paramsStruct()), answer);
    List list = {params};
    EXPECT_EQ(ConfigParamAnswer(list), answer);
    EXPECT_EQ(answer.configParams(), params);
    static_assert(!std::is_constructible_v<ConfigParamAnswer, int>);
}

TEST(ConfigParamAnswer, clonesAndCompares)
{
    const ConfigParamAnswer answer(params);
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), "ConfigParamAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const ConfigParamAnswer other(QVariantMap{{"ultrasound_duration", 42}});
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_TRUE(answer != other);
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

// ---------------------------------------------------------------- the command

AnswerFacts answers()
{
    constexpr char notMade[] = "Failed to create answer";
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue("ConfigParamAnswer", paramsStruct(), dump)
                        .failsWith("DE02813", notMade)
                        .refuses(Value(0), "DE02815", bad, ofParamsValue);
    answers.list = AnswerOfList("ConfigParamAnswer", {params}, dump)
                       .failsWith("DE02821", notMade)
                       .refuses({}, "DE02815", bad, ofParamsList);
    answers.envelope = {"DE02822", notMade};
    return answers;
}

TEST(ConfigParamCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<ConfigParamCmd>());
    facts.catalogue = {"CONFIG_PARAM", 154, "", 2};
    facts.protoType = 2;
    facts.valueFunction = "ConfigParamCmd::ConfigParamCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ConfigParamCmd::ConfigParamCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE02816", "DE02818", bad}).takes({0, 1, 7, -1}),
        required(Integer, {"DE02817", "DE02819", bad}).takes({0, 1, 7, -1}),
        optional().refuses({}, {}, {"DE02815", "DE02815", bad})}; // see refusesWhatHasNoParameters
    facts.getters = {getter(&ConfigParamCmd::configParam), getter(&ConfigParamCmd::configCmdType),
                     getter(&ConfigParamCmd::configParams)};
    facts.defaults = Request().parameters({0, 0, QVariantMap()}).written(R"([0, 0, {"config_params": {}}])");
    const Request writes = Request({0, 1, params})
                               .value(arrayOf(0, 1, paramsStruct()))
                               .typed<ConfigParamCmd>(ultrasound, writeType, params)
                               .written(std::string("[0, 1, ") + dump + "]");
    facts.requests = {
        writes,
        writes.alsoFromList(
            {0, 1, QVariantHash{{"ultrasound_duration", 41}, {"emptying_time", 6.5}, {"filling_time", 9.0}}}),
        Request({0, 0})
            .typed<ConfigParamCmd>(ultrasound, readType)
            .parameters({0, 0, QVariantMap()})
            .written(R"([0, 0, {"config_params": {}}])"),
        Request({3, 1, QVariantMap{{"words", "left"}}})
            .value(arrayOf(3, 1, structOf({{"config_params", structOf({{"words", "left"}})}})))
            .written(R"([3, 1, {"config_params": {"words": "left"}}])"),
    };
    facts.answers = answers();
    expectCommandContract(facts);
    static_assert(!std::is_constructible_v<ConfigParamCmd, int>);
    static_assert(!std::is_constructible_v<ConfigParamCmd, const char *>);
}

TEST(ConfigParamCmd, comparesAllItsArguments)
{
    const ConfigParamCmd command(List{0, 1, params});
    EXPECT_TRUE(command == ConfigParamCmd(ultrasound, writeType, params));
    EXPECT_FALSE(command != ConfigParamCmd(ultrasound, writeType, params));
    for (const List &other : {List{3, 1, params}, List{0, 0, params}, List{0, 1}}) {
        SCOPED_TRACE(shown(other));
        EXPECT_TRUE(command != ConfigParamCmd(other));
        EXPECT_FALSE(command == ConfigParamCmd(other));
    }
}

TEST(ConfigParamCmd, refusesWhatHasNoParameters)
{
    for (const Value &other : otherStructs()) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE02815", bad, ofParamsValue, [&] { ConfigParamCmd{arrayOf(0, 1, other)}; });
    }
    for (const QVariant &other : otherMaps()) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE02815", bad, ofParamsList, [&] { ConfigParamCmd{List{0, 1, other}}; });
    }
}

TEST(ConfigParamCmd, tellsItsArgumentsAndItsAnswer)
{
    EXPECT_EQ(argumentsOf("CONFIG_PARAM"),
              (Lines{"config_param (int): 0 the ultrasound cleaning", "  XML-RPC, another type: DE02816",
                     "  list, another type: DE02818", "cmd_type (int): 0 read, 1 write",
                     "  XML-RPC, another type: DE02817", "  list, another type: DE02819",
                     "params (struct) = {\"config_params\": {}}: a struct with the member \"config_params\": "
                     "ultrasound_duration (int), "
                     "emptying_time and filling_time, in seconds (in a list these three themselves)",
                     "  XML-RPC, config_params is missing or of another type: DE02815",
                     "  list, config_params is missing or of another type: DE02815"}));
    EXPECT_EQ(
        membersOf("CONFIG_PARAM"),
        (Lines{"ConfigParamAnswer", "config_params (struct): the parameters by their names",
               "  XML-RPC, missing or another type: DE02815", "  list, missing or another type: DE02815",
               "  XML-RPC, : DE02813", "  list, : DE02821", "  envelope, : DE02822"}));
}

// ---------------------------------------------------------------- the machine

TEST(ConfigParamCmd, givesTheMachineItsParameters)
{
    FW_Dispenser dispenser = cleaningDispenser();
    const FW_Dispenser before = dispenser;
    EXPECT_TRUE(ConfigParamCmd(ultrasound, writeType, params).updateMachine(&dispenser));
    EXPECT_EQ(cleaningOf(dispenser).ultrasoundDuration(), 41);
    EXPECT_EQ(cleaningOf(dispenser).emptyingTime(), 6.5);
    EXPECT_EQ(cleaningOf(dispenser).fillingTime(), 9.0);
    EXPECT_EQ(cleaningOf(before).ultrasoundDuration(), 20) << "a copy of the machine was changed, too";
}

TEST(ConfigParamCmd, givesTheMachineOnlyWhatItTells)
{
    const struct
    {
        QVariantMap params;
        QVariantMap left; ///< in the machine
    } rows[] = {
        {{{"ultrasound_duration", 41}},
         {{"ultrasound_duration", 41}, {"emptying_time", 3.5}, {"filling_time", 4.5}}},
        {{{"emptying_time", 6.5}},
         {{"ultrasound_duration", 20}, {"emptying_time", 6.5}, {"filling_time", 4.5}}},
        {{{"filling_time", 9}}, {{"ultrasound_duration", 20}, {"emptying_time", 3.5}, {"filling_time", 9.0}}},
        // another type is passed over
        {{{"ultrasound_duration", "41"}, {"emptying_time", true}, {"filling_time", 9.5}},
         {{"ultrasound_duration", 20}, {"emptying_time", 3.5}, {"filling_time", 9.5}}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(shown({row.params}));
        FW_Dispenser dispenser = cleaningDispenser();
        EXPECT_TRUE(ConfigParamCmd(ultrasound, writeType, row.params).updateMachine(&dispenser));
        EXPECT_EQ(ConfigParamCmd::buildAnswerParams(&dispenser), row.left);
    }
}

TEST(ConfigParamCmd, changesNoMachineOtherwise)
{
    FW_Dispenser dispenser = cleaningDispenser();
    const QVariantMap before = {{"ultrasound_duration", 20}, {"emptying_time", 3.5}, {"filling_time", 4.5}};
    EXPECT_FALSE(ConfigParamCmd(ultrasound, readType, params).updateMachine(&dispenser));
    EXPECT_FALSE(ConfigParamCmd(ultrasound, writeType).updateMachine(&dispenser));
    EXPECT_FALSE(ConfigParamCmd(ultrasound, writeType, {{"ultrasound_pause", 5}}).updateMachine(&dispenser));
    EXPECT_FALSE(ConfigParamCmd(ultrasound, writeType, {{"filling_time", "9"}}).updateMachine(&dispenser));
    EXPECT_EQ(ConfigParamCmd::buildAnswerParams(&dispenser), before);

    const ConfigParamCmd command(ultrasound, writeType, params);
    FW_Dispenser without;
    FW_Mixer mixer;
    for (FW_Machine *machine : {static_cast<FW_Machine *>(nullptr), static_cast<FW_Machine *>(&without),
                                static_cast<FW_Machine *>(&mixer)}) {
        EXPECT_FALSE(command.updateMachine(machine));
        EXPECT_EQ(ConfigParamCmd::buildAnswerParams(machine), QVariantMap());
    }
    EXPECT_FALSE(without.hasDevice(16));
}

TEST(ConfigParamCmd, tellsTheMachinesParameters)
{
    const FW_Dispenser dispenser = cleaningDispenser();
    EXPECT_EQ(
        dumped(ConfigParamAnswer(ConfigParamCmd::buildAnswerParams(&dispenser)).toXmlRpcValue()),
        R"({"config_params": {"emptying_time": 3.50000, "filling_time": 4.50000, "ultrasound_duration": 20}})");
}

} // namespace
