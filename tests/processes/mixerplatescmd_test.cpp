// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/mixerplatescmd.h"

#include "base/commandcontract.h"

namespace {

using namespace testing_base;

using Action = MixerPlatesCmd::MixerPlatesAction;

constexpr char ofValue[] = "MixerPlatesCmd::MixerPlatesCmd(const XmlRpc::XmlRpcValue&)";

QVariant action(int number)
{
    return QVariant::fromValue(static_cast<Action>(number));
}

/** All four arguments, as a command holds them. */
List held(int number, int duration, int speed, int extra)
{
    return {action(number), duration, speed, extra};
}

Request request(int number, int duration, int speed, int extra)
{
    return Request({number, duration, speed, extra})
        .typed<MixerPlatesCmd>(static_cast<Action>(number), duration, speed, extra)
        .parameters(held(number, duration, speed, extra))
        .holds({number, duration, speed, extra});
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<MixerPlatesCmd>());
    facts.catalogue = {"MIXER_PLATES", 163, "0030", 1};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = "MixerPlatesCmd::MixerPlatesCmd(QList<QVariant>)";
    facts.getters = {getter(&MixerPlatesCmd::action), getter(&MixerPlatesCmd::duration),
                     getter(&MixerPlatesCmd::speed), getter(&MixerPlatesCmd::extra)};
    facts.words = Words("", "Mixer plates movement in progress");
    facts.defaults = Request()
                         .parameters(held(0, 60515, 245, 0))
                         .holds({0, 60515, 245, 0})
                         .written("[0, 60515, 245, 0]")
                         .sends({0, 245, 245, 245, 0});
    facts.requests = {
        request(2, 300, 40, 7).written("[2, 300, 40, 7]").sends({2, 54, 1, 40, 7}),
        request(1, 10, 245, 0).written("[1, 10, 245, 0]").sends({1, 10, 245, 0}),
        request(3, 60515, 5, 9).written("[3, 60515, 5, 9]").sends({3, 245, 245, 5, 9}),
        request(0, 0, 0, 1).written("[0, 0, 0, 1]").sends({0, 0, 0, 1}),
        request(-4, -1, -2, -3).written("[-4, -1, -2, -3]").sends({-4, -2, -3}),
        request(77, 60516, 1, 1).written("[77, 60516, 1, 1]").sends({77, 0, 0, 1, 1, 1}),
    };
    facts.answers = serialAnswers();
    return facts;
}

/** What a command of this value holds: action, duration, speed, fourth number. */
List heldBy(const Value &value)
{
    const MixerPlatesCmd command(value);
    return {static_cast<int>(command.action()), command.duration(), command.speed(), command.extra()};
}

List heldBy(const List &list)
{
    const MixerPlatesCmd command(list);
    return {static_cast<int>(command.action()), command.duration(), command.speed(), command.extra()};
}

TEST(MixerPlatesCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(MixerPlatesCmd, registersItsAction)
{
    EXPECT_NE(QMetaType::type("MixerPlatesCmd::MixerPlatesAction"), 0);
    EXPECT_STREQ(MixerPlatesCmd().parameters().value(0).typeName(), "MixerPlatesCmd::MixerPlatesAction");
}

TEST(MixerPlatesCmd, needsAnAction)
{
    for (const Value &other :
         {Value(true), Value(2.0), Value("2"), Value(""), arrayOf(2), structOf({{"action", 2}})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE02889", "MixerPlatesCmd: invalid parameter", ofValue,
                      [&] { const MixerPlatesCmd command(arrayOf(other, 300, 40, 7)); });
    }
}

TEST(MixerPlatesCmd, keepsADefaultForWhatCannotBeReadOfAValue)
{
    EXPECT_EQ(heldBy(arrayOf(2)), (List{2, 60515, 245, 0}));
    EXPECT_EQ(heldBy(arrayOf(2, 300)), (List{2, 300, 245, 0}));
    EXPECT_EQ(heldBy(arrayOf(2, 300, 40)), (List{2, 300, 40, 0}));
    EXPECT_EQ(heldBy(arrayOf(2, 300, 40, 7, "rest")), (List{2, 300, 40, 7}));
    for (const Value &other : {Value(true), Value(300.0), Value("300"), arrayOf(), structOf({})}) {
        SCOPED_TRACE(dumped(other));
        EXPECT_EQ(heldBy(arrayOf(2, other, 40, 7)), (List{2, 60515, 40, 7}));
        EXPECT_EQ(heldBy(arrayOf(2, 300, other, 7)), (List{2, 300, 245, 7}));
        EXPECT_EQ(heldBy(arrayOf(2, 300, 40, other)), (List{2, 300, 40, 0}));
    }
}

TEST(MixerPlatesCmd, takesForNothingWhatDoesNotConvertInAList)
{
    EXPECT_EQ(heldBy(List{action(2), 300LL, "40", 7.4}), (List{2, 300, 40, 7}));
    for (const QVariant &other :
         {QVariant(), QVariant("here"), QVariant(List{2}), QVariant(4294967296LL), QVariant(1e10)}) {
        SCOPED_TRACE(shown({other}));
        EXPECT_EQ(heldBy(List{other, 300, 40, 7}), (List{0, 300, 40, 7}));
        EXPECT_EQ(heldBy(List{2, other, 40, 7}), (List{2, 0, 40, 7}));
        EXPECT_EQ(heldBy(List{2, 300, other, 7}), (List{2, 300, 0, 7}));
        EXPECT_EQ(heldBy(List{2, 300, 40, other}), (List{2, 300, 40, 0}));
    }
}

TEST(MixerPlatesCmd, takesForNothingWhatAListLacks)
{
    EXPECT_EQ(heldBy(List{2}), (List{2, 0, 0, 0}));
    EXPECT_EQ(heldBy(List{2, 300}), (List{2, 300, 0, 0}));
    EXPECT_EQ(heldBy(List{2, 300, 40}), (List{2, 300, 40, 0}));
}

} // namespace
