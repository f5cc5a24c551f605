// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/nozzlecleancmd.h"

#include "processes/processtesting.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

namespace {

using namespace testing_processes;

Words cleaning(const char *detailed)
{
    return {"Nozzle clean", "Nozzle clean", detailed};
}

CommandFacts facts()
{
    constexpr char invalid[] = "NozzleCleanCmd: invalid parameter";
    CommandFacts facts(formsOf<NozzleCleanCmd>());
    facts.catalogue = {"NOZZLE_CLEAN", 141, "002F", 2};
    facts.protoType = 1;
    facts.valueFunction = "NozzleCleanCmd::NozzleCleanCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "NozzleCleanCmd::NozzleCleanCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE02566", "DE02568", invalid}).takes({0, -1, 245}),
                       required(Whole, {"DE02567", "DE02569", invalid}).takes({-1, 0, 60516})};
    facts.getters = {getter(&NozzleCleanCmd::moduleID), getter(&NozzleCleanCmd::duration)};
    facts.defaults = Request()
                         .parameters({0, 60515LL})
                         .written("[0, 60515]")
                         .sends({245, 245})
                         .says(cleaning("Nozzle clean of circuit position 0"));
    facts.requests = {
        Request({3, 300})
            .parameters({3, 300LL})
            .typed<NozzleCleanCmd>(3, 300)
            .written("[3, 300]")
            .sends({54, 1})
            .module(3)
            .says(cleaning("Nozzle clean of circuit position 3")),
        Request({2, 10})
            .parameters({2, 10LL})
            .typed<NozzleCleanCmd>(2, 10)
            .written("[2, 10]")
            .sends({10, 0})
            .module(2)
            .says(cleaning("Nozzle clean of circuit position 2")),
        Request({0, 60515})
            .parameters({0, 60515LL})
            .typed<NozzleCleanCmd>(-3, 0)
            .written("[0, 60515]")
            .sends({245, 245})
            .says(cleaning("Nozzle clean of circuit position 0")),
        Request({2, 0}) // only the typed form gives it a meaning
            .parameters({2, 0LL})
            .written("[2, 0]")
            .sends({0, 0})
            .module(2)
            .says(cleaning("Nozzle clean of circuit position 2")),
    };
    facts.typedRefusals = {{made<NozzleCleanCmd>(1, 60516LL),
                            {"DE01745", "Duration: invalid parameter"},
                            "FWProcess::FWProcess(int, qlonglong, DurationType, bool)"}};
    facts.firmware = {{FW_Version(), false},       {FW_Version(63, 38), false}, {FW_Version(63, 39), true},
                      {FW_Version(67, 99), false}, {FW_Version(70, 1), false},  {FW_Version(70, 2), true},
                      {FW_Version(72, 0), true}};
    facts.answers = serialAnswers();
    return facts;
}

TEST(NozzleCleanCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(NozzleCleanCmd, knowsWhichFirmwareHasIt)
{
    for (const Gate &gate : facts().firmware)
        EXPECT_EQ(NozzleCleanCmd::checkSupportedCommand(gate.version), gate.isSupported)
            << gate.version.toString().toStdString();
}

TEST(NozzleCleanCmd, losesTheUpperHalfOfADurationOverXmlRpc)
{
    const NozzleCleanCmd command(List{1, 4294967299LL});
    EXPECT_EQ(command.parameters(), (List{1, 4294967299LL}));
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[1, 3]");
    EXPECT_EQ(NozzleCleanCmd(List{1, -5}).serialParameters(1), (QList<int>{0, 0}));
}

// ---------------------------------------------------------------- time

/** Positions 1 to 4, of which 1, 2 and 4 have a cleaning motor each; 2 has a second. */
FW_Dispenser cleanedMachine()
{
    FW_Dispenser machine = dispenserWith({1, 2, 3, 4});
    const auto motorOf = [](int seconds) {
        FW_CleaningMotor motor;
        motor.setDuration(seconds);
        return motor;
    };
    machine.getCircuitByPosition(1)->setCleaningMotor(motorOf(5));
    machine.getCircuitByPosition(2)->setCleaningMotor(motorOf(7));
    machine.getCircuitByPosition(2)->addCleaningMotor(motorOf(100));
    machine.getCircuitByPosition(4)->setCleaningMotor(motorOf(9));
    machine.setDevice(FW_Brush());
    return machine;
}

TEST(NozzleCleanCmd, takesTimeForEachCircuitWithAMotor)
{
    FW_Dispenser machine = cleanedMachine();
    const auto time = [&](int position, int duration) {
        return NozzleCleanCmd(position, duration).getCmdEstimatedExecutionTime(&machine);
    };
    EXPECT_EQ(time(0, 60515), 9000 + 11000 + 13000);
    EXPECT_EQ(time(0, 20), 3 * 24000);
    EXPECT_EQ(time(2, 60515), 11000);
    EXPECT_EQ(time(2, 20), 24000);
    EXPECT_EQ(time(3, 20), 0);
    EXPECT_EQ(time(9, 20), 0);
    machine.getCircuitByPosition(2)->setEnabled(false);
    EXPECT_EQ(time(2, 20), 0);
    EXPECT_EQ(time(0, 60515), 9000 + 13000);
}

TEST(NozzleCleanCmd, tellsNoTimeThatCannotBe)
{
    FW_Dispenser machine = cleanedMachine();
    const auto time = [&](qlonglong duration) {
        return NozzleCleanCmd(List{0, duration}).getCmdEstimatedExecutionTime(&machine);
    };
    for (const qlonglong duration : {-5LL, -9223372036854775807LL, 0LL})
        EXPECT_EQ(time(duration), 3 * 4000) << duration;
    EXPECT_EQ(time(3074457345618254LL), 9223372036854774000LL); // thrice, and 12 seconds
    for (const qlonglong duration : {3074457345618255LL, 9223372036854775LL, 9223372036854775807LL})
        EXPECT_EQ(time(duration), 0) << duration;

    FW_CleaningMotor motor;
    motor.setDuration(-5);
    machine.getCircuitByPosition(1)->setCleaningMotor(motor);
    EXPECT_EQ(time(60515), 4000 + 11000 + 13000);
}

TEST(NozzleCleanCmd, takesNoTimeWithoutABrush)
{
    FW_Dispenser machine = dispenserWith({1});
    machine.getCircuitByPosition(1)->setCleaningMotor(FW_CleaningMotor());
    EXPECT_EQ(NozzleCleanCmd(1, 20).getCmdEstimatedExecutionTime(&machine), 0);
    machine.createDevice(FW_Device::Brush);
    EXPECT_EQ(NozzleCleanCmd(1, 20).getCmdEstimatedExecutionTime(&machine), 24000);
    const FW_Mixer mixer;
    EXPECT_EQ(NozzleCleanCmd(1, 20).getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(NozzleCleanCmd(1, 20).getCmdEstimatedExecutionTime(nullptr), 0);
}

TEST(NozzleCleanCmd, takesTheTimeOfAFullUltrasoundCleaningWhereThereIsAStation)
{
    FW_UltrasoundCleaning station;
    station.setUltrasoundDuration(60);
    station.setEmptyingTime(5);
    station.setFillingTime(8);
    FW_Dispenser machine = cleanedMachine();
    machine.setDevice(station);
    EXPECT_EQ(NozzleCleanCmd(1, 20).getCmdEstimatedExecutionTime(&machine), 83000);
    EXPECT_EQ(NozzleCleanCmd(9, 20).getCmdEstimatedExecutionTime(&machine), 83000);
}

// ---------------------------------------------------------------- machines

TEST(NozzleCleanCmd, knowsTheMachinesThatCleanThemselves)
{
    FW_Dispenser plain;
    plain.setModel(MachineModel::GenericDispenser);
    EXPECT_FALSE(NozzleCleanCmd::hasMachineCleaning(plain));
    for (const MachineModel model : {MachineModel::Rotan, MachineModel::Lirador}) {
        FW_Dispenser rotating;
        rotating.setModel(model);
        EXPECT_TRUE(NozzleCleanCmd::hasMachineCleaning(rotating));
    }

    FW_Autocap cap;
    cap.setType(FW_Autocap::Sliding);
    plain.setDevice(cap);
    EXPECT_FALSE(NozzleCleanCmd::hasMachineCleaning(plain));
    cap.setType(FW_Autocap::SlidingWithCleaning);
    plain.setDevice(cap);
    EXPECT_TRUE(NozzleCleanCmd::hasMachineCleaning(plain));

    FW_Dispenser bathing;
    bathing.createDevice(FW_Device::UltrasoundCleaning);
    EXPECT_TRUE(NozzleCleanCmd::hasMachineCleaning(bathing));
}

} // namespace
