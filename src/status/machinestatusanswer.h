// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_DriverError;
class FW_Machine;

/**
 * What the status words of dispensers and mixers share: a status of 1 or 2 and 22 flags, each a field that anybody may
 * read. In XML-RPC the status is the int "disp_status" and each flag a bool of its own name.
 */
class QUVPROTOCOL_EXPORT MachineStatusAnswer
{
public:
    MachineStatusAnswer();                              ///< cleared
    explicit MachineStatusAnswer(QList<QVariant> list); ///< cleared; the list is not read
    /** Throws DE00443 without a status and DE00026 without one of the flags that every firmware tells. */
    explicit MachineStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /** Reads the status from token 2. Throws DE00066 (fewer than 6 tokens) or DE00068 (neither 1 nor 2). */
    explicit MachineStatusAnswer(QStringList tokens);
    MachineStatusAnswer(const MachineStatusAnswer &) = default;
    MachineStatusAnswer &operator=(const MachineStatusAnswer &) = default;

    virtual ~MachineStatusAnswer();
    virtual MachineStatusAnswer *clone() const = 0; ///< owned by the caller
    /** Reads the masks; index 0 of \a tokens is mask 1. Never throws. */
    virtual bool decodeSerialStatus(QStringList tokens, FW_DriverError *error) = 0;
    virtual bool acceptCommands() const = 0;
    /** The conditions that hold, each with whether it is a reason not to work. */
    virtual QList<QPair<QString, bool>> getStatusDescriptions(const FW_Machine *machine) const = 0;
    virtual bool hasBadWorkingState() const;
    virtual QString getFirstBadWorkingState() const;

    bool operator==(const MachineStatusAnswer &other) const;
    bool operator!=(const MachineStatusAnswer &other) const { return !(*this == other); }
    bool equalTo(const MachineStatusAnswer *other) const;

    void clearMachineStatus();
    bool checkStatus(int status) const; ///< 1 and 2 are valid
    int status() const { return disp_status; }
    void setStatus(int status) { disp_status = status; }

    /**
     * Decodes one member into \a target. False for a null target, and false with DE00026 (bool) or DE02667 (int) in \a error,
     * when it is given, for a member that is missing or of another type; \a className begins the text.
     */
    static bool setXmlRpcProperty(const XmlRpc::XmlRpcValue &value, bool *target, QString key,
                                  QString className, FW_DriverError *error);
    static bool setXmlRpcProperty(const XmlRpc::XmlRpcValue &value, int *target, QString key,
                                  QString className, FW_DriverError *error);
    /** Writes the machine's members, all but machine_turned_off and machine_unlocked, into a struct. */
    void udpateXmlRpcValue(XmlRpc::XmlRpcValue &value) const;

    /** The conditions that hold, in words for a dispenser; any other device is taken as a mixer. */
    QList<QPair<QString, bool>> getMachineStatusDescriptions(SerialDeviceType device) const;
    /** What has changed from the older status to the newer one; nothing when one of them is null. */
    static QList<QString> getNewMachineStatesDescriptions(SerialDeviceType device,
                                                          const MachineStatusAnswer *before,
                                                          const MachineStatusAnswer *after);

    int disp_status = 0;
    bool offline_pressed = false;
    bool board_not_initialized = false;
    bool startup = false;
    bool resetting = false;
    bool BL_active = false;
    bool BL_memory_resetting = false;
    bool BL_fw_update = false;
    bool conf_writing = false;
    bool hw_error = false;
    bool conf_error = false;
    bool process_error = false;
    bool stop_process = false;
    bool new_buffered_error = false;
    bool dispenser_not_ready = false;
    bool emergency_pressed = false;
    bool normal_wm = true;
    bool can_present = false;
    bool shelf_up = false;
    bool shelf_down = false;
    bool door_open = false;
    bool machine_turned_off = false;
    bool machine_unlocked = false;
};
