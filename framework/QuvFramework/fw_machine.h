// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>
#include <QuvFramework/fw_version.h>

#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

#include <memory>

/** Machine models by their number in the makers' catalogue; numbers that are not named here are models as well. */
enum class MachineModel {
    None = -1,
    GenericDispenser = 0,
    Rotan = 6,
    Lirador = 10,
    Sola100 = 19,
    Lumina = 20,
    Zandor = 30,
    GenericMixer = 100
};

/** What dispensers and mixers share: who the machine is and how it is reached. */
class QUVFRAMEWORK_EXPORT FW_Machine
{
public:
    virtual ~FW_Machine();
    virtual FW_Machine *clone() const = 0; ///< a deep copy, owned by the caller
    virtual SerialDeviceType machineType() const = 0;
    /** All members, which a machine of the same kind is made of again; the model is "machine_model". */
    virtual XmlRpc::XmlRpcValue toXmlRpcValue() const = 0;
    /** True for a machine of the same kind with the same values. */
    virtual bool equalTo(const FW_Machine &other) const = 0;
    /**
     * The dispenser or mixer that the struct describes, by its model; null for a struct of another kind, or of none.
     * \throws FW_Exception DE03350 when a member is wrong
     */
    static std::unique_ptr<FW_Machine> fromXmlRpcValue(const XmlRpc::XmlRpcValue &value);

    int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    QString SID() const { return m_SID; }
    void setSID(const QString &SID) { m_SID = SID; }
    MachineModel model() const { return m_model; }
    void setModel(MachineModel model) { m_model = model; }
    QString modelName() const { return m_modelName; }
    void setModelName(const QString &name) { m_modelName = name; }
    QString description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    QString productCode() const { return m_productCode; }
    void setProductCode(const QString &code) { m_productCode = code; }
    QString serialNumber() const { return m_serialNumber; }
    void setSerialNumber(const QString &number) { m_serialNumber = number; }
    QString connectionName() const { return m_connectionName; }
    void setConnectionName(const QString &name) { m_connectionName = name; }
    QString confStructureName() const { return m_confStructureName; }
    void setConfStructureName(const QString &name) { m_confStructureName = name; }

    /** A serial number is 1 to 20 letters, digits, blanks, dots, slashes and hyphens, and not only blanks. */
    static bool checkSerialNumber(const QString &number);
    /** A system ID that the factory gives before a machine gets its own: empty, or only zeros. */
    static bool isAFactorySID(const QString &SID);
    /** The kind of machine that a model is: models from 100 on are mixers, 0 to 99 dispensers; 0 for no model. */
    static int getMachineType(MachineModel model);
    /**
     * Reads the member "machine_model" (int) of a machine's struct. A struct without one tells by its "type", "dispenser" or
     * "mixer", and is a generic machine; else None.
     */
    static MachineModel getMachineModelFromXmlRpcValue(const XmlRpc::XmlRpcValue &value);

protected:
    FW_Machine() = default;
    FW_Machine(const FW_Machine &) = default;
    FW_Machine &operator=(const FW_Machine &) = default;

private:
    int m_id = 0;
    MachineModel m_model = MachineModel::None;
    QString m_modelName;
    QString m_SID;
    QString m_description;
    QString m_productCode;
    QString m_serialNumber;
    QString m_connectionName;
    QString m_confStructureName;
};
