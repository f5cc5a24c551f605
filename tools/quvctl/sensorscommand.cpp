// SPDX-License-Identifier: LGPL-3.0-or-later
#include "executed.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"

#include "status/sensorsstatusanswer.h"

namespace quv {

namespace {

struct SensorWords
{
    bool SensorsStatusAnswer::*flag;
    const char *text;
};

using Sensors = SensorsStatusAnswer;

constexpr SensorWords sensorWords[] = {
    {&Sensors::offline_pressed, "offline button pressed"},
    {&Sensors::can_present, "can present"},
    {&Sensors::heater_on, "heater switched on"},
    {&Sensors::hum_pump_active, "humidifier pump on"},
    {&Sensors::emergency_btn_pressed, "emergency button pressed"},
    {&Sensors::cap_open, "cap open"},
    {&Sensors::cap_close, "cap closed"},
    {&Sensors::cap_free, "nothing under the cap"},
    {&Sensors::shelf_security_pressed, "shelf safety bar pressed"},
    {&Sensors::shelf_high, "shelf up"},
    {&Sensors::shelf_low, "shelf down"},
    {&Sensors::shelf_puncher, "shelf at the puncher"},
    {&Sensors::SHELF_cap_free, "shelf board: nothing under the cap"},
    {&Sensors::SHELF_cap_close, "shelf board: cap closed"},
    {&Sensors::SHELF_can_present, "shelf board: can present"},
    {&Sensors::SHELF_stuck_controls, "shelf board: its buttons are stuck"},
    {&Sensors::SHELF_up_button, "shelf board: up button pressed"},
    {&Sensors::SHELF_down_button, "shelf board: down button pressed"},
    {&Sensors::SHELF_security_button, "shelf board: safety button pressed"},
    {&Sensors::MASTER_48V, "48 V present"},
    {&Sensors::MASTER_48V_SW, "switched 48 V present"},
    {&Sensors::MASTER_24V, "24 V present"},
    {&Sensors::BHL_active, "bung hole locator on"},
    {&Sensors::LIT_active, "light on"},
    {&Sensors::PC_relay_active, "relay of the computer on"},
    {&Sensors::autocap_active, "cap motor on"},
    {&Sensors::brush_motor_active, "brush motor on"},
    {&Sensors::brake_active, "brake on"},
    {&Sensors::heater_active, "heater heating"},
    {&Sensors::bluetooth_active, "Bluetooth on"},
    {&Sensors::rollbar_unlocked, "rollbar unlocked"},
    {&Sensors::brush2_motor_active, "second brush motor on"},
    {&Sensors::m_capCleaningSensorActive, "cap cleaning sensor on"},
    {&Sensors::m_mixer_noEmergency, "mixer: emergency button released"},
    {&Sensors::m_mixer_doorClosed, "mixer: door closed"},
    {&Sensors::m_mixer_inverterSignal, "mixer: signal of the inverter"},
    {&Sensors::m_mixer_maxOpenPlates, "mixer: plates fully open"},
    {&Sensors::m_mixer_studDown, "mixer: stud down"},
    {&Sensors::m_mixer_verticalPosition, "mixer: can upright"},
    {&Sensors::m_mixer_studUp, "mixer: stud up"},
    {&Sensors::m_mixer_clampEncoder, "mixer: clamp encoder on"},
    {&Sensors::m_mixer_doorEncoder_puncherSensor, "mixer: door encoder or puncher sensor on"},
    {&Sensors::m_mixer_trimmerNpnInput_canPresence, "mixer: trimmer input or can present"},
    {&Sensors::m_zandor_puncherCleanerUp, "capping station: cleaner of the puncher up"},
    {&Sensors::m_zandor_puncherCleanerDown, "capping station: cleaner of the puncher down"},
    {&Sensors::m_zandor_dropCatcherOut, "capping station: drop catcher out"},
    {&Sensors::m_zandor_dropCatcherIn, "capping station: drop catcher in"},
    {&Sensors::m_zandor_clampOpen, "capping station: clamp open"},
    {&Sensors::m_zandor_clampClosed, "capping station: clamp closed"},
    {&Sensors::m_zandor_clampUp, "capping station: clamp up"},
    {&Sensors::m_zandor_clampDown, "capping station: clamp down"},
    {&Sensors::m_zandor_clampWithdrawalPlug, "capping station: clamp where it takes a plug"},
    {&Sensors::m_zandor_clampLoadingPlug, "capping station: clamp where it loads a plug"},
    {&Sensors::m_zandor_plugStockPhotocell, "capping station: photocell of the plugs"},
    {&Sensors::m_zandor_plugPresenceIntoPlugger, "capping station: plug in the plugger"},
    {&Sensors::m_zandor_plateExtractorOutside, "capping station: plate extractor out"},
    {&Sensors::m_zandor_plateExtractorInside, "capping station: plate extractor in"},
    {&Sensors::m_zandor_zeroVerticalSfrido, "capping station: vertical zero of the waste"},
    {&Sensors::m_zandor_doorOpen, "capping station: door open"},
    {&Sensors::m_zandor_doorClose, "capping station: door closed"},
    {&Sensors::m_zandor_plateNotchesSensor, "capping station: notch of the plate"},
    {&Sensors::m_rotan_v2_mainStirring, "main stirring on"},
    {&Sensors::m_rotan_v2_mainStirringSensor, "sensor of the main stirring on"},
    {&Sensors::m_rotan_v2_secondaryStirring, "secondary stirring on"},
    {&Sensors::m_rotan_v2_secondaryStirringSensor, "sensor of the secondary stirring on"}};

QStringList activeIn(const SensorsStatusAnswer &sensors)
{
    QStringList texts;
    for (const SensorWords &words : sensorWords)
        if (sensors.*words.flag)
            texts.append(QLatin1String(words.text));
    return texts;
}

ExitStatus runSensors(const CommandLine &line)
{
    const Driver driver(line);
    const auto sensors = answerTo<SensorsStatusAnswer>(ProtoCommandList::GET_SENSORS_STATUS, driver);
    const QStringList active = activeIn(sensors);
    if (line.isSet("json")) {
        OrderedJson reply = success();
        reply["active"] = OrderedJson::array();
        for (const QString &text : active)
            reply["active"].push_back(toJson(text));
        reply["value"] = toJson(sensors.toXmlRpcValue());
        printJson(reply);
        return Done;
    }
    for (const QString &text : active)
        printLine(text);
    if (active.isEmpty())
        printLine(QStringLiteral("no sensor is active"));
    return Done;
}

} // namespace

const Subcommand sensorsSubcommand = {
    "sensors",
    "",
    "the sensors of a machine that are active",
    "Shows which switches, barriers and outputs of the machine are on, a line each.",
    0,
    0,
    withDriverOptions({{"json", nullptr, "these, and all of them by their names, as one JSON object"}}),
    runSensors,
    SerialDeviceType::Dispenser};

} // namespace quv
