// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/machinefaults.h"
#include "firmware/part.h"
#include "firmware/table.h"
#include "firmware/timedprocesses.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QHash>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quv {

/// Something that a machine's firmware keeps in its buffer of errors.
struct RaisedError
{
    enum class Kind { Hardware = 1, Configuration = 2 };

    int code = 0;
    int module = 0; ///< the address of the board; 0 for the machine's own
    Kind kind = Kind::Hardware;
    int value = 0;       ///< 0 to 31, what the error is about
    bool isRead = false; ///< told in a packet that somebody asked for
};

/**
 * What the parts of a simulated machine have in common: its clock, the machine that it is made of, what its canisters really hold,
 * its errors and faults. It knows its parts, so that one that would begin something learns whether another is in its way.
 */
class SimulatedMachine
{
public:
    /// Milliseconds that never go back, from any origin.
    using Clock = std::function<qint64()>;

    /// \a speed is above 0: how many times faster than real all goes on.
    SimulatedMachine(const FW_Machine &machine, double speed, Clock clock);
    SimulatedMachine(const SimulatedMachine &) = delete;
    SimulatedMachine &operator=(const SimulatedMachine &) = delete;

    void add(std::unique_ptr<FirmwarePart> part) { m_parts.push_back(std::move(part)); }
    const std::vector<std::unique_ptr<FirmwarePart>> &parts() const { return m_parts; }

    SerialDeviceType type() const { return m_type; }
    /// The moment until which the parts have gone on, or of a fault that is being caught up with.
    qint64 now() const { return m_moment ? *m_moment : m_clock(); }
    double speed() const { return m_speed; }
    /// When something ends that begins now and takes so many milliseconds on a machine that is not simulated.
    qint64 endOf(double milliseconds) const;

    /// Without circuits for a mixer.
    const FW_Dispenser &dispenser() const { return m_dispenser; }
    FW_Dispenser &dispenser() { return m_dispenser; }
    const FW_Turntable *turntable() const;
    /// Null without a turntable.
    Table *table() { return m_table ? &*m_table : nullptr; }
    const Table *table() const { return m_table ? &*m_table : nullptr; }
    /// Null for one that there is not, or that is disabled.
    const FW_Circuit *circuitAt(int position) const;

    /// Lets the parts go on until now, and has them meet each fault on the way at its moment.
    void goOn();
    /// The faults to come, from now on.
    void play(const std::vector<FaultSpan> &faults) { m_plan = FaultPlan(faults, m_clock(), m_speed); }

    /// What all parts tell together, of the machine or of the circuit at the position \a module.
    StatusWords status(int module) const;

    /// Whether somebody has pressed a button that lets nothing go on.
    bool isHeld() const { return m_faults.emergencyPressed || m_faults.offlinePressed; }
    /// Whether a part is at one of the processes.
    bool isAt(ProcessSet processes) const;
    /// Since when it rests: the first moment between the two, at \a until at the latest, at which no part is at work. Asked for
    /// a time in which nothing began, before the parts go on.
    qint64 endOfWork(qint64 from, qint64 until);
    /// Why it cannot begin now: something that a part is at excludes it, or what somebody has done by hand. Nothing when it can.
    std::optional<Obstacle> obstacle(Process process) const;
    /// That of a button that is pressed, or of the door when it is open, alone.
    std::optional<Obstacle> obstacleByHand(Process process) const;
    /// That of the machine being at one of these processes. Nothing when it is at none.
    std::optional<Obstacle> obstacleByWork(ProcessSet processes) const;
    bool mayBegin(Process process) const { return !obstacle(process); }
    /// Tells all parts that the pumps of these circuits are needed.
    void giveWay(const QList<int> &positions);

    /// What goes on by itself.
    const TimedProcesses &timed() const { return m_timed; }
    TimedProcesses &timed() { return m_timed; }
    /// Whether a timed process is at work now, when it last began to rest at the moment \a since, or later when it did so at
    /// all circuits.
    bool isDue(TimedProcess process, const Rhythm &rhythm, qint64 since) const;
    /// Whether the board at an address, which a circuit has by its position, refuses what it is told.
    bool refuses(int board) const { return m_faults.refusingBoards.contains(board); }
    /// Ends what runs of these processes, at this moment.
    void stop(ProcessSet processes);
    /// What moves where a hand can reach, and stands still while the door is open.
    static ProcessSet processesInReach();

    /// What so many steps pour; nothing when the circuit's calibration cannot tell.
    static std::optional<double> quantityOfSteps(const FW_Circuit &circuit, qint64 steps);
    /// Takes what so many steps of the circuit pour from its canister, and gives the steps that it still held. What a circuit
    /// without a calibration takes is known to nobody.
    qint64 takeFromCanister(const FW_Circuit &circuit, qint64 steps);
    /// Of the steps that were taken some were not poured: gives back what lies between the two.
    void putIntoCanister(const FW_Circuit &circuit, qint64 taken, qint64 poured);
    /// Whether the canister has a level sensor, and that tells less than its critical level.
    bool tellsCriticalLevel(const FW_Canister &canister) const;
    /// What the canister holds by its level sensor, which may lie.
    double toldContent(const FW_Canister &canister) const;
    /// What the canister holds at this moment.
    double content(int canisterID) const;
    /// What the canister holds but for what runs, which takes all of its part from that.
    void setContent(int canisterID, double quantity);

    static constexpr int MaxErrors = 50;
    /// The last place of a full buffer says that later errors are lost: the first ones tell how it came about.
    void raise(const RaisedError &error);
    const QList<RaisedError> &errors() const { return m_errors; }
    QList<RaisedError> &errors() { return m_errors; }
    void clearErrors() { m_errors.clear(); }

    /// How often the ultrasound cleaned with the water of its bath.
    int waterCycles() const { return m_waterCycles; }
    void countWaterCycle() { ++m_waterCycles; }

    const MachineFaults &faults() const { return m_faults; }
    MachineFaults &faults() { return m_faults; }

private:
    void letPartsGoOn();
    Withdrawal withdrawal(int canisterID) const;

    FW_Dispenser m_dispenser{};
    const SerialDeviceType m_type;
    const double m_speed;
    const Clock m_clock;
    std::optional<qint64> m_moment{};
    std::optional<Table> m_table{};
    QHash<int, double> m_contents{}; ///< by the canisters' IDs; what runs has taken all of its part already
    QList<RaisedError> m_errors{};
    int m_waterCycles = 0;
    MachineFaults m_faults{};
    TimedProcesses m_timed{};
    FaultPlan m_plan{};
    std::vector<std::unique_ptr<FirmwarePart>> m_parts{};
};

} // namespace quv
