// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

class CommandDataList;
class ConfProtoCommand;
class FW_Dispenser;
class FW_Machine;
class FW_Mixer;
class ProtoCommand;
class ScaleProtoCommand;
class SerialProtoCommand;

/** One row of the catalogue: a command, who carries it out, and how the driver schedules it. */
struct CMD_STRUCT
{
    int id = 0;      ///< the row's number, equal to its CommandListValue
    QString name;    ///< as clients spell it
    QString code;    ///< firmware code of command family 1, four hexadecimal digits; empty when there is none
    QString altCode; ///< firmware code of command family 2, of any form; empty when there is none
    int maxParams = 0; ///< greatest number of parameters that a caller may give; never enforced
    int minParams = 0; ///< number of mandatory parameters
    /** Who carries it out: 0 firmware, 1 driver, 2 and 3 both, 5 and 6 special procedures of either, 7 scale. */
    int type = 0;
    int target = 0; ///< mask of SerialDeviceType
    bool multiple = false;
    bool addressMachine = false; ///< false: a command of the driver alone
    int workingPriorityLevel = 0;
    int schedulingPriorityLevel = 0; ///< 1 and above is high
    bool checkBusy = false;          ///< the driver must take the machine's busy state into account
    qint64 busyTimeout = 0;          ///< milliseconds; 0 none, 9999999 when it depends on the parameters
    bool trackExecutionTime = false;
    bool recordInStats = false;
    int machineObjUsage = 0;
    bool privateCommand = false;
    bool erogationCommand = false; ///< delivers colorant
    int familyMask = 0;            ///< mask of FW_Dispenser::CommandFamily
};

/**
 * The catalogue of all commands, and the factory that turns a name and arguments into a command.
 *
 * The queries look a name up from row 0, comparing whole names. An unknown name gives false, 0 or a null string, but -1
 * from cmdParamNum. They may be called from any thread at any time: the table is constant.
 *
 * The factory's operations give an object that the caller owns, or throw FW_Exception: what a constructor throws passes
 * unchanged, anything else that goes wrong gets the operation's own code. Each comes with XML-RPC arguments (an array, without
 * leading text and command name) and with a variant list; a null machine means that nothing is checked against a machine.
 */
class QUVPROTOCOL_EXPORT ProtoCommandList
{
public:
    /** The rows by name; the value is the row's number. */
    enum CommandListValue : int {
        GET_STATUS = 0,
        GET_DISP_STATUS,
        GET_CIRCUITS_STATUS,
        AUTOCAP_MOVE,
        SHELF_MOVE,
        GET_SHELF_POS,
        RESET,
        STOP,
        TINT,
        STIRRING,
        RECIRCULATION,
        GET_ERRORS,
        GET_ERROR_PKT,
        CLEAR_ERRORS,
        ERRORS_NUM,
        PRIMING,
        PACK,
        PURGE,
        WORKING_MODE,
        TOGGLE_TEMPORIZED,
        WRITE_CONFIG_ROW,
        READ_CONFIG_ROW,
        FINALIZE_CONFIG,
        GET_CMD_ID,
        GET_DISP_INFO,
        SET_DISP_INFO,
        CLEAR_DISP_INFO,
        GET_SENSORS_STATUS,
        GET_SENSOR_DATA,
        SET_DISP_OUTPUT,
        SET_BOARD_POWER,
        CHANNEL_TINT,
        RESET_FW,
        UPDATE_FW,
        SLAVE_JUMP,
        READ_FW_VERSION,
        GET_FW_COMMANDS,
        FW_SCAN,
        FW_SCAN_START,
        FW_SCAN_READ,
        BOARD_MEMORY,
        MOTOR_RUNNING,
        GET_LAST_BOARD_STATS,
        GET_REAL_BOARD_STATS,
        SET_BOARD_STATS,
        CLEAR_BOARD_STATS,
        CHECK_SERIAL,
        SET_SERIAL,
        CLOSE_SERIAL,
        SAVE_CONFIG,
        GET_CONFIG,
        CLEAN_CONFIG,
        WRITE_FW_CONFIG,
        READ_FW_CONFIG,
        SET_CALIB_PROFILES,
        GET_CALIB_PROFILES,
        DELETE_DISPENSER,
        CLONE_DISPENSER,
        SAVE_DISP_CONFIG,
        LOGIN,
        LOGOUT,
        GET_KEY,
        CERTIFY_SESSION,
        GET_CMD_STATUS,
        GET_DISP_LIST,
        GET_CMD_LIST,
        GET_DEVICE_LIST,
        GET_CIRCUIT_LIST,
        GET_CANISTER_LIST,
        GET_COLORANT_LIST,
        GET_CALIB_LIST,
        SET_CALIB_LIST,
        SET_LEVELS,
        CHECK_FORMULA_LEVELS,
        GET_FORMULA_CIRCUITS,
        GET_LOW_LEVEL_FORMULA,
        SET_ACTIVE_DISP,
        GET_ACTIVE_DISP,
        SET_DM_DATA,
        SET_DISP_DATA,
        SET_CIRCUIT_MAX_SPEED,
        GET_DRIVER_SETTINGS,
        SET_DRIVER_SETTINGS,
        GET_DRIVER_INFO,
        CHECK_BUSY,
        GET_CMD_EST_EXEC_TIME,
        GET_SW_VERSION,
        GET_STATS_ERRORS,
        TURNTABLE_MOVE,
        TURNTABLE_MOVE_STEPS,
        GET_TURNTABLE_POSITIONS,
        GET_CONFIG_CMDS,
        GET_CONN_STATUS,
        GET_DISPENSED_FORMULA,
        CLEANING,
        GET_KEY_CODE,
        SET_SERIAL_NUMBER,
        SET_CALIB_TEST_POINTS,
        SET_DISP_ID,
        AUTOTEST,
        STIR_ALL,
        TURNTABLE_MOVE_TO_REFILL,
        GET_CONNECTIONS,
        GET_HOST_INFO,
        INIT,
        PUNCH,
        PLUG,
        SET_QRCODE_CALIB,
        SET_COLORANT_LIST,
        SET_CANISTER_LIST,
        WEIGHT,
        TARE,
        TARE_SET,
        GET_CURRENT_WEIGHT,
        SCALE_RESET,
        ULTRASOUND_CLEAN,
        GE_TEST,
        DISPLAY_STRING,
        GET_COL_USAGE_STATS,
        SET_LED_STATUS,
        PRIMING2,
        PACK2,
        AIRPURGE,
        MIX,
        SET_SCALE_CONFIG,
        GET_SCALE_CONFIG,
        GET_SCALE_STATUS,
        GET_GRAV_SETTINGS,
        SET_GRAV_SETTINGS,
        SET_BT_SETTINGS,
        GET_BT_SETTINGS,
        GET_ACTIVE_CIRCUITS,
        DEEP_SERVICE,
        ADD_EVENT,
        MIXER_STATUS,
        GET_MIXER_LIST,
        SET_ACTIVE_MACHINE,
        DELETE_MACHINE,
        CLONE_MACHINE,
        SAVE_MACHINE_CONFIG,
        GET_MIXER_STATUS,
        NOZZLE_CLEAN,
        SW_PROCESS_TOGGLE,
        ADD_USS_W_EVENT,
        GET_USS_W_STATUS,
        GET_QRCODE_CALIB,
        GET_RECALIB_LIST,
        SET_RECALIB_LIST,
        RES_FILE_MNGM,
        RES_FILE_WRITE,
        RES_FILE_READ,
        RES_FILE_LIST,
        RES_FILE_DELETE,
        VALVE_TEST,
        CONFIG_PARAM,
        TINT2,
        GET_LEVEL_SENSORS,
        GET_DEVICE_PARAMS,
        ADD_STATS_ERRORS,
        ZDR_CYCLE_OPERATION,
        ZDR_ACTUATOR_MOVE,
        ZDR_SLAVE_PROCEDURE,
        ZDR_GET_COMMANDS,
        MIXER_PLATES,
        GET_FORMULA_EXECUTION,
        GET_SHELF_PARAMS,
        PAUSE,
    };
    static constexpr int rowCount = 167;

    /** How a call waits: for the answer, for a ticket only, or for an answer other than the last one. */
    enum CallKind { BlockingCall = 1, NonBlockingCall = 2, ChangeCall = 4 };

    /** The one object; made on first use, never deleted. Thread safe. */
    static ProtoCommandList *instance();

    /** The row of \a name; null when there is none. The row lives as long as the library. */
    static const CMD_STRUCT *row(const QString &name);
    /** The row of a number; null outside 0 to 166. */
    static const CMD_STRUCT *row(int id);

    static bool existsCommand(const QString &name);
    static QString cmdStr(CommandListValue value);
    static int cmdParamNum(CommandListValue value, bool mandatory);
    static int cmdParamNum(const QString &name, bool mandatory);
    /** The firmware code for an FW_Dispenser::CommandFamily; a null string for any other family. */
    static QString cmdCode(const QString &name, int family);
    /** The XML-RPC method for a CallKind: 2 "EXEC_NB", 4 "EXEC_NC", anything else "EXEC_B". */
    static QString functionCallStr(int mode);

    static bool targetIsDispenser(const QString &name);
    static bool targetIsMixer(const QString &name);
    static bool targetIsMachine(const QString &name);

    // Who carries a command out. Strict asks for exactly this kind; otherwise the mixed kinds count as well.
    static bool isSerialCommand(const QString &name, bool strict);
    static bool isConfigurationCommand(const QString &name, bool strict);
    static bool isSerialAndConfigCommand(const QString &name, bool strict);
    static bool isConfigAndSerialCommand(const QString &name, bool strict);
    static bool isSpecialCommand(const QString &name, bool strict);
    static bool isSpecialAndSerialCommand(const QString &name, bool strict); ///< strict or not is the same
    static bool isSpecialAndConfigCommand(const QString &name, bool strict); ///< strict or not is the same
    static bool isScaleCommand(const QString &name, bool strict);            ///< strict or not is the same

    static bool isMultipleCommand(const QString &name);
    static bool addressMachine(const QString &name);
    static bool hasHighSchedulingPriority(const QString &name);
    static bool checkBusyFlag(const QString &name);
    static qint64 busyTimeout(const QString &name);    ///< milliseconds
    static qint64 commandTimeout(const QString &name); ///< milliseconds, never below 0
    static bool trackExecutionTime(const QString &name);
    static bool recordInStats(const QString &name);
    static int machineObjUsage(const QString &name);
    static bool privateCommand(const QString &name);
    static bool erogationCommand(const QString &name);

    /**
     * A command of any kind: serial rows first (a row that firmware and driver share gives its serial class), then
     * configuration rows, then scale rows. Throws DE00337 (value) or DE00441 (list) for a name that is none of them.
     */
    static ProtoCommand *getProtoCommand(QString name, XmlRpc::XmlRpcValue &args, const FW_Machine *machine);
    static ProtoCommand *getProtoCommand(QString name, QList<QVariant> args, const FW_Machine *machine);

    /** Plain command for a name without a class; throws DE02547 (value) or DE02536 (list) for an unknown name. */
    static SerialProtoCommand *getSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                     const FW_Machine *machine);
    static SerialProtoCommand *getSerialProtoCommand(QString name, QList<QVariant> args,
                                                     const FW_Machine *machine);
    /** Goes on to getSerialProtoCommand for a name that dispensers have no class for; likewise the next one. */
    static SerialProtoCommand *getDispenserSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                              const FW_Dispenser *dispenser);
    static SerialProtoCommand *getDispenserSerialProtoCommand(QString name, QList<QVariant> args,
                                                              const FW_Dispenser *dispenser);
    static SerialProtoCommand *getMixerSerialProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                          const FW_Mixer *mixer);
    static SerialProtoCommand *getMixerSerialProtoCommand(QString name, QList<QVariant> args,
                                                          const FW_Mixer *mixer);

    /** Plain command for a name without a class; throws DE00344 (value) or DE00335 (list) for an unknown name. */
    static ConfProtoCommand *getConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args);
    static ConfProtoCommand *getConfigProtoCommand(QString name, QList<QVariant> args);
    /** Without arguments. \a name must target a dispenser or a mixer; any other is refused with DE03010. */
    static ConfProtoCommand *getConfigProtoCommand(QString name, const FW_Machine *machine);
    /** Goes on to getConfigProtoCommand, without the machine, for a name that it has no class for; likewise the next. */
    static ConfProtoCommand *getDispenserConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                            const FW_Dispenser *dispenser);
    static ConfProtoCommand *getDispenserConfigProtoCommand(QString name, QList<QVariant> args,
                                                            const FW_Dispenser *dispenser);
    static ConfProtoCommand *getMixerConfigProtoCommand(QString name, XmlRpc::XmlRpcValue &args,
                                                        const FW_Mixer *mixer);
    static ConfProtoCommand *getMixerConfigProtoCommand(QString name, QList<QVariant> args,
                                                        const FW_Mixer *mixer);

    /** There is no plain scale command: throws DE02070 (value) or DE02080 (list) for any other name. */
    static ScaleProtoCommand *getScaleProtoCommand(QString name, XmlRpc::XmlRpcValue &args);
    static ScaleProtoCommand *getScaleProtoCommand(QString name, QList<QVariant> args);

    /**
     * Fills \a list with the commands that such a machine has, in the order of the rows; \a family is the machine's
     * FW_Dispenser::CommandFamily, and tells which of the two codes a command has. Execution times are tracked in the first family
     * only. Always true, as the next.
     */
    static bool fillCommandDataList(CommandDataList &list, SerialDeviceType device, int family);
    /**
     * Those of them that the driver carries out by itself while the machine is not connected, and for which the row at the command's
     * position in the whole list has the machine as its target.
     */
    static bool getOfflineCommandDataList(CommandDataList &list, SerialDeviceType device, int family);

private:
    ProtoCommandList() = default;

    static ProtoCommandList *m_Instance;
};
