// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/motorrunningcmd.h"

#include "base/commandcontract.h"

#include <limits>
#include <type_traits>

namespace {

using namespace testing_base;

Words running(const char *detailed)
{
    return {"Motor running", inProgress(), detailed};
}

TEST(MotorRunningCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<MotorRunningCmd>());
    facts.catalogue = {"MOTOR_RUNNING", 41, "0011", 1};
    facts.protoType = 1;
    facts.valueFunction = "MotorRunningCmd::MotorRunningCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "MotorRunningCmd::MotorRunningCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00965", "DE01542", "Position ID: expected INT parameter"}).takes({-1, 0, 300}),
        optional(Whole, {"DE00966", "DE01543", "Motor running duration: expected INT parameter",
                         "Motor running duration: expected INT or LONG parameter"})
            .takes({-1, 0, 120541})};
    facts.getters = {getter(&MotorRunningCmd::moduleID), getter(&MotorRunningCmd::duration)};
    facts.defaults = Request()
                         .parameters({0, 300LL})
                         .written("[0, 300]")
                         .sends({54, 1})
                         .says(running("Activating motor running on circuit position 0"));
    struct Row
    {
        int position;
        qlonglong duration;
        const char *written;
        QList<int> sent;
        const char *detailed;
    };
    const Row rows[] = {
        {3, 1000, "[3, 1000]", {16, 4}, "Activating motor running on circuit position 3"},
        {4, 10, "[4, 10]", {10, 0}, "Activating motor running on circuit position 4"},
        {5, 0, "[5, 0]", {0, 0}, "Activating motor running on circuit position 5"},
        {6, 60515, "[6, 60515]", {245, 245}, "Activating motor running on circuit position 6"},
        {7, 120540, "[7, 120540]", {0, 244, 1}, "Activating motor running on circuit position 7"},
        {8, -1, "[8, -1]", {0, 0}, "Activating motor running on circuit position 8"},
    };
    for (const Row &row : rows)
        facts.requests.push_back(Request({row.position, static_cast<int>(row.duration)})
                                     .parameters({row.position, row.duration})
                                     .typed<MotorRunningCmd>(row.position, row.duration)
                                     .written(row.written)
                                     .sends(row.sent)
                                     .module(row.position)
                                     .says(running(row.detailed)));
    facts.requests.push_back(Request({2})
                                 .parameters({2, 300LL})
                                 .written("[2, 300]")
                                 .sends({54, 1})
                                 .module(2)
                                 .says(running("Activating motor running on circuit position 2")));
    facts.answers = serialAnswers();
    expectCommandContract(facts);
}

TEST(MotorRunningCmd, keepsADurationThatNoIntHolds)
{
    const MotorRunningCmd command(List{1, 4294967299LL});
    EXPECT_EQ(command.duration(), 4294967299LL);
    EXPECT_EQ(MotorRunningCmd(command.xmlrpc_parameters()).duration(), 4294967299LL);
}

TEST(MotorRunningCmd, knowsTheDurations)
{
    for (const unsigned long long duration : {1ULL, 300ULL, 120540ULL})
        EXPECT_TRUE(MotorRunningCmd::checkDuration(duration)) << duration;
    for (const unsigned long long duration :
         {0ULL, 120541ULL, std::numeric_limits<unsigned long long>::max()})
        EXPECT_FALSE(MotorRunningCmd::checkDuration(duration)) << duration;
}

TEST(MotorRunningCmd, doesNotMistakeOneArgumentForAMotor)
{
    static_assert(!std::is_constructible_v<MotorRunningCmd, int>);
    static_assert(!std::is_constructible_v<MotorRunningCmd, bool>);
    static_assert(!std::is_constructible_v<MotorRunningCmd, double>);
    static_assert(!std::is_constructible_v<MotorRunningCmd, const char *>);
}

} // namespace
