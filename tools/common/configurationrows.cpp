// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configurationrows.h"

#include "configuration/confdata.h"

#include <QuvFramework/fw_dispenser.h>

#include <set>

namespace quv {

namespace {

constexpr int greatestCode = 26;
constexpr int ramps = 10;
constexpr int transmissions = 19;
constexpr int flowCorrections = 22;

int idOf(int code, const FW_Circuit &circuit)
{
    switch (code) {
    case ramps:
        return circuit.dosingMotor().rampConfigRef();
    case transmissions:
        return circuit.dosingMotor().singleTransmissionConfigRef();
    case flowCorrections:
        return circuit.dosingMotor().flowCorrectionConfigRef();
    default:
        return circuit.id();
    }
}

std::set<int> idsOf(int code, const FW_Machine &machine)
{
    if (!ConfData::isMultipleInstance(code))
        return {1};
    std::set<int> ids;
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        for (const FW_Circuit *circuit : dispenser->getCircuits())
            ids.insert(idOf(code, *circuit));
    ids.erase(0); // a motor without the part
    return ids;
}

} // namespace

std::vector<ConfigurationInstance> configurationInstances(const FW_Machine &machine)
{
    std::vector<ConfigurationInstance> instances;
    for (int code = 1; code <= greatestCode; ++code)
        if (ConfData::isCommandCodeSupported(code, machine.machineType()))
            for (const int id : idsOf(code, machine))
                instances.push_back({code, id});
    return instances;
}

} // namespace quv
