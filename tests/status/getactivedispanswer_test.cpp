// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/getactivedispanswer.h"

#include "base/confprotocommand.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "status/activedispanswerparams.h"
#include "status/activemixeranswerparams.h"
#include "status/driverstatustesting.h"

#include <memory>

namespace {

using namespace testing_status;
using Answer = GetActiveDispAnswer;
using IDs = QList<int>;
using Machines = QList<MachineID>;
using Type = SerialDeviceType;

constexpr char ofValue[] = "GetActiveDispAnswer::GetActiveDispAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetActiveDispAnswer::GetActiveDispAnswer(QList<QVariant>&)";
constexpr char noDispensers[] = "GetActiveDispAnswer: expected disp_list value";
constexpr char noMixers[] = "GetActiveDispAnswer: expected mixer_list value";
constexpr char otherElement[] = "GetActiveDispAnswer decoding failed: invalid QVariant value";

DispenserStatus dispenser(int id, bool active)
{
    return {
        DispenserInfo(filledMachineInfo(), id, 2, true), active, false, false, false, false, false, false};
}

MixerStatus mixer(int id, bool active)
{
    return {MixerInfo(filledMixerInfo(), id), active, false, false, false};
}

Answer filled()
{
    return Answer({filledDispenserStatus()}, {filledMixerStatus()});
}

TEST(GetActiveDispAnswer, travelsAsTwoArrays)
{
    EXPECT_EQ(dumped(filled().toXmlRpcValue()), "{\"disp_list\": [" + dispenserStatusDump() +
                                                    "], \"mixer_list\": [" + mixerStatusDump() + "]}");
    EXPECT_EQ(Answer(structOf({{"disp_list", arrayOf(dispenserStatusStruct())},
                               {"mixer_list", arrayOf(mixerStatusStruct())}})),
              filled());
    EXPECT_EQ(Answer(structOf({{"disp_list", arrayOf(dispenserStatusStruct())}})),
              Answer({filledDispenserStatus()}));
    EXPECT_EQ(Answer(structOf({{"mixer_list", arrayOf(mixerStatusStruct())}})),
              Answer({}, {filledMixerStatus()}));
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"disp_list": [], "mixer_list": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
    EXPECT_EQ(Answer(filled().toXmlRpcValue()).protoType(), 2);
}

TEST(GetActiveDispAnswer, refusesWhatIsNoArray)
{
    for (const Value &bad : {Value(0), structOf({}), dispenserStatusStruct()})
        expectRefusal("DE03209", noDispensers, ofValue, [&] { Answer{structOf({{"disp_list", bad}})}; });
    for (const Value &bad : {Value(0), structOf({}), Value("x")})
        expectRefusal("DE03210", noMixers, ofValue, [&] {
            Answer{structOf({{"disp_list", arrayOf()}, {"mixer_list", bad}})};
        });
}

TEST(GetActiveDispAnswer, passesOnWhatAStatusRefuses)
{
    for (const Value &bad : {Value(0), structOf({})}) {
        expectRefusal("DE00724", "DispenserStatus: expected active dispenser value",
                      "DispenserStatus::DispenserStatus(const XmlRpc::XmlRpcValue&, int)", [&] {
                          Answer{structOf({{"disp_list", arrayOf(dispenserStatusStruct(), bad)}})};
                      });
        expectRefusal("DE03201", "MixerStatus: expected active mixer value",
                      "MixerStatus::MixerStatus(const XmlRpc::XmlRpcValue&, int)", [&] {
                          Answer{structOf({{"disp_list", arrayOf()}, {"mixer_list", arrayOf(bad)}})};
                      });
    }
}

TEST(GetActiveDispAnswer, refusesAStatusThatCannotBeMade)
{
    const Value value = structOf({{"disp_list", arrayOf(DispenserStatus().toXmlRpcValue())}});
    const Answer ready(value);
    expectRefusal("DE03209", noDispensers, ofValue, [&] { outOfMemoryOnce([&] { Answer{value}; }); });
}

TEST(GetActiveDispAnswer, isMadeOfAListOfStatuses)
{
    List list = {QVariant::fromValue(filledMixerStatus()), QVariant::fromValue(filledDispenserStatus())};
    EXPECT_EQ(Answer(list), filled());
    List maps = {list[0].toMap(), list[1].toMap()};
    EXPECT_EQ(Answer(maps), filled());
    List none;
    EXPECT_EQ(Answer(none), Answer());
}

TEST(GetActiveDispAnswer, isMadeOfAListOfMachines)
{
    ActiveDispAnswerParams dispenserParams;
    dispenserParams.dispenser.setId(3);
    dispenserParams.connectionType = "SERIAL";
    dispenserParams.enabled = true;
    dispenserParams.active = true;
    ActiveMixerAnswerParams mixerParams;
    mixerParams.mixer.setId(5);
    mixerParams.active = true;
    List list = {QVariant::fromValue(dispenserParams), QVariant::fromValue(mixerParams)};
    EXPECT_EQ(Answer(list), Answer({DispenserStatus(dispenserParams.dispenser, "SERIAL", true, true)},
                                   {MixerStatus(mixerParams.mixer, "", false, true)}));
    EXPECT_EQ(Answer(list).getActiveDispenserIDs(), IDs{3});
    EXPECT_TRUE(Answer(list).dispensers().at(0).machineInfo()->isSerialConnection());
    EXPECT_FALSE(ActiveDispAnswerParams().active || ActiveDispAnswerParams().enabled);
    EXPECT_FALSE(ActiveMixerAnswerParams().active || ActiveMixerAnswerParams().enabled);
}

TEST(GetActiveDispAnswer, refusesAListOfOtherThings)
{
    const QVariant good = QVariant::fromValue(filledDispenserStatus());
    for (const QVariant &bad : {QVariant(), QVariant(0), QVariant("x"), QVariant(List{good}),
                                QVariant(QVariantMap()), QVariant::fromValue(filledDispenserInfo())}) {
        for (List list : {List{bad}, List{good, bad}})
            expectRefusal("DE03211", otherElement, ofList, [&] { Answer{list}; });
    }
    List list = {QVariantMap{{"mixer_info", 0}}};
    expectRefusal("DE03201", "MixerStatus: expected active mixer value",
                  "MixerStatus::MixerStatus(const XmlRpc::XmlRpcValue&, int)", [&] { Answer{list}; });
}

TEST(GetActiveDispAnswer, refusesAListOfWhichAMachineCannotBeMade)
{
    const QVariant elements[] = {
        QVariant::fromValue(filledDispenserStatus()), QVariant::fromValue(filledMixerStatus()),
        QVariant::fromValue(ActiveDispAnswerParams()), QVariant::fromValue(ActiveMixerAnswerParams())};
    for (const QVariant &element : elements) {
        List list = {element};
        const Answer ready(list);
        expectRefusal("DE03211", otherElement, ofList, [&] { outOfMemoryOnce([&] { Answer{list}; }); });
    }
}

TEST(GetActiveDispAnswer, isMadeOfTheStatusesOfAllMachines)
{
    DispenserStatus ofDispenser = filledDispenserStatus();
    MixerStatus ofMixer = filledMixerStatus();
    MachineStatus unknown;
    EXPECT_EQ(Answer(QList<MachineStatus *>{&ofMixer, &unknown, nullptr, &ofDispenser}), filled());
    EXPECT_EQ(Answer(QList<MachineStatus *>()), Answer());
}

TEST(GetActiveDispAnswer, canBeReadWhateverInfosItsStatusesHave)
{
    const MachineInfo info = filledMachineInfo();
    MachineStatus plain(&info);
    const Answer kept(QList<MachineStatus *>{&plain});
    EXPECT_EQ(kept.getDispenserIDs(), IDs{0});
    EXPECT_EQ(Answer(kept.toXmlRpcValue()), kept);
    DispenserStatus ofOther = activeDispenser();
    ofOther.setMachineInfo(&info);
    const Answer read(Answer(QList<DispenserStatus>{ofOther}).toXmlRpcValue());
    ASSERT_EQ(read.dispensers().size(), 1);
    EXPECT_TRUE(read.dispensers().at(0).active);
    EXPECT_EQ(read.dispensers().at(0).machineInfo(), nullptr);
}

TEST(GetActiveDispAnswer, tellsIDs)
{
    DispenserStatus withoutMachine;
    withoutMachine.active = true;
    const Answer answer({dispenser(7, true), dispenser(3, false), withoutMachine, dispenser(4, true)},
                        {mixer(2, false), mixer(1, true)});
    EXPECT_EQ(answer.getDispenserIDs(), (IDs{7, 3, 4}));
    EXPECT_EQ(answer.getActiveDispenserIDs(), (IDs{7, 4}));
    EXPECT_EQ(answer.getMixerIDs(), (IDs{2, 1}));
    EXPECT_EQ(answer.getActiveMixerIDs(), IDs{1});
    EXPECT_EQ(Answer().getDispenserIDs() + Answer().getMixerIDs(), IDs());
}

TEST(GetActiveDispAnswer, tellsMachinesByAMaskOfDeviceTypes)
{
    const Answer answer({dispenser(7, true), dispenser(3, false)}, {mixer(2, false), mixer(1, true)});
    const Machines dispensers = {MachineID(7, Type::Dispenser), MachineID(3, Type::Dispenser)};
    const Machines mixers = {MachineID(2, Type::Mixer), MachineID(1, Type::Mixer)};
    EXPECT_EQ(answer.getMachineIDs(1), dispensers);
    EXPECT_EQ(answer.getMachineIDs(4), mixers);
    EXPECT_EQ(answer.getMachineIDs(5), dispensers + mixers);
    EXPECT_EQ(answer.getMachineIDs(-1), dispensers + mixers);
    EXPECT_EQ(answer.getMachineIDs(2), Machines());
    EXPECT_EQ(answer.getMachineIDs(0), Machines());
    EXPECT_EQ(answer.getActiveMachineIDs(1), Machines{dispensers.at(0)});
    EXPECT_EQ(answer.getActiveMachineIDs(4), Machines{mixers.at(1)});
    EXPECT_EQ(answer.getActiveMachineIDs(5), (Machines{dispensers.at(0), mixers.at(1)}));
    EXPECT_EQ(answer.getActiveMachineIDs(2), Machines());
}

TEST(GetActiveDispAnswer, listsAllStatuses)
{
    const Answer answer = filled();
    const QList<const MachineStatus *> statuses = answer.machineStatusList();
    ASSERT_EQ(statuses.size(), 2);
    EXPECT_EQ(statuses.at(0), &answer.dispensers().at(0));
    EXPECT_EQ(statuses.at(1), &answer.mixers().at(0));
    EXPECT_TRUE(Answer().machineStatusList().isEmpty());
}

TEST(GetActiveDispAnswer, comparesBothLists)
{
    const Answer answer = filled();
    EXPECT_EQ(answer, filled());
    for (const Answer &other :
         {Answer(), Answer({filledDispenserStatus()}), Answer({}, {filledMixerStatus()}),
          Answer({dispenser(3, true)}, {filledMixerStatus()}),
          Answer({filledDispenserStatus()}, {mixer(5, true)})}) {
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    Answer cleared = answer;
    cleared.clear();
    EXPECT_EQ(cleared, Answer());
}

TEST(GetActiveDispAnswer, tellsItsMembers)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_ACTIVE_DISP");
    ASSERT_EQ(facts.members.size(), 2);
    EXPECT_FALSE(facts.members.at(0).required || facts.members.at(1).required);
    testing_base::Lines lines;
    appendRefusals(lines, facts.members.at(0).refusals);
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines.at(0), "  XML-RPC, another type: DE03209");
    EXPECT_EQ(lines.at(5), "  list, an element of another type: DE03211");
}

TEST(GetActiveDispAnswer, isTheAnswerToItsCommand)
{
    ConfProtoCommand command("GET_ACTIVE_DISP", nullptr);
    ASSERT_TRUE(command.buildProtoAnswer(filled().toXmlRpcValue(), nullptr));
    EXPECT_TRUE(filled().equalTo(command.getProtoAnswer()));
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(structOf({{"disp_list", 0}}), &error));
    expectError(error, "DE03209", noDispensers);
}

} // namespace
