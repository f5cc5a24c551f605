// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"

#include "base/basetesting.h"
#include "base/bluetoothdeviceinfo.h"
#include "base/confprotocommand.h"
#include "base/machineid.h"
#include "base/outofmemory.h"
#include "base/scaleprotocommand.h"
#include "base/serialprotocommand.h"
#include "calibration/basiccalibrationdata.h"
#include "calibration/calibrationdata.h"
#include "catalogue/commandrows.h"
#include "dispensing/dispensertesting.h"
#include "dispensing/pcircuitformula.h"
#include "factory/commandtables_p.h"
#include "factory/factoryrows.h"
#include "firmware/fwresourcedata.h"
#include "firmware/fwresourcefile.h"
#include "processes/mixcmd.h"
#include "processes/mixerplatescmd.h"
#include "processes/stiritem.h"

#include <QuvFramework/fw_calibrationprofiles.h>
#include <QuvFramework/fw_calibrationtest.h>
#include <QuvFramework/fw_configuration.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_errorlist.h>
#include <QuvFramework/fw_firmwarefile.h>
#include <QuvFramework/fw_gravimetricsettings.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_scale.h>
#include <QuvFramework/fw_serialport.h>
#include <QuvFramework/fw_statistics.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <xmlrpcpp/XmlRpcException.h>

#include <cxxabi.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <typeinfo>

namespace {

using namespace testing_base;
using quv::Dispatch;
using quv::Form;
using quv::ListForm;
using quv::ValueForm;
using Cmd = ProtoCommandList;
using CommandPtr = std::unique_ptr<ProtoCommand>;

constexpr Form forms[] = {ValueForm, ListForm};
constexpr Dispatch operations[] = {Dispatch::Serial, Dispatch::DispenserSerial, Dispatch::MixerSerial,
                                   Dispatch::Config, Dispatch::DispenserConfig, Dispatch::MixerConfig,
                                   Dispatch::Scale};

// ---------------------------------------------------------------- arguments and machines

/**
 * Arguments that the command of this name accepts, none of them a default. While a command is plain, as many ones as it
 * asks for do; whoever gives it a class of its own adds a line here.
 */
List argumentsFor(const CommandRow &row, Form form)
{
    using namespace testing_dispensing;
    const QVariant formula = QVariant::fromValue(grams({{"3", 1.5}, {"4", 20}}));
    const QVariant priming = QVariant::fromValue(strokes({{"3", 2}}));
    const QVariant circuits = QVariant::fromValue(PCircuitFormula(9, {{3, 1, 40, 20}}));
    const QVariant devices = QVariant::fromValue<BluetoothDeviceInfoList>(
        QList<BluetoothDeviceInfo>() << BluetoothDeviceInfo("VELTO 1", "00:11"));
    const MachineID mixer(7, SerialDeviceType::Mixer);
    FW_Configuration mixers;
    mixers.setMachine(std::make_unique<FW_Mixer>());
    const QVariant configuration = QVariant::fromValue(mixers);
    FW_Dispenser numbered;
    numbered.setId(3);
    const QVariant dispenser = QVariant::fromValue(numbered);
    const QVariantMap calibrations = {
        {"calibrations_list", List{QVariant::fromValue(CalibrationData(3, {}, FW_DosingMotor())).toMap()}}};
    const QVariant gravSettings =
        QVariantMap{{"position_id", 3}, {"tolerance", 0.25}, {"max_corrections", 5}};
    const QVariant scale =
        QVariant::fromValue(FW_Scale("Libra 6", FW_SerialPort(), ScaleUtils::Kilogram, 6.5, 3));
    FW_DriverError pastError("DE00337", "no command");
    pastError.setTimestamp(QDateTime(QDate(2026, 3, 2), QTime(9, 15, 30, 250), Qt::UTC));
    static const std::map<std::string, List> arguments = {
        {"ADD_EVENT", {0, QVariant::fromValue(QList<EventStatData>{EventStatData({}, 7, 3, 2.5)})}},
        {"ADD_STATS_ERRORS", {QVariant::fromValue(FW_ErrorList(List{QVariant::fromValue(pastError)}))}},
        {"AIRPURGE", {circuits}},
        {"AUTOCAP_MOVE", {1}},
        {"AUTOTEST", {7}},
        {"BOARD_MEMORY", {"W", "E", 1, 2, 3, 4, 5, 6, 7, 8}},
        {"CERTIFY_SESSION", {"S-7", "28"}},
        {"CHANNEL_TINT", {2, formula}},
        {"CHECK_FORMULA_LEVELS", {formula, true}},
        {"CLEAR_BOARD_STATS", {2, QVariant(List{3, 1})}},
        {"DISPLAY_STRING", {"Base 1"}},
        {"GET_ACTIVE_CIRCUITS", {13}},
        {"GET_CALIB_LIST", {3, true}},
        {"GET_CANISTER_LIST", {true}},
        {"GET_CIRCUIT_LIST", {true}},
        {"GET_CMD_LIST", {true}},
        {"GET_COLORANT_LIST", {true}},
        {"GET_DEVICE_LIST", {true}},
        {"GET_DISP_LIST", {true}},
        {"GET_MIXER_LIST", {true}},
        {"GET_CIRCUITS_STATUS", {2}},
        {"CLEANING", {0, 40, 300, 2, true}},
        {"DEEP_SERVICE", {3, 12, "0A2c", QVariant(List{300})}},
        {"CLONE_DISPENSER", {3}},
        {"CLONE_MACHINE", {QVariant::fromValue(mixer)}},
        {"DELETE_DISPENSER", {QVariant::fromValue(QList<int>{3, 5})}},
        {"DELETE_MACHINE", {QVariant::fromValue(QList<MachineID>{mixer})}},
        {"GET_CONFIG", {1}},
        {"SAVE_CONFIG", {configuration, true}},
        {"SAVE_DISP_CONFIG", {dispenser, true, false}},
        {"SET_ACTIVE_DISP", {3, 5, true}},
        {"SET_ACTIVE_MACHINE", {QVariant::fromValue(mixer), QVariant::fromValue(mixer), true}},
        {"CLEAR_DISP_INFO", {3}},
        {"CONFIG_PARAM", {3, 1, QVariantMap{{"filling_time", 9.5}}}},
        {"GET_CMD_EST_EXEC_TIME", {"GET_STATUS", 7}},
        {"GET_COL_USAGE_STATS", {"VT-17", "KX", "dispensed|to", 12}},
        {"GET_CMD_STATUS", {"ticket 7"}},
        {"GET_DISP_INFO", {3}},
        {"GET_CURRENT_WEIGHT", {true}},
        {"GET_DISPENSED_FORMULA", {2, 1}},
        {"GET_FORMULA_CIRCUITS", {formula, true}},
        {"GET_FORMULA_EXECUTION", {formula}},
        {"GET_FW_COMMANDS", {1}},
        {"GET_GRAV_SETTINGS", {QVariant(List{2, 3})}},
        {"GET_KEY", {"S-7", "38"}},
        {"GE_TEST",
         {QVariantMap{{"current_scale_weight", 12.5},
                      {"driver_GE_settings", QVariant::fromValue(GravimetricSettings(0.25, 5))}}}},
        {"GET_LEVEL_SENSORS", {QVariant(List{2, 3})}},
        {"GET_LAST_BOARD_STATS", {2, QVariant(List{3, 1})}},
        {"GET_LOW_LEVEL_FORMULA", {formula}},
        {"GET_QRCODE_CALIB", {0}},
        {"GET_REAL_BOARD_STATS", {2, QVariant(List{3, 1})}},
        {"GET_RECALIB_LIST", {3, true}},
        {"GET_SHELF_POS", {3}},
        {"GET_SENSOR_DATA", {4, 2}},
        {"GET_STATS_ERRORS", {2, 3, "17"}},
        {"GET_STATUS", {7}},
        {"LOGIN", {3, "till", 2, 4}},
        {"LOGOUT", {"S-7"}},
        {"MIX", {QVariant::fromValue(QList<MixerCycle>{MixerCycle(2, 40, 7, 300)})}},
        {"MIXER_PLATES",
         {QVariant::fromValue(static_cast<MixerPlatesCmd::MixerPlatesAction>(2)), 300, 40, 7}},
        {"MOTOR_RUNNING", {2, 400}},
        {"NOZZLE_CLEAN", {2, 300}},
        {"PACK", {1, formula}},
        {"PACK2", {circuits}},
        {"PAUSE", {500}},
        {"PRIMING", {priming}},
        {"PRIMING2", {circuits}},
        {"PURGE", {formula}},
        {"READ_CONFIG_ROW", {5, 3}},
        {"READ_FW_VERSION", {17}},
        {"RECIRCULATION", {2, 300, 40, 1, true}},
        {"RESET", {2}},
        {"RESET_FW", {2, QVariant(List{3, 4})}},
        {"RES_FILE_MNGM", {QVariant::fromValue(FwResourceData(RFM_Subcommand{2}, 243, 300, "12"))}},
        {"RES_FILE_WRITE",
         {QVariant::fromValue(
             QList<FwResourceFile>{FwResourceFile("12", "P17.dmp", FwResourceFile::DumpFile, 4)})}},
        {"SET_BOARD_POWER", {2, 3, 1}},
        {"SET_DISP_OUTPUT", {3, 12, 2, 6}},
        {"SET_LED_STATUS", {3, 0, "#80102030"}},
        {"SET_BOARD_STATS", {2, QVariant(List{QVariantMap{{"position_id", 3}, {"count", 300}}})}},
        {"SET_CIRCUIT_MAX_SPEED", {3, 120, true}},
        {"SET_DISP_DATA", {"till 2"}},
        {"SET_DISP_ID", {3, 12}},
        {"SET_CALIB_LIST",
         {QVariant::fromValue(QList<CalibrationData>{CalibrationData(3, {}, FW_DosingMotor())})}},
        {"SET_CALIB_PROFILES", {QVariant::fromValue(FW_CalibrationProfiles()), true, true}},
        {"SET_CALIB_TEST_POINTS",
         {"C-17", QVariant::fromValue(QList<FW_CalibrationTest>{FW_CalibrationTest(2.5, 2, 800, 60, 0)})}},
        {"SET_CANISTER_LIST", {QVariant::fromValue(QList<FW_Canister>{FW_Canister(3)}), true}},
        {"SET_COLORANT_LIST",
         {QVariant::fromValue(QList<QPair<int, FW_Colorant>>{{3, FW_Colorant(QStringLiteral("B"))}})}},
        {"SET_DISP_INFO", {3, "K-17"}},
        {"SET_DM_DATA", {3, "P 17"}},
        {"SET_BT_SETTINGS", {true, devices, devices}},
        {"SET_DRIVER_SETTINGS", {QVariantHash{{"AppProfile", "SHOP"}}}},
        {"SET_GRAV_SETTINGS", {QVariant(List{gravSettings})}},
        {"SET_LEVELS", {false, formula, true}},
        {"SET_QRCODE_CALIB", {"Q1;7"}},
        {"SET_RECALIB_LIST", {QVariant::fromValue(QList<BasicCalibrationData>{BasicCalibrationData(3, {})})}},
        {"SET_SCALE_CONFIG", {scale}},
        {"SET_SERIAL", {QVariant::fromValue(FW_SerialPort(QStringLiteral("/dev/ttyS1")))}},
        {"SET_SERIAL_NUMBER", {"K-17"}},
        {"SHELF_MOVE", {1, 300}},
        {"SLAVE_JUMP", {17, 3}},
        {"STIRRING", {2, 300, true}},
        {"STIR_ALL", {QVariant::fromValue(QList<StirItem>{StirItem(12, 40)}), 1, false, 700}},
        {"STOP", {3, 2}},
        {"SW_PROCESS_TOGGLE", {2, 3, 4, 5}},
        {"TARE", {true, false}},
        {"TARE_SET", {12.5, 1}},
        {"TINT", {formula}},
        {"TOGGLE_TEMPORIZED", {false, 3, 60}},
        {"TURNTABLE_MOVE", {7, 2, 1, 90, 1, 50}},
        {"TURNTABLE_MOVE_STEPS", {1, 50, 1}}, // of one step, which is both the number and its digits
        {"TURNTABLE_MOVE_TO_REFILL", {7}},
        {"WEIGHT", {1, 2, 7.5}},
        {"WORKING_MODE", {3}},
        {"ZDR_ACTUATOR_MOVE", {9, 2, 3, 4, 5, 300}},
        {"ZDR_CYCLE_OPERATION", {3, 17, 245}},
        {"ZDR_SLAVE_PROCEDURE", {200, QVariant(List{300})}},
        {"ULTRASOUND_CLEAN", {4, 300}},
        {"UPDATE_FW", {QVariant::fromValue(FirmwareFiles{FirmwareFile("abc", {3, 4}, 2)})}},
    };
    // commands whose arguments travel in another shape over XML-RPC
    static const std::map<std::string, List> values = {
        {"CONFIG_PARAM", {3, 1, QVariantMap{{"config_params", QVariantMap{{"filling_time", 9.5}}}}}},
        {"CLONE_DISPENSER", {QVariantMap{{"disp_data", QVariantMap{{"disp_id", 3}}}}}},
        {"CLONE_MACHINE", {QVariantMap{{"machine_id", QVariant::fromValue(mixer).toMap()}}}},
        {"DELETE_DISPENSER", {QVariantMap{{"disp_id_list", List{3, 5}}}}},
        {"DELETE_MACHINE", {QVariantMap{{"machine_id_list", List{QVariant::fromValue(mixer).toMap()}}}}},
        {"SAVE_CONFIG",
         {QVariantMap{{"config_data", QVariantMap{{"configuration", configuration.toMap()},
                                                  {"update_board_config", true}}}}}},
        {"SAVE_DISP_CONFIG",
         {QVariantMap{{"disp_data", QVariantMap{{"dispenser_config", dispenser.toMap()},
                                                {"update_board_config", true},
                                                {"factory_config", false}}}}}},
        {"SAVE_MACHINE_CONFIG",
         {QVariantMap{{"config_data", QVariantMap{{"machine_config", dispenser.toMap()},
                                                  {"update_board_config", true},
                                                  {"factory_config", false}}}}}},
        {"ADD_EVENT",
         {QVariantMap{
             {"event_type", 0},
             {"stat_events",
              List{QVariantMap{{"timestamp", ""}, {"event_code", 7}, {"position_id", 3}, {"value", 2.5}}}}}}},
        {"ADD_STATS_ERRORS",
         {QVariantMap{{"error_list", List{QVariantMap{{"error_type", 1},
                                                      {"timestamp", "2026-03-02T09:15:30.250Z"},
                                                      {"code", "DE00337"},
                                                      {"text", "no command"}}}}}}},
        {"GET_CIRCUITS_STATUS", {QVariantMap{{"circuit_positions", List{2}}}}},
        {"GET_CMD_EST_EXEC_TIME", {QVariantMap{{"command", List{"GET_STATUS", 7}}}}},
        {"GET_QRCODE_CALIB", {QVariantMap{{"qr_code_density", 0}}}},
        {"GET_GRAV_SETTINGS", {QVariantMap{{"positions_id", List{2, 3}}}}},
        {"MIX",
         {QVariantMap{
             {"mixer_cycles",
              List{QVariantMap{
                  {"cycle_type", 2}, {"mixing_speed", 40}, {"clamping_force", 7}, {"duration", 300}}}}}}},
        {"MIXER_PLATES", {2, 300, 40, 7}},
        {"RESET_FW", {2, QVariantMap{{"board_addresses", List{3, 4}}}}},
        {"RES_FILE_MNGM",
         {QVariantMap{{"res_data", QVariantMap{{"subcmd", 2},
                                               {"res_index", 243},
                                               {"block_address", 300},
                                               {"data", QByteArray("12")}}}}}},
        {"RES_FILE_WRITE",
         {QVariant(List{QVariantMap{{"res_data_stream", QByteArray("12")},
                                    {"res_name", "P17.dmp"},
                                    {"res_type", 3},
                                    {"res_index", 4}}})}},
        {"SET_BT_SETTINGS",
         {QVariantMap{
             {"bt_enabled", true},
             {"bt_target_devices", List{QVariantMap{{"bt_name", "VELTO 1"}, {"bt_address", "00:11"}}}},
             {"bt_banned_devices", List{QVariantMap{{"bt_name", "VELTO 1"}, {"bt_address", "00:11"}}}}}}},
        {"SET_CALIB_LIST", {calibrations}},
        {"SET_CALIB_TEST_POINTS",
         {"C-17", QVariantMap{{"calib_tests", List{QVariantMap{{"target_quantity", 2.5},
                                                               {"quantity", 2.0},
                                                               {"steps", 800},
                                                               {"speed", 60},
                                                               {"nozzle_valve", 0}}}}}}},
        {"SET_QRCODE_CALIB", {QVariantMap{{"qr_code_calibration", "Q1;7"}}}},
        {"SET_RECALIB_LIST",
         {QVariantMap{
             {"calibrations_list", List{QVariantMap{{"position_id", 3}, {"calib_points", List{}}}}}}}},
        {"SET_CANISTER_LIST",
         {QVariantMap{{"canister_list",
                       List{QVariantMap{{"id", 3},
                                        {"enabled", true},
                                        {"colorant", ""},
                                        {"maximum", 0.0},
                                        {"current", 0.0},
                                        {"reserve", 0.0},
                                        {"warning", 0.0},
                                        {"activated", false},
                                        {"layout_positions", List()},
                                        {"circuits", List()}}}},
                      {"update_fw_config", true}}}},
        {"SET_COLORANT_LIST",
         {QVariantMap{{"colorant_list", List{QVariantMap{{"canister_id", 3},
                                                         {"colorant", QVariantMap{{"code", "B"},
                                                                                  {"name", ""},
                                                                                  {"enabled", true},
                                                                                  {"system_id", 0}}}}}}}}},
        {"SET_DRIVER_SETTINGS", {QVariantMap{{"driver_settings_hash", QVariantMap{{"AppProfile", "SHOP"}}}}}},
        {"SET_GRAV_SETTINGS", {QVariantMap{{"circuits_grav_settings", List{gravSettings}}}}},
        {"SET_SCALE_CONFIG", {QVariantMap{{"scale", scale}}}},
        {"STIR_ALL", {QVariant(List{QVariantMap{{"item", 12}, {"duration", 40}}}), 1, false, 700}},
        {"UPDATE_FW",
         {QVariant(List{QVariantMap{{"image", QByteArray("abc")},
                                    {"board_addresses", List{3, 4}},
                                    {"board_type", 2},
                                    {"parallel_send", false}}})}},
        {"WRITE_CONFIG_ROW", {QVariantMap{{"cmd_value", 7}, {"cmd_parameters", "1,100,2,3"}}}},
    };
    const auto value = values.find(row.name);
    if (form == ValueForm && value != values.end())
        return value->second;
    const auto own = arguments.find(row.name);
    if (own != arguments.end())
        return own->second;
    List ones;
    for (int i = 0; i < row.minParams; ++i)
        ones.append(1);
    return ones;
}

/** Which arguments a command reads: nearly all do in both forms, and what they have written themselves. */
enum class Reads { All, NotItsOwn, NoList, NothingOfAList };

Reads readsOf(const CommandRow &row)
{
    static const std::map<std::string, Reads> others = {
        {"BOARD_MEMORY", Reads::NothingOfAList}, // is asked for over XML-RPC
        {"RES_FILE_MNGM", Reads::NotItsOwn},     // a block of a file is written in another shape
        {"SAVE_MACHINE_CONFIG", Reads::NoList},  // a machine is saved over XML-RPC
        {"SLAVE_JUMP", Reads::NotItsOwn},        // the address of the slave is read, but never written
        {"WRITE_CONFIG_ROW", Reads::NoList},     // a row comes from a machine or a struct
    };
    const auto other = others.find(row.name);
    return other != others.end() ? other->second : Reads::All;
}

bool readsBack(const CommandRow &row)
{
    return readsOf(row) != Reads::NotItsOwn;
}

bool readsForm(const CommandRow &row, Form form)
{
    const Reads reads = readsOf(row);
    return form == ValueForm || (reads != Reads::NoList && reads != Reads::NothingOfAList);
}

Value valueOf(const List &list)
{
    Value value;
    value.setSize(list.size());
    for (int i = 0; i < list.size(); ++i)
        value[i] = EncodeXmlRpcVariant(list.at(i));
    return value;
}

const CommandRow &rowNamed(const std::string &name)
{
    for (const CommandRow &row : commandRows) {
        if (name == row.name)
            return row;
    }
    throw std::logic_error("no command " + name);
}

constexpr int dispenserID = 5;
constexpr int mixerID = 6;

struct Machines
{
    Machines()
    {
        dispenser.setId(dispenserID);
        mixer.setId(mixerID);
    }

    FW_Dispenser dispenser = testing_dispensing::dualHead();
    FW_Mixer mixer;
};

std::string className(const CommandPtr &command)
{
    if (!command)
        return "null";
    const ProtoCommand &object = *command;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(object).name(), nullptr, nullptr, nullptr), &std::free);
    return name.get();
}

/** Calls a dispatch operation in one of its forms; the value form gets the arguments as an XML-RPC array. */
template <class Args>
CommandPtr make(Dispatch operation, const QString &name, Args &args, const FW_Dispenser *dispenser,
                const FW_Mixer *mixer)
{
    switch (operation) {
    case Dispatch::Serial:
        return CommandPtr(Cmd::getSerialProtoCommand(name, args, dispenser));
    case Dispatch::DispenserSerial:
        return CommandPtr(Cmd::getDispenserSerialProtoCommand(name, args, dispenser));
    case Dispatch::MixerSerial:
        return CommandPtr(Cmd::getMixerSerialProtoCommand(name, args, mixer));
    case Dispatch::Config:
        return CommandPtr(Cmd::getConfigProtoCommand(name, args));
    case Dispatch::DispenserConfig:
        return CommandPtr(Cmd::getDispenserConfigProtoCommand(name, args, dispenser));
    case Dispatch::MixerConfig:
        return CommandPtr(Cmd::getMixerConfigProtoCommand(name, args, mixer));
    case Dispatch::Scale:
        return CommandPtr(Cmd::getScaleProtoCommand(name, args));
    }
    return {};
}

CommandPtr make(Dispatch operation, Form form, const QString &name, List args,
                const FW_Dispenser *dispenser = nullptr, const FW_Mixer *mixer = nullptr)
{
    if (form == ListForm)
        return make(operation, name, args, dispenser, mixer);
    Value value = valueOf(args);
    return make(operation, name, value, dispenser, mixer);
}

CommandPtr makeAny(Form form, const QString &name, List args, const FW_Machine *machine)
{
    if (form == ListForm)
        return CommandPtr(Cmd::getProtoCommand(name, args, machine));
    Value value = valueOf(args);
    return CommandPtr(Cmd::getProtoCommand(name, value, machine));
}

// ---------------------------------------------------------------- what is expected

/** What an operation makes for a name. */
struct Expected
{
    std::string className; ///< empty: it refuses
    Takes takes = Takes::Name;
    Dispatch madeBy = Dispatch::Serial; ///< the operation whose table has the row
};

std::string plainClass(Dispatch operation)
{
    switch (operation) {
    case Dispatch::Serial:
    case Dispatch::DispenserSerial:
    case Dispatch::MixerSerial:
        return "SerialProtoCommand";
    case Dispatch::Config:
    case Dispatch::DispenserConfig:
    case Dispatch::MixerConfig:
        return "ConfProtoCommand";
    case Dispatch::Scale:
        return "ScaleProtoCommand";
    }
    return {};
}

Expected expectedOf(Dispatch operation, Form form, const CommandRow &command)
{
    for (const FactoryRow &row : factoryRows) {
        if (row.operation == operation && (row.forms & form) != 0 && std::string(row.name) == command.name)
            return {row.className, row.takes, operation};
    }
    switch (operation) {
    case Dispatch::DispenserSerial:
    case Dispatch::MixerSerial:
        return expectedOf(Dispatch::Serial, form, command);
    case Dispatch::DispenserConfig:
    case Dispatch::MixerConfig:
        return expectedOf(Dispatch::Config, form, command);
    case Dispatch::Serial:
    case Dispatch::Config:
        return {plainClass(operation), Takes::Name, operation};
    case Dispatch::Scale:
        break;
    }
    return {{}, Takes::Nothing, operation};
}

/** The few classes that are not made without the machine that they are for. */
bool needsDispenser(const Expected &expected, Form form)
{
    return expected.className == "ChannelTintCmd" || expected.className == "PurgeFormulaCmd" ||
           (expected.className == "GenericFormulaCmd" && form == ValueForm);
}

int expectedMachine(const Expected &expected, bool isDispenser)
{
    if (expected.madeBy == Dispatch::Config || expected.madeBy == Dispatch::Scale)
        return 0;
    const bool kept = expected.takes == Takes::ArgumentsAndMachine;
    return !kept ? 0 : isDispenser ? dispenserID : mixerID;
}

int machineID(const CommandPtr &command)
{
    return command->machine() ? command->machine()->id() : 0;
}

std::string caption(Dispatch operation, Form form, const char *name)
{
    static const char *const names[] = {"serial",        "dispenser's serial",        "mixer's serial",
                                        "configuration", "dispenser's configuration", "mixer's configuration",
                                        "scale"};
    return std::string(names[static_cast<int>(operation)]) + (form == ValueForm ? ", value, " : ", list, ") +
           name;
}

// ---------------------------------------------------------------- the tables

TEST(CommandFactory, makesTheClassOfEachRowAndPlainCommandsOtherwise)
{
    const Machines machines;
    for (Dispatch operation : operations) {
        const bool ofMixer = operation == Dispatch::MixerSerial || operation == Dispatch::MixerConfig;
        for (Form form : forms) {
            for (const CommandRow &row : commandRows) {
                SCOPED_TRACE(caption(operation, form, row.name));
                const QString name = QString::fromLatin1(row.name);
                const List arguments = argumentsFor(row, form);
                const Expected expected = expectedOf(operation, form, row);
                if (expected.className.empty())
                    continue; // see refusesWhatNoScaleDoes
                const CommandPtr command =
                    make(operation, form, name, arguments, &machines.dispenser, &machines.mixer);
                EXPECT_EQ(className(command), expected.className);
                EXPECT_EQ(command->command(), name);
                EXPECT_EQ(machineID(command), expectedMachine(expected, !ofMixer));
                EXPECT_NE(command->machine(), &machines.dispenser) << "the machine is the caller's";
                EXPECT_NE(command->machine(), &machines.mixer) << "the machine is the caller's";
                const bool kept = expected.takes != Takes::Name && expected.takes != Takes::Nothing;
                const bool dropsList = form == ListForm && readsOf(row) == Reads::NothingOfAList;
                if (!kept || dropsList) {
                    EXPECT_EQ(command->parameters(), List()) << "arguments are dropped";
                } else if (form == ListForm && readsBack(row)) {
                    EXPECT_EQ(command->parameters().mid(0, arguments.size()), arguments);
                }
                EXPECT_FALSE(command->getProtoAnswer());
                EXPECT_FALSE(command->getXmlRpcAnswer());
            }
        }
    }
}

TEST(CommandFactory, makesTheSameWithoutAMachine)
{
    for (Dispatch operation : operations) {
        for (Form form : forms) {
            for (const CommandRow &row : commandRows) {
                const Expected expected = expectedOf(operation, form, row);
                if (expected.className.empty() || needsDispenser(expected, form))
                    continue;
                SCOPED_TRACE(caption(operation, form, row.name));
                const CommandPtr command =
                    make(operation, form, QString::fromLatin1(row.name), argumentsFor(row, form));
                EXPECT_EQ(className(command), expected.className);
                EXPECT_FALSE(command->machine());
            }
        }
    }
}

TEST(CommandFactory, leavesTheCallersArgumentsAlone)
{
    Value value = arrayOf(7);
    const CommandPtr ofValue(Cmd::getProtoCommand("GET_STATUS", value, nullptr));
    EXPECT_EQ(dumped(value), "[7]");
    List list = {7};
    const CommandPtr ofList(Cmd::getProtoCommand("GET_STATUS", list, nullptr));
    EXPECT_EQ(list, List({7}));
}

TEST(CommandFactory, hasSixRowsOnlyInTheListFormOfTheDriversCommands)
{
    const FW_Dispenser dispenser;
    const char *const names[] = {"SET_LEVELS",
                                 "CHECK_FORMULA_LEVELS",
                                 "GET_FORMULA_CIRCUITS",
                                 "GET_LOW_LEVEL_FORMULA",
                                 "GET_FORMULA_EXECUTION",
                                 "SET_SERIAL"};
    for (const char *text : names) {
        SCOPED_TRACE(text);
        const CommandRow &row = rowNamed(text);
        const QString name = QString::fromLatin1(text);
        const List arguments = argumentsFor(row, ListForm);

        const CommandPtr value = make(Dispatch::Config, ValueForm, name, arguments);
        EXPECT_EQ(className(value), "ConfProtoCommand") << "the row is not there";
        EXPECT_EQ(make(Dispatch::Config, ValueForm, name, {})->command(), name) << "nothing is counted";

        // the dispenser's table has them in the value form, and keeps the machine
        EXPECT_TRUE(make(Dispatch::DispenserConfig, ValueForm, name, arguments, &dispenser)->machine());
        EXPECT_FALSE(make(Dispatch::DispenserConfig, ListForm, name, arguments, &dispenser)->machine());
        EXPECT_THROW(make(Dispatch::DispenserConfig, ValueForm, name, {}, &dispenser), FW_Exception);
        EXPECT_THROW(make(Dispatch::DispenserConfig, ListForm, name, {}, &dispenser), FW_Exception);
        EXPECT_THROW(make(Dispatch::Config, ListForm, name, {}), FW_Exception);
    }
}

TEST(CommandFactory, keepsAllOfAClosedLinkInTheListFormForADispenser)
{
    const Machines machines;
    const List arguments = {3, QStringLiteral("x")};
    const CommandPtr list =
        make(Dispatch::DispenserConfig, ListForm, "CLOSE_SERIAL", arguments, &machines.dispenser);
    EXPECT_EQ(className(list), "ConfProtoCommand");
    EXPECT_EQ(list->parameters(), arguments);
    EXPECT_EQ(machineID(list), dispenserID);

    const CommandPtr value =
        make(Dispatch::DispenserConfig, ValueForm, "CLOSE_SERIAL", arguments, &machines.dispenser);
    EXPECT_EQ(className(value), "ConfProtoCommand");
    EXPECT_EQ(value->parameters(), List());
    EXPECT_FALSE(value->machine());

    const CommandPtr mixer =
        make(Dispatch::MixerConfig, ListForm, "CLOSE_SERIAL", arguments, nullptr, &machines.mixer);
    EXPECT_EQ(mixer->parameters(), List());
    EXPECT_FALSE(mixer->machine());
}

TEST(CommandFactory, handsTheMachineDownToTheGeneralTable)
{
    const Machines machines;
    const List arguments = argumentsFor(rowNamed("SET_SERIAL"), ListForm);
    for (Form form : forms) {
        SCOPED_TRACE(form == ValueForm ? "XML-RPC form" : "list form");
        const CommandPtr dispenser =
            make(Dispatch::DispenserSerial, form, "SET_SERIAL", arguments, &machines.dispenser);
        EXPECT_TRUE(dynamic_cast<const FW_Dispenser *>(dispenser->machine()));
        const CommandPtr mixer =
            make(Dispatch::MixerSerial, form, "SET_SERIAL", arguments, nullptr, &machines.mixer);
        EXPECT_TRUE(dynamic_cast<const FW_Mixer *>(mixer->machine()));
    }
}

TEST(CommandFactory, refusesWhatNoScaleDoes)
{
    constexpr char valueForm[] =
        "static ScaleProtoCommand* ProtoCommandList::getScaleProtoCommand(QString, XmlRpc::XmlRpcValue&)";
    constexpr char listForm[] =
        "static ScaleProtoCommand* ProtoCommandList::getScaleProtoCommand(QString, QList<QVariant>)";
    QStringList taken;
    for (const CommandRow &row : commandRows) {
        const QString name = QString::fromLatin1(row.name);
        if (!expectedOf(Dispatch::Scale, ListForm, row).className.empty()) {
            taken << name;
            continue;
        }
        SCOPED_TRACE(row.name);
        expectRefusal("DE02070", "Unknown command received", valueForm,
                      [&] { make(Dispatch::Scale, ValueForm, name, argumentsFor(row, ValueForm)); });
        expectRefusal("DE02080", "Unknown command received", listForm,
                      [&] { make(Dispatch::Scale, ListForm, name, argumentsFor(row, ListForm)); });
    }
    EXPECT_EQ(taken, QStringList({"WEIGHT", "TARE", "TARE_SET", "DISPLAY_STRING"}));
}

// ---------------------------------------------------------------- any kind of command

/** The operation that a command of any kind is made by: firmware first, then driver, then scale. */
Dispatch wayOf(const CommandRow &row)
{
    if (row.type == 7)
        return Dispatch::Scale;
    const bool serial = row.type == 0 || row.type == 2 || row.type == 3 || row.type == 5;
    switch (row.target) {
    case 1:
    case 5:
        return serial ? Dispatch::DispenserSerial : Dispatch::DispenserConfig;
    case 4:
        return serial ? Dispatch::MixerSerial : Dispatch::MixerConfig;
    default:
        return serial ? Dispatch::Serial : Dispatch::Config;
    }
}

TEST(CommandFactory, makesACommandOfAnyKindByItsKindAndTarget)
{
    const Machines machines;
    for (Form form : forms) {
        for (const CommandRow &row : commandRows) {
            SCOPED_TRACE(caption(wayOf(row), form, row.name));
            const QString name = QString::fromLatin1(row.name);
            const List arguments = argumentsFor(row, form);
            const Expected expected = expectedOf(wayOf(row), form, row);
            ASSERT_NE(expected.className, "");

            const bool forDispenser = row.target == 1 || row.target == 5;
            const CommandPtr onDispenser = makeAny(form, name, arguments, &machines.dispenser);
            EXPECT_EQ(className(onDispenser), expected.className);
            EXPECT_EQ(machineID(onDispenser), forDispenser ? expectedMachine(expected, true) : 0);

            if (needsDispenser(expected, form)) {
                EXPECT_THROW(makeAny(form, name, arguments, &machines.mixer), FW_Exception);
                EXPECT_THROW(makeAny(form, name, arguments, nullptr), FW_Exception);
                continue;
            }
            // a command for both kinds of machine goes on without the mixer
            const CommandPtr onMixer = makeAny(form, name, arguments, &machines.mixer);
            EXPECT_EQ(className(onMixer), expected.className);
            EXPECT_EQ(machineID(onMixer), row.target == 4 ? expectedMachine(expected, false) : 0);

            const CommandPtr alone = makeAny(form, name, arguments, nullptr);
            EXPECT_EQ(className(alone), expected.className);
            EXPECT_FALSE(alone->machine());
        }
    }
}

TEST(CommandFactory, prefersTheFirmwareForCommandsThatTheDriverSharesWithIt)
{
    for (Form form : forms) {
        for (const char *name : {"STOP", "SET_SERIAL", "CLOSE_SERIAL", "GET_DISPENSED_FORMULA"}) {
            const CommandPtr command =
                makeAny(form, QString::fromLatin1(name), argumentsFor(rowNamed(name), form), nullptr);
            EXPECT_TRUE(dynamic_cast<SerialProtoCommand *>(command.get())) << name;
            EXPECT_EQ(command->protoType(), 1) << name;
        }
        const CommandPtr stop = make(Dispatch::Config, form, "STOP", {});
        EXPECT_TRUE(dynamic_cast<ConfProtoCommand *>(stop.get())) << "asked for by its own operation";
    }
}

TEST(CommandFactory, makesPlainCommandsForNamesOutsideTheTables)
{
    const Machines machines;
    const List arguments = {1, 2};
    for (Form form : forms) {
        // a driver's command, but asked for as one of the firmware
        const CommandPtr serial =
            make(Dispatch::Serial, form, "GET_DRIVER_INFO", arguments, &machines.dispenser);
        EXPECT_EQ(className(serial), "SerialProtoCommand");
        EXPECT_EQ(serial->protoType(), 1);
        EXPECT_EQ(serial->command(), "GET_DRIVER_INFO");
        EXPECT_EQ(serial->parameters(), List());
        EXPECT_FALSE(serial->machine());

        const CommandPtr config = makeAny(form, "GET_DRIVER_SETTINGS", arguments, &machines.dispenser);
        EXPECT_EQ(className(config), "ConfProtoCommand");
        EXPECT_EQ(config->protoType(), 2);
        EXPECT_EQ(config->parameters(), List());
        EXPECT_FALSE(config->machine());

        // these have no class, and will have none
        for (const char *name : {"GET_CMD_ID", "ERRORS_NUM", "FW_SCAN", "FW_SCAN_START", "FW_SCAN_READ",
                                 "TINT2", "GET_CONN_STATUS", "SCALE_RESET"}) {
            const CommandPtr plain = makeAny(form, QString::fromLatin1(name), {}, nullptr);
            EXPECT_EQ(className(plain), plain->protoType() == 1 ? "SerialProtoCommand" : "ConfProtoCommand")
                << name << ": no argument is counted";
        }
    }
}

TEST(CommandFactory, makesADriversCommandWithoutArguments)
{
    const Machines machines;
    const CommandPtr list(Cmd::getConfigProtoCommand("GET_CIRCUIT_LIST", &machines.dispenser));
    EXPECT_EQ(className(list), className(make(Dispatch::DispenserConfig, ListForm, "GET_CIRCUIT_LIST", {})));
    EXPECT_EQ(list->command(), "GET_CIRCUIT_LIST");
    const CommandPtr mixers(Cmd::getConfigProtoCommand("GET_MIXER_LIST", &machines.mixer));
    EXPECT_EQ(className(mixers), className(make(Dispatch::MixerConfig, ListForm, "GET_MIXER_LIST", {})));
    EXPECT_EQ(mixers->command(), "GET_MIXER_LIST");

    // the row that keeps its machine tells that the dispenser, and no mixer, is handed on
    const CommandPtr kept(Cmd::getConfigProtoCommand("CLOSE_SERIAL", &machines.dispenser));
    EXPECT_EQ(machineID(kept), dispenserID);
    EXPECT_EQ(kept->parameters(), List());
    const CommandPtr wrongKind(Cmd::getConfigProtoCommand("CLOSE_SERIAL", &machines.mixer));
    EXPECT_FALSE(wrongKind->machine());
    const CommandPtr none(Cmd::getConfigProtoCommand("CLOSE_SERIAL", static_cast<FW_Machine *>(nullptr)));
    EXPECT_FALSE(none->machine());

    expectRefusal(
        "DE00313", "GET_CMD_EST_EXEC_TIME command : expected at least 1 parameters, received 0 instead!",
        "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)",
        [&] { CommandPtr(Cmd::getConfigProtoCommand("GET_CMD_EST_EXEC_TIME", &machines.dispenser)); });
    for (const char *name : {"GET_DRIVER_SETTINGS", "GET_SW_VERSION", "NO_COMMAND", ""}) {
        SCOPED_TRACE(name);
        expectRefusal(
            "DE03010", "Command has no target machine",
            "static ConfProtoCommand* ProtoCommandList::getConfigProtoCommand(QString, const FW_Machine*)",
            [&] { CommandPtr(Cmd::getConfigProtoCommand(QString::fromLatin1(name), &machines.dispenser)); });
    }
}

// ---------------------------------------------------------------- refusals

/** An operation in one form: what it is called, and its codes. */
struct Operation
{
    Dispatch dispatch;
    Form form;
    const char *name; ///< a command of its own table
    const char *foreignCode;
    const char *foreignText;
    const char *function;
    const char *unknownCode;
    const char *unknownFunction; ///< of the operation at the end of the chain
};

constexpr char serialOfValue[] = "static SerialProtoCommand* ProtoCommandList::getSerialProtoCommand("
                                 "QString, XmlRpc::XmlRpcValue&, const FW_Machine*)";
constexpr char serialOfList[] = "static SerialProtoCommand* ProtoCommandList::getSerialProtoCommand("
                                "QString, QList<QVariant>, const FW_Machine*)";
constexpr char configOfValue[] =
    "static ConfProtoCommand* ProtoCommandList::getConfigProtoCommand(QString, XmlRpc::XmlRpcValue&)";
constexpr char configOfList[] =
    "static ConfProtoCommand* ProtoCommandList::getConfigProtoCommand(QString, QList<QVariant>)";
constexpr char scaleOfValue[] =
    "static ScaleProtoCommand* ProtoCommandList::getScaleProtoCommand(QString, XmlRpc::XmlRpcValue&)";
constexpr char scaleOfList[] =
    "static ScaleProtoCommand* ProtoCommandList::getScaleProtoCommand(QString, QList<QVariant>)";

constexpr Operation allOperations[] = {
    {Dispatch::Serial, ValueForm, "SET_SERIAL", "DE02233",
     "Errors during serial protocol command xml-rpc decoding", serialOfValue, "DE02547", serialOfValue},
    {Dispatch::Serial, ListForm, "SET_SERIAL", "DE02220",
     "Errors during serial protocol command parmeters decoding", serialOfList, "DE02536", serialOfList},
    {Dispatch::DispenserSerial, ValueForm, "GET_STATUS", "DE00148",
     "Errors during serial protocol command xml-rpc decoding",
     "static SerialProtoCommand* ProtoCommandList::getDispenserSerialProtoCommand("
     "QString, XmlRpc::XmlRpcValue&, const FW_Dispenser*)",
     "DE02547", serialOfValue},
    {Dispatch::DispenserSerial, ListForm, "GET_STATUS", "DE00146",
     "Errors during serial protocol command parmeters decoding",
     "static SerialProtoCommand* ProtoCommandList::getDispenserSerialProtoCommand("
     "QString, QList<QVariant>, const FW_Dispenser*)",
     "DE02536", serialOfList},
    {Dispatch::MixerSerial, ValueForm, "MIX", "DE02524",
     "Errors during serial protocol command parmeters decoding",
     "static SerialProtoCommand* ProtoCommandList::getMixerSerialProtoCommand("
     "QString, XmlRpc::XmlRpcValue&, const FW_Mixer*)",
     "DE02547", serialOfValue},
    {Dispatch::MixerSerial, ListForm, "MIX", "DE02522",
     "Errors during serial protocol command parmeters decoding",
     "static SerialProtoCommand* ProtoCommandList::getMixerSerialProtoCommand("
     "QString, QList<QVariant>, const FW_Mixer*)",
     "DE02536", serialOfList},
    {Dispatch::Config, ValueForm, "GET_CONFIG", "DE00345",
     "Errors during configuration protocol command xml-rpc decoding", configOfValue, "DE00344",
     configOfValue},
    {Dispatch::Config, ListForm, "GET_CONFIG", "DE00336",
     "Errors during configuration protocol command parameters decoding", configOfList, "DE00335",
     configOfList},
    {Dispatch::DispenserConfig, ValueForm, "SET_DM_DATA", "DE02551",
     "Errors during configuration protocol command xml-rpc decoding",
     "static ConfProtoCommand* ProtoCommandList::getDispenserConfigProtoCommand("
     "QString, XmlRpc::XmlRpcValue&, const FW_Dispenser*)",
     "DE00344", configOfValue},
    {Dispatch::DispenserConfig, ListForm, "SET_DM_DATA", "DE02549",
     "Errors during configuration protocol command parameters decoding",
     "static ConfProtoCommand* ProtoCommandList::getDispenserConfigProtoCommand("
     "QString, QList<QVariant>, const FW_Dispenser*)",
     "DE00335", configOfList},
    {Dispatch::MixerConfig, ValueForm, "GET_CMD_EST_EXEC_TIME", "DE02558",
     "Errors during configuration protocol command xml-rpc decoding",
     "static ConfProtoCommand* ProtoCommandList::getMixerConfigProtoCommand("
     "QString, XmlRpc::XmlRpcValue&, const FW_Mixer*)",
     "DE00344", configOfValue},
    {Dispatch::MixerConfig, ListForm, "GET_CMD_EST_EXEC_TIME", "DE02556",
     "Errors during configuration protocol command variant decoding",
     "static ConfProtoCommand* ProtoCommandList::getMixerConfigProtoCommand("
     "QString, QList<QVariant>, const FW_Mixer*)",
     "DE00335", configOfList},
    {Dispatch::Scale, ValueForm, "WEIGHT", "DE02082", "Errors during scale protocol command xml-rpc decoding",
     scaleOfValue, "DE02070", scaleOfValue},
    {Dispatch::Scale, ListForm, "WEIGHT", "DE02081", "Errors during scale protocol command decoding",
     scaleOfList, "DE02080", scaleOfList},
};

const QStringList unknownNames = {QString(), QStringLiteral("NO_COMMAND"), QStringLiteral("tint"),
                                  QStringLiteral("GET_STATUS "), QStringLiteral("ÄÖ")};

TEST(CommandFactoryRefusals, tellAnUnknownName)
{
    const Machines machines;
    for (const Operation &operation : allOperations) {
        for (const QString &name : unknownNames) {
            SCOPED_TRACE(caption(operation.dispatch, operation.form, name.toUtf8().constData()));
            expectRefusal(operation.unknownCode, "Unknown command received", operation.unknownFunction, [&] {
                make(operation.dispatch, operation.form, name, {1}, &machines.dispenser, &machines.mixer);
            });
        }
    }
}

TEST(CommandFactoryRefusals, tellANameOfNoKind)
{
    const Machines machines;
    for (const FW_Machine *machine :
         {static_cast<const FW_Machine *>(nullptr), static_cast<const FW_Machine *>(&machines.dispenser),
          static_cast<const FW_Machine *>(&machines.mixer)}) {
        for (const QString &name : unknownNames) {
            SCOPED_TRACE(name.toStdString());
            expectRefusal("DE00337", "Command type not recognized",
                          "static ProtoCommand* ProtoCommandList::getProtoCommand("
                          "QString, XmlRpc::XmlRpcValue&, const FW_Machine*)",
                          [&] { makeAny(ValueForm, name, {1}, machine); });
            expectRefusal("DE00441", "Command type not recognized",
                          "static ProtoCommand* ProtoCommandList::getProtoCommand("
                          "QString, QList<QVariant>, const FW_Machine*)",
                          [&] { makeAny(ListForm, name, {1}, machine); });
        }
    }
}

TEST(CommandFactoryRefusals, turnAShortageOfMemoryIntoTheOperationsCode)
{
    for (const Operation &operation : allOperations) {
        SCOPED_TRACE(caption(operation.dispatch, operation.form, operation.name));
        List list = argumentsFor(rowNamed(operation.name), operation.form);
        Value value = valueOf(list);
        const QString name = QString::fromLatin1(operation.name);
        const auto work = [&] {
            return operation.form == ValueForm ? make(operation.dispatch, name, value, nullptr, nullptr)
                                               : make(operation.dispatch, name, list, nullptr, nullptr);
        };
        ASSERT_TRUE(work()) << "without a shortage it is made";
        expectRefusal(operation.foreignCode, operation.foreignText, operation.function,
                      [&] { outOfMemoryOnce(work); });
        ASSERT_TRUE(work()) << "the next one is made again";
    }
}

TEST(CommandFactoryRefusals, passOnWhatTheOperationInTheMiddleSays)
{
    // a command of any kind is made by another operation, whose own refusal it tells
    List list;
    Value value = valueOf({});
    const CommandPtr ofList(Cmd::getProtoCommand("GET_STATUS", list, nullptr));
    const CommandPtr ofValue(Cmd::getProtoCommand("GET_STATUS", value, nullptr));
    expectRefusal(
        "DE00148", "Errors during serial protocol command xml-rpc decoding", allOperations[2].function, [&] {
            outOfMemoryOnce([&] { return CommandPtr(Cmd::getProtoCommand("GET_STATUS", value, nullptr)); });
        });
    expectRefusal("DE00146", "Errors during serial protocol command parmeters decoding",
                  allOperations[3].function, [&] {
                      outOfMemoryOnce(
                          [&] { return CommandPtr(Cmd::getProtoCommand("GET_STATUS", list, nullptr)); });
                  });
}

/** A machine that cannot be copied. */
template <class Machine>
class UncopyableMachine : public Machine
{
public:
    explicit UncopyableMachine(std::function<void()> fail) : m_fail(std::move(fail)) {}

    UncopyableMachine *clone() const override
    {
        m_fail();
        return nullptr;
    }

private:
    std::function<void()> m_fail;
};

const std::function<void()> foreignFailures[] = {
    [] { throw std::runtime_error("not to be copied"); },
    [] { throw 7; },
    [] { throw FW_DriverError("DE09999", "an error, but no exception of the framework"); },
    [] { throw XmlRpc::XmlRpcException("type error"); },
};

TEST(CommandFactoryRefusals, turnWhatAMachineThrowsIntoTheOperationsCode)
{
    for (const auto &fail : foreignFailures) {
        const UncopyableMachine<FW_Dispenser> dispenser(fail);
        const UncopyableMachine<FW_Mixer> mixer(fail);
        for (const Operation &operation : allOperations) {
            const bool copies = operation.dispatch == Dispatch::Serial ||
                                operation.dispatch == Dispatch::DispenserConfig ||
                                operation.dispatch == Dispatch::MixerConfig;
            const char *name = operation.dispatch == Dispatch::DispenserSerial ? "TINT" : operation.name;
            if (!copies && operation.dispatch != Dispatch::DispenserSerial)
                continue;
            SCOPED_TRACE(caption(operation.dispatch, operation.form, name));
            expectRefusal(operation.foreignCode, operation.foreignText, operation.function, [&] {
                make(operation.dispatch, operation.form, QString::fromLatin1(name), {1, 1, 1}, &dispenser,
                     &mixer);
            });
        }
    }
}

TEST(CommandFactoryRefusals, passOnWhatAMachineThrowsAsAnException)
{
    const auto fail = [] { throw FW_Exception("DE09998", "No copies", "FW_Dispenser::clone() const"); };
    const UncopyableMachine<FW_Dispenser> dispenser(fail);
    for (Form form : forms) {
        SCOPED_TRACE(form == ValueForm ? "XML-RPC form" : "list form");
        expectRefusal("DE09998", "No copies", "FW_Dispenser::clone() const",
                      [&] { make(Dispatch::DispenserSerial, form, "TINT", {1}, &dispenser); });
        expectRefusal("DE09998", "No copies", "FW_Dispenser::clone() const",
                      [&] { makeAny(form, "TINT", {1}, &dispenser); });
    }
}

TEST(CommandFactoryRefusals, passOnWhatAConstructorThrows)
{
    constexpr char ofValue[] =
        "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)";
    constexpr char ofList[] = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)";
    constexpr char tooFew[] = "TINT command : expected at least 1 parameters, received 0 instead!";
    expectRefusal("DE00313", tooFew, ofList, [] { makeAny(ListForm, "TINT", {}, nullptr); });
    expectRefusal("DE00312", tooFew, ofValue, [] { makeAny(ValueForm, "TINT", {}, nullptr); });
    expectRefusal("DE00313", tooFew, ofList, [] { make(Dispatch::DispenserSerial, ListForm, "TINT", {}); });
    expectRefusal("DE00312", tooFew, ofValue, [] { make(Dispatch::DispenserSerial, ValueForm, "TINT", {}); });

    for (Value scalar : {Value(1), Value("text"), Value(true), structOf({{"a", Value(1)}})}) {
        SCOPED_TRACE(dumped(scalar));
        for (const char *name : {"TINT", "GET_STATUS", "WEIGHT"}) {
            SCOPED_TRACE(name);
            expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type", ofValue, [&] {
                CommandPtr(Cmd::getProtoCommand(QString::fromLatin1(name), scalar, nullptr));
            });
        }
    }
    for (const char *name : {"TINT", "GET_STATUS", "WEIGHT"}) {
        SCOPED_TRACE(name);
        Value empty;
        expectRefusal("DE00571", "ProtoCommand decoding failed: invalid xml-rpc type", ofValue,
                      [&] { CommandPtr(Cmd::getProtoCommand(QString::fromLatin1(name), empty, nullptr)); });
    }
    expectRefusal("DE00298", "Position ID: expected INT parameter",
                  "DispenserStatusCmd::DispenserStatusCmd(const XmlRpc::XmlRpcValue&)",
                  [] { makeAny(ValueForm, "GET_STATUS", {true}, nullptr); });
    expectRefusal("DE00300", "Position ID: expected INT parameter",
                  "DispenserStatusCmd::DispenserStatusCmd(QList<QVariant>)",
                  [] { makeAny(ListForm, "GET_STATUS", {true}, nullptr); });
}

TEST(CommandFactoryRefusals, ignoreWhatAPlainCommandDoesNotRead)
{
    Value noArray("text");
    EXPECT_EQ(className(CommandPtr(Cmd::getProtoCommand("GET_DRIVER_INFO", noArray, nullptr))),
              "ConfProtoCommand");
    Value empty;
    EXPECT_EQ(className(CommandPtr(Cmd::getProtoCommand("GET_ERRORS", empty, nullptr))),
              "SerialProtoCommand");
}

// ---------------------------------------------------------------- the contract of every command

/** The arguments of a request: all after the name. */
List argumentsOf(const Value &request)
{
    List list;
    for (int i = 1; i < request.size(); ++i)
        list.append(DecodeXmlRpcVariant(request[i]));
    return list;
}

TEST(EveryCommand, canBeMadeWrittenAndReadBack)
{
    const Machines machines;
    for (Form form : forms) {
        for (const CommandRow &row : commandRows) {
            if (!readsForm(row, form))
                continue;
            SCOPED_TRACE(caption(wayOf(row), form, row.name));
            const QString name = QString::fromLatin1(row.name);
            const FW_Machine *machine = &machines.dispenser;
            if (row.target == 4)
                machine = &machines.mixer;
            const List given = argumentsFor(row, form);
            const CommandPtr command = makeAny(form, name, given, machine);

            bool ok = false;
            const Value request = command->toXmlRpcValue(QString(), &ok);
            ASSERT_TRUE(ok);
            ASSERT_EQ(request.getType(), Value::TypeArray);
            ASSERT_GE(request.size(), 1);
            EXPECT_EQ(dumped(request[0]), '"' + std::string(row.name) + '"');

            const bool plain = className(command) == plainClass(wayOf(row));
            if (plain) {
                EXPECT_EQ(request.size(), 1) << "a plain command has no arguments to write";
                continue;
            }
            const CommandPtr copy(command->clone());
            EXPECT_EQ(className(copy), className(command));
            EXPECT_EQ(dumped(copy->toXmlRpcValue(QString())), dumped(request));
            if (!readsBack(row))
                continue;
            const List written = argumentsOf(request);
            const List sent = argumentsFor(row, ValueForm);
            for (int i = 0; i < sent.size(); ++i)
                EXPECT_EQ(written.value(i), sent.at(i)) << i;
            for (Form back : forms) {
                SCOPED_TRACE(back == ValueForm ? "back in XML-RPC form" : "back in list form");
                if (!readsForm(row, back))
                    continue;
                const CommandPtr again =
                    makeAny(back, name, back == ValueForm ? written : command->parameters(), machine);
                EXPECT_EQ(className(again), className(command));
                EXPECT_EQ(again->command(), name);
                EXPECT_EQ(again->protoType(), command->protoType());
                EXPECT_EQ(dumped(again->toXmlRpcValue(QString())), dumped(request));
                EXPECT_EQ(again->parameters(), command->parameters());
            }
        }
    }
}

TEST(EveryCommand, tellsTheNameAfterTheLeadingText)
{
    const Machines machines;
    for (const CommandRow &row : commandRows) {
        SCOPED_TRACE(row.name);
        const CommandPtr command = makeAny(ListForm, QString::fromLatin1(row.name),
                                           argumentsFor(row, ListForm), &machines.dispenser);
        const Value request = command->toXmlRpcValue("user");
        ASSERT_GE(request.size(), 2);
        EXPECT_EQ(dumped(request[0]), "\"user\"");
        EXPECT_EQ(dumped(request[1]), '"' + std::string(row.name) + '"');
    }
}

} // namespace
