// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcontract.h"
#include "base/confprotocommand.h"
#include "base/factlines.h"
#include "scale/getscaleconfiganswer.h"
#include "scale/setscaleconfigcmd.h"

#include <QuvFramework/fw_scale.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr char noScale[] = "ScaleConfigBase decoding failed: expected scale value";
constexpr char noVariant[] = "ScaleConfigBase decoding failed: invalid QVariant value";
constexpr char ofValue[] = "ScaleConfigBase::ScaleConfigBase(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ScaleConfigBase::ScaleConfigBase(QList<QVariant>)";

constexpr char without[] = R"([{"scale": 0}])";
constexpr char with[] =
    R"([{"scale": {"max_weight": 6.20000, "precision": 3, "scale_model": "Libra 6", "scale_port": )"
    R"({"conn_address": "", "conn_name": "/dev/ttyS1", "conn_type": 0}, "scale_unit": 1}}])";

FW_Scale scale()
{
    return {"Libra 6", FW_SerialPort(QStringLiteral("/dev/ttyS1")), ScaleUtils::Kilogram, 6.2, 3};
}

Value scaleStruct()
{
    return structOf(
        {{"scale_model", "Libra 6"},
         {"scale_port", structOf({{"conn_type", 0}, {"conn_name", "/dev/ttyS1"}, {"conn_address", ""}})},
         {"scale_unit", 1},
         {"max_weight", 6.2},
         {"precision", 3}});
}

QVariantMap scaleMap()
{
    return {{"scale_model", "Libra 6"},
            {"scale_port", QVariantMap{{"conn_type", 0}, {"conn_name", "/dev/ttyS1"}, {"conn_address", ""}}},
            {"scale_unit", 1},
            {"max_weight", 6.2},
            {"precision", 3}};
}

Value request(const Value &scale)
{
    return arrayOf(structOf({{"scale", scale}}));
}

// ---------------------------------------------------------------- what both share

TEST(ScaleConfigBase, hasNoScaleAtFirst)
{
    const ScaleConfigBase none;
    EXPECT_EQ(none.scale(), nullptr);
    bool ok = false;
    EXPECT_EQ(dumped(none.xmlrpcvalue(&ok)), without);
    EXPECT_TRUE(ok);
    EXPECT_EQ(none.variantParameters(), List{0});
    EXPECT_EQ(ScaleConfigBase(request(0)).scale(), nullptr);
    EXPECT_EQ(ScaleConfigBase(arrayOf(0)).scale(), nullptr);
}

TEST(ScaleConfigBase, travels)
{
    const ScaleConfigBase config(scale());
    bool ok = false;
    EXPECT_EQ(dumped(config.xmlrpcvalue(&ok)), with);
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(config.xmlrpcvalue(nullptr)), with);
    EXPECT_EQ(config.variantParameters(), List{QVariant::fromValue(scale())});

    const ScaleConfigBase others[] = {
        ScaleConfigBase(request(scaleStruct())), ScaleConfigBase(arrayOf(scaleStruct())),
        ScaleConfigBase(List{QVariant::fromValue(scale())}), ScaleConfigBase(List{scaleMap(), 7})};
    for (const ScaleConfigBase &other : others) {
        ASSERT_NE(other.scale(), nullptr);
        EXPECT_TRUE(*other.scale() == scale());
        EXPECT_TRUE(other == config);
    }
}

TEST(ScaleConfigBase, keepsACopyOfItsOwn)
{
    ScaleConfigBase config;
    const ScaleConfigBase none(config);
    config.setScale(scale());
    const ScaleConfigBase copy(config);
    EXPECT_NE(copy.scale(), config.scale());
    EXPECT_TRUE(copy == config);
    EXPECT_TRUE(none != config);
    EXPECT_TRUE(config != none);
    EXPECT_TRUE(none == ScaleConfigBase());
    config.setScale(FW_Scale());
    EXPECT_TRUE(*copy.scale() == scale());
    EXPECT_TRUE(*config.scale() == FW_Scale());
    EXPECT_TRUE(copy != config);
    config = copy;
    EXPECT_TRUE(config == copy);
    const ScaleConfigBase &same = config;
    config = same;
    EXPECT_TRUE(*config.scale() == scale());
    config.setScale(*config.scale());
    EXPECT_TRUE(*config.scale() == scale());
    config = none;
    EXPECT_EQ(config.scale(), nullptr);
}

TEST(ScaleConfigBase, refusesWhatIsNoScale)
{
    Value cut = scaleStruct();
    cut["precision"] = "3";
    for (const Value &value : {Value(0), Value("x"), arrayOf(), arrayOf(7), arrayOf("x"), arrayOf(false),
                               arrayOf(structOf({})), request(7), request("x"), request(structOf({})),
                               request(cut), arrayOf(cut), structOf({{"scale", scaleStruct()}}), Value()})
        expectRefusal("DE03329", noScale, ofValue, [&] { ScaleConfigBase{value}; });

    QVariantMap cutMap = scaleMap();
    cutMap.remove("precision");
    for (const QVariant &variant :
         {QVariant(), QVariant(0), QVariant("Libra 6"), QVariant(QVariantMap()), QVariant(cutMap),
          QVariant(QVariantList{scaleMap()}), QVariant::fromValue(FW_SerialPort())})
        expectRefusal("DE02345", noVariant, ofList, [&] { ScaleConfigBase{List{variant}}; });
    expectRefusal("DE02345", noVariant, ofList, [] { ScaleConfigBase{List()}; });
}

// ---------------------------------------------------------------- the answer

TEST(GetScaleConfigAnswer, tellsTheScale)
{
    EXPECT_EQ(GetScaleConfigAnswer().protoType(), 2);
    EXPECT_EQ(dumped(GetScaleConfigAnswer().toXmlRpcValue()), without);
    const GetScaleConfigAnswer answer(scale());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), with);
    EXPECT_TRUE(GetScaleConfigAnswer(request(scaleStruct())) == answer);
    List list = {QVariant::fromValue(scale())};
    EXPECT_TRUE(GetScaleConfigAnswer(list) == answer);
}

TEST(GetScaleConfigAnswer, clonesAndCompares)
{
    const GetScaleConfigAnswer answer(scale());
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), "GetScaleConfigAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const GetScaleConfigAnswer none;
    EXPECT_FALSE(answer.equalTo(&none));
    EXPECT_FALSE(none.equalTo(&answer));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(none.equalTo(&plain));
    EXPECT_FALSE(none.equalTo(nullptr));
    static_assert(!std::is_constructible_v<GetScaleConfigAnswer, int>);
}

TEST(GetScaleConfigAnswer, isMadeByItsCommand)
{
    ConfProtoCommand command(QStringLiteral("GET_SCALE_CONFIG"), nullptr);
    FW_DriverError error;
    ASSERT_TRUE(command.buildProtoAnswer(request(0), &error));
    EXPECT_EQ(className(command.getProtoAnswer()), "GetScaleConfigAnswer");
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), without);
    List list = {scaleMap()};
    ASSERT_TRUE(command.buildProtoAnswer(list, &error));
    EXPECT_EQ(dumped(command.getProtoAnswer()->toXmlRpcValue()), with);
    EXPECT_EQ(error.code(), QString());

    EXPECT_FALSE(command.buildProtoAnswer(arrayOf(), &error));
    expectError(error, "DE03329", noScale);
    List none;
    EXPECT_FALSE(command.buildProtoAnswer(none, &error));
    expectError(error, "DE02345", noVariant);
    EXPECT_EQ(command.getProtoAnswer(), nullptr);
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { GetScaleConfigAnswer{Value()}; });
}

TEST(GetScaleConfigAnswer, tellsItsMember)
{
    EXPECT_EQ(
        membersOf("GET_SCALE_CONFIG"),
        (Lines{"GetScaleConfigAnswer",
               "scale (struct): a struct with scale_model, scale_port (as that of SET_SERIAL), "
               "scale_unit, max_weight and precision; 0 for none",
               "  XML-RPC, missing or another type: DE03329", "  list, missing or another type: DE02345"}));
}

// ---------------------------------------------------------------- the command

CommandFacts facts()
{
    CommandFacts facts(formsOf<SetScaleConfigCmd>());
    facts.catalogue = {"SET_SCALE_CONFIG", 124, "", 0};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.words = {"Scale configuration read", "Retrieving scale configuration"};
    facts.defaults = Request().parameters({0}).written(without);
    facts.requests = {
        Request({QVariant::fromValue(scale())})
            .typed<SetScaleConfigCmd>(scale())
            .value(request(scaleStruct()))
            .written(with),
        Request({scaleMap()})
            .value(arrayOf(scaleStruct()))
            .parameters({QVariant::fromValue(scale())})
            .written(with),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetScaleConfigCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetScaleConfigCmd, mayHaveNoScale)
{
    for (const Value &value : {arrayOf(), request(0)}) {
        const SetScaleConfigCmd command(value);
        EXPECT_EQ(command.scale(), nullptr);
        EXPECT_EQ(dumped(command.xmlrpc_parameters()), without);
        EXPECT_EQ(command.parameters(), List{0});
    }
    EXPECT_EQ(SetScaleConfigCmd(List()).scale(), nullptr);
}

TEST(SetScaleConfigCmd, isRefusedAsTheScale)
{
    for (const Value &value : {Value("x"), Value(true), structOf({}), arrayOf(scaleStruct())})
        expectRefusal("DE03329", noScale, ofValue, [&] { SetScaleConfigCmd{arrayOf(value)}; });
    expectRefusal("DE02345", noVariant, ofList, [] { SetScaleConfigCmd{List{0}}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { SetScaleConfigCmd{scaleStruct()}; });
    static_assert(!std::is_constructible_v<SetScaleConfigCmd, int>);
}

TEST(SetScaleConfigCmd, tellsItsArgument)
{
    EXPECT_EQ(
        argumentsOf("SET_SCALE_CONFIG"),
        (Lines{R"(config (struct) = {"scale": 0}: "scale", as the answer to GET_SCALE_CONFIG tells it; )"
               "0 for none (in a list the scale alone)",
               "  XML-RPC, another type: DE03329", "  list, another type: DE02345"}));
}

} // namespace
