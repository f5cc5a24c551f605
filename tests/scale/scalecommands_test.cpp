// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcontract.h"
#include "base/factlines.h"
#include "scale/displaystringcmd.h"
#include "scale/getcurrentweightcmd.h"
#include "scale/scaleresetcmd.h"
#include "scale/tarecmd.h"
#include "scale/taresetcmd.h"
#include "scale/weightcmd.h"
#include "scale/weighttesting.h"

#include <type_traits>

namespace {

using namespace testing_scale;

/** The base's answers, but of a weight. */
AnswerFacts weightAnswers(AnswerFacts answers, const char *valueCode, const char *listCode)
{
    constexpr char notMade[] = "Failed to create WeightAnswer";
    answers.value = AnswerOfValue("WeightAnswer", weightStruct(), weightDump)
                        .failsWith(valueCode, notMade)
                        .refuses(structOf({{"weight_value", 1.0}}), "DE02088",
                                 "WeightAnswer failed: expected string type parameter", weightOfValue);
    answers.list = AnswerOfList("WeightAnswer", weightList(), weightDump)
                       .failsWith(listCode, notMade)
                       .refuses({1.0, 1, true}, "DE02092",
                                "WeightAnswer decoding failed: invalid QVariant values length", weightOfList);
    return answers;
}

CommandFacts weightFacts()
{
    CommandFacts facts(formsOf<WeightCmd>());
    facts.catalogue = {"WEIGHT", 110, "", 0};
    facts.protoType = 3;
    facts.valueFunction = "WeightCmd::WeightCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "WeightCmd::WeightCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Integer, {"DE02097", "DE02099", "Weight type: expected INT parameter"}).takes({-1, 300}),
        optional(Integer, {"DE02098", "DE02101", "Scale unit: expected INT parameter"}).takes({-2, 300}),
        optional(Number, {"DE02157", "DE02158", "Stability timeout: expected DOUBLE parameter"})};
    facts.getters = {getter(&WeightCmd::weightType), getter(&WeightCmd::scaleUnit),
                     getter(&WeightCmd::stabilityTimeout)};
    facts.words = {"Weight", "Weighing"};
    facts.defaults = Request().parameters({0, -1, -1.0}).written("[0, -1, -1.00000]");
    facts.requests = {
        Request({1, 2, 7.5})
            .typed<WeightCmd>(ScaleUtils::GrossWeight, ScaleUtils::Ounce, 7.5)
            .written("[1, 2, 7.50000]"),
        Request({1}).parameters({1, -1, -1.0}).written("[1, -1, -1.00000]"),
        Request({2, 0}).parameters({2, 0, -1.0}).written("[2, 0, -1.00000]"),
        Request().parameters({0, -1, -1.0}).written("[0, -1, -1.00000]"),
    };
    facts.answers = weightAnswers(scaleAnswers(), "DE03320", "DE03321");
    return facts;
}

CommandFacts tareFacts()
{
    CommandFacts facts(formsOf<TareCmd>());
    facts.catalogue = {"TARE", 111, "", 0};
    facts.protoType = 3;
    facts.valueFunction = "TareCmd::TareCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "TareCmd::TareCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Flag, {"DE02102", "DE02102", "Stability parameter: expected BOOL parameter"}),
        optional(Flag, {"DE02103", "DE02103", "Check tare parameter: expected BOOL parameter"})};
    facts.getters = {getter(&TareCmd::stability), getter(&TareCmd::checkTare)};
    facts.words = {"Tare", "Taring"};
    facts.defaults = Request().parameters({false, true}).written("[false, true]");
    facts.requests = {
        Request({true, false}).typed<TareCmd>(true, false).written("[true, false]"),
        Request({true}).parameters({true, true}).written("[true, true]"),
        Request().parameters({false, true}).written("[false, true]"),
    };
    facts.answers = scaleAnswers();
    return facts;
}

CommandFacts tareSetFacts()
{
    CommandFacts facts(formsOf<TareSetCmd>());
    facts.catalogue = {"TARE_SET", 112, "", 0};
    facts.protoType = 3;
    facts.valueFunction = "TareSetCmd::TareSetCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "TareSetCmd::TareSetCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Number, {"DE02104", "DE02106", "Preset value parameter: expected DOUBLE parameter"}),
        optional(Integer, {"DE02105", "DE02107", "Unit parameter: expected INT parameter",
                           "Unit parameter: expected DOUBLE parameter"})};
    facts.getters = {getter(&TareSetCmd::presetValue), getter(&TareSetCmd::scaleUnit)};
    facts.defaults = Request().parameters({0.0, -1}).written("[0.00000, -1]");
    facts.requests = {
        Request({12.5, 1}).typed<TareSetCmd>(12.5, ScaleUtils::Kilogram).written("[12.5000, 1]"),
        Request({-3.0}).parameters({-3.0, -1}).written("[-3.00000, -1]"),
        Request().parameters({0.0, -1}).written("[0.00000, -1]"),
    };
    facts.answers = scaleAnswers();
    return facts;
}

CommandFacts displayFacts()
{
    CommandFacts facts(formsOf<DisplayStringCmd>());
    facts.catalogue = {"DISPLAY_STRING", 117, "", 0};
    facts.protoType = 3;
    facts.valueFunction = "DisplayStringCmd::DisplayStringCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "DisplayStringCmd::DisplayStringCmd(QList<QVariant>)";
    facts.arguments = {optional(Text, {"DE02245", "DE02246", "Display string: expected STRING parameter"})};
    facts.getters = {getter(&DisplayStringCmd::displayString)};
    facts.defaults = Request().parameters({""}).written(R"([""])");
    facts.requests = {
        Request({"Base 1"}).typed<DisplayStringCmd>(QStringLiteral("Base 1")).written(R"(["Base 1"])"),
        Request().parameters({""}).written(R"([""])"),
    };
    facts.answers = scaleAnswers();
    return facts;
}

CommandFacts currentWeightFacts()
{
    constexpr char notRead[] = "GetCurrentWeightCmd: xmlrpc decoding failed";
    CommandFacts facts(formsOf<GetCurrentWeightCmd>());
    facts.catalogue = {"GET_CURRENT_WEIGHT", 113, "", 0};
    facts.protoType = 2;
    facts.valueFunction = "GetCurrentWeightCmd::GetCurrentWeightCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetCurrentWeightCmd::GetCurrentWeightCmd(QList<QVariant>)";
    facts.arguments = {optional(Flag, {"DE02166", "DE02166", notRead})};
    facts.getters = {getter(&GetCurrentWeightCmd::forceReading)};
    facts.defaults = Request().parameters({false}).written("[false]");
    facts.requests = {
        Request({true}).typed<GetCurrentWeightCmd>(true).written("[true]"),
        Request().parameters({false}).written("[false]"),
    };
    facts.answers = weightAnswers(confAnswers(), "DE03322", "DE03323");
    facts.answers.envelope = {"DE03324", "Failed to create WeightAnswer"};
    return facts;
}

CommandFacts resetFacts()
{
    CommandFacts facts(formsOf<ScaleResetCmd>());
    facts.catalogue = {"SCALE_RESET", 114, "", 0};
    facts.protoType = 2;
    facts.valueFunction = "ScaleResetCmd::ScaleResetCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ScaleResetCmd::ScaleResetCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Flag, {"DE02171", "DE02172", "Hard reset value parameter: expected BOOL parameter"})};
    facts.getters = {getter(&ScaleResetCmd::hardReset)};
    facts.defaults = Request().parameters({false}).written("[false]");
    facts.requests = {
        Request({true}).typed<ScaleResetCmd>(true).written("[true]"),
        Request().parameters({false}).written("[false]"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(WeightCmd, keepsTheCommandContract)
{
    expectCommandContract(weightFacts());
}

TEST(TareCmd, keepsTheCommandContract)
{
    expectCommandContract(tareFacts());
}

TEST(TareSetCmd, keepsTheCommandContract)
{
    expectCommandContract(tareSetFacts());
}

TEST(DisplayStringCmd, keepsTheCommandContract)
{
    expectCommandContract(displayFacts());
}

TEST(GetCurrentWeightCmd, keepsTheCommandContract)
{
    expectCommandContract(currentWeightFacts());
}

TEST(ScaleResetCmd, keepsTheCommandContract)
{
    expectCommandContract(resetFacts());
}

TEST(WeightCmd, refusesTheFirstBadArgumentWhateverFollows)
{
    expectRefusal("DE02097", "Weight type: expected INT parameter", weightFacts().valueFunction.c_str(),
                  [] { WeightCmd{arrayOf("net", "g", "soon")}; });
    expectRefusal("DE02098", "Scale unit: expected INT parameter", weightFacts().valueFunction.c_str(),
                  [] { WeightCmd{arrayOf(0, "g", "soon")}; });
}

TEST(DisplayStringCmd, startsWithANullText)
{
    EXPECT_TRUE(DisplayStringCmd().displayString().isNull());
}

TEST(ScaleCommands, doNotMistakeOneArgument)
{
    static_assert(!std::is_constructible_v<WeightCmd, int>);
    static_assert(!std::is_constructible_v<TareCmd, bool>);
    static_assert(!std::is_constructible_v<TareSetCmd, double>);
    static_assert(!std::is_constructible_v<DisplayStringCmd, bool>);
    static_assert(!std::is_constructible_v<GetCurrentWeightCmd, int>);
    static_assert(!std::is_constructible_v<GetCurrentWeightCmd, const char *>);
    static_assert(!std::is_constructible_v<ScaleResetCmd, double>);
}

TEST(ScaleCommands, tellTheirArguments)
{
    EXPECT_EQ(argumentsOf("TARE_SET"),
              (Lines{"preset_value (double) = 0.00000: the tare, in the unit",
                     "  XML-RPC, another type: DE02104", "  list, another type: DE02106",
                     "scale_unit (int) = -1: 0 g, 1 kg, 2 oz, 3 lb; -1 as the scale is set",
                     "  XML-RPC, another type: DE02105", "  list, another type: DE02107"}));
}

} // namespace
