// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensorsstatusanswer.h"

#include "base/describedanswer_p.h"
#include "base/flags_p.h"
#include "base/tokens_p.h"

#include <array>
#include <utility>

namespace {

using Sensors = SensorsStatusAnswer;

constexpr int requiredMasks = 4;
constexpr int lastMask = 10;

/** Every sensor, by mask and bit. Those of later machines travel under the property names of their variables. */
constexpr quv::StatusFlag<Sensors> sensors[] = {
    {"offline_pressed", &Sensors::offline_pressed, 1, 0, quv::Required},
    {"can_present", &Sensors::can_present, 1, 1, quv::Required},
    {"heater_on", &Sensors::heater_on, 1, 2, quv::Required},
    {"hum_pump_active", &Sensors::hum_pump_active, 1, 3, quv::Required},
    {"emergency_btn_pressed", &Sensors::emergency_btn_pressed, 1, 4, quv::Required},
    {"cap_open", &Sensors::cap_open, 1, 5, quv::Required},
    {"cap_close", &Sensors::cap_close, 1, 6, quv::Required},
    {"cap_free", &Sensors::cap_free, 2, 0, quv::Required},
    {"shelf_security_pressed", &Sensors::shelf_security_pressed, 2, 1, quv::Required},
    {"shelf_high", &Sensors::shelf_high, 2, 2, quv::Required},
    {"shelf_low", &Sensors::shelf_low, 2, 3, quv::Required},
    {"shelf_puncher", &Sensors::shelf_puncher, 2, 4, quv::Required},
    {"SHELF_cap_free", &Sensors::SHELF_cap_free, 2, 5, quv::Required},
    {"SHELF_cap_close", &Sensors::SHELF_cap_close, 2, 6, quv::Required},
    {"SHELF_can_present", &Sensors::SHELF_can_present, 3, 0, quv::Required},
    {"SHELF_stuck_controls", &Sensors::SHELF_stuck_controls, 3, 1, quv::Required},
    {"SHELF_up_button", &Sensors::SHELF_up_button, 3, 2, quv::Required},
    {"SHELF_down_button", &Sensors::SHELF_down_button, 3, 3, quv::Required},
    {"SHELF_security_button", &Sensors::SHELF_security_button, 3, 4, quv::Required},
    {"MASTER_48V", &Sensors::MASTER_48V, 3, 5, quv::Required},
    {"MASTER_48V_SW", &Sensors::MASTER_48V_SW, 3, 6, quv::Required},
    {"MASTER_24V", &Sensors::MASTER_24V, 4, 0, quv::Required},
    {"BHL_active", &Sensors::BHL_active, 4, 1, quv::Required},
    {"LIT_active", &Sensors::LIT_active, 4, 2, quv::Required},
    {"PC_relay_active", &Sensors::PC_relay_active, 4, 3, quv::Required},
    {"autocap_active", &Sensors::autocap_active, 4, 4, quv::Required},
    {"brush_motor_active", &Sensors::brush_motor_active, 4, 5, quv::Required},
    {"brake_active", &Sensors::brake_active, 4, 6, quv::Required},
    {"heater_active", &Sensors::heater_active, 5, 0, quv::Required},
    {"bluetooth_active", &Sensors::bluetooth_active, 5, 1, quv::Required},
    {"rollbar_unlocked", &Sensors::rollbar_unlocked, 5, 2, quv::Required},
    {"brush2_motor_active", &Sensors::brush2_motor_active, 5, 3, quv::Required},
    {"m_capCleaningSensorActive", &Sensors::m_capCleaningSensorActive, 5, 6, quv::Property},
    {"m_mixer_noEmergency", &Sensors::m_mixer_noEmergency, 6, 0, quv::Property},
    {"m_mixer_doorClosed", &Sensors::m_mixer_doorClosed, 6, 1, quv::Property},
    {"m_mixer_inverterSignal", &Sensors::m_mixer_inverterSignal, 6, 2, quv::Property},
    {"m_mixer_maxOpenPlates", &Sensors::m_mixer_maxOpenPlates, 6, 3, quv::Property},
    {"m_mixer_studDown", &Sensors::m_mixer_studDown, 6, 4, quv::Property},
    {"m_mixer_verticalPosition", &Sensors::m_mixer_verticalPosition, 6, 5, quv::Property},
    {"m_mixer_studUp", &Sensors::m_mixer_studUp, 6, 6, quv::Property},
    {"m_mixer_clampEncoder", &Sensors::m_mixer_clampEncoder, 7, 0, quv::Property},
    {"m_mixer_doorEncoder_puncherSensor", &Sensors::m_mixer_doorEncoder_puncherSensor, 7, 1, quv::Property},
    {"m_mixer_trimmerNpnInput_canPresence", &Sensors::m_mixer_trimmerNpnInput_canPresence, 7, 2,
     quv::Property},
    {"m_zandor_puncherCleanerUp", &Sensors::m_zandor_puncherCleanerUp, 7, 3, quv::Property},
    {"m_zandor_puncherCleanerDown", &Sensors::m_zandor_puncherCleanerDown, 7, 4, quv::Property},
    {"m_zandor_dropCatcherOut", &Sensors::m_zandor_dropCatcherOut, 7, 5, quv::Property},
    {"m_zandor_dropCatcherIn", &Sensors::m_zandor_dropCatcherIn, 7, 6, quv::Property},
    {"m_zandor_clampOpen", &Sensors::m_zandor_clampOpen, 8, 0, quv::Property},
    {"m_zandor_clampClosed", &Sensors::m_zandor_clampClosed, 8, 1, quv::Property},
    {"m_zandor_clampUp", &Sensors::m_zandor_clampUp, 8, 2, quv::Property},
    {"m_zandor_clampDown", &Sensors::m_zandor_clampDown, 8, 3, quv::Property},
    {"m_zandor_clampWithdrawalPlug", &Sensors::m_zandor_clampWithdrawalPlug, 8, 4, quv::Property},
    {"m_zandor_clampLoadingPlug", &Sensors::m_zandor_clampLoadingPlug, 8, 5, quv::Property},
    {"m_zandor_plugStockPhotocell", &Sensors::m_zandor_plugStockPhotocell, 8, 6, quv::Property},
    {"m_zandor_plugPresenceIntoPlugger", &Sensors::m_zandor_plugPresenceIntoPlugger, 9, 0, quv::Property},
    {"m_zandor_plateExtractorOutside", &Sensors::m_zandor_plateExtractorOutside, 9, 1, quv::Property},
    {"m_zandor_plateExtractorInside", &Sensors::m_zandor_plateExtractorInside, 9, 2, quv::Property},
    {"m_zandor_zeroVerticalSfrido", &Sensors::m_zandor_zeroVerticalSfrido, 9, 3, quv::Property},
    {"m_zandor_doorOpen", &Sensors::m_zandor_doorOpen, 9, 4, quv::Property},
    {"m_zandor_doorClose", &Sensors::m_zandor_doorClose, 9, 5, quv::Property},
    {"m_zandor_plateNotchesSensor", &Sensors::m_zandor_plateNotchesSensor, 9, 6, quv::Property},
    {"m_rotan_v2_mainStirring", &Sensors::m_rotan_v2_mainStirring, 10, 0, quv::Property},
    {"m_rotan_v2_mainStirringSensor", &Sensors::m_rotan_v2_mainStirringSensor, 10, 1, quv::Property},
    {"m_rotan_v2_secondaryStirring", &Sensors::m_rotan_v2_secondaryStirring, 10, 2, quv::Property},
    {"m_rotan_v2_secondaryStirringSensor", &Sensors::m_rotan_v2_secondaryStirringSensor, 10, 3,
     quv::Property},
};

constexpr quv::Refusal sensorMissing = {"DE00026", "SensorsStatusAnswer: expected %1 value"};

constexpr quv::Refusal maskRefusals[requiredMasks] = {
    {"DE00778", "Error during command answer decoding: mask 1"},
    {"DE00779", "Error during command answer decoding: mask 2"},
    {"DE00780", "Error during command answer decoding: mask 3"},
    {"DE00781", "Error during command answer decoding: mask 4"},
};

} // namespace

struct SensorsStatusAnswer::Description
{
    static std::vector<quv::Member<Sensors>> members() { return quv::membersOf(sensors, sensorMissing); }
};

template class quv::DescribedAnswer<SensorsStatusAnswer, SerialProtoAnswer>;

SensorsStatusAnswer::SensorsStatusAnswer(QList<QVariant> &list) : DescribedAnswer(list) {}

SensorsStatusAnswer::SensorsStatusAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

SensorsStatusAnswer::SensorsStatusAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(1 + requiredMasks, {"DE00776", "Error during command answer decoding: bad length"});
    reader.nextUnsigned({"DE01482", "Error during bit count decoding"}); // the masks tell it anyway
    std::array<unsigned, lastMask + 1> masks{};
    std::size_t mask = 1;
    for (const quv::Refusal &refusal : maskRefusals)
        masks[mask++] = reader.nextUnsigned(refusal);
    while (mask <= lastMask && !reader.atEnd())
        masks[mask++] = reader.nextUnchecked(); // firmware with fewer sensors sends fewer masks
    quv::applyWords<sensors>(masks.data(), lastMask, *this);
}

SensorsStatusAnswer *SensorsStatusAnswer::clone() const
{
    return new SensorsStatusAnswer(*this);
}

void SensorsStatusAnswer::clear()
{
    quv::recordOf<SensorsStatusAnswer>().reset(*this);
}
