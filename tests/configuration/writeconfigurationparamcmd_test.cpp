// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/writeconfigurationparamcmd.h"

#include "base/commandcontract.h"
#include "configuration/generic_cdata.h"
#include "configuration/lck_cdata.h"
#include "sharedparttesting.h"

#include <QuvFramework/fw_heater.h>
#include <QuvFramework/fw_lock.h>

#include <memory>

namespace {

using namespace testing_configuration;

constexpr char ofValue[] =
    "WriteConfigurationParamCmd::WriteConfigurationParamCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofMachine[] =
    "WriteConfigurationParamCmd::WriteConfigurationParamCmd(int, const FW_Machine*, int)";
constexpr char notDecoded[] = "Write configuration row parameters: error in decoding";

Value rowOf(const Value &code, const Value &row)
{
    return structOf({{"cmd_value", code}, {"cmd_parameters", row}});
}

FW_Dispenser lockedMachine()
{
    FW_Lock lock;
    lock.setManualUnlockSignalMask(300);
    FW_Dispenser machine;
    machine.setDevice(lock);
    return machine;
}

/** The command that a value or a list without a row makes. */
Request withoutRow(Request request)
{
    return request.notReadBack().parameters({0, 0}).written("[]").sends({0, 1}, {}).holds({0, -1, ""});
}

CommandFacts facts(const FW_Dispenser &machine)
{
    using Command = WriteConfigurationParamCmd;
    CommandFacts facts(formsOf<Command>());
    facts.catalogue = {"WRITE_CONFIG_ROW", 20, "0065", 0};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.valueIsCheckedByBase = false; // a struct is a request, too
    facts.comesBackFromList = false;    // a list gives no row
    facts.getters = {getter(&Command::commandCode), getter(&Command::id),
                     getter(&Command::configurationDataStr)};
    facts.defaults = withoutRow(Request());
    for (const Value &row :
         {rowOf(Value(25), Value("1,300")), arrayOf(rowOf(Value(25), Value("1,300"))),
          structOf({{"cmd_code", Value(7)}, {"cmd_value", Value(25)}, {"cmd_parameters", Value("1,300")}})})
        facts.requests.push_back(Request()
                                     .value(row)
                                     .onlyFromValue()
                                     .typed<Command>(25, &machine)
                                     .parameters({25, 5, 1, 1, 2, 54, 1})
                                     .written(R"([{"cmd_parameters": "1,300", "cmd_value": 25}])")
                                     .sends({25, 2, 1, 1, 2, 54, 1}, {})
                                     .holds({25, -1, "@LCK 1,300"}));
    for (const Value &none :
         {structOf({}), structOf({{"cmd_value", Value(25)}}), structOf({{"cmd_parameters", Value("1,6")}}),
          rowOf(Value(25), Value("")), rowOf(Value(0), Value("1,6"))})
        facts.requests.push_back(withoutRow(Request().value(none).onlyFromValue()));
    facts.requests.push_back(withoutRow(Request({25, "1,6"}).onlyFromList()));
    facts.answers = serialAnswers();
    return facts;
}

} // namespace

TEST(WriteConfigurationParamCmd, keepsTheCommandContract)
{
    expectCommandContract(facts(lockedMachine()));
}

TEST(WriteConfigurationParamCmd, holdsNoRowByDefault)
{
    FW_Dispenser machine;
    int form = 0;
    for (WriteConfigurationParamCmd command :
         {WriteConfigurationParamCmd(), WriteConfigurationParamCmd(List{25, QStringLiteral("1,6")}),
          WriteConfigurationParamCmd(structOf({}))}) {
        SCOPED_TRACE(++form);
        EXPECT_FALSE(command.confData());
        EXPECT_FALSE(command.updateConfiguration(&machine));
    }
}

TEST(WriteConfigurationParamCmd, sendsNothingToAFirmwareOfNoFamily)
{
    const FW_Dispenser machine = lockedMachine();
    EXPECT_EQ(WriteConfigurationParamCmd(25, &machine).serialParameters(0), QList<int>());
}

TEST(WriteConfigurationParamCmd, takesTheRowOfAReference)
{
    FW_Dispenser machine = dispenserOf({1, 2});
    motorOf(machine, 2).setRamp(FW_Ramp(7));
    motorOf(machine, 2).setSingleTransmission(FW_SingleTransmission(8));
    motorOf(machine, 2).setFlowCorrection(FW_FlowCorrection(9));
    const WriteConfigurationParamCmd command(10, &machine, 7);
    EXPECT_EQ(command.id(), 7);
    EXPECT_EQ(command.configurationDataStr(), QStringLiteral("@RAM 1,7,20,20,60,15"));
    EXPECT_TRUE(WriteConfigurationParamCmd(19, &machine, 8)
                    .configurationDataStr()
                    .startsWith(QLatin1String("@MOT 1,8,")));
    EXPECT_TRUE(WriteConfigurationParamCmd(22, &machine, 9)
                    .configurationDataStr()
                    .startsWith(QLatin1String("@PRO 1,9,")));
    EXPECT_TRUE(
        WriteConfigurationParamCmd(5, &machine, 1).configurationDataStr().startsWith(QLatin1String("@CPT ")));
    EXPECT_TRUE(
        WriteConfigurationParamCmd(6, &machine, 1).configurationDataStr().startsWith(QLatin1String("@AGI ")));
}

TEST(WriteConfigurationParamCmd, refusesARowThatNoMachineHas)
{
    const FW_Dispenser machine = lockedMachine();
    for (const int unknown : {0, 27, -1}) {
        SCOPED_TRACE(unknown);
        expectRefusal("DE00172", "Unknown command code", ofMachine,
                      [&] { WriteConfigurationParamCmd(unknown, &machine, 1); });
    }
    for (const int withoutClass : {12, 23, 24}) {
        SCOPED_TRACE(withoutClass);
        expectRefusal("DE00582", "Write configuration row parameters: unknown command", ofMachine,
                      [&] { WriteConfigurationParamCmd(withoutClass, &machine, 1); });
    }
    expectRefusal("DE02435", "Invalid Dispenser data", "LCK_cdata::LCK_cdata(const FW_Machine*)",
                  [] { WriteConfigurationParamCmd(25, nullptr, 1); });
    expectRefusal("DE01943", "Invalid single transmission configuration reference",
                  "MOT_cdata::MOT_cdata(int, const FW_Machine*)",
                  [&] { WriteConfigurationParamCmd(19, &machine); });
}

TEST(WriteConfigurationParamCmd, refusesARowThatCannotBeSent)
{
    FW_Heater heater;
    heater.setLowTemperatureThreshold(-5);
    FW_Dispenser machine;
    machine.setDevice(heater);
    expectRefusal("DE00176", notDecoded, ofMachine, [&] { WriteConfigurationParamCmd(17, &machine, 1); });
    expectRefusal("DE00176", notDecoded, ofMachine, [&] { WriteConfigurationParamCmd(10, &machine, -1); });
    expectRefusal("DE00175", notDecoded, ofValue,
                  [] { WriteConfigurationParamCmd{rowOf(Value(17), Value("1,-5,20"))}; });
}

TEST(WriteConfigurationParamCmd, takesTheRowOfAStruct)
{
    const WriteConfigurationParamCmd command(rowOf(Value(25), Value("1,300")));
    EXPECT_NE(dynamic_cast<const LCK_cdata *>(command.confData()), nullptr);
}

TEST(WriteConfigurationParamCmd, takesARowOfAStructureWithoutAClass)
{
    for (const int code : {12, 23, 24, 27, -3}) {
        SCOPED_TRACE(code);
        const WriteConfigurationParamCmd command(rowOf(Value(code), Value("2,5,6")));
        ASSERT_NE(dynamic_cast<const GENERIC_cdata *>(command.confData()), nullptr);
        EXPECT_EQ(command.confData()->commandCode(), code);
        EXPECT_EQ(command.serialParameters(1), (QList<int>{code, 3, 1, 2, 1, 5, 1, 6}));
    }
    EXPECT_EQ(WriteConfigurationParamCmd(rowOf(Value(24), Value("2,5,6"))).configurationDataStr(),
              QStringLiteral("@MIX 2,5,6"));
}

TEST(WriteConfigurationParamCmd, countsTheNameAsOneField)
{
    const WriteConfigurationParamCmd command(rowOf(Value(2), Value("1,R\xC3\xA9t"))); // UTF-8
    EXPECT_EQ(command.configurationDataStr(), QString::fromUtf8("@NOM 1,R\u00E9t"));
    EXPECT_EQ(command.serialParameters(1), (QList<int>{2, 2, 1, 1, 3, 82, -23, 116}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()),
              "[{\"cmd_parameters\": \"1,R\xC3\xA9t\", \"cmd_value\": 2}]");
    EXPECT_EQ(WriteConfigurationParamCmd(command.xmlrpc_parameters()).configurationDataStr(),
              QString::fromUtf8("@NOM 1,R\u00E9t"));
}

TEST(WriteConfigurationParamCmd, refusesWhatIsNoRow)
{
    for (const Value &other : {Value(5), Value("1,6"), arrayOf(), arrayOf(25, "1,6")}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00171", "Error decoding xmp-rpc type", ofValue,
                      [&] { const WriteConfigurationParamCmd command(other); });
    }
    expectRefusal("DE00169", "Invalid configuration parameters. Expected Int type for attribute 'cmd_value'",
                  ofValue, [] { WriteConfigurationParamCmd{rowOf(Value("25"), Value("1,6"))}; });
    expectRefusal("DE00170",
                  "Invalid configuration parameters. Expected String type for attribute 'cmd_parameters'",
                  ofValue, [] { WriteConfigurationParamCmd{rowOf(Value(25), Value(6))}; });
    expectRefusal("DE02440", "Manual Unlock Signal field not found in answer",
                  "LCK_cdata::LCK_cdata(QString)",
                  [] { WriteConfigurationParamCmd{rowOf(Value(25), Value("1"))}; });
    expectRefusal("DE00152", "Invalid configuration parameter field in answer",
                  "ConfData::ConfData(int, QString)",
                  [] { WriteConfigurationParamCmd{rowOf(Value(99), Value("1,x"))}; });
}

TEST(WriteConfigurationParamCmd, copiesItsRow)
{
    const FW_Dispenser machine = lockedMachine();
    const WriteConfigurationParamCmd command(25, &machine, 4);
    const std::unique_ptr<WriteConfigurationParamCmd> copy(command.clone());
    EXPECT_NE(copy->confData(), command.confData());
    EXPECT_EQ(copy->configurationDataStr(), QStringLiteral("@LCK 1,300"));
    EXPECT_EQ(copy->serialParameters(1), (QList<int>{25, 2, 1, 1, 2, 54, 1}));
    EXPECT_EQ(copy->id(), 4);
    copy->setCommandCode(24);
    EXPECT_EQ(copy->commandCode(), 24);
    EXPECT_EQ(command.commandCode(), 25);
}

TEST(WriteConfigurationParamCmd, tellsWhetherItsRowWasTaken)
{
    WriteConfigurationParamCmd command(rowOf(Value(25), Value("1,300")));
    FW_Dispenser machine;
    FW_Mixer mixer;
    EXPECT_TRUE(command.updateConfiguration(&machine));
    EXPECT_EQ(LCK_cdata(&machine).configurationParamsStr(), QStringLiteral("1,300"));
    EXPECT_FALSE(command.updateConfiguration(&mixer));
    EXPECT_FALSE(command.updateConfiguration(nullptr));
}
