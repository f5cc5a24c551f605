// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/circuitprocess.h"
#include "firmware/circuitruns.h"
#include "firmware/processnumbers.h"
#include "firmware/simulatedmachine.h"

#include <QtCore/QHash>

#include <functional>
#include <optional>

namespace quv {

/**
 * A process for which motors of circuits turn: those of one circuit or of all, told to or by themselves. One that is busy keeps all
 * else from beginning, another goes on in the background and shows in the status of its circuits alone.
 */
class CircuitMotors : public FirmwarePart
{
public:
    void tellStatus(StatusWords &status, int module) const override;
    std::vector<ActiveCircuit> activeCircuits(int process) const override;
    ProcessSet atWork() const override;
    ProcessSet excluded() const override;
    void goOn() override;
    void stop() override;

protected:
    struct Kind
    {
        Process process{};
        CircuitProcess number{};
        TimedProcess timed{};
        int statusBit = 0; ///< in the first word
        QString lack{};    ///< of a machine without a motor for it, in words
        QString limit{};   ///< of one where as many motors turn as it can, with a place for their number
    };

    /// When a circuit that begins now ends; nothing when that cannot be known.
    using EndOf = std::function<std::optional<qint64>(const FW_Circuit &)>;

    CircuitMotors(SimulatedMachine &machine, const Kind &kind) : m_machine(machine), m_kind(kind) {}

    FirmwareReply begin(int module, bool isBusy, const EndOf &endOf);
    FirmwareReply end(int module);
    void end(const QList<int> &positions);

    virtual bool hasMotor(const FW_Circuit &circuit) const = 0;
    virtual Rhythm rhythm(const FW_Circuit &circuit) const = 0;
    virtual int parallelism() const = 0; ///< how many turn at once when each is told by itself
    virtual bool movesAll(int module) const { return module == 0; }

    SimulatedMachine &m_machine;

private:
    bool isTurning(const FW_Circuit &circuit) const;
    bool isDue(const FW_Circuit &circuit) const;
    bool hasPlaceFor(int position) const;
    QList<int> addressed(int module) const;
    QList<int> turning() const;

    const Kind m_kind;
    CircuitRuns m_runs{};
    QHash<int, qint64> m_restingSince{}; ///< by position: when what went on by itself was stopped
};

} // namespace quv
