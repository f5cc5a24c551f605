// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgequantitycmd.h"

#include "base/commandcontract.h"
#include "dispensing/dispensertesting.h"

#include <type_traits>

namespace {

using namespace testing_dispensing;
using Command = PurgeQuantityCmd;

constexpr char ofRule[] = "PurgeQuantityCmd::PurgeQuantityCmd(double, bool, int)";
constexpr char ofHead[] = "PurgeQuantityCmd::PurgeQuantityCmd(double, int, int)";
constexpr char ofValue[] = "PurgeQuantityCmd::PurgeQuantityCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "PurgeQuantityCmd::PurgeQuantityCmd(QList<QVariant>)";
constexpr char invalid[] = "PurgeQuantityCmd failed: invalid PurgeFormula type parameter";

Value purgeStruct(double quantity, int unit, bool onlyFilled, int head)
{
    return structOf({{"purge_quantity", Value(quantity)},
                     {"quantity_unit", Value(unit)},
                     {"only_filled", Value(onlyFilled)},
                     {"head", Value(head)}});
}

Words purgeOf(const char *formula)
{
    return {"Purge", "Purge in progress", formula};
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = {"PURGE", 17, "0017", 1};
    facts.protoType = 1;
    facts.readsByHand = true; // a struct, or the four members in their order
    facts.getters = {getter(&Command::purgeFormula)};
    facts.defaults =
        Request()
            .parameters({1.0, 2, false, 0})
            .written(R"([{"head": 0, "only_filled": false, "purge_quantity": 1.00000, "quantity_unit": 2}])")
            .holds({variantOf(PurgeFormula())})
            .says(purgeOf("Purge of formula: 1 strokes of each circuit"));
    facts.requests = {
        Request({2.5, 3, true, 0})
            .value(arrayOf(purgeStruct(2.5, 3, true, 0)))
            .typed<Command>(2.5, true, 3)
            .written(R"([{"head": 0, "only_filled": true, "purge_quantity": 2.50000, "quantity_unit": 3}])")
            .holds({variantOf(PurgeFormula(2.5, true, 3))})
            .says(purgeOf("Purge of formula: 2.5 of each circuit")),
        Request({2.5, 2, false, 2})
            .value(arrayOf(purgeStruct(2.5, 2, false, 2)))
            .typed<Command>(2.5, 2, 2)
            .written(R"([{"head": 2, "only_filled": false, "purge_quantity": 2.50000, "quantity_unit": 2}])")
            .holds({variantOf(PurgeFormula(2.5, 2, 2))})
            .says(purgeOf("Purge of formula: 2.5 strokes of each circuit")),
        Request({4.0, 1, false, 1})
            .value(arrayOf(purgeStruct(4, 1, false, 1)))
            .typed<Command>(PurgeFormula(4, 1, 1))
            .written(R"([{"head": 1, "only_filled": false, "purge_quantity": 4.00000, "quantity_unit": 1}])")
            .holds({variantOf(PurgeFormula(4, 1, 1))})
            .says(purgeOf("Purge of formula: 4 steps of each circuit")),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(PurgeQuantityCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(PurgeQuantityCmd, takesAHeadAndARuleAtOnceFromAClient)
{
    const List both = {2.5, 3, true, 2};
    EXPECT_EQ(PurgeQuantityCmd(both).parameters(), both);
    EXPECT_EQ(PurgeQuantityCmd(arrayOf(purgeStruct(2.5, 1, true, 2))).parameters(), (List{2.5, 1, true, 2}));
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
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01241", invalid, ofValue, [&] {
            const PurgeQuantityCmd none(structOf({{"purge_quantity", bad}}));
        });
    }
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
        SCOPED_TRACE(shown(bad));
        expectRefusal("DE01259", invalid, ofList, [&] { const PurgeQuantityCmd command(bad); });
    }
}

TEST(PurgeQuantityCmd, doesNotMistakeOtherArgumentsForAPurge)
{
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, bool>);
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, int>);
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, double>);
    static_assert(!std::is_constructible_v<PurgeQuantityCmd, const char *>);
}

} // namespace
