// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovetorefillcmd.h"

#include "base/commandcontract.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_turntable.h>

#include <type_traits>

namespace {

using namespace testing_base;

FW_Dispenser withRefillAngle(int degrees)
{
    FW_Turntable turntable;
    turntable.setRefillAngle(degrees);
    FW_Dispenser dispenser;
    dispenser.setDevice(turntable);
    return dispenser;
}

CommandFacts facts(const FW_Dispenser *machine, const QList<int> &sent)
{
    CommandFacts facts(formsOf<TurntableMoveToRefillCmd>(machine));
    facts.catalogue = {"TURNTABLE_MOVE_TO_REFILL", 101, "0016", 1};
    facts.protoType = 1;
    facts.valueFunction =
        "TurntableMoveToRefillCmd::TurntableMoveToRefillCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
    facts.listFunction =
        "TurntableMoveToRefillCmd::TurntableMoveToRefillCmd(QList<QVariant>, const FW_Dispenser*)";
    facts.arguments = {
        required(Integer, {"DE01914", "DE01915", "Turntable movement position ID: expected INT parameter"})};
    facts.getters = {getter(&SerialProtoCommand::moduleID)};
    facts.words = Words("Turntable move to refill position", "Moving turntable to refill position");
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.afterDefaults = Request().parameters({0}).written("[0]").sends(sent); // the machine stays
    facts.requests = {
        Request({7}).typed<TurntableMoveToRefillCmd>(7, machine).written("[7]").sends(sent).module(7),
        Request({-1}).typed<TurntableMoveToRefillCmd>(-1, machine).written("[-1]").sends(sent).module(-1),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(TurntableMoveToRefillCmd, keepsTheCommandContract)
{
    const FW_Dispenser dispenser = withRefillAngle(200);
    expectCommandContract(facts(&dispenser, {1, 2, 160, 1}));
}

TEST(TurntableMoveToRefillCmd, keepsTheCommandContractWithoutAMachine)
{
    expectCommandContract(facts(nullptr, {}));
}

TEST(TurntableMoveToRefillCmd, turnsByTheRefillAngle)
{
    struct Row
    {
        int angle;
        QList<int> sent;
    };
    const Row rows[] = {{0, {1, 2, 0, 0}},     {90, {1, 2, 90, 0}}, {180, {1, 2, 180, 0}},
                        {181, {1, 2, 179, 1}}, {360, {1, 2, 0, 1}}, {361, {1, 2, 0, 0}},
                        {-1, {1, 2, 0, 0}}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.angle);
        const FW_Dispenser dispenser = withRefillAngle(row.angle);
        const TurntableMoveToRefillCmd command(3, &dispenser);
        EXPECT_EQ(command.serialParameters(1), row.sent);
        EXPECT_EQ(command.serialParameters(2), row.sent);
        EXPECT_EQ(command.moduleID(), 3);
    }
}

TEST(TurntableMoveToRefillCmd, sendsNothingWithoutATurntable)
{
    const FW_Dispenser none;
    EXPECT_EQ(TurntableMoveToRefillCmd(3, &none).serialParameters(1), QList<int>());
    EXPECT_EQ(TurntableMoveToRefillCmd(arrayOf(3), &none).serialParameters(1), QList<int>());
    EXPECT_EQ(TurntableMoveToRefillCmd(List{3}, nullptr).serialParameters(1), QList<int>());
}

TEST(TurntableMoveToRefillCmd, asksForATurntableThatIsThereEnabledOrNot)
{
    FW_Dispenser dispenser = withRefillAngle(90);
    dispenser.getDevice(FW_Device::Turntable)->setEnabled(false);
    EXPECT_EQ(TurntableMoveToRefillCmd(3, &dispenser).serialParameters(1), (QList<int>{1, 2, 90, 0}));
}

TEST(TurntableMoveToRefillCmd, doesNotMistakeOtherArgumentsForAPosition)
{
    using Machine = const FW_Dispenser *;
    static_assert(!std::is_constructible_v<TurntableMoveToRefillCmd, bool, Machine>);
    static_assert(!std::is_constructible_v<TurntableMoveToRefillCmd, double, Machine>);
    static_assert(!std::is_constructible_v<TurntableMoveToRefillCmd, const char *, Machine>);
    static_assert(!std::is_constructible_v<TurntableMoveToRefillCmd, int, const FW_Mixer *>);
}

} // namespace
