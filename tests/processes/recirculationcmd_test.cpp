// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/recirculationcmd.h"

#include "processes/processtesting.h"

namespace {

using namespace testing_processes;

constexpr char ofValue[] =
    "RecirculationCmd::RecirculationCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "RecirculationCmd::RecirculationCmd(QList<QVariant>, const FW_Dispenser*)";

Words recirculating(const Phrase &detailed)
{
    return {"Recirculation", "Recirculating", detailed};
}

CommandFacts facts(const FW_Dispenser *dispenser)
{
    CommandFacts facts(formsOf<RecirculationCmd>(dispenser));
    facts.catalogue = {"RECIRCULATION", 10, "0005", 2};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required(Integer, {"DE00654", "DE00660", "Position ID: expected INT parameter"}),
        required(Whole, {"DE00656", "DE00662", "Recirculation duration: expected INT parameter",
                         "Recirculation duration: expected INT or LONG parameter"})
            .takes({0, 1, 60514, 60515, 60516}),
        optional(Integer, {"DE00658", "DE00664", "Recirculation speed: expected INT parameter"})
            .takes({-1, 0, 1, 100, 101, 245}),
        optional(Integer, {"DE02084", "DE02086", "Recirculation duration type: expected INT parameter"})
            .takes({0, 2, -1}),
        optional(Flag, {"DE02605", "DE02606", "Recirculation execution type: expected BOOL parameter"}),
    };
    facts.getters = {getter(&RecirculationCmd::moduleID), getter(&RecirculationCmd::duration),
                     getter(&RecirculationCmd::speed), getter(&RecirculationCmd::durationType),
                     getter(&RecirculationCmd::isBusyExecution)};
    facts.defaults =
        Request()
            .parameters({0, 30LL, 50, 0, false})
            .written("[0, 30, 50, 0, false]")
            .sends({50, 30, 0, 0, 0})
            .takes(30000)
            .says(recirculating(withWord("Recirculating circuit position 0 for 30 seconds at speed 50 (",
                                         "wait", " execution)")));
    facts.requests = {
        Request({3, 300, 60, 1, true})
            .parameters({3, 300LL, 60, 1, true})
            .typed<RecirculationCmd>(3, 300, 60, FWProcess::Strokes, true, dispenser)
            .written("[3, 300, 60, 1, true]")
            .sends({60, 0, 0, 300, 1})
            .module(3)
            .takes(300000)
            .says(recirculating(withWord("Recirculating circuit position 3 for 300 strokes at speed 60 (",
                                         "busy", " execution)"))),
        Request({3, 300, 60, 0})
            .parameters({3, 300LL, 60, 0, false})
            .typed<RecirculationCmd>(3, 300, 60, FWProcess::Seconds, false, dispenser)
            .written("[3, 300, 60, 0, false]")
            .sends({60, 54, 1, 0, 0})
            .module(3)
            .takes(0)
            .says(recirculating(withWord("Recirculating circuit position 3 for 300 seconds at speed 60 (",
                                         "wait", " execution)"))),
        Request({2, 10})
            .parameters({2, 10LL, 50, 0, false})
            .typed<RecirculationCmd>(2, 10, 0, FWProcess::Seconds, false, dispenser)
            .written("[2, 10, 50, 0, false]")
            .sends({50, 10, 0, 0, 0})
            .module(2)
            .says(recirculating(withWord("Recirculating circuit position 2 for 10 seconds at speed 50 (",
                                         "wait", " execution)"))),
        Request({0, 60515, 245})
            .parameters({0, 60515LL, 245, 0, false})
            .typed<RecirculationCmd>(0, 60515, 245, FWProcess::Seconds, false, dispenser)
            .written("[0, 60515, 245, 0, false]")
            .sends({245, 245, 245, 0, 0})
            .takes(60515000)
            .says(recirculating(withWord("Recirculating circuit position 0 for 60515 seconds at speed 245 (",
                                         "wait", " execution)"))),
        Request({2, 0, 40, 2, true}) // a type that there is not counts seconds
            .parameters({2, 0LL, 40, 2, true})
            .written("[2, 0, 40, 2, true]")
            .sends({40, 0, 0, 0, 1})
            .module(2)
            .takes(0)
            .says(recirculating("Recirculation STOP for circuit position 2")),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(RecirculationCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine = dispenserWith({2, 3, 7});
    expectCommandContract(facts(nullptr));
    expectCommandContract(facts(&machine));
}

// ---------------------------------------------------------------- position or circuit

TEST(RecirculationCmd, takesACircuitsIdForItsPosition)
{
    const FW_Dispenser machine = dispenserWith({2, 3, 20});
    EXPECT_EQ(RecirculationCmd(arrayOf(30, 10), &machine).moduleID(), 3);
    EXPECT_EQ(RecirculationCmd(List{30, 10}, &machine).moduleID(), 3);
    EXPECT_EQ(RecirculationCmd(arrayOf(30, 10), &machine).parameters().constFirst(), 3);
    // a position comes first: circuit 20 is at position 2
    EXPECT_EQ(RecirculationCmd(arrayOf(20, 10), &machine).moduleID(), 20);
    EXPECT_EQ(RecirculationCmd(List{20, 10}, &machine).moduleID(), 20);
}

TEST(RecirculationCmd, takesACircuitThatIsNotEnabled)
{
    FW_Dispenser machine = dispenserWith({2});
    machine.getCircuitByPosition(2)->setEnabled(false);
    EXPECT_EQ(RecirculationCmd(arrayOf(2, 10), &machine).moduleID(), 2);
    EXPECT_EQ(RecirculationCmd(arrayOf(20, 10), &machine).moduleID(), 2);
}

TEST(RecirculationCmd, takesAllCircuitsOfAnyDispenser)
{
    const FW_Dispenser machine;
    EXPECT_EQ(RecirculationCmd(arrayOf(0, 10), &machine).moduleID(), 0);
    EXPECT_EQ(RecirculationCmd(List{0, 10}, &machine).moduleID(), 0);
}

TEST(RecirculationCmd, refusesWhatIsNeitherPositionNorCircuit)
{
    const FW_Dispenser machine = dispenserWith({2, 3});
    for (const int position : {-1, 1, 4, 40, 2000}) {
        SCOPED_TRACE(position);
        // before the duration
        expectRefusal("DE02083", "Expected Position ID parameter", ofValue,
                      [&] { RecirculationCmd(arrayOf(position, "x"), &machine); });
        expectRefusal("DE02085", "Expected Position ID parameter", ofList, [&] {
            RecirculationCmd(List{position, "x"}, &machine);
        });
        EXPECT_EQ(RecirculationCmd(arrayOf(position, 10), nullptr).moduleID(), position);
        EXPECT_EQ(RecirculationCmd(List{position, 10}, nullptr).moduleID(), position);
        EXPECT_EQ(RecirculationCmd(position, 10, 0, FWProcess::Seconds, false, &machine).moduleID(),
                  position);
    }
}

// ---------------------------------------------------------------- ranges

TEST(RecirculationCmd, checksRangesInTheTypedFormOnly)
{
    constexpr char ofProcess[] = "FWProcess::FWProcess(int, qlonglong, DurationType, bool)";
    expectRefusal("DE01744", "Speed: invalid parameter", ofProcess,
                  [] { RecirculationCmd(1, 10, 101, FWProcess::Seconds, false, nullptr); });
    expectRefusal("DE01745", "Duration: invalid parameter", ofProcess,
                  [] { RecirculationCmd(1, 60516, 100, FWProcess::Seconds, false, nullptr); });
    const RecirculationCmd stop(1, 0, 0, FWProcess::Seconds, false, nullptr);
    EXPECT_EQ(stop.duration(), 30) << "what stops must be told as a list or a value";
    EXPECT_EQ(RecirculationCmd(List{1, 0}, nullptr).duration(), 0);
}

TEST(RecirculationCmd, sendsTheDigitsOfItsSeconds)
{
    EXPECT_EQ(RecirculationCmd(List{1, -5, 50}, nullptr).serialParameters(1), (QList<int>{50, 0, 0, 0, 0}));
    EXPECT_EQ(RecirculationCmd(List{1, 245, 50}, nullptr).serialParameters(1),
              (QList<int>{50, 245, 0, 0, 0}));
    EXPECT_EQ(RecirculationCmd(List{1, 246, 50}, nullptr).serialParameters(1), (QList<int>{50, 0, 1, 0, 0}));
    EXPECT_EQ(RecirculationCmd(List{1, 60516, 50}, nullptr).serialParameters(1),
              (QList<int>{50, 0, 0, 1, 0, 0}));
}

TEST(RecirculationCmd, sendsStrokesThatAnIntHolds)
{
    const auto sent = [](qlonglong strokes) {
        return RecirculationCmd(List{1, strokes, 50, 1}, nullptr).serialParameters(1);
    };
    EXPECT_EQ(sent(-5), (QList<int>{50, 0, 0, 0, 0}));
    EXPECT_EQ(sent(2147483647), (QList<int>{50, 0, 0, 2147483647, 0}));
    EXPECT_EQ(sent(2147483648), (QList<int>{50, 0, 0, 2147483647, 0}));
    EXPECT_EQ(sent(4611686018427387904), (QList<int>{50, 0, 0, 2147483647, 0}));
}

TEST(RecirculationCmd, losesTheUpperHalfOfADurationOverXmlRpc)
{
    const RecirculationCmd command(List{1, 4294967299LL}, nullptr);
    EXPECT_EQ(command.duration(), 4294967299LL);
    EXPECT_EQ(command.parameters(), (List{1, 4294967299LL, 50, 0, false}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[1, 3, 50, 0, false]");
}

TEST(RecirculationCmd, tellsNoTimeThatCannotBe)
{
    for (const qlonglong duration : {9223372036854775807LL, -9223372036854775807LL, -5LL})
        EXPECT_EQ(RecirculationCmd(List{0, duration}, nullptr).getCmdEstimatedExecutionTime(nullptr), 0);
}

// ---------------------------------------------------------------- models and firmware

TEST(RecirculationCmd, knowsTheModelsThatCountStrokes)
{
    for (const int model : {6, 10, 19})
        EXPECT_TRUE(RecirculationCmd::supportsStrokesRecirculation(static_cast<MachineModel>(model)));
    for (const int model : {-1, 0, 5, 7, 9, 11, 18, 20, 100})
        EXPECT_FALSE(RecirculationCmd::supportsStrokesRecirculation(static_cast<MachineModel>(model)))
            << model;
}

TEST(RecirculationCmd, knowsWhichFirmwareRecirculatesAllCircuits)
{
    expectGates({{63, 37, false},
                 {63, 38, true},
                 {67, 99, false},
                 {68, 3, false},
                 {68, 4, true},
                 {69, 99, false},
                 {70, 1, false},
                 {70, 2, true},
                 {72, 0, true},
                 {71, 99, false}},
                RecirculationCmd::isRecirculateAllSupported);
}

TEST(RecirculationCmd, knowsWhichFirmwareRunsBusy)
{
    expectGates(
        {{63, 37, false},
         {63, 38, true},
         {67, 99, false},
         {68, 99, false},
         {69, 1, false},
         {69, 2, true},
         {70, 1, false},
         {70, 2, true},
         {72, 0, true},
         {71, 99, false}},
        [](const FW_Version &version) { return RecirculationCmd::isBusyExecutionSupported(version); });
}

TEST(RecirculationCmd, tellsItsVersion)
{
    expectVersions({{FW_Version(63, 37), 0},
                    {FW_Version(63, 38), 2},
                    {FW_Version(68, 3), 0},
                    {FW_Version(68, 4), 1},
                    {FW_Version(69, 2), 0},
                    {FW_Version(70, 2), 2},
                    {FW_Version(72, 0), 2},
                    {FW_Version(), 0}},
                   RecirculationCmd::commandVersion);
}

} // namespace
