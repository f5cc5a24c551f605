// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/mixerinfo.h"
#include "machinestatus.h"

#include <QtCore/QVariant>

class FW_Mixer;

/**
 * What the driver has under way on a can mixer. Travels in a QVariant under its name, also as the map that its struct is: a bool
 * of each name, and under "mixer_info" the info.
 */
class QUVPROTOCOL_EXPORT MixerStatus : public MachineStatus
{
public:
    static constexpr char mixerInfo_TAG[] = "mixer_info";

    MixerStatus() = default;
    explicit MixerStatus(const MixerInfo &info);
    MixerStatus(const MixerInfo &info, bool isActive, bool managesConfiguration, bool updatesFirmware,
                bool managesStatistics);
    /** Of this machine, with the type of its connection as in its info. */
    MixerStatus(const FW_Mixer &mixer, QString connection, bool isEnabled, bool isActive);
    /**
     * The info, and the bools in their order, of which the first three must be there. Throws DE03205 (fewer than four elements),
     * DE03204 (info), DE03201, DE03202, DE03203 (a bool of another type), or what MixerInfo throws of a bad map.
     */
    explicit MixerStatus(QList<QVariant> list);
    /**
     * Throws DE03201 (active), DE03202 (conf_mng) or DE03203 (fw_update) for a member that is missing or of another type, DE03204
     * without the info, or what MixerInfo throws of it. stats_mng may be missing, and the info be the int 0, for none. \a format
     * changes nothing.
     */
    explicit MixerStatus(const XmlRpc::XmlRpcValue &value, int format = 0);
    explicit MixerStatus(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit MixerStatus(int) = delete;
    explicit MixerStatus(double) = delete;
    explicit MixerStatus(const char *) = delete;

    MixerStatus *clone() const override;

    const MixerInfo *mixerInfo() const; ///< owned by the status; null when it has none of a mixer

    /**
     * With \a strict as ==. Without it a mixer counts as the same by its info without the way to it, active, conf_mng and
     * fw_update, and any other device always.
     */
    bool equalTo(const MixerStatus &other, bool strict, SerialDeviceType type) const;
    /** True when the lists differ in length, or in one place when compared without \a strict. */
    static bool hasRelevantChanges(const QList<MixerStatus> &before, const QList<MixerStatus> &after,
                                   SerialDeviceType type);
    static bool SIDchanged(const QList<MixerStatus> &before, const QList<MixerStatus> &after);

    XmlRpc::XmlRpcValue toXmlRpcValue(int format = 0) const; ///< \a format changes nothing
};

Q_DECLARE_METATYPE(MixerStatus)
