// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cpt_cdata.h"

#include "structuretesting.h"

#include <QuvFramework/fw_calibrationprofiles.h>

#include <initializer_list>
#include <utility>

using namespace testing_configuration;

namespace {

const Structure structure = {5,
                             "CPT_cdata",
                             "DE00209",
                             "Invalid Dispenser data",
                             "DE02808",
                             "DE00231",
                             "DE00233",
                             {
                                 {"Canister ID", "DE00214"},
                                 {"Canister Size", "DE00324"},
                                 {"Position ID", "DE00215"},
                                 {"Activation Mode", "DE00216"},
                                 {"Valve ID", "DE00217"},
                                 {"Valve Board ID", "DE00218"},
                                 {"Valve Type", "DE00219"},
                                 {"Erogation Motor Stepper Resolution", "DE00220"},
                                 {"Pump Type", "DE00221"},
                                 {"Stepper Motor Supplying Current", "DE00222"},
                                 {"Suction Speed", "DE00223"},
                                 {"Recirculation Enabled", "DE00224"},
                                 {"Recirculation Speed", "DE00325"},
                                 {"Recirculation Motor Stepper Resolution", "DE00225"},
                                 {"Recirculation Duration", "DE00226"},
                                 {"Recirculation Pause", "DE00227"},
                                 {"Ramp ID", "DE00228"},
                                 {"Waiting Zero Pump Signal", "DE00229"},
                                 {"Motor Activation Time before Valve Opening", "DE00230"},
                                 {"Delay Time before between suction and erogation", "DE00520"},
                                 {"Pump Model ID", "DE01356", Optional},
                                 {"Wire Board ID", "DE01459", Optional},
                                 {"Wire Connector ID", "DE00674", Optional},
                                 {"Layout Position ID", "DE00873", Optional, nullptr, 29},
                                 {"Layout Position ID", "DE00873", Optional, nullptr, 29},
                                 {"Layout Position ID", "DE00873", Optional, nullptr, 29},
                                 {"Layout Position ID", "DE00873", Optional, nullptr, 29},
                                 {"Layout Position ID", "DE00873", Optional, nullptr, 29},
                                 {"Layout Position ID", "DE00873", Optional, nullptr, 29},
                                 {"Max speed", "DE01599", Optional},
                                 {"Accurate Cleaning Enable", "DE01601", Optional},
                                 {"Accurate Cleaning Timeout", "DE01602", Optional},
                                 {"Inter-dispensing time", "DE01932", Optional},
                                 {"Motor ID", "DE01940", Optional},
                                 {"Extra param", "DE02149", Optional},
                                 {"Recirculation suction speed", "DE02150", Optional},
                                 {"Dispensing algorithm", "DE02164", Optional},
                                 {"Accurate cleaning duration", "DE02201", Optional},
                                 {"M Speed L", "DE02276", Optional},
                                 {"Flow Correction ID", "DE02311", Optional},
                                 {"Head ref ID", "DE02425", Optional},
                                 {"Pressure sensor wire board ID", "DE02824", Optional},
                                 {"Pressure sensor wire connector ID", "DE02825", Optional},
                                 {"Temperature control type", "DE02826", Optional},
                                 {"Brush Type", "DE02663", Optional},
                                 {"Mpx", "DE02664", Optional},
                                 {"Reserve Sensor Wire Board ID", "DE02843", Optional},
                                 {"Reserve Sensor Wire Connector ID", "DE02844", Optional},
                                 {"Reserve Critical Level", "DE02845", Optional},
                                 {"Reserve Level Check Frequency", "DE02846", Optional},
                                 {"Reserve Sensor Enable", "DE02849", Optional},
                                 {"Smart Speed Reduction Enable", "DE02865", Optional},
                             }};

/** What configured() gives; a line ends behind the positions 10, 20, 29, 40 and 52. */
constexpr char configuredRow[] = "1,3,45,12,2,9,2,3,800,4,25,"
                                 "70,2,61,410,90,45,10,0,3,4,"
                                 "31,14,15,12,13,0,0,0,0,"
                                 "120,2,300,3,6,0,77,3,44,900,11,"
                                 "2,7,8,2,3,1,4,5,900,160,2,245";

/** The same of a circuit that a machine does not have. */
constexpr char defaultRow[] = "0,1,100,0,1,0,0,0,200,1,20,"
                              "50,0,50,400,120,60,0,1,2,0,"
                              "0,0,0,0,0,0,0,0,0,"
                              "50,0,240,1,0,0,100,1,0,0,0,"
                              "0,0,0,245,0,1,0,0,0,0,0,0";

using Changes = std::initializer_list<std::pair<int, int>>; // a position in the row and what stands there

/** The first \a size parts of a row, some of them changed. */
QString changed(const char *row, Changes changes, int size = 53)
{
    QStringList parts = QString::fromLatin1(row).split(QLatin1Char(',')).mid(0, size);
    for (const auto &[position, value] : changes)
        parts[position] = QString::number(value);
    return parts.join(QLatin1Char(','));
}

/** A row of what the machine configured() has, with changes. */
CPT_cdata rowWith(Changes changes, int size = 53)
{
    return CPT_cdata(changed(configuredRow, changes, size));
}

FW_DosingMotor motorWith(Changes changes, int size = 53)
{
    return rowWith(changes, size).circuit().dosingMotor();
}

FW_DosingMotor configuredMotor()
{
    FW_DosingMotor motor;
    motor.setResolution(800);
    motor.setPumpType(4, 0);
    motor.setStrokeValue(200);
    motor.setSupplyingCurrent(25);
    motor.setSuctionSpeed(70);
    motor.setZeroPump(true);
    motor.setActivationTime(3);
    motor.setDelay(4);
    motor.setMotorId(31);
    motor.setMaxSpeed(120, FW_DosingMotor::ConfiguredSpeed);
    motor.setInterDispensingTime(1.5);
    motor.setDispensingAlgorithmMask(3);
    motor.setDefaultGravimetricSettings();
    motor.setMaxSpeedLimit(900);
    motor.setHeadRefID(2);
    motor.setPressureSensorWireBoardId(7);
    motor.setPressureSensorWireConnectorId(8);
    motor.setSpeedThrTempReductionGroupID(2);
    motor.setSmartSpeedReduction(true);
    motor.setRamp(FW_Ramp(10));
    motor.setSingleTransmission(FW_SingleTransmission(6));
    motor.setFlowCorrection(FW_FlowCorrection(11));
    return motor;
}

FW_RecirculationMotor configuredRecirculation()
{
    FW_RecirculationMotor motor;
    motor.setEnabled(false);
    motor.setSpeed(61);
    motor.setResolution(410);
    motor.setRecirculationActivity(90);
    motor.setRecirculationPause(45, FW_TimeSpan::Minutes);
    motor.setSuctionSpeed(77);
    return motor;
}

FW_CleaningMotor configuredCleaning()
{
    FW_CleaningMotor motor;
    motor.setCleaningEnabled(false);
    motor.setTimeout(300, FW_TimeSpan::Minutes);
    motor.setDuration(44);
    motor.setBrushType(3);
    return motor;
}

FW_Valve valveOf(int id, int board, int type)
{
    FW_Valve valve(id);
    valve.setBoardID(board);
    valve.setValveType(type);
    return valve;
}

FW_Circuit configuredCircuit()
{
    FW_Circuit circuit(1, 12);
    circuit.addValve(valveOf(9, 2, 3));
    circuit.setDosingMotor(configuredMotor());
    circuit.setRecirculationMotor(configuredRecirculation());
    circuit.setCleaningMotor(configuredCleaning());
    circuit.setWireBoardId(14);
    circuit.setWireConnectorId(15);
    return circuit;
}

FW_Canister configuredCanister()
{
    FW_Canister canister(3);
    canister.setMaximumQuantity(4500);
    canister.setWarningQuantity(900);
    canister.setReserveQuantity(450);
    canister.setActivationFlag(true);
    canister.setLayoutPositionsId({12, 13}, QString());
    canister.setCanisterLevelSensor(1);
    canister.canisterLevelSensor()->setEnabled(false);
    canister.canisterLevelSensor()->setWireBoardId(4);
    canister.canisterLevelSensor()->setWireConnectorId(5);
    canister.canisterLevelSensor()->setCriticalLevel(450);
    canister.canisterLevelSensor()->setCheckFrequency(80, FW_CanisterLevelSensor::HundredthsOfStroke);
    return canister;
}

/** A machine of one circuit on which no value is the one that a new circuit has. */
FW_Dispenser configured()
{
    FW_Canister canister = configuredCanister();
    canister.addCircuit(configuredCircuit());
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    dispenser.setINVTypeFromValve(3);
    return dispenser;
}

/** The same machine with the circuit changed. */
template <class Change>
FW_Dispenser configuredBut(Change change)
{
    FW_Dispenser dispenser = configured();
    change(*dispenser.getCircuitById(1));
    return dispenser;
}

/** A machine of one canister, 3, with circuit 1 at position 12. */
FW_Dispenser plain()
{
    FW_Canister canister(3);
    canister.addCircuit(FW_Circuit(1, 12));
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    return dispenser;
}

QString rowOf(int circuitID, const FW_Dispenser &dispenser)
{
    return CPT_cdata(circuitID, &dispenser).configurationParamsStr();
}

/** What stands at a position of the row of circuit 1. */
int written(int position, const FW_Dispenser &dispenser)
{
    return CPT_cdata(1, &dispenser).parameters().at(position - 1);
}

template <class Change>
int writtenOfMotor(int position, Change change)
{
    return written(position, configuredBut([&](FW_Circuit &c) { change(c.changeableDosingMotor()); }));
}

FW_CalibrationProfiles profilesOf(std::initializer_list<FW_DosingMotor> pumps)
{
    FW_CalibrationProfiles profiles;
    for (const FW_DosingMotor &pump : pumps)
        profiles.addPump(pump);
    return profiles;
}

/** A pump with its own ID, type and stroke, which no row tells. */
FW_DosingMotor pumpOf(int motorID, int type, int stroke)
{
    FW_DosingMotor pump;
    pump.setMotorId(motorID);
    pump.setPumpType(type, 0);
    pump.setStrokeValue(stroke);
    pump.setStepsPerStroke(10 * stroke);
    return pump;
}

/** The machine after the row has been applied, and the motor of its circuit. */
FW_Dispenser updated(const CPT_cdata &row, FW_Dispenser dispenser, FW_CalibrationProfiles *profiles = nullptr,
                     QList<int> *extra = nullptr)
{
    EXPECT_TRUE(row.updateConfiguration(&dispenser, profiles, extra));
    return dispenser;
}

FW_DosingMotor updatedMotor(const CPT_cdata &row, FW_Dispenser dispenser,
                            FW_CalibrationProfiles *profiles = nullptr)
{
    return updated(row, std::move(dispenser), profiles).getCircuitByPosition(12)->dosingMotor();
}

FW_DosingMotor updatedMotor(const CPT_cdata &row, const FW_DosingMotor &pump)
{
    FW_CalibrationProfiles profiles = profilesOf({pump});
    return updatedMotor(row, plain(), &profiles);
}

} // namespace

TEST(CPT_cdata, readsTheFieldsOfItsTable)
{
    expectTable<CPT_cdata>(structure);
}

TEST(CPT_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "int, const FW_Machine*",
                          [](const FW_Machine *machine) { CPT_cdata row(1, machine); });
    expectDispenserWantedToApply<CPT_cdata>(structure);
}

TEST(CPT_cdata, readsNoLayoutPositionWithoutTheSixth)
{
    const QStringList received = numberedTokens(52);
    EXPECT_EQ(CPT_cdata(received, 26).numOfConfigurationParams(), 23);
    EXPECT_EQ(CPT_cdata(received, 29).numOfConfigurationParams(), 23);
    EXPECT_EQ(CPT_cdata(received, 30).numOfConfigurationParams(), 29);
    EXPECT_EQ(CPT_cdata(received, 26).layoutPositionsId(), QList<int>());
    EXPECT_EQ(CPT_cdata(received, 30).layoutPositionsId(), (QList<int>{34, 35, 36, 37, 38, 39}));
}

TEST(CPT_cdata, readsTheFieldsOfTokens)
{
    CPT_cdata row;
    FW_DriverError error;
    EXPECT_TRUE(row.parseConfigurationParams(numberedTokens(22), 22, 2, error));
    EXPECT_EQ(row.parameters(), numbered(21));
    EXPECT_FALSE(row.parseConfigurationParams(numberedTokens(3), 53, 2, error));
    expectError(error, "DE00216", "Activation Mode field not found in answer");
    EXPECT_FALSE(row.parseConfigurationParams(numberedTokens(3), 53, 9, error));
    expectError(error, "DE00213", "No data found in answer");
    EXPECT_FALSE(row.parseConfigurationParams(numberedTokens(3), 53, -1, error));
    expectError(error, "DE00213", "No data found in answer");
}

TEST(CPT_cdata, writesTheMachine)
{
    EXPECT_EQ(rowOf(1, configured()), QLatin1String(configuredRow));
    EXPECT_EQ(
        sent(CPT_cdata(1, std::make_unique<FW_Dispenser>(configured()).get())),
        (QList<int>{1, 1,  1, 3,  1, 45, 1, 12,  1, 2, 1,  9,   1,  2,   1,   3, 2,  62,  3,  1, 4, 1,  25,
                    1, 70, 1, 2,  1, 61, 2, 164, 1, 1, 90, 1,   45, 1,   10,  1, 0,  1,   3,  1, 4, 1,  31,
                    1, 14, 1, 15, 1, 12, 1, 13,  1, 0, 1,  0,   1,  0,   1,   0, 1,  120, 1,  2, 2, 54, 1,
                    1, 3,  1, 6,  1, 0,  1, 77,  1, 3, 1,  44,  2,  162, 3,   1, 11, 1,   2,  1, 7, 1,  8,
                    1, 2,  1, 3,  1, 1,  1, 4,   1, 5, 2,  162, 3,  1,   160, 1, 2,  1,   245}));
}

TEST(CPT_cdata, writesDefaultsForACircuitThatIsNotThere)
{
    EXPECT_EQ(rowOf(2, configured()), QLatin1String(defaultRow));
    EXPECT_EQ(rowOf(1, FW_Dispenser()), QLatin1String(defaultRow));
    FW_Dispenser rotan;
    rotan.setModel(MachineModel::Rotan);
    EXPECT_EQ(rowOf(1, rotan), changed(defaultRow, {{9, 2}, {33, 2}, {37, 5}}));
}

TEST(CPT_cdata, writesDefaultsForMissingParts)
{
    FW_Dispenser dispenser = plain();
    dispenser.getCircuitById(1)->removeDosingMotor();
    EXPECT_EQ(rowOf(1, dispenser), changed(defaultRow, {{0, 1}, {1, 3}, {2, 0}, {3, 12}}));
    dispenser.setModel(MachineModel::Rotan);
    EXPECT_EQ(rowOf(1, dispenser),
              changed(defaultRow, {{0, 1}, {1, 3}, {2, 0}, {3, 12}, {9, 2}, {33, 2}, {37, 5}}));
    // a motor that nobody has configured is told as it is
    EXPECT_EQ(rowOf(1, plain()), changed(defaultRow, {{0, 1}, {1, 3}, {2, 0}, {3, 12}}));
}

TEST(CPT_cdata, writesWhetherPartsAreInUse)
{
    EXPECT_EQ(rowOf(1, configuredBut([](FW_Circuit &c) { c.setEnabled(false); })),
              changed(configuredRow, {{0, 2}}));
    FW_Dispenser dispenser = configured();
    dispenser.getCanisterById(3)->setActivationFlag(false);
    dispenser.getCanisterById(3)->canisterLevelSensor()->setEnabled(true);
    FW_Circuit &circuit = *dispenser.getCircuitById(1);
    FW_RecirculationMotor recirculation = configuredRecirculation();
    recirculation.setEnabled(true);
    circuit.setRecirculationMotor(recirculation);
    circuit.changeableCleaningMotors()[0].setCleaningEnabled(true);
    circuit.changeableDosingMotor().setZeroPump(false);
    circuit.changeableDosingMotor().setSmartSpeedReduction(false);
    EXPECT_EQ(rowOf(1, dispenser),
              changed(configuredRow, {{4, 1}, {12, 1}, {18, 1}, {31, 1}, {51, 1}, {52, 0}}));
}

TEST(CPT_cdata, cutsOffWhatTheRowCannotTell)
{
    FW_Dispenser dispenser = configured();
    dispenser.getCanisterById(3)->setMaximumQuantity(4599.5);
    EXPECT_EQ(written(2, dispenser), 45);
    dispenser.getCanisterById(3)->setMaximumQuantity(99);
    EXPECT_EQ(written(2, dispenser), 0);
    dispenser.getCanisterById(3)->canisterLevelSensor()->setCriticalLevel(33);
    dispenser.getCircuitById(1)->changeableDosingMotor().setStrokeValue(10);
    EXPECT_EQ(written(49, dispenser), 3);
    EXPECT_EQ(written(50, dispenser), 8);
    const auto time = [](double seconds) {
        return writtenOfMotor(33, [&](FW_DosingMotor &motor) { motor.setInterDispensingTime(seconds); });
    };
    EXPECT_EQ(time(1.9), 3);
    EXPECT_EQ(time(0.1 + 0.2 + 0.7), 2);
    EXPECT_EQ(time(0), 0);
    const auto multiplier = [](double first) {
        return writtenOfMotor(46, [&](FW_DosingMotor &motor) {
            motor.addSpeedMpxOffset({10, first, 0});
            motor.addSpeedMpxOffset({20, 9, 0});
        });
    };
    EXPECT_EQ(multiplier(2.7), 2);
    EXPECT_EQ(multiplier(0.5), 0);
}

TEST(CPT_cdata, writesTheHighestDigitForWhatIsNotSet)
{
    const auto group = [](int id) {
        return writtenOfMotor(44, [&](FW_DosingMotor &motor) { motor.setSpeedThrTempReductionGroupID(id); });
    };
    EXPECT_EQ(group(-1), 245);
    EXPECT_EQ(group(1), 1);
    const auto smart = [](int pumpType) {
        return writtenOfMotor(52, [&](FW_DosingMotor &motor) { motor.setPumpType(pumpType, 0); });
    };
    EXPECT_EQ(smart(7), 245);
    EXPECT_EQ(smart(8), 0);
}

TEST(CPT_cdata, writesAllLayoutPositions)
{
    FW_Dispenser dispenser = configured();
    dispenser.getCanisterById(3)->setLayoutPositionsId({21, 22, 23, 24, 25, 26}, QString());
    EXPECT_EQ(rowOf(1, dispenser),
              changed(configuredRow, {{24, 21}, {25, 22}, {26, 23}, {27, 24}, {28, 25}, {29, 26}}));
    dispenser.getCanisterById(3)->setLayoutPositionsId({21, 22, 23, 24, 25, 26, 27, 28}, QString());
    const CPT_cdata grown(1, &dispenser);
    EXPECT_EQ(grown.numOfConfigurationParams(), 54);
    EXPECT_EQ(grown.parameters().mid(22, 10), (QList<int>{15, 21, 22, 23, 24, 25, 26, 27, 28, 120}));
    EXPECT_EQ(grown.layoutPositionsId(), (QList<int>{21, 22, 23, 24, 25, 26, 27, 28}));
    dispenser.getCanisterById(3)->setLayoutPositionsId({}, QString());
    EXPECT_EQ(rowOf(1, dispenser), changed(configuredRow, {{24, 0}, {25, 0}}));
}

TEST(CPT_cdata, tellsTheSensorWithTheLowestPositionOnly)
{
    FW_Canister canister = configuredCanister();
    canister.addCircuit(FW_Circuit(2, 15));
    canister.addCircuit(configuredCircuit());
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    EXPECT_EQ(CPT_cdata(1, &dispenser).parameters().mid(46, 5), (QList<int>{4, 5, 900, 160, 2}));
    EXPECT_EQ(CPT_cdata(2, &dispenser).parameters().mid(46, 5), (QList<int>{0, 0, 0, 0, 0}));
    EXPECT_NE(CPT_cdata(1, &dispenser).levelSensor(), nullptr);
    EXPECT_EQ(CPT_cdata(2, &dispenser).levelSensor(), nullptr);
    // without a motor nobody knows the stroke
    dispenser.getCircuitById(1)->removeDosingMotor();
    EXPECT_EQ(CPT_cdata(1, &dispenser).parameters().mid(46, 5), (QList<int>{4, 5, 0, 0, 2}));
}

TEST(CPT_cdata, readsTheCanister)
{
    const CPT_cdata row = rowWith({});
    EXPECT_EQ(row.canisterID(), 3);
    EXPECT_EQ(row.canisterSize(), 45);
    EXPECT_TRUE(row.activationFlag());
    EXPECT_EQ(row.layoutPositionsId(), (QList<int>{12, 13}));
    EXPECT_EQ(row.rampReference(), 10);
    EXPECT_EQ(row.singleTransmissionReference(), 6);
    EXPECT_EQ(row.flowCorrectionReference(), 11);
    EXPECT_FALSE(rowWith({{4, 1}}).activationFlag());
    EXPECT_FALSE(rowWith({{4, 3}}).activationFlag());
}

TEST(CPT_cdata, readsTheCircuit)
{
    const CPT_cdata row = rowWith({});
    const FW_Circuit &circuit = row.circuit();
    EXPECT_EQ(circuit.positionId(), 12);
    EXPECT_EQ(circuit.wireBoardId(), 14);
    EXPECT_EQ(circuit.wireConnectorId(), 15);
    EXPECT_EQ(circuit.valves(), (QList<FW_Valve>{valveOf(9, 2, 3)}));
    ASSERT_EQ(circuit.recirculationMotors().size(), 1);
    EXPECT_TRUE(circuit.recirculationMotors().first() == configuredRecirculation());
    ASSERT_EQ(circuit.cleaningMotors().size(), 1);
    EXPECT_TRUE(circuit.cleaningMotors().first() == configuredCleaning());
    FW_DosingMotor motor = configuredMotor();
    motor.setStrokeValue(FW_DosingMotor().strokeValue()); // which no row tells, and what follows from others
    motor.removeGravimetricSettings();
    motor.removeRamp();
    motor.removeSingleTransmission();
    motor.removeFlowCorrection();
    EXPECT_TRUE(circuit.hasDosingMotor());
    EXPECT_TRUE(circuit.dosingMotor() == motor);
}

TEST(CPT_cdata, readsTheSensorAsTheRowTellsIt)
{
    const CPT_cdata row = rowWith({});
    ASSERT_NE(row.levelSensor(), nullptr);
    EXPECT_FALSE(row.levelSensor()->isEnabled());
    EXPECT_EQ(row.levelSensor()->wireBoardId(), 4);
    EXPECT_EQ(row.levelSensor()->wireConnectorId(), 5);
    EXPECT_EQ(row.levelSensor()->criticalLevel(), 900);
    EXPECT_EQ(row.levelSensor()->checkFrequency(), 160);
    EXPECT_EQ(row.levelSensor()->checkFrequencyUnit(), FW_CanisterLevelSensor::FirmwareUnit);
    EXPECT_TRUE(rowWith({{51, 1}}).levelSensor()->isEnabled());
    EXPECT_EQ(rowWith({{51, 0}}).levelSensor(), nullptr);
    EXPECT_EQ(rowWith({}, 51).levelSensor(), nullptr);
    EXPECT_NE(rowWith({}, 52).levelSensor(), nullptr);
}

TEST(CPT_cdata, readsOnlyPartsThatAreThere)
{
    EXPECT_EQ(rowWith({{7, 0}}).circuit().firstValve(), nullptr);
    EXPECT_EQ(rowWith({{12, 0}}).circuit().firstRecirculationMotor(), nullptr);
    EXPECT_TRUE(rowWith({{12, 1}}).circuit().firstRecirculationMotor()->isEnabled());
    EXPECT_EQ(rowWith({{31, 0}}).circuit().firstCleaningMotor(), nullptr);
    EXPECT_TRUE(rowWith({{31, 1}}).circuit().firstCleaningMotor()->isCleaningEnabled());
}

TEST(CPT_cdata, takesTheDefaultsOfMissingFields)
{
    const CPT_cdata row = rowWith({}, 21);
    const FW_DosingMotor &motor = row.circuit().dosingMotor();
    EXPECT_EQ(motor.delay(), 4);
    EXPECT_EQ(motor.motorID(), 0);
    EXPECT_EQ(row.circuit().wireBoardId(), 0);
    EXPECT_EQ(row.circuit().wireConnectorId(), 0);
    EXPECT_EQ(row.layoutPositionsId(), QList<int>());
    EXPECT_EQ(motor.maxSpeed(), 0);
    EXPECT_EQ(motor.maxSpeedOrigin(), FW_DosingMotor::PumpSpeed);
    EXPECT_EQ(row.circuit().firstCleaningMotor(), nullptr);
    EXPECT_EQ(motor.interDispensingTime(), -1.0);
    EXPECT_EQ(row.singleTransmissionReference(), 0);
    EXPECT_EQ(row.circuit().firstRecirculationMotor()->suctionSpeed(), 70);
    EXPECT_EQ(motor.dispensingAlgorithmMask(), -1);
    EXPECT_EQ(motor.maxSpeedLimit(), 0);
    EXPECT_EQ(row.flowCorrectionReference(), 0);
    EXPECT_EQ(motor.headRefID(), 0);
    EXPECT_EQ(motor.speedThrTempReductionGroupID(), -1);
    EXPECT_FALSE(motor.hasSmartSpeedReduction());
    EXPECT_EQ(rowWith({}, 32).circuit().firstCleaningMotor()->timeout(FW_TimeSpan::Minutes), 240);
}

TEST(CPT_cdata, passesOverWhatCannotBe)
{
    EXPECT_EQ(motorWith({{30, 2000}}).maxSpeed(), 2000);
    EXPECT_EQ(motorWith({{30, 2001}}).maxSpeed(), 0);
    EXPECT_EQ(motorWith({{30, 2001}}).maxSpeedOrigin(), FW_DosingMotor::PumpSpeed);
    EXPECT_EQ(motorWith({{30, 1}}).maxSpeedOrigin(), FW_DosingMotor::ConfiguredSpeed);
    EXPECT_EQ(motorWith({{39, 2000}}).maxSpeedLimit(), 2000);
    EXPECT_EQ(motorWith({{39, 2001}}).maxSpeedLimit(), 0);
    EXPECT_EQ(motorWith({{37, 7}}).dispensingAlgorithmMask(), 7);
    EXPECT_EQ(motorWith({{37, 8}}).dispensingAlgorithmMask(), -1);
    EXPECT_EQ(motorWith({{37, 0}}).dispensingAlgorithmMask(), -1);
    EXPECT_EQ(motorWith({{44, 1}}).speedThrTempReductionGroupID(), 1);
    EXPECT_EQ(motorWith({{44, 245}}).speedThrTempReductionGroupID(), -1);
    EXPECT_EQ(motorWith({{44, 3}}).speedThrTempReductionGroupID(), -1);
    const auto duration = [](int value) {
        return rowWith({{38, value}}).circuit().firstCleaningMotor()->duration();
    };
    EXPECT_EQ(duration(3600), 3600);
    EXPECT_EQ(duration(3601), 30);
    EXPECT_EQ(duration(0), 30);
    const auto suction = [](int value) {
        return rowWith({{36, value}}).circuit().firstRecirculationMotor()->suctionSpeed();
    };
    EXPECT_EQ(suction(1), 1);
    EXPECT_EQ(suction(0), 70);
}

TEST(CPT_cdata, readsFlagsByTheirExactValues)
{
    EXPECT_TRUE(motorWith({{52, 245}}).hasSmartSpeedReduction());
    EXPECT_FALSE(motorWith({{52, 1}}).hasSmartSpeedReduction());
    EXPECT_FALSE(motorWith({{52, 246}}).hasSmartSpeedReduction());
    EXPECT_TRUE(motorWith({{18, 0}}).zeroPump());
    EXPECT_FALSE(motorWith({{18, 1}}).zeroPump());
    EXPECT_FALSE(motorWith({{18, 2}}).zeroPump());
    EXPECT_EQ(motorWith({{33, 1}}).interDispensingTime(), 0.5);
    EXPECT_EQ(motorWith({{46, 9}}).getFirstSpeedMpxOffset().multiplier, 1);
}

TEST(CPT_cdata, readsEveryLayoutPositionOnce)
{
    const auto layout = [](int a, int b, int c, int d, int e, int f) {
        return rowWith({{24, a}, {25, b}, {26, c}, {27, d}, {28, e}, {29, f}}).layoutPositionsId();
    };
    EXPECT_EQ(layout(6, 5, 4, 3, 2, 1), (QList<int>{6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(layout(0, 5, 0, 5, 244, 245), (QList<int>{5, 244}));
    EXPECT_EQ(rowWith({}, 26).layoutPositionsId(), (QList<int>{12, 13}));
}

TEST(CPT_cdata, tellsTheLastFieldThatIsMissing)
{
    QString error;
    EXPECT_TRUE(rowWith({}).updateLocalData(&error));
    EXPECT_EQ(error, QString());
    EXPECT_TRUE(rowWith({}, 40).updateLocalData(&error));
    EXPECT_EQ(error, QStringLiteral("Smart Speed Reduction Enabled field not found in answer"));
    EXPECT_FALSE(CPT_cdata().updateLocalData(&error));
    EXPECT_EQ(error, QStringLiteral("Canister ID field not found in answer"));
}

TEST(CPT_cdata, carriesTheCircuit)
{
    const FW_Dispenser source = configured();
    FW_CalibrationProfiles profiles = profilesOf({pumpOf(30, 4, 100), pumpOf(31, 4, 200)});
    FW_Dispenser expected = configured();
    expected.getCircuitById(1)->changeableDosingMotor().setStepsPerStroke(2000);
    FW_Dispenser target;
    EXPECT_TRUE(sentAndReceived(CPT_cdata(1, &source)).updateConfiguration(&target, &profiles, nullptr));
    EXPECT_TRUE(target == expected);
    EXPECT_EQ(rowOf(1, target), QLatin1String(configuredRow));
}

TEST(CPT_cdata, carriesTheCircuitThatItWasMadeOf)
{
    const FW_Dispenser source = configured();
    EXPECT_TRUE(updated(CPT_cdata(1, &source), FW_Dispenser()) == source);
}

TEST(CPT_cdata, changesNothingForACircuitThatIsAbsent)
{
    const FW_Dispenser source;
    EXPECT_TRUE(updated(CPT_cdata(1, &source), configured()) == configured());
    EXPECT_TRUE(updated(rowWith({{0, 0}}), plain()) == plain());
}

TEST(CPT_cdata, disablesTheCircuit)
{
    const FW_Dispenser target = updated(rowWith({{0, 2}}), plain());
    EXPECT_FALSE(target.getCircuitById(1)->isEnabled());
    EXPECT_EQ(target.getCircuitById(1)->wireBoardId(), 14);
    EXPECT_TRUE(updated(rowWith({{0, 1}}), target).getCircuitById(1)->isEnabled());
}

TEST(CPT_cdata, makesCanisterAndCircuit)
{
    const FW_Dispenser target = updated(rowWith({{1, 8}, {3, 20}}), plain());
    ASSERT_EQ(target.canisters().size(), 2);
    const FW_Canister &canister = target.canisters().last();
    EXPECT_EQ(canister.id(), 8);
    EXPECT_EQ(canister.maximumQuantity(), 4500);
    EXPECT_EQ(canister.warningQuantity(), 900);
    EXPECT_EQ(canister.reserveQuantity(), 450);
    EXPECT_TRUE(canister.activationFlag());
    ASSERT_EQ(canister.circuits().size(), 1);
    EXPECT_EQ(canister.circuits().first().id(), 2);
    EXPECT_EQ(canister.circuits().first().positionId(), 20);
    EXPECT_EQ(canister.circuits().first().wireConnectorId(), 15);
}

TEST(CPT_cdata, keepsTheQuantitiesOfACanister)
{
    FW_Dispenser machine = plain();
    machine.getCanisterById(3)->setMaximumQuantity(777);
    const FW_Dispenser target = updated(rowWith({{4, 1}}), machine);
    ASSERT_EQ(target.canisters().size(), 1);
    EXPECT_EQ(target.canisters().first().maximumQuantity(), 777);
    EXPECT_FALSE(target.canisters().first().activationFlag());
}

TEST(CPT_cdata, takesACircuitWhereverItIs)
{
    const FW_Dispenser target = updated(rowWith({{1, 8}}), plain());
    EXPECT_EQ(target.getCanisterById(8)->circuits().size(), 0);
    EXPECT_EQ(target.getCanisterById(8)->layoutPositionsId(), (QList<int>{12, 13}));
    EXPECT_EQ(target.getCanisterById(3)->layoutPositionsId(), QList<int>());
    EXPECT_EQ(target.getCircuitById(1)->wireBoardId(), 14);
}

TEST(CPT_cdata, failsForACircuitThatCannotBe)
{
    FW_Dispenser machine = plain();
    EXPECT_FALSE(applied(rowWith({{3, 0}}), machine));
    EXPECT_TRUE(machine == plain());
}

TEST(CPT_cdata, placesTheCanisterInTheLayout)
{
    EXPECT_EQ(updated(rowWith({}), plain()).canisters().first().layoutPositionsId(), (QList<int>{12, 13}));
    const CPT_cdata without = rowWith({{3, 20}, {24, 0}, {25, 0}});
    EXPECT_EQ(updated(without, configured()).canisters().first().layoutPositionsId(), (QList<int>{12, 20}));
}

TEST(CPT_cdata, addsTheValve)
{
    FW_Dispenser machine = plain();
    machine.getCircuitById(1)->setValves({valveOf(5, 1, 2), valveOf(9, 1, 1)});
    EXPECT_EQ(updated(rowWith({}), machine).getCircuitById(1)->valves(),
              (QList<FW_Valve>{valveOf(5, 1, 2), valveOf(9, 2, 3)}));
    EXPECT_EQ(updated(rowWith({{7, 0}}), machine).getCircuitById(1)->valves(),
              (QList<FW_Valve>{valveOf(5, 1, 2), valveOf(9, 1, 1)}));
}

TEST(CPT_cdata, givesTheMotorAsItIsWithoutAPump)
{
    FW_DosingMotor expected = configuredMotor();
    expected.setStrokeValue(FW_DosingMotor().strokeValue());
    EXPECT_TRUE(updatedMotor(rowWith({}), plain()) == expected);
    FW_CalibrationProfiles none;
    EXPECT_TRUE(updatedMotor(rowWith({}), plain(), &none) == expected);
    FW_CalibrationProfiles others = profilesOf({pumpOf(30, 5, 300)});
    EXPECT_TRUE(updatedMotor(rowWith({}), plain(), &others) == expected);
}

TEST(CPT_cdata, looksForThePumpByItsIdFirst)
{
    FW_CalibrationProfiles profiles =
        profilesOf({pumpOf(30, 4, 300), pumpOf(31, 5, 400), pumpOf(32, 4, 500)});
    const auto strokeOf = [&](Changes changes) {
        return updatedMotor(rowWith(changes), plain(), &profiles).strokeValue();
    };
    EXPECT_EQ(strokeOf({}), 400);
    EXPECT_EQ(strokeOf({{21, 32}}), 500);
    EXPECT_EQ(strokeOf({{21, 99}}), 300);
    EXPECT_EQ(strokeOf({{21, 0}}), 300);
    EXPECT_EQ(strokeOf({{21, 99}, {9, 6}}), 100);
}

TEST(CPT_cdata, setsThePumpUp)
{
    FW_DosingMotor pump = pumpOf(31, 5, 400);
    pump.setGravimetricSw(true);
    pump.setGravimetricSettings({0.5, 9});
    pump.addSpeedMpxOffset({10, 3, 0});
    FW_DosingMotor expected = configuredMotor();
    expected.setPumpType(5, 0);
    expected.setStrokeValue(400);
    expected.setStepsPerStroke(4000);
    expected.setGravimetricSw(true);
    expected.addSpeedMpxOffset({10, 3, 0});
    EXPECT_TRUE(updatedMotor(rowWith({}), pump) == expected);
}

TEST(CPT_cdata, keepsThePumpsSpeedsWithoutOthers)
{
    FW_DosingMotor pump = pumpOf(31, 4, 200);
    pump.setMaxSpeed(88, FW_DosingMotor::PumpSpeed);
    pump.setMaxSpeedLimit(99);
    const FW_DosingMotor motor = updatedMotor(rowWith({{30, 0}, {39, 0}}), pump);
    EXPECT_EQ(motor.maxSpeed(), 88);
    EXPECT_EQ(motor.maxSpeedOrigin(), FW_DosingMotor::PumpSpeed);
    EXPECT_EQ(motor.maxSpeedLimit(), 99);
    EXPECT_EQ(updatedMotor(rowWith({}), pump).maxSpeedOrigin(), FW_DosingMotor::ConfiguredSpeed);
}

TEST(CPT_cdata, takesTheModelsTimeBetweenPours)
{
    FW_Dispenser rotan = plain();
    rotan.setModel(MachineModel::Rotan);
    const CPT_cdata untold = rowWith({}, 33);
    EXPECT_EQ(updatedMotor(untold, plain()).interDispensingTime(), 0.5);
    EXPECT_EQ(updatedMotor(untold, rotan).interDispensingTime(), 1.0);
    EXPECT_EQ(updatedMotor(untold, pumpOf(31, 4, 200)).interDispensingTime(), 0.5);
    EXPECT_EQ(updatedMotor(rowWith({}), rotan).interDispensingTime(), 1.5);
}

TEST(CPT_cdata, takesTheModelsWayOfPouring)
{
    FW_Dispenser rotan = plain();
    rotan.setModel(MachineModel::Rotan);
    const auto mask = [](Changes changes, const FW_Dispenser &machine) {
        return updatedMotor(rowWith(changes), machine).dispensingAlgorithmMask();
    };
    EXPECT_EQ(mask({{37, 3}}, plain()), 3);
    EXPECT_EQ(mask({{37, 0}}, plain()), 1);
    EXPECT_EQ(mask({{37, 3}}, rotan), 5);
    EXPECT_EQ(mask({{37, 0}}, rotan), 5);
    EXPECT_EQ(updatedMotor(rowWith({{37, 6}}), pumpOf(31, 4, 200)).dispensingAlgorithmMask(), 6);
    FW_CalibrationProfiles profiles = profilesOf({pumpOf(31, 4, 200)});
    EXPECT_EQ(updatedMotor(rowWith({}), rotan, &profiles).dispensingAlgorithmMask(), 5);
}

TEST(CPT_cdata, settlesTheScaleByTheWayOfPouring)
{
    FW_DosingMotor pump = pumpOf(31, 4, 200);
    pump.setGravimetricSettings({0.5, 9});
    const FW_DosingMotor weighing = updatedMotor(rowWith({{37, 2}}), pump);
    EXPECT_TRUE(weighing.hasGravimetricSettings());
    EXPECT_EQ(weighing.gravimetricSettings().tolerance, 0.05);
    EXPECT_EQ(weighing.gravimetricSettings().maxCorrections, 3);
    EXPECT_FALSE(updatedMotor(rowWith({{37, 5}}), pump).hasGravimetricSettings());
    EXPECT_TRUE(updatedMotor(rowWith({{37, 6}}), plain()).hasGravimetricSettings());
    EXPECT_FALSE(updatedMotor(rowWith({{37, 1}}), configured()).hasGravimetricSettings());
}

TEST(CPT_cdata, setsAndRemovesReferences)
{
    FW_DosingMotor pump = pumpOf(31, 4, 200);
    FW_Ramp ramp(44);
    ramp.setSlowSpeed(99);
    pump.setRamp(ramp);
    pump.setSingleTransmission(FW_SingleTransmission(45));
    pump.setFlowCorrection(FW_FlowCorrection(46));
    const FW_DosingMotor set = updatedMotor(rowWith({}), pump);
    ASSERT_NE(set.ramp(), nullptr);
    EXPECT_TRUE(*set.ramp() == FW_Ramp(10));
    ASSERT_NE(set.singleTransmission(), nullptr);
    EXPECT_TRUE(*set.singleTransmission() == FW_SingleTransmission(6));
    ASSERT_NE(set.flowCorrection(), nullptr);
    EXPECT_TRUE(*set.flowCorrection() == FW_FlowCorrection(11));
    const FW_DosingMotor removed = updatedMotor(rowWith({{17, 0}, {34, 0}, {40, 0}}), pump);
    EXPECT_EQ(removed.ramp(), nullptr);
    EXPECT_EQ(removed.singleTransmission(), nullptr);
    EXPECT_EQ(removed.flowCorrection(), nullptr);
    EXPECT_EQ(updatedMotor(rowWith({{17, 0}}), configured()).ramp(), nullptr);
}

TEST(CPT_cdata, keepsMotorsThatTheRowDoesNotHave)
{
    const FW_Dispenser target = updated(rowWith({{12, 0}, {31, 0}}), configured());
    ASSERT_EQ(target.getCircuitById(1)->recirculationMotors().size(), 1);
    EXPECT_TRUE(target.getCircuitById(1)->recirculationMotors().first() == configuredRecirculation());
    ASSERT_EQ(target.getCircuitById(1)->cleaningMotors().size(), 1);
    EXPECT_TRUE(target.getCircuitById(1)->cleaningMotors().first() == configuredCleaning());
    const FW_Dispenser source = configuredBut([](FW_Circuit &circuit) { circuit.removeDosingMotor(); });
    EXPECT_TRUE(updatedMotor(CPT_cdata(1, &source), configured()) == configuredMotor());
}

TEST(CPT_cdata, replacesTheOtherMotors)
{
    const FW_Dispenser target = updated(rowWith({}), updated(rowWith({{13, 99}, {32, 99}}), plain()));
    EXPECT_TRUE(*target.getCircuitById(1)->firstRecirculationMotor() == configuredRecirculation());
    EXPECT_TRUE(*target.getCircuitById(1)->firstCleaningMotor() == configuredCleaning());
}

TEST(CPT_cdata, givesTheCanisterItsSensor)
{
    FW_CalibrationProfiles profiles = profilesOf({pumpOf(31, 4, 200)});
    const FW_Dispenser target = updated(rowWith({{49, 901}, {50, 33}}), plain(), &profiles);
    const FW_CanisterLevelSensor *sensor = target.canisters().first().canisterLevelSensor();
    ASSERT_NE(sensor, nullptr);
    EXPECT_FALSE(sensor->isEnabled());
    EXPECT_EQ(sensor->wireBoardId(), 4);
    EXPECT_EQ(sensor->wireConnectorId(), 5);
    EXPECT_EQ(sensor->criticalLevel(), 450);
    EXPECT_EQ(sensor->checkFrequency(), 16);
    EXPECT_EQ(sensor->checkFrequencyUnit(), FW_CanisterLevelSensor::HundredthsOfStroke);
    // no row tells how long a stroke is: it is that of the motor that is there
    EXPECT_EQ(updated(rowWith({}), configured()).canisters().first().canisterLevelSensor()->criticalLevel(),
              450);
}

TEST(CPT_cdata, leavesTheSensorsNumbersWithoutAStroke)
{
    FW_CalibrationProfiles profiles = profilesOf({pumpOf(31, 4, 0)});
    const FW_Dispenser target = updated(rowWith({{47, 6}, {51, 1}}), configured(), &profiles);
    const FW_CanisterLevelSensor *sensor = target.canisters().first().canisterLevelSensor();
    EXPECT_TRUE(sensor->isEnabled());
    EXPECT_EQ(sensor->wireBoardId(), 6);
    EXPECT_EQ(sensor->criticalLevel(), 450);
    EXPECT_EQ(sensor->checkFrequency(), 80);
}

TEST(CPT_cdata, givesNoSensorToACircuitWithoutAMotor)
{
    const FW_Dispenser source = configuredBut([](FW_Circuit &circuit) { circuit.removeDosingMotor(); });
    FW_Dispenser target = plain();
    target.getCircuitById(1)->removeDosingMotor();
    EXPECT_EQ(updated(CPT_cdata(1, &source), target).canisters().first().canisterLevelSensor(), nullptr);
    EXPECT_NE(updated(CPT_cdata(1, &source), plain()).canisters().first().canisterLevelSensor(), nullptr);
}

TEST(CPT_cdata, keepsTheSensorThatTheRowDoesNotTell)
{
    const FW_Dispenser target = updated(rowWith({{51, 0}}), configured());
    ASSERT_NE(target.canisters().first().canisterLevelSensor(), nullptr);
    EXPECT_TRUE(*target.canisters().first().canisterLevelSensor() ==
                *configuredCanister().canisterLevelSensor());
}

TEST(CPT_cdata, tellsTheMachineOfItsNozzleValves)
{
    const auto typeOf = [](int valveType, int former) {
        FW_Dispenser machine = plain();
        machine.setINVTypeFromValve(former);
        return updated(rowWith({{7, valveType}}), machine).INVType();
    };
    EXPECT_EQ(typeOf(3, 0), 1);
    EXPECT_EQ(typeOf(5, 0), 2);
    EXPECT_EQ(typeOf(4, 0), 0);
    EXPECT_EQ(typeOf(0, 0), 0);
    EXPECT_EQ(typeOf(5, 3), 1);
}

TEST(CPT_cdata, takesWhatIsToldOfAllSensors)
{
    const auto policyOf = [](QList<int> extra) {
        int type = 0;
        int policy = -1;
        updated(rowWith({}), plain(), nullptr, &extra).getReserveSensorTypeAndPolicyMask(type, policy);
        return std::make_pair(type, policy);
    };
    const auto none = std::make_pair(0, -1);
    EXPECT_EQ(policyOf({}), none);
    EXPECT_EQ(policyOf({0}), none);
    EXPECT_EQ(policyOf({3}), none);
    EXPECT_EQ(policyOf({16}), std::make_pair(1, 0));
    EXPECT_EQ(policyOf({19}), std::make_pair(1, 3));
    EXPECT_EQ(policyOf({20}), none);
    EXPECT_EQ(policyOf({17 + 32}), none);
    EXPECT_EQ(policyOf({17 + 64}), none);
    EXPECT_EQ(policyOf({17 + 128}), std::make_pair(1, 1));
    EXPECT_EQ(policyOf({0, 17}), none);
    EXPECT_EQ(policyOf({17, 18}), std::make_pair(1, 1));
}

TEST(CPT_cdata, leavesForOtherRowsWhatIsToldOfAllSensors)
{
    QList<int> extra = {18};
    updated(rowWith({}), plain(), nullptr, &extra);
    EXPECT_EQ(extra, (QList<int>{18}));
}

TEST(CPT_cdata, replacesWhatHasBeenToldOfAllSensors)
{
    FW_Dispenser machine = plain();
    machine.setReserveSensorTypeAndPolicyMask(1, 3, false);
    QList<int> extra = {18};
    int type = 0;
    int policy = 0;
    EXPECT_TRUE(
        updated(rowWith({}), machine, nullptr, &extra).getReserveSensorTypeAndPolicyMask(type, policy));
    EXPECT_EQ(policy, 2);
}

TEST(CPT_cdata, clearsToTheDefaults)
{
    CPT_cdata row = rowWith({});
    const std::unique_ptr<const CPT_cdata> copy(row.clone());
    row.clear();
    EXPECT_TRUE(row.circuit() == FW_Circuit());
    EXPECT_EQ(row.levelSensor(), nullptr);
    EXPECT_EQ(row.canisterID(), 0);
    EXPECT_FALSE(row.activationFlag());
    EXPECT_EQ(row.canisterSize(), 0);
    EXPECT_EQ(row.rampReference(), 0);
    EXPECT_EQ(row.singleTransmissionReference(), 0);
    EXPECT_EQ(row.flowCorrectionReference(), 0);
    EXPECT_EQ(row.layoutPositionsId(), QList<int>());
    EXPECT_EQ(copy->canisterID(), 3);
    EXPECT_EQ(copy->circuit().positionId(), 12);
    EXPECT_NE(copy->levelSensor(), nullptr);
}

TEST(CPT_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(rowWith({}).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
