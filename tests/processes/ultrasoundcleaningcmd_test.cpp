// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/ultrasoundcleaningcmd.h"

#include "base/factlines.h"
#include "processes/processtesting.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

namespace {

using namespace testing_processes;
using Type = UltrasoundCleaningCmd::UltrasoundCleaningType;

constexpr char ofList[] = "UltrasoundCleaningCmd::UltrasoundCleaningCmd(QList<QVariant>)";

/** The time stands behind the text, each translated by itself. */
Words running(const char *process, const char *time = nullptr)
{
    if (!time)
        return {"Ultrasound cleaning", process};
    const QString detailed = QString(process) + ' ' + time;
    return {"Ultrasound cleaning",
            process,
            {detailed.toUtf8().constData(), "QuvProtocol", translation(process) + ' ' + translation(time)}};
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<UltrasoundCleaningCmd>());
    facts.catalogue = {"ULTRASOUND_CLEAN", 115, "0025", 1};
    facts.protoType = 1;
    facts.valueFunction = "UltrasoundCleaningCmd::UltrasoundCleaningCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = ofList;
    facts.arguments = {
        required(Integer, {"DE02193", "DE02196", "Cleaning type: expected INT parameter"})
            .refuses({Value(-1), Value(0), Value(5)}, {}, {"DE02192", "", "Cleaning type: invalid parameter"})
            .takes({1, 4}),
        optional(Whole, {"DE02195", "DE02198", "Turntable cleaning duration: expected INT parameter",
                         "Recirculation duration: expected INT or LONG parameter"})
            .refuses({Value(-1), Value(0), Value(60516)}, {},
                     {"DE02194", "", "Turntable cleaning duration: invalid parameter"})
            .takes({1, 60514, 60515}),
    };
    facts.getters = {getter(&UltrasoundCleaningCmd::type), getter(&UltrasoundCleaningCmd::duration)};
    facts.defaults = Request().parameters({1, 30LL}).written("[1, 30]").sends({1}).says(
        running("Running full cleaning process", "for 30 seconds"));
    facts.requests = {
        Request({2, 300})
            .parameters({2, 300LL})
            .typed<UltrasoundCleaningCmd>(Type(2), 300)
            .written("[2, 300]")
            .sends({2, 54, 1})
            .takes(30000)
            .says(running("Running emptying process", "for 300 seconds")),
        Request({3, 19})
            .parameters({3, 19LL})
            .typed<UltrasoundCleaningCmd>(Type(3), 19)
            .written("[3, 19]")
            .sends({3, 19, 0})
            .takes(1000)
            .says(running("Running filling process", "for 19 seconds")),
        Request({4, 300})
            .parameters({4, 300LL})
            .typed<UltrasoundCleaningCmd>(Type(4), 300)
            .written("[4, 300]")
            .sends({4, 54, 1})
            .takes(300000)
            .says(running("Running clean process", "for 300 seconds")),
        Request({1, 40})
            .parameters({1, 40LL})
            .typed<UltrasoundCleaningCmd>(Type(1), 40)
            .written("[1, 40]")
            .sends({1})
            .says(running("Running full cleaning process", "for 40 seconds")),
        Request({1, 245})
            .parameters({1, 245LL})
            .typed<UltrasoundCleaningCmd>(Type(1), 245)
            .written("[1, 245]")
            .sends({1})
            .says(running("Running full cleaning process")),
        Request({4, 245})
            .parameters({4, 245LL})
            .typed<UltrasoundCleaningCmd>(Type(4), 245)
            .written("[4, 245]")
            .sends({4, 245, 245})
            .says(running("Running clean process")),
        Request({2, 60515})
            .parameters({2, 60515LL})
            .written("[2, 60515]")
            .sends({2, 245, 245})
            .takes(6051000)
            .says(running("Running emptying process", "for 60515 seconds")),
        Request({4})
            .onlyFromValue()
            .parameters({4, 30LL})
            .typed<UltrasoundCleaningCmd>(Type(4), 0)
            .written("[4, 30]")
            .sends({4, 30, 0})
            .takes(30000)
            .says(running("Running clean process", "for 30 seconds")),
    };
    facts.typedRefusals = {{made<UltrasoundCleaningCmd>(Type(4), 60516LL),
                            {"DE01745", "Duration: invalid parameter"},
                            "FWProcess::FWProcess(int, qlonglong, DurationType, bool)"}};
    facts.answers = serialAnswers();
    return facts;
}

TEST(UltrasoundCleaningCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(UltrasoundCleaningCmd, needsADurationInAList)
{
    expectRefusal("DE02199", "Expected recirculation duration parameter", ofList,
                  [] { UltrasoundCleaningCmd(List{4}); });
    expectRefusal("DE02196", "Cleaning type: expected INT parameter", ofList,
                  [] { UltrasoundCleaningCmd(List{"x"}); });
}

TEST(UltrasoundCleaningCmd, tellsWhatAListNeeds)
{
    EXPECT_EQ(argumentsOf("ULTRASOUND_CLEAN"),
              (Lines{"type (int): 1 full cleaning, 2 emptying, 3 filling, 4 cleaning alone",
                     "  XML-RPC, another type: DE02193", "  list, another type: DE02196",
                     "  XML-RPC, out of range: DE02192",
                     "duration (int) = 30: 1 to 60515; 245 as configured; needed in a list",
                     "  list, missing: DE02199", "  XML-RPC, another type: DE02195",
                     "  list, another type: DE02198", "  XML-RPC, out of range: DE02194"}));
}

TEST(UltrasoundCleaningCmd, checksNoRangesInAList)
{
    const UltrasoundCleaningCmd command(List{7, 4294967299LL});
    EXPECT_EQ(command.parameters(), (List{7, 4294967299LL}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[7, 3]");
    EXPECT_EQ(command.commandString(), "Ultrasound cleaning");
    for (const bool detailed : {false, true})
        EXPECT_EQ(command.actionString(detailed).m_text, "In progress");
    EXPECT_EQ(UltrasoundCleaningCmd(List{4, 0}).serialParameters(1), (QList<int>{4, 0, 0}));
    EXPECT_EQ(UltrasoundCleaningCmd(List{4, -5}).serialParameters(1), (QList<int>{4, 0, 0}));
}

TEST(UltrasoundCleaningCmd, tellsNoTimeThatCannotBe)
{
    for (const int type : {2, 3, 4, 7}) {
        for (const qlonglong duration :
             {-5LL, -50LL, -9223372036854775807LL, 0LL, 922337203685477580LL, 9223372036854775807LL})
            EXPECT_EQ(UltrasoundCleaningCmd(List{type, duration}).getCmdEstimatedExecutionTime(nullptr), 0)
                << type << ' ' << duration;
    }
    EXPECT_EQ(UltrasoundCleaningCmd(List{2, 92233720368547759LL}).getCmdEstimatedExecutionTime(nullptr),
              9223372036854775000LL);
}

TEST(UltrasoundCleaningCmd, knowsTypes)
{
    for (const int type : {1, 2, 3, 4})
        EXPECT_TRUE(UltrasoundCleaningCmd::checkCleaningType(type)) << type;
    for (const int type : {-1, 0, 5, 245})
        EXPECT_FALSE(UltrasoundCleaningCmd::checkCleaningType(type)) << type;
}

TEST(UltrasoundCleaningCmd, takesTheTimesOfTheStation)
{
    FW_UltrasoundCleaning station;
    station.setUltrasoundDuration(60);
    station.setEmptyingTime(5.4);
    station.setFillingTime(8.5);
    FW_Dispenser machine;
    machine.setDevice(station);
    const auto time = [&](int type, int duration) {
        return UltrasoundCleaningCmd(Type(type), duration).getCmdEstimatedExecutionTime(&machine);
    };
    EXPECT_EQ(time(1, 245), 83000); // 73.9, truncated, and 10
    EXPECT_EQ(time(1, 7), 83000);   // whatever its duration
    for (const int type : {2, 3, 4})
        EXPECT_EQ(time(type, 245), 70000) << type;
    EXPECT_EQ(time(2, 300), 30000);
    EXPECT_EQ(time(3, 309), 30000);
    EXPECT_EQ(time(4, 300), 300000);

    const FW_Mixer mixer;
    EXPECT_EQ(UltrasoundCleaningCmd().getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(UltrasoundCleaningCmd().getCmdEstimatedExecutionTime(nullptr), 0);
}

} // namespace
