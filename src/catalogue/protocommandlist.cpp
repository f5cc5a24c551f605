// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QMutex>

#include <array>

namespace {

/** Who carries a command out: the values of the table's column. */
enum CommandType {
    Serial = 0,
    Configuration = 1,
    SerialAndConfiguration = 2,
    ConfigurationAndSerial = 3,
    Special = 4,
    SpecialAndSerial = 5,
    SpecialAndConfiguration = 6,
    Scale = 7
};

using Rows = std::array<CMD_STRUCT, ProtoCommandList::rowCount>;

// clang-format off
const Rows &rows()
{
    //       id, name, code, altCode, max, min, type, tgt, mul, adr, wp, sp, busy, timeout, trk, sts, mou, prv, ero, fam
    static const Rows table{{
    {0, QStringLiteral("GET_STATUS"), QStringLiteral("0006"), QStringLiteral("I3"), 1, 0, 0, 1, false, true, 0, 6, false, 0, false, false, 0, false, false, 3},
    {1, QStringLiteral("GET_DISP_STATUS"), QString(), QString(), 0, 0, 1, 1, false, true, 0, 6, false, 0, false, false, 0, false, false, 3},
    {2, QStringLiteral("GET_CIRCUITS_STATUS"), QString(), QString(), 1, 0, 0, 1, true, true, 0, 6, false, 40000, false, false, 1, false, false, 1},
    {3, QStringLiteral("AUTOCAP_MOVE"), QStringLiteral("0041"), QString(), 1, 1, 0, 1, false, true, 0, 0, true, 20000, true, true, 0, false, false, 3},
    {4, QStringLiteral("SHELF_MOVE"), QStringLiteral("0071"), QString(), 2, 1, 0, 1, false, true, 0, 0, true, 40000, true, true, 0, false, false, 3},
    {5, QStringLiteral("GET_SHELF_POS"), QStringLiteral("0072"), QString(), 1, 0, 0, 1, false, true, 1, 1, true, 0, false, false, 0, false, false, 1},
    {6, QStringLiteral("RESET"), QStringLiteral("0001"), QString(), 1, 0, 0, 5, false, true, 0, 0, true, 360000, true, false, 0, false, false, 3},
    {7, QStringLiteral("STOP"), QStringLiteral("0003"), QString(), 2, 0, 3, 5, false, true, 5, 8, true, 60000, false, false, 0, false, false, 1},
    {8, QStringLiteral("TINT"), QStringLiteral("0017"), QString(), 1, 1, 5, 1, false, true, 0, 0, true, 9999999, true, true, 2, false, true, 3},
    {9, QStringLiteral("STIRRING"), QStringLiteral("0004"), QString(), 2, 2, 0, 1, false, true, 0, 0, true, 9999999, true, true, 0, false, false, 1},
    {10, QStringLiteral("RECIRCULATION"), QStringLiteral("0005"), QString(), 4, 2, 0, 1, false, true, 0, 0, true, 9999999, true, true, 2, false, false, 3},
    {11, QStringLiteral("GET_ERRORS"), QString(), QString(), 0, 0, 0, 5, false, true, 0, 5, false, 0, false, false, 0, false, false, 3},
    {12, QStringLiteral("GET_ERROR_PKT"), QStringLiteral("000C"), QString(), 0, 0, 0, 5, false, true, 0, 5, false, 0, false, false, 0, true, false, 1},
    {13, QStringLiteral("CLEAR_ERRORS"), QStringLiteral("000C"), QString(), 0, 0, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 3},
    {14, QStringLiteral("ERRORS_NUM"), QStringLiteral("000C"), QString(), 0, 0, 0, 5, false, true, 0, 5, false, 0, false, false, 0, true, false, 1},
    {15, QStringLiteral("PRIMING"), QStringLiteral("0017"), QString(), 1, 1, 5, 1, false, true, 0, 0, true, 240000, false, false, 2, false, true, 1},
    {16, QStringLiteral("PACK"), QStringLiteral("0017"), QString(), 2, 2, 0, 1, false, true, 0, 0, true, 240000, true, false, 2, false, true, 3},
    {17, QStringLiteral("PURGE"), QStringLiteral("0017"), QString(), 3, 1, 5, 1, false, true, 0, 0, true, 9999999, true, true, 2, false, true, 3},
    {18, QStringLiteral("WORKING_MODE"), QStringLiteral("0020"), QStringLiteral("FR"), 1, 0, 0, 5, false, true, 9, 0, true, 40000, false, false, 0, false, false, 1},
    {19, QStringLiteral("TOGGLE_TEMPORIZED"), QStringLiteral("0020"), QStringLiteral("FR"), 3, 0, 0, 5, false, true, 9, 0, true, 40000, false, true, 0, false, false, 1},
    {20, QStringLiteral("WRITE_CONFIG_ROW"), QStringLiteral("0065"), QString(), 2, 0, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {21, QStringLiteral("READ_CONFIG_ROW"), QStringLiteral("0066"), QString(), 2, 0, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {22, QStringLiteral("FINALIZE_CONFIG"), QStringLiteral("0067"), QString(), 0, 0, 0, 5, false, true, 0, 0, true, 40000, false, false, 0, true, false, 1},
    {23, QStringLiteral("GET_CMD_ID"), QStringLiteral("0068"), QString(), 1, 1, 0, 5, false, true, 0, 0, false, 0, false, false, 0, true, false, 1},
    {24, QStringLiteral("GET_DISP_INFO"), QStringLiteral("0077"), QString(), 1, 1, 0, 5, false, true, 0, 0, false, 40000, false, false, 0, false, false, 1},
    {25, QStringLiteral("SET_DISP_INFO"), QStringLiteral("0077"), QString(), 2, 2, 0, 5, false, true, 0, 0, true, 40000, false, false, 0, false, false, 1},
    {26, QStringLiteral("CLEAR_DISP_INFO"), QStringLiteral("0077"), QString(), 1, 1, 0, 5, false, true, 0, 0, true, 40000, false, false, 0, false, false, 1},
    {27, QStringLiteral("GET_SENSORS_STATUS"), QStringLiteral("0043"), QString(), 0, 0, 0, 1, false, true, 0, 5, false, 0, false, false, 0, false, false, 1},
    {28, QStringLiteral("GET_SENSOR_DATA"), QStringLiteral("0060"), QString(), 2, 1, 0, 1, false, true, 0, 5, false, 0, false, false, 0, false, false, 1},
    {29, QStringLiteral("SET_DISP_OUTPUT"), QStringLiteral("0013"), QString(), 4, 2, 0, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {30, QStringLiteral("SET_BOARD_POWER"), QStringLiteral("0076"), QString(), 3, 2, 0, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {31, QStringLiteral("CHANNEL_TINT"), QStringLiteral("0017"), QString(), 2, 2, 0, 1, false, true, 0, 0, true, 240000, false, false, 2, false, true, 1},
    {32, QStringLiteral("RESET_FW"), QStringLiteral("3F78"), QString(), 2, 1, 0, 5, false, true, 9, 9, false, 0, false, false, 0, true, false, 1},
    {33, QStringLiteral("UPDATE_FW"), QString(), QString(), 1, 1, 5, 5, false, true, 7, 0, false, 0, true, true, 2, false, false, 1},
    {34, QStringLiteral("SLAVE_JUMP"), QStringLiteral("3F79"), QString(), 2, 2, 0, 5, false, true, 9, 9, true, 40000, false, false, 0, true, false, 1},
    {35, QStringLiteral("READ_FW_VERSION"), QStringLiteral("000F"), QString(), 1, 1, 0, 5, false, true, 0, 5, false, 0, false, false, 0, false, false, 3},
    {36, QStringLiteral("GET_FW_COMMANDS"), QStringLiteral("0014"), QString(), 1, 0, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {37, QStringLiteral("FW_SCAN"), QStringLiteral("0022"), QString(), 0, 0, 5, 1, false, true, 9, 0, false, 0, true, false, 0, false, false, 1},
    {38, QStringLiteral("FW_SCAN_START"), QStringLiteral("0022"), QString(), 0, 0, 0, 1, false, true, 9, 0, true, 240000, true, false, 0, true, false, 1},
    {39, QStringLiteral("FW_SCAN_READ"), QStringLiteral("0022"), QString(), 0, 0, 0, 1, false, true, 9, 0, false, 0, false, false, 0, true, false, 1},
    {40, QStringLiteral("BOARD_MEMORY"), QStringLiteral("0F01"), QString(), 10, 6, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {41, QStringLiteral("MOTOR_RUNNING"), QStringLiteral("0011"), QString(), 2, 1, 0, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {42, QStringLiteral("GET_LAST_BOARD_STATS"), QStringLiteral("0078"), QString(), 2, 1, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {43, QStringLiteral("GET_REAL_BOARD_STATS"), QStringLiteral("0078"), QString(), 2, 1, 0, 5, true, true, 0, 0, true, 240000, false, false, 0, false, false, 1},
    {44, QStringLiteral("SET_BOARD_STATS"), QStringLiteral("0078"), QString(), 2, 2, 0, 5, false, true, 0, 0, true, 240000, false, false, 0, false, false, 1},
    {45, QStringLiteral("CLEAR_BOARD_STATS"), QStringLiteral("0078"), QString(), 2, 1, 0, 5, false, true, 0, 0, true, 240000, false, false, 0, false, false, 1},
    {46, QStringLiteral("CHECK_SERIAL"), QString(), QString(), 1, 1, 1, 5, true, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {47, QStringLiteral("SET_SERIAL"), QString(), QString(), 1, 1, 2, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {48, QStringLiteral("CLOSE_SERIAL"), QString(), QString(), 0, 0, 2, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {49, QStringLiteral("SAVE_CONFIG"), QString(), QString(), 1, 1, 1, 5, false, false, 0, 0, false, 40000, false, false, 0, false, false, 1},
    {50, QStringLiteral("GET_CONFIG"), QString(), QString(), 1, 0, 1, 5, false, false, 0, 0, false, 40000, false, false, 0, false, false, 1},
    {51, QStringLiteral("CLEAN_CONFIG"), QString(), QString(), 0, 0, 6, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {52, QStringLiteral("WRITE_FW_CONFIG"), QString(), QString(), 1, 1, 5, 5, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {53, QStringLiteral("READ_FW_CONFIG"), QString(), QString(), 0, 0, 5, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {54, QStringLiteral("SET_CALIB_PROFILES"), QString(), QString(), 3, 3, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {55, QStringLiteral("GET_CALIB_PROFILES"), QString(), QString(), 0, 0, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {56, QStringLiteral("DELETE_DISPENSER"), QString(), QString(), 1, 1, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {57, QStringLiteral("CLONE_DISPENSER"), QString(), QString(), 1, 1, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {58, QStringLiteral("SAVE_DISP_CONFIG"), QString(), QString(), 1, 1, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {59, QStringLiteral("LOGIN"), QString(), QString(), 3, 2, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {60, QStringLiteral("LOGOUT"), QString(), QString(), 1, 1, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {61, QStringLiteral("GET_KEY"), QString(), QString(), 2, 2, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {62, QStringLiteral("CERTIFY_SESSION"), QString(), QString(), 2, 2, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {63, QStringLiteral("GET_CMD_STATUS"), QString(), QString(), 1, 1, 1, 5, false, false, 5, 5, false, 0, false, false, 0, false, false, 1},
    {64, QStringLiteral("GET_DISP_LIST"), QString(), QString(), 1, 0, 1, 1, false, false, 0, 0, false, 0, false, false, 2, false, false, 3},
    {65, QStringLiteral("GET_CMD_LIST"), QString(), QString(), 1, 0, 1, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 3},
    {66, QStringLiteral("GET_DEVICE_LIST"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 3},
    {67, QStringLiteral("GET_CIRCUIT_LIST"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 3},
    {68, QStringLiteral("GET_CANISTER_LIST"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 3},
    {69, QStringLiteral("GET_COLORANT_LIST"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 3},
    {70, QStringLiteral("GET_CALIB_LIST"), QString(), QString(), 2, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {71, QStringLiteral("SET_CALIB_LIST"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {72, QStringLiteral("SET_LEVELS"), QString(), QString(), 3, 2, 1, 1, false, true, 0, 0, false, 0, false, false, 1, false, false, 3},
    {73, QStringLiteral("CHECK_FORMULA_LEVELS"), QString(), QString(), 2, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 3},
    {74, QStringLiteral("GET_FORMULA_CIRCUITS"), QString(), QString(), 2, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {75, QStringLiteral("GET_LOW_LEVEL_FORMULA"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {76, QStringLiteral("SET_ACTIVE_DISP"), QString(), QString(), 3, 2, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {77, QStringLiteral("GET_ACTIVE_DISP"), QString(), QString(), 0, 0, 1, 5, false, false, 5, 5, false, 0, false, false, 0, false, false, 3},
    {78, QStringLiteral("SET_DM_DATA"), QString(), QString(), 2, 2, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {79, QStringLiteral("SET_DISP_DATA"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {80, QStringLiteral("SET_CIRCUIT_MAX_SPEED"), QString(), QString(), 3, 2, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {81, QStringLiteral("GET_DRIVER_SETTINGS"), QString(), QString(), 0, 0, 1, 0, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {82, QStringLiteral("SET_DRIVER_SETTINGS"), QString(), QString(), 1, 1, 1, 0, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {83, QStringLiteral("GET_DRIVER_INFO"), QString(), QString(), 0, 0, 1, 0, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {84, QStringLiteral("CHECK_BUSY"), QString(), QString(), 0, 0, 1, 5, true, true, 0, 6, true, 240000, false, false, 0, true, false, 1},
    {85, QStringLiteral("GET_CMD_EST_EXEC_TIME"), QString(), QString(), 1, 1, 1, 5, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {86, QStringLiteral("GET_SW_VERSION"), QString(), QString(), 0, 0, 1, 0, false, false, 0, 0, false, 0, false, false, 0, false, false, 3},
    {87, QStringLiteral("GET_STATS_ERRORS"), QString(), QString(), 3, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {88, QStringLiteral("TURNTABLE_MOVE"), QStringLiteral("0016"), QString(), 5, 4, 0, 1, false, true, 0, 0, true, 360000, false, true, 0, false, false, 1},
    {89, QStringLiteral("TURNTABLE_MOVE_STEPS"), QStringLiteral("0018"), QString(), 3, 3, 0, 1, false, true, 0, 0, true, 360000, false, true, 0, false, false, 1},
    {90, QStringLiteral("GET_TURNTABLE_POSITIONS"), QStringLiteral("0019"), QString(), 0, 0, 0, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {91, QStringLiteral("GET_CONFIG_CMDS"), QStringLiteral("0066"), QString(), 0, 0, 0, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {92, QStringLiteral("GET_CONN_STATUS"), QString(), QString(), 0, 0, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {93, QStringLiteral("GET_DISPENSED_FORMULA"), QStringLiteral("0074"), QString(), 2, 0, 2, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {94, QStringLiteral("CLEANING"), QStringLiteral("0015"), QString(), 4, 1, 0, 1, false, true, 0, 0, true, 9999999, false, true, 0, false, false, 1},
    {95, QStringLiteral("GET_KEY_CODE"), QString(), QString(), 0, 0, 5, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {96, QStringLiteral("SET_SERIAL_NUMBER"), QString(), QString(), 1, 1, 1, 5, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {97, QStringLiteral("SET_CALIB_TEST_POINTS"), QString(), QString(), 2, 2, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {98, QStringLiteral("SET_DISP_ID"), QString(), QString(), 2, 2, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {99, QStringLiteral("AUTOTEST"), QString(), QString(), 1, 0, 0, 1, true, true, 0, 0, true, 0, true, true, 2, false, true, 1},
    {100, QStringLiteral("STIR_ALL"), QString(), QString(), 4, 0, 0, 1, false, true, 0, 0, false, 0, true, true, 1, false, false, 3},
    {101, QStringLiteral("TURNTABLE_MOVE_TO_REFILL"), QStringLiteral("0016"), QString(), 1, 1, 0, 1, false, true, 0, 0, true, 360000, false, true, 2, false, false, 3},
    {102, QStringLiteral("GET_CONNECTIONS"), QString(), QString(), 1, 0, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {103, QStringLiteral("GET_HOST_INFO"), QString(), QString(), 0, 0, 1, 0, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {104, QStringLiteral("INIT"), QString(), QString(), 0, 0, 0, 1, true, true, 0, 0, true, 360000, false, false, 0, false, false, 2},
    {105, QStringLiteral("PUNCH"), QString(), QString(), 0, 0, 0, 1, false, true, 0, 0, true, 240000, false, false, 0, false, false, 2},
    {106, QStringLiteral("PLUG"), QString(), QString(), 0, 0, 0, 1, false, true, 0, 0, true, 240000, false, false, 0, false, false, 2},
    {107, QStringLiteral("SET_QRCODE_CALIB"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {108, QStringLiteral("SET_COLORANT_LIST"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {109, QStringLiteral("SET_CANISTER_LIST"), QString(), QString(), 2, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {110, QStringLiteral("WEIGHT"), QString(), QString(), 3, 0, 7, 1, false, true, 0, 0, false, 40000, false, false, 0, false, false, 1},
    {111, QStringLiteral("TARE"), QString(), QString(), 2, 0, 7, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {112, QStringLiteral("TARE_SET"), QString(), QString(), 2, 0, 7, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {113, QStringLiteral("GET_CURRENT_WEIGHT"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {114, QStringLiteral("SCALE_RESET"), QString(), QString(), 0, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {115, QStringLiteral("ULTRASOUND_CLEAN"), QStringLiteral("0025"), QString(), 2, 1, 0, 1, false, true, 0, 0, true, 500000, true, true, 0, false, false, 1},
    {116, QStringLiteral("GE_TEST"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {117, QStringLiteral("DISPLAY_STRING"), QString(), QString(), 1, 0, 7, 1, false, true, 0, 0, false, 40000, false, false, 0, false, false, 1},
    {118, QStringLiteral("GET_COL_USAGE_STATS"), QString(), QString(), 1, 0, 1, 1, false, false, 0, 0, false, 0, false, false, 2, false, false, 1},
    {119, QStringLiteral("SET_LED_STATUS"), QStringLiteral("0026"), QString(), 2, 1, 0, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {120, QStringLiteral("PRIMING2"), QStringLiteral("0024"), QString(), 1, 1, 0, 1, false, true, 0, 0, true, 240000, true, true, 2, false, true, 1},
    {121, QStringLiteral("PACK2"), QStringLiteral("0023"), QString(), 1, 1, 0, 1, false, true, 0, 0, true, 240000, true, true, 2, false, true, 3},
    {122, QStringLiteral("AIRPURGE"), QStringLiteral("0023"), QString(), 1, 1, 0, 1, false, true, 0, 0, true, 240000, true, true, 2, false, true, 1},
    {123, QStringLiteral("MIX"), QStringLiteral("0031"), QString(), 1, 1, 0, 4, false, true, 0, 0, true, 9999999, true, true, 0, false, true, 1},
    {124, QStringLiteral("SET_SCALE_CONFIG"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {125, QStringLiteral("GET_SCALE_CONFIG"), QString(), QString(), 0, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {126, QStringLiteral("GET_SCALE_STATUS"), QString(), QString(), 0, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {127, QStringLiteral("GET_GRAV_SETTINGS"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {128, QStringLiteral("SET_GRAV_SETTINGS"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {129, QStringLiteral("SET_BT_SETTINGS"), QString(), QString(), 1, 1, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {130, QStringLiteral("GET_BT_SETTINGS"), QString(), QString(), 0, 0, 1, 1, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {131, QStringLiteral("GET_ACTIVE_CIRCUITS"), QStringLiteral("001A"), QString(), 1, 1, 0, 1, false, true, 0, 5, true, 0, false, false, 0, false, false, 1},
    {132, QStringLiteral("DEEP_SERVICE"), QStringLiteral("002C"), QString(), 4, 3, 0, 1, false, true, 0, 0, true, 0, false, false, 0, false, false, 1},
    {133, QStringLiteral("ADD_EVENT"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {134, QStringLiteral("MIXER_STATUS"), QStringLiteral("0033"), QString(), 0, 0, 0, 4, false, true, 0, 6, false, 0, false, false, 0, false, false, 1},
    {135, QStringLiteral("GET_MIXER_LIST"), QString(), QString(), 1, 0, 1, 4, false, false, 0, 0, false, 0, false, false, 2, false, false, 1},
    {136, QStringLiteral("SET_ACTIVE_MACHINE"), QString(), QString(), 3, 2, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {137, QStringLiteral("DELETE_MACHINE"), QString(), QString(), 1, 1, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {138, QStringLiteral("CLONE_MACHINE"), QString(), QString(), 1, 1, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {139, QStringLiteral("SAVE_MACHINE_CONFIG"), QString(), QString(), 1, 1, 1, 5, false, false, 0, 0, false, 0, false, false, 0, false, false, 1},
    {140, QStringLiteral("GET_MIXER_STATUS"), QString(), QString(), 0, 0, 1, 4, false, true, 0, 6, false, 0, false, false, 0, false, false, 1},
    {141, QStringLiteral("NOZZLE_CLEAN"), QStringLiteral("002F"), QString(), 2, 2, 0, 1, false, true, 0, 0, true, 9999999, true, true, 1, false, false, 1},
    {142, QStringLiteral("SW_PROCESS_TOGGLE"), QStringLiteral("002E"), QString(), 2, 2, 0, 1, false, true, 0, 0, false, 0, true, true, 0, false, false, 1},
    {143, QStringLiteral("ADD_USS_W_EVENT"), QStringLiteral("0078"), QString(), 0, 0, 1, 1, false, true, 7, 0, false, 240000, false, false, 2, false, false, 1},
    {144, QStringLiteral("GET_USS_W_STATUS"), QStringLiteral("0078"), QString(), 0, 0, 1, 1, false, true, 7, 0, false, 240000, false, false, 2, false, false, 1},
    {145, QStringLiteral("GET_QRCODE_CALIB"), QString(), QString(), 1, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {146, QStringLiteral("GET_RECALIB_LIST"), QString(), QString(), 2, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {147, QStringLiteral("SET_RECALIB_LIST"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {148, QStringLiteral("RES_FILE_MNGM"), QStringLiteral("3F80"), QString(), 2, 2, 0, 4, false, true, 9, 9, true, 40000, false, false, 0, true, false, 1},
    {149, QStringLiteral("RES_FILE_WRITE"), QString(), QString(), 1, 1, 5, 4, false, true, 7, 0, false, 0, true, true, 2, false, false, 1},
    {150, QStringLiteral("RES_FILE_READ"), QString(), QString(), 1, 1, 5, 4, false, true, 7, 0, false, 0, true, true, 2, false, false, 1},
    {151, QStringLiteral("RES_FILE_LIST"), QString(), QString(), 1, 1, 5, 4, false, true, 7, 0, false, 0, true, true, 2, false, false, 1},
    {152, QStringLiteral("RES_FILE_DELETE"), QString(), QString(), 1, 1, 5, 4, false, true, 7, 0, false, 0, true, true, 2, false, false, 1},
    {153, QStringLiteral("VALVE_TEST"), QString(), QString(), 0, 0, 0, 1, false, true, 0, 0, true, 240000, false, false, 0, false, false, 2},
    {154, QStringLiteral("CONFIG_PARAM"), QString(), QString(), 3, 2, 1, 5, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {155, QStringLiteral("TINT2"), QStringLiteral("0035"), QString(), 1, 1, 5, 1, false, true, 0, 0, true, 9999999, true, true, 2, false, true, 1},
    {156, QStringLiteral("GET_LEVEL_SENSORS"), QStringLiteral("0029"), QString(), 1, 0, 0, 1, false, true, 0, 0, false, 0, true, true, 1, false, false, 1},
    {157, QStringLiteral("GET_DEVICE_PARAMS"), QString(), QString(), 0, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {158, QStringLiteral("ADD_STATS_ERRORS"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 1},
    {159, QStringLiteral("ZDR_CYCLE_OPERATION"), QStringLiteral("0032"), QString(), 2, 0, 0, 1, false, true, 0, 0, true, 9999999, true, true, 1, false, false, 1},
    {160, QStringLiteral("ZDR_ACTUATOR_MOVE"), QStringLiteral("0027"), QString(), 2, 0, 0, 1, false, true, 0, 0, true, 9999999, true, true, 1, false, false, 1},
    {161, QStringLiteral("ZDR_SLAVE_PROCEDURE"), QStringLiteral("0028"), QString(), 2, 1, 0, 1, false, true, 0, 0, true, 9999999, true, true, 1, false, false, 1},
    {162, QStringLiteral("ZDR_GET_COMMANDS"), QStringLiteral("0037"), QString(), 0, 0, 0, 1, false, true, 0, 0, true, 40000, true, true, 0, false, false, 1},
    {163, QStringLiteral("MIXER_PLATES"), QStringLiteral("0030"), QString(), 4, 1, 0, 5, false, true, 0, 0, true, 9999999, true, true, 0, false, false, 1},
    {164, QStringLiteral("GET_FORMULA_EXECUTION"), QString(), QString(), 1, 1, 1, 1, false, true, 0, 0, false, 0, false, false, 2, false, false, 1},
    {165, QStringLiteral("GET_SHELF_PARAMS"), QString(), QString(), 0, 0, 1, 1, false, true, 0, 0, false, 0, false, false, 0, false, false, 2},
    {166, QStringLiteral("PAUSE"), QString(), QString(), 1, 1, 0, 1, false, true, 0, 0, false, 9999999, false, false, 0, false, false, 1},    }};
    return table;
}
// clang-format on

/** The names alone, side by side, so that a scan touches two kilobytes and not the whole table. */
struct Names
{
    struct Name
    {
        const QChar *text = nullptr;
        int size = 0;
    };
    std::array<Name, ProtoCommandList::rowCount> names;

    Names()
    {
        for (std::size_t i = 0; i < names.size(); ++i)
            names[i] = {rows()[i].name.constData(), rows()[i].name.size()};
    }
};

template <class T>
T read(const QString &name, T CMD_STRUCT::*field)
{
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    return row ? row->*field : T();
}

bool targets(const QString &name, int mask)
{
    return (read(name, &CMD_STRUCT::target) & mask) != 0;
}

constexpr int dispenserBit = static_cast<int>(SerialDeviceType::Dispenser);
constexpr int mixerBit = static_cast<int>(SerialDeviceType::Mixer);

bool isOfType(const QString &name, std::initializer_list<CommandType> types)
{
    const CMD_STRUCT *row = ProtoCommandList::row(name);
    for (CommandType type : types) {
        if (row && row->type == type)
            return true;
    }
    return false;
}

} // namespace

ProtoCommandList *ProtoCommandList::m_Instance = nullptr;

ProtoCommandList *ProtoCommandList::instance()
{
    static QMutex mutex;
    const QMutexLocker lock(&mutex);
    if (!m_Instance)
        m_Instance = new ProtoCommandList;
    return m_Instance;
}

const CMD_STRUCT *ProtoCommandList::row(const QString &name)
{
    static const Names table;
    const int size = name.size();
    const QChar *text = name.constData();
    for (std::size_t i = 0; i < table.names.size(); ++i) {
        const Names::Name &candidate = table.names[i];
        if (candidate.size == size &&
            std::char_traits<char16_t>::compare(reinterpret_cast<const char16_t *>(candidate.text),
                                                reinterpret_cast<const char16_t *>(text),
                                                static_cast<std::size_t>(size)) == 0)
            return &rows()[i];
    }
    return nullptr;
}

const CMD_STRUCT *ProtoCommandList::row(int id)
{
    return id >= 0 && id < rowCount ? &rows()[static_cast<std::size_t>(id)] : nullptr;
}

bool ProtoCommandList::existsCommand(const QString &name)
{
    return row(name);
}

QString ProtoCommandList::cmdStr(CommandListValue value)
{
    const CMD_STRUCT *found = row(static_cast<int>(value));
    return found ? found->name : QString();
}

int ProtoCommandList::cmdParamNum(CommandListValue value, bool mandatory)
{
    const CMD_STRUCT *found = row(static_cast<int>(value));
    if (!found)
        return -1;
    return mandatory ? found->minParams : found->maxParams;
}

int ProtoCommandList::cmdParamNum(const QString &name, bool mandatory)
{
    const CMD_STRUCT *found = row(name);
    return found ? cmdParamNum(static_cast<CommandListValue>(found->id), mandatory) : -1;
}

QString ProtoCommandList::cmdCode(const QString &name, int family)
{
    switch (family) {
    case FW_Dispenser::CommandFamily1:
        return read(name, &CMD_STRUCT::code);
    case FW_Dispenser::CommandFamily2:
        return read(name, &CMD_STRUCT::altCode);
    default:
        return QString();
    }
}

QString ProtoCommandList::functionCallStr(int mode)
{
    switch (mode) {
    case NonBlockingCall:
        return QStringLiteral("EXEC_NB");
    case ChangeCall:
        return QStringLiteral("EXEC_NC");
    default:
        return QStringLiteral("EXEC_B");
    }
}

bool ProtoCommandList::targetIsDispenser(const QString &name)
{
    return targets(name, dispenserBit);
}

bool ProtoCommandList::targetIsMixer(const QString &name)
{
    return targets(name, mixerBit);
}

bool ProtoCommandList::targetIsMachine(const QString &name)
{
    return targets(name, dispenserBit | mixerBit);
}

bool ProtoCommandList::isSerialCommand(const QString &name, bool strict)
{
    return strict
               ? isOfType(name, {Serial})
               : isOfType(name, {Serial, SerialAndConfiguration, ConfigurationAndSerial, SpecialAndSerial});
}

bool ProtoCommandList::isConfigurationCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {Configuration})
                  : isOfType(name, {Configuration, SerialAndConfiguration, ConfigurationAndSerial,
                                    SpecialAndConfiguration});
}

bool ProtoCommandList::isSerialAndConfigCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {SerialAndConfiguration})
                  : isOfType(name, {SerialAndConfiguration, ConfigurationAndSerial});
}

bool ProtoCommandList::isConfigAndSerialCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {ConfigurationAndSerial})
                  : isOfType(name, {SerialAndConfiguration, ConfigurationAndSerial});
}

bool ProtoCommandList::isSpecialCommand(const QString &name, bool strict)
{
    return strict ? isOfType(name, {Special})
                  : isOfType(name, {Special, SpecialAndSerial, SpecialAndConfiguration});
}

bool ProtoCommandList::isSpecialAndSerialCommand(const QString &name, bool)
{
    return isOfType(name, {SpecialAndSerial});
}

bool ProtoCommandList::isSpecialAndConfigCommand(const QString &name, bool)
{
    return isOfType(name, {SpecialAndConfiguration});
}

bool ProtoCommandList::isScaleCommand(const QString &name, bool)
{
    return isOfType(name, {Scale});
}

bool ProtoCommandList::isMultipleCommand(const QString &name)
{
    return read(name, &CMD_STRUCT::multiple);
}

bool ProtoCommandList::addressMachine(const QString &name)
{
    return read(name, &CMD_STRUCT::addressMachine);
}

bool ProtoCommandList::hasHighSchedulingPriority(const QString &name)
{
    return read(name, &CMD_STRUCT::schedulingPriorityLevel) >= 1;
}

bool ProtoCommandList::checkBusyFlag(const QString &name)
{
    return read(name, &CMD_STRUCT::checkBusy);
}

qint64 ProtoCommandList::busyTimeout(const QString &name)
{
    return read(name, &CMD_STRUCT::busyTimeout);
}

qint64 ProtoCommandList::commandTimeout(const QString &name)
{
    return qMax<qint64>(busyTimeout(name), 0);
}

bool ProtoCommandList::trackExecutionTime(const QString &name)
{
    return read(name, &CMD_STRUCT::trackExecutionTime);
}

bool ProtoCommandList::recordInStats(const QString &name)
{
    return read(name, &CMD_STRUCT::recordInStats);
}

int ProtoCommandList::machineObjUsage(const QString &name)
{
    return read(name, &CMD_STRUCT::machineObjUsage);
}

bool ProtoCommandList::privateCommand(const QString &name)
{
    return read(name, &CMD_STRUCT::privateCommand);
}

bool ProtoCommandList::erogationCommand(const QString &name)
{
    return read(name, &CMD_STRUCT::erogationCommand);
}
