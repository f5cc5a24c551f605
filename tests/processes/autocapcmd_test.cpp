// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/autocapcmd.h"

#include "base/basetesting.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_version.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;
using Movement = AutocapCmd::AutocapMovementType;

constexpr char ofValue[] = "AutocapCmd::AutocapCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "AutocapCmd::AutocapCmd(QList<QVariant>)";
constexpr char ofBaseValue[] =
    "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char ofBaseList[] = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";

TEST(AutocapCmd, hasNoMovementAtFirst)
{
    const AutocapCmd command;
    EXPECT_EQ(command.command(), "AUTOCAP_MOVE");
    EXPECT_EQ(command.protoType(), 1);
    EXPECT_EQ(command.movementType(), -1);
    EXPECT_FALSE(command.machine());
    ASSERT_TRUE(ProtoCommandList::row("AUTOCAP_MOVE"));
    EXPECT_EQ(ProtoCommandList::row("AUTOCAP_MOVE")->id, 3);
    EXPECT_EQ(ProtoCommandList::row("AUTOCAP_MOVE")->code, "0041");
}

TEST(AutocapCmd, takesAMovement)
{
    for (int movement : {0, 1, 2, 6, 7, -2}) {
        for (const AutocapCmd &command :
             {AutocapCmd(movement), AutocapCmd(arrayOf(movement)), AutocapCmd(List{movement}),
              AutocapCmd(arrayOf(movement, "rest")), AutocapCmd(List{movement, QStringLiteral("rest")})}) {
            EXPECT_EQ(command.movementType(), movement);
            EXPECT_EQ(command.parameters(), List{movement});
            bool ok = false;
            EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)), '[' + std::to_string(movement) + ']');
            EXPECT_TRUE(ok);
            EXPECT_EQ(command.serialParameters(1), QList<int>{movement});
            EXPECT_EQ(command.serialParameters(2), QList<int>{movement});
        }
    }
    EXPECT_EQ(AutocapCmd(AutocapCmd::Close).movementType(), 0);
    EXPECT_EQ(AutocapCmd(AutocapCmd::Open).movementType(), 1);
}

TEST(AutocapCmd, isNotWrittenWithoutAMovement)
{
    bool ok = true;
    EXPECT_EQ(dumped(AutocapCmd().xmlrpc_parameters(&ok)), "[]");
    EXPECT_FALSE(ok);
    EXPECT_EQ(dumped(AutocapCmd().xmlrpc_parameters()), "[]");
    EXPECT_EQ(AutocapCmd().parameters(), List{-1});
    EXPECT_EQ(AutocapCmd().serialParameters(1), QList<int>{-1});
    EXPECT_EQ(dumped(AutocapCmd(1).toXmlRpcValue("user")), R"(["user", "AUTOCAP_MOVE", 1])");
}

TEST(AutocapCmd, refusesAMovementThatIsNoInteger)
{
    constexpr char text[] = "Autocap movement type: expected INT parameter";
    for (const Value &bad : {Value(true), Value(1.0), Value("1"), arrayOf(1)}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00290", text, ofValue, [&] { const AutocapCmd command(arrayOf(bad)); });
    }
    for (const QVariant &bad :
         {QVariant(), QVariant(true), QVariant(1.0), QVariant("1"), QVariant(2147483648LL)})
        expectRefusal("DE00292", text, ofList, [&] { const AutocapCmd command(List{bad}); });
}

TEST(AutocapCmd, countsItsArgumentsFirst)
{
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBaseValue,
                  [] { const AutocapCmd command{Value()}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBaseValue,
                  [] { const AutocapCmd command(Value(1)); });
    expectRefusal("DE00312", "AUTOCAP_MOVE command : expected at least 1 parameters, received 0 instead!",
                  ofBaseValue, [] { const AutocapCmd command(arrayOf()); });
    expectRefusal("DE00313", "AUTOCAP_MOVE command : expected at least 1 parameters, received 0 instead!",
                  ofBaseList, [] { const AutocapCmd command{List()}; });
}

TEST(AutocapCmd, doesNotMistakeOtherArgumentsForAMovement)
{
    static_assert(!std::is_constructible_v<AutocapCmd, bool>);
    static_assert(!std::is_constructible_v<AutocapCmd, double>);
    static_assert(!std::is_constructible_v<AutocapCmd, const char *>);
    static_assert(!std::is_convertible_v<int, AutocapCmd>);
}

TEST(AutocapCmd, goesBackToItsDefaults)
{
    AutocapCmd command(1);
    command.setDefaults();
    EXPECT_EQ(command.movementType(), -1);
    EXPECT_EQ(command.command(), "AUTOCAP_MOVE");
}

TEST(AutocapCmd, copiesTheMovement)
{
    const AutocapCmd command(5);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *moving = dynamic_cast<const AutocapCmd *>(clone.get());
    ASSERT_TRUE(moving);
    EXPECT_EQ(moving->movementType(), 5);
}

TEST(AutocapCmd, takesTimeToCloseAndToOpen)
{
    const FW_Dispenser machine;
    EXPECT_EQ(AutocapCmd().getCmdEstimatedExecutionTime(&machine), 0);
    EXPECT_EQ(AutocapCmd(0).getCmdEstimatedExecutionTime(&machine), 1200);
    EXPECT_EQ(AutocapCmd(1).getCmdEstimatedExecutionTime(nullptr), 1200);
    for (int movement : {-2, 2, 3, 4, 5, 6, 7})
        EXPECT_EQ(AutocapCmd(movement).getCmdEstimatedExecutionTime(&machine), 0);
}

TEST(AutocapCmd, saysHowTheCapMoves)
{
    const auto expectTexts = [](int movement, const char *command, const char *action) {
        EXPECT_EQ(AutocapCmd(movement).commandString(), command);
        for (bool detailed : {false, true}) {
            EXPECT_EQ(AutocapCmd(movement).actionString(detailed).m_text, action);
            EXPECT_EQ(AutocapCmd(movement).actionString(detailed).m_translated, action);
            EXPECT_STREQ(AutocapCmd(movement).actionString(detailed).m_context, "QuvProtocol");
        }
    };
    expectTexts(0, "Cap close", "Closing cap");
    expectTexts(1, "Cap open", "Opening cap");
    for (int movement : {-1, 2, 3, 4, 5, 6, 7})
        expectTexts(movement, "Cap movement", "Moving cap");
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
        EXPECT_TRUE(AutocapCmd::isSupportedMovement(static_cast<Movement>(movement), all));
        for (const FW_Version &version :
             {FW_Version(), FW_Version(63, 38), FW_Version(70, 99), FW_Version(72, 39)})
            EXPECT_FALSE(AutocapCmd::isSupportedMovement(static_cast<Movement>(movement), version));
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
