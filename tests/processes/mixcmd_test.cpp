// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/mixcmd.h"

#include "base/commandcontract.h"
#include "base/outofmemory.h"

namespace {

using namespace testing_base;

using Cycles = QList<MixerCycle>;

constexpr char ofValue[] = "MixCmd::MixCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "MixCmd::MixCmd(QList<QVariant>)";
constexpr char ofCycle[] = "MixerCycle::MixerCycle(const XmlRpc::XmlRpcValue&)";
constexpr char badValues[] = "MixCmd: bad xml-rpc values";
constexpr char noList[] = "MixCmd failed: expected MixerCycle list type parameter";

QVariant variantOf(const Cycles &cycles)
{
    return QVariant::fromValue(cycles);
}

Value cycleStruct(int type, int speed, int force, int duration)
{
    return structOf(
        {{"cycle_type", type}, {"mixing_speed", speed}, {"clamping_force", force}, {"duration", duration}});
}

QVariantMap cycleMap(int type, int speed, int force, int duration)
{
    return {{"cycle_type", type}, {"mixing_speed", speed}, {"clamping_force", force}, {"duration", duration}};
}

CommandFacts facts()
{
    const Cycles two = {MixerCycle(2, 40, 7, 300), MixerCycle(1, -1, 5, -1)};
    const Cycles thrice = {MixerCycle(3, 60, 9, 10), MixerCycle(3, 60, 9, 10), MixerCycle(3, 60, 9, 10)};
    constexpr char writtenTwo[] =
        R"([{"mixer_cycles": [{"clamping_force": 7, "cycle_type": 2, "duration": 300, "mixing_speed": 40}, )"
        R"({"clamping_force": 5, "cycle_type": 1, "duration": -1, "mixing_speed": -1}]}])";
    constexpr char writtenThrice[] =
        R"([{"mixer_cycles": [{"clamping_force": 9, "cycle_type": 3, "duration": 10, "mixing_speed": 60}, )"
        R"({"clamping_force": 9, "cycle_type": 3, "duration": 10, "mixing_speed": 60}, )"
        R"({"clamping_force": 9, "cycle_type": 3, "duration": 10, "mixing_speed": 60}]}])";

    CommandFacts facts(formsOf<MixCmd>());
    facts.catalogue = {"MIX", 123, "0031", 1};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.getters = {getter(&MixCmd::cycles)};
    facts.words = Words("", "Mix in progress");
    facts.defaults = Request().parameters({variantOf({})}).notWritten().sends({0, 0, 5});
    facts.requests = {
        Request({variantOf(two)})
            .typed<MixCmd>(two)
            .value(arrayOf(
                structOf({{"mixer_cycles", arrayOf(cycleStruct(2, 40, 7, 300), cycleStruct(1, -1, 5, -1))}})))
            .written(writtenTwo)
            .sends({0, 2, 5, 2, 40, 7, 54, 1, 1, 245, 5, 245, 245}),
        Request({variantOf(thrice)})
            .typed<MixCmd>(3, MixerCycle(3, 60, 9, 10))
            .onlyTyped()
            .written(writtenThrice)
            .sends({0, 3, 5, 3, 60, 9, 10, 0, 3, 60, 9, 10, 0, 3, 60, 9, 10, 0}),
        Request({variantOf({})})
            .typed<MixCmd>(0, MixerCycle(3, 60, 9, 10))
            .value(arrayOf(structOf({{"mixer_cycles", arrayOf()}})))
            .notWritten()
            .sends({0, 0, 5}),
        Request({variantOf({})})
            .typed<MixCmd>(-1, MixerCycle(3, 60, 9, 10))
            .onlyTyped()
            .notWritten()
            .sends({0, 0, 5}),
    };
    facts.answers = serialAnswers();
    return facts;
}

TEST(MixCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(MixCmd, takesNoNumberAlone)
{
    static_assert(!std::is_constructible_v<MixCmd, int>);
    static_assert(!std::is_constructible_v<MixCmd, double>);
}

TEST(MixCmd, namesItsMember)
{
    EXPECT_STREQ(MixCmd::mixerCycles_TAG, "mixer_cycles");
}

TEST(MixCmd, writesNothingWithoutACycle)
{
    bool ok = true;
    EXPECT_EQ(dumped(MixCmd().xmlrpc_parameters(&ok)), "[]");
    EXPECT_FALSE(ok);
}

TEST(MixCmd, sendsADurationInTwoDigits)
{
    struct Row
    {
        long long duration;
        QList<int> digits;
    };
    const Row rows[] = {{300, {54, 1}}, {10, {10, 0}},    {0, {0, 0}},         {245, {245, 0}},
                        {246, {0, 1}},  {-1, {245, 245}}, {60515, {245, 245}}, {60516, {0, 0, 1}}};
    for (const Row &row : rows) {
        EXPECT_EQ(MixCmd(1, MixerCycle(2, 40, 7, row.duration)).serialParameters(1),
                  (QList<int>{0, 1, 5, 2, 40, 7} + row.digits))
            << row.duration;
    }
}

TEST(MixCmd, sendsASpeedAsItIsUnlessTheFirmwareChoosesIt)
{
    EXPECT_EQ(MixCmd(1, MixerCycle(0, -1, 0, 1)).serialParameters(2), (QList<int>{0, 1, 5, 0, 245, 0, 1, 0}));
    EXPECT_EQ(MixCmd(1, MixerCycle(0, 0, 0, 1)).serialParameters(2), (QList<int>{0, 1, 5, 0, 0, 0, 1, 0}));
    EXPECT_EQ(MixCmd(1, MixerCycle(-1, -2, -1, 1)).serialParameters(1),
              (QList<int>{0, 1, 5, -1, -2, -1, 1, 0}));
}

TEST(MixCmd, needsAStructOfCycles)
{
    const auto expectRefused = [](const char *code, const Value &first) {
        SCOPED_TRACE(dumped(first));
        expectRefusal(code, badValues, ofValue, [&] { const MixCmd command(arrayOf(first)); });
    };
    for (const Value &first : {Value(5), Value("text"), Value(true), Value(2.5), arrayOf()})
        expectRefused("DE02338", first);
    expectRefused("DE02340", structOf({}));
    expectRefused("DE02340", structOf({{"cycles", arrayOf()}}));
    for (const Value &cycles : {Value(5), Value("text"), structOf({}), cycleStruct(2, 40, 7, 300)})
        expectRefused("DE02339", structOf({{"mixer_cycles", cycles}}));
}

TEST(MixCmd, needsGoodCycles)
{
    const Value good = cycleStruct(2, 40, 7, 300);
    for (const Value &bad : {Value(5), arrayOf(), structOf({}), structOf({{"cycle_type", 2}})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE02337", "MixerCycle: bad xml-rpc values", ofCycle, [&] {
            const MixCmd command(arrayOf(structOf({{"mixer_cycles", arrayOf(good, bad)}})));
        });
    }
    EXPECT_EQ(MixCmd(arrayOf(structOf({{"mixer_cycles", arrayOf(good)}}), "rest")).cycles(),
              Cycles{MixerCycle(2, 40, 7, 300)});
}

TEST(MixCmd, takesCyclesAsVariantsToo)
{
    const QVariant cycle = QVariant::fromValue(MixerCycle(2, 40, 7, 300));
    EXPECT_EQ(MixCmd(List{QVariant(List{cycle, cycleMap(1, -1, 5, -1)})}).cycles(),
              (Cycles{MixerCycle(2, 40, 7, 300), MixerCycle(1, -1, 5, -1)}));
    EXPECT_EQ(MixCmd(List{QVariant(List())}).cycles(), Cycles());
}

TEST(MixCmd, needsAListOfCycles)
{
    for (const QVariant &other :
         {QVariant(), QVariant(5), QVariant("text"), QVariant(cycleMap(2, 40, 7, 300)),
          QVariant::fromValue(MixerCycle()), QVariant(List{5}), QVariant(QStringList{"text"}),
          QVariant(List{cycleMap(2, 40, 7, 300), QVariantMap{{"duration", 5}}})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE02342", noList, ofList, [&] { const MixCmd command(List{other}); });
    }
    expectRefusal("DE02337", "MixerCycle: bad xml-rpc values", ofCycle, [] {
        const MixCmd command(List{QVariant(List{QVariantMap{{"cycle_type", 2}}})});
    });
}

TEST(MixCmd, tellsWhenThereIsNoMemoryForTheCycles)
{
    const List list = {QVariant(List{cycleMap(2, 40, 7, 300)})};
    expectRefusal("DE02341", "MixCmd failed: incorrect MixerCycle parameter", ofList,
                  [&] { outOfMemoryOnce([&] { const MixCmd command(list); }); });
}

} // namespace
