// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getconfigcmd.h"

#include "base/commandcontract.h"
#include "setup/getconfiganswer.h"
#include "setup/machines.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;
using namespace testing_setup;

constexpr char ofValue[] = "GetConfigCmd::GetConfigCmd(const XmlRpc::XmlRpcValue&)";
constexpr char answerOfValue[] = "GetConfigAnswer::GetConfigAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char answerOfList[] = "GetConfigAnswer::GetConfigAnswer(QList<QVariant>&)";
constexpr char notMade[] = "Failed to create GetConfigAnswer";
constexpr char noConfiguration[] = "GetConfigAnswer: expected configuration value";
constexpr char emptyList[] = "GetConfigAnswer decoding failed: invalid QVariant value";

Value answerStruct()
{
    return structOf({{"configuration", configurationStruct()}});
}

std::string answerDump()
{
    return R"({"configuration": )" + configurationDump() + "}";
}

GetConfigAnswer answerOfOne(const QVariant &variant)
{
    List list = {variant};
    return GetConfigAnswer(list);
}

AnswerFacts answers()
{
    AnswerFacts answers = confAnswers();
    answers.value = AnswerOfValue("GetConfigAnswer", answerStruct(), answerDump())
                        .failsWith("DE00932", notMade)
                        .refuses(Value(0), "DE03363", noConfiguration, answerOfValue)
                        .refuses(structOf({}), "DE03363", noConfiguration, answerOfValue);
    answers.list = AnswerOfList("GetConfigAnswer", {QVariant::fromValue(configuration())}, answerDump())
                       .failsWith("DE00932", notMade)
                       .refuses({}, "DE00368", emptyList, answerOfList);
    answers.envelope = {"DE00932", notMade};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<GetConfigCmd>());
    facts.catalogue = {"GET_CONFIG", 50, "", 0};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.words = {"Configuration read", "Retrieving configuration"};
    facts.getters = {getter(&GetConfigCmd::configurationType)};
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {
        Request({1}).typed<GetConfigCmd>(1).written("[1]"),
        Request({0}).typed<GetConfigCmd>(0).written("[0]"),
        Request({0}).typed<GetConfigCmd>(2).onlyTyped().written("[0]"),
        Request({0}).typed<GetConfigCmd>(-1).onlyTyped().written("[0]"),
        Request().onlyFromValue().parameters({0}).written("[0]"),
        // a list is kept as it comes
        Request().onlyFromList().holds({-1}).written("[0]").notReadBack(),
        Request({7, 1}).onlyFromList().holds({7}).written("[7]").notReadBack(),
        Request({"1"}).onlyFromList().holds({-1}).written("[-1]").notReadBack(),
        Request({true}).onlyFromList().holds({-1}).written("[-1]").notReadBack(),
    };
    facts.answers = answers();
    return facts;
}

TEST(GetConfigCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetConfigCmd, refusesAValueOfAnotherTypeOrNumber)
{
    for (const Value &value : {Value("1"), Value(true), Value(1.0), arrayOf(1), structOf({})})
        expectRefusal("DE00930", "Get config command: expected Int type for first parameter", ofValue,
                      [&] { GetConfigCmd{arrayOf(value)}; });
    for (int type : {-1, 2, 2147483647})
        expectRefusal("DE00929", "Get config command: invalid parameter", ofValue,
                      [&] { GetConfigCmd{arrayOf(type)}; });
}

TEST(GetConfigCmd, ignoresATypeThatThereIsNot)
{
    EXPECT_EQ(GetConfigCmd::defaultConfigurationType(), 0);
    for (int type : {0, 1})
        EXPECT_TRUE(GetConfigCmd::isAValidConfigurationType(type)) << type;
    for (int type : {-1, 2, 256})
        EXPECT_FALSE(GetConfigCmd::isAValidConfigurationType(type)) << type;

    GetConfigCmd command(List{0, "more"});
    EXPECT_FALSE(command.setConfigurationType(2));
    EXPECT_EQ(command.parameters(), (List{0, "more"}));
    EXPECT_TRUE(command.setConfigurationType(1));
    EXPECT_EQ(command.parameters(), List{1});
    EXPECT_EQ(command.configurationType(), 1);
}

TEST(GetConfigCmd, takesNothingThatWouldReadAsAType)
{
    static_assert(!std::is_constructible_v<GetConfigCmd, bool>);
    static_assert(!std::is_constructible_v<GetConfigCmd, double>);
    static_assert(!std::is_constructible_v<GetConfigCmd, const char *>);
    static_assert(!std::is_convertible_v<int, GetConfigCmd>);
}

// ---------------------------------------------------------------- the answer

TEST(GetConfigAnswer, holdsAConfiguration)
{
    EXPECT_STREQ(GetConfigAnswer::configuration_TAG, "configuration");
    EXPECT_EQ(GetConfigAnswer().configuration(), FW_Configuration());
    EXPECT_EQ(GetConfigAnswer().protoType(), 2);
    EXPECT_EQ(dumped(GetConfigAnswer().toXmlRpcValue()), R"({"configuration": {"machines": []}})");
    const GetConfigAnswer answer(configuration());
    EXPECT_EQ(answer.configuration(), configuration());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), answerDump());
    EXPECT_EQ(GetConfigAnswer(answer.toXmlRpcValue()), answer);
    EXPECT_EQ(GetConfigAnswer(answerStruct()), answer);
    EXPECT_EQ(GetConfigAnswer(answerStruct()).protoType(), 2);
}

TEST(GetConfigAnswer, isEmptyOfAListWithoutAConfiguration)
{
    const QVariantMap map = {
        {"machines",
         List{QVariantMap{
             {"type", "mixer"}, {"id", 7}, {"machine_model", 100}, {"description", "back room"}}}},
        {"active_mixer", 7}};
    EXPECT_EQ(answerOfOne(QVariant::fromValue(configuration())).configuration(), configuration());
    EXPECT_EQ(answerOfOne(map).configuration(), configuration());
    for (const QVariant &variant :
         {QVariant(), QVariant(5), QVariant("machines"), QVariant(QVariantMap{{"active_mixer", 7}})})
        EXPECT_EQ(answerOfOne(variant), GetConfigAnswer()) << variant.typeName();
}

TEST(GetConfigAnswer, passesOnWhatAConfigurationIsRefusedWith)
{
    constexpr char noMachines[] = "FW_Configuration: expected machines value";
    constexpr char function[] = "FW_Configuration::FW_Configuration(const XmlRpc::XmlRpcValue&)";
    for (const Value &value : {Value(5), Value("machines"), arrayOf(), structOf({{"active_mixer", 7}})})
        expectRefusal("DE03365", noMachines, function, [&] {
            GetConfigAnswer{structOf({{"configuration", value}})};
        });
    expectRefusal("DE03365", noMachines, function, [] { answerOfOne(QVariantMap{{"machines", 5}}); });
}

TEST(GetConfigAnswer, clonesAndCompares)
{
    const GetConfigAnswer answer(configuration());
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetConfigAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    FW_Configuration withoutActive;
    withoutActive.setMachine(std::make_unique<FW_Mixer>(mixer()));
    const GetConfigAnswer other(withoutActive);
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
