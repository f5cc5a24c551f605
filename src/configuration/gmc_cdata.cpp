// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/gmc_cdata.h"

#include "configuration/confrow_p.h"

#include <QuvFramework/fw_offline.h>

namespace {

constexpr int code = 3;

constexpr quv::ConfCodes codes = {"DE00185", "Invalid data", "DE02789", "DE00186",
                                  "DE00194", "DE00195",      "DE00196"};

constexpr int typeOneSensors = 16; // beside the policy in the low four bits
constexpr int unconfiguredEasyOn = 90;

struct MachineRow
{
    FW_Dispenser dispenser;
    int easyOnTimeout = -1;
    int reserveSensor = 0;
};

template <auto get, auto set>
constexpr quv::ConfAccess<MachineRow> ofDispenser = {
    [](const MachineRow &row) { return std::invoke(get, row.dispenser); },
    [](MachineRow &row, int value) { std::invoke(set, row.dispenser, value); }};

constexpr quv::ConfAccess<MachineRow> connectivity = {
    [](const MachineRow &row) { return row.dispenser.connectivity(); },
    [](MachineRow &row, int value) { row.dispenser.setConnectivity(value, false); }};

constexpr quv::ConfAccess<MachineRow> processPause = {
    [](const MachineRow &row) { return row.dispenser.RCSProcessPause(FW_TimeSpan::Minutes); },
    [](MachineRow &row, int value) {
        if (value >= 1)
            row.dispenser.setRCSProcessPause(value, FW_TimeSpan::Minutes);
    }};

constexpr quv::ConfAccess<MachineRow> easyOn = {
    [](const MachineRow &row) { return row.easyOnTimeout < 0 ? unconfiguredEasyOn : row.easyOnTimeout; },
    [](MachineRow &row, int value) {
        if (value >= 1)
            row.easyOnTimeout = value;
    }};

constexpr quv::ConfAccess<MachineRow> processes = {
    [](const MachineRow &row) {
        return row.dispenser.canConfigureRCSProcess() ? row.dispenser.RCSProcessesFwMask() : 0;
    },
    [](MachineRow &row, int value) { row.dispenser.setRCSProcesses(value); }};

using D = FW_Dispenser;

constexpr quv::ConfField<MachineRow> fields[] = {
    {"Working Mode", "DE00187", ofDispenser<&D::initialWorkingMode, &D::setInitialWorkingMode>},
    {"Power Supplied", "DE00188", ofDispenser<&D::powerSupply, &D::setPowerSupply>},
    {"Connectivity", "DE00189", connectivity},
    {"Tinting Parallelism", "DE00190", ofDispenser<&D::tintingParallelism, &D::setTintingParallelism>},
    {"Recirculation Parallelism", "DE00191",
     ofDispenser<&D::recirculatingParallelism, &D::setRecirculatingParallelism>},
    {"Stirring Parallelism", "DE00192", ofDispenser<&D::stirringParallelism, &D::setStirringParallelism>},
    {"Motor Power Off Delay", "DE00193", ofDispenser<&D::powerOffDelay, &D::setPowerOffDelay>},
    {"Post Tinting Time", "DE01546", ofDispenser<&D::postTintingTime, &D::setPostTintingTime>, 8},
    {"Layout Module Mask", "DE01547", ofDispenser<&D::getFirmwareConfModulesID, &D::setFirmwareConfModulesID>,
     9},
    {"Extra Param", "DE01929", quv::always<MachineRow, 0>, 10},
    {"RCS Process Pause", "DE01931", processPause, 11},
    {"Easy-on Timeout", "DE02151", easyOn, 12},
    {"RCS Policy", "DE02152", processes, 13},
    {"INV O-C Times", "DE02850", quv::always<MachineRow, 0>, 14},
    {"Led Management", "DE02851", ofDispenser<&D::ledManagement, &D::setLedManagement>, 15},
    {"Reserve Sensor Type & Policy", "DE02852", quv::byMember<MachineRow, &MachineRow::reserveSensor>, 16},
    {"Timed Processes Startup Mask", "DE02864",
     ofDispenser<&D::timedProcessesStartupMask, &D::setTimedProcessesStartupMask>, 17},
};

int easyOnTimeOf(const FW_Dispenser &dispenser)
{
    const auto *offline = dynamic_cast<const FW_Offline *>(dispenser.getDevice(FW_Device::Offline));
    return offline ? offline->easyOnTime() : -1;
}

int reserveSensorOf(const FW_Dispenser &dispenser)
{
    int type = 0;
    int policy = 0;
    if (!dispenser.getReserveSensorTypeAndPolicyMask(type, policy))
        return 0;
    return type == 1 ? policy + typeOneSensors : policy;
}

} // namespace

GMC_cdata::GMC_cdata() : ConfData(code) {}

GMC_cdata::GMC_cdata(const FW_Machine *machine)
    : ConfData(code, machine),
      m_dispenser(quv::confDispenser(machine, codes, Q_FUNC_INFO)),
      m_easyOnTimeout(easyOnTimeOf(m_dispenser)),
      m_reserveSensor(reserveSensorOf(m_dispenser))
{
    setCommandEnable(true);
    m_parameters =
        quv::writtenConfParameters(fields, MachineRow{m_dispenser, m_easyOnTimeout, m_reserveSensor});
}

GMC_cdata::GMC_cdata(QStringList tokens, int fieldCount) : ConfData(code, tokens)
{
    quv::readConfTokens(fields, codes, tokens, m_enabledFieldLength, fieldCount, m_parameters, Q_FUNC_INFO);
    quv::updateLocalDataOrThrow(*this, codes.tokensData, Q_FUNC_INFO);
}

GMC_cdata::GMC_cdata(QString row) : ConfData(code, row)
{
    quv::updateLocalDataOrThrow(*this, codes.textData, Q_FUNC_INFO);
}

GMC_cdata *GMC_cdata::clone() const
{
    return new GMC_cdata(*this);
}

QStringList GMC_cdata::labels()
{
    return quv::confLabels(fields);
}

void GMC_cdata::clear()
{
    m_dispenser = FW_Dispenser();
    m_easyOnTimeout = -1;
    m_reserveSensor = 0;
}

bool GMC_cdata::updateLocalData(QString *error)
{
    MachineRow row = {m_dispenser, m_easyOnTimeout, m_reserveSensor};
    if (!quv::readConfParameters(fields, m_parameters, row, error))
        return false;
    m_dispenser = row.dispenser;
    m_easyOnTimeout = row.easyOnTimeout;
    m_reserveSensor = row.reserveSensor;
    return true;
}

bool GMC_cdata::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *, QList<int> *extra) const
{
    if (m_cmdEnabled == Absent || m_cmdEnabled == Disabled)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (!dispenser)
        return false;
    dispenser->setInitialWorkingMode(m_dispenser.initialWorkingMode());
    dispenser->setPowerSupply(m_dispenser.powerSupply());
    dispenser->setConnectivity(m_dispenser.connectivity(), false);
    dispenser->setTintingParallelism(m_dispenser.tintingParallelism());
    dispenser->setRecirculatingParallelism(m_dispenser.recirculatingParallelism());
    dispenser->setStirringParallelism(m_dispenser.stirringParallelism());
    dispenser->setPowerOffDelay(m_dispenser.powerOffDelay());
    dispenser->setPostTintingTime(m_dispenser.postTintingTime());
    dispenser->setModulesID(m_dispenser.modulesID());
    dispenser->setRCSProcessPause(m_dispenser.RCSProcessPause(FW_TimeSpan::Minutes), FW_TimeSpan::Minutes);
    dispenser->setLedManagement(m_dispenser.ledManagement());
    dispenser->setTimedProcessesStartupMask(m_dispenser.timedProcessesStartupMask());
    if (!dispenser->hasDevice(FW_Device::Offline))
        dispenser->createDevice(FW_Device::Offline);
    auto *offline = dynamic_cast<FW_Offline *>(dispenser->getDevice(FW_Device::Offline));
    if (offline && m_easyOnTimeout >= 0)
        offline->setEasyOnTime(m_easyOnTimeout);
    dispenser->setRCSProcesses(m_dispenser.RCSProcessesFwMask());
    if (extra)
        extra->append(m_reserveSensor);
    return true;
}

XmlRpc::XmlRpcValue GMC_cdata::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = confData_toXmlRpcValue();
    value["working_mode"] = m_dispenser.initialWorkingMode();
    return value;
}
