// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_configuration.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <ctime>
#include <memory>
#include <type_traits>

namespace {

using namespace values;
using Kind = SerialDeviceType;

constexpr char function[] = "FW_Configuration::FW_Configuration(const XmlRpc::XmlRpcValue&)";

template <class Machine>
std::unique_ptr<Machine> machineOf(int id, const char *description = "")
{
    auto machine = std::make_unique<Machine>();
    machine->setId(id);
    machine->setDescription(QString::fromLatin1(description));
    return machine;
}

XmlRpcValue machineStruct(const char *type, int id, const char *description = "")
{
    return structOf({{"type", type}, {"id", id}, {"description", description}});
}

/** A dispenser and a mixer of one ID, the mixer active. */
FW_Configuration filled()
{
    FW_Configuration configuration;
    configuration.setMachine(machineOf<FW_Dispenser>(3, "counter"));
    configuration.setMachine(machineOf<FW_Mixer>(3, "back room"));
    configuration.setActiveMachine(Kind::Mixer, 3);
    return configuration;
}

XmlRpcValue filledStruct()
{
    return structOf({{"machines", arrayOf({machineStruct("dispenser", 3, "counter"),
                                           machineStruct("mixer", 3, "back room")})},
                     {"active_mixer", 3}});
}

/** A machine whose living objects are counted. */
class CountedMixer : public FW_Mixer
{
public:
    CountedMixer() { ++alive; }
    CountedMixer(const CountedMixer &other) : FW_Mixer(other) { ++alive; }
    CountedMixer &operator=(const CountedMixer &) = delete;
    ~CountedMixer() override { --alive; }

    CountedMixer *clone() const override { return new CountedMixer(*this); }

    inline static int alive = 0;
};

TEST(FW_Configuration, isEmptyAtFirst)
{
    const FW_Configuration configuration;
    EXPECT_TRUE(configuration.machines().isEmpty());
    EXPECT_EQ(configuration.machine(Kind::Dispenser, 0), nullptr);
    for (const Kind kind : {Kind::Dispenser, Kind::Mixer, Kind::Scale})
        EXPECT_EQ(configuration.activeMachine(kind), nullptr);
}

TEST(FW_Configuration, findsMachinesByKindAndID)
{
    const FW_Configuration configuration = filled();
    ASSERT_EQ(configuration.machines().size(), 2);
    ASSERT_NE(configuration.machine(Kind::Dispenser, 3), nullptr);
    EXPECT_EQ(configuration.machine(Kind::Dispenser, 3)->description(), "counter");
    ASSERT_NE(configuration.machine(Kind::Mixer, 3), nullptr);
    EXPECT_EQ(configuration.machine(Kind::Mixer, 3)->description(), "back room");
    EXPECT_EQ(configuration.machine(Kind::Scale, 3), nullptr);
    EXPECT_EQ(configuration.machine(Kind::Mixer, 4), nullptr);
}

TEST(FW_Configuration, replacesTheMachineOfTheSameKindAndID)
{
    FW_Configuration configuration = filled();
    configuration.setMachine(machineOf<FW_Dispenser>(3, "cellar"));
    configuration.setMachine(machineOf<FW_Dispenser>(4, "attic"));
    configuration.setMachine(nullptr);
    ASSERT_EQ(configuration.machines().size(), 3);
    EXPECT_EQ(configuration.machines().at(0)->description(), "cellar");
    EXPECT_EQ(configuration.machines().at(1)->description(), "back room");
    EXPECT_EQ(configuration.machines().at(2)->description(), "attic");
    EXPECT_EQ(configuration.activeMachine(Kind::Mixer), configuration.machines().at(1).get());
}

TEST(FW_Configuration, hasOneActiveMachineOfEachKind)
{
    FW_Configuration configuration = filled();
    EXPECT_FALSE(configuration.setActiveMachine(Kind::Dispenser, 4));
    EXPECT_FALSE(configuration.setActiveMachine(Kind::Scale, 3));
    EXPECT_EQ(configuration.activeMachine(Kind::Dispenser), nullptr);
    EXPECT_TRUE(configuration.setActiveMachine(Kind::Dispenser, 3));
    ASSERT_NE(configuration.activeMachine(Kind::Dispenser), nullptr);
    EXPECT_EQ(configuration.activeMachine(Kind::Dispenser)->description(), "counter");
    configuration.setMachine(machineOf<FW_Dispenser>(4, "attic"));
    EXPECT_TRUE(configuration.setActiveMachine(Kind::Dispenser, 4));
    EXPECT_EQ(configuration.activeMachine(Kind::Dispenser)->description(), "attic");
    EXPECT_EQ(configuration.activeMachine(Kind::Mixer)->description(), "back room");
}

TEST(FW_Configuration, forgetsThatARemovedMachineWasActive)
{
    FW_Configuration configuration = filled();
    configuration.setMachine(machineOf<FW_Mixer>(4));
    EXPECT_FALSE(configuration.removeMachine(Kind::Mixer, 5));
    EXPECT_TRUE(configuration.removeMachine(Kind::Mixer, 4));
    EXPECT_TRUE(configuration.removeMachine(Kind::Dispenser, 3));
    EXPECT_NE(configuration.activeMachine(Kind::Mixer), nullptr) << "another was removed";
    EXPECT_TRUE(configuration.removeMachine(Kind::Mixer, 3));
    EXPECT_EQ(configuration.activeMachine(Kind::Mixer), nullptr);
    configuration.setMachine(machineOf<FW_Mixer>(3));
    EXPECT_EQ(configuration.activeMachine(Kind::Mixer), nullptr) << "a new one of the old ID";
}

TEST(FW_Configuration, sharesItsMachinesWithItsCopies)
{
    {
        FW_Configuration original;
        original.setMachine(std::make_unique<CountedMixer>());
        const FW_Configuration copy = original;
        EXPECT_EQ(CountedMixer::alive, 1);
        EXPECT_EQ(copy, original);
        original.setMachine(machineOf<FW_Mixer>(0, "another"));
        EXPECT_NE(copy, original);
        EXPECT_EQ(copy.machine(Kind::Mixer, 0)->description(), "");
        EXPECT_EQ(CountedMixer::alive, 1);
    }
    EXPECT_EQ(CountedMixer::alive, 0);
}

TEST(FW_Configuration, isAStructOfItsMachines)
{
    EXPECT_STREQ(FW_Configuration::MACHINES, "machines");
    EXPECT_STREQ(FW_Configuration::ACTIVE_DISPENSER, "active_dispenser");
    EXPECT_STREQ(FW_Configuration::ACTIVE_MIXER, "active_mixer");
    EXPECT_TRUE(SameXmlRpcValue(FW_Configuration().toXmlRpcValue(), structOf({{"machines", arrayOf({})}})));
    EXPECT_TRUE(SameXmlRpcValue(
        filled().toXmlRpcValue(),
        structOf({{"machines", arrayOf({machineOf<FW_Dispenser>(3, "counter")->toXmlRpcValue(),
                                        machineOf<FW_Mixer>(3, "back room")->toXmlRpcValue()})},
                  {"active_mixer", 3}})));
    EXPECT_EQ(FW_Configuration(filledStruct()), filled());
    EXPECT_EQ(FW_Configuration(filled().toXmlRpcValue()), filled());
    XmlRpcValue both = filledStruct();
    both["active_dispenser"] = 3;
    FW_Configuration withBoth = filled();
    withBoth.setActiveMachine(Kind::Dispenser, 3);
    EXPECT_EQ(FW_Configuration(both), withBoth);
    EXPECT_EQ(FW_Configuration(withBoth.toXmlRpcValue()), withBoth);
}

TEST(FW_Configuration, readsVeryManyMachinesWithoutComparingEachWithAll)
{
    constexpr int count = 40000;
    constexpr int seconds = 4; // twenty times what it takes
    XmlRpcValue many = structOf({});
    many["machines"].setSize(count);
    for (int i = 0; i < count; ++i)
        many["machines"][i] = structOf({{"type", "mixer"}, {"id", i}});
    const std::clock_t begin = std::clock();
    const FW_Configuration configuration(many);
    EXPECT_LT(std::clock() - begin, seconds * CLOCKS_PER_SEC);
    EXPECT_EQ(configuration.machines().size(), count);
}

TEST(FW_Configuration, refusesWhatHoldsNoMachines)
{
    for (const XmlRpcValue &value :
         {XmlRpcValue(), XmlRpcValue(5), XmlRpcValue("machines"), arrayOf({}), structOf({}),
          structOf({{"machines", 5}}), structOf({{"machines", machineStruct("mixer", 3)}})})
        expectException([&] { FW_Configuration{value}; }, "DE03365",
                        "FW_Configuration: expected machines value", function);
}

TEST(FW_Configuration, refusesAMachineThatIsWrong)
{
    const XmlRpcValue mixer = machineStruct("mixer", 3);
    for (const XmlRpcValue &value : {XmlRpcValue(5), structOf({}), structOf({{"type", "scale"}})})
        expectException(
            [&] {
                FW_Configuration{structOf({{"machines", arrayOf({mixer, value})}})};
            },
            "DE03366", "FW_Configuration: machines[1] is neither a dispenser nor a mixer", function);
    expectException(
        [&] {
            FW_Configuration{structOf({{"machines", arrayOf({mixer, mixer})}})};
        },
        "DE03367", "FW_Configuration: machines[1] is there already", function);
    expectException(
        [&] {
            FW_Configuration{
                structOf({{"machines", arrayOf({mixer, structOf({{"type", "mixer"}, {"id", "3"}})})}})};
        },
        "DE03350", "machines[1]: Machine data: id must be an integer from 0 to 2147483647",
        "FW_Mixer::FW_Mixer(const XmlRpc::XmlRpcValue&)");
}

TEST(FW_Configuration, refusesAnActiveMachineThatIsNotThere)
{
    for (const XmlRpcValue &value : {XmlRpcValue(4), XmlRpcValue("3"), XmlRpcValue(true), arrayOf({3})}) {
        XmlRpcValue wrong = filledStruct();
        wrong["active_mixer"] = value;
        expectException([&] { FW_Configuration{wrong}; }, "DE03368",
                        "FW_Configuration: active_mixer is the ID of no such machine", function);
        wrong = filledStruct();
        wrong["active_dispenser"] = value;
        expectException([&] { FW_Configuration{wrong}; }, "DE03368",
                        "FW_Configuration: active_dispenser is the ID of no such machine", function);
    }
}

TEST(FW_Configuration, isTheSameWithTheSameMachines)
{
    EXPECT_EQ(filled(), filled());
    FW_Configuration other = filled();
    other.setActiveMachine(Kind::Dispenser, 3);
    EXPECT_NE(other, filled());
    other = filled();
    other.setMachine(machineOf<FW_Mixer>(3, "cellar"));
    EXPECT_NE(other, filled());
    other = filled();
    other.setMachine(machineOf<FW_Mixer>(4));
    EXPECT_NE(other, filled());
    FW_Configuration reversed;
    reversed.setMachine(machineOf<FW_Mixer>(3, "back room"));
    reversed.setMachine(machineOf<FW_Dispenser>(3, "counter"));
    reversed.setActiveMachine(Kind::Mixer, 3);
    EXPECT_NE(reversed, filled());
}

TEST(FW_Configuration, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(filled());
    EXPECT_STREQ(variant.typeName(), "FW_Configuration");
    EXPECT_EQ(variant, QVariant::fromValue(filled()));
    EXPECT_NE(variant, QVariant::fromValue(FW_Configuration()));
    EXPECT_EQ(variant.toMap().value("active_mixer"), 3);
    EXPECT_EQ(QVariant(variant.toMap()).value<FW_Configuration>(), filled());
}

TEST(FW_Configuration, isNotMistakenForANumber)
{
    static_assert(!std::is_constructible_v<FW_Configuration, bool>);
    static_assert(!std::is_constructible_v<FW_Configuration, int>);
    static_assert(!std::is_constructible_v<FW_Configuration, double>);
    static_assert(!std::is_constructible_v<FW_Configuration, const char *>);
    static_assert(!std::is_convertible_v<XmlRpcValue, FW_Configuration>);
}

} // namespace
