// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/autocapcmd.h"

#include "base/commandcontract.h"

#include <QuvFramework/fw_version.h>

#include <type_traits>

namespace {

using namespace testing_base;
using Movement = AutocapCmd::AutocapMovementType;

CommandFacts facts()
{
    const Words others("Cap movement", "Moving cap");
    CommandFacts facts(formsOf<AutocapCmd>());
    facts.catalogue = {"AUTOCAP_MOVE", 3, "0041", 1};
    facts.protoType = 1;
    facts.valueFunction = "AutocapCmd::AutocapCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "AutocapCmd::AutocapCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE00290", "DE00292", "Autocap movement type: expected INT parameter"})};
    facts.getters = {getter(&AutocapCmd::movementType)};
    facts.words = others;
    facts.defaults = Request().parameters({-1}).notWritten().sends({-1});
    facts.requests = {
        Request({0}).typed<AutocapCmd>(0).written("[0]").sends({0}).takes(1200).says(
            {"Cap close", "Closing cap"}),
        Request({1}).typed<AutocapCmd>(1).written("[1]").sends({1}).takes(1200).says(
            {"Cap open", "Opening cap"}),
    };
    for (int movement : {-2, 2, 3, 4, 5, 6, 7}) {
        const std::string dump = '[' + std::to_string(movement) + ']';
        facts.requests.push_back(
            Request({movement}).typed<AutocapCmd>(movement).written(dump).sends({movement}));
    }
    facts.answers = serialAnswers();
    return facts;
}

TEST(AutocapCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(AutocapCmd, namesTwoMovements)
{
    EXPECT_EQ(AutocapCmd(AutocapCmd::Close).movementType(), 0);
    EXPECT_EQ(AutocapCmd(AutocapCmd::Open).movementType(), 1);
}

TEST(AutocapCmd, doesNotMistakeOtherArgumentsForAMovement)
{
    static_assert(!std::is_constructible_v<AutocapCmd, bool>);
    static_assert(!std::is_constructible_v<AutocapCmd, double>);
    static_assert(!std::is_constructible_v<AutocapCmd, const char *>);
    static_assert(!std::is_convertible_v<int, AutocapCmd>);
}

TEST(AutocapCmd, knowsTheMovements)
{
    for (int movement : {0, 1, 2, 3, 4, 5, 6})
        EXPECT_TRUE(AutocapCmd::checkMovementType(movement)) << movement;
    for (int movement : {-1, 7})
        EXPECT_FALSE(AutocapCmd::checkMovementType(movement)) << movement;
}

TEST(AutocapCmd, knowsWhichFirmwareHasAMovement)
{
    const FW_Version all(63, 39);
    for (const FW_Version &version :
         {FW_Version(), FW_Version(63, 0), FW_Version(63, 38), FW_Version(70, 99), all}) {
        for (int movement : {0, 1, 2, 3})
            EXPECT_TRUE(AutocapCmd::isSupportedMovement(static_cast<Movement>(movement), version))
                << movement;
        for (int movement : {-1, 7})
            EXPECT_FALSE(AutocapCmd::isSupportedMovement(static_cast<Movement>(movement), version))
                << movement;
    }
    for (int movement : {4, 5, 6}) {
        SCOPED_TRACE(movement);
        EXPECT_TRUE(AutocapCmd::isSupportedMovement(static_cast<Movement>(movement), all));
        for (const FW_Version &version :
             {FW_Version(), FW_Version(63, 38), FW_Version(70, 99), FW_Version(72, 39)}) {
            SCOPED_TRACE(version.toString().toStdString());
            EXPECT_FALSE(AutocapCmd::isSupportedMovement(static_cast<Movement>(movement), version));
        }
    }
}

TEST(AutocapCmd, tellsItsVersion)
{
    const FW_Version all(63, 39);
    const FW_Version some(63, 38);
    const FW_Version other(70, 39);
    EXPECT_EQ(AutocapCmd::commandVersion(nullptr), 0);
    EXPECT_EQ(AutocapCmd::commandVersion(&all), 2);
    EXPECT_EQ(AutocapCmd::commandVersion(&some), 1);
    EXPECT_EQ(AutocapCmd::commandVersion(&other), 1);
}

} // namespace
