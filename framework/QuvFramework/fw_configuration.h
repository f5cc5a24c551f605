// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

#include <QtCore/QMetaType>
#include <QtCore/QVector>

#include <map>
#include <memory>

/**
 * All that a driver keeps of its machines: its dispensers and mixers, each once by its kind and ID, and which one of either kind is the
 * active one. Scales are not told here. Copies share the machines, which are never changed in place: a machine that has changed takes
 * the place of the former one. Travels in a QVariant under its name, also as the map that its struct is.
 */
class QUVFRAMEWORK_EXPORT FW_Configuration
{
public:
    static constexpr char MACHINES[] = "machines"; ///< array of their structs
    static constexpr char ACTIVE_DISPENSER[] =
        "active_dispenser";                                ///< int, its ID; left out while none is active
    static constexpr char ACTIVE_MIXER[] = "active_mixer"; ///< likewise

    FW_Configuration() = default;
    /**
     * From the struct that toXmlRpcValue writes. Throws FW_Exception: DE03365 without the array of machines, DE03366 for one that is
     * neither dispenser nor mixer, DE03367 for one that is there twice, DE03368 for an active one that is no int or not there; and what
     * a machine is refused with.
     */
    explicit FW_Configuration(const XmlRpc::XmlRpcValue &value);
    explicit FW_Configuration(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FW_Configuration(int) = delete;
    explicit FW_Configuration(double) = delete;
    explicit FW_Configuration(const char *) = delete;

    const QVector<std::shared_ptr<const FW_Machine>> &machines() const { return m_machines; }
    /** Null when it is not there. */
    const FW_Machine *machine(SerialDeviceType kind, int id) const;
    /** Takes the machine, in the place of the one of its kind and ID, or else as the last; null changes nothing. */
    void setMachine(std::unique_ptr<FW_Machine> machine);
    /** False when it is not there. The active one leaves its kind without. */
    bool removeMachine(SerialDeviceType kind, int id);

    const FW_Machine *activeMachine(SerialDeviceType kind) const; ///< null while none is
    bool setActiveMachine(SerialDeviceType kind, int id);         ///< false when it is not there

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Configuration &other) const; ///< in the same order
    bool operator!=(const FW_Configuration &other) const { return !(*this == other); }

private:
    int indexOf(SerialDeviceType kind, int id) const; ///< -1 when it is not there

    QVector<std::shared_ptr<const FW_Machine>> m_machines;
    std::map<SerialDeviceType, int> m_active;
};

Q_DECLARE_METATYPE(FW_Configuration)
