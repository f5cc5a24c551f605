// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/cleaningcmd.h"

#include "base/factlines.h"
#include "processes/processtesting.h"

namespace {

using namespace testing_processes;

constexpr char ofValue[] = "CleaningCmd::CleaningCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "CleaningCmd::CleaningCmd(QList<QVariant>)";
constexpr char ofTyped[] = "CleaningCmd::CleaningCmd(int, int, qlonglong, int, bool)";
constexpr char ofProcess[] = "FWProcess::FWProcess(int, qlonglong, DurationType, bool)";

Words cleaning(const char *detailed)
{
    return {"Cleaning", "Cleaning", detailed};
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<CleaningCmd>());
    facts.catalogue = {"CLEANING", 94, "0015", 1};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required(Integer, {"DE01731", "DE01737", "Cleaning type: expected INT parameter"})
            .refuses({Value(-1), Value(2), Value(100)}, {},
                     {"DE01730", "", "Cleaning type: invalid parameter"})
            .takes({0, 1}),
        optional(Integer, {"DE01733", "DE01739", "Turntable cleaning speed: expected INT parameter",
                           "Recirculation speed: expected INT parameter"})
            .refuses({Value(-1), Value(0), Value(101), Value(244), Value(246)}, {},
                     {"DE01732", "", "Turntable cleaning speed: invalid parameter"})
            .takes({1, 100, 245}),
        optional(Whole, {"DE01735", "DE01740", "Turntable cleaning duration: expected INT parameter",
                         "Recirculation duration: expected INT or LONG parameter"})
            .refuses({Value(-1), Value(0), Value(60516)}, {},
                     {"DE01734", "", "Turntable cleaning duration: invalid parameter"})
            .takes({1, 60514, 60515}),
        optional(Integer, {"DE01736", "DE01742", "Position ID: expected INT parameter"}).takes({0, -1, 300}),
        optional(Flag, {"DE02418", "DE02419", "Busy execution: expected BOOL parameter"}),
    };
    facts.getters = {getter(&CleaningCmd::cleaningType), getter(&CleaningCmd::speed),
                     getter(&CleaningCmd::duration), getter(&CleaningCmd::moduleID),
                     getter(&CleaningCmd::isBusyExecution)};
    facts.defaults = Request()
                         .parameters({1, 50, 30LL, 0, false})
                         .written("[1, 50, 30, 0, false]")
                         .sends({50, 30, 0, 1, 0})
                         .says(cleaning("Cleaning circuit position 0 for 30 seconds at speed 50"));
    facts.requests = {
        Request({0, 60, 300, 3, true})
            .parameters({0, 60, 300LL, 3, true})
            .typed<CleaningCmd>(0, 60, 300, 3, true)
            .written("[0, 60, 300, 3, true]")
            .sends({60, 54, 1, 2, 1})
            .module(3)
            .says(cleaning("Cleaning circuit position 3 for 300 seconds at speed 60")),
        Request({1, 245, 60515, 2, false})
            .parameters({1, 245, 60515LL, 2, false})
            .typed<CleaningCmd>(1, 245, 60515, 2, false)
            .written("[1, 245, 60515, 2, false]")
            .sends({245, 245, 245, 3, 0})
            .module(2)
            .says(cleaning("Cleaning circuit position 2 for 60515 seconds at speed 245")),
        Request({1, 50, 10, 0})
            .parameters({1, 50, 10LL, 0, false})
            .typed<CleaningCmd>(1, 0, 10, 0, false)
            .written("[1, 50, 10, 0, false]")
            .sends({50, 10, 0, 1, 0})
            .says(cleaning("Cleaning circuit position 0 for 10 seconds at speed 50")),
        Request({0, 50, 10, 0})
            .parameters({0, 50, 10LL, 0, false})
            .written("[0, 50, 10, 0, false]")
            .sends({50, 10, 0, 2, 0})
            .says(cleaning("Cleaning circuit position 0 for 10 seconds at speed 50")),
        Request({0}) // a value may leave all but the type out
            .onlyFromValue()
            .parameters({0, 245, 30LL, 0, false})
            .written("[0, 245, 30, 0, false]")
            .sends({245, 30, 0, 2, 0})
            .says(cleaning("Cleaning circuit position 0 for 30 seconds at speed 245")),
        Request({1, 70})
            .onlyFromValue()
            .parameters({1, 70, 30LL, 0, false})
            .written("[1, 70, 30, 0, false]")
            .sends({70, 30, 0, 1, 0})
            .says(cleaning("Cleaning circuit position 0 for 30 seconds at speed 70")),
        Request({1, 70, 40})
            .onlyFromValue()
            .parameters({1, 70, 40LL, 0, false})
            .written("[1, 70, 40, 0, false]")
            .sends({70, 40, 0, 1, 0})
            .says(cleaning("Cleaning circuit position 0 for 40 seconds at speed 70")),
    };
    for (const int type : {-1, 2, 100})
        facts.typedRefusals.push_back({made<CleaningCmd>(type, 50, 30LL, 0, false),
                                       {"DE01729", "Cleaning type: invalid parameter"},
                                       ofTyped});
    facts.typedRefusals.push_back({made<CleaningCmd>(2, 101, 60516LL, 0, false), // before the type
                                   {"DE01744", "Speed: invalid parameter"},
                                   ofProcess});
    facts.typedRefusals.push_back({made<CleaningCmd>(2, 100, 60516LL, 0, false),
                                   {"DE01745", "Duration: invalid parameter"},
                                   ofProcess});
    facts.answers = serialAnswers();
    return facts;
}

TEST(CleaningCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(CleaningCmd, hasOtherDefaultsInItsTypedForm)
{
    const CleaningCmd command(1, -1, 0, -3, true);
    EXPECT_EQ(command.speed(), 50);
    EXPECT_EQ(command.duration(), 15) << "that of a brush that cleans itself";
    EXPECT_EQ(command.moduleID(), 0);
    EXPECT_TRUE(command.isBusyExecution());
    EXPECT_EQ(CleaningCmd(1, 0, -1, 0, false).duration(), 30);
}

TEST(CleaningCmd, needsDurationAndPositionInAList)
{
    constexpr char noDuration[] = "Expected recirculation duration parameter";
    expectRefusal("DE01741", noDuration, ofList, [] { CleaningCmd(List{1}); });
    expectRefusal("DE01741", noDuration, ofList, [] { CleaningCmd(List{1, 50}); });
    expectRefusal("DE01743", "Expected Position ID parameter", ofList, [] { CleaningCmd(List{1, 50, 30}); });
    // what is there comes first
    expectRefusal("DE01737", "Cleaning type: expected INT parameter", ofList, [] { CleaningCmd(List{"x"}); });
    expectRefusal("DE01740", "Recirculation duration: expected INT or LONG parameter", ofList, [] {
        CleaningCmd(List{1, 50, "x"});
    });
}

TEST(CleaningCmd, tellsWhatAListNeeds)
{
    const Lines lines = argumentsOf("CLEANING");
    EXPECT_EQ(lines,
              (Lines{"type (int): 0 or 1",
                     "  XML-RPC, another type: DE01731",
                     "  list, another type: DE01737",
                     "  XML-RPC, out of range: DE01730",
                     "speed (int) = 245: 1 to 100; 245 as configured",
                     "  XML-RPC, another type: DE01733",
                     "  list, another type: DE01739",
                     "  XML-RPC, out of range: DE01732",
                     "duration (int) = 30: seconds, 1 to 60514; 60515 is without end; needed in a list",
                     "  list, missing: DE01741",
                     "  XML-RPC, another type: DE01735",
                     "  list, another type: DE01740",
                     "  XML-RPC, out of range: DE01734",
                     "position (int) = 0: a circuit's position; 0 is all circuits; needed in a list",
                     "  list, missing: DE01743",
                     "  XML-RPC, another type: DE01736",
                     "  list, another type: DE01742",
                     "busy (bool) = false: whether the command lasts as long as the cleaning",
                     "  XML-RPC, another type: DE02418",
                     "  list, another type: DE02419"}));
}

TEST(CleaningCmd, stopsOnlyWhenToldByAList)
{
    const CleaningCmd stop(List{1, 50, 0, 4});
    EXPECT_EQ(stop.duration(), 0);
    EXPECT_EQ(stop.serialParameters(1), (QList<int>{50, 0, 0, 3, 0}));
    EXPECT_EQ(stop.actionString(false).m_text, "Cleaning");
    EXPECT_EQ(stop.actionString(true).m_text, "Cleaning STOP for circuit position 4");
    EXPECT_EQ(stop.commandString(), "Cleaning");
    const TranslatedTexts translated;
    EXPECT_EQ(stop.actionString(true).m_translated, translation("Cleaning STOP for circuit position 4"));
}

TEST(CleaningCmd, checksNoRangesInAList)
{
    const CleaningCmd command(List{7, 500, 4294967299LL, -2});
    EXPECT_EQ(command.parameters(), (List{7, 500, 4294967299LL, -2, false}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[7, 500, 3, -2, false]");
    EXPECT_EQ(CleaningCmd(List{1, 50, -5, 0}).serialParameters(1), (QList<int>{50, 0, 0, 1, 0}));
}

TEST(CleaningCmd, tellsTheFirmwareAnotherType)
{
    EXPECT_EQ(CleaningCmd(0, 50, 30, 0, false).fwCleaningType(), 2);
    EXPECT_EQ(CleaningCmd(0, 50, 30, 3, false).fwCleaningType(), 2);
    EXPECT_EQ(CleaningCmd(1, 50, 30, 0, false).fwCleaningType(), 1);
    EXPECT_EQ(CleaningCmd(1, 50, 30, 3, false).fwCleaningType(), 3);
    for (const int type : {0, 1})
        EXPECT_TRUE(CleaningCmd::checkCleaningType(type));
    for (const int type : {-1, 2, 3})
        EXPECT_FALSE(CleaningCmd::checkCleaningType(type));
}

TEST(CleaningCmd, knowsWhichFirmwareRunsBusy)
{
    expectGates(
        {{63, 99, false}, {67, 99, false}, {68, 99, false}, {69, 99, false}, {70, 0, true}, {72, 99, false}},
        CleaningCmd::isBusyExecutionSupported);
}

} // namespace
