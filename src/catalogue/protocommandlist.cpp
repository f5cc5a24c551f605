// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"

#include "catalogue/commandrows_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QMutex>

#include <array>
#include <cstring>

using namespace quv::catalogue;

namespace {

/** The rows by a hash of their names, so that a name costs a comparison or two and no scan. */
class NameIndex
{
public:
    NameIndex()
    {
        for (const CMD_STRUCT &row : rows()) {
            std::size_t slot = slotOf(row.name.constData(), row.name.size());
            while (m_slots[slot].row)
                slot = next(slot);
            m_slots[slot] = {row.name.constData(), row.name.size(), &row};
        }
    }

    const CMD_STRUCT *find(const QString &name) const
    {
        const QChar *text = name.constData();
        const int size = name.size();
        if (size == 0)
            return nullptr;
        std::size_t slot = slotOf(text, size);
        while (m_slots[slot].row && !m_slots[slot].isNamed(text, size))
            slot = next(slot);
        return m_slots[slot].row;
    }

private:
    struct Slot
    {
        const QChar *text = nullptr;
        int size = 0;
        const CMD_STRUCT *row = nullptr; ///< null: free

        bool isNamed(const QChar *other, int otherSize) const
        {
            return size == otherSize &&
                   (text == other ||
                    std::memcmp(text, other, static_cast<std::size_t>(size) * sizeof(QChar)) == 0);
        }
    };

    static constexpr std::size_t slotCount = 512; // three times the rows, so that searches are short

    /** The length and three characters tell nearly all names apart. */
    static std::size_t slotOf(const QChar *text, int size)
    {
        unsigned hash = static_cast<unsigned>(size);
        for (const int i : {0, size / 2, size - 1})
            hash = hash * 11 + text[i].unicode();
        return hash % slotCount;
    }

    static std::size_t next(std::size_t slot) { return (slot + 1) % slotCount; }

    std::array<Slot, slotCount> m_slots{};
};

/** -1 for no row. */
int paramNum(const CMD_STRUCT *row, bool mandatory)
{
    if (!row)
        return -1;
    return mandatory ? row->minParams : row->maxParams;
}

template <class T>
T read(const QString &name, T CMD_STRUCT::*field)
{
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    return row ? row->*field : T();
}

bool targets(const QString &name, int mask)
{
    return (read(name, &CMD_STRUCT::target) & mask) != 0;
}

constexpr int dispenserBit = static_cast<int>(SerialDeviceType::Dispenser);
constexpr int mixerBit = static_cast<int>(SerialDeviceType::Mixer);

bool isOfType(const QString &name, std::initializer_list<CommandType> types)
{
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    for (CommandType type : types) {
        if (row && row->type == type)
            return true;
    }
    return false;
}

} // namespace

ProtoCommandList *ProtoCommandList::m_Instance = nullptr;

ProtoCommandList *ProtoCommandList::instance()
{
    static QMutex mutex;
    const QMutexLocker lock(&mutex);
    if (!m_Instance)
        m_Instance = new ProtoCommandList;
    return m_Instance;
}

const CMD_STRUCT *ProtoCommandList::row(const QString &name)
{
    static const NameIndex index;
    return index.find(name);
}

const CMD_STRUCT *ProtoCommandList::row(int id)
{
    return id >= 0 && id < rowCount ? &rows()[static_cast<std::size_t>(id)] : nullptr;
}

bool ProtoCommandList::existsCommand(const QString &name)
{
    return row(name);
}

QString ProtoCommandList::cmdStr(CommandListValue value)
{
    const CMD_STRUCT *found = row(static_cast<int>(value));
    return found ? found->name : QString();
}

int ProtoCommandList::cmdParamNum(CommandListValue value, bool mandatory)
{
    return paramNum(row(static_cast<int>(value)), mandatory);
}

int ProtoCommandList::cmdParamNum(const QString &name, bool mandatory)
{
    return paramNum(row(name), mandatory);
}

QString ProtoCommandList::cmdCode(const QString &name, int family)
{
    switch (family) {
    case FW_Dispenser::CommandFamily1:
        return read(name, &CMD_STRUCT::code);
    case FW_Dispenser::CommandFamily2:
        return read(name, &CMD_STRUCT::altCode);
    default:
        return QString();
    }
}

QString ProtoCommandList::functionCallStr(int mode)
{
    switch (mode) {
    case NonBlockingCall:
        return QStringLiteral("EXEC_NB");
    case ChangeCall:
        return QStringLiteral("EXEC_NC");
    default:
        return QStringLiteral("EXEC_B");
    }
}

bool ProtoCommandList::targetIsDispenser(const QString &name)
{
    return targets(name, dispenserBit);
}

bool ProtoCommandList::targetIsMixer(const QString &name)
{
    return targets(name, mixerBit);
}

bool ProtoCommandList::targetIsMachine(const QString &name)
{
    return targets(name, dispenserBit | mixerBit);
}

bool ProtoCommandList::isSerialCommand(const QString &name, bool strict)
{
    return strict
               ? isOfType(name, {Serial})
               : isOfType(name, {Serial, SerialAndConfiguration, ConfigurationAndSerial, SpecialAndSerial});
}

bool ProtoCommandList::isConfigurationCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {Configuration})
                  : isOfType(name, {Configuration, SerialAndConfiguration, ConfigurationAndSerial,
                                    SpecialAndConfiguration});
}

bool ProtoCommandList::isSerialAndConfigCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {SerialAndConfiguration})
                  : isOfType(name, {SerialAndConfiguration, ConfigurationAndSerial});
}

bool ProtoCommandList::isConfigAndSerialCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {ConfigurationAndSerial})
                  : isOfType(name, {SerialAndConfiguration, ConfigurationAndSerial});
}

bool ProtoCommandList::isSpecialCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {Special})
                  : isOfType(name, {Special, SpecialAndSerial, SpecialAndConfiguration});
}

bool ProtoCommandList::isSpecialAndSerialCommand(const QString &name, bool)
{
    return isOfType(name, {SpecialAndSerial});
}

bool ProtoCommandList::isSpecialAndConfigCommand(const QString &name, bool)
{
    return isOfType(name, {SpecialAndConfiguration});
}

bool ProtoCommandList::isScaleCommand(const QString &name, bool)
{
    return isOfType(name, {Scale});
}

bool ProtoCommandList::isMultipleCommand(const QString &name)
{
    return read(name, &CMD_STRUCT::multiple);
}

bool ProtoCommandList::addressMachine(const QString &name)
{
    return read(name, &CMD_STRUCT::addressMachine);
}

bool ProtoCommandList::hasHighSchedulingPriority(const QString &name)
{
    return read(name, &CMD_STRUCT::schedulingPriorityLevel) >= 1;
}

bool ProtoCommandList::checkBusyFlag(const QString &name)
{
    return read(name, &CMD_STRUCT::checkBusy);
}

qint64 ProtoCommandList::busyTimeout(const QString &name)
{
    return read(name, &CMD_STRUCT::busyTimeout);
}

qint64 ProtoCommandList::commandTimeout(const QString &name)
{
    return qMax<qint64>(busyTimeout(name), 0);
}

bool ProtoCommandList::trackExecutionTime(const QString &name)
{
    return read(name, &CMD_STRUCT::trackExecutionTime);
}

bool ProtoCommandList::recordInStats(const QString &name)
{
    return read(name, &CMD_STRUCT::recordInStats);
}

int ProtoCommandList::machineObjUsage(const QString &name)
{
    return read(name, &CMD_STRUCT::machineObjUsage);
}

bool ProtoCommandList::privateCommand(const QString &name)
{
    return read(name, &CMD_STRUCT::privateCommand);
}

bool ProtoCommandList::erogationCommand(const QString &name)
{
    return read(name, &CMD_STRUCT::erogationCommand);
}
