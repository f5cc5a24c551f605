// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_canisterlevelsensor.h>
#include <QuvFramework/fw_circuit.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

#include <optional>

/**
 * A canister of colorant with the circuits that it feeds. Quantities are in grams or millilitres, whichever the machine is
 * calibrated in.
 */
class QUVFRAMEWORK_EXPORT FW_Canister
{
public:
    FW_Canister() = default;
    explicit FW_Canister(int id) : m_id(id) {}
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_Canister(const XmlRpc::XmlRpcValue &value);

    int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    QString colorantCode() const { return m_colorantCode; } ///< empty for none
    void setColorantCode(const QString &code) { m_colorantCode = code; }

    double maximumQuantity() const { return m_maximumQuantity; }
    void setMaximumQuantity(double quantity) { m_maximumQuantity = quantity; }
    double currentQuantity() const { return m_currentQuantity; }
    void setCurrentQuantity(double quantity) { m_currentQuantity = quantity; }
    /** The critical level: what lies below it is not for pouring. */
    double reserveQuantity() const { return m_reserveQuantity; }
    void setReserveQuantity(double quantity) { m_reserveQuantity = quantity; }
    /** The level below which somebody should refill. */
    double warningQuantity() const { return m_warningQuantity; }
    void setWarningQuantity(double quantity) { m_warningQuantity = quantity; }
    void setAutoReserveQuantity() { m_reserveQuantity = m_maximumQuantity / 10; }
    void setAutoReserveWarning() { m_warningQuantity = m_maximumQuantity / 5; }

    /** True when the canister's circuits are in use as soon as they are configured. */
    bool activationFlag() const { return m_activationFlag; }
    void setActivationFlag(bool activated) { m_activationFlag = activated; }
    /** The places in the machine's layout that the canister takes. */
    const QList<int> &layoutPositionsId() const { return m_layoutPositionsId; }
    // Every model, empty for none in particular, has the same places: 1 to 244.
    void setLayoutPositionsId(const QList<int> &positions, const QString & /*model*/)
    {
        m_layoutPositionsId = positions;
    }
    void autoSetLayoutPositionsId(); ///< where the canister's circuits are
    static bool checkLayoutPositionId(int position, const QString &model);

    const FW_CanisterLevelSensor *canisterLevelSensor() const
    {
        return m_levelSensor ? &*m_levelSensor : nullptr;
    }
    FW_CanisterLevelSensor *canisterLevelSensor() { return m_levelSensor ? &*m_levelSensor : nullptr; }
    /** Sensors that a canister then has, none or one with its defaults: 0 or 1. */
    void setCanisterLevelSensor(int sensors);

    const QList<FW_Circuit> &circuits() const { return m_circuits; }
    QList<FW_Circuit> &circuits() { return m_circuits; }
    void addCircuit(const FW_Circuit &circuit) { m_circuits.append(circuit); }
    /** Positions of all circuits, or of the enabled ones only. */
    QList<int> getCircuitPositions(bool onlyEnabled) const;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Canister &other) const;
    bool operator!=(const FW_Canister &other) const { return !(*this == other); }

private:
    int m_id = 0;
    bool m_enabled = true;
    QString m_colorantCode;
    double m_maximumQuantity = 0;
    double m_currentQuantity = 0;
    double m_reserveQuantity = 0;
    double m_warningQuantity = 0;
    bool m_activationFlag = false;
    QList<int> m_layoutPositionsId;
    std::optional<FW_CanisterLevelSensor> m_levelSensor;
    QList<FW_Circuit> m_circuits;
};

Q_DECLARE_METATYPE(FW_Canister)
