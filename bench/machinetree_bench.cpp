// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"
#include "suites.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QString>

#include <string>

namespace {

using XmlRpc::XmlRpcValue;

/** 16 canisters of two circuits each, which have all motors and eight measured points. */
FW_Dispenser machineOf32Circuits()
{
    constexpr int canisters = 16;
    constexpr int points = 8;
    FW_Dispenser dispenser;
    dispenser.setModel(MachineModel::Lumina);
    QVector<FW_CalibrationPoint> measured;
    for (int i = 1; i <= points; ++i)
        measured.append({100LL * i, 0.5 * i, 50 + i, 0});
    for (int id = 1; id <= canisters; ++id) {
        const QString code = QStringLiteral("C%1").arg(id);
        dispenser.addColorant(FW_Colorant(code, QStringLiteral("colorant %1").arg(id)));
        FW_Canister canister(id);
        canister.setColorantCode(code);
        canister.setCanisterLevelSensor(1);
        for (int circuitId = 2 * id - 1; circuitId <= 2 * id; ++circuitId) {
            FW_Circuit circuit(circuitId, circuitId);
            circuit.setCalibration(FW_Calibration(measured));
            circuit.setStirringMotor(FW_StirringMotor());
            circuit.setRecirculationMotor(FW_RecirculationMotor());
            circuit.setCleaningMotor(FW_CleaningMotor());
            circuit.addValve(FW_Valve(1));
            canister.addCircuit(circuit);
        }
        dispenser.addCanister(canister);
    }
    dispenser.setDevice(FW_Turntable());
    return dispenser;
}

/** The same tree in bare values, member by member. */
void buildByHand(const XmlRpcValue &like, XmlRpcValue &value)
{
    switch (like.getType()) {
    case XmlRpcValue::TypeStruct:
        for (const auto &member : like)
            buildByHand(member.second, value[member.first.c_str()]);
        break;
    case XmlRpcValue::TypeArray:
        value.setSize(like.size());
        for (int i = 0; i < like.size(); ++i)
            buildByHand(like[i], value[i]);
        break;
    case XmlRpcValue::TypeBoolean:
        value = static_cast<const bool &>(like);
        break;
    case XmlRpcValue::TypeInt:
        value = static_cast<const int &>(like);
        break;
    case XmlRpcValue::TypeDouble:
        value = static_cast<const double &>(like);
        break;
    default:
        value = static_cast<const std::string &>(like);
    }
}

/** What somebody who knows the members asks of the tree: each one by hasMember and [], texts as QString. */
double walkByHand(const XmlRpcValue &known, const XmlRpcValue &value)
{
    double sum = 0;
    switch (known.getType()) {
    case XmlRpcValue::TypeStruct:
        for (const auto &member : known) {
            if (value.hasMember(member.first.c_str()))
                sum += walkByHand(member.second, value[member.first.c_str()]);
        }
        return sum;
    case XmlRpcValue::TypeArray:
        for (int i = 0; i < value.size(); ++i)
            sum += walkByHand(known[i], value[i]);
        return sum;
    case XmlRpcValue::TypeBoolean:
        return static_cast<const bool &>(value) ? 1 : 0;
    case XmlRpcValue::TypeInt:
        return static_cast<const int &>(value);
    case XmlRpcValue::TypeDouble:
        return static_cast<const double &>(value);
    default:
        return QString::fromStdString(static_cast<const std::string &>(value)).size();
    }
}

} // namespace

void quv::addMachineTreeRatios()
{
    const FW_Dispenser dispenser = machineOf32Circuits();
    const XmlRpcValue tree = dispenser.toXmlRpcValue();
    addRatio("a machine of 32 circuits: to XML-RPC", 1.2,
             repeat([dispenser] { return dispenser.toXmlRpcValue(); }), repeat([tree] {
                 XmlRpcValue value;
                 buildByHand(tree, value);
                 return value;
             }));
    addRatio("a machine of 32 circuits: from XML-RPC", 0.5, repeat([tree] { return FW_Dispenser(tree); }),
             repeat([tree] { return walkByHand(tree, tree); }));
}
