// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovecmd.h"

#include "base/commandcontract.h"

#include <QuvFramework/fw_version.h>

#include <type_traits>

namespace {

using namespace testing_base;

Argument requiredInt(const char *valueCode, const char *listCode, const char *text)
{
    return required(Integer, {valueCode, listCode, text});
}

std::vector<Request> requests()
{
    return {
        Request({7, 1, 0, 90, 1, 50})
            .typed<TurntableMoveCmd>(7, 1, 0, 90, 1, 50)
            .written("[7, 1, 0, 90, 1, 50]")
            .sends({1, 0, 90, 1})
            .module(7)
            .says({"Circuit positioning", "Moving turntable to circuit 7"}),
        Request({9, 2, 1, 180, 0, 100})
            .typed<TurntableMoveCmd>(9, 2, 1, 180, 0, 100)
            .written("[9, 2, 1, 180, 0, 100]")
            .sends({2, 1, 180, 0})
            .module(9)
            .says({"Circuit positioning without rollbar unlock",
                   "Moving turntable to circuit 9 (no rollbar unlock)"}),
        Request({4, 0, 2, 45, 1, 20})
            .written("[4, 0, 2, 45, 1, 20]")
            .sends({0, 2, 45, 1, 20})
            .module(4)
            .says({"Reference position search", "Moving turntable to reference position"}),
        // nothing is out of range
        Request({-4, 3, -1, 361, 7, 0})
            .written("[-4, 3, -1, 361, 7, 0]")
            .sends({3, -1, 361, 7, 0})
            .module(-4)
            .says({"", "In progress"}),
        Request({7, 1, 2, 0, 0})
            .typed<TurntableMoveCmd>(7)
            .parameters({7, 1, 2, 0, 0, 245})
            .written("[7, 1, 2, 0, 0, 245]")
            .sends({1, 2, 0, 0})
            .module(7)
            .says({"Circuit positioning", "Moving turntable to circuit 7"}),
        Request({8, 1, 2, 90, 1})
            .typed<TurntableMoveCmd>(8, 90, 1)
            .parameters({8, 1, 2, 90, 1, 245})
            .written("[8, 1, 2, 90, 1, 245]")
            .sends({1, 2, 90, 1})
            .module(8)
            .says({"Circuit positioning", "Moving turntable to circuit 8"}),
    };
}

CommandFacts facts()
{
    constexpr char noRefillDirection[] = "Turntable refill direction: expected INT parameter";
    CommandFacts facts(formsOf<TurntableMoveCmd>());
    facts.catalogue = {"TURNTABLE_MOVE", 88, "0016", 4};
    facts.protoType = 1;
    facts.valueFunction = "TurntableMoveCmd::TurntableMoveCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "TurntableMoveCmd::TurntableMoveCmd(QList<QVariant>)";
    facts.arguments = {
        requiredInt("DE01659", "DE01660", "Turntable movement position ID: expected INT parameter"),
        requiredInt("DE01649", "DE01654", "Turntable movement type: expected INT parameter"),
        requiredInt("DE01650", "DE01655", "Turntable movement direction: expected INT parameter"),
        requiredInt("DE01651", "DE01656", "Turntable refill angle: expected INT parameter"),
        requiredInt("DE01652", "DE01657", noRefillDirection)
            .absent({"DE01652", "DE01657", noRefillDirection}),
        optional(Integer, {"DE01653", "DE01658", "Turntable speed: expected INT parameter"})};
    facts.getters = {getter(&SerialProtoCommand::moduleID),      getter(&TurntableMoveCmd::movementType),
                     getter(&TurntableMoveCmd::direction),       getter(&TurntableMoveCmd::refillAngle),
                     getter(&TurntableMoveCmd::refillDirection), getter(&TurntableMoveCmd::speed)};
    facts.defaults = Request()
                         .parameters({0, 1, 2, 0, 0, 245})
                         .written("[0, 1, 2, 0, 0, 245]")
                         .sends({1, 2, 0, 0})
                         .says({"Circuit positioning", "Moving turntable to circuit 0"});
    facts.requests = requests();
    facts.answers = serialAnswers();
    return facts;
}

TEST(TurntableMoveCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(TurntableMoveCmd, takesThePositionForMovementsToACircuitOnly)
{
    for (int type : {1, 2})
        EXPECT_EQ(TurntableMoveCmd(7, type, 2, 0, 0, 50).moduleID(), 7) << type;
    for (int type : {0, 3, -1}) {
        SCOPED_TRACE(type);
        const TurntableMoveCmd command(7, type, 1, 90, 0, 50);
        EXPECT_EQ(command.moduleID(), 0);
        EXPECT_EQ(command.parameters(), (List{0, type, 1, 90, 0, 50}));
        EXPECT_EQ(command.serialParameters(1), (QList<int>{type, 1, 90, 0, 50}));
    }
}

TEST(TurntableMoveCmd, knowsThreeMovements)
{
    EXPECT_EQ(TurntableMoveCmd::ReferenceSearch, 0);
    EXPECT_EQ(TurntableMoveCmd::CircuitPositioning, 1);
    EXPECT_EQ(TurntableMoveCmd::LockedCircuitPositioning, 2);
    for (int type : {0, 1, 2})
        EXPECT_TRUE(TurntableMoveCmd::checkMovementType(type)) << type;
    for (int type : {-1, 3})
        EXPECT_FALSE(TurntableMoveCmd::checkMovementType(type)) << type;
}

TEST(TurntableMoveCmd, knowsWhichFirmwareKeepsTheRollbarLocked)
{
    const Gate gates[] = {{FW_Version(69, 2), true},   {FW_Version(69, 3), true},  {FW_Version(69, 1), false},
                          {FW_Version(69, 0), false},  {FW_Version(68, 9), false}, {FW_Version(70, 9), false},
                          {FW_Version(63, 99), false}, {FW_Version(), false}};
    for (const Gate &gate : gates) {
        SCOPED_TRACE(gate.version.toString().toStdString());
        EXPECT_EQ(TurntableMoveCmd::isMovementTypeSupported(2, gate.version), gate.isSupported);
        for (int type : {-1, 0, 1, 3})
            EXPECT_TRUE(TurntableMoveCmd::isMovementTypeSupported(type, gate.version)) << type;
    }
}

TEST(TurntableMoveCmd, turnsHalfATurnAtMost)
{
    struct Row
    {
        int angle;
        int rotation;
        int direction;
    };
    constexpr Row rows[] = {{0, 0, 0},     {1, 1, 0},    {90, 90, 0}, {180, 180, 0},
                            {181, 179, 1}, {270, 90, 1}, {359, 1, 1}, {360, 0, 1}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.angle);
        int rotation = 77;
        int direction = 77;
        EXPECT_TRUE(TurntableMoveCmd::convertFromConfiguration(row.angle, rotation, direction));
        EXPECT_EQ(rotation, row.rotation);
        EXPECT_EQ(direction, row.direction);
    }
    for (int angle : {-1, 361, -360, 720}) {
        SCOPED_TRACE(angle);
        int rotation = 77;
        int direction = 78;
        EXPECT_FALSE(TurntableMoveCmd::convertFromConfiguration(angle, rotation, direction));
        EXPECT_EQ(rotation, 77);
        EXPECT_EQ(direction, 78);
    }
}

TEST(TurntableMoveCmd, doesNotMistakeOtherArgumentsForAPosition)
{
    static_assert(!std::is_constructible_v<TurntableMoveCmd, bool>);
    static_assert(!std::is_constructible_v<TurntableMoveCmd, double>);
    static_assert(!std::is_constructible_v<TurntableMoveCmd, const char *>);
    static_assert(!std::is_convertible_v<int, TurntableMoveCmd>);
}

} // namespace
