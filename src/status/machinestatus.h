// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/machineinfo.h"

#include <QtCore/QList>

#include <memory>

class DispenserStatus;
class MixerStatus;

/** What the driver has under way on a machine, and which machine it is. */
class QUVPROTOCOL_EXPORT MachineStatus
{
public:
    // Of the structs of those who derive from it.
    static constexpr char active_TAG[] = "active";
    static constexpr char confMng_TAG[] = "conf_mng";
    static constexpr char fwUpdate_TAG[] = "fw_update";
    static constexpr char statsMng_TAG[] = "stats_mng";

    MachineStatus();                                      ///< nothing is under way, on no machine
    explicit MachineStatus(const MachineInfo *ofMachine); ///< which is cloned; null for none
    MachineStatus(const MachineInfo *ofMachine, bool isActive, bool managesConfiguration,
                  bool updatesFirmware, bool managesStatistics);
    MachineStatus(const MachineStatus &other);
    MachineStatus &operator=(const MachineStatus &other);

    virtual ~MachineStatus();
    virtual MachineStatus *clone() const; ///< owned by the caller

    const MachineInfo *machineInfo() const { return m_info.get(); } ///< owned by the status; null without one
    void setMachineInfo(const MachineInfo *info);                   ///< which is cloned; null for none

    void clearMachineStatus();

    /** The same class, the same fields, and infos that are the same in all that they hold. */
    bool operator==(const MachineStatus &other) const;
    bool operator!=(const MachineStatus &other) const { return !(*this == other); }

    /** True when the lists differ in length, or the SIDs in one place; a machine that is not known has -1. */
    static bool SIDchanged(const QList<MachineStatus *> &before, const QList<MachineStatus *> &after);
    /** True for two null infos, and for two that MachineInfo::equalTo finds the same. */
    static bool compareMachineInfo(const MachineInfo *left, const MachineInfo *right, bool strict);
    // Copies of those whose info is of that device type; a plain info becomes one of the kind, with zeros.
    static QList<DispenserStatus> filterDispenserStatus(const QList<MachineStatus *> &statuses);
    static QList<MixerStatus> filterMixerStatus(const QList<MachineStatus *> &statuses);

    bool active = false;    ///< the machine that clients work with
    bool conf_mng = false;  ///< the driver reads or writes its configuration
    bool fw_update = false; ///< its firmware is being updated
    bool stats_mng = false; ///< the driver reads or writes its statistics

protected:
    virtual bool hasSameFields(const MachineStatus &other) const; ///< \a other is of the same class

private:
    std::unique_ptr<MachineInfo> m_info;
};
