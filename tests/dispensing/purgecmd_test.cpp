// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgecmd.h"

#include "catalogue/protocommandlist.h"
#include "dispensing/dispensertesting.h"

#include <memory>

namespace {

using namespace testing_dispensing;

TEST(PurgeCmd, hasANameAndAMachine)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_FALSE(PurgeCmd().machine());
    EXPECT_FALSE(PurgeCmd(nullptr).machine());
    for (const PurgeCmd &command :
         {PurgeCmd(&machine), PurgeCmd(arrayOf("anything"), &machine), PurgeCmd(List{1}, &machine)}) {
        EXPECT_EQ(command.command(), "PURGE");
        EXPECT_EQ(command.protoType(), 1);
        ASSERT_TRUE(command.machine());
        EXPECT_EQ(command.machine()->id(), 7);
        EXPECT_NE(command.machine(), &machine);
        EXPECT_EQ(command.serialParameters(1), QList<int>());
    }
    EXPECT_EQ(PurgeCmd().command(), "PURGE");
    ASSERT_TRUE(ProtoCommandList::row("PURGE"));
    EXPECT_EQ(ProtoCommandList::row("PURGE")->id, 17);
    EXPECT_EQ(ProtoCommandList::row("PURGE")->code, "0017");
}

TEST(PurgeCmd, countsItsArguments)
{
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { PurgeCmd(Value(1), nullptr); });
    expectRefusal("DE00312", "PURGE command : expected at least 1 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { PurgeCmd(arrayOf(), nullptr); });
    expectRefusal("DE00313", "PURGE command : expected at least 1 parameters, received 0 instead!",
                  "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
                  [] { PurgeCmd(List(), nullptr); });
}

TEST(PurgeCmd, copiesDeeply)
{
    const FW_Dispenser machine = dispenser();
    const PurgeCmd command(&machine);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    ASSERT_TRUE(dynamic_cast<const PurgeCmd *>(clone.get()));
    ASSERT_TRUE(clone->machine());
    EXPECT_NE(clone->machine(), command.machine());
}

TEST(PurgeCmd, saysThatItPurges)
{
    const TranslatedTexts translated;
    EXPECT_EQ(PurgeCmd().commandString(), "Purge");
    for (bool detailed : {false, true}) {
        EXPECT_EQ(PurgeCmd().actionString(detailed).m_text, "Purge in progress");
        EXPECT_EQ(PurgeCmd().actionString(detailed).m_translated, translation("Purge in progress"));
        EXPECT_STREQ(PurgeCmd().actionString(detailed).m_context, "QuvProtocol");
    }
}

} // namespace
