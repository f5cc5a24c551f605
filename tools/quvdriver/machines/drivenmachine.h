// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/configurationrow.h"
#include "firmware/firmware.h"
#include "machines/abilities.h"
#include "machines/progress.h"

#include "base/machineid.h"
#include "ending.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_errorlist.h>

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace quv {

/// A pour that a machine is at.
struct RunningPour
{
    QString command{};
    std::shared_ptr<const Progress> progress{};
    int channel = 1;   ///< the head
    Formula formula{}; ///< as the client gave it; empty for a command without one
};

/// What of a machine a procedure of the driver needs for itself.
enum class Engages { Nothing, Pumps, Stirrers };

/// A procedure that a machine is at, for as long as somebody holds it.
struct Engagement
{
    Engagement(QString name, Engages part) : command(std::move(name)), engages(part) {}

    const QString command;
    const Engages engages;
    Ending stopped{}; ///< begins when somebody stops the procedure
};

/**
 * A machine that the driver owns: what is known of it, and the way to its firmware. Any number of threads may use it.
 */
class DrivenMachine
{
public:
    DrivenMachine(std::unique_ptr<FW_Machine> machine, std::unique_ptr<Firmware> firmware,
                  Abilities abilities = {});

    MachineID id() const { return m_id; }
    SerialDeviceType type() const { return m_id.type; }
    int family() const { return m_family; } ///< mixers speak the codes of family 1
    double speed() const { return m_speed; }
    const Abilities &abilities() const { return m_abilities; }

    /// One exchange with the firmware; nobody else has one meanwhile. \throws what Firmware::execute throws
    FirmwareReply exchange(const QString &code, int module, const QList<int> &parameters);
    /// Tells the firmware's machine; see Firmware.
    void canisterFilled(int canisterID, double quantity);

    /// The machine as it is now. Commands get copies, since it changes with every pour.
    std::unique_ptr<FW_Machine> copy() const;
    /// Changes the machine's dispenser while nobody copies it; does nothing on a mixer.
    void change(const std::function<void(FW_Dispenser &)> &changes);

    /// Notes a row of the configuration that was written to the firmware.
    void rowWritten(const RowKey &key);
    /// Those noted since the last call.
    RowKeys takeWrittenRows();
    /// Changes the machine as a whole; when \a changes throws, it stays as it is.
    void configure(const std::function<void(FW_Machine &)> &changes);

    /// What the firmware's buffer holds, each error with the time when it was first told: a firmware tells none.
    FW_ErrorList withFirstTimes(const FW_ErrorList &told);
    /// Whatever the buffer holds later is new.
    void errorsCleared();

    /// Begins a procedure, which the machine is at until the result is gone; null while another one needs the same part, and
    /// \a other is then what that one carries out.
    std::shared_ptr<Engagement> engage(const QString &command, Engages part, QString *other = nullptr);
    /// Does \a work while nobody else does such: a procedure begins nothing between a stop of the procedures and that of the firmware.
    void asOneStep(const std::function<void()> &work);
    /// Tells all procedures that the machine is at to stop. When the firmware is spared, what it has been told to begin goes on, so
    /// that a pour does.
    void stopProcedures(bool sparesFirmware = false);
    /// Tells everybody what is being poured, for as long as the machine is at it.
    void setRunningPour(const RunningPour &pour);
    /// Null when nothing is.
    std::unique_ptr<RunningPour> runningPour() const;

private:
    std::vector<std::shared_ptr<Engagement>> engagements() const;

    const MachineID m_id;
    const int m_family;
    const double m_speed;
    const Abilities m_abilities;

    std::mutex m_exchange{}; ///< held for one exchange, never for a whole process
    std::unique_ptr<Firmware> m_firmware{};

    std::mutex m_step{};          ///< held for one step, which may be an exchange
    mutable std::mutex m_state{}; ///< guards what follows
    std::unique_ptr<FW_Machine> m_machine{};
    std::vector<std::weak_ptr<Engagement>> m_engagements{};
    RunningPour m_pour{};
    RowKeys m_writtenRows{};
    FW_ErrorList m_errors{}; ///< as they were told last
};

} // namespace quv
