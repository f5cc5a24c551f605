// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"
#include "base/confprotocommand.h"
#include "base/protocommand.h"
#include "base/scaleprotocommand.h"
#include "base/serialprotocommand.h"

#include <iterator>

using namespace testing_base;

// What a command without a class of its own says of itself, for every name of the catalogue.

namespace {

struct NamedText
{
    const char *command;
    const char *text;
};

constexpr NamedText commandTexts[] = {
    {"GET_CALIB_PROFILES", "Calibration profiles read"},
    {"GET_ERRORS", "Errors read"},
    {"GET_DRIVER_SETTINGS", "Application settings read"},
    {"GET_DRIVER_INFO", "Application info read"},
};

constexpr NamedText actionTexts[] = {
    {"GET_CALIB_PROFILES", "Retrieving calibration profiles"},
    {"GET_ERRORS", "Searching for hardware errors"},
    {"GET_DRIVER_SETTINGS", "Retrieving application settings"},
    {"GET_DRIVER_INFO", "Retrieving application info"},
    {"GET_SCALE_CONFIG", "Reading scale configuration"},
};

/** Nobody shows their progress. */
constexpr const char *silentCommands[] = {
    "LOGIN",
    "LOGOUT",
    "GET_KEY",
    "CERTIFY_SESSION",
    "WORKING_MODE",
    "GET_ACTIVE_DISP",
    "GET_DISP_STATUS",
    "GET_MIXER_STATUS",
    "GET_STATUS",
    "GET_CIRCUITS_STATUS",
    "GET_SENSOR_DATA",
    "GET_CMD_STATUS",
    "GET_CONN_STATUS",
    "GET_HOST_INFO",
    "GET_KEY_CODE",
    "GET_SCALE_STATUS",
    "ADD_USS_W_EVENT",
    "GET_USS_W_STATUS",
    "GET_QRCODE_CALIB",
    "SET_QRCODE_CALIB",
    "GET_FORMULA_EXECUTION",
    "ADD_EVENT",
};

constexpr const char *otherCommands[] = {
    "AUTOCAP_MOVE",
    "SHELF_MOVE",
    "GET_SHELF_POS",
    "RESET",
    "STOP",
    "TINT",
    "STIRRING",
    "RECIRCULATION",
    "GET_ERROR_PKT",
    "CLEAR_ERRORS",
    "ERRORS_NUM",
    "PRIMING",
    "PACK",
    "PURGE",
    "TOGGLE_TEMPORIZED",
    "WRITE_CONFIG_ROW",
    "READ_CONFIG_ROW",
    "FINALIZE_CONFIG",
    "GET_CMD_ID",
    "GET_DISP_INFO",
    "SET_DISP_INFO",
    "CLEAR_DISP_INFO",
    "GET_SENSORS_STATUS",
    "SET_DISP_OUTPUT",
    "SET_BOARD_POWER",
    "CHANNEL_TINT",
    "RESET_FW",
    "UPDATE_FW",
    "SLAVE_JUMP",
    "READ_FW_VERSION",
    "GET_FW_COMMANDS",
    "FW_SCAN",
    "FW_SCAN_START",
    "FW_SCAN_READ",
    "BOARD_MEMORY",
    "MOTOR_RUNNING",
    "GET_LAST_BOARD_STATS",
    "GET_REAL_BOARD_STATS",
    "SET_BOARD_STATS",
    "CLEAR_BOARD_STATS",
    "CHECK_SERIAL",
    "SET_SERIAL",
    "CLOSE_SERIAL",
    "SAVE_CONFIG",
    "GET_CONFIG",
    "CLEAN_CONFIG",
    "WRITE_FW_CONFIG",
    "READ_FW_CONFIG",
    "SET_CALIB_PROFILES",
    "DELETE_DISPENSER",
    "CLONE_DISPENSER",
    "SAVE_DISP_CONFIG",
    "GET_DISP_LIST",
    "GET_CMD_LIST",
    "GET_DEVICE_LIST",
    "GET_CIRCUIT_LIST",
    "GET_CANISTER_LIST",
    "GET_COLORANT_LIST",
    "GET_CALIB_LIST",
    "SET_CALIB_LIST",
    "SET_LEVELS",
    "CHECK_FORMULA_LEVELS",
    "GET_FORMULA_CIRCUITS",
    "GET_LOW_LEVEL_FORMULA",
    "SET_ACTIVE_DISP",
    "SET_DM_DATA",
    "SET_DISP_DATA",
    "SET_CIRCUIT_MAX_SPEED",
    "SET_DRIVER_SETTINGS",
    "CHECK_BUSY",
    "GET_CMD_EST_EXEC_TIME",
    "GET_SW_VERSION",
    "GET_STATS_ERRORS",
    "TURNTABLE_MOVE",
    "TURNTABLE_MOVE_STEPS",
    "GET_TURNTABLE_POSITIONS",
    "GET_CONFIG_CMDS",
    "GET_DISPENSED_FORMULA",
    "CLEANING",
    "SET_SERIAL_NUMBER",
    "SET_CALIB_TEST_POINTS",
    "SET_DISP_ID",
    "AUTOTEST",
    "STIR_ALL",
    "TURNTABLE_MOVE_TO_REFILL",
    "GET_CONNECTIONS",
    "INIT",
    "PUNCH",
    "PLUG",
    "SET_COLORANT_LIST",
    "SET_CANISTER_LIST",
    "WEIGHT",
    "TARE",
    "TARE_SET",
    "GET_CURRENT_WEIGHT",
    "SCALE_RESET",
    "ULTRASOUND_CLEAN",
    "GE_TEST",
    "DISPLAY_STRING",
    "GET_COL_USAGE_STATS",
    "SET_LED_STATUS",
    "PRIMING2",
    "PACK2",
    "AIRPURGE",
    "MIX",
    "SET_SCALE_CONFIG",
    "GET_GRAV_SETTINGS",
    "SET_GRAV_SETTINGS",
    "SET_BT_SETTINGS",
    "GET_BT_SETTINGS",
    "GET_ACTIVE_CIRCUITS",
    "DEEP_SERVICE",
    "MIXER_STATUS",
    "GET_MIXER_LIST",
    "SET_ACTIVE_MACHINE",
    "DELETE_MACHINE",
    "CLONE_MACHINE",
    "SAVE_MACHINE_CONFIG",
    "NOZZLE_CLEAN",
    "SW_PROCESS_TOGGLE",
    "GET_RECALIB_LIST",
    "SET_RECALIB_LIST",
    "RES_FILE_MNGM",
    "RES_FILE_WRITE",
    "RES_FILE_READ",
    "RES_FILE_LIST",
    "RES_FILE_DELETE",
    "VALVE_TEST",
    "CONFIG_PARAM",
    "TINT2",
    "GET_LEVEL_SENSORS",
    "GET_DEVICE_PARAMS",
    "ADD_STATS_ERRORS",
    "ZDR_CYCLE_OPERATION",
    "ZDR_ACTUATOR_MOVE",
    "ZDR_SLAVE_PROCEDURE",
    "ZDR_GET_COMMANDS",
    "MIXER_PLATES",
    "GET_SHELF_PARAMS",
    "PAUSE",
};

void expectAction(const TString &action, const char *text, const char *context)
{
    EXPECT_EQ(action.m_text, text);
    EXPECT_EQ(action.m_translated, text) << "no translation is installed";
    EXPECT_STREQ(action.m_context, context);
}

/** The detail is for subclasses: the base says the same with and without. */
void expectActions(const char *name, const char *text, const char *context)
{
    SCOPED_TRACE(name);
    const QString command = name;
    for (const bool detailed : {false, true}) {
        SCOPED_TRACE(detailed);
        expectAction(ProtoCommand(command).actionString(detailed), text, context);
        expectAction(SerialProtoCommand(command, nullptr).actionString(detailed), text, context);
        expectAction(ConfProtoCommand(command, nullptr).actionString(detailed), text, context);
        expectAction(ScaleProtoCommand(command).actionString(detailed), text, context);
    }
}

} // namespace

TEST(CommandTexts, coverTheCatalogue)
{
    EXPECT_EQ(std::size(actionTexts) + std::size(silentCommands) + std::size(otherCommands), 167U);
}

TEST(CommandTexts, labelFourNamesInTheLog)
{
    for (const NamedText &row : commandTexts) {
        SCOPED_TRACE(row.command);
        const QString name = row.command;
        EXPECT_EQ(ProtoCommand(name).commandString(), row.text);
        EXPECT_EQ(SerialProtoCommand(name, nullptr).commandString(), row.text);
        EXPECT_EQ(ConfProtoCommand(name, nullptr).commandString(), row.text);
        EXPECT_EQ(ScaleProtoCommand(name).commandString(), row.text);
    }
}

TEST(CommandTexts, labelNoOtherName)
{
    EXPECT_TRUE(ProtoCommand(QStringLiteral("GET_SCALE_CONFIG")).commandString().isNull());
    for (const char *name : silentCommands)
        EXPECT_TRUE(ProtoCommand(QString(name)).commandString().isNull()) << name;
    for (const char *name : otherCommands)
        EXPECT_TRUE(ProtoCommand(QString(name)).commandString().isNull()) << name;
    EXPECT_TRUE(ProtoCommand(QStringLiteral("NO_SUCH_COMMAND")).commandString().isNull());
    EXPECT_TRUE(ProtoCommand().commandString().isNull());
}

TEST(CommandTexts, sayOfFiveNamesWhatTheyDo)
{
    for (const NamedText &row : actionTexts) {
        SCOPED_TRACE(row.command);
        expectActions(row.command, row.text, "QuvProtocol");
    }
}

TEST(CommandTexts, sayNothingOfPolling)
{
    for (const char *name : silentCommands) {
        SCOPED_TRACE(name);
        expectActions(name, "", "");
    }
}

TEST(CommandTexts, sayOfAllOtherNamesThatTheyAreInProgress)
{
    for (const char *name : otherCommands) {
        SCOPED_TRACE(name);
        expectActions(name, "In progress", "");
    }
    expectActions("NO_SUCH_COMMAND", "In progress", "");
    expectAction(ProtoCommand().actionString(false), "In progress", "");
}
