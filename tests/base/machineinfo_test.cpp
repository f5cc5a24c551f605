// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/machineinfo.h"

#include "base/machineinfotesting.h"

#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_serialport.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;
using Port = FW_SerialPort;

constexpr char dump[] =
    R"({"bt_conn_address": "00:11:22:33:44:55", "bt_conn_name": "VELTO_5G_7", "conn_type": "SERIAL", )"
    R"("description": "line 2", "device_type": 1, "enabled": true, "key_code": "K7", "model": "LUMINA 100", )"
    R"("product_code": "P-100", "serial_number": "A1-7", "serial_port": "ttyUSB0", "sid": 42})";
constexpr char clearedDump[] =
    R"({"bt_conn_address": "", "bt_conn_name": "", "conn_type": "", "description": "", "device_type": 1, )"
    R"("enabled": false, "key_code": "", "model": "", "product_code": "", "serial_number": "", )"
    R"("serial_port": "", "sid": -1})";

MachineInfo connectedBy(const char *type)
{
    MachineInfo info = filledMachineInfo();
    info.connectionType = type;
    return info;
}

void fill(FW_Machine &machine)
{
    machine.setSID("000042");
    machine.setConnectionName("00:11:22:33:44:55");
    machine.setSerialNumber("A1-7");
    machine.setDescription("line 2");
    machine.setModelName("VIBRO 5");
    machine.setProductCode("P-100");
}

TEST(MachineInfo, startsCleared)
{
    EXPECT_EQ(dumped(MachineInfo().toXmlRpcValue()), clearedDump);
    MachineInfo info = filledMachineInfo();
    info.clearMI();
    EXPECT_EQ(dumped(info.toXmlRpcValue()), clearedDump);
}

TEST(MachineInfo, travelsAsAStruct)
{
    EXPECT_EQ(dumped(filledMachineInfo().toXmlRpcValue()), dump);
    EXPECT_EQ(MachineInfo(machineInfoStruct()), filledMachineInfo());
    Value value = structOf({{"more", 7}, {"sid", "x"}});
    filledMachineInfo().udpateXmlRpcValue(value);
    EXPECT_EQ(static_cast<int>(value["more"]), 7);
    EXPECT_EQ(MachineInfo(value), filledMachineInfo());
}

TEST(MachineInfo, isRefusedWithoutAMemberThatEveryDriverTells)
{
    for (const InfoRefusal &refusal : machineInfoRefusals) {
        SCOPED_TRACE(refusal.key);
        for (const Value &value : {infoWithout(machineInfoStruct(), refusal.key),
                                   infoWith(machineInfoStruct(), refusal.key, arrayOf(1))})
            expectRefusal(refusal.code, refusal.text, machineInfoFunction, [&] { MachineInfo{value}; });
    }
    for (const Value &value : {Value(), Value(7), Value("x"), arrayOf(1), structOf({})})
        expectRefusal("DE00766", "MachineInfo: expected enabled value", machineInfoFunction,
                      [&] { MachineInfo{value}; });
}

TEST(MachineInfo, namesTheFirstOfSeveralMembersThatAreMissing)
{
    Value value = machineInfoStruct();
    std::vector<Value> rest;
    for (const InfoRefusal &refusal : machineInfoRefusals)
        rest.push_back(value = infoWithout(value, refusal.key));
    for (const Value &less : rest)
        expectRefusal("DE00766", "MachineInfo: expected enabled value", machineInfoFunction,
                      [&] { MachineInfo{less}; });
    expectRefusal("DE00747", "MachineInfo: expected serial_number value", machineInfoFunction, [&] {
        MachineInfo{infoWithout(infoWithout(machineInfoStruct(), "serial_number"), "model")};
    });
}

TEST(MachineInfo, mayLackWhatOlderDriversDoNotTell)
{
    Value value = machineInfoStruct();
    for (const char *key :
         {"serial_port", "bt_conn_name", "bt_conn_address", "conn_type", "key_code", "device_type"})
        value = infoWithout(value, key);
    const MachineInfo expected(42, true, "", BluetoothDeviceInfo(), "", "A1-7", "line 2", "LUMINA 100",
                               "P-100", "", SerialDeviceType::Dispenser);
    EXPECT_EQ(MachineInfo(value), expected);
    for (const char *key :
         {"serial_port", "bt_conn_name", "bt_conn_address", "conn_type", "key_code", "device_type"})
        value[key] = arrayOf();
    EXPECT_EQ(MachineInfo(value), expected);
}

TEST(MachineInfo, takesAnyNumberForTheKindOfDevice)
{
    for (int number : {1, 2, 4, 7, -1}) {
        EXPECT_EQ(static_cast<int>(
                      MachineInfo(infoWith(machineInfoStruct(), "device_type", number)).serialDeviceType),
                  number);
        SerialDeviceType type = SerialDeviceType::Mixer;
        MachineInfo::decodeSerialDeviceType(structOf({{"device_type", number}}), type);
        EXPECT_EQ(static_cast<int>(type), number);
    }
}

TEST(MachineInfo, leavesTheKindOfDeviceThatIsNotTold)
{
    SerialDeviceType type = SerialDeviceType::Mixer;
    for (const Value &value : {Value(), Value(1), structOf({}), structOf({{"device_type", "1"}})})
        MachineInfo::decodeSerialDeviceType(value, type);
    EXPECT_EQ(type, SerialDeviceType::Mixer);
}

TEST(MachineInfo, comparesEveryField)
{
    const MachineInfo info = filledMachineInfo();
    EXPECT_TRUE(info == filledMachineInfo());
    EXPECT_FALSE(info != filledMachineInfo());
    EXPECT_TRUE(info.equalTo(filledMachineInfo(), true));
    std::vector<InfoChange> changes = identityChanges();
    EXPECT_EQ(changes.size(), 8U);
    for (const InfoChange &change : changes) {
        MachineInfo other = info;
        change(other);
        EXPECT_FALSE(info == other) << dumped(other.toXmlRpcValue());
        EXPECT_FALSE(info.equalTo(other, true));
        EXPECT_FALSE(info.equalTo(other, false));
    }
}

TEST(MachineInfo, isTheSameMachineByAnotherLinkUnlessComparedStrictly)
{
    const MachineInfo info = filledMachineInfo();
    for (const InfoChange &change : linkChanges()) {
        MachineInfo other = info;
        change(other);
        EXPECT_TRUE(info != other) << dumped(other.toXmlRpcValue());
        EXPECT_FALSE(info.equalTo(other, true));
        EXPECT_TRUE(info.equalTo(other, false));
    }
}

TEST(MachineInfo, differsFromAnInfoOfAnotherClass)
{
    const MachineInfo info = filledMachineInfo();
    const DispenserInfo dispenser(info, 0, 0, false);
    for (bool strict : {true, false}) {
        EXPECT_FALSE(info.equalTo(dispenser, strict));
        EXPECT_FALSE(dispenser.equalTo(info, strict));
    }
}

TEST(MachineInfo, copiesTheMachineOfAnother)
{
    DispenserInfo dispenser;
    dispenser.disp_id = 9;
    dispenser.copy_MI(filledMachineInfo());
    EXPECT_EQ(dispenser, DispenserInfo(filledMachineInfo(), 9, 0, false));
    dispenser.clearMI();
    EXPECT_EQ(dispenser, DispenserInfo(MachineInfo(), 9, 0, false));
    const std::unique_ptr<MachineInfo> copy(filledMachineInfo().clone());
    EXPECT_EQ(*copy, filledMachineInfo());
}

TEST(MachineInfo, tellsHowItIsReached)
{
    const MachineInfo serial = connectedBy("SERIAL");
    EXPECT_TRUE(serial.isSerialConnection());
    EXPECT_EQ(serial.connectionName(), "ttyUSB0");
    const MachineInfo bluetooth = connectedBy("BLUETOOTH");
    EXPECT_TRUE(bluetooth.isBluetoothConnection());
    EXPECT_EQ(bluetooth.connectionName(), "00:11:22:33:44:55");
    const MachineInfo ftdi = connectedBy("FTDI");
    EXPECT_TRUE(ftdi.isFtdiConnection());
    for (const MachineInfo &info : {ftdi, connectedBy(""), connectedBy("serial")})
        EXPECT_EQ(info.connectionName(), "");
    EXPECT_FALSE(serial.isBluetoothConnection() || serial.isFtdiConnection());
    EXPECT_FALSE(bluetooth.isSerialConnection() || bluetooth.isFtdiConnection());
    EXPECT_FALSE(ftdi.isSerialConnection() || ftdi.isBluetoothConnection());
    const MachineInfo none = connectedBy("");
    EXPECT_FALSE(none.isSerialConnection() || none.isBluetoothConnection() || none.isFtdiConnection());
}

TEST(MachineInfo, knowsItsConnectionsByName)
{
    for (const char *type : {"SERIAL", "BLUETOOTH", "FTDI", ""}) {
        EXPECT_TRUE(connectedBy(type).hasConnectionName("ttyUSB0")) << type;
        EXPECT_TRUE(connectedBy(type).hasConnectionName("00:11:22:33:44:55")) << type;
        for (const char *other : {"VELTO_5G_7", "", "ttyusb0"})
            EXPECT_FALSE(connectedBy(type).hasConnectionName(other)) << type << other;
    }
}

TEST(MachineInfo, storesNamesByTheTypeOfTheConnection)
{
    for (const char *type : {"SERIAL", "FTDI", ""}) {
        MachineInfo info = connectedBy(type);
        info.setConnectionName("ttyUSB1");
        EXPECT_EQ(info.serialConnectionName, "ttyUSB1");
        EXPECT_EQ(info.btConnectionAddress, "00:11:22:33:44:55");
        info.addAdditionalConnection("66:55");
        EXPECT_EQ(info.serialConnectionName, "ttyUSB1");
        EXPECT_EQ(info.btConnectionAddress, "66:55");
        EXPECT_EQ(info.btConnectionName, "VELTO_5G_7");
    }
    MachineInfo info = connectedBy("BLUETOOTH");
    info.setConnectionName("66:55");
    EXPECT_EQ(info.btConnectionAddress, "66:55");
    EXPECT_EQ(info.serialConnectionName, "ttyUSB0");
    info.addAdditionalConnection("ttyUSB1");
    EXPECT_EQ(info.btConnectionAddress, "66:55");
    EXPECT_EQ(info.serialConnectionName, "ttyUSB1");
}

TEST(MachineInfo, takesTheDataOfAPort)
{
    MachineInfo info = filledMachineInfo();
    info.setConnectionData(Port(Port::BluetoothConnection, "VELTO_5G_9", "66:55"));
    EXPECT_EQ(info.connectionType, "BLUETOOTH");
    EXPECT_EQ(info.btConnectionName, "VELTO_5G_9");
    EXPECT_EQ(info.btConnectionAddress, "66:55");
    EXPECT_EQ(info.serialConnectionName, "ttyUSB0");
    info.setConnectionData(Port(QString("ttyUSB1")));
    EXPECT_EQ(info.connectionType, "SERIAL");
    EXPECT_EQ(info.connectionName(), "ttyUSB1");
    info.setConnectionData(Port(Port::FtdiConnection, "ttyUSB2"));
    EXPECT_EQ(info.connectionType, "FTDI");
    EXPECT_EQ(info.serialConnectionName, "ttyUSB2");
    EXPECT_EQ(info.btConnectionAddress, "66:55");
}

TEST(MachineInfo, isMadeOfAMachine)
{
    FW_Mixer mixer;
    fill(mixer);
    const BluetoothDeviceInfo device("", "00:11:22:33:44:55");
    EXPECT_EQ(MachineInfo(&mixer, "BLUETOOTH"),
              MachineInfo(42, true, "", device, "BLUETOOTH", "A1-7", "line 2", "VIBRO 5", "P-100", "",
                          SerialDeviceType::Mixer));
    EXPECT_EQ(MachineInfo(&mixer, "SERIAL").serialConnectionName, "00:11:22:33:44:55");
    EXPECT_EQ(MachineInfo(nullptr, "SERIAL"), MachineInfo());
}

TEST(MachineInfo, readsTheNumberOfASystemID)
{
    FW_Mixer mixer;
    const std::pair<const char *, int> rows[] = {{"000042", 42},     {"0", 0}, {"2147483647", 2147483647},
                                                 {"2147483648", -1}, {"", -1}, {"A7", -1},
                                                 {"4.2", -1}};
    for (const auto &[SID, number] : rows) {
        mixer.setSID(SID);
        EXPECT_EQ(MachineInfo(&mixer, "").SID, number) << SID;
    }
}

TEST(MachineInfo, configuresAMachine)
{
    FW_Mixer mixer;
    fill(mixer);
    const MachineInfo before(&mixer, "SERIAL");
    filledMachineInfo().updateMachineConfiguration(&mixer);
    EXPECT_EQ(mixer.SID(), "000042"); // the same number
    EXPECT_EQ(mixer.connectionName(), "ttyUSB0");
    EXPECT_EQ(mixer.serialNumber(), "A1-7");
    EXPECT_EQ(mixer.description(), "line 2");
    EXPECT_EQ(mixer.modelName(), "LUMINA 100");
    EXPECT_EQ(mixer.productCode(), "P-100");
    before.updateMachineConfiguration(&mixer);
    EXPECT_EQ(MachineInfo(&mixer, "SERIAL"), before);
    filledMachineInfo().updateMachineConfiguration(nullptr);
}

TEST(MachineInfo, configuresTheSystemIDAndTheConnection)
{
    FW_Mixer mixer;
    fill(mixer);
    MachineInfo info = connectedBy("BLUETOOTH");
    info.SID = 7;
    info.updateMachineConfiguration(&mixer);
    EXPECT_EQ(mixer.SID(), "7");
    EXPECT_EQ(mixer.connectionName(), "00:11:22:33:44:55");
    info = connectedBy("FTDI");
    info.SID = -1; // not known
    info.updateMachineConfiguration(&mixer);
    EXPECT_EQ(mixer.SID(), "7");
    EXPECT_EQ(mixer.connectionName(), "ttyUSB0");
}

TEST(MachineInfo, leavesASystemIDThatIsNoNumber)
{
    FW_Mixer mixer;
    mixer.setSID("A7");
    MachineInfo(&mixer, "SERIAL").updateMachineConfiguration(&mixer);
    EXPECT_EQ(mixer.SID(), "A7");
}

TEST(MachineInfo, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(filledMachineInfo());
    EXPECT_STREQ(variant.typeName(), "MachineInfo");
    EXPECT_EQ(QVariant(variant.toMap()).value<MachineInfo>(), filledMachineInfo());
    EXPECT_EQ(variant, QVariant::fromValue(filledMachineInfo()));
    EXPECT_NE(variant, QVariant::fromValue(MachineInfo()));
}

TEST(MachineInfo, isNotMadeOfWhatWouldBeAValue)
{
    static_assert(!std::is_constructible_v<MachineInfo, bool>);
    static_assert(!std::is_constructible_v<MachineInfo, int>);
    static_assert(!std::is_constructible_v<MachineInfo, double>);
    static_assert(!std::is_constructible_v<MachineInfo, const char *>);
    static_assert(!std::is_convertible_v<Value, MachineInfo>);
}

} // namespace
