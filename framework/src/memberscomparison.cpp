// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_members.h>

#include <functional>

namespace quv {
namespace {

/** Runs a description to compare two objects. */
template <class T>
class Comparer
{
public:
    static constexpr char modelKey[] = "model";

    Comparer(const T &left, const T &right) : m_left(left), m_right(right) {}

    void constant(const char * /*key*/, const char * /*text*/) {}

    template <class Get, class Set>
    void required(const char * /*key*/, Get get, Set /*set*/, Range /*range*/ = {})
    {
        m_same = m_same && std::invoke(get, m_left) == std::invoke(get, m_right);
    }

    template <class Get, class Set>
    void optional(const char *key, Get get, Set set, Range range = {})
    {
        required(key, get, set, range);
    }

    template <class Get, class Set, class Remove>
    void removable(const char *key, Get get, Set set, Remove /*remove*/)
    {
        required(key, get, set);
    }

    template <class Describe>
    void group(const char * /*key*/, Describe describeGroup)
    {
        describeGroup(*this);
    }

    bool areSame() const { return m_same; }

private:
    const T &m_left;
    const T &m_right;
    bool m_same = true;
};

} // namespace

template <class T>
bool haveSameMembers(const T &left, const T &right)
{
    Comparer<T> comparer(left, right);
    describe(comparer);
    return comparer.areSame();
}

template bool haveSameMembers(const FW_Autocap &, const FW_Autocap &);
template bool haveSameMembers(const FW_Brush &, const FW_Brush &);
template bool haveSameMembers(const FW_Brush2 &, const FW_Brush2 &);
template bool haveSameMembers(const FW_BungHoleLocator &, const FW_BungHoleLocator &);
template bool haveSameMembers(const FW_Calibration &, const FW_Calibration &);
template bool haveSameMembers(const FW_CalibrationPoint &, const FW_CalibrationPoint &);
template bool haveSameMembers(const FW_CalibrationProfiles &, const FW_CalibrationProfiles &);
template bool haveSameMembers(const FW_CanPresenceSensor &, const FW_CanPresenceSensor &);
template bool haveSameMembers(const FW_Canister &, const FW_Canister &);
template bool haveSameMembers(const FW_CanisterLevelSensor &, const FW_CanisterLevelSensor &);
template bool haveSameMembers(const FW_Circuit &, const FW_Circuit &);
template bool haveSameMembers(const FW_CleaningMotor &, const FW_CleaningMotor &);
template bool haveSameMembers(const FW_Colorant &, const FW_Colorant &);
template bool haveSameMembers(const FW_Dispenser &, const FW_Dispenser &);
template bool haveSameMembers(const FW_DosingMotor &, const FW_DosingMotor &);
template bool haveSameMembers(const FW_DosingMotor::SpeedMpxOffset &, const FW_DosingMotor::SpeedMpxOffset &);
template bool haveSameMembers(const FW_FlowCorrection &, const FW_FlowCorrection &);
template bool haveSameMembers(const FW_Heater &, const FW_Heater &);
template bool haveSameMembers(const FW_Humidifier &, const FW_Humidifier &);
template bool haveSameMembers(const FW_Lineartable &, const FW_Lineartable &);
template bool haveSameMembers(const FW_Lock &, const FW_Lock &);
template bool haveSameMembers(const FW_Mixer &, const FW_Mixer &);
template bool haveSameMembers(const FW_NozzleLight &, const FW_NozzleLight &);
template bool haveSameMembers(const FW_NozzleValve &, const FW_NozzleValve &);
template bool haveSameMembers(const FW_Offline &, const FW_Offline &);
template bool haveSameMembers(const FW_PLCBoard &, const FW_PLCBoard &);
template bool haveSameMembers(const FW_Ramp &, const FW_Ramp &);
template bool haveSameMembers(const FW_RecirculationMotor &, const FW_RecirculationMotor &);
template bool haveSameMembers(const FW_Shelf &, const FW_Shelf &);
template bool haveSameMembers(const FW_SingleTransmission &, const FW_SingleTransmission &);
template bool haveSameMembers(const FW_StirringMotor &, const FW_StirringMotor &);
template bool haveSameMembers(const FW_TemperatureSensor &, const FW_TemperatureSensor &);
template bool haveSameMembers(const FW_Turntable &, const FW_Turntable &);
template bool haveSameMembers(const FW_UltrasoundCleaning &, const FW_UltrasoundCleaning &);
template bool haveSameMembers(const FW_Valve &, const FW_Valve &);
template bool haveSameMembers(const GravimetricSettings &, const GravimetricSettings &);

} // namespace quv
