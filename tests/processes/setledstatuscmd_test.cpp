// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/setledstatuscmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

CommandFacts facts()
{
    constexpr char invalid[] = "SetLedStatusCmd: invalid parameter";
    CommandFacts facts(formsOf<SetLedStatusCmd>());
    facts.catalogue = {"SET_LED_STATUS", 119, "0026", 1};
    facts.protoType = 1;
    facts.valueFunction = "SetLedStatusCmd::SetLedStatusCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetLedStatusCmd::SetLedStatusCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE02271", "DE02274", invalid}).takes({-1, 0, 300}),
        optional(Integer, {"DE02272", "DE02335", invalid})
            .outOfRange({-1, 246}, {"DE02272", "DE02335", invalid})
            .takes({0, 245}),
        optional(Text, {"DE02273", "DE02336", invalid})
            .outOfRange({"no colour", "#12345", "ff0000"}, {"DE02273", "DE02336", invalid})
            .takes({"", "#00000000"}),
    };
    facts.getters = {getter(&SetLedStatusCmd::led), getter(&SetLedStatusCmd::mode)};
    facts.words = Words("Led status", "Switching led status");
    facts.defaults = Request()
                         .parameters({0, 245, ""})
                         .written(R"([0, 245, ""])")
                         .holds({0, 245})
                         .sends({0, 245, 0, 0, 0, 0, 0});
    facts.requests = {
        Request({3, 0, "#80102030"})
            .typed<SetLedStatusCmd>(3, LedMode::Colour, QColor(0x10, 0x20, 0x30, 0x80))
            .written(R"([3, 0, "#80102030"])")
            .holds({3, 0})
            .sends({3, 0, 80, 166, 79, 144, 0}),
        Request({1, 0, "#ff00ff00"}) // an opaque colour needs a fifth digit
            .typed<SetLedStatusCmd>(1, LedMode::Colour, QColor(0, 255, 0))
            .written(R"([1, 0, "#ff00ff00"])")
            .holds({1, 0})
            .sends({1, 0, 234, 65, 94, 41, 1}),
        Request({1, 0, "#00000001"})
            .typed<SetLedStatusCmd>(1, LedMode::Colour, QColor(0, 0, 1, 0))
            .written(R"([1, 0, "#00000001"])")
            .holds({1, 0})
            .sends({1, 0, 1, 0, 0, 0, 0}),
        Request({2, 7, "#ffff0000"}) // another mode has no use for it
            .typed<SetLedStatusCmd>(2, LedMode(7), QColor(255, 0, 0))
            .written(R"([2, 7, "#ffff0000"])")
            .holds({2, 7})
            .sends({2, 7, 0, 0, 0, 0, 0}),
        Request({4})
            .parameters({4, 245, ""})
            .typed<SetLedStatusCmd>(4, LedMode::Unset, QColor())
            .written(R"([4, 245, ""])")
            .holds({4, 245})
            .sends({4, 245, 0, 0, 0, 0, 0}),
        Request({4, 0}) // no colour is black
            .parameters({4, 0, ""})
            .written(R"([4, 0, ""])")
            .holds({4, 0})
            .sends({4, 0, 144, 46, 93, 41, 1}),
        Request({1, 300, ""}) // believed in the typed form alone
            .onlyTyped()
            .typed<SetLedStatusCmd>(1, LedMode(300), QColor())
            .written(R"([1, 300, ""])")
            .holds({1, 300})
            .sends({1, 300, 0, 0, 0, 0, 0})
            .notReadBack(),
    };
    const Request &green = facts.requests[1];
    const Request sameGreen[] = {green.alsoFromList({1, 0, "#00ff00"}), green.alsoFromList({1, 0, "lime"}),
                                 green.alsoFromList({1, 0, QColor(0, 255, 0)}),
                                 green.alsoFromValue(arrayOf(1, 0, "#0F0"))};
    facts.requests.insert(facts.requests.end(), std::begin(sameGreen), std::end(sameGreen));
    facts.answers = serialAnswers();
    return facts;
}

TEST(SetLedStatusCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(SetLedStatusCmd, packsTheColourIntoDigits)
{
    struct Row
    {
        QRgb packed;
        QList<int> sent;
    };
    const Row rows[] = {
        {0x00000000, {9, 0, 0, 0, 0, 0, 0}},         {0x000000FF, {9, 0, 9, 1, 0, 0, 0}},
        {0xDA48870F, {9, 0, 245, 245, 245, 245, 0}}, {0xDA488710, {9, 0, 0, 0, 0, 0, 1}},
        {0xFFFFFFFF, {9, 0, 159, 104, 124, 42, 1}},  {0xFFFF0000, {9, 0, 60, 84, 123, 42, 1}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.packed);
        const SetLedStatusCmd command(9, LedMode::Colour, QColor::fromRgba(row.packed));
        EXPECT_EQ(command.serialParameters(1), row.sent);
        EXPECT_EQ(command.serialParameters(2), row.sent);
    }
}

TEST(SetLedStatusCmd, holdsTheColour)
{
    EXPECT_FALSE(SetLedStatusCmd().colour().isValid());
    EXPECT_EQ(SetLedStatusCmd(List{1, 0, "#80102030"}).colour(), QColor(0x10, 0x20, 0x30, 0x80));
    EXPECT_EQ(SetLedStatusCmd(arrayOf(1, 0, "red")).colour(), QColor(255, 0, 0));
    EXPECT_FALSE(SetLedStatusCmd(List{1, 0, QColor()}).colour().isValid());
    EXPECT_EQ(LedMode(0), LedMode::Colour);
    EXPECT_EQ(LedMode(245), LedMode::Unset);
}

TEST(SetLedStatusCmd, knowsTheModes)
{
    for (const int mode : {0, 1, 244, 245})
        EXPECT_TRUE(SetLedStatusCmd::checkLedMode(mode)) << mode;
    for (const int mode : {-1, 246})
        EXPECT_FALSE(SetLedStatusCmd::checkLedMode(mode)) << mode;
}

TEST(SetLedStatusCmd, doesNotMistakeOneArgumentForALed)
{
    static_assert(!std::is_constructible_v<SetLedStatusCmd, int>);
    static_assert(!std::is_constructible_v<SetLedStatusCmd, bool>);
    static_assert(!std::is_constructible_v<SetLedStatusCmd, double>);
    static_assert(!std::is_constructible_v<SetLedStatusCmd, const char *>);
}

} // namespace
