// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/getcalibrationprofilesanswer.h"
#include "calibration/setcalibrationprofilescmd.h"
#include "calibration/setcalibtestpointscmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "calibration/calibrationtesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_calibration;

FW_CalibrationProfiles profiles()
{
    FW_CalibrationProfiles profiles;
    profiles.addPump(motor());
    profiles.addPump(FW_DosingMotor());
    return profiles;
}

Value profilesStruct()
{
    return structOf({{"pumps", arrayOf(motor().toXmlRpcValue(), FW_DosingMotor().toXmlRpcValue())}});
}

std::string profilesDump()
{
    return R"({"pumps": [)" + dumped(motor().toXmlRpcValue()) + ", " +
           dumped(FW_DosingMotor().toXmlRpcValue()) + "]}";
}

/** Of profiles that are a struct, and wrong, the framework tells. */
template <class Work>
void expectPumpsRefused(Work work)
{
    expectRefusal("DE03350", "Machine data: pumps must be an array",
                  "FW_CalibrationProfiles::FW_CalibrationProfiles(const XmlRpc::XmlRpcValue&)", work);
}

// ---------------------------------------------------------------- the answer to GET_CALIB_PROFILES

using Answer = GetCalibrationProfilesAnswer;

constexpr char ofAnswerValue[] =
    "GetCalibrationProfilesAnswer::GetCalibrationProfilesAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofAnswerList[] =
    "GetCalibrationProfilesAnswer::GetCalibrationProfilesAnswer(QList<QVariant>&)";
constexpr char notCreated[] = "GetCalibrationProfilesAnswer: Errors during configuration creation";

TEST(GetCalibrationProfilesAnswer, travelsAsAStruct)
{
    EXPECT_STREQ(Answer::calibrationProfiles_TAG, "calibration_profiles");
    const Answer answer(profiles());
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"calibration_profiles": )" + profilesDump() + "}");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()).calibrationProfiles(), profiles());
    for (List list : {List{QVariant::fromValue(profiles())}, List{QVariant::fromValue(profiles()).toMap()}})
        EXPECT_EQ(Answer(list), answer) << shown(list);
}

TEST(GetCalibrationProfilesAnswer, refusesOtherThings)
{
    for (const Value &bad : {Value(7), arrayOf(), structOf({}), structOf({{"profiles", profilesStruct()}})})
        expectRefusal("DE00638", notCreated, ofAnswerValue, [&] { Answer{bad}; });
    for (const Value &other : {Value(7), Value("x"), Value(true), arrayOf()})
        expectRefusal("DE00639", notCreated, ofAnswerValue, [&] {
            Answer{structOf({{"calibration_profiles", other}})};
        });
    expectPumpsRefused([] { Answer{structOf({{"calibration_profiles", structOf({{"pumps", 7}})}})}; });
    const Value whole = Answer(profiles()).toXmlRpcValue();
    expectRefusal("DE00639", notCreated, ofAnswerValue, [&] { outOfMemoryOnce([&] { Answer{whole}; }); });
    for (List bad : {List{}, List{7}, List{QVariant()}, List{QVariantMap()}, List{QVariant(List{})}}) {
        SCOPED_TRACE(shown(bad));
        expectRefusal("DE00635", "GetCalibrationProfilesAnswer decoding failed: invalid QVariant value",
                      ofAnswerList, [&] { Answer{bad}; });
    }
}

TEST(GetCalibrationProfilesAnswer, clonesAndCompares)
{
    const Answer answer(profiles());
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetCalibrationProfilesAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_FALSE(answer.equalTo(nullptr));
    EXPECT_TRUE(answer != Answer());
}

TEST(GetCalibrationProfilesAnswer, isTheAnswerOfThePlainCommand)
{
    ConfProtoCommand command("GET_CALIB_PROFILES", nullptr);
    ASSERT_TRUE(command.buildProtoAnswer(Answer(profiles()).toXmlRpcValue(), nullptr));
    EXPECT_TRUE(Answer(profiles()).equalTo(command.getProtoAnswer()));
    EXPECT_EQ(command.commandString(), "Calibration profiles read");
}

// ---------------------------------------------------------------- SET_CALIB_PROFILES

using SetProfiles = SetCalibrationProfilesCmd;

constexpr char ofProfilesValue[] =
    "SetCalibrationProfilesCmd::SetCalibrationProfilesCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofProfilesList[] = "SetCalibrationProfilesCmd::SetCalibrationProfilesCmd(QList<QVariant>)";
constexpr char noStruct[] = "SetCalibrationProfilesCmd: invalid xml-rpc type (not struct)";
constexpr char noObject[] = "SetCalibrationProfilesCmd: Failed to create FW_CalibrationProfiles object";

CommandFacts profilesFacts()
{
    const QVariant object = QVariant::fromValue(profiles());
    CommandFacts facts(formsOf<SetProfiles>());
    facts.catalogue = {"SET_CALIB_PROFILES", 54, "", 3};
    facts.protoType = 2;
    facts.valueFunction = ofProfilesValue;
    facts.listFunction = ofProfilesList;
    facts.arguments = {
        required().refuses(
            {Value(7), Value("x"), Value(true), arrayOf()},
            {QVariant(), QVariant(7), QVariant("x"), QVariant(List{}), QVariant(QVariantMap())},
            {"DE00640", "DE00640", noStruct}),
        required(Flag, {"DE00643", "DE00643",
                        "SetCalibrationProfilesCmd failed: expected Bool type for second parameter"}),
        required(Flag, {"DE03370", "DE03370",
                        "SetCalibrationProfilesCmd failed: expected Bool type for third parameter"}),
    };
    facts.getters = {getter(&SetProfiles::calibrationProfiles), getter(&SetProfiles::option),
                     getter(&SetProfiles::secondOption)};
    facts.words = {"Calibration profiles write", "Updating calibration profiles"};
    facts.defaults = Request()
                         .parameters({QVariant::fromValue(FW_CalibrationProfiles()), false, false})
                         .written(R"([{"pumps": []}, false, false])");
    const Request whole = Request({object, true, false})
                              .typed<SetProfiles>(profiles(), true, false)
                              .value(arrayOf(profilesStruct(), true, false))
                              .written("[" + profilesDump() + ", true, false]");
    facts.requests = {
        whole,
        whole.alsoFromList({object.toMap(), true, false}),
        Request({object, false, true})
            .typed<SetProfiles>(profiles(), false, true)
            .value(arrayOf(profilesStruct(), false, true))
            .written("[" + profilesDump() + ", false, true]"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetCalibrationProfilesCmd, keepsTheCommandContract)
{
    expectCommandContract(profilesFacts());
}

TEST(SetCalibrationProfilesCmd, refusesBadProfiles)
{
    const Value good = arrayOf(profilesStruct(), true, true);
    expectPumpsRefused([] { SetProfiles{arrayOf(structOf({{"pumps", 7}}), true, true)}; });
    expectPumpsRefused([] { SetProfiles{List{QVariantMap{{"pumps", 7}}, true, true}}; });
    expectRefusal("DE00642", noObject, ofProfilesValue, [&] { outOfMemoryOnce([&] { SetProfiles{good}; }); });
    const List list = {QVariant::fromValue(profiles()).toMap(), true, true};
    expectRefusal("DE00642", noObject, ofProfilesList, [&] { outOfMemoryOnce([&] { SetProfiles{list}; }); });
    static_assert(!std::is_constructible_v<SetProfiles, int>);
    static_assert(!std::is_constructible_v<SetProfiles, const char *>);
}

// ---------------------------------------------------------------- SET_CALIB_TEST_POINTS

using SetTests = SetCalibTestPointsCmd;
using Tests = QList<FW_CalibrationTest>;

constexpr char ofTestsValue[] = "SetCalibTestPointsCmd::SetCalibTestPointsCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofTestsList[] = "SetCalibTestPointsCmd::SetCalibTestPointsCmd(QList<QVariant>)";
constexpr char badUID[] = "Calibration UID_value: error in value decoding";
constexpr char noTests[] = "SetCalibTestPointsCmd decoding failed: invalid xml-rpc type";
constexpr char badTests[] = "SetCalibTestPointsCmd: Errors during FW_CalibrationTest list creation";

Value testStruct()
{
    return structOf(
        {{"target_quantity", 2.5}, {"quantity", 2.25}, {"steps", 800}, {"speed", 60}, {"nozzle_valve", 4}});
}

QVariantMap testMap()
{
    return {{"target_quantity", 2.5}, {"quantity", 2.25}, {"steps", 800}, {"speed", 60}, {"nozzle_valve", 4}};
}

Value testsOf(const Value &tests)
{
    return structOf({{"calib_tests", tests}});
}

CommandFacts testsFacts()
{
    const Tests one = {FW_CalibrationTest(2.5, 2.25, 800, 60, 4)};
    const QVariant none = QVariant::fromValue(Tests());
    constexpr char written[] =
        R"([{"nozzle_valve": 4, "quantity": 2.25000, "speed": 60, "steps": 800, "target_quantity": 2.50000}])";
    CommandFacts facts(formsOf<SetTests>());
    facts.catalogue = {"SET_CALIB_TEST_POINTS", 97, "", 2};
    facts.protoType = 2;
    facts.valueFunction = ofTestsValue;
    facts.listFunction = ofTestsList;
    facts.arguments = {
        required(Text, {"DE01816", "DE01849", badUID}),
        required()
            .refuses({Value(7), Value("x"), arrayOf(testStruct()), structOf({}), testsOf(7),
                      testsOf(testStruct())},
                     {QVariant(), QVariant(7), QVariant("x"), QVariant(QVariantMap()), QVariant(testMap()),
                      QVariant::fromValue(one[0])},
                     {"DE01845", "DE01850", noTests, badTests})
            .refuses({testsOf(arrayOf(7)), testsOf(arrayOf(testStruct(), structOf({}))),
                      testsOf(arrayOf(with(testStruct(), "speed", "x")))},
                     {QVariant(List{7}), QVariant(List{testMap(), QVariantMap()}),
                      QVariant(List{QVariantMap{{"target_quantity", 2.5}}})},
                     {"DE01848", "DE01850", badTests}),
    };
    facts.getters = {getter(&SetTests::calibrationUID), getter(&SetTests::calibrationTests)};
    facts.defaults = Request().parameters({"", none}).written(R"(["", {"calib_tests": []}])");
    const Request whole = Request({"C-17", QVariant::fromValue(one)})
                              .typed<SetTests>(QString("C-17"), one)
                              .value(arrayOf("C-17", testsOf(arrayOf(testStruct()))))
                              .written(std::string(R"(["C-17", {"calib_tests": )") + written + "}]");
    facts.requests = {
        whole,
        whole.alsoFromList({"C-17", QVariant(List{testMap()})}),
        Request({QString::fromUtf8("T\xC3\xBCr"), none})
            .value(arrayOf("T\xC3\xBCr", testsOf(arrayOf())))
            .written("[\"T\xC3\xBCr\", {\"calib_tests\": []}]"),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(SetCalibTestPointsCmd, keepsTheCommandContract)
{
    EXPECT_STREQ(SetTests::calibrationTests_TAG, "calib_tests");
    expectCommandContract(testsFacts());
    const Value value = arrayOf("C-17", testsOf(arrayOf(testStruct())));
    expectRefusal("DE01848", badTests, ofTestsValue, [&] { outOfMemoryOnce([&] { SetTests{value}; }); });
    for (const QVariant &test :
         {QVariant(testMap()), QVariant::fromValue(FW_CalibrationTest(2.5, 2.25, 800, 60, 4))}) {
        const List list = {"C-17", QVariant(List{test})};
        expectRefusal("DE01850", badTests, ofTestsList, [&] { outOfMemoryOnce([&] { SetTests{list}; }); });
    }
    static_assert(!std::is_constructible_v<SetTests, int>);
    static_assert(!std::is_constructible_v<SetTests, const char *>);
}

TEST(CalibrationProfiles, areExplained)
{
    EXPECT_EQ(argumentsOf("SET_CALIB_PROFILES"),
              (Lines{"profiles (struct): member \"pumps\": the motors of pumps, each with its calibration",
                     "  XML-RPC, another type: DE00640", "  list, another type: DE00640",
                     "  XML-RPC, with a wrong member: DE03350", "  XML-RPC, cannot be made: DE00642",
                     "  list, cannot be made: DE00642", "option (bool): which the driver reads",
                     "  XML-RPC, another type: DE00643", "  list, another type: DE00643",
                     "second_option (bool): likewise", "  XML-RPC, another type: DE03370",
                     "  list, another type: DE03370"}));
    EXPECT_EQ(argumentsOf("SET_CALIB_TEST_POINTS"),
              (Lines{"calibration_uid (string): by which the driver knows the calibration",
                     "  XML-RPC, another type: DE01816", "  list, another type: DE01849",
                     "tests (struct): member \"calib_tests\": an array of structs, each \"target_quantity\", "
                     "\"quantity\", \"steps\", \"speed\" and \"nozzle_valve\"",
                     "  XML-RPC, without calib_tests, or no array there: DE01845",
                     "  list, another type: DE01850", "  XML-RPC, a test that cannot be read: DE01848",
                     "  list, a test that cannot be read: DE01850"}));
    EXPECT_EQ(membersOf("GET_CALIB_PROFILES"),
              (Lines{"GetCalibrationProfilesAnswer",
                     "calibration_profiles (struct): member \"pumps\": the motors of pumps, each with its "
                     "calibration",
                     "  XML-RPC, missing: DE00638", "  XML-RPC, another type: DE00639",
                     "  XML-RPC, with a wrong member: DE03350", "  list, missing or another type: DE00635"}));
}

} // namespace
