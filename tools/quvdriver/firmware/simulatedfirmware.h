// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"
#include "firmware/pour.h"
#include "firmware/pourrequest.h"
#include "firmware/rowstore.h"
#include "store/firmwarestate.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QHash>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quv {

/// What a simulated firmware's configuration is like.
struct SimulatedConfiguration
{
    FirmwareAge age = FirmwareAge::Equal;
    std::shared_ptr<FirmwareState> state{}; ///< that outlasts the firmware; null for none
};

/**
 * A machine without hardware. It keeps state: a process that takes time runs on after the command that began it, and is
 * told by the status word until it ends; meanwhile no other process can begin.
 *
 * A dispenser of command family 1 knows its status (code 0006), the reset (0001), tints, purges, primings and packs (0017,
 * 0035, 0023, 0024) and the report of the last of them (0074), and keeps its configuration (0065, 0066, 0067); one of family 2
 * knows its status (I3). A mixer knows the reset, and keeps its configuration.
 *
 * It pours from canisters of its own, which hold what the machine that it is made of says; it knows that machine's circuits
 * and calibrations, but nothing of how the library writes a request.
 */
class SimulatedFirmware final : public Firmware
{
public:
    /// Milliseconds that never go back, from any origin.
    using Clock = std::function<qint64()>;

    /// The firmware of \a machine. Processes take their usual time divided by \a speed, which is above 0.
    /// It begins with the configuration that its state has kept.
    /// \throws std::runtime_error for a machine that cannot be told in rows, and a state that is not this firmware's
    explicit SimulatedFirmware(const FW_Machine &machine, double speed = 1, Clock clock = steadyClock(),
                               SimulatedConfiguration configuration = {});

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override;
    double speed() const override { return m_speed; }
    void canisterFilled(int canisterID, double quantity) override { m_contents[canisterID] = quantity; }

    /// The rows of its configuration that are not as the machine is.
    RowKeys changedRows() const { return m_rows.changedRows(); }

    static Clock steadyClock();

private:
    struct Command;
    using Commands = std::vector<Command>;

    static const Commands &commandsOf(const FW_Machine &machine);
    bool isResetting() const { return m_clock() < m_resetEnd; }
    bool isFinalising() const { return m_clock() < m_finalisingEnd; }
    bool isBusy() const { return isResetting() || isFinalising() || m_pour.isRunning(m_clock()); }

    // The commands. Those without parameters refuse any.
    FirmwareReply status(const QList<int> &parameters);
    FirmwareReply beginReset(const QList<int> &parameters);
    FirmwareReply tint(const QList<int> &parameters);
    FirmwareReply tint2(const QList<int> &parameters);
    FirmwareReply pack2(const QList<int> &parameters);
    FirmwareReply priming2(const QList<int> &parameters);
    FirmwareReply report(const QList<int> &parameters);
    FirmwareReply writeRow(const QList<int> &parameters);
    FirmwareReply readRow(const QList<int> &parameters);
    FirmwareReply finalise(const QList<int> &parameters);

    enum class Movement { Steps, PouredStrokes, IdleStrokes, StrokesOrPack };
    std::optional<PourRequest> readStrokes(const QList<int> &parameters) const;
    FirmwareReply beginPour(const std::optional<PourRequest> &request, Movement movement);
    static bool pours(const PourPart &part, Movement movement);
    const FW_Circuit &circuitAt(int position) const;
    CircuitPour plan(const PourPart &part, Movement movement);
    qint64 takeFromCanister(const FW_Circuit &circuit, qint64 steps);
    double moveTable(int position);
    void followRows();

    const Commands &m_commands;
    FW_Dispenser m_dispenser{}; ///< without circuits for a mixer
    double m_speed = 1;
    Clock m_clock{};
    qint64 m_resetEnd = 0;
    qint64 m_finalisingEnd = 0;
    Pour m_pour{};
    QHash<int, double> m_contents{}; ///< what the canisters really hold, by their IDs
    int m_tablePosition = 0;         ///< the circuit at the dosing point of a machine with a turntable
    SerialDeviceType m_type = SerialDeviceType::Dispenser;
    RowStore m_rows;
    std::shared_ptr<FirmwareState> m_state{};
};

} // namespace quv
