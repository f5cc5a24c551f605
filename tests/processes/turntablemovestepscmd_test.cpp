// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovestepscmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "TurntableMoveStepsCmd::TurntableMoveStepsCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "TurntableMoveStepsCmd::TurntableMoveStepsCmd(QList<QVariant>)";

Request stepsRequest(int direction, int speed, long long steps)
{
    const std::string action = "Moving turntable by " + std::to_string(steps) + " steps";
    const std::string count = std::to_string(steps);
    const std::string detailed = action + " - direction : " + count + " - speed : " + count;
    return Request({direction, speed, steps})
        .typed<TurntableMoveStepsCmd>(direction, speed, steps)
        .holds({direction, speed, steps})
        .says({"Turntable positioning by steps", action.c_str(), detailed.c_str()});
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<TurntableMoveStepsCmd>());
    facts.catalogue = {"TURNTABLE_MOVE_STEPS", 89, "0018", 3};
    facts.protoType = 1;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.arguments = {
        required(Integer, {"DE01759", "DE01762", "Turntable movement direction: expected INT parameter",
                           "Turntable movement type: expected INT parameter"}),
        required(Integer, {"DE01760", "DE01763", "Turntable speed: expected INT parameter"}),
        required(Whole, {"DE01761", "DE01764", "Turntable movement steps: expected INT parameter"})};
    facts.getters = {getter(&TurntableMoveStepsCmd::direction), getter(&TurntableMoveStepsCmd::speed),
                     getter(&TurntableMoveStepsCmd::steps)};
    facts.comesBackFromList = false; // parameters() are those of the firmware
    facts.defaults =
        stepsRequest(2, 245, 0).parameters({2, 245, 1, 0}).written("[2, 245, 0]").sends({2, 245, 1, 0});
    facts.requests = {
        stepsRequest(0, 50, 120).parameters({0, 50, 1, 120}).written("[0, 50, 120]").sends({0, 50, 1, 120}),
        stepsRequest(1, 100, 300)
            .parameters({1, 100, 2, 54, 1})
            .written("[1, 100, 300]")
            .sends({1, 100, 2, 54, 1}),
        stepsRequest(7, -3, 0).parameters({7, -3, 1, 0}).written("[7, -3, 0]").sends({7, -3, 1, 0}),
        stepsRequest(1, 100, -1).parameters({}).written("[1, 100, -1]").sends({}),
        // beyond an int it travels as a double
        stepsRequest(2, 9, 4294967296LL)
            .parameters({2, 9, 5, 160, 104, 124, 42, 1})
            .written("[2, 9, 4.29497e+09]")
            .sends({2, 9, 5, 160, 104, 124, 42, 1}),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(TurntableMoveStepsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(TurntableMoveStepsCmd, readsTheThirdElementOfItsOwnListAsSteps)
{
    const TurntableMoveStepsCmd command(1, 100, 300);
    EXPECT_EQ(TurntableMoveStepsCmd(command.parameters()).steps(), 2) << "the number of digits";
    expectRefusal("DE00313",
                  "TURNTABLE_MOVE_STEPS command : expected at least 3 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { const TurntableMoveStepsCmd lost(TurntableMoveStepsCmd(1, 100, -1).parameters()); });
}

TEST(TurntableMoveStepsCmd, takesADoubleForStepsBeyondAnIntOnly)
{
    EXPECT_EQ(TurntableMoveStepsCmd(arrayOf(1, 100, 2147483648.0)).steps(), 2147483648LL);
    for (double number : {300.0, 2147483647.0, 4294967296.5, 1e19}) {
        expectRefusal("DE01761", "Turntable movement steps: expected INT parameter", ofValue,
                      [&] { const TurntableMoveStepsCmd command(arrayOf(1, 100, number)); });
    }
}

TEST(TurntableMoveStepsCmd, doesNotMistakeOneArgumentForAMovement)
{
    static_assert(!std::is_constructible_v<TurntableMoveStepsCmd, int>);
    static_assert(!std::is_constructible_v<TurntableMoveStepsCmd, bool>);
    static_assert(!std::is_constructible_v<TurntableMoveStepsCmd, double>);
    static_assert(!std::is_constructible_v<TurntableMoveStepsCmd, const char *>);
}

} // namespace
