// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/simulatedmachine.h"

#include <utility>

namespace quv {

/// Hands a command through to a board (002C): the firmware carries it out at the board's address.
class DeepService final : public FirmwarePart
{
public:
    using Execute =
        std::function<FirmwareReply(const QString &code, int module, const QList<int> &parameters)>;

    DeepService(SimulatedMachine & /*machine*/, Execute execute) : m_execute(std::move(execute)) {}

    std::vector<FirmwareCode> codes() override;

private:
    FirmwareReply handThrough(int module, const QList<int> &parameters) const;

    const Execute m_execute;
};

} // namespace quv
