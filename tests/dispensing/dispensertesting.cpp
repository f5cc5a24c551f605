// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/dispensertesting.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QtGlobal>

namespace testing_dispensing {

namespace {

constexpr int lastPosition = 4;

FW_Calibration calibrated(int speed, int nozzleValve = 0)
{
    return FW_Calibration({{1000, 100, speed, nozzleValve}});
}

FW_Canister canister(int position, const char *colorant)
{
    FW_DosingMotor motor;
    motor.setMotorId(position);
    motor.setResolution(200);
    motor.setMaxSpeed(50);
    motor.setStepsPerStroke(3000);

    FW_Circuit circuit(10 + position, position);
    circuit.setQueueID(30 + position);
    circuit.setDosingMotor(motor);
    circuit.setCalibration(calibrated(40));

    FW_Canister made(100 + position);
    made.setColorantCode(QLatin1String(colorant));
    made.setMaximumQuantity(1000);
    made.setCurrentQuantity(500);
    made.setWarningQuantity(100);
    made.setReserveQuantity(50);
    made.addCircuit(circuit);
    return made;
}

template <class Change>
FW_Dispenser changed(int position, Change change)
{
    FW_Dispenser machine = dispenser();
    change(*machine.getCircuitByPosition(position));
    return machine;
}

QStringList debugLines;
QtMessageHandler formerHandler = nullptr;

void keepDebugLines(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtDebugMsg)
        debugLines.append(text);
    else if (formerHandler)
        formerHandler(type, context, text);
}

} // namespace

FW_Dispenser dispenser()
{
    FW_Dispenser machine;
    machine.setId(7);
    machine.setModelName(QStringLiteral("TEST"));
    const char *codes[] = {"B", "C", "KX", "W"};
    for (int position = 1; position <= lastPosition; ++position) {
        machine.addCanister(canister(position, codes[position - 1]));
        machine.addColorant(FW_Colorant(QLatin1String(codes[position - 1])));
    }
    return machine;
}

FW_Dispenser withoutCalibration(int position)
{
    return changed(position, [](FW_Circuit &circuit) { circuit.setCalibration({}); });
}

FW_Dispenser withoutSpeed(int position)
{
    return changed(position, [](FW_Circuit &circuit) { circuit.setCalibration(calibrated(0)); });
}

FW_Dispenser withDisabledCircuit(int position)
{
    return changed(position, [](FW_Circuit &circuit) { circuit.setEnabled(false); });
}

FW_Dispenser withoutQueue(int position)
{
    return changed(position, [](FW_Circuit &circuit) { circuit.setQueueID(0); });
}

FW_Dispenser withContent(int position, double grams)
{
    FW_Dispenser machine = dispenser();
    machine.getCanisterById(100 + position)->setCurrentQuantity(grams);
    return machine;
}

FW_Dispenser nozzleBased()
{
    FW_Dispenser machine = dispenser();
    machine.setNozzleBasedDosing(true);
    for (int position = 1; position <= lastPosition; ++position) {
        FW_Circuit &circuit = *machine.getCircuitByPosition(position);
        circuit.setNozzleValvesID({10 * position, 20 * position});
        circuit.setCalibration(calibrated(40, 10 * position));
    }
    return machine;
}

FW_Dispenser withTurntable()
{
    FW_Turntable table;
    table.setPositions({1, 2, 3, 4});
    table.setStepTime(1000);
    table.setRefillAngle(90);
    FW_Dispenser machine = dispenser();
    machine.setDevice(table);
    return machine;
}

FW_Dispenser dualHead()
{
    FW_Dispenser machine = dispenser();
    machine.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    machine.setTintingParallelism(2);
    for (int position : {3, 4})
        machine.getCircuitByPosition(position)->setHeadId(2);
    return machine;
}

FW_Dispenser gravimetric(int position)
{
    return changed(position, [](FW_Circuit &circuit) {
        FW_DosingMotor motor = circuit.dosingMotor();
        motor.setGravimetricSw(true);
        circuit.setDosingMotor(motor);
    });
}

FW_Dispenser withAutocap()
{
    FW_Dispenser machine = dispenser();
    machine.setDevice(FW_Autocap());
    return machine;
}

FW_Dispenser ofModel(const char *name)
{
    FW_Dispenser machine = dispenser();
    machine.setModelName(QLatin1String(name));
    return machine;
}

Formula formulaOf(int type, int unit, std::initializer_list<Pour> items)
{
    Formula formula;
    formula.setFormulaType(type);
    formula.setQuantityUnit(unit);
    for (const Pour &pour : items)
        formula.addItem({QLatin1String(pour.id), pour.quantity, pour.queueID, pour.nozzleValveID});
    return formula;
}

Formula grams(std::initializer_list<Pour> items)
{
    return formulaOf(Formula::CircuitPositions, Formula::WeightOrVolume, items);
}

Formula steps(std::initializer_list<Pour> items)
{
    return formulaOf(Formula::CircuitPositions, Formula::Steps, items);
}

Formula strokes(std::initializer_list<Pour> items)
{
    return formulaOf(Formula::CircuitPositions, Formula::Strokes, items);
}

Formula checkingLevels(Formula formula, int policy)
{
    formula.setLevelsManagementPolicy(policy);
    return formula;
}

Value unreadableFormula()
{
    return structOf({{"formula_type", Value(1)},
                     {"quantity_unit", Value(3)},
                     {"ids", arrayOf("1")},
                     {"quantities", arrayOf("much")}});
}

QVariant unreadableFormulaVariant()
{
    return QVariantMap{{"formula_type", 1},
                       {"quantity_unit", 3},
                       {"ids", QVariantList{"1"}},
                       {"quantities", QVariantList{"much"}}};
}

DebugLog::DebugLog()
{
    debugLines.clear();
    formerHandler = qInstallMessageHandler(keepDebugLines);
}

DebugLog::~DebugLog()
{
    qInstallMessageHandler(formerHandler);
    formerHandler = nullptr;
}

QStringList DebugLog::lines() const
{
    return debugLines;
}

} // namespace testing_dispensing
