// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/**
 * The digital inputs and outputs of a dispenser, the answer to GET_SENSORS_STATUS: what its switches, barriers and relays tell, as
 * opposed to what the machine is doing. Over the serial link it is a list of masks of seven bits each, over XML-RPC one flat
 * struct of flags.
 */
class QUVPROTOCOL_EXPORT SensorsStatusAnswer
    : public quv::DescribedAnswer<SensorsStatusAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    SensorsStatusAnswer() = default;                     ///< cleared
    explicit SensorsStatusAnswer(QList<QVariant> &list); ///< cleared; the list is not read
    /** Throws DE00026 without one of the flags that every driver tells; those of later machines may be missing. */
    explicit SensorsStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Tokens of the firmware: length, number of bits, masks 1 to 4; then, as far as the firmware sends them, masks 5 to 10, of
     * which one that is not hexadecimal reads as 0. Throws DE00776 (fewer than four masks), DE01482 (number of bits), DE00778 to
     * DE00781 (masks 1 to 4), and what SerialProtoAnswer throws.
     */
    explicit SensorsStatusAnswer(QStringList tokens);

    SensorsStatusAnswer *clone() const override;

    void clear(); ///< all flags false
    void copy(const SensorsStatusAnswer &other) { *this = other; }

    bool offline_pressed = false;
    bool can_present = false;
    bool heater_on = false;
    bool hum_pump_active = false;
    bool emergency_btn_pressed = false;
    bool cap_open = false;
    bool cap_close = false;
    bool cap_free = false;
    bool shelf_security_pressed = false;
    bool shelf_high = false;
    bool shelf_low = false;
    bool shelf_puncher = false;
    bool SHELF_cap_free = false;
    bool SHELF_cap_close = false;
    bool SHELF_can_present = false;
    bool SHELF_stuck_controls = false;
    bool SHELF_up_button = false;
    bool SHELF_down_button = false;
    bool SHELF_security_button = false;
    bool MASTER_48V = false;
    bool MASTER_48V_SW = false;
    bool MASTER_24V = false;
    bool BHL_active = false;
    bool LIT_active = false;
    bool PC_relay_active = false;
    bool autocap_active = false;
    bool brush_motor_active = false;
    bool brake_active = false;
    bool heater_active = false;
    bool bluetooth_active = false;
    bool rollbar_unlocked = false;
    bool brush2_motor_active = false;
    bool m_capCleaningSensorActive = false;
    bool m_mixer_noEmergency = false;
    bool m_mixer_doorClosed = false;
    bool m_mixer_inverterSignal = false;
    bool m_mixer_maxOpenPlates = false;
    bool m_mixer_studDown = false;
    bool m_mixer_verticalPosition = false;
    bool m_mixer_studUp = false;
    bool m_mixer_clampEncoder = false;
    bool m_mixer_doorEncoder_puncherSensor = false;
    bool m_mixer_trimmerNpnInput_canPresence = false;
    bool m_zandor_puncherCleanerUp = false;
    bool m_zandor_puncherCleanerDown = false;
    bool m_zandor_dropCatcherOut = false;
    bool m_zandor_dropCatcherIn = false;
    bool m_zandor_clampOpen = false;
    bool m_zandor_clampClosed = false;
    bool m_zandor_clampUp = false;
    bool m_zandor_clampDown = false;
    bool m_zandor_clampWithdrawalPlug = false;
    bool m_zandor_clampLoadingPlug = false;
    bool m_zandor_plugStockPhotocell = false;
    bool m_zandor_plugPresenceIntoPlugger = false;
    bool m_zandor_plateExtractorOutside = false;
    bool m_zandor_plateExtractorInside = false;
    bool m_zandor_zeroVerticalSfrido = false;
    bool m_zandor_doorOpen = false;
    bool m_zandor_doorClose = false;
    bool m_zandor_plateNotchesSensor = false;
    bool m_rotan_v2_mainStirring = false;
    bool m_rotan_v2_mainStirringSensor = false;
    bool m_rotan_v2_secondaryStirring = false;
    bool m_rotan_v2_secondaryStirringSensor = false;
};
