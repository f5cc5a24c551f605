// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"
#include "firmware/process.h"
#include "firmware/wirereply.h"
#include "firmware/words.h"

#include <functional>
#include <vector>

namespace quv {

/// A code that a part of a machine serves.
struct FirmwareCode
{
    QString code{};
    QString family2{}; ///< the code in command family 2; empty for none
    /// Carries the command out at a serial address (0: the machine itself) and replies.
    std::function<FirmwareReply(int module, const QList<int> &parameters)> run{};
    bool takesParameters = false; ///< one that takes none refuses any
};

/// A circuit in the list of those that are engaged in a process.
struct ActiveCircuit
{
    int position = 0;
    int state = 0; ///< what the process tells of each: a mask, a valve's position or a stall level
};

/// What a process that runs takes from a canister, as quantities.
struct Withdrawal
{
    double taken = 0;  ///< in all
    double poured = 0; ///< of it, by now
};

/**
 * A part of a simulated machine. It reads the wire by itself and keeps its own state, under the clock of the machine; what it has
 * in common with others is the machine's (SimulatedMachine).
 */
class FirmwarePart
{
public:
    FirmwarePart() = default;
    FirmwarePart(const FirmwarePart &) = delete;
    FirmwarePart &operator=(const FirmwarePart &) = delete;
    virtual ~FirmwarePart() = default;

    /// The codes that it serves; two parts of a machine serve no code together.
    virtual std::vector<FirmwareCode> codes() = 0;

    /// Sets its bits in the status of the machine, or of the circuit at the position \a module.
    virtual void tellStatus(StatusWords & /*status*/, int /*module*/) const {}
    virtual void tellSensors(SensorWords & /*sensors*/) const {}
    /// The circuits engaged in a process by its number.
    virtual std::vector<ActiveCircuit> activeCircuits(int /*process*/) const { return {}; }

    /// What it takes from the canister now.
    virtual Withdrawal withdrawal(int /*canisterID*/) const { return {}; }

    /// What it is at because it was told to, until that ends. What goes on by itself again and again is nothing to others.
    virtual ProcessSet atWork() const { return {}; }
    /// What cannot begin now: anything while it is at work, unless it says otherwise.
    virtual ProcessSet excluded() const { return atWork().isEmpty() ? ProcessSet() : ProcessSet::all(); }

    /// Why what it excludes is refused.
    virtual Reason obstacle() const { return Reason::NotAvailable; }
    /// The pumps of these circuits are about to be moved by another part.
    virtual void giveWay(const QList<int> & /*positions*/) {}

    /// Called before the parts go on, while they all still know what has ended since they last did.
    virtual void lookBack() {}
    /// What has come about since it was last called, by the machine's clock. Called before each command.
    virtual void goOn() {}
    /// Ends what runs, at this moment.
    virtual void stop() {}
    /// The machine begins anew; what ran has been stopped.
    virtual void reset() {}
};

} // namespace quv
