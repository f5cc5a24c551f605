// SPDX-License-Identifier: LGPL-3.0-or-later
#include "excerpt.h"
#include "executed.h"
#include "machineprocess.h"
#include "subcommands.h"
#include "suggestions.h"

#include "processes/autocapcmd.h"
#include "processes/mixerplatescmd.h"
#include "processes/shelfcmd.h"
#include "processes/turntablemovecmd.h"
#include "processes/turntablemovetorefillcmd.h"
#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"
#include "status/sensorsstatusanswer.h"

#include <memory>
#include <optional>

namespace quv {

namespace {

/// Where a cap is to stand.
struct CapGoal
{
    bool SensorsStatusAnswer::*sensor = nullptr;
    QString word{}; ///< as in "the cap is open"
};

struct Movement
{
    std::unique_ptr<ProtoCommand> command{};
    MachineProcess process{};
    SerialDeviceType machine = SerialDeviceType::Dispenser;
    std::optional<CapGoal> cap{};
};

[[noreturn]] void refuseGoal(const QString &part, const QString &word, const QStringList &goals)
{
    throw UsageError(
        QStringLiteral("move %1 goes to %2, not \"%3\"%4")
            .arg(part, goals.join(QStringLiteral(", ")), excerpt(word), didYouMean(word, goals)));
}

/// \a isAtWork is what the status tells meanwhile.
Movement movement(std::unique_ptr<ProtoCommand> command, const QString &begun, StatusCondition isAtWork)
{
    Movement moved;
    moved.command = std::move(command);
    moved.process.begun = begun;
    moved.process.ended = QStringLiteral("moved");
    moved.process.isAtWork = std::move(isAtWork);
    return moved;
}

Movement shelfMovement(const QString &goal, const CommandLine &line)
{
    constexpr int greatestHeight = 60514; // millimetres that two digits tell
    const auto isMoving = anyOf({&MachineStatusAnswer::shelf_up, &MachineStatusAnswer::shelf_down});
    if (goal == QLatin1String("down"))
        return movement(std::make_unique<ShelfCmd>(ShelfCmd::LowPosition, 0),
                        QStringLiteral("moving the shelf down"), isMoving);
    if (goal != QLatin1String("up"))
        refuseGoal(QStringLiteral("shelf"), goal, {QStringLiteral("up"), QStringLiteral("down")});
    if (!line.isSet("height"))
        throw UsageError(QStringLiteral("move shelf up needs --height, the millimetres to which it goes"));
    const int height = line.number("height", 0, 0, greatestHeight);
    return movement(std::make_unique<ShelfCmd>(ShelfCmd::CanPosition, height),
                    QStringLiteral("moving the shelf up to %1 mm").arg(height), isMoving);
}

Movement capMovement(const QString &goal)
{
    const auto isOpen = anyOf({&DispenserStatusAnswer::cap_open});
    Movement moved;
    if (goal == QLatin1String("open")) {
        moved = movement(std::make_unique<AutocapCmd>(AutocapCmd::Open), QStringLiteral("opening the cap"),
                         [isOpen](const MachineStatusAnswer &status) { return !isOpen(status); });
        moved.cap = CapGoal{&SensorsStatusAnswer::cap_open, QStringLiteral("open")};
    } else if (goal == QLatin1String("close")) {
        moved = movement(std::make_unique<AutocapCmd>(AutocapCmd::Close), QStringLiteral("closing the cap"),
                         isOpen);
        moved.cap = CapGoal{&SensorsStatusAnswer::cap_close, QStringLiteral("closed")};
    } else {
        refuseGoal(QStringLiteral("cap"), goal, {QStringLiteral("open"), QStringLiteral("close")});
    }
    return moved;
}

Movement tableMovement(const QString &goal, const CommandLine &line)
{
    const auto isMoving = anyOf({&DispenserStatusAnswer::turntable_moving});
    constexpr int noPosition = 0;
    const bool isForRefill = line.isSet("refill");
    if (goal == QLatin1String("reference")) {
        if (isForRefill)
            throw UsageError(QStringLiteral("--refill needs the position of a circuit, not reference"));
        return movement(std::make_unique<TurntableMoveCmd>(noPosition, TurntableMoveCmd::ReferenceSearch,
                                                           TurntableMovement::Shortest, 0, 0,
                                                           TurntableMovement::configurationSpeed()),
                        QStringLiteral("moving the table to its reference"), isMoving);
    }
    bool isNumber = false;
    const int position = goal.toInt(&isNumber);
    if (!isNumber)
        refuseGoal(QStringLiteral("table"), goal,
                   {QStringLiteral("reference"), QStringLiteral("a circuit's position")});
    if (position < 1 || position > 255)
        throw UsageError(QStringLiteral("a circuit's position is a number from 1 to 255"));
    if (isForRefill)
        return movement(std::make_unique<TurntableMoveToRefillCmd>(position, nullptr),
                        QStringLiteral("moving circuit %1 to where it is refilled").arg(position), isMoving);
    return movement(std::make_unique<TurntableMoveCmd>(position),
                    QStringLiteral("moving the table to circuit %1").arg(position), isMoving);
}

Movement platesMovement(const QString &goal)
{
    constexpr auto openPlates = MixerPlatesCmd::MixerPlatesAction(0);
    constexpr auto closePlates = MixerPlatesCmd::MixerPlatesAction(1);
    const bool isOpening = goal == QLatin1String("open");
    if (!isOpening && goal != QLatin1String("close"))
        refuseGoal(QStringLiteral("plates"), goal, {QStringLiteral("open"), QStringLiteral("close")});
    Movement moved =
        movement(std::make_unique<MixerPlatesCmd>(isOpening ? openPlates : closePlates,
                                                  MixerPlatesCmd::endless, MixerPlatesCmd::configSpeed, 0),
                 isOpening ? QStringLiteral("opening the plates") : QStringLiteral("closing the plates"),
                 anyOf({&MixerStatusAnswer::clamping}));
    moved.machine = SerialDeviceType::Mixer;
    return moved;
}

Movement movementOf(const CommandLine &line)
{
    const QString part = line.words()[0];
    const QString goal = line.words()[1];
    if (line.isSet("height") && part != QLatin1String("shelf"))
        throw UsageError(QStringLiteral("--height belongs to move shelf"));
    if (line.isSet("refill") && part != QLatin1String("table"))
        throw UsageError(QStringLiteral("--refill belongs to move table"));
    if (part == QLatin1String("shelf"))
        return shelfMovement(goal, line);
    if (part == QLatin1String("table"))
        return tableMovement(goal, line);
    if (part == QLatin1String("cap"))
        return capMovement(goal);
    if (part == QLatin1String("plates"))
        return platesMovement(goal);
    const QStringList parts = {QStringLiteral("shelf"), QStringLiteral("table"), QStringLiteral("cap"),
                               QStringLiteral("plates")};
    throw UsageError(QStringLiteral("move has shelf, table, cap and plates, not \"%1\"%2")
                         .arg(excerpt(part), didYouMean(part, parts)));
}

std::optional<SensorsStatusAnswer> sensorsOf(const Driver &driver)
{
    return answerIfAny<SensorsStatusAnswer>(ProtoCommandList::GET_SENSORS_STATUS, driver);
}

/// A status tells that a cap is not closed, which it is not while it moves either; the sensors tell more.
void followCap(MachineProcess &process, const CapGoal &goal, const Driver &driver)
{
    const auto hasMoved = std::make_shared<bool>(false);
    process.isAtWork = [hasMoved, goal, &driver](const MachineStatusAnswer &) {
        const auto sensors = answerTo<SensorsStatusAnswer>(ProtoCommandList::GET_SENSORS_STATUS, driver);
        *hasMoved = *hasMoved || sensors.autocap_active;
        return sensors.autocap_active || (!(sensors.*goal.sensor) && !*hasMoved);
    };
    process.failure = [goal, &driver] {
        const auto sensors = sensorsOf(driver);
        return sensors && !((*sensors).*goal.sensor) ? QStringLiteral("the cap is not %1").arg(goal.word)
                                                     : QString();
    };
}

ExitStatus runMove(const CommandLine &line)
{
    Movement moved = movementOf(line);
    requireKind(line, moved.machine, QStringLiteral("move ") + line.words().first());
    const Driver driver(line, moved.machine);
    intervalOf(line); // refused before anything is asked
    if (const auto sensors = moved.cap ? sensorsOf(driver) : std::nullopt) {
        if ((*sensors).*moved.cap->sensor && !sensors->autocap_active)
            return tellNothingToDo(QStringLiteral("the cap is %1 already").arg(moved.cap->word), line);
        followCap(moved.process, *moved.cap, driver);
    }
    ProtoCommands commands;
    commands.push_back(std::move(moved.command));
    StatusQuestion question(driver, moved.machine);
    return carryOutProcess(driver, question, commands, moved.process, line);
}

} // namespace

const Subcommand moveSubcommand = {
    "move",
    "shelf|table|cap|plates WHERE",
    "moves a part of the machine",
    "move shelf up --height 300, move shelf down, move cap open, move cap close, move table reference, and\n"
    "move table 5, which brings the circuit at this position to the nozzles; of a can mixer move plates "
    "open\n"
    "and move plates close. Waits for the end; Ctrl-C ends the waiting, and a second one within 2 seconds\n"
    "stops the machine.",
    2,
    2,
    withProcessOptions(
        {{"height", "MM", "of the shelf that goes up, in millimetres"},
         {"refill", nullptr, "the table brings the circuit to where its canister is refilled"}}),
    runMove};

} // namespace quv
