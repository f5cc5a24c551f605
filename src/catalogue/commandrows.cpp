// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/commandrows_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <chrono>
#include <type_traits>
#include <utility>

using namespace quv::catalogue;
using namespace std::chrono_literals;

namespace {

/** The machines that a command is for. */
enum Target : int {
    NoMachine = 0,
    Dispenser = static_cast<int>(SerialDeviceType::Dispenser),
    Mixer = static_cast<int>(SerialDeviceType::Mixer)
};

/** The families of firmware that know a command. */
enum Family : int { Family1 = FW_Dispenser::CommandFamily1, Family2 = FW_Dispenser::CommandFamily2 };

/** What is true of a command. */
enum Flag : unsigned {
    OfDriver = 0,  ///< of the driver alone, addressed to no machine
    OfMachine = 1, ///< addressed to a machine
    Multiple = 2,
    ChecksBusy = 4,    ///< has to do with whether the machine is busy
    Tracked = 8,       ///< the driver measures how long it takes
    InStatistics = 16, ///< the driver records it in the statistics
    Private = 32,
    Pours = 64 ///< delivers colorant
};

template <class Mask, class = std::enable_if_t<std::is_enum_v<Mask>>>
constexpr Mask operator|(Mask one, Mask other)
{
    using Value = std::underlying_type_t<Mask>;
    return static_cast<Mask>(static_cast<Value>(one) | static_cast<Value>(other));
}

constexpr std::chrono::milliseconds dependsOnParameters(9999999);

/** A row as it is told below: what every command has first, then by name what only some have. */
class Command
{
public:
    Command(QString name, CommandType type, Target target, Family families, Flag flags)
    {
        m_row.name = std::move(name);
        m_row.type = type;
        m_row.target = target;
        m_row.familyMask = families;
        m_row.addressMachine = (flags & OfMachine) != 0;
        m_row.multiple = (flags & Multiple) != 0;
        m_row.checkBusy = (flags & ChecksBusy) != 0;
        m_row.trackExecutionTime = (flags & Tracked) != 0;
        m_row.recordInStats = (flags & InStatistics) != 0;
        m_row.privateCommand = (flags & Private) != 0;
        m_row.erogationCommand = (flags & Pours) != 0;
    }

    Command &&parameters(int least, int most) &&
    {
        m_row.minParams = least;
        m_row.maxParams = most;
        return std::move(*this);
    }
    Command &&parameters(int count) && { return std::move(*this).parameters(count, count); }
    Command &&workingPriority(int level) &&
    {
        m_row.workingPriorityLevel = level;
        return std::move(*this);
    }
    Command &&schedulingPriority(int level) &&
    {
        m_row.schedulingPriorityLevel = level;
        return std::move(*this);
    }
    /** The machine, and for how long at most. */
    Command &&keepsBusy(std::chrono::milliseconds time) &&
    {
        m_row.busyTimeout = time.count();
        return std::move(*this);
    }
    /** How it uses the driver's object of the machine, as a level that only the driver reads. */
    Command &&machineUse(int level) &&
    {
        m_row.machineObjUsage = level;
        return std::move(*this);
    }
    /** The firmware's, of family 1 and of family 2. */
    Command &&code(QString ofFamily1, QString ofFamily2 = QString()) &&
    {
        m_row.code = std::move(ofFamily1);
        m_row.altCode = std::move(ofFamily2);
        return std::move(*this);
    }

    const CMD_STRUCT &row() const { return m_row; }

private:
    CMD_STRUCT m_row;
};

/** The rows as told, in the order of their numbers. */
Rows numbered(const Command (&told)[std::tuple_size_v<Rows>])
{
    Rows rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = told[i].row();
        rows[i].id = static_cast<int>(i);
    }
    return rows;
}

} // namespace

// clang-format off
const Rows &quv::catalogue::rows()
{
    static const Rows all = numbered({
        Command(QStringLiteral("GET_STATUS"),
            Serial, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).schedulingPriority(6).code(QStringLiteral("0006"), QStringLiteral("I3")),
        Command(QStringLiteral("GET_DISP_STATUS"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .schedulingPriority(6),
        Command(QStringLiteral("GET_CIRCUITS_STATUS"),
            Serial, Dispenser, Family1, OfMachine | Multiple)
            .parameters(0, 1).schedulingPriority(6).keepsBusy(40s).machineUse(1),
        Command(QStringLiteral("AUTOCAP_MOVE"),
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1).keepsBusy(20s).code(QStringLiteral("0041")),
        Command(QStringLiteral("SHELF_MOVE"),
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 2).keepsBusy(40s).code(QStringLiteral("0071")),
        Command(QStringLiteral("GET_SHELF_POS"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy)
            .parameters(0, 1).workingPriority(1).schedulingPriority(1).code(QStringLiteral("0072")),
        Command(QStringLiteral("RESET"),
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine | ChecksBusy | Tracked)
            .parameters(0, 1).keepsBusy(6min).code(QStringLiteral("0001")),
        Command(QStringLiteral("STOP"),
            ConfigurationAndSerial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(0, 2).workingPriority(5).schedulingPriority(8).keepsBusy(1min).code(QStringLiteral("0003")),
        Command(QStringLiteral("TINT"),
            SpecialAndSerial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("STIRRING"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(2).keepsBusy(dependsOnParameters).code(QStringLiteral("0004")),
        Command(QStringLiteral("RECIRCULATION"),
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(2, 4).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0005")),
        Command(QStringLiteral("GET_ERRORS"),
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .schedulingPriority(5),
        Command(QStringLiteral("GET_ERROR_PKT"),
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .schedulingPriority(5).code(QStringLiteral("000C")),
        Command(QStringLiteral("CLEAR_ERRORS"),
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .code(QStringLiteral("000C")),
        Command(QStringLiteral("ERRORS_NUM"),
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .schedulingPriority(5).code(QStringLiteral("000C")),
        Command(QStringLiteral("PRIMING"),
            SpecialAndSerial, Dispenser, Family1, OfMachine | ChecksBusy | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("PACK"),
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | Pours)
            .parameters(2).keepsBusy(4min).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("PURGE"),
            SpecialAndSerial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1, 3).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("WORKING_MODE"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(0, 1).workingPriority(9).keepsBusy(40s).code(QStringLiteral("0020"), QStringLiteral("FR")),
        Command(QStringLiteral("TOGGLE_TEMPORIZED"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(0, 3).workingPriority(9).keepsBusy(40s).code(QStringLiteral("0020"), QStringLiteral("FR")),
        Command(QStringLiteral("WRITE_CONFIG_ROW"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(0, 2).code(QStringLiteral("0065")),
        Command(QStringLiteral("READ_CONFIG_ROW"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(0, 2).code(QStringLiteral("0066")),
        Command(QStringLiteral("FINALIZE_CONFIG"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | Private)
            .keepsBusy(40s).code(QStringLiteral("0067")),
        Command(QStringLiteral("GET_CMD_ID"),
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .parameters(1).code(QStringLiteral("0068")),
        Command(QStringLiteral("GET_DISP_INFO"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1).keepsBusy(40s).code(QStringLiteral("0077")),
        Command(QStringLiteral("SET_DISP_INFO"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(2).keepsBusy(40s).code(QStringLiteral("0077")),
        Command(QStringLiteral("CLEAR_DISP_INFO"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(1).keepsBusy(40s).code(QStringLiteral("0077")),
        Command(QStringLiteral("GET_SENSORS_STATUS"),
            Serial, Dispenser, Family1, OfMachine)
            .schedulingPriority(5).code(QStringLiteral("0043")),
        Command(QStringLiteral("GET_SENSOR_DATA"),
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1, 2).schedulingPriority(5).code(QStringLiteral("0060")),
        Command(QStringLiteral("SET_DISP_OUTPUT"),
            Serial, Dispenser, Family1, OfMachine)
            .parameters(2, 4).code(QStringLiteral("0013")),
        Command(QStringLiteral("SET_BOARD_POWER"),
            Serial, Dispenser, Family1, OfMachine)
            .parameters(2, 3).code(QStringLiteral("0076")),
        Command(QStringLiteral("CHANNEL_TINT"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Pours)
            .parameters(2).keepsBusy(4min).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("RESET_FW"),
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .parameters(1, 2).workingPriority(9).schedulingPriority(9).code(QStringLiteral("3F78")),
        Command(QStringLiteral("UPDATE_FW"),
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("SLAVE_JUMP"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | Private)
            .parameters(2).workingPriority(9).schedulingPriority(9).keepsBusy(40s).code(QStringLiteral("3F79")),
        Command(QStringLiteral("READ_FW_VERSION"),
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .parameters(1).schedulingPriority(5).code(QStringLiteral("000F")),
        Command(QStringLiteral("GET_FW_COMMANDS"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(0, 1).code(QStringLiteral("0014")),
        Command(QStringLiteral("FW_SCAN"),
            SpecialAndSerial, Dispenser, Family1, OfMachine | Tracked)
            .workingPriority(9).code(QStringLiteral("0022")),
        Command(QStringLiteral("FW_SCAN_START"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | Private)
            .workingPriority(9).keepsBusy(4min).code(QStringLiteral("0022")),
        Command(QStringLiteral("FW_SCAN_READ"),
            Serial, Dispenser, Family1, OfMachine | Private)
            .workingPriority(9).code(QStringLiteral("0022")),
        Command(QStringLiteral("BOARD_MEMORY"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(6, 10).code(QStringLiteral("0F01")),
        Command(QStringLiteral("MOTOR_RUNNING"),
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1, 2).code(QStringLiteral("0011")),
        Command(QStringLiteral("GET_LAST_BOARD_STATS"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1, 2).code(QStringLiteral("0078")),
        Command(QStringLiteral("GET_REAL_BOARD_STATS"),
            Serial, Dispenser | Mixer, Family1, OfMachine | Multiple | ChecksBusy)
            .parameters(1, 2).keepsBusy(4min).code(QStringLiteral("0078")),
        Command(QStringLiteral("SET_BOARD_STATS"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(2).keepsBusy(4min).code(QStringLiteral("0078")),
        Command(QStringLiteral("CLEAR_BOARD_STATS"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(1, 2).keepsBusy(4min).code(QStringLiteral("0078")),
        Command(QStringLiteral("CHECK_SERIAL"),
            Configuration, Dispenser | Mixer, Family1, OfMachine | Multiple)
            .parameters(1),
        Command(QStringLiteral("SET_SERIAL"),
            SerialAndConfiguration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("CLOSE_SERIAL"),
            SerialAndConfiguration, Dispenser | Mixer, Family1, OfMachine),
        Command(QStringLiteral("SAVE_CONFIG"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1).keepsBusy(40s),
        Command(QStringLiteral("GET_CONFIG"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(0, 1).keepsBusy(40s),
        Command(QStringLiteral("CLEAN_CONFIG"),
            SpecialAndConfiguration, Dispenser, Family1, OfMachine)
            .machineUse(2),
        Command(QStringLiteral("WRITE_FW_CONFIG"),
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("READ_FW_CONFIG"),
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine),
        Command(QStringLiteral("SET_CALIB_PROFILES"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(3),
        Command(QStringLiteral("GET_CALIB_PROFILES"),
            Configuration, Dispenser | Mixer, Family1, OfDriver),
        Command(QStringLiteral("DELETE_DISPENSER"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("CLONE_DISPENSER"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("SAVE_DISP_CONFIG"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("LOGIN"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2, 3),
        Command(QStringLiteral("LOGOUT"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_KEY"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("CERTIFY_SESSION"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("GET_CMD_STATUS"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1).workingPriority(5).schedulingPriority(5),
        Command(QStringLiteral("GET_DISP_LIST"),
            Configuration, Dispenser, Family1 | Family2, OfDriver)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CMD_LIST"),
            Configuration, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .parameters(0, 1),
        Command(QStringLiteral("GET_DEVICE_LIST"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CIRCUIT_LIST"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CANISTER_LIST"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_COLORANT_LIST"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CALIB_LIST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 2).machineUse(2),
        Command(QStringLiteral("SET_CALIB_LIST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("SET_LEVELS"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(2, 3).machineUse(1),
        Command(QStringLiteral("CHECK_FORMULA_LEVELS"),
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(1, 2).machineUse(2),
        Command(QStringLiteral("GET_FORMULA_CIRCUITS"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1, 2).machineUse(2),
        Command(QStringLiteral("GET_LOW_LEVEL_FORMULA"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_ACTIVE_DISP"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(2, 3),
        Command(QStringLiteral("GET_ACTIVE_DISP"),
            Configuration, Dispenser | Mixer, Family1 | Family2, OfDriver)
            .workingPriority(5).schedulingPriority(5),
        Command(QStringLiteral("SET_DM_DATA"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(2).machineUse(2),
        Command(QStringLiteral("SET_DISP_DATA"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_CIRCUIT_MAX_SPEED"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(2, 3).machineUse(2),
        Command(QStringLiteral("GET_DRIVER_SETTINGS"),
            Configuration, NoMachine, Family1, OfDriver),
        Command(QStringLiteral("SET_DRIVER_SETTINGS"),
            Configuration, NoMachine, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_DRIVER_INFO"),
            Configuration, NoMachine, Family1, OfDriver),
        Command(QStringLiteral("CHECK_BUSY"),
            Configuration, Dispenser | Mixer, Family1, OfMachine | Multiple | ChecksBusy | Private)
            .schedulingPriority(6).keepsBusy(4min),
        Command(QStringLiteral("GET_CMD_EST_EXEC_TIME"),
            Configuration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("GET_SW_VERSION"),
            Configuration, NoMachine, Family1 | Family2, OfDriver),
        Command(QStringLiteral("GET_STATS_ERRORS"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 3),
        Command(QStringLiteral("TURNTABLE_MOVE"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(4, 5).keepsBusy(6min).code(QStringLiteral("0016")),
        Command(QStringLiteral("TURNTABLE_MOVE_STEPS"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(3).keepsBusy(6min).code(QStringLiteral("0018")),
        Command(QStringLiteral("GET_TURNTABLE_POSITIONS"),
            Serial, Dispenser, Family1, OfMachine)
            .code(QStringLiteral("0019")),
        Command(QStringLiteral("GET_CONFIG_CMDS"),
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .code(QStringLiteral("0066")),
        Command(QStringLiteral("GET_CONN_STATUS"),
            Configuration, Dispenser, Family1, OfDriver),
        Command(QStringLiteral("GET_DISPENSED_FORMULA"),
            SerialAndConfiguration, Dispenser, Family1, OfMachine)
            .parameters(0, 2).machineUse(2).code(QStringLiteral("0074")),
        Command(QStringLiteral("CLEANING"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(1, 4).keepsBusy(dependsOnParameters).code(QStringLiteral("0015")),
        Command(QStringLiteral("GET_KEY_CODE"),
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine),
        Command(QStringLiteral("SET_SERIAL_NUMBER"),
            Configuration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("SET_CALIB_TEST_POINTS"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("SET_DISP_ID"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("AUTOTEST"),
            Serial, Dispenser, Family1, OfMachine | Multiple | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("STIR_ALL"),
            Serial, Dispenser, Family1 | Family2, OfMachine | Tracked | InStatistics)
            .parameters(0, 4).machineUse(1),
        Command(QStringLiteral("TURNTABLE_MOVE_TO_REFILL"),
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | InStatistics)
            .parameters(1).keepsBusy(6min).machineUse(2).code(QStringLiteral("0016")),
        Command(QStringLiteral("GET_CONNECTIONS"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(0, 1),
        Command(QStringLiteral("GET_HOST_INFO"),
            Configuration, NoMachine, Family1, OfDriver),
        Command(QStringLiteral("INIT"),
            Serial, Dispenser, Family2, OfMachine | Multiple | ChecksBusy)
            .keepsBusy(6min),
        Command(QStringLiteral("PUNCH"),
            Serial, Dispenser, Family2, OfMachine | ChecksBusy)
            .keepsBusy(4min),
        Command(QStringLiteral("PLUG"),
            Serial, Dispenser, Family2, OfMachine | ChecksBusy)
            .keepsBusy(4min),
        Command(QStringLiteral("SET_QRCODE_CALIB"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_COLORANT_LIST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_CANISTER_LIST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1, 2).machineUse(2),
        Command(QStringLiteral("WEIGHT"),
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 3).keepsBusy(40s),
        Command(QStringLiteral("TARE"),
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 2),
        Command(QStringLiteral("TARE_SET"),
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 2),
        Command(QStringLiteral("GET_CURRENT_WEIGHT"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SCALE_RESET"),
            Configuration, Dispenser, Family1, OfMachine),
        Command(QStringLiteral("ULTRASOUND_CLEAN"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 2).keepsBusy(500s).code(QStringLiteral("0025")),
        Command(QStringLiteral("GE_TEST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("DISPLAY_STRING"),
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 1).keepsBusy(40s),
        Command(QStringLiteral("GET_COL_USAGE_STATS"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SET_LED_STATUS"),
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1, 2).code(QStringLiteral("0026")),
        Command(QStringLiteral("PRIMING2"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0024")),
        Command(QStringLiteral("PACK2"),
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0023")),
        Command(QStringLiteral("AIRPURGE"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0023")),
        Command(QStringLiteral("MIX"),
            Serial, Mixer, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(dependsOnParameters).code(QStringLiteral("0031")),
        Command(QStringLiteral("SET_SCALE_CONFIG"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_SCALE_CONFIG"),
            Configuration, Dispenser, Family1, OfMachine)
            .machineUse(2),
        Command(QStringLiteral("GET_SCALE_STATUS"),
            Configuration, Dispenser, Family1, OfMachine),
        Command(QStringLiteral("GET_GRAV_SETTINGS"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SET_GRAV_SETTINGS"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_BT_SETTINGS"),
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_BT_SETTINGS"),
            Configuration, Dispenser, Family1, OfDriver),
        Command(QStringLiteral("GET_ACTIVE_CIRCUITS"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy)
            .parameters(1).schedulingPriority(5).code(QStringLiteral("001A")),
        Command(QStringLiteral("DEEP_SERVICE"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy)
            .parameters(3, 4).code(QStringLiteral("002C")),
        Command(QStringLiteral("ADD_EVENT"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("MIXER_STATUS"),
            Serial, Mixer, Family1, OfMachine)
            .schedulingPriority(6).code(QStringLiteral("0033")),
        Command(QStringLiteral("GET_MIXER_LIST"),
            Configuration, Mixer, Family1, OfDriver)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SET_ACTIVE_MACHINE"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2, 3),
        Command(QStringLiteral("DELETE_MACHINE"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("CLONE_MACHINE"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("SAVE_MACHINE_CONFIG"),
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_MIXER_STATUS"),
            Configuration, Mixer, Family1, OfMachine)
            .schedulingPriority(6),
        Command(QStringLiteral("NOZZLE_CLEAN"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("002F")),
        Command(QStringLiteral("SW_PROCESS_TOGGLE"),
            Serial, Dispenser, Family1, OfMachine | Tracked | InStatistics)
            .parameters(2).code(QStringLiteral("002E")),
        Command(QStringLiteral("ADD_USS_W_EVENT"),
            Configuration, Dispenser, Family1, OfMachine)
            .workingPriority(7).keepsBusy(4min).machineUse(2).code(QStringLiteral("0078")),
        Command(QStringLiteral("GET_USS_W_STATUS"),
            Configuration, Dispenser, Family1, OfMachine)
            .workingPriority(7).keepsBusy(4min).machineUse(2).code(QStringLiteral("0078")),
        Command(QStringLiteral("GET_QRCODE_CALIB"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_RECALIB_LIST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 2).machineUse(2),
        Command(QStringLiteral("SET_RECALIB_LIST"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("RES_FILE_MNGM"),
            Serial, Mixer, Family1, OfMachine | ChecksBusy | Private)
            .parameters(2).workingPriority(9).schedulingPriority(9).keepsBusy(40s).code(QStringLiteral("3F80")),
        Command(QStringLiteral("RES_FILE_WRITE"),
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("RES_FILE_READ"),
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("RES_FILE_LIST"),
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("RES_FILE_DELETE"),
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("VALVE_TEST"),
            Serial, Dispenser, Family2, OfMachine | ChecksBusy)
            .keepsBusy(4min),
        Command(QStringLiteral("CONFIG_PARAM"),
            Configuration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(2, 3).machineUse(2),
        Command(QStringLiteral("TINT2"),
            SpecialAndSerial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0035")),
        Command(QStringLiteral("GET_LEVEL_SENSORS"),
            Serial, Dispenser, Family1, OfMachine | Tracked | InStatistics)
            .parameters(0, 1).machineUse(1).code(QStringLiteral("0029")),
        Command(QStringLiteral("GET_DEVICE_PARAMS"),
            Configuration, Dispenser, Family1, OfMachine)
            .machineUse(2),
        Command(QStringLiteral("ADD_STATS_ERRORS"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("ZDR_CYCLE_OPERATION"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(0, 2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("0032")),
        Command(QStringLiteral("ZDR_ACTUATOR_MOVE"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(0, 2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("0027")),
        Command(QStringLiteral("ZDR_SLAVE_PROCEDURE"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("0028")),
        Command(QStringLiteral("ZDR_GET_COMMANDS"),
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .keepsBusy(40s).code(QStringLiteral("0037")),
        Command(QStringLiteral("MIXER_PLATES"),
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 4).keepsBusy(dependsOnParameters).code(QStringLiteral("0030")),
        Command(QStringLiteral("GET_FORMULA_EXECUTION"),
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("GET_SHELF_PARAMS"),
            Configuration, Dispenser, Family2, OfMachine),
        Command(QStringLiteral("PAUSE"),
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1).keepsBusy(dependsOnParameters),
    });
    return all;
}
// clang-format on
