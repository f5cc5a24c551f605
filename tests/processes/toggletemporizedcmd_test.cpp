// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/toggletemporizedcmd.h"

#include "base/commandcontract.h"
#include "base/translatedtexts.h"

#include <QtCore/QStringList>

#include <limits>
#include <type_traits>

namespace {

using namespace testing_base;

/** The words that name processes, each translated by itself. */
Words holding(const QStringList &names)
{
    QStringList translated;
    for (const QString &name : names)
        translated.append(translation(name));
    const QString all = names.join(", ");
    const Phrase action(("Disabling timed processes (" + all + ")").toUtf8().constData(), "QuvProtocol",
                        translation("Disabling timed processes (" + translated.join(", ") + ")"));
    Words words("", action);
    words.command = "Disable timed processes (" + all + ")";
    return words;
}

CommandFacts facts()
{
    constexpr char ofTyped[] = "ToggleTemporizedCmd::ToggleTemporizedCmd(bool, int, int)";
    constexpr char badMask[] = "Invalid temporized process mask value";
    constexpr char badTimeout[] = "Invalid freeze timeout value";
    const Words all("Disable all timed processes", "Disabling all timed processes");
    const Words running("Enable all timed processes", "Enabling all timed processes");
    CommandFacts facts(formsOf<ToggleTemporizedCmd>());
    facts.catalogue = {"TOGGLE_TEMPORIZED", 19, "0020", 0};
    facts.protoType = 1;
    facts.valueFunction = "ToggleTemporizedCmd::ToggleTemporizedCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ToggleTemporizedCmd::ToggleTemporizedCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Flag, {"DE00508", "DE00513", "Disable value type: expected BOOL parameter"}),
        optional(Integer,
                 {"DE00509", "DE00514", "Temporized process mask value type: expected INT parameter"})
            .outOfRange({-1, 16}, {"DE00510", "DE00515", badMask})
            .takes({0, 15}),
        optional(Integer, {"DE00511", "DE00516", "Freeze timeout value type: expected INT parameter"})
            .outOfRange({-1, 246}, {"DE00512", "DE00517", badTimeout})
            .takes({0, 245})};
    facts.getters = {getter(&ToggleTemporizedCmd::disable), getter(&ToggleTemporizedCmd::processMask),
                     getter(&ToggleTemporizedCmd::freezeTimeout)};
    facts.words = all;
    facts.defaults = Request().parameters({true, 0, 120}).written("[true, 0, 120]").sends({5, 0, 120}, {});
    facts.requests = {
        Request({true, 3, 120})
            .typed<ToggleTemporizedCmd>(true, 3, 120)
            .written("[true, 3, 120]")
            .sends({5, 3, 120}, {})
            .says(holding({"recirculation", "stirring"})),
        Request({false, 3, 60}) // which then matter no more
            .typed<ToggleTemporizedCmd>(false, 3, 60)
            .written("[false, 3, 60]")
            .sends({1, 0, 0}, {})
            .says(running),
        Request(List()).parameters({true, 0, 120}).written("[true, 0, 120]").sends({5, 0, 120}, {}),
        Request({false})
            .parameters({false, 0, 120})
            .written("[false, 0, 120]")
            .sends({1, 0, 0}, {})
            .says(running),
        Request({true, 8})
            .parameters({true, 8, 120})
            .typed<ToggleTemporizedCmd>(true, 8, 120)
            .written("[true, 8, 120]")
            .sends({5, 8, 120}, {})
            .says(holding({"cleaning"})),
        Request({true, 15, 0})
            .typed<ToggleTemporizedCmd>(true, 15, 0)
            .written("[true, 15, 0]")
            .sends({5, 15, 0}, {})
            .says(holding({"recirculation", "stirring", "humidifier", "cleaning"})),
        Request({true, 4, 245})
            .typed<ToggleTemporizedCmd>(true, 4, 245)
            .written("[true, 4, 245]")
            .sends({5, 4, 245}, {})
            .says(holding({"humidifier"})),
    };
    facts.typedRefusals = {
        {made<ToggleTemporizedCmd>(true, 16, 120), {"DE00518", badMask}, ofTyped},
        {made<ToggleTemporizedCmd>(false, -1, 246), {"DE00518", badMask}, ofTyped},
        {made<ToggleTemporizedCmd>(true, 0, 246), {"DE00519", badTimeout}, ofTyped},
        {made<ToggleTemporizedCmd>(true, 0, -1), {"DE00519", badTimeout}, ofTyped},
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(ToggleTemporizedCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ToggleTemporizedCmd, sendsParametersToTheFirstFamilyOnly)
{
    for (const int family : {0, 2, 3})
        EXPECT_EQ(ToggleTemporizedCmd(true, 3, 120).serialParameters(family), QList<int>()) << family;
}

TEST(ToggleTemporizedCmd, knowsMasksAndTimeouts)
{
    for (int mask = 0; mask <= 15; ++mask)
        EXPECT_TRUE(ToggleTemporizedCmd::checkProcessMask(mask)) << mask;
    for (const int mask : {-1, 16, std::numeric_limits<int>::min()})
        EXPECT_FALSE(ToggleTemporizedCmd::checkProcessMask(mask)) << mask;
    for (const int timeout : {0, 1, 120, 245})
        EXPECT_TRUE(ToggleTemporizedCmd::checkFreezeTimeout(timeout)) << timeout;
    for (const int timeout : {-1, 246})
        EXPECT_FALSE(ToggleTemporizedCmd::checkFreezeTimeout(timeout)) << timeout;
    EXPECT_EQ(ToggleTemporizedCmd::Recirculation, 1);
    EXPECT_EQ(ToggleTemporizedCmd::Stirring, 2);
    EXPECT_EQ(ToggleTemporizedCmd::Humidifier, 4);
    EXPECT_EQ(ToggleTemporizedCmd::Cleaning, 8);
}

TEST(ToggleTemporizedCmd, doesNotMistakeOneArgumentForAToggle)
{
    static_assert(!std::is_constructible_v<ToggleTemporizedCmd, bool>);
    static_assert(!std::is_constructible_v<ToggleTemporizedCmd, int>);
    static_assert(!std::is_constructible_v<ToggleTemporizedCmd, double>);
    static_assert(!std::is_constructible_v<ToggleTemporizedCmd, const char *>);
}

} // namespace
