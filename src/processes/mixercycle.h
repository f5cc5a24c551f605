// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * One cycle of a can mixer: a kind of motion, its speed, the force on the can and the time. Travels in a QVariant under its name,
 * also as the map that its struct is; over XML-RPC a struct of four ints.
 */
struct QUVPROTOCOL_EXPORT MixerCycle
{
    static constexpr char cycleType_TAG[] = "cycle_type";
    static constexpr char mixingSpeed_TAG[] = "mixing_speed";
    static constexpr char clampingForce_TAG[] = "clamping_force";
    static constexpr char duration_TAG[] = "duration";

    static constexpr int ofFirmware = -1; ///< a speed or a duration that the firmware chooses

    MixerCycle() = default;
    MixerCycle(int type, int speed, int force, long long time)
        : cycleType(type),
          mixingSpeed(speed),
          clampingForce(force),
          duration(time)
    {}
    /** Throws DE02337 when a member is missing or no int. */
    explicit MixerCycle(const XmlRpc::XmlRpcValue &value);
    explicit MixerCycle(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit MixerCycle(int) = delete;
    explicit MixerCycle(double) = delete;
    explicit MixerCycle(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const MixerCycle &other) const;
    bool operator!=(const MixerCycle &other) const { return !(*this == other); }

    int cycleType = 0;
    int mixingSpeed = ofFirmware;
    int clampingForce = 0;
    long long duration = ofFirmware;
};

Q_DECLARE_METATYPE(MixerCycle)
