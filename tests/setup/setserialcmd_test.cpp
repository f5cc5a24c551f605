// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setserialcmd.h"

#include "base/commandcontract.h"
#include "setup/setconfserialcmd.h"
#include "setup/setserialserialcmd.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char noPort[] = "SetSerialCmd: unable to create FW_SerialPort object";
constexpr char written[] = R"([{"conn_address": "00:11", "conn_name": "pump", "conn_type": 1}])";

const FW_SerialPort radio(FW_SerialPort::BluetoothConnection, "pump", "00:11");

Value portStruct()
{
    return structOf({{"conn_type", 1}, {"conn_name", "pump"}, {"conn_address", "00:11"}});
}

/** What the two classes have in common. */
template <class Command>
CommandFacts facts(const FW_Dispenser *machine)
{
    CommandFacts facts(formsOf<Command>(machine));
    facts.catalogue = {"SET_SERIAL", 47, "", 1};
    facts.valueFunction = "SetSerialCmd::SetSerialCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "SetSerialCmd::SetSerialCmd(QList<QVariant>)";
    facts.arguments = {required().refuses(
        {Value(1), Value("/dev/ttyS1"), arrayOf(portStruct()), structOf({}),
         structOf({{"conn_name", "pump"}}),
         structOf({{"conn_type", 3}, {"conn_name", "pump"}, {"conn_address", ""}})},
        {QVariant(), 1, "/dev/ttyS1", List{QVariant::fromValue(radio)}, QVariantMap(),
         QVariantMap{{"conn_name", "pump"}}, QVariantMap{{"conn_type", 1}, {"conn_address", ""}}},
        {"DE00442", "DE00442", noPort})};
    facts.getters = {getter(&Command::serialPort)};
    facts.defaults = Request()
                         .parameters({QVariant::fromValue(FW_SerialPort())})
                         .written(R"([{"conn_address": "", "conn_name": "", "conn_type": 0}])");
    const Request ofRadio = Request({QVariant::fromValue(radio)})
                                .value(arrayOf(portStruct()))
                                .template typed<Command>(radio, machine)
                                .written(written);
    const QVariantMap map = {{"conn_type", 1}, {"conn_name", "pump"}, {"conn_address", "00:11"}};
    facts.requests = {ofRadio, ofRadio.alsoFromList({map}),
                      Request({QVariant::fromValue(FW_SerialPort(QStringLiteral("ttyS1")))})
                          .onlyTyped()
                          .template typed<Command>(QStringLiteral("ttyS1"), machine)
                          .written(R"([{"conn_address": "", "conn_name": "ttyS1", "conn_type": 0}])")};
    return facts;
}

TEST(SetConfSerialCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine;
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        CommandFacts ofDriver = facts<SetConfSerialCmd>(given);
        ofDriver.protoType = 2;
        ofDriver.answers = confAnswers();
        expectCommandContract(ofDriver);
    }
}

TEST(SetSerialSerialCmd, keepsTheCommandContract)
{
    const FW_Dispenser machine;
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        CommandFacts ofFirmware = facts<SetSerialSerialCmd>(given);
        ofFirmware.protoType = 1;
        ofFirmware.answers = serialAnswers();
        expectCommandContract(ofFirmware);
    }
}

TEST(SetSerialCmd, holdsAPort)
{
    EXPECT_EQ(SetSerialCmd().serialPort(), FW_SerialPort());
    EXPECT_EQ(SetSerialCmd(radio).serialPort(), radio);
    EXPECT_EQ(SetSerialCmd(arrayOf(portStruct())).serialPort(), radio);
    EXPECT_EQ(SetSerialCmd(List{QVariant::fromValue(radio)}).serialPort(), radio);
    static_assert(!std::is_constructible_v<SetSerialCmd, int>);
    static_assert(!std::is_constructible_v<SetSerialCmd, const char *>);
}

} // namespace
