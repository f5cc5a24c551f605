// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/statustesting.h"

#include <stdexcept>

namespace testing_status {

namespace {

using Dispenser = DispenserStatusAnswer;
using Machine = MachineStatusAnswer;

} // namespace

const std::vector<Flag<Machine>> machineFlags = {
    {"offline_pressed", &Machine::offline_pressed},
    {"board_not_initialized", &Machine::board_not_initialized},
    {"startup", &Machine::startup},
    {"resetting", &Machine::resetting},
    {"BL_active", &Machine::BL_active},
    {"BL_memory_resetting", &Machine::BL_memory_resetting},
    {"BL_fw_update", &Machine::BL_fw_update},
    {"conf_writing", &Machine::conf_writing},
    {"hw_error", &Machine::hw_error},
    {"conf_error", &Machine::conf_error},
    {"process_error", &Machine::process_error},
    {"stop_process", &Machine::stop_process},
    {"new_buffered_error", &Machine::new_buffered_error},
    {"dispenser_not_ready", &Machine::dispenser_not_ready},
    {"emergency_pressed", &Machine::emergency_pressed},
    {"normal_wm", &Machine::normal_wm},
    {"can_present", &Machine::can_present},
    {"shelf_up", &Machine::shelf_up},
    {"shelf_down", &Machine::shelf_down},
    {"door_open", &Machine::door_open},
    {"machine_turned_off", &Machine::machine_turned_off},
    {"machine_unlocked", &Machine::machine_unlocked},
};

const std::vector<Flag<Dispenser>> dispenserFlags = {
    {"tinting", &Dispenser::tinting},
    {"recirculating", &Dispenser::recirculating},
    {"stirring", &Dispenser::stirring},
    {"valve_on", &Dispenser::valve_on},
    {"cap_open", &Dispenser::cap_open},
    {"bellow_up", &Dispenser::bellow_up},
    {"no_24_voltage", &Dispenser::no_24_voltage},
    {"no_48_voltage", &Dispenser::no_48_voltage},
    {"punching", &Dispenser::punching},
    {"slave_scan", &Dispenser::slave_scan},
    {"post_erogation", &Dispenser::post_erogation},
    {"turntable_moving", &Dispenser::turntable_moving},
    {"cleaning", &Dispenser::cleaning},
    {"formula_interrupted", &Dispenser::formula_interrupted},
    {"nozzle_valve_working_pos", &Dispenser::nozzle_valve_working_pos},
    {"circuit_fin_presence", &Dispenser::circuit_fin_presence},
    {"airpurge", &Dispenser::airpurge},
    {"head1_can_dose", &Dispenser::head1_can_dose},
    {"head2_can_dose", &Dispenser::head2_can_dose},
    {"predispensing", &Dispenser::predispensing},
    {"pumping", &Dispenser::pumping},
    {"nozzle_moving", &Dispenser::nozzle_moving},
    {"nozzle_valve_open_accurate", &Dispenser::nozzle_valve_open_accurate},
    {"canister_lvl_critical", &Dispenser::canister_lvl_critical},
    {"new_cleaning_stats", &Dispenser::new_cleaning_stats},
    {"stall_low", &Dispenser::stall_low},
    {"stall_high", &Dispenser::stall_high},
    {"check_level_in_progress", &Dispenser::check_level_in_progress},
    {"speed_red_in_recirc", &Dispenser::speed_red_in_recirc},
    {"plc_start_activated", &Dispenser::plc_start_activated},
    {"plc_stop_activated", &Dispenser::plc_stop_activated},
    {"m_zdr_mixingInProgress", &Dispenser::m_zdr_mixingInProgress},
    {"m_zdr_openingPlatesInProgress", &Dispenser::m_zdr_openingPlatesInProgress},
    {"m_zdr_closingPlatesInProgress", &Dispenser::m_zdr_closingPlatesInProgress},
    {"m_zdr_pluggingInProgress", &Dispenser::m_zdr_pluggingInProgress},
    {"m_zdr_canCentered", &Dispenser::m_zdr_canCentered},
    {"m_zdr_plasticPlugReserve", &Dispenser::m_zdr_plasticPlugReserve},
    {"m_zdr_plasticPlugNotMounted", &Dispenser::m_zdr_plasticPlugNotMounted},
    {"m_zdr_homePosition", &Dispenser::m_zdr_homePosition},
};

std::set<std::string> setMachineFlags(const Machine &answer)
{
    std::set<std::string> names;
    for (const auto &flag : machineFlags) {
        if (answer.*flag.field)
            names.insert(flag.name);
    }
    return names;
}

std::set<std::string> setFlags(const Dispenser &answer)
{
    std::set<std::string> names = setMachineFlags(answer);
    for (const auto &flag : dispenserFlags) {
        if (answer.*flag.field)
            names.insert(flag.name);
    }
    return names;
}

bool &machineFlagNamed(Machine &answer, const std::string &name)
{
    for (const auto &flag : machineFlags) {
        if (name == flag.name)
            return answer.*flag.field;
    }
    throw std::logic_error("no flag " + name);
}

bool &flagNamed(Dispenser &answer, const std::string &name)
{
    for (const auto &flag : dispenserFlags) {
        if (name == flag.name)
            return answer.*flag.field;
    }
    return machineFlagNamed(answer, name);
}

Value idleStruct()
{
    Value value;
    value["disp_status"] = 1;
    for (const auto &flag : machineFlags)
        value[flag.name] = false;
    for (const auto &flag : dispenserFlags)
        value[flag.name] = false;
    value["normal_wm"] = true;
    value["current_position_id"] = 0;
    value["current_position_id_zone"] = 0;
    return value;
}

Value asWritten(Value status)
{
    for (const char *unused : {"WM_set", "disp_info_writing", "disp_info_erasing"})
        status[unused] = false;
    return status;
}

Value without(const Value &value, const std::string &key)
{
    Value rest;
    for (const auto &[name, member] : value) {
        if (name != key)
            rest[name] = member;
    }
    return rest;
}

QStringList idleTokens()
{
    return {"E", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"};
}

StatusLines linesOf(const std::vector<Line> &lines)
{
    StatusLines list;
    for (const Line &line : lines)
        list.append({QString::fromLatin1(line.text), line.bad});
    return list;
}

} // namespace testing_status
