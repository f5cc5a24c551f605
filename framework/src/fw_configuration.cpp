// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_configuration.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>
#include <set>
#include <utility>

namespace {

using XmlRpc::XmlRpcValue;

const bool isRegistered = RegisterTravellingType<FW_Configuration>("FW_Configuration");

/** By which member each kind tells its active machine. */
constexpr std::pair<SerialDeviceType, const char *> activeMembers[] = {
    {SerialDeviceType::Dispenser, FW_Configuration::ACTIVE_DISPENSER},
    {SerialDeviceType::Mixer, FW_Configuration::ACTIVE_MIXER}};

/** Null for neither a dispenser nor a mixer. What is wrong with a machine is told with its \a place. */
std::unique_ptr<FW_Machine> machineOf(const XmlRpcValue &value, const QString &place)
{
    try {
        return FW_Machine::fromXmlRpcValue(value);
    } catch (const FW_Exception &refusal) {
        throw FW_Exception(refusal.code(), place + QStringLiteral(": ") + refusal.text(), refusal.function());
    }
}

} // namespace

FW_Configuration::FW_Configuration(const XmlRpcValue &value)
{
    const XmlRpcValue *machines = FindXmlRpcMember(value, MACHINES);
    if (!machines || machines->getType() != XmlRpcValue::TypeArray)
        throw FW_Exception("DE03365", "FW_Configuration: expected machines value", Q_FUNC_INFO);
    m_machines.reserve(machines->size());
    // not looked for in the list: a request may hold very many machines
    std::set<std::pair<SerialDeviceType, int>> known;
    for (int i = 0; i < machines->size(); ++i) {
        const QString place = QStringLiteral("machines[%1]").arg(i);
        std::unique_ptr<FW_Machine> read = machineOf((*machines)[i], place);
        if (!read)
            throw FW_Exception(
                "DE03366",
                QStringLiteral("FW_Configuration: %1 is neither a dispenser nor a mixer").arg(place),
                Q_FUNC_INFO);
        if (!known.emplace(read->machineType(), read->id()).second)
            throw FW_Exception("DE03367", QStringLiteral("FW_Configuration: %1 is there already").arg(place),
                               Q_FUNC_INFO);
        m_machines.append(std::move(read));
    }
    for (const auto &[kind, key] : activeMembers) {
        const XmlRpcValue *member = FindXmlRpcMember(value, key);
        int id = 0;
        if (member && !(DecodeXmlRpcValue(*member, id) && setActiveMachine(kind, id)))
            throw FW_Exception(
                "DE03368",
                QStringLiteral("FW_Configuration: %1 is the ID of no such machine").arg(QLatin1String(key)),
                Q_FUNC_INFO);
    }
}

int FW_Configuration::indexOf(SerialDeviceType kind, int id) const
{
    const auto found = std::find_if(m_machines.begin(), m_machines.end(), [=](const auto &machine) {
        return machine->machineType() == kind && machine->id() == id;
    });
    return found == m_machines.end() ? -1 : static_cast<int>(found - m_machines.begin());
}

const FW_Machine *FW_Configuration::machine(SerialDeviceType kind, int id) const
{
    return m_machines.value(indexOf(kind, id)).get();
}

void FW_Configuration::setMachine(std::unique_ptr<FW_Machine> machine)
{
    if (!machine)
        return;
    const int index = indexOf(machine->machineType(), machine->id());
    if (index < 0)
        m_machines.append(std::move(machine));
    else
        m_machines[index] = std::move(machine);
}

bool FW_Configuration::removeMachine(SerialDeviceType kind, int id)
{
    const int index = indexOf(kind, id);
    if (index < 0)
        return false;
    m_machines.remove(index);
    const auto active = m_active.find(kind);
    if (active != m_active.end() && active->second == id)
        m_active.erase(active);
    return true;
}

const FW_Machine *FW_Configuration::activeMachine(SerialDeviceType kind) const
{
    const auto active = m_active.find(kind);
    return active == m_active.end() ? nullptr : machine(kind, active->second);
}

bool FW_Configuration::setActiveMachine(SerialDeviceType kind, int id)
{
    if (!machine(kind, id))
        return false;
    m_active[kind] = id;
    return true;
}

XmlRpcValue FW_Configuration::toXmlRpcValue() const
{
    XmlRpcValue value;
    XmlRpcValue &machines = value[MACHINES];
    machines.setSize(m_machines.size());
    for (int i = 0; i < m_machines.size(); ++i)
        machines[i] = m_machines.at(i)->toXmlRpcValue();
    for (const auto &[kind, key] : activeMembers) {
        const auto active = m_active.find(kind);
        if (active != m_active.end())
            value[key] = active->second;
    }
    return value;
}

bool FW_Configuration::operator==(const FW_Configuration &other) const
{
    return m_active == other.m_active &&
           std::equal(m_machines.begin(), m_machines.end(), other.m_machines.begin(), other.m_machines.end(),
                      [](const auto &left, const auto &right) { // a machine that is shared is not looked at
                          return left == right || left->equalTo(*right);
                      });
}
