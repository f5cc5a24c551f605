// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machinechoice.h"

#include <QtCore/QString>

#include <optional>

namespace quv {

class CommandLine;

/// Where a driver listens.
struct DriverAddress
{
    QString host{};
    int port = 9333;
    QString path{}; ///< of a URL; empty for none
};

/**
 * What --host and --port tell, and QUV_HOST and QUV_PORT where they do not: the nearest tells, and each of the hosts may tell a
 * port too. \throws UsageError
 */
DriverAddress driverAddress(const CommandLine &line);

/// The options of the command line that lead to the same driver and machine, a blank before each, to be pasted into a shell.
QString sameDriver(const CommandLine &line);
/// The same, with \a machine, if any, in the place of that of the command line.
QString sameDriver(const CommandLine &line, const std::optional<MachineChoice> &machine);

} // namespace quv
