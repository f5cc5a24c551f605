// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandexample.h"

#include "argumentwords.h"
#include "machines.h"

#include "base/protocommand.h"
#include "base/requestarguments_p.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_error.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <cstddef>
#include <memory>

namespace quv {

namespace {

struct Sample
{
    const char *of;
    const char *json;
};

constexpr char formula[] = R"({"formula_type":4,"quantity_unit":3,"ids":["B","KX"],"quantities":[12.5,0.3]})";
constexpr char circuits[] =
    R"({"exec_criterion":1,"target_circuits":[{"position_id":2,"queue_id":0,"speed":50,"strokes":3}]})";

/// A value of each type, for arguments of which no more is known.
constexpr Sample samplesOfTypes[] = {
    {"int", "1"},
    {"bool", "true"},
    {"double", "12.5"},
    {"string", R"("text")"},
    {"array of ints", "[1,2]"},
    {"array of strings", R"(["B","KX"])"},
    {"formula", formula},
    {"circuit list", circuits},
};

/// The arguments of commands for which their types do not tell enough.
constexpr Sample samplesOfCommands[] = {
    {"GET_STATUS", "[3]"},
    {"GET_CALIB_LIST", "[3,true]"},
    {"GET_CIRCUITS_STATUS", R"([{"circuit_positions":[2,3]}])"},
    {"GET_ERROR_PKT", "[]"}, // quvctl cannot send what the command does not write
    {"GET_CMD_STATUS", R"(["08c07d1b-0c86-482f-89f7-e64569cd7441"])"},
    {"GET_CMD_EST_EXEC_TIME", R"([{"command":["RESET"]}])"},
    {"READ_CONFIG_ROW", "[7,1]"},
    {"RESET_FW", R"([2,{"board_addresses":[3,4]}])"},
    {"SLAVE_JUMP", "[12,2]"},
    {"UPDATE_FW", R"([[{"board_type":2,"board_addresses":[3,4],"image":{"$base64":"AP8="}}]])"},
    {"WRITE_CONFIG_ROW", R"([{"cmd_value":7,"cmd_parameters":"1,60,10,40"}])"},
    {"PRIMING", R"([{"formula_type":1,"quantity_unit":2,"ids":[2,3],"quantities":[3,3]}])"},
    {"PACK", R"([0,{"formula_type":1,"quantity_unit":2,"ids":[2,3],"quantities":[1,1]}])"},
    {"MIX", R"([{"mixer_cycles":[{"cycle_type":1,"mixing_speed":-1,"clamping_force":5,"duration":60}]}])"},
    {"MIXER_PLATES", "[1,60515,245,0]"},
    {"LOGIN", R"([1,"till",0,1])"},
    {"GET_KEY", R"(["08c07d1b","38"])"},
    {"CERTIFY_SESSION", R"(["08c07d1b","28"])"},
    {"GET_DISP_STATUS", "[]"},
    {"GET_CONNECTIONS", R"([{"conn_type":1,"bt_conn_filter":0}])"},
    {"RES_FILE_MNGM", R"([{"res_data":{"subcmd":1,"res_index":243,"block_address":0,"data":""}}])"},
    {"RES_FILE_WRITE",
     R"([[{"res_data_stream":"1,60,10","res_name":"P1234.cmp","res_type":1,"res_index":0}]])"},
    {"SET_DRIVER_SETTINGS", R"([{"driver_settings_hash":{"AppProfile":"SHOP","SerialConnScanFreq":10000}}])"},
    {"SET_CANISTER_LIST",
     R"([{"canister_list":[{"id":3,"colorant":"B","maximum":3000,"current":1500,"reserve":150,"warning":300}],"update_fw_config":false}])"},
    {"SET_COLORANT_LIST", R"([{"colorant_list":[{"canister_id":3,"colorant":{"code":"B","name":"Blue"}}]}])"},
    {"SET_BT_SETTINGS",
     R"([{"bt_enabled":true,"bt_target_devices":[{"bt_name":"VELTO_5G 7","bt_address":"00:1A:7D:DA:71:13"}],"bt_banned_devices":[]}])"},
    {"GET_CONFIG", "[0]"},
    {"SAVE_CONFIG",
     R"([{"config_data":{"configuration":{"machines":[{"type":"mixer","id":2,"machine_model":100}],"active_mixer":2},"update_board_config":false}}])"},
    {"SAVE_DISP_CONFIG",
     R"([{"disp_data":{"dispenser_config":{"type":"dispenser","id":1,"machine_model":6},"update_board_config":true,"factory_config":false}}])"},
    {"SAVE_MACHINE_CONFIG",
     R"([{"config_data":{"machine_config":{"type":"mixer","id":2,"machine_model":100},"update_board_config":true,"factory_config":false}}])"},
    {"CLONE_DISPENSER", R"([{"disp_data":{"disp_id":1}}])"},
    {"CLONE_MACHINE", R"([{"machine_id":{"id":2,"machine":4}}])"},
    {"DELETE_DISPENSER", R"([{"disp_id_list":[3,5]}])"},
    {"DELETE_MACHINE", R"([{"machine_id_list":[{"id":2,"machine":4}]}])"},
    {"SET_ACTIVE_DISP", "[3,1]"},
    {"SET_ACTIVE_MACHINE", R"([{"id":2,"machine":4},{"id":1,"machine":4}])"},
    {"GET_QRCODE_CALIB", R"([{"qr_code_density":1}])"},
    {"GET_RECALIB_LIST", "[3,true]"},
    {"SET_CALIB_LIST",
     R"([{"calibrations_list":[{"position_id":3,"pump_info":{"max_speed":100},)"
     R"("circuit_calibrations":[{"points":[{"steps":400,"quantity":1.0,"speed":60}]}]}]}])"},
    {"SET_CALIB_PROFILES", R"([{"pumps":[{"id":1,"max_speed":100}]},true,false])"},
    {"SET_CALIB_TEST_POINTS",
     R"(["C-17",{"calib_tests":[{"target_quantity":2.5,"quantity":2.48,"steps":1000,"speed":60}]}])"},
    {"SET_QRCODE_CALIB", R"([{"qr_code_calibration":"Q1;7"}])"},
    {"SET_RECALIB_LIST", R"([{"calibrations_list":[{"position_id":3,"calib_points":)"
                         R"([{"calib_point_id":1,"disp_quantity":1.02,"disp_steps":400,"speed":60}]}]}])"},
    {"STIRRING", "[3,60]"},
    {"RECIRCULATION", "[3,60,50]"},
    {"STIR_ALL", R"([[{"item":3,"duration":60},{"item":4,"duration":60}],0,false,500])"},
    {"CLEANING", "[1,50,30]"},
    {"NOZZLE_CLEAN", "[3,60515]"},
    {"ULTRASOUND_CLEAN", "[2,300]"},
    {"STOP", "[]"},
    {"PAUSE", "[500]"},
    {"WORKING_MODE", "[1]"},
    {"TOGGLE_TEMPORIZED", "[true,3,120]"},
    {"SET_DISP_OUTPUT", "[3,1,2]"},
    {"SET_BOARD_POWER", "[3,1,2]"},
    {"SET_LED_STATUS", R"([1,0,"#ff00ff00"])"},
    {"SW_PROCESS_TOGGLE", "[1,1,0,0]"},
    {"MOTOR_RUNNING", "[3,300]"},
    {"GET_LEVEL_SENSORS", "[[2,3]]"},
    {"DEEP_SERVICE", R"([0,12,"0006",[]])"},
    {"PURGE", R"([{"purge_quantity":2.5,"quantity_unit":3,"only_filled":true,"head":0}])"},
    {"SHELF_MOVE", "[0,300]"},
    {"GET_SHELF_POS", "[3]"},
    {"CONFIG_PARAM", R"([0,1,{"config_params":{"ultrasound_duration":40}}])"},
    {"SET_CIRCUIT_MAX_SPEED", "[2,120,true]"},
    {"SET_DISP_DATA", R"(["till 2"])"},
    {"SET_DISP_ID", "[1,2]"},
    {"SET_DM_DATA", R"([2,"P-1704"])"},
    {"SET_SERIAL_NUMBER", R"(["D-1704"])"},
    {"SET_SERIAL", R"([{"conn_type":0,"conn_name":"/dev/ttyS1","conn_address":""}])"},
    {"TURNTABLE_MOVE", "[4,1,2,0,0,50]"},
    {"TURNTABLE_MOVE_STEPS", "[2,50,300]"},
    {"TURNTABLE_MOVE_TO_REFILL", "[4]"},
    {"BOARD_MEMORY", R"(["R","B",1,0,16,4])"},
    {"CLEAR_BOARD_STATS", "[2,[3]]"},
    {"GET_LAST_BOARD_STATS", "[2,[3]]"},
    {"GET_REAL_BOARD_STATS", "[2,[3]]"},
    {"SET_BOARD_STATS", R"([2,[{"position_id":3,"count":12000}]])"},
    {"WEIGHT", "[0,0,10.0]"},
    {"TARE_SET", "[12.5,0]"},
    {"SET_SCALE_CONFIG",
     R"([{"scale":{"scale_model":"Libra 6","scale_port":{"conn_type":0,"conn_name":"/dev/ttyS1","conn_address":""},"scale_unit":0,"max_weight":6200.0,"precision":2}}])"},
    {"GET_GRAV_SETTINGS", R"([{"positions_id":[2,3]}])"},
    {"SET_GRAV_SETTINGS",
     R"([{"circuits_grav_settings":[{"position_id":3,"tolerance":0.05,"max_corrections":3}]}])"},
    {"GE_TEST",
     R"([{"current_scale_weight":12.5,"driver_GE_settings":{"tolerance":0.05,"max_corrections":3}}])"},
    {"ADD_EVENT",
     R"([{"event_type":1,"stat_events":[{"timestamp":"2026-03-02T09:15:00.000Z","canister_id":4,"colorant_code":"KX","previous_quantity":120.5,"current_quantity":2000.0}]}])"},
    {"ADD_STATS_ERRORS",
     R"([{"error_list":[{"error_type":2,"timestamp":"2026-03-02T09:15:00.000Z","code":17,"module":3,"value":4,"flag":true,"device":1}]}])"},
    {"GET_STATS_ERRORS", R"([2,3,"17"])"},
    {"GET_COL_USAGE_STATS", R"(["VT-1704","KX","from|to|dispensed",12])"},
    {"ZDR_CYCLE_OPERATION", "[2,0,0]"},
    {"ZDR_ACTUATOR_MOVE", "[1,245,0,64,245,300]"},
    {"ZDR_SLAVE_PROCEDURE", "[100,[300]]"},
};

template <std::size_t N>
std::optional<OrderedJson> sampleOf(const QString &name, const Sample (&samples)[N])
{
    for (const Sample &sample : samples)
        if (name == QLatin1String(sample.of))
            return OrderedJson::parse(sample.json);
    return std::nullopt;
}

/// Null when the command would not take the arguments.
std::unique_ptr<ProtoCommand> madeOf(const CommandFacts &command, XmlRpc::XmlRpcValue arguments,
                                     const char *machine)
{
    try {
        return std::unique_ptr<ProtoCommand>(ProtoCommandList::getProtoCommand(
            command.name, arguments, machineByName(QLatin1String(machine)).get()));
    } catch (const FW_DriverError &) {
        return nullptr;
    }
}

/// Whether the driver would make the command of what quvctl sends. A plain one only counts its arguments.
bool canBeSent(const CommandFacts &command, const ProtoCommand &made, const char *machine)
{
    return command.className.isEmpty() ||
           madeOf(command, argumentsIn(made.toXmlRpcValue(QString())), machine) != nullptr;
}

/// As a shell's word.
QString quoted(QString word)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_=.,:+-]+$"));
    if (plain.match(word).hasMatch())
        return word;
    word.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + word + QLatin1Char('\'');
}

/// The value as quvctl reads it back from a word.
QString wordOf(const OrderedJson &value)
{
    if (value.is_string()) {
        auto text = QString::fromStdString(value.get<std::string>());
        if (argumentFromWord(text) == nlohmann::json(value))
            return text;
    }
    return QString::fromStdString(writeJson(value));
}

QString shellCall(const CommandFacts &command, const OrderedJson &arguments)
{
    QString words = QStringLiteral("quvctl call ") + command.name;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const QString name = command.arguments.value(static_cast<int>(i)).name;
        words += QLatin1Char(' ') +
                 quoted((name.isEmpty() ? name : name + QLatin1Char('=')) + wordOf(arguments[i]));
    }
    return words;
}

QString pythonOf(const OrderedJson &value)
{
    QStringList parts;
    if (value.is_boolean())
        return value.get<bool>() ? QStringLiteral("True") : QStringLiteral("False");
    if (value.is_array()) {
        for (const OrderedJson &element : value)
            parts.append(pythonOf(element));
        return QLatin1Char('[') + parts.join(QStringLiteral(", ")) + QLatin1Char(']');
    }
    if (value.is_object() && value.contains("$base64")) {
        const auto base64 = QByteArray::fromStdString(value["$base64"].get<std::string>());
        return QStringLiteral("xmlrpc.client.Binary(bytes.fromhex(\"%1\"))")
            .arg(QString::fromLatin1(QByteArray::fromBase64(base64).toHex()));
    }
    if (value.is_object()) {
        for (const auto &[key, member] : value.items())
            parts.append(pythonOf(key) + QStringLiteral(": ") + pythonOf(member));
        return QLatin1Char('{') + parts.join(QStringLiteral(", ")) + QLatin1Char('}');
    }
    return QString::fromStdString(writeJson(value));
}

QString pythonCall(const QString &command, const OrderedJson &arguments)
{
    QStringList parts{pythonOf(command.toStdString())};
    for (const OrderedJson &argument : arguments)
        parts.append(pythonOf(argument));
    return QStringLiteral("driver.EXEC_B(%1)").arg(parts.join(QStringLiteral(", ")));
}

} // namespace

const char *const pythonPreparation = "import xmlrpc.client\n"
                                      "\n"
                                      "driver = xmlrpc.client.ServerProxy(\"http://127.0.0.1:9333\")\n";

std::optional<OrderedJson> sampleArguments(const CommandFacts &command)
{
    if (auto arguments = sampleOf(command.name, samplesOfCommands))
        return arguments;
    if (command.arguments.isEmpty() && ProtoCommandList::cmdParamNum(command.name, true) > 0)
        return std::nullopt;
    OrderedJson arguments = OrderedJson::array();
    for (const ArgumentFacts &argument : command.arguments) {
        const auto sample = sampleOf(argument.type, samplesOfTypes);
        if (!sample)
            return std::nullopt;
        arguments.push_back(*sample);
    }
    return arguments;
}

std::optional<CommandExample> exampleOf(const CommandFacts &command)
{
    const auto arguments = sampleArguments(command);
    if (!arguments)
        return std::nullopt;
    const XmlRpc::XmlRpcValue values = toXmlRpcValue(nlohmann::json(*arguments));
    for (const char *machine : {"dispenser", "dual"}) { // of the driver
        const auto made = madeOf(command, values, machine);
        if (!made)
            continue;
        CommandExample example{QString(), pythonCall(command.name, *arguments)};
        if (canBeSent(command, *made, machine))
            example.shell =
                shellCall(command, *arguments) +
                (madeOf(command, values, "none") ? "" : QStringLiteral(" --machine %1").arg(machine));
        return example;
    }
    return std::nullopt;
}

} // namespace quv
