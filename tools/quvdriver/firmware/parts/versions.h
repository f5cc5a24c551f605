// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

#include <QuvFramework/fw_version.h>

#include <functional>

namespace quv {

/// What a firmware tells of itself: its version (000F), the table of its commands (0014), and where in it a code stands (0068).
class Versions final : public FirmwarePart
{
public:
    /// The codes of all parts, in the order of the table.
    using Codes = std::function<QStringList()>;

    /// A firmware of the \a version, or of the usual one of its kind when that is not valid.
    Versions(SimulatedMachine &machine, const FW_Version &version, Codes allCodes);

    std::vector<FirmwareCode> codes() override;

private:
    FirmwareReply tellVersion(int module) const;
    FirmwareReply tellCommands(const QList<int> &numbers) const;
    FirmwareReply tellPlaces(const QList<int> &numbers) const;

    SimulatedMachine &m_machine;
    const FW_Version m_version;
    const Codes m_codes;
};

} // namespace quv
