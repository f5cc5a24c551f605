// SPDX-License-Identifier: LGPL-3.0-or-later
#include "circuitchoice.h"
#include "machineprocess.h"
#include "subcommands.h"
#include "timedprocess.h"

#include "processes/recirculationcmd.h"
#include "status/dispenserstatusanswer.h"

namespace quv {

namespace {

constexpr int noSpeed = 0;

/// Without --speed as the machine is configured to.
int speedOf(const CommandLine &line)
{
    const int speed = line.number("speed", noSpeed, line.isSet("speed") ? 1 : 0, 100);
    return speed == noSpeed ? FWProcess::configSpeed() : speed;
}

/// The typed form takes a duration of 0 for none; the list takes it for the end.
std::unique_ptr<ProtoCommand> recirculation(int position, long long duration, int speed)
{
    if (duration > 0)
        return std::make_unique<RecirculationCmd>(position, duration, speed, FWProcess::Seconds, false,
                                                  nullptr);
    return std::make_unique<RecirculationCmd>(QList<QVariant>{position, 0, speed, FWProcess::Seconds, false},
                                              nullptr);
}

ExitStatus runRecirculate(const CommandLine &line)
{
    const auto command = [speed = speedOf(line)](int position, long long seconds) {
        return recirculation(position, seconds, speed);
    };
    return carryOutTimed(
        {"recirculating", "recirculation of", "recirculated", &DispenserStatusAnswer::recirculating, command},
        line);
}

} // namespace

const Subcommand recirculateSubcommand = {
    "recirculate",
    "[TIME|endless|off]",
    "pumps the colorants around",
    "Pumps the colorant of all circuits, or of some, around for a time such as 90s, 3min or 1h30min (30s), "
    "so\n"
    "that it does not settle. endless goes on until quvctl recirculate off. Waits for the end, with the\n"
    "progress; Ctrl-C ends the waiting, and a second one within 2 seconds stops the machine.",
    0,
    1,
    withProcessOptions({circuitOption, {"speed", "PERCENT", "1 to 100 (as the machine is configured to)"}}),
    runRecirculate,
    SerialDeviceType::Dispenser};

} // namespace quv
