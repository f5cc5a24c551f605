// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionsanswer.h"

#include "base/machineinfotesting.h"
#include "base/outofmemory.h"

#include <memory>
#include <typeinfo>

namespace {

using namespace testing_base;
using Answer = GetConnectionsAnswer;
using Info = QSharedPointer<MachineInfo>;
using Infos = QList<Info>;

constexpr char ofValue[] = "GetConnectionsAnswer::GetConnectionsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetConnectionsAnswer::GetConnectionsAnswer(QList<QVariant>&)";
constexpr char noList[] = "GetConnectionsAnswer: expected connection_data_list value";
constexpr char notMade[] = "GetConnectionsAnswer: errors during MachineInfo creation";
constexpr char otherElement[] = "GetConnectionsAnswer decoding failed: invalid QVariant value";

Info shared(const MachineInfo &info)
{
    return Info(info.clone());
}

Answer filled()
{
    return Answer({shared(filledDispenserInfo()), shared(filledMixerInfo()), shared(filledMachineInfo())});
}

Value answerOf(const Value &infos)
{
    return structOf({{"connection_data_list", infos}});
}

MachineInfo connectedBy(const char *type)
{
    MachineInfo info = filledMachineInfo();
    info.connectionType = type;
    return info;
}

TEST(GetConnectionsAnswer, travelsAsAnArrayOfInfos)
{
    EXPECT_EQ(dumped(Answer({shared(filledDispenserInfo()), shared(filledMixerInfo())}).toXmlRpcValue()),
              std::string("{\"connection_data_list\": [") + dispenserInfoDump + ", " + mixerInfoDump + "]}");
    const Answer answer(answerOf(arrayOf(dispenserInfoStruct(), mixerInfoStruct(), machineInfoStruct())));
    EXPECT_EQ(answer, filled());
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(Answer(filled().toXmlRpcValue()), filled());
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"connection_data_list": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetConnectionsAnswer, choosesTheClassByTheKindOfDevice)
{
    Value scale = dispenserInfoStruct();
    scale["device_type"] = 2;
    Value unknownMixer = machineInfoStruct();
    unknownMixer["device_type"] = 4;
    const std::pair<Value, const std::type_info *> rows[] = {
        {dispenserInfoStruct(), &typeid(DispenserInfo)},
        {infoWithout(dispenserInfoStruct(), "device_type"), &typeid(DispenserInfo)},
        {mixerInfoStruct(), &typeid(MixerInfo)},
        {infoWithout(mixerInfoStruct(), "device_type"), &typeid(MachineInfo)},
        {machineInfoStruct(), &typeid(MachineInfo)},
        {scale, &typeid(MachineInfo)},
        {unknownMixer, &typeid(MachineInfo)},
    };
    for (const auto &[value, type] : rows) {
        SCOPED_TRACE(dumped(value));
        const Answer answer(answerOf(arrayOf(value)));
        ASSERT_EQ(answer.connectionsList().size(), 1);
        const MachineInfo &info = *answer.connectionsList().at(0);
        EXPECT_TRUE(typeid(info) == *type);
    }
}

TEST(GetConnectionsAnswer, isRefusedWithoutTheArray)
{
    for (const Value &value :
         {Value(), Value(0), arrayOf(), structOf({}), answerOf(0), answerOf(machineInfoStruct())})
        expectRefusal("DE03225", noList, ofValue, [&] { Answer{value}; });
}

TEST(GetConnectionsAnswer, passesOnWhatAnInfoRefuses)
{
    for (const Value &bad : {Value(0), structOf({}), arrayOf()})
        expectRefusal("DE00766", "MachineInfo: expected enabled value", machineInfoFunction,
                      [&] { Answer{answerOf(arrayOf(machineInfoStruct(), bad))}; });
    expectRefusal("DE00769", "DispenserInfo: expected tinting parallelism value",
                  "DispenserInfo::DispenserInfo(const XmlRpc::XmlRpcValue&)", [] {
                      Answer{answerOf(arrayOf(infoWithout(dispenserInfoStruct(), "tinting_parallelism")))};
                  });
}

TEST(GetConnectionsAnswer, refusesAnInfoThatCannotBeMade)
{
    const Value value = answerOf(arrayOf(machineInfoStruct()));
    const Answer ready(value);
    expectRefusal("DE01884", notMade, ofValue, [&] { outOfMemoryOnce([&] { Answer{value}; }); });
    for (const QVariant &element :
         {QVariant::fromValue(filledMachineInfo()), QVariant::fromValue(filledDispenserInfo()),
          QVariant::fromValue(filledMixerInfo()), QVariant::fromValue(shared(filledMachineInfo()))}) {
        List list = {element};
        const Answer alsoReady(list);
        expectRefusal("DE01884", notMade, ofList, [&] { outOfMemoryOnce([&] { Answer{list}; }); });
    }
}

TEST(GetConnectionsAnswer, isMadeOfAList)
{
    List infos = {QVariant::fromValue(filledDispenserInfo()), QVariant::fromValue(filledMixerInfo()),
                  QVariant::fromValue(filledMachineInfo())};
    EXPECT_EQ(Answer(infos), filled());
    List maps = {infos[0].toMap(), infos[1].toMap(), infos[2].toMap()};
    EXPECT_EQ(Answer(maps), filled());
    const Info info = shared(filledMixerInfo());
    List pointers = {QVariant::fromValue(info)};
    EXPECT_EQ(Answer(pointers).connectionsList(), Infos{info});
    List none;
    EXPECT_EQ(Answer(none), Answer());
}

TEST(GetConnectionsAnswer, refusesAListOfOtherThings)
{
    const QVariant good = QVariant::fromValue(filledMachineInfo());
    for (const QVariant &bad : {QVariant(), QVariant(0), QVariant("ttyUSB0"), QVariant(List{good}),
                                QVariant(QVariantMap{{"sid", 42}}), QVariant::fromValue(Info())}) {
        for (List list : {List{bad}, List{good, bad}})
            expectRefusal("DE00937", otherElement, ofList, [&] { Answer{list}; });
    }
    List list = {QVariantMap{{"serial_number", "A1-7"}}};
    expectRefusal("DE00766", "MachineInfo: expected enabled value", machineInfoFunction,
                  [&] { Answer{list}; });
}

TEST(GetConnectionsAnswer, filtersByTheTypeOfTheConnection)
{
    const Info serial = shared(connectedBy("SERIAL"));
    const Info bluetooth = shared(connectedBy("BLUETOOTH"));
    const Info otherBluetooth = shared(connectedBy("BLUETOOTH"));
    const Info none = shared(connectedBy(""));
    const Answer answer({bluetooth, serial, none, otherBluetooth});
    EXPECT_EQ(answer.getFilteredConnectionsList(FW_SerialPort::SerialConnection), Infos{serial});
    EXPECT_EQ(answer.getFilteredConnectionsList(FW_SerialPort::BluetoothConnection),
              (Infos{bluetooth, otherBluetooth}));
    EXPECT_EQ(answer.getFilteredConnectionsList(FW_SerialPort::FtdiConnection), Infos());
    EXPECT_EQ(answer.getFilteredConnectionsList(static_cast<FW_SerialPort::SerialPortConnType>(3)), Infos());
}

TEST(GetConnectionsAnswer, leavesOutConnectionsThatAreNull)
{
    const Info info = shared(filledMachineInfo());
    EXPECT_EQ(Answer({Info(), info, Info()}).connectionsList(), Infos{info});
}

TEST(GetConnectionsAnswer, comparesTheInfos)
{
    const Answer answer = filled();
    EXPECT_EQ(answer, filled());
    Infos infos = filled().connectionsList();
    const Answer shorter(infos.mid(1));
    std::swap(infos[0], infos[1]);
    const Answer swapped(infos);
    infos = filled().connectionsList();
    infos[2]->connectionType = "FTDI";
    const Answer changed(infos);
    for (const Answer &other : {Answer(), shorter, swapped, changed}) {
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_EQ(className(copy.get()), "GetConnectionsAnswer");
}

} // namespace
