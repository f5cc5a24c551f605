// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"
#include "catalogue/protocommandlist.h"
#include "machine/commanddatalist.h"

namespace {

using Device = SerialDeviceType;

constexpr int family1 = FW_Dispenser::CommandFamily1;
constexpr int family2 = FW_Dispenser::CommandFamily2;

using Fill = bool (*)(CommandDataList &list, SerialDeviceType device, int family);

/** The names of what \a fill gives, in their order. */
QStringList names(Fill fill, Device device, int family)
{
    CommandDataList list;
    list.appendCommandData(CommandData()); // what was there before goes
    EXPECT_TRUE(fill(list, device, family));
    QStringList names;
    for (int i = 0; i < list.size(); ++i)
        names.append(list.at(i).name);
    return names;
}

QStringList all(Device device, int family)
{
    return names(ProtoCommandList::fillCommandDataList, device, family);
}

QStringList offline(Device device, int family)
{
    return names(ProtoCommandList::getOfflineCommandDataList, device, family);
}

CommandData entry(Device device, int family, const char *name)
{
    CommandDataList list;
    ProtoCommandList::fillCommandDataList(list, device, family);
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).name == name)
            return list.at(i);
    }
    ADD_FAILURE() << "no " << name;
    return CommandData();
}

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(' ');
}

TEST(FilledLists, haveWhatTheMachineAndItsFamilyHave)
{
    EXPECT_EQ(all(Device::Dispenser, family1).size(), 148);
    EXPECT_EQ(
        all(Device::Dispenser, family2),
        words("GET_STATUS GET_DISP_STATUS AUTOCAP_MOVE SHELF_MOVE RESET TINT RECIRCULATION GET_ERRORS "
              "CLEAR_ERRORS "
              "PACK PURGE READ_FW_VERSION GET_DISP_LIST GET_CMD_LIST GET_DEVICE_LIST GET_CIRCUIT_LIST "
              "GET_CANISTER_LIST GET_COLORANT_LIST SET_LEVELS CHECK_FORMULA_LEVELS GET_ACTIVE_DISP STIR_ALL "
              "TURNTABLE_MOVE_TO_REFILL INIT PUNCH PLUG PACK2 VALVE_TEST GET_SHELF_PARAMS"));
    EXPECT_EQ(
        all(Device::Mixer, family1),
        words("RESET STOP GET_ERRORS GET_ERROR_PKT CLEAR_ERRORS ERRORS_NUM WORKING_MODE TOGGLE_TEMPORIZED "
              "WRITE_CONFIG_ROW READ_CONFIG_ROW FINALIZE_CONFIG GET_CMD_ID GET_DISP_INFO SET_DISP_INFO "
              "CLEAR_DISP_INFO RESET_FW UPDATE_FW SLAVE_JUMP READ_FW_VERSION GET_FW_COMMANDS BOARD_MEMORY "
              "GET_LAST_BOARD_STATS GET_REAL_BOARD_STATS SET_BOARD_STATS CLEAR_BOARD_STATS CHECK_SERIAL "
              "SET_SERIAL "
              "CLOSE_SERIAL SAVE_CONFIG GET_CONFIG WRITE_FW_CONFIG READ_FW_CONFIG SET_CALIB_PROFILES "
              "GET_CALIB_PROFILES LOGIN LOGOUT GET_KEY CERTIFY_SESSION GET_CMD_STATUS GET_CMD_LIST "
              "GET_ACTIVE_DISP "
              "CHECK_BUSY GET_CMD_EST_EXEC_TIME GET_CONFIG_CMDS GET_KEY_CODE SET_SERIAL_NUMBER MIX "
              "MIXER_STATUS "
              "GET_MIXER_LIST SET_ACTIVE_MACHINE DELETE_MACHINE CLONE_MACHINE SAVE_MACHINE_CONFIG "
              "GET_MIXER_STATUS "
              "RES_FILE_MNGM RES_FILE_WRITE RES_FILE_READ RES_FILE_LIST RES_FILE_DELETE CONFIG_PARAM "
              "MIXER_PLATES"));
    EXPECT_EQ(all(Device::Mixer, family2),
              words("RESET GET_ERRORS CLEAR_ERRORS READ_FW_VERSION GET_CMD_LIST GET_ACTIVE_DISP"));
    EXPECT_EQ(all(Device::Scale, family1), QStringList());
}

TEST(FilledLists, askForAllBitsOfMachineAndFamily)
{
    EXPECT_EQ(all(static_cast<Device>(5), family1).size(), 52) << "dispensers and mixers";
    EXPECT_EQ(all(Device::Dispenser, family1 | family2).size(), 24);
    EXPECT_EQ(all(Device::Dispenser, 4), QStringList());
}

TEST(FilledLists, takeOverTheRow)
{
    const CommandData tint = entry(Device::Dispenser, family1, "TINT");
    EXPECT_EQ(tint.id, 8);
    EXPECT_EQ(tint.m_code, "0017");
    EXPECT_EQ(tint.minParams, 1);
    EXPECT_EQ(tint.maxParams, 1);
    EXPECT_EQ(tint.type, 5);
    EXPECT_FALSE(tint.multiple);
    EXPECT_TRUE(tint.useDispenser);
    EXPECT_TRUE(tint.checkBusy);
    EXPECT_TRUE(tint.trackExecutionTime);
    EXPECT_EQ(tint.busyTimeout, 9999999);
    EXPECT_EQ(tint.busyCheckFrequency, 500);
    EXPECT_TRUE(tint.recordInStats);
    EXPECT_EQ(tint.machineObjUsage, 2);
    EXPECT_FALSE(tint.privateCommand);
    EXPECT_TRUE(tint.erogationCommand);
    EXPECT_TRUE(tint.available);
    EXPECT_EQ(tint.version, 0);

    const CommandData stop = entry(Device::Mixer, family1, "STOP");
    EXPECT_EQ(stop.workingPriorityLevel, 5);
    EXPECT_EQ(stop.schedulingPriorityLevel, 8);
    const CommandData stats = entry(Device::Dispenser, family1, "GET_REAL_BOARD_STATS");
    EXPECT_TRUE(stats.multiple);
    EXPECT_EQ(stats.minParams, 1);
    EXPECT_EQ(stats.maxParams, 2);
    EXPECT_TRUE(entry(Device::Dispenser, family1, "GET_CMD_ID").privateCommand);
    EXPECT_FALSE(entry(Device::Dispenser, family1, "LOGIN").useDispenser);
    EXPECT_FALSE(entry(Device::Dispenser, family1, "LOGIN").checkBusy);
}

TEST(FilledLists, haveTheCodesOfTheFamilyAndTrackInTheFirstAlone)
{
    EXPECT_EQ(entry(Device::Dispenser, family1, "GET_STATUS").m_code, "0006");
    EXPECT_EQ(entry(Device::Dispenser, family2, "GET_STATUS").m_code, "I3");
    EXPECT_EQ(entry(Device::Dispenser, family1 | family2, "GET_STATUS").m_code, "I3");
    const CommandData tint = entry(Device::Dispenser, family2, "TINT");
    EXPECT_EQ(tint.m_code, "");
    EXPECT_FALSE(tint.trackExecutionTime);
    EXPECT_TRUE(tint.erogationCommand);
}

TEST(OfflineLists, haveWhatTheDriverDoesByItself)
{
    EXPECT_EQ(
        offline(Device::Dispenser, family2),
        words("GET_DISP_STATUS GET_DISP_LIST GET_CMD_LIST GET_DEVICE_LIST GET_CIRCUIT_LIST GET_CANISTER_LIST "
              "GET_COLORANT_LIST SET_LEVELS CHECK_FORMULA_LEVELS GET_ACTIVE_DISP GET_SHELF_PARAMS"));
    EXPECT_EQ(offline(Device::Scale, family1), QStringList());
}

/** Which row's target decides is that of the position in the list, so that a few are left out. */
TEST(OfflineLists, askTheRowAtThePositionForItsTarget)
{
    const QStringList dispenser = offline(Device::Dispenser, family1);
    EXPECT_EQ(
        dispenser,
        words("GET_DISP_STATUS CHECK_SERIAL SAVE_CONFIG GET_CONFIG SET_CALIB_PROFILES GET_CALIB_PROFILES "
              "DELETE_DISPENSER CLONE_DISPENSER SAVE_DISP_CONFIG LOGIN LOGOUT GET_KEY CERTIFY_SESSION "
              "GET_CMD_STATUS GET_DISP_LIST GET_CMD_LIST GET_DEVICE_LIST GET_CIRCUIT_LIST "
              "GET_CANISTER_LIST GET_COLORANT_LIST GET_CALIB_LIST SET_CALIB_LIST SET_LEVELS "
              "CHECK_FORMULA_LEVELS GET_FORMULA_CIRCUITS GET_LOW_LEVEL_FORMULA SET_ACTIVE_DISP "
              "GET_ACTIVE_DISP SET_DM_DATA SET_DISP_DATA SET_CIRCUIT_MAX_SPEED GET_CONN_STATUS "
              "SET_SERIAL_NUMBER SET_CALIB_TEST_POINTS SET_DISP_ID GET_CONNECTIONS SET_QRCODE_CALIB "
              "SET_COLORANT_LIST SET_CANISTER_LIST GET_CURRENT_WEIGHT SCALE_RESET GE_TEST "
              "GET_COL_USAGE_STATS SET_SCALE_CONFIG GET_SCALE_CONFIG GET_SCALE_STATUS GET_GRAV_SETTINGS "
              "SET_GRAV_SETTINGS SET_BT_SETTINGS GET_BT_SETTINGS ADD_EVENT SET_ACTIVE_MACHINE "
              "DELETE_MACHINE CLONE_MACHINE SAVE_MACHINE_CONFIG ADD_USS_W_EVENT GET_USS_W_STATUS "
              "GET_QRCODE_CALIB CONFIG_PARAM GET_DEVICE_PARAMS GET_FORMULA_EXECUTION"));
    for (const char *left : {"CHECK_BUSY", "GET_CMD_EST_EXEC_TIME", "GET_STATS_ERRORS", "GET_RECALIB_LIST",
                             "SET_RECALIB_LIST", "ADD_STATS_ERRORS"}) {
        EXPECT_TRUE(all(Device::Dispenser, family1).contains(left)) << left;
        EXPECT_FALSE(dispenser.contains(left)) << left;
    }
    EXPECT_EQ(
        offline(Device::Mixer, family1),
        words("CHECK_SERIAL SET_CALIB_PROFILES GET_CALIB_PROFILES LOGIN LOGOUT GET_KEY GET_ACTIVE_DISP "
              "GET_CMD_EST_EXEC_TIME SET_SERIAL_NUMBER GET_MIXER_LIST SET_ACTIVE_MACHINE DELETE_MACHINE "
              "SAVE_MACHINE_CONFIG GET_MIXER_STATUS CONFIG_PARAM"));
    EXPECT_EQ(offline(Device::Mixer, family2), QStringList()) << "positions 4 and 5 are rows of dispensers";
}

} // namespace
