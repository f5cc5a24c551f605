// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/dispenserinfo.h"
#include "machinestatus.h"

#include <QtCore/QVariant>

class FW_Dispenser;

/**
 * What the driver has under way on a dispenser. Travels in a QVariant under its name, also as the map that its struct is: a bool
 * of each name, and under "dispenser_info" the info.
 */
class QUVPROTOCOL_EXPORT DispenserStatus : public MachineStatus
{
public:
    static constexpr char slaveScan_TAG[] = "slave_scan";
    static constexpr char gravSwDose_TAG[] = "grav_sw_dose";
    static constexpr char scaleMngm_TAG[] = "scale_mngm";
    static constexpr char dispenserInfo_TAG[] = "dispenser_info";

    DispenserStatus() = default;
    explicit DispenserStatus(const DispenserInfo &info);
    DispenserStatus(const DispenserInfo &info, bool isActive, bool managesConfiguration, bool updatesFirmware,
                    bool managesStatistics, bool scansSlaves, bool dosesBySoftware, bool managesScale);
    /** Of this machine, with the type of its connection as in its info. */
    DispenserStatus(const FW_Dispenser &dispenser, QString connection, bool isEnabled, bool isActive);
    /**
     * The info, and the bools in their order, of which the first three must be there. Throws DE00760 (fewer than four elements),
     * DE00761 (info), DE00727, DE00726, DE00728 (a bool of another type), or what DispenserInfo throws of a bad map.
     */
    explicit DispenserStatus(QList<QVariant> list);
    /**
     * Throws DE00724 (active), DE00723 (conf_mng) or DE00725 (fw_update) for a member that is missing or of another type, DE00761
     * without the info, or what DispenserInfo throws of it. The other bools may be missing, and the info be the int 0, for none.
     * \a format changes nothing.
     */
    explicit DispenserStatus(const XmlRpc::XmlRpcValue &value, int format = 0);
    explicit DispenserStatus(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DispenserStatus(int) = delete;
    explicit DispenserStatus(double) = delete;
    explicit DispenserStatus(const char *) = delete;

    DispenserStatus *clone() const override;

    const DispenserInfo *dispenserInfo() const; ///< owned by the status; null when it has none of a dispenser

    void clear(bool all); ///< the dispenser's own fields; the machine's as well with \a all

    /**
     * With \a strict as ==. Without it a dispenser counts as the same by its info without the way to it, active, conf_mng,
     * fw_update and slave_scan, a scale by scale_mngm alone, and any other device always.
     */
    bool equalTo(const DispenserStatus &other, bool strict, SerialDeviceType type) const;
    /** True when the lists differ in length, or in one place when compared without \a strict. */
    static bool hasRelevantChanges(const QList<DispenserStatus> &before, const QList<DispenserStatus> &after,
                                   SerialDeviceType type);
    static bool SIDchanged(const QList<DispenserStatus> &before, const QList<DispenserStatus> &after);

    XmlRpc::XmlRpcValue toXmlRpcValue(int format = 0) const; ///< \a format changes nothing

    bool slave_scan = false;   ///< the driver looks for the machine's boards
    bool grav_sw_dose = false; ///< the driver doses by the scale
    bool scale_mngm = false;   ///< the driver works with the scale

protected:
    bool hasSameFields(const MachineStatus &other) const override;
};

Q_DECLARE_METATYPE(DispenserStatus)
