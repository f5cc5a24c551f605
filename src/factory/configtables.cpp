// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcmdestimatedexectimecmd.h"
#include "base/getcommandstatuscmd.h"
#include "calibration/getcalibrationlistcmd.h"
#include "calibration/getqrcodecalibrationcmd.h"
#include "calibration/getrecalibrationlistcmd.h"
#include "calibration/setcalibrationlistcmd.h"
#include "calibration/setcalibrationprofilescmd.h"
#include "calibration/setcalibtestpointscmd.h"
#include "calibration/setqrcodecalibrationcmd.h"
#include "calibration/setrecalibrationlistcmd.h"
#include "dispensing/checkformulalevelscmd.h"
#include "dispensing/genericformulacmd.h"
#include "dispensing/getdispensedformulaconfcmd.h"
#include "dispensing/getformulacircuitscmd.h"
#include "dispensing/setlevelscmd.h"
#include "factory/commandtables_p.h"
#include "masterdata/getdatalistcmd.h"
#include "masterdata/setcanisterlistcmd.h"
#include "masterdata/setcolorantlistcmd.h"
#include "processes/stopconfcmd.h"
#include "scale/getcurrentweightcmd.h"
#include "scale/getestcmd.h"
#include "scale/getgravsettingscmd.h"
#include "scale/setgravsettingscmd.h"
#include "scale/setscaleconfigcmd.h"
#include "sessions/certifysessioncmd.h"
#include "sessions/getkeycmd.h"
#include "sessions/logincmd.h"
#include "sessions/logoutcmd.h"
#include "settings/getbluetoothsettingscmd.h"
#include "settings/getconnectionscmd.h"
#include "settings/getswversioncmd.h"
#include "settings/setbluetoothsettingscmd.h"
#include "settings/setdriversettingscmd.h"
#include "setup/clonedispensercmd.h"
#include "setup/clonemachinecmd.h"
#include "setup/configparamcmd.h"
#include "setup/deletedispensercmd.h"
#include "setup/deletemachinecmd.h"
#include "setup/getconfigcmd.h"
#include "setup/saveconfigcmd.h"
#include "setup/savedispenserconfigcmd.h"
#include "setup/savemachineconfigcmd.h"
#include "setup/setactivedispcmd.h"
#include "setup/setactivemachinecmd.h"
#include "setup/setcircuitmaxspeedcmd.h"
#include "setup/setconfserialcmd.h"
#include "setup/setdispdatacmd.h"
#include "setup/setdispidcmd.h"
#include "setup/setdosingmotordatacmd.h"
#include "setup/setserialnumbercmd.h"
#include "statistics/addeventcmd.h"
#include "statistics/addstatserrorscmd.h"
#include "statistics/getcolorantusagestatscmd.h"
#include "statistics/getstatserrorscmd.h"
#include "status/dispenserdriverstatuscmd.h"

namespace quv {

using Cmd = ProtoCommandList;

// What reads a formula takes the machine along only when it comes as a value; as a list it is a row of the general table.

constexpr CommandTable<ConfProtoCommand> configTable{
    Dispatch::Config,
    {
        {Cmd::GET_CMD_STATUS, fromArguments<GetCommandStatusCmd>()},
        {Cmd::LOGIN, fromArguments<LoginCmd>()},
        {Cmd::LOGOUT, fromArguments<LogoutCmd>()},
        {Cmd::GET_KEY, fromArguments<GetKeyCmd>()},
        {Cmd::CERTIFY_SESSION, fromArguments<CertifySessionCmd>()},
        {Cmd::SET_DRIVER_SETTINGS, fromArguments<SetDriverSettingsCmd>()},
        {Cmd::GET_DISP_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::GET_CIRCUIT_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::GET_CANISTER_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::GET_COLORANT_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::GET_DEVICE_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::GET_CMD_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::GET_MIXER_LIST, fromNameAndArguments<GetDataListCmd>()},
        {Cmd::SET_COLORANT_LIST, fromArguments<SetColorantListCmd>()},
        {Cmd::SET_CANISTER_LIST, fromArguments<SetCanisterListCmd>()},
        {Cmd::GET_SW_VERSION, fromArguments<GetSwVersionCmd>()},
        {Cmd::SET_BT_SETTINGS, fromArguments<SetBluetoothSettingsCmd>()},
        {Cmd::GET_BT_SETTINGS, fromArguments<GetBluetoothSettingsCmd>()},
        {Cmd::GET_CONFIG, fromArguments<GetConfigCmd>()},
        {Cmd::SAVE_CONFIG, fromArguments<SaveConfigCmd>()},
        {Cmd::DELETE_DISPENSER, fromArguments<DeleteDispenserCmd>()},
        {Cmd::CLONE_DISPENSER, fromArguments<CloneDispenserCmd>()},
        {Cmd::SAVE_DISP_CONFIG, fromArguments<SaveDispenserConfigCmd>()},
        {Cmd::SET_ACTIVE_DISP, fromArguments<SetActiveDispCmd>()},
        {Cmd::SET_ACTIVE_MACHINE, fromArguments<SetActiveMachineCmd>()},
        {Cmd::DELETE_MACHINE, fromArguments<DeleteMachineCmd>()},
        {Cmd::CLONE_MACHINE, fromArguments<CloneMachineCmd>()},
        {Cmd::SAVE_MACHINE_CONFIG, fromArguments<SaveMachineConfigCmd>()},
        {Cmd::STOP, fromArguments<StopConfCmd>()},
        {Cmd::GET_DISP_STATUS, fromArguments<DispenserDriverStatusCmd>()},
        {Cmd::GET_CONNECTIONS, fromArguments<GetConnectionsCmd>()},
        {Cmd::SET_LEVELS, fromArguments<SetLevelsCmd, ListForm>()},
        {Cmd::CHECK_FORMULA_LEVELS, fromArguments<CheckFormulaLevelsCmd, ListForm>()},
        {Cmd::GET_FORMULA_CIRCUITS, fromArguments<GetFormulaCircuitsCmd, ListForm>()},
        {Cmd::GET_LOW_LEVEL_FORMULA, fromNameAndArguments<GenericFormulaCmd, ListForm>()},
        {Cmd::GET_FORMULA_EXECUTION, fromNameAndArguments<GenericFormulaCmd, ListForm>()},
        {Cmd::GET_DISPENSED_FORMULA, fromArguments<GetDispensedFormulaConfCmd>()},
        {Cmd::SET_SERIAL, fromArgumentsAndMachine<SetConfSerialCmd, ListForm>()},
        {Cmd::SET_SERIAL_NUMBER, fromArguments<SetSerialNumberCmd>()},
        {Cmd::SET_DISP_ID, fromArguments<SetDispIDCmd>()},
        {Cmd::CONFIG_PARAM, fromArguments<ConfigParamCmd>()},
        {Cmd::SET_CALIB_PROFILES, fromArguments<SetCalibrationProfilesCmd>()},
        {Cmd::SET_CALIB_LIST, fromArguments<SetCalibrationListCmd>()},
        {Cmd::SET_CALIB_TEST_POINTS, fromArguments<SetCalibTestPointsCmd>()},
        {Cmd::SET_QRCODE_CALIB, fromArguments<SetQRCodeCalibrationCmd>()},
        {Cmd::GET_QRCODE_CALIB, fromArguments<GetQRCodeCalibrationCmd>()},
        {Cmd::SET_RECALIB_LIST, fromArguments<SetRecalibrationListCmd>()},
        {Cmd::GET_CURRENT_WEIGHT, fromArguments<GetCurrentWeightCmd>()},
        {Cmd::SET_SCALE_CONFIG, fromArguments<SetScaleConfigCmd>()},
        {Cmd::GET_GRAV_SETTINGS, fromArguments<GetGravSettingsCmd>()},
        {Cmd::SET_GRAV_SETTINGS, fromArguments<SetGravSettingsCmd>()},
        {Cmd::GE_TEST, fromArguments<GETestCmd>()},
        {Cmd::ADD_EVENT, fromArguments<AddEventCmd>()},
        {Cmd::ADD_STATS_ERRORS, fromArguments<AddStatsErrorsCmd>()},
        {Cmd::GET_STATS_ERRORS, fromArguments<GetStatsErrorsCmd>()},
        {Cmd::GET_COL_USAGE_STATS, fromArguments<GetColorantUsageStatsCmd>()},
    }};

constexpr CommandTable<ConfProtoCommand> dispenserConfigTable{
    Dispatch::DispenserConfig,
    {
        {Cmd::CLOSE_SERIAL, fromNameArgumentsAndMachine<ConfProtoCommand, ListForm>()},
        {Cmd::SET_LEVELS, fromArgumentsAndMachine<SetLevelsCmd, ValueForm>()},
        {Cmd::CHECK_FORMULA_LEVELS, fromArgumentsAndMachine<CheckFormulaLevelsCmd, ValueForm>()},
        {Cmd::GET_FORMULA_CIRCUITS, fromArgumentsAndMachine<GetFormulaCircuitsCmd, ValueForm>()},
        {Cmd::GET_LOW_LEVEL_FORMULA, fromNameArgumentsAndMachine<GenericFormulaCmd, ValueForm>()},
        {Cmd::GET_FORMULA_EXECUTION, fromNameArgumentsAndMachine<GenericFormulaCmd, ValueForm>()},
        {Cmd::GET_CMD_EST_EXEC_TIME, fromArgumentsAndMachine<GetCmdEstimatedExecTimeCmd>()},
        {Cmd::SET_SERIAL, fromArgumentsAndMachine<SetConfSerialCmd, ValueForm>()},
        {Cmd::SET_DM_DATA, fromArgumentsAndDispenser<SetDosingMotorDataCmd>()},
        {Cmd::SET_DISP_DATA, fromArgumentsAndDispenser<SetDispDataCmd>()},
        {Cmd::SET_CIRCUIT_MAX_SPEED, fromArgumentsAndDispenser<SetCircuitMaxSpeedCmd>()},
        {Cmd::GET_CALIB_LIST, fromArgumentsAndDispenser<GetCalibrationListCmd>()},
        {Cmd::GET_RECALIB_LIST, fromArgumentsAndDispenser<GetRecalibrationListCmd>()},
    }};

constexpr CommandTable<ConfProtoCommand> mixerConfigTable{
    Dispatch::MixerConfig,
    {
        {Cmd::GET_CMD_EST_EXEC_TIME, fromArgumentsAndMachine<GetCmdEstimatedExecTimeCmd>()},
    }};

} // namespace quv
