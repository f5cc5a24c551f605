// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgequantitycmd.h"

#include "dispensing/dispensertesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_dispensing;

constexpr char ofRule[] = "PurgeQuantityCmd::PurgeQuantityCmd(double, bool, int)";
constexpr char ofHead[] = "PurgeQuantityCmd::PurgeQuantityCmd(double, int, int)";
constexpr char ofValue[] = "PurgeQuantityCmd::PurgeQuantityCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "PurgeQuantityCmd::PurgeQuantityCmd(QList<QVariant>)";
constexpr char ofBaseValue[] =
    "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char ofBaseList[] = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";
constexpr char invalid[] = "PurgeQuantityCmd failed: invalid PurgeFormula type parameter";

TEST(PurgeQuantityCmd, purgesOneStrokeUnlessToldOtherwise)
{
    const PurgeQuantityCmd command;
    EXPECT_EQ(command.command(), "PURGE");
    EXPECT_EQ(command.protoType(), 1);
    EXPECT_FALSE(command.machine());
    EXPECT_EQ(command.parameters(), (List{1.0, 2, false, 0}));
}

TEST(PurgeQuantityCmd, isBuiltInAnyForm)
{
    EXPECT_EQ(PurgeQuantityCmd(2.5, true, 3).parameters(), (List{2.5, 3, true, 0}));
    EXPECT_EQ(PurgeQuantityCmd(2.5, 2, 3).parameters(), (List{2.5, 3, false, 2}));
    EXPECT_EQ(PurgeQuantityCmd(PurgeFormula(4, 1, 1)).parameters(), (List{4.0, 1, false, 1}));
    EXPECT_EQ(PurgeQuantityCmd(List{2.5, 3, true, 2}).parameters(), (List{2.5, 3, true, 2}));
    EXPECT_EQ(PurgeQuantityCmd(arrayOf(structOf({{"purge_quantity", Value(2.5)},
                                                 {"quantity_unit", Value(1)},
                                                 {"only_filled", Value(true)},
                                                 {"head", Value(2)}})))
                  .parameters(),
              (List{2.5, 1, true, 2}));
    EXPECT_EQ(PurgeQuantityCmd(2.5, 2, 3).purgeFormula(), PurgeFormula(2.5, 2, 3));
}

TEST(PurgeQuantityCmd, takesAPurgeThatIsTheWholeRequest)
{
    const PurgeQuantityCmd command(
        structOf({{"purge_quantity", Value(2.5)}, {"quantity_unit", Value(1)}, {"head", Value(2)}}));
    EXPECT_EQ(command.command(), "PURGE");
    EXPECT_EQ(command.parameters(), (List{2.5, 1, false, 2}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()),
              R"([{"head": 2, "only_filled": false, "purge_quantity": 2.50000, "quantity_unit": 1}])");
    for (const Value &bad : {Value("much"), Value(0)}) {
        expectRefusal("DE01241", invalid, ofValue, [&] {
            const PurgeQuantityCmd none(structOf({{"purge_quantity", bad}}));
        });
    }
}

TEST(PurgeQuantityCmd, isWrittenAsOneStruct)
{
    const PurgeQuantityCmd command(2.5, true, 3);
    bool ok = false;
    EXPECT_EQ(dumped(command.xmlrpc_parameters(&ok)),
              R"([{"head": 0, "only_filled": true, "purge_quantity": 2.50000, "quantity_unit": 3}])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(
        dumped(command.toXmlRpcValue("user")),
        R"(["user", "PURGE", {"head": 0, "only_filled": true, "purge_quantity": 2.50000, "quantity_unit": 3}])");
    EXPECT_EQ(PurgeQuantityCmd(command.xmlrpc_parameters()).purgeFormula(), PurgeFormula(2.5, true, 3));
    EXPECT_EQ(PurgeQuantityCmd(command.parameters()).purgeFormula(), PurgeFormula(2.5, true, 3));
}

TEST(PurgeQuantityCmd, refusesWhatIsNoPurge)
{
    expectRefusal("DE01258", invalid, ofRule, [] { PurgeQuantityCmd(0, true, 3); });
    expectRefusal("DE01258", invalid, ofRule, [] { PurgeQuantityCmd(2.5, false, 4); });
    expectRefusal("DE01257", invalid, ofHead, [] { PurgeQuantityCmd(-1, 1, 3); });
    expectRefusal("DE01257", invalid, ofHead, [] { PurgeQuantityCmd(2.5, 3, 3); });
    for (const Value &bad : {Value(2.5), structOf({}), structOf({{"purge_quantity", Value("much")}}),
                             structOf({{"purge_quantity", Value(0)}})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01241", invalid, ofValue, [&] { const PurgeQuantityCmd command(arrayOf(bad)); });
    }
    for (const List &bad :
         {List{QVariant()}, List{QStringLiteral("1")}, List{0.0}, List{1.0, 9}, List{1.0, true}}) {
        expectRefusal("DE01259", invalid, ofList, [&] { const PurgeQuantityCmd command(bad); });
    }
}

TEST(PurgeQuantityCmd, countsItsArgumentsFirst)
{
    expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofBaseValue,
                  [] { const PurgeQuantityCmd command{Value()}; });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBaseValue, [] {
        const PurgeQuantityCmd command(structOf({{"head", Value(1)}}));
    });
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofBaseValue,
                  [] { const PurgeQuantityCmd command(Value(2.5)); });
    expectRefusal("DE00312", "PURGE command : expected at least 1 parameters, received 0 instead!",
                  ofBaseValue, [] { const PurgeQuantityCmd command(arrayOf()); });
    expectRefusal("DE00313", "PURGE command : expected at least 1 parameters, received 0 instead!",
                  ofBaseList, [] { const PurgeQuantityCmd command{List()}; });
}

TEST(PurgeQuantityCmd, doesNotMistakeOtherArgumentsForAPurge)
{
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, bool>);
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, int>);
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, double>);
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, const char *>);
}

TEST(PurgeQuantityCmd, copiesThePurge)
{
    const PurgeQuantityCmd command(2.5, true, 3);
    const std::unique_ptr<ProtoCommand> clone(static_cast<const ProtoCommand &>(command).clone());
    const auto *purging = dynamic_cast<const PurgeQuantityCmd *>(clone.get());
    ASSERT_TRUE(purging);
    EXPECT_EQ(purging->purgeFormula(), PurgeFormula(2.5, true, 3));
}

TEST(PurgeQuantityCmd, hasNoSerialFormAndNoTime)
{
    const FW_Dispenser machine = dispenser();
    EXPECT_EQ(PurgeQuantityCmd().serialParameters(1), QList<int>());
    EXPECT_EQ(PurgeQuantityCmd().getCmdEstimatedExecutionTime(&machine), 0);
}

TEST(PurgeQuantityCmd, saysWhatItPurges)
{
    const PurgeQuantityCmd command(2.5, 2, 2);
    const TranslatedTexts translated;
    EXPECT_EQ(command.commandString(), "Purge");
    EXPECT_EQ(command.actionString(false).m_text, "Purge in progress");
    EXPECT_EQ(command.actionString(false).m_translated, translation("Purge in progress"));
    EXPECT_EQ(command.actionString(true).m_text, "Purge of formula: 2.5 strokes of each circuit");
    EXPECT_EQ(command.actionString(true).m_translated,
              translation("Purge of formula: 2.5 strokes of each circuit"));
    EXPECT_STREQ(command.actionString(true).m_context, "QuvProtocol");
}

} // namespace
