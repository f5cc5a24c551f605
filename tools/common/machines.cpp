// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines.h"

#include "excerpt.h"
#include "savedfile.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_shelf.h>
#include <QuvFramework/fw_turntable.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>

namespace quv {
namespace {

/// A configuration without a name cannot be read from a firmware.
constexpr char BuiltInConfiguration[] = "BUILT-IN";

struct ColorantText
{
    const char *code;
    const char *name;
};

constexpr std::array<ColorantText, 16> colorants = {{{"AXX", "Lemon yellow"},
                                                     {"B", "Black"},
                                                     {"C", "Yellow oxide"},
                                                     {"D", "Phthalo green"},
                                                     {"E", "Phthalo blue"},
                                                     {"F", "Red oxide"},
                                                     {"I", "Brown oxide"},
                                                     {"KX", "White"},
                                                     {"L", "Raw umber"},
                                                     {"R", "Organic red"},
                                                     {"S", "Orange"},
                                                     {"T", "Medium yellow"},
                                                     {"V", "Magenta"},
                                                     {"WX", "Strong white"},
                                                     {"YA", "Violet"},
                                                     {"YB", "Ultramarine"}}};

/// One point of every circuit's calibration: what a pour of this quantity takes beyond the circuit's steps per gram.
struct PourLoss
{
    double quantity;
    int steps;
    int speed;
};

constexpr PourLoss pourLosses[] = {{0.5, 10, 40}, {2, 20, 45}, {10, 40, 50}, {50, 80, 55}, {500, 160, 60}};

FW_Calibration calibrationOf(int circuitId)
{
    const int stepsPerGram = 100 + 2 * circuitId;
    QVector<FW_CalibrationPoint> points;
    for (const auto &[quantity, lostSteps, speed] : pourLosses)
        points.append({static_cast<long long>(quantity * stepsPerGram) + lostSteps, quantity, speed, 0});
    return FW_Calibration(points);
}

FW_Circuit circuitOf(int id)
{
    FW_DosingMotor motor;
    motor.setMotorId(id);
    motor.setMaxSpeed(60);
    motor.setStepsPerStroke(6000);
    FW_Valve valve(id);
    valve.setBoardID(id);

    FW_Circuit circuit(id, id);
    circuit.setDosingMotor(motor);
    circuit.setStirringMotor(FW_StirringMotor());
    circuit.setCleaningMotor(FW_CleaningMotor());
    circuit.setValves({valve});
    circuit.setCalibration(calibrationOf(id));
    return circuit;
}

/// The canister with one circuit of the same number and the colorant of that place in the list.
void addCanister(FW_Dispenser &dispenser, const FW_Circuit &circuit)
{
    const auto &[code, name] = colorants.at(static_cast<std::size_t>(circuit.id() - 1));
    dispenser.addColorant(FW_Colorant(QString::fromLatin1(code), QString::fromLatin1(name)));
    FW_Canister canister(circuit.id());
    canister.setColorantCode(QString::fromLatin1(code));
    canister.setMaximumQuantity(3000);
    canister.setCurrentQuantity(2000);
    canister.setReserveQuantity(150);
    canister.setWarningQuantity(300);
    canister.addCircuit(circuit);
    canister.autoSetLayoutPositionsId();
    dispenser.addCanister(canister);
}

std::unique_ptr<FW_Dispenser> dispenserOf(int id, const char *modelName, const char *serialNumber)
{
    auto dispenser = std::make_unique<FW_Dispenser>();
    dispenser->setId(id);
    dispenser->setModel(MachineModel::GenericDispenser);
    dispenser->setModelName(QString::fromLatin1(modelName));
    dispenser->setSerialNumber(QString::fromLatin1(serialNumber));
    dispenser->setConfStructureName(QLatin1String(BuiltInConfiguration));
    return dispenser;
}

/// A dispenser whose circuits pour four at a time, in groups of four.
std::unique_ptr<FW_Dispenser> parallelDispenserOf(int id, const char *modelName, const char *serialNumber)
{
    auto dispenser = dispenserOf(id, modelName, serialNumber);
    dispenser->setTintingParallelism(4);
    dispenser->setDevice(FW_Autocap());
    for (int number = 1; number <= 16; ++number) {
        FW_Circuit circuit = circuitOf(number);
        circuit.setQueueID((number - 1) / 4 + 1);
        addCanister(*dispenser, circuit);
    }
    return dispenser;
}

std::unique_ptr<FW_Machine> builtInDispenser()
{
    return parallelDispenserOf(1, "Generic dispenser", "SIM-D-0001");
}

std::unique_ptr<FW_Machine> builtInStation()
{
    auto dispenser = parallelDispenserOf(5, "Zandor with capping station", "SIM-Z-0001");
    dispenser->setModel(MachineModel::Zandor);
    dispenser->setDevice(FW_Shelf());
    return dispenser;
}

std::unique_ptr<FW_Machine> builtInTurntable()
{
    auto dispenser = dispenserOf(3, "Generic turntable", "SIM-T-0001");
    FW_Turntable table;
    table.setRefillAngle(90);
    for (int id = 1; id <= 8; ++id)
        addCanister(*dispenser, circuitOf(id));
    table.setPositions(dispenser->getPositionsIDList(false));
    dispenser->setDevice(table);
    return dispenser;
}

std::unique_ptr<FW_Machine> builtInDual()
{
    auto dispenser = dispenserOf(4, "Generic dual dispenser", "SIM-D-0002");
    dispenser->setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    dispenser->setTintingParallelism(2);
    for (int id = 1; id <= 16; ++id) {
        FW_Circuit circuit = circuitOf(id);
        circuit.setHeadId(id <= 8 ? 1 : 2);
        circuit.setQueueID(circuit.headId()); // each head pours one after the other
        addCanister(*dispenser, circuit);
    }
    return dispenser;
}

std::unique_ptr<FW_Machine> builtInMixer()
{
    auto mixer = std::make_unique<FW_Mixer>();
    mixer->setId(2);
    mixer->setModel(MachineModel::GenericMixer);
    mixer->setModelName(QStringLiteral("Generic mixer"));
    mixer->setSerialNumber(QStringLiteral("SIM-M-0001"));
    mixer->setConfStructureName(QLatin1String(BuiltInConfiguration));
    return mixer;
}

struct BuiltIn
{
    const char *name;
    std::unique_ptr<FW_Machine> (*make)();
};

constexpr BuiltIn builtIns[] = {{"dispenser", builtInDispenser},
                                {"turntable", builtInTurntable},
                                {"dual", builtInDual},
                                {"station", builtInStation},
                                {"mixer", builtInMixer}};

QByteArray contentOf(const QString &path)
{
    QByteArray content;
    try {
        content = loadFile(path, MaxMachineFileSize + 1);
    } catch (const FileError &error) {
        throw std::runtime_error(std::string("no machine of this name, and no file that can be read: ") +
                                 error.what());
    }
    if (content.size() > MaxMachineFileSize)
        throw std::runtime_error("the file is larger than " + std::to_string(MaxMachineFileSize) + " bytes");
    return content;
}

} // namespace

bool isBuiltInMachine(const QString &name)
{
    return std::any_of(std::begin(builtIns), std::end(builtIns),
                       [&name](const BuiltIn &builtIn) { return name == QLatin1String(builtIn.name); });
}

DescribedMachine describedMachineByName(const QString &nameOrFile)
{
    if (nameOrFile == QLatin1String("none"))
        return {};
    for (const BuiltIn &builtIn : builtIns) {
        if (nameOrFile == QLatin1String(builtIn.name))
            return {builtIn.make()};
    }
    try {
        return readDescribedMachine(contentOf(nameOrFile));
    } catch (const std::runtime_error &error) {
        throw std::runtime_error(QStringLiteral("Machine \"%1\": %2")
                                     .arg(excerpt(nameOrFile), QString::fromUtf8(error.what()))
                                     .toStdString());
    }
}

std::unique_ptr<FW_Machine> machineByName(const QString &nameOrFile)
{
    return describedMachineByName(nameOrFile).machine;
}

} // namespace quv
