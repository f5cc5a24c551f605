// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogue/commandrows_p.h"

#include <QuvFramework/fw_dispenser.h>

#include <chrono>
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

constexpr Target operator|(Target one, Target other)
{
    return static_cast<Target>(static_cast<int>(one) | static_cast<int>(other));
}
constexpr Family operator|(Family one, Family other)
{
    return static_cast<Family>(static_cast<int>(one) | static_cast<int>(other));
}
constexpr Flag operator|(Flag one, Flag other)
{
    return static_cast<Flag>(static_cast<unsigned>(one) | static_cast<unsigned>(other));
}

constexpr std::chrono::milliseconds dependsOnParameters(9999999);

/** A row as it is told below: what every command has first, then by name what only some have. */
class Command
{
public:
    Command(QString name, const char *purpose, CommandType type, Target target, Family families, Flag flags)
        : m_purpose(purpose)
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
    const char *purpose() const { return m_purpose; }

private:
    CMD_STRUCT m_row;
    const char *m_purpose = nullptr;
};

/** The rows as told, in the order of their numbers. */
struct Table
{
    Rows rows;
    std::array<const char *, std::tuple_size_v<Rows>> purposes = {};

    explicit Table(const Command (&told)[std::tuple_size_v<Rows>])
    {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i] = told[i].row();
            rows[i].id = static_cast<int>(i);
            purposes[i] = told[i].purpose();
        }
    }
};

// clang-format off
const Table &table()
{
    static const Table all({
        Command(QStringLiteral("GET_STATUS"), "Tells what the dispenser is doing",
            Serial, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).schedulingPriority(6).code(QStringLiteral("0006"), QStringLiteral("I3")),
        Command(QStringLiteral("GET_DISP_STATUS"),
            "Tells what the driver is doing with a dispenser, and the last status of the machine",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .schedulingPriority(6),
        Command(QStringLiteral("GET_CIRCUITS_STATUS"), "Tells what each of several circuits is doing",
            Serial, Dispenser, Family1, OfMachine | Multiple)
            .parameters(0, 1).schedulingPriority(6).keepsBusy(40s).machineUse(1),
        Command(QStringLiteral("AUTOCAP_MOVE"), "Opens or closes the automatic cap of the nozzles",
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1).keepsBusy(20s).code(QStringLiteral("0041")),
        Command(QStringLiteral("SHELF_MOVE"),
            "Moves the shelf that carries the can up to the can's height, or down",
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 2).keepsBusy(40s).code(QStringLiteral("0071")),
        Command(QStringLiteral("GET_SHELF_POS"), "Tells the height at which the shelf stands",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy)
            .parameters(0, 1).workingPriority(1).schedulingPriority(1).code(QStringLiteral("0072")),
        Command(QStringLiteral("RESET"), "Resets the machine, or one of its modules",
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine | ChecksBusy | Tracked)
            .parameters(0, 1).keepsBusy(6min).code(QStringLiteral("0001")),
        Command(QStringLiteral("STOP"), "Stops what the machine is doing",
            ConfigurationAndSerial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(0, 2).workingPriority(5).schedulingPriority(8).keepsBusy(1min).code(QStringLiteral("0003")),
        Command(QStringLiteral("TINT"), "Pours a formula into the can",
            SpecialAndSerial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("STIRRING"), "Stirs the colorant of one circuit, or of all, for a time",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(2).keepsBusy(dependsOnParameters).code(QStringLiteral("0004")),
        Command(QStringLiteral("RECIRCULATION"),
            "Pumps the colorant of one circuit, or of all, around for a time",
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(2, 4).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0005")),
        Command(QStringLiteral("GET_ERRORS"), "Lists the machine's hardware and configuration errors",
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .schedulingPriority(5),
        Command(QStringLiteral("GET_ERROR_PKT"), "Reads one packet of the errors that wait in the firmware",
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .schedulingPriority(5).code(QStringLiteral("000C")),
        Command(QStringLiteral("CLEAR_ERRORS"), "Clears the errors that wait in the firmware",
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .code(QStringLiteral("000C")),
        Command(QStringLiteral("ERRORS_NUM"),
            "Tells how many errors wait in the firmware, and in how many packets",
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .schedulingPriority(5).code(QStringLiteral("000C")),
        Command(QStringLiteral("PRIMING"),
            "Fills circuits with colorant by running their pumps for a number of strokes",
            SpecialAndSerial, Dispenser, Family1, OfMachine | ChecksBusy | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("PACK"), "Moves pumps into their transport position, or out of it",
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | Pours)
            .parameters(2).keepsBusy(4min).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("PURGE"),
            "Pours colorant to waste: a formula, or a fixed quantity from chosen circuits",
            SpecialAndSerial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1, 3).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("WORKING_MODE"), "Changes the working mode of the machine",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(0, 1).workingPriority(9).keepsBusy(40s).code(QStringLiteral("0020"), QStringLiteral("FR")),
        Command(QStringLiteral("TOGGLE_TEMPORIZED"),
            "Holds stirring, recirculation and other timed processes, or lets them run again",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(0, 3).workingPriority(9).keepsBusy(40s).code(QStringLiteral("0020"), QStringLiteral("FR")),
        Command(QStringLiteral("WRITE_CONFIG_ROW"), "Writes one row of the machine's setup into its firmware",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(0, 2).code(QStringLiteral("0065")),
        Command(QStringLiteral("READ_CONFIG_ROW"), "Reads one row of the machine's setup from its firmware",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(0, 2).code(QStringLiteral("0066")),
        Command(QStringLiteral("FINALIZE_CONFIG"),
            "Tells the firmware that the last row of its setup was written",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | Private)
            .keepsBusy(40s).code(QStringLiteral("0067")),
        Command(QStringLiteral("GET_CMD_ID"),
            "Reads the identifiers that the firmware has for the code of a command",
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .parameters(1).code(QStringLiteral("0068")),
        Command(QStringLiteral("GET_DISP_INFO"),
            "Reads one of the texts about the machine that its firmware keeps",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1).keepsBusy(40s).code(QStringLiteral("0077")),
        Command(QStringLiteral("SET_DISP_INFO"),
            "Writes one of the texts about the machine that its firmware keeps",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(2).keepsBusy(40s).code(QStringLiteral("0077")),
        Command(QStringLiteral("CLEAR_DISP_INFO"),
            "Clears one of the texts about the machine that its firmware keeps",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(1).keepsBusy(40s).code(QStringLiteral("0077")),
        Command(QStringLiteral("GET_SENSORS_STATUS"),
            "Tells which digital inputs and outputs of the dispenser are on",
            Serial, Dispenser, Family1, OfMachine)
            .schedulingPriority(5).code(QStringLiteral("0043")),
        Command(QStringLiteral("GET_SENSOR_DATA"), "Reads the value of one analogue sensor",
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1, 2).schedulingPriority(5).code(QStringLiteral("0060")),
        Command(QStringLiteral("SET_DISP_OUTPUT"),
            "Switches one output, such as a valve, the nozzle light or the heater",
            Serial, Dispenser, Family1, OfMachine)
            .parameters(2, 4).code(QStringLiteral("0013")),
        Command(QStringLiteral("SET_BOARD_POWER"), "Switches the power of a board",
            Serial, Dispenser, Family1, OfMachine)
            .parameters(2, 3).code(QStringLiteral("0076")),
        Command(QStringLiteral("CHANNEL_TINT"),
            "Pours a formula through one of the two channels of a dual machine",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Pours)
            .parameters(2).keepsBusy(4min).machineUse(2).code(QStringLiteral("0017")),
        Command(QStringLiteral("RESET_FW"), "Restarts boards of the machine",
            Serial, Dispenser | Mixer, Family1, OfMachine | Private)
            .parameters(1, 2).workingPriority(9).schedulingPriority(9).code(QStringLiteral("3F78")),
        Command(QStringLiteral("UPDATE_FW"), "Loads new firmware onto the boards of the machine",
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("SLAVE_JUMP"),
            "Makes a slave board change between its boot loader and its application",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | Private)
            .parameters(2).workingPriority(9).schedulingPriority(9).keepsBusy(40s).code(QStringLiteral("3F79")),
        Command(QStringLiteral("READ_FW_VERSION"), "Tells which firmware runs on one module of the machine",
            Serial, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .parameters(1).schedulingPriority(5).code(QStringLiteral("000F")),
        Command(QStringLiteral("GET_FW_COMMANDS"), "Lists the commands that the machine's firmware has",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(0, 1).code(QStringLiteral("0014")),
        Command(QStringLiteral("FW_SCAN"), "Tells which firmware runs on each of the slave boards",
            SpecialAndSerial, Dispenser, Family1, OfMachine | Tracked)
            .workingPriority(9).code(QStringLiteral("0022")),
        Command(QStringLiteral("FW_SCAN_START"), "Starts the scan for the firmware of the slave boards",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | Private)
            .workingPriority(9).keepsBusy(4min).code(QStringLiteral("0022")),
        Command(QStringLiteral("FW_SCAN_READ"),
            "Reads what the scan for the firmware of the slave boards has found",
            Serial, Dispenser, Family1, OfMachine | Private)
            .workingPriority(9).code(QStringLiteral("0022")),
        Command(QStringLiteral("BOARD_MEMORY"), "Reads or writes the raw memory of a board",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(6, 10).code(QStringLiteral("0F01")),
        Command(QStringLiteral("MOTOR_RUNNING"), "Runs the motor of a circuit for a time",
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1, 2).code(QStringLiteral("0011")),
        Command(QStringLiteral("GET_LAST_BOARD_STATS"), "Reads the last statistics that the boards keep",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1, 2).code(QStringLiteral("0078")),
        Command(QStringLiteral("GET_REAL_BOARD_STATS"),
            "Asks the boards for their real statistics, which are then read as their last ones",
            Serial, Dispenser | Mixer, Family1, OfMachine | Multiple | ChecksBusy)
            .parameters(1, 2).keepsBusy(4min).code(QStringLiteral("0078")),
        Command(QStringLiteral("SET_BOARD_STATS"), "Sets statistics that a board keeps",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(2).keepsBusy(4min).code(QStringLiteral("0078")),
        Command(QStringLiteral("CLEAR_BOARD_STATS"), "Clears statistics that the boards keep",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy)
            .parameters(1, 2).keepsBusy(4min).code(QStringLiteral("0078")),
        Command(QStringLiteral("CHECK_SERIAL"), "Checks the serial port of a machine",
            Configuration, Dispenser | Mixer, Family1, OfMachine | Multiple)
            .parameters(1),
        Command(QStringLiteral("SET_SERIAL"), "Sets the serial port of a machine",
            SerialAndConfiguration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("CLOSE_SERIAL"), "Closes the serial port of a machine",
            SerialAndConfiguration, Dispenser | Mixer, Family1, OfMachine),
        Command(QStringLiteral("SAVE_CONFIG"), "Saves the whole configuration of the driver's machines",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1).keepsBusy(40s),
        Command(QStringLiteral("GET_CONFIG"), "Reads the whole configuration of the driver's machines",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(0, 1).keepsBusy(40s),
        Command(QStringLiteral("CLEAN_CONFIG"), "Cleans the configuration of the dispenser",
            SpecialAndConfiguration, Dispenser, Family1, OfMachine)
            .machineUse(2),
        Command(QStringLiteral("WRITE_FW_CONFIG"),
            "Writes the machine's whole setup into its firmware, row by row",
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("READ_FW_CONFIG"),
            "Reads the machine's whole setup from its firmware, row by row",
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine),
        Command(QStringLiteral("SET_CALIB_PROFILES"), "Saves the calibration profiles",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(3),
        Command(QStringLiteral("GET_CALIB_PROFILES"), "Reads the calibration profiles",
            Configuration, Dispenser | Mixer, Family1, OfDriver),
        Command(QStringLiteral("DELETE_DISPENSER"),
            "Deletes the stored configuration of one or more dispensers",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("CLONE_DISPENSER"), "Makes a copy of the stored configuration of a dispenser",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("SAVE_DISP_CONFIG"), "Saves the configuration of one dispenser",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("LOGIN"), "Opens a client's session on a machine",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2, 3),
        Command(QStringLiteral("LOGOUT"), "Ends a client's session",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_KEY"),
            "Exchanges the values from which client and driver make the key of a session",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("CERTIFY_SESSION"), "Proves that the client holds the key of its session",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("GET_CMD_STATUS"),
            "Tells how far a command is, by the ticket that it was started with",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1).workingPriority(5).schedulingPriority(5),
        Command(QStringLiteral("GET_DISP_LIST"), "Lists the dispensers that the driver knows",
            Configuration, Dispenser, Family1 | Family2, OfDriver)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CMD_LIST"), "Lists the commands that the machine can carry out",
            Configuration, Dispenser | Mixer, Family1 | Family2, OfMachine)
            .parameters(0, 1),
        Command(QStringLiteral("GET_DEVICE_LIST"), "Lists the devices of the dispenser",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CIRCUIT_LIST"), "Lists the circuits of the dispenser",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CANISTER_LIST"), "Lists the canisters of the dispenser with their levels",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_COLORANT_LIST"), "Lists the colorants of the dispenser",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_CALIB_LIST"), "Reads the calibrations of the circuits",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 2).machineUse(2),
        Command(QStringLiteral("SET_CALIB_LIST"), "Saves the calibrations of the circuits",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("SET_LEVELS"),
            "Updates the levels of the canisters by the quantities of a formula, as at a refill",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(2, 3).machineUse(1),
        Command(QStringLiteral("CHECK_FORMULA_LEVELS"),
            "Tells which canisters a formula would bring below their critical or warning level",
            Configuration, Dispenser, Family1 | Family2, OfMachine)
            .parameters(1, 2).machineUse(2),
        Command(QStringLiteral("GET_FORMULA_CIRCUITS"),
            "Tells which circuits a formula would use, and how much of each",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1, 2).machineUse(2),
        Command(QStringLiteral("GET_LOW_LEVEL_FORMULA"),
            "Tells a formula in the machine's own terms: circuit positions and steps",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_ACTIVE_DISP"), "Makes a dispenser the active one",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(2, 3),
        Command(QStringLiteral("GET_ACTIVE_DISP"),
            "Lists the active machines, with what the driver is doing with each",
            Configuration, Dispenser | Mixer, Family1 | Family2, OfDriver)
            .workingPriority(5).schedulingPriority(5),
        Command(QStringLiteral("SET_DM_DATA"), "Sets the serial number of a circuit's pump",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(2).machineUse(2),
        Command(QStringLiteral("SET_DISP_DATA"), "Sets the description of the dispenser",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_CIRCUIT_MAX_SPEED"), "Sets the maximum speed of a circuit",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(2, 3).machineUse(2),
        Command(QStringLiteral("GET_DRIVER_SETTINGS"), "Reads the settings of the driver",
            Configuration, NoMachine, Family1, OfDriver),
        Command(QStringLiteral("SET_DRIVER_SETTINGS"), "Changes the settings of the driver",
            Configuration, NoMachine, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_DRIVER_INFO"),
            "Tells the driver's name and version, and where it keeps its files",
            Configuration, NoMachine, Family1, OfDriver),
        Command(QStringLiteral("CHECK_BUSY"), "Checks whether the machine is busy",
            Configuration, Dispenser | Mixer, Family1, OfMachine | Multiple | ChecksBusy | Private)
            .schedulingPriority(6).keepsBusy(4min),
        Command(QStringLiteral("GET_CMD_EST_EXEC_TIME"), "Tells how long a command is expected to take",
            Configuration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("GET_SW_VERSION"),
            "Tells the version of the driver's software, and when it was built",
            Configuration, NoMachine, Family1 | Family2, OfDriver),
        Command(QStringLiteral("GET_STATS_ERRORS"), "Reads the history of errors from the statistics",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 3),
        Command(QStringLiteral("TURNTABLE_MOVE"),
            "Turns the turntable to a circuit, or to its reference position",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(4, 5).keepsBusy(6min).code(QStringLiteral("0016")),
        Command(QStringLiteral("TURNTABLE_MOVE_STEPS"), "Turns the turntable by a number of steps",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(3).keepsBusy(6min).code(QStringLiteral("0018")),
        Command(QStringLiteral("GET_TURNTABLE_POSITIONS"),
            "Lists the circuits of the turntable with their places on it",
            Serial, Dispenser, Family1, OfMachine)
            .code(QStringLiteral("0019")),
        Command(QStringLiteral("GET_CONFIG_CMDS"), "Lists the structures of setup rows that the firmware has",
            Serial, Dispenser | Mixer, Family1, OfMachine)
            .code(QStringLiteral("0066")),
        Command(QStringLiteral("GET_CONN_STATUS"), "Tells how the serial, Bluetooth and scale links stand",
            Configuration, Dispenser, Family1, OfDriver),
        Command(QStringLiteral("GET_DISPENSED_FORMULA"),
            "Tells how much of a formula has been poured, and what remains",
            SerialAndConfiguration, Dispenser, Family1, OfMachine)
            .parameters(0, 2).machineUse(2).code(QStringLiteral("0074")),
        Command(QStringLiteral("CLEANING"), "Runs the cleaning motors of a rotating machine",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | InStatistics)
            .parameters(1, 4).keepsBusy(dependsOnParameters).code(QStringLiteral("0015")),
        Command(QStringLiteral("GET_KEY_CODE"), "Reads the key code that identifies the machine",
            SpecialAndSerial, Dispenser | Mixer, Family1, OfMachine),
        Command(QStringLiteral("SET_SERIAL_NUMBER"), "Sets the serial number of the machine",
            Configuration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("SET_CALIB_TEST_POINTS"), "Saves the test points of a calibration",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("SET_DISP_ID"), "Changes the ID of a dispenser",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(2),
        Command(QStringLiteral("AUTOTEST"),
            "Tests the dispenser by a series of movements, pours and other processes",
            Serial, Dispenser, Family1, OfMachine | Multiple | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("STIR_ALL"),
            "Stirs all circuits, or those of a list, as many at a time as the machine can",
            Serial, Dispenser, Family1 | Family2, OfMachine | Tracked | InStatistics)
            .parameters(0, 4).machineUse(1),
        Command(QStringLiteral("TURNTABLE_MOVE_TO_REFILL"),
            "Turns a circuit of the turntable to the refill position",
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | InStatistics)
            .parameters(1).keepsBusy(6min).machineUse(2).code(QStringLiteral("0016")),
        Command(QStringLiteral("GET_CONNECTIONS"),
            "Lists the connections to machines that the driver can see",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(0, 1),
        Command(QStringLiteral("GET_HOST_INFO"),
            "Tells the name of the driver's computer, and whether its Bluetooth radio is on",
            Configuration, NoMachine, Family1, OfDriver),
        Command(QStringLiteral("INIT"), "Initialises the dispenser",
            Serial, Dispenser, Family2, OfMachine | Multiple | ChecksBusy)
            .keepsBusy(6min),
        Command(QStringLiteral("PUNCH"), "Makes the dispenser punch",
            Serial, Dispenser, Family2, OfMachine | ChecksBusy)
            .keepsBusy(4min),
        Command(QStringLiteral("PLUG"), "Makes the dispenser plug",
            Serial, Dispenser, Family2, OfMachine | ChecksBusy)
            .keepsBusy(4min),
        Command(QStringLiteral("SET_QRCODE_CALIB"),
            "Takes over the calibration that the text of a QR code holds",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_COLORANT_LIST"), "Sets which colorant is in which canister",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_CANISTER_LIST"), "Saves the data of the canisters",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1, 2).machineUse(2),
        Command(QStringLiteral("WEIGHT"), "Weighs what is on the scale",
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 3).keepsBusy(40s),
        Command(QStringLiteral("TARE"), "Tares the scale",
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 2),
        Command(QStringLiteral("TARE_SET"), "Sets the tare of the scale to a given value",
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 2),
        Command(QStringLiteral("GET_CURRENT_WEIGHT"),
            "Tells the current weight on the scale, as the driver knows it",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SCALE_RESET"), "Resets the scale",
            Configuration, Dispenser, Family1, OfMachine),
        Command(QStringLiteral("ULTRASOUND_CLEAN"),
            "Runs the ultrasound cleaning, or only its filling, cleaning or emptying",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 2).keepsBusy(500s).code(QStringLiteral("0025")),
        Command(QStringLiteral("GE_TEST"),
            "Works out one test step of gravimetric dosing from the current weight",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("DISPLAY_STRING"), "Shows a text on the display of the scale",
            Scale, Dispenser, Family1, OfMachine)
            .parameters(0, 1).keepsBusy(40s),
        Command(QStringLiteral("GET_COL_USAGE_STATS"),
            "Reads the statistics of how the machines used a colorant",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SET_LED_STATUS"), "Switches a led and sets its colour",
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1, 2).code(QStringLiteral("0026")),
        Command(QStringLiteral("PRIMING2"),
            "Fills a list of circuits with colorant, each by its own strokes and speed",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0024")),
        Command(QStringLiteral("PACK2"),
            "Moves the pumps of a list of circuits into or out of their transport position",
            Serial, Dispenser, Family1 | Family2, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0023")),
        Command(QStringLiteral("AIRPURGE"), "Runs an air purge on a list of circuits",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(4min).machineUse(2).code(QStringLiteral("0023")),
        Command(QStringLiteral("MIX"), "Shakes the can in a number of cycles",
            Serial, Mixer, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(dependsOnParameters).code(QStringLiteral("0031")),
        Command(QStringLiteral("SET_SCALE_CONFIG"), "Saves the configuration of the scale",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_SCALE_CONFIG"), "Reads the configuration of the scale",
            Configuration, Dispenser, Family1, OfMachine)
            .machineUse(2),
        Command(QStringLiteral("GET_SCALE_STATUS"), "Tells whether the scale is connected",
            Configuration, Dispenser, Family1, OfMachine),
        Command(QStringLiteral("GET_GRAV_SETTINGS"),
            "Reads the settings of the circuits for gravimetric dosing",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SET_GRAV_SETTINGS"),
            "Saves the settings of the circuits for gravimetric dosing",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("SET_BT_SETTINGS"), "Changes the Bluetooth settings of the driver",
            Configuration, Dispenser, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_BT_SETTINGS"), "Reads the Bluetooth settings of the driver",
            Configuration, Dispenser, Family1, OfDriver),
        Command(QStringLiteral("GET_ACTIVE_CIRCUITS"), "Tells which circuits are engaged in a process",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy)
            .parameters(1).schedulingPriority(5).code(QStringLiteral("001A")),
        Command(QStringLiteral("DEEP_SERVICE"),
            "Hands a firmware command of the client's own through to the machine",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy)
            .parameters(3, 4).code(QStringLiteral("002C")),
        Command(QStringLiteral("ADD_EVENT"), "Adds events or refills to the statistics",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("MIXER_STATUS"), "Tells what the mixer is doing",
            Serial, Mixer, Family1, OfMachine)
            .schedulingPriority(6).code(QStringLiteral("0033")),
        Command(QStringLiteral("GET_MIXER_LIST"), "Lists the mixers that the driver knows",
            Configuration, Mixer, Family1, OfDriver)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("SET_ACTIVE_MACHINE"), "Makes a machine the active one",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(2, 3),
        Command(QStringLiteral("DELETE_MACHINE"), "Deletes the stored configuration of one or more machines",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("CLONE_MACHINE"), "Makes a copy of the stored configuration of a machine",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("SAVE_MACHINE_CONFIG"), "Saves the configuration of one machine",
            Configuration, Dispenser | Mixer, Family1, OfDriver)
            .parameters(1),
        Command(QStringLiteral("GET_MIXER_STATUS"),
            "Tells what the driver is doing with a mixer, and the last status of the machine",
            Configuration, Mixer, Family1, OfMachine)
            .schedulingPriority(6),
        Command(QStringLiteral("NOZZLE_CLEAN"), "Cleans the nozzles of one circuit, or of all",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("002F")),
        Command(QStringLiteral("SW_PROCESS_TOGGLE"), "Switches a software process of the machine",
            Serial, Dispenser, Family1, OfMachine | Tracked | InStatistics)
            .parameters(2).code(QStringLiteral("002E")),
        Command(QStringLiteral("ADD_USS_W_EVENT"), "Records a change of the ultrasound cleaning's water",
            Configuration, Dispenser, Family1, OfMachine)
            .workingPriority(7).keepsBusy(4min).machineUse(2).code(QStringLiteral("0078")),
        Command(QStringLiteral("GET_USS_W_STATUS"),
            "Tells whether the water of the ultrasound cleaning needs a change",
            Configuration, Dispenser, Family1, OfMachine)
            .workingPriority(7).keepsBusy(4min).machineUse(2).code(QStringLiteral("0078")),
        Command(QStringLiteral("GET_QRCODE_CALIB"), "Packs the calibrations into texts for QR codes",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 1).machineUse(2),
        Command(QStringLiteral("GET_RECALIB_LIST"), "Reads the recalibrations of the circuits",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(0, 2).machineUse(2),
        Command(QStringLiteral("SET_RECALIB_LIST"), "Saves the recalibrations of the circuits",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("RES_FILE_MNGM"),
            "Moves one block of a file to or from the machine's firmware",
            Serial, Mixer, Family1, OfMachine | ChecksBusy | Private)
            .parameters(2).workingPriority(9).schedulingPriority(9).keepsBusy(40s).code(QStringLiteral("3F80")),
        Command(QStringLiteral("RES_FILE_WRITE"), "Sends files to the machine's firmware",
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("RES_FILE_READ"), "Reads a file from the machine's firmware",
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("RES_FILE_LIST"), "Lists the files that the machine's firmware keeps",
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("RES_FILE_DELETE"), "Deletes a file that the machine's firmware keeps",
            SpecialAndSerial, Mixer, Family1, OfMachine | Tracked | InStatistics)
            .parameters(1).workingPriority(7).machineUse(2),
        Command(QStringLiteral("VALVE_TEST"), "Tests the valves of the dispenser",
            Serial, Dispenser, Family2, OfMachine | ChecksBusy)
            .keepsBusy(4min),
        Command(QStringLiteral("CONFIG_PARAM"),
            "Reads or changes a few parameters of the ultrasound cleaning",
            Configuration, Dispenser | Mixer, Family1, OfMachine)
            .parameters(2, 3).machineUse(2),
        Command(QStringLiteral("TINT2"),
            "Pours a formula, with the nozzle valve and the level steps of each circuit",
            SpecialAndSerial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics | Pours)
            .parameters(1).keepsBusy(dependsOnParameters).machineUse(2).code(QStringLiteral("0035")),
        Command(QStringLiteral("GET_LEVEL_SENSORS"), "Reads the level sensors of circuits",
            Serial, Dispenser, Family1, OfMachine | Tracked | InStatistics)
            .parameters(0, 1).machineUse(1).code(QStringLiteral("0029")),
        Command(QStringLiteral("GET_DEVICE_PARAMS"), "Reads the parameters of the dispenser's devices",
            Configuration, Dispenser, Family1, OfMachine)
            .machineUse(2),
        Command(QStringLiteral("ADD_STATS_ERRORS"), "Adds errors to the statistics",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1),
        Command(QStringLiteral("ZDR_CYCLE_OPERATION"), "Runs a whole work cycle of the capping station",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(0, 2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("0032")),
        Command(QStringLiteral("ZDR_ACTUATOR_MOVE"), "Moves one actuator of the capping station",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(0, 2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("0027")),
        Command(QStringLiteral("ZDR_SLAVE_PROCEDURE"),
            "Runs a procedure of the capping station, such as the gearmotor calibration",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 2).keepsBusy(dependsOnParameters).machineUse(1).code(QStringLiteral("0028")),
        Command(QStringLiteral("ZDR_GET_COMMANDS"), "Lists the commands of the capping station",
            Serial, Dispenser, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .keepsBusy(40s).code(QStringLiteral("0037")),
        Command(QStringLiteral("MIXER_PLATES"), "Moves the plates of the mixer that grip the can",
            Serial, Dispenser | Mixer, Family1, OfMachine | ChecksBusy | Tracked | InStatistics)
            .parameters(1, 4).keepsBusy(dependsOnParameters).code(QStringLiteral("0030")),
        Command(QStringLiteral("GET_FORMULA_EXECUTION"), "Tells how far each channel is with its formula",
            Configuration, Dispenser, Family1, OfMachine)
            .parameters(1).machineUse(2),
        Command(QStringLiteral("GET_SHELF_PARAMS"),
            "Tells the reference plane and the reference height of the shelf",
            Configuration, Dispenser, Family2, OfMachine),
        Command(QStringLiteral("PAUSE"), "Makes the driver wait for a time",
            Serial, Dispenser, Family1, OfMachine)
            .parameters(1).keepsBusy(dependsOnParameters),
    });
    return all;
}
// clang-format on

} // namespace

const Rows &quv::catalogue::rows()
{
    return table().rows;
}

const char *quv::commandPurpose(int row)
{
    return ProtoCommandList::row(row) ? table().purposes[static_cast<std::size_t>(row)] : nullptr;
}
