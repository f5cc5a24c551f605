// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/tintcmd.h"
#include "ratios.h"
#include "suites.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_serial.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using XmlRpc::XmlRpcValue;

constexpr int StepsPerGram = 100;

/** A machine of so many circuits at the positions from 1 on, each with a canister of its own. */
FW_Dispenser dispenserOf(int circuits)
{
    FW_Dispenser dispenser;
    for (int position = 1; position <= circuits; ++position) {
        FW_Circuit circuit(position, position);
        circuit.setQueueID(1 + position % 4);
        circuit.setCalibration(FW_Calibration({{StepsPerGram, 1, 40, 0}, {100 * StepsPerGram, 100, 60, 0}}));
        FW_Canister canister(position);
        canister.setMaximumQuantity(3000);
        canister.setCurrentQuantity(2000);
        canister.addCircuit(circuit);
        dispenser.addCanister(canister);
    }
    return dispenser;
}

/** The arguments of a tint that takes a little of each circuit. */
XmlRpcValue tintOf(int circuits)
{
    Formula formula;
    for (int position = 1; position <= circuits; ++position)
        formula.addItem({QString::number(position), 1.5 + position});
    XmlRpcValue arguments;
    arguments[0] = formula.toXmlRpcValue();
    return arguments;
}

/** The same numbers out of the same value and into the same digits, without a machine that has a say in them. */
QList<int> splitByHand(const XmlRpcValue &arguments)
{
    const XmlRpcValue &formula = arguments[0];
    const int type = static_cast<const int &>(formula["formula_type"]);
    const XmlRpcValue &ids = formula["ids"];
    const XmlRpcValue &quantities = formula["quantities"];
    QList<int> integers = {2, ids.size()};
    for (int i = 0; i < ids.size(); ++i) {
        const int position = std::stoi(static_cast<const std::string &>(ids[i]));
        const double quantity = static_cast<const double &>(quantities[i]);
        const QList<int> digits = splitValue(static_cast<long long>(quantity * StepsPerGram), 246);
        integers << position << type << 50 << digits.size();
        integers << digits;
    }
    return integers;
}

struct Case
{
    explicit Case(int circuits)
        : dispenser(std::make_shared<const FW_Dispenser>(dispenserOf(circuits))),
          arguments(tintOf(circuits))
    {}

    QList<int> tint() const { return TintCmd(arguments, dispenser.get()).serialParameters(1); }

    std::shared_ptr<const FW_Dispenser> dispenser;
    XmlRpcValue arguments;
};

/** As many circuits as one great formula has, in several small ones. */
QList<int> tintInParts(const Case &small, int parts)
{
    QList<int> integers;
    for (int i = 0; i < parts; ++i)
        integers = small.tint();
    return integers;
}

} // namespace

void quv::addDispensingRatios()
{
    addRatio("tint: 16 circuits, value to integers", 2.0, repeat([work = Case(16)] { return work.tint(); }),
             repeat([arguments = tintOf(16)] { return splitByHand(arguments); }));
    addRatio("tint: 200 circuits as 10 times 20", 1.2, repeat([work = Case(200)] { return work.tint(); }),
             repeat([small = Case(20)] { return tintInParts(small, 10); }));
}
