// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdscmd.h"
#include "configuration/readconfigurationparamcmd.h"
#include "configuration/writeconfigurationparamcmd.h"
#include "dispensing/airpurgecmd.h"
#include "dispensing/channeltintcmd.h"
#include "dispensing/getdispensedformulaserialcmd.h"
#include "dispensing/pack2cmd.h"
#include "dispensing/packcmd.h"
#include "dispensing/priming2cmd.h"
#include "dispensing/primingcmd.h"
#include "dispensing/purgeformulacmd.h"
#include "dispensing/tintcmd.h"
#include "factory/commandtables_p.h"
#include "firmware/boardmemorycmd.h"
#include "firmware/clearboardstatscmd.h"
#include "firmware/firmwareresetcmd.h"
#include "firmware/firmwareupdatecmd.h"
#include "firmware/firmwareversioncmd.h"
#include "firmware/getlastboardstatscmd.h"
#include "firmware/getrealboardstatscmd.h"
#include "firmware/resourcefiledeletecmd.h"
#include "firmware/resourcefilelistcmd.h"
#include "firmware/resourcefilemanagementcmd.h"
#include "firmware/resourcefilereadcmd.h"
#include "firmware/resourcefilewritecmd.h"
#include "firmware/setboardstatscmd.h"
#include "firmware/slavejumpcmd.h"
#include "machine/autotestcmd.h"
#include "machine/firmwarecommandscmd.h"
#include "processes/autocapcmd.h"
#include "processes/cleaningcmd.h"
#include "processes/getlevelsensorscmd.h"
#include "processes/getshelfposcmd.h"
#include "processes/mixcmd.h"
#include "processes/mixerplatescmd.h"
#include "processes/motorrunningcmd.h"
#include "processes/newtransparentcmd.h"
#include "processes/nozzlecleancmd.h"
#include "processes/pausecmd.h"
#include "processes/recirculationcmd.h"
#include "processes/resetcmd.h"
#include "processes/setboardpowercmd.h"
#include "processes/setdispoutputcmd.h"
#include "processes/setledstatuscmd.h"
#include "processes/shelfcmd.h"
#include "processes/stirallcmd.h"
#include "processes/stirringcmd.h"
#include "processes/stopserialcmd.h"
#include "processes/swprocesstogglecmd.h"
#include "processes/toggletemporizedcmd.h"
#include "processes/turntablemovecmd.h"
#include "processes/turntablemovestepscmd.h"
#include "processes/turntablemovetorefillcmd.h"
#include "processes/ultrasoundcleaningcmd.h"
#include "processes/workingmodecmd.h"
#include "processes/zdractuatormovingcmd.h"
#include "processes/zdrcycleoperationcmd.h"
#include "processes/zdrslaveprocedurecmd.h"
#include "setup/cleardispinfocmd.h"
#include "setup/getdispinfocmd.h"
#include "setup/setdispinfocmd.h"
#include "setup/setserialserialcmd.h"
#include "status/circuitsstatuscmd.h"
#include "status/clearerrorscmd.h"
#include "status/dispenserstatuscmd.h"
#include "status/fwerrorcmd.h"
#include "status/getactivecircuitscmd.h"
#include "status/mixerstatuscmd.h"
#include "status/sensordatacmd.h"

namespace quv {

using Cmd = ProtoCommandList;

constexpr CommandTable<SerialProtoCommand> serialTable{
    Dispatch::Serial,
    {
        {Cmd::SET_SERIAL, fromArgumentsAndMachine<SetSerialSerialCmd>()},
        {Cmd::GET_ERRORS, fromName<SerialProtoCommand>()},
        {Cmd::GET_ERROR_PKT, fromArguments<FwErrorCmd>()},
        {Cmd::CLEAR_ERRORS, fromNothing<ClearErrorsCmd>()},
        {Cmd::WRITE_CONFIG_ROW, fromArguments<WriteConfigurationParamCmd>()},
        {Cmd::READ_CONFIG_ROW, fromArguments<ReadConfigurationParamCmd>()},
        {Cmd::GET_CONFIG_CMDS, fromArguments<GetConfigCmdsCmd>()},
        {Cmd::FINALIZE_CONFIG, fromName<SerialProtoCommand>()},
        {Cmd::GET_DISP_INFO, fromArguments<GetDispInfoCmd>()},
        {Cmd::SET_DISP_INFO, fromArguments<SetDispInfoCmd>()},
        {Cmd::CLEAR_DISP_INFO, fromArguments<ClearDispInfoCmd>()},
        {Cmd::GET_FW_COMMANDS, fromArguments<FirmwareCommandsCmd>()},
        {Cmd::GET_SENSORS_STATUS, fromName<SerialProtoCommand>()},
        {Cmd::GET_SENSOR_DATA, fromArguments<SensorDataCmd>()},
        {Cmd::CLOSE_SERIAL, fromName<SerialProtoCommand>()},
        {Cmd::READ_FW_VERSION, fromArguments<FirmwareVersionCmd>()},
        {Cmd::RESET_FW, fromArguments<FirmwareResetCmd>()},
        {Cmd::UPDATE_FW, fromArguments<FirmwareUpdateCmd>()},
        {Cmd::SLAVE_JUMP, fromArguments<SlaveJumpCmd>()},
        {Cmd::RES_FILE_MNGM, fromArguments<ResourceFileManagementCmd>()},
        {Cmd::RES_FILE_WRITE, fromArguments<ResourceFileWriteCmd>()},
        {Cmd::RES_FILE_READ, fromArguments<ResourceFileReadCmd>()},
        {Cmd::RES_FILE_LIST, fromArguments<ResourceFileListCmd>()},
        {Cmd::RES_FILE_DELETE, fromArguments<ResourceFileDeleteCmd>()},
        {Cmd::BOARD_MEMORY, fromArguments<BoardMemoryCmd>()},
        {Cmd::GET_LAST_BOARD_STATS, fromArguments<GetLastBoardStatsCmd>()},
        {Cmd::GET_REAL_BOARD_STATS, fromArguments<GetRealBoardStatsCmd>()},
        {Cmd::SET_BOARD_STATS, fromArguments<SetBoardStatsCmd>()},
        {Cmd::CLEAR_BOARD_STATS, fromArguments<ClearBoardStatsCmd>()},
        {Cmd::MIXER_PLATES, fromArguments<MixerPlatesCmd>()},
        {Cmd::STOP, fromArguments<StopSerialCmd>()},
        {Cmd::WORKING_MODE, fromArguments<WorkingModeCmd>()},
        {Cmd::SET_DISP_OUTPUT, fromArguments<SetDispOutputCmd>()},
        {Cmd::SET_BOARD_POWER, fromArguments<SetBoardPowerCmd>()},
        {Cmd::SW_PROCESS_TOGGLE, fromArguments<SwProcessToggleCmd>()},
        {Cmd::DEEP_SERVICE, fromArguments<NewTransparentCmd>()},
    }};

constexpr CommandTable<SerialProtoCommand> dispenserSerialTable{
    Dispatch::DispenserSerial,
    {
        {Cmd::GET_STATUS, fromArguments<DispenserStatusCmd>()},
        {Cmd::GET_CIRCUITS_STATUS, fromArgumentsAndDispenser<CircuitsStatusCmd>()},
        {Cmd::AUTOCAP_MOVE, fromArguments<AutocapCmd>()},
        {Cmd::SHELF_MOVE, fromArguments<ShelfCmd>()},
        {Cmd::GET_SHELF_POS, fromArguments<GetShelfPosCmd>()},
        {Cmd::RESET, fromArguments<ResetCmd>()},
        {Cmd::AUTOTEST, fromArguments<AutotestCmd>()},
        {Cmd::STIRRING, fromArguments<StirringCmd>()},
        {Cmd::RECIRCULATION, fromArgumentsAndDispenser<RecirculationCmd>()},
        {Cmd::STIR_ALL, fromArgumentsAndDispenser<StirAllCmd>()},
        {Cmd::CLEANING, fromArguments<CleaningCmd>()},
        {Cmd::ULTRASOUND_CLEAN, fromArguments<UltrasoundCleaningCmd>()},
        {Cmd::NOZZLE_CLEAN, fromArguments<NozzleCleanCmd>()},
        {Cmd::PAUSE, fromArguments<PauseCmd>()},
        {Cmd::TOGGLE_TEMPORIZED, fromArguments<ToggleTemporizedCmd>()},
        {Cmd::MOTOR_RUNNING, fromArguments<MotorRunningCmd>()},
        {Cmd::SET_LED_STATUS, fromArguments<SetLedStatusCmd>()},
        {Cmd::GET_LEVEL_SENSORS, fromArguments<GetLevelSensorsCmd>()},
        {Cmd::TINT, fromArgumentsAndDispenser<TintCmd>()},
        {Cmd::PRIMING, fromArgumentsAndDispenser<PrimingCmd>()},
        {Cmd::PACK, fromArgumentsAndDispenser<PackCmd>()},
        {Cmd::PURGE, fromArgumentsAndDispenser<PurgeFormulaCmd>()},
        {Cmd::CHANNEL_TINT, fromArgumentsAndDispenser<ChannelTintCmd>()},
        {Cmd::GET_DISPENSED_FORMULA, fromArguments<GetDispensedFormulaSerialCmd>()},
        {Cmd::PRIMING2, fromArgumentsAndDispenser<Priming2Cmd>()},
        {Cmd::PACK2, fromArgumentsAndDispenser<Pack2Cmd>()},
        {Cmd::AIRPURGE, fromArgumentsAndDispenser<AirpurgeCmd>()},
        {Cmd::TURNTABLE_MOVE, fromArguments<TurntableMoveCmd>()},
        {Cmd::TURNTABLE_MOVE_STEPS, fromArguments<TurntableMoveStepsCmd>()},
        {Cmd::TURNTABLE_MOVE_TO_REFILL, fromArgumentsAndDispenser<TurntableMoveToRefillCmd>()},
        {Cmd::ZDR_CYCLE_OPERATION, fromArguments<ZDRCycleOperationCmd>()},
        {Cmd::ZDR_ACTUATOR_MOVE, fromArguments<ZDRActuatorMovingCmd>()},
        {Cmd::ZDR_SLAVE_PROCEDURE, fromArguments<ZDRSlaveProcedureCmd>()},
        {Cmd::GET_ACTIVE_CIRCUITS, fromArguments<GetActiveCircuitsCmd>()},
        {Cmd::GET_TURNTABLE_POSITIONS, fromName<SerialProtoCommand>()},
    }};

constexpr CommandTable<SerialProtoCommand> mixerSerialTable{
    Dispatch::MixerSerial,
    {
        {Cmd::MIXER_STATUS, fromArguments<MixerStatusCmd>()},
        {Cmd::MIX, fromArguments<MixCmd>()},
    }};

} // namespace quv
