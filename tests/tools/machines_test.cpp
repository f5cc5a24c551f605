// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinefile.h"
#include "machines.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QTemporaryFile>

#include <gmock/gmock.h>

#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using quv::machineByName;
using quv::machineFileOf;
using quv::readMachineFile;
using testing::ElementsAre;

std::unique_ptr<FW_Machine> fromJson(const QByteArray &json)
{
    QTemporaryFile file;
    if (!file.open() || file.write(json) != json.size() || !file.flush())
        throw std::logic_error("no temporary file");
    return machineByName(file.fileName());
}

/// What is said of \a json, without the file's name.
std::string refusalOf(const QByteArray &json)
{
    try {
        fromJson(json);
    } catch (const std::runtime_error &error) {
        const std::string text = error.what();
        return text.substr(text.find("\": ") + 3);
    }
    return "accepted";
}

/// A built-in dispenser.
class BuiltIn
{
public:
    explicit BuiltIn(const char *name) : m_machine(machineByName(QString::fromLatin1(name))) {}

    const FW_Dispenser &operator*() const { return dynamic_cast<const FW_Dispenser &>(*m_machine); }
    const FW_Dispenser *operator->() const { return &**this; }

private:
    std::unique_ptr<FW_Machine> m_machine;
};

std::vector<long long> stepsOf(const FW_Circuit *circuit)
{
    std::vector<long long> steps;
    for (const FW_CalibrationPoint &point : circuit->calibration().points())
        steps.push_back(point.steps);
    return steps;
}

void expectEqual(const FW_Machine &left, const FW_Machine &right)
{
    EXPECT_EQ(left.machineType(), right.machineType());
    EXPECT_EQ(left.id(), right.id());
    EXPECT_EQ(left.model(), right.model());
    EXPECT_EQ(left.modelName(), right.modelName());
    EXPECT_EQ(left.SID(), right.SID());
    EXPECT_EQ(left.description(), right.description());
    EXPECT_EQ(left.productCode(), right.productCode());
    EXPECT_EQ(left.serialNumber(), right.serialNumber());
    EXPECT_EQ(left.connectionName(), right.connectionName());
    EXPECT_EQ(left.confStructureName(), right.confStructureName());
}

/// Members other than their defaults.
constexpr char FullDispenser[] = R"({"type": "dispenser", "id": 7, "model": 20, "model_name": "LUMINA 16",
    "sid": "00123", "description": "perché no", "product_code": "P-1", "serial_number": "A12-4/5",
    "connection_name": "ttyUSB0", "conf_structure_name": "structure 3",
    "heads": 2, "command_family": 2, "tinting_parallelism": 3, "nozzle_based_dosing": true,
    "colorants": [{"code": "B", "name": "Black", "enabled": false}, {"code": "è"}],
    "canisters": [{"id": 4, "enabled": false, "colorant": "è", "maximum": 2500.5, "current": 0.1,
                   "reserve": 100, "warning": 2e2,
                   "circuits": [{"id": 11, "position_id": 245, "enabled": false, "head": 2, "queue_id": 6,
                                 "nozzle_valves": [8, 9], "valves": [{"id": 5, "board_id": 21, "type": 3}],
                                 "dosing_motor": {"id": 31, "resolution": 400, "max_speed": 90,
                                                  "steps_per_stroke": 7000, "gravimetric": true},
                                 "calibration": [{"steps": 12, "quantity": 0.1, "speed": 40},
                                                 {"steps": 9007199254740992, "quantity": 1e9, "speed": 2147483647,
                                                  "nozzle_valve": 8}]},
                                {"id": 10, "position_id": 1}]},
                  {"id": 3}],
    "devices": {"autocap": {"enabled": false},
                "turntable": {"enabled": false, "refill_angle": 90, "step_time": 2000, "positions": [1, 245]}}})";

TEST(Machines, aNameOrNone)
{
    EXPECT_EQ(machineByName(QStringLiteral("none")), nullptr);
    const auto mixer = machineByName(QStringLiteral("mixer"));
    ASSERT_NE(dynamic_cast<const FW_Mixer *>(mixer.get()), nullptr);
    EXPECT_EQ(mixer->id(), 2);
    EXPECT_EQ(mixer->model(), MachineModel::GenericMixer);
    EXPECT_EQ(mixer->modelName(), QStringLiteral("Generic mixer"));
    EXPECT_EQ(mixer->serialNumber(), QStringLiteral("SIM-M-0001"));
}

TEST(Machines, theDispenserHasSixteenCircuits)
{
    const BuiltIn dispenser("dispenser");
    EXPECT_EQ(dispenser->id(), 1);
    EXPECT_EQ(dispenser->model(), MachineModel::GenericDispenser);
    EXPECT_EQ(dispenser->modelName(), QStringLiteral("Generic dispenser"));
    EXPECT_EQ(dispenser->serialNumber(), QStringLiteral("SIM-D-0001"));
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily1);
    EXPECT_FALSE(dispenser->hasMultipleHead());
    EXPECT_EQ(dispenser->tintingParallelism(), 4);
    EXPECT_FALSE(dispenser->hasNozzleBasedDosing());
    EXPECT_FALSE(dispenser->hasGravimetricSwDosingMotors());
    EXPECT_TRUE(dispenser->acceptCommands(FW_Device::Autocap));
    EXPECT_FALSE(dispenser->hasDevice(FW_Device::Turntable));

    std::vector<std::string> codes;
    for (const FW_Colorant &colorant : dispenser->colorants())
        codes.push_back(colorant.code().toStdString());
    EXPECT_THAT(codes, ElementsAre("AXX", "B", "C", "D", "E", "F", "I", "KX", "L", "R", "S", "T", "V", "WX",
                                   "YA", "YB"));
    EXPECT_THAT(dispenser->getPositionsIDList(true),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16));
    ASSERT_EQ(dispenser->canisters().size(), 16);
    EXPECT_EQ(dispenser->getCanisterById(8)->colorantCode(), QStringLiteral("KX"));
    std::vector<int> queues;
    for (const FW_Circuit *circuit : dispenser->getCircuits()) {
        EXPECT_EQ(circuit->id(), circuit->positionId());
        EXPECT_EQ(circuit->headId(), 1);
        EXPECT_EQ(dispenser->getCanisterOfCircuitID(circuit->id())->id(), circuit->id());
        queues.push_back(circuit->queueID());
    }
    EXPECT_THAT(queues, ElementsAre(1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4));
}

TEST(Machines, whatTheDispenserHolds)
{
    const BuiltIn dispenser("dispenser");
    for (const FW_Canister &canister : dispenser->canisters()) {
        EXPECT_EQ(canister.maximumQuantity(), 3000);
        EXPECT_EQ(canister.currentQuantity(), 2000);
        EXPECT_EQ(canister.reserveQuantity(), 150);
        EXPECT_EQ(canister.warningQuantity(), 300);
        EXPECT_EQ(canister.circuits().size(), 1);
    }
}

TEST(Machines, howTheDispenserPours)
{
    const BuiltIn dispenser("dispenser");
    EXPECT_THAT(stepsOf(dispenser->getCircuitById(1)), ElementsAre(61, 224, 1060, 5180, 51160));
    EXPECT_THAT(stepsOf(dispenser->getCircuitById(2)), ElementsAre(62, 228, 1080, 5280, 52160));
    EXPECT_THAT(stepsOf(dispenser->getCircuitById(16)), ElementsAre(76, 284, 1360, 6680, 66160));
    for (const FW_Circuit *circuit : dispenser->getCircuits()) {
        std::vector<double> quantities;
        std::vector<int> speeds;
        for (const FW_CalibrationPoint &point : circuit->calibration().points()) {
            quantities.push_back(point.quantity);
            speeds.push_back(point.speed);
        }
        EXPECT_THAT(quantities, ElementsAre(0.5, 2, 10, 50, 500));
        EXPECT_THAT(speeds, ElementsAre(40, 45, 50, 55, 60));
        EXPECT_TRUE(circuit->calibration().isUsable());
        EXPECT_EQ(circuit->maxSpeed(), 60);
        EXPECT_EQ(circuit->dosingMotor().motorID(), circuit->id());
        EXPECT_EQ(circuit->dosingMotor().resolution(), 200);
        EXPECT_EQ(circuit->dosingMotor().stepsPerStroke(), 6000);
        ASSERT_EQ(circuit->valves().size(), 1);
        EXPECT_EQ(circuit->valves().first().id(), circuit->id());
        EXPECT_EQ(circuit->valves().first().boardID(), circuit->id());
    }
    // the example of docs/machine.md
    EXPECT_EQ(dispenser->getCircuitById(2)->calibration().steps(12.5), 1343);
    EXPECT_EQ(dispenser->getCircuitById(2)->calibration().speed(12.5), 55);
}

TEST(Machines, theTurntableTurns)
{
    const BuiltIn machine("turntable");
    EXPECT_EQ(machine->id(), 3);
    EXPECT_EQ(machine->modelName(), QStringLiteral("Generic turntable"));
    EXPECT_EQ(machine->serialNumber(), QStringLiteral("SIM-T-0001"));
    EXPECT_EQ(machine->tintingParallelism(), 1);
    EXPECT_FALSE(machine->hasDevice(FW_Device::Autocap));
    EXPECT_THAT(machine->getPositionsIDList(true), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
    EXPECT_EQ(machine->getCircuitById(8)->queueID(), 0);
    const auto *table = dynamic_cast<const FW_Turntable *>(machine->getDevice(FW_Device::Turntable));
    ASSERT_NE(table, nullptr);
    EXPECT_TRUE(table->isEnabled());
    EXPECT_EQ(table->refillAngle(), 90);
    EXPECT_EQ(table->stepTime(), 1500);
    EXPECT_THAT(table->positions(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
}

TEST(Machines, theDualMachineHasTwoHeads)
{
    const BuiltIn machine("dual");
    EXPECT_EQ(machine->id(), 4);
    EXPECT_EQ(machine->modelName(), QStringLiteral("Generic dual dispenser"));
    EXPECT_EQ(machine->serialNumber(), QStringLiteral("SIM-D-0002"));
    EXPECT_TRUE(machine->hasMultipleHead());
    EXPECT_EQ(machine->tintingParallelism(), 2);
    EXPECT_FALSE(machine->hasDevice(FW_Device::Autocap));
    std::vector<int> heads;
    for (const FW_Circuit *circuit : machine->getCircuits()) {
        heads.push_back(circuit->headId());
        EXPECT_EQ(circuit->queueID(), circuit->headId());
    }
    EXPECT_THAT(heads, ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 2, 2));
}

TEST(Machines, theStationIsOfTheZandorLine)
{
    const BuiltIn machine("station");
    EXPECT_EQ(machine->id(), 5);
    EXPECT_EQ(machine->model(), MachineModel::Zandor);
    EXPECT_TRUE(FW_Dispenser::isZANDORDispenser(machine->modelName()));
    EXPECT_EQ(machine->serialNumber(), QStringLiteral("SIM-Z-0001"));
    EXPECT_EQ(machine->tintingParallelism(), 4);
    EXPECT_TRUE(machine->acceptCommands(FW_Device::Autocap));
    EXPECT_TRUE(machine->acceptCommands(FW_Device::Shelf));
    EXPECT_EQ(machine->getCircuits().size(), 16);
    EXPECT_EQ(machine->getCircuitById(16)->queueID(), 4);
}

TEST(Machines, aDispenserOfAFile)
{
    const auto machine = fromJson(FullDispenser);
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
    ASSERT_NE(dispenser, nullptr);
    EXPECT_EQ(dispenser->id(), 7);
    EXPECT_EQ(dispenser->model(), MachineModel::Lumina);
    EXPECT_EQ(dispenser->modelName(), QStringLiteral("LUMINA 16"));
    EXPECT_EQ(dispenser->SID(), QStringLiteral("00123"));
    EXPECT_EQ(dispenser->description(), QString::fromUtf8("perch\xC3\xA9 no"));
    EXPECT_EQ(dispenser->productCode(), QStringLiteral("P-1"));
    EXPECT_EQ(dispenser->serialNumber(), QStringLiteral("A12-4/5"));
    EXPECT_EQ(dispenser->connectionName(), QStringLiteral("ttyUSB0"));
    EXPECT_EQ(dispenser->confStructureName(), QStringLiteral("structure 3"));
    EXPECT_TRUE(dispenser->hasMultipleHead());
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily2);
    EXPECT_EQ(dispenser->tintingParallelism(), 3);
    EXPECT_TRUE(dispenser->hasNozzleBasedDosing());
    ASSERT_EQ(dispenser->colorants().size(), 2);
    EXPECT_EQ(dispenser->colorants().at(0).name(), QStringLiteral("Black"));
    EXPECT_FALSE(dispenser->colorants().at(0).isEnabled());
    EXPECT_TRUE(dispenser->hasColorantCode(QString::fromUtf8("\xC3\xA8")));
    EXPECT_TRUE(dispenser->colorants().at(1).isEnabled());
}

TEST(Machines, devicesOfAFile)
{
    const auto machine = fromJson(FullDispenser);
    const auto &dispenser = dynamic_cast<const FW_Dispenser &>(*machine);
    ASSERT_TRUE(dispenser.hasDevice(FW_Device::Autocap));
    EXPECT_FALSE(dispenser.acceptCommands(FW_Device::Autocap));
    const auto *table = dynamic_cast<const FW_Turntable *>(dispenser.getDevice(FW_Device::Turntable));
    ASSERT_NE(table, nullptr);
    EXPECT_FALSE(table->isEnabled());
    EXPECT_EQ(table->refillAngle(), 90);
    EXPECT_EQ(table->stepTime(), 2000);
    EXPECT_THAT(table->positions(), ElementsAre(1, 245));
}

TEST(Machines, canistersAndCircuitsOfAFile)
{
    const auto machine = fromJson(FullDispenser);
    const auto &dispenser = dynamic_cast<const FW_Dispenser &>(*machine);
    ASSERT_EQ(dispenser.canisters().size(), 2);
    const FW_Canister &canister = dispenser.canisters().at(0);
    EXPECT_EQ(canister.id(), 4);
    EXPECT_FALSE(canister.isEnabled());
    EXPECT_EQ(canister.colorantCode(), QString::fromUtf8("\xC3\xA8"));
    EXPECT_EQ(canister.maximumQuantity(), 2500.5);
    EXPECT_EQ(canister.currentQuantity(), 0.1);
    EXPECT_EQ(canister.reserveQuantity(), 100);
    EXPECT_EQ(canister.warningQuantity(), 200);
    ASSERT_EQ(canister.circuits().size(), 2);

    const FW_Circuit &circuit = canister.circuits().at(0);
    EXPECT_EQ(circuit.id(), 11);
    EXPECT_EQ(circuit.positionId(), 245);
    EXPECT_FALSE(circuit.isEnabled());
    EXPECT_EQ(circuit.headId(), 2);
    EXPECT_EQ(circuit.queueID(), 6);
    EXPECT_THAT(circuit.nozzleValvesID(), ElementsAre(8, 9));
    ASSERT_EQ(circuit.valves().size(), 1);
    EXPECT_EQ(circuit.valves().first().id(), 5);
    EXPECT_EQ(circuit.valves().first().boardID(), 21);
    EXPECT_EQ(circuit.valves().first().valveType(), 3);
    EXPECT_EQ(circuit.dosingMotor().motorID(), 31);
    EXPECT_EQ(circuit.dosingMotor().resolution(), 400);
    EXPECT_EQ(circuit.maxSpeed(), 90);
    EXPECT_EQ(circuit.dosingMotor().stepsPerStroke(), 7000);
    EXPECT_TRUE(dispenser.hasGravimetricSwDosingMotors());
    EXPECT_TRUE((circuit.calibration().points() ==
                 QVector<FW_CalibrationPoint>{{12, 0.1, 40, 0}, {9007199254740992, 1e9, 2147483647, 8}}));

    EXPECT_TRUE(canister.circuits().at(1) == FW_Circuit(10, 1));
    EXPECT_TRUE(dispenser.canisters().at(1) == FW_Canister(3));
}

TEST(Machines, onlyTheTypeIsRequired)
{
    const auto machine = fromJson(R"({"type": "dispenser"})");
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine.get());
    ASSERT_NE(dispenser, nullptr);
    EXPECT_EQ(dispenser->model(), MachineModel::None);
    EXPECT_EQ(dispenser->commandFamily(), FW_Dispenser::CommandFamily1);
    EXPECT_FALSE(dispenser->hasMultipleHead());
    EXPECT_EQ(dispenser->tintingParallelism(), 1);
    EXPECT_TRUE(dispenser->canisters().isEmpty());
    EXPECT_FALSE(dispenser->hasDevice(FW_Device::Autocap));
    const auto mixer = fromJson(R"({"type": "mixer", "id": 9, "model": 100})");
    ASSERT_NE(dynamic_cast<const FW_Mixer *>(mixer.get()), nullptr);
    EXPECT_EQ(mixer->id(), 9);
}

TEST(Machines, whatIsWrittenReadsBack)
{
    for (const char *json : {FullDispenser, R"({"type": "dispenser"})",
                             R"({"type": "dispenser", "devices": {"autocap": {}}})"}) {
        const auto machine = readMachineFile(json);
        const auto again = readMachineFile(machineFileOf(*machine));
        EXPECT_TRUE(dynamic_cast<const FW_Dispenser &>(*machine) ==
                    dynamic_cast<const FW_Dispenser &>(*again));
    }
    for (const char *name : {"dispenser", "turntable", "dual", "station"}) {
        const BuiltIn machine(name);
        const auto again = readMachineFile(machineFileOf(*machine));
        EXPECT_TRUE(*machine == dynamic_cast<const FW_Dispenser &>(*again));
    }
    const auto mixer = machineByName(QStringLiteral("mixer"));
    expectEqual(*mixer, *readMachineFile(machineFileOf(*mixer)));
}

TEST(Machines, numbersAreWrittenToTheLastDigit)
{
    FW_Circuit circuit(1, 1);
    circuit.setCalibration(FW_Calibration({{1, 1.0 / 3, 1, 0}}));
    FW_Canister canister(1);
    canister.setCurrentQuantity(123456.78901234567);
    canister.addCircuit(circuit);
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    const auto again = readMachineFile(machineFileOf(dispenser));
    EXPECT_TRUE(dynamic_cast<const FW_Dispenser &>(*again).canisters().at(0) == canister);
}

TEST(Machines, aFileIsWrittenInLinesThatAPersonReads)
{
    const auto machine = fromJson(R"({"type": "dispenser", "id": 5, "model": 0, "model_name": "a\"b\u0085c",
        "colorants": [{"code": "B"}, {"code": "C"}, {"code": "D", "name": "Green"}],
        "canisters": [{"id": 1, "colorant": "B", "maximum": 2, "current": 0,
                       "circuits": [{"id": 1, "position_id": 1, "stirring_motor": {"pause": "90 s"}}]},
                      {"id": 2, "circuits": [{"id": 2, "position_id": 2, "dosing_motor": null}]}],
        "devices": {"autocap": {"enabled": true}}})");
    EXPECT_EQ(machineFileOf(*machine), R"({
  "type": "dispenser",
  "id": 5,
  "model": 0,
  "model_name": "a\"b\u0085c",
  "colorants": [{"code":"B"},{"code":"C"},{"code":"D","name":"Green"}],
  "canisters": [
    {"id":1,"colorant":"B","maximum":2.0,"circuits":[{"id":1,"position_id":1,"stirring_motor":{"pause":"90 s"}}]},
    {"id":2,"circuits":[{"id":2,"position_id":2,"dosing_motor":null}]}
  ],
  "devices": {"autocap":{}}
}
)");
    EXPECT_EQ(readMachineFile(machineFileOf(*machine))->modelName(), QString::fromUtf8("a\"b\xC2\x85"
                                                                                       "c"));
}

TEST(Machines, whatAFileIsRefusedFor)
{
    const std::pair<const char *, const char *> refusals[] = {
        {R"([])", "the file holds no JSON object"},
        {R"({})", "type: is missing"},
        {R"({"type": 1})", "type: must be \"dispenser\" or \"mixer\""},
        {R"({"type": "scale"})", "type: must be \"dispenser\" or \"mixer\""},
        {R"({"type": "mixer", "heads": 1})", "heads: unknown member"},
        {R"({"type": "mixer", "canisters": []})", "canisters: unknown member"},
        {R"({"type": "dispenser", "Id": 1})", "Id: unknown member"},
        {R"({"type": "dispenser", "id": 1, "id": 2})", "the member \"id\" stands twice in one object"},
        {R"({"type": "dispenser", "id": -1})", "id: must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": 2147483648})", "id: must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": 18446744073709551615})",
         "the whole number 18446744073709551615 does not fit in 64 bits"},
        {R"({"type": "dispenser", "id": 1.0})", "id: must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "id": "1"})", "id: must be an integer from 0 to 2147483647"},
        {R"({"type": "dispenser", "heads": 3})", "heads: must be an integer from 1 to 2"},
        {R"({"type": "dispenser", "heads": true})", "heads: must be an integer from 1 to 2"},
        {R"({"type": "dispenser", "command_family": 0})", "command_family: must be an integer from 1 to 2"},
        {R"({"type": "dispenser", "tinting_parallelism": 0})",
         "tinting_parallelism: must be an integer from 1 to 245"},
        {R"({"type": "dispenser", "nozzle_based_dosing": 1})", "nozzle_based_dosing: must be true or false"},
        {R"({"type": "dispenser", "model_name": null})", "model_name: must be a text"},
        {R"({"type": "dispenser", "serial_number": "a_b"})",
         "serial_number: must be 1 to 20 letters, digits, blanks, dots, slashes and hyphens"},
        {R"({"type": "dispenser", "model": 100})", "model: is of the other kind of machine than \"type\""},
        {R"({"type": "mixer", "model": 99})", "model: is of the other kind of machine than \"type\""},
        {R"({"type": "dispenser", "colorants": {}})", "colorants: must be an array"},
        {R"({"type": "dispenser", "canisters": [{"id": 1}, 2]})", "canisters[1]: must be an object"},
        {R"({"type": "dispenser", "devices": []})", "devices: must be an object"},
    };
    for (const auto &[json, text] : refusals)
        EXPECT_EQ(refusalOf(json), text) << json;
}

TEST(Machines, aRefusalNamesThePlace)
{
    const auto refusalOfCircuit = [](const QByteArray &members) {
        return refusalOf(
            R"({"type": "dispenser", "canisters": [{"id": 1}, {"id": 2, "circuits": [{"id": 1, )" + members +
            "}]}]}");
    };
    EXPECT_EQ(refusalOfCircuit(R"("position_id": 1)"), "accepted");
    const std::pair<const char *, const char *> refusals[] = {
        {R"("head": 1)", "position_id: is missing"},
        {R"("position_id": 0)", "position_id: must be an integer from 1 to 245"},
        {R"("position_id": 246)", "position_id: must be an integer from 1 to 245"},
        {R"("position_id": 1, "speed": 1)", "speed: unknown member"},
        {R"("position_id": 1, "nozzle_valves": [1, 0])",
         "nozzle_valves[1]: must be an integer from 1 to 2147483647"},
        {R"("position_id": 1, "valves": [{}])", "valves[0].id: is missing"},
        {R"("position_id": 1, "valves": [{"id": 1, "board": 1}])", "valves[0].board: unknown member"},
        {R"("position_id": 1, "dosing_motor": {"resolution": 0})",
         "dosing_motor.resolution: must be an integer from 1 to 2147483647"},
        {R"("position_id": 1, "dosing_motor": {"gravimetric": "no"})",
         "dosing_motor.gravimetric: must be true or false"},
        {R"("position_id": 1, "calibration": [{"quantity": 1, "speed": 1}])",
         "calibration[0].steps: is missing"},
        {R"("position_id": 1, "calibration": [{"steps": 1, "speed": 1}])",
         "calibration[0].quantity: is missing"},
        {R"("position_id": 1, "calibration": [{"steps": 1, "quantity": 1}])",
         "calibration[0].speed: is missing"},
        {R"("position_id": 1, "calibration": [{"steps": 9007199254740993, "quantity": 1, "speed": 1}])",
         "calibration[0].steps: must be an integer from 0 to 9007199254740992"},
        {R"("position_id": 1, "calibration": [{"steps": 1, "quantity": -0.5, "speed": 1}])",
         "calibration[0].quantity: must be a number from 0 to 1000000000"},
        {R"("position_id": 1, "calibration": [{"steps": 1, "quantity": "1", "speed": 1}])",
         "calibration[0].quantity: must be a number from 0 to 1000000000"},
        {R"("position_id": 1, "calibration": [{"steps": 1, "quantity": 1000000001, "speed": 1}])",
         "calibration[0].quantity: must be a number from 0 to 1000000000"},
    };
    for (const auto &[members, text] : refusals)
        EXPECT_EQ(refusalOfCircuit(members), std::string("canisters[1].circuits[0].") + text) << members;
}

TEST(Machines, whatMustBeSingleIsNotThereTwice)
{
    const std::pair<const char *, const char *> refusals[] = {
        {R"("canisters": [{"id": 1}, {"id": 2}, {"id": 1}])", "canisters[2].id: is that of another canister"},
        {R"("canisters": [{"id": 1, "circuits": [{"id": 1, "position_id": 1}]},
                          {"id": 2, "circuits": [{"id": 2, "position_id": 2}, {"id": 1, "position_id": 3}]}])",
         "canisters[1].circuits[1].id: is that of another circuit"},
        {R"("canisters": [{"id": 1, "circuits": [{"id": 1, "position_id": 9}]},
                          {"id": 2, "circuits": [{"id": 2, "position_id": 9}]}])",
         "canisters[1].circuits[0].position_id: is that of another circuit"},
        {R"("colorants": [{"code": "B"}, {"code": "b"}, {"code": "B"}])",
         "colorants[2].code: is that of another colorant"},
        {R"("colorants": [{"code": ""}])", "colorants[0].code: must not be empty"},
        {R"("colorants": [{"code": "B"}], "canisters": [{"id": 1, "colorant": "b"}])",
         "canisters[0].colorant: there is no colorant \"b\""},
        {R"("canisters": [{"id": 1, "circuits": [{"id": 1, "position_id": 9}]}],
            "devices": {"turntable": {"positions": [9, 1]}})",
         "devices.turntable.positions[1]: there is no circuit at position 1"},
        {R"("canisters": [{"id": 1, "circuits": [{"id": 1, "position_id": 9}]}],
            "devices": {"turntable": {"positions": [9, 9]}})",
         "devices.turntable.positions[1]: is that of another place of the table"},
        {R"("devices": {"turntable": {"refill_angle": 361}})",
         "devices.turntable.refill_angle: must be an integer from 0 to 360"},
        {R"("devices": {"scale": {}})", "devices.scale: unknown member"},
    };
    for (const auto &[members, text] : refusals)
        EXPECT_EQ(refusalOf(R"({"type": "dispenser", )" + QByteArray(members) + "}"), text) << members;
}

TEST(Machines, aRefusalIsShort)
{
    const QByteArray longName(100000, 'n');
    EXPECT_EQ(refusalOf(R"({"type": "mixer", ")" + longName + R"(": 1})"),
              std::string(40, 'n') + "...: unknown member");
    EXPECT_EQ(
        refusalOf(R"({"type": "dispenser", "canisters": [{"id": 1, "colorant": ")" + longName + "\"}]}"),
        "canisters[0].colorant: there is no colorant \"" + std::string(40, 'n') + "...\"");
}

TEST(Machines, whatIsNoJsonIsRefused)
{
    for (const QByteArray json :
         {"", "{", "{\"type\": \"mixer\"} x", "{\"type\": \"\xFF\"}", "{\"\\ud800\": 1}"})
        EXPECT_EQ(refusalOf(json).substr(0, 9), "no JSON: ") << json.constData();
    EXPECT_EQ(refusalOf(QByteArray("{\"type\": \"mixer\"}\0x", 18)), "no JSON: it holds a NUL byte");
    EXPECT_EQ(refusalOf(QByteArray(60000, '[')), "arrays and objects are nested more than 64 levels deep");
}

TEST(Machines, aFileHasAMebibyteAtMost)
{
    const QByteArray mixer = R"({"type": "mixer"})";
    EXPECT_EQ(refusalOf(mixer + QByteArray(1024 * 1024 - mixer.size(), ' ')), "accepted");
    EXPECT_EQ(refusalOf(mixer + QByteArray(1024 * 1024 + 1 - mixer.size(), ' ')),
              "the file is larger than 1048576 bytes");
}

TEST(Machines, aFileThatIsNotThereIsNamed)
{
    try {
        machineByName(QStringLiteral("/nowhere/machine.json"));
        FAIL() << "accepted";
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(std::string(error.what()),
                  "Machine \"/nowhere/machine.json\": no machine of this name, and no file that can be read: "
                  "No such file or directory");
    }
}

} // namespace
