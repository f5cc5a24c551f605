// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "driver.h"

#include "status/machinestatusanswer.h"

#include <memory>
#include <optional>

namespace quv {

/// What a machine tells of itself.
struct ToldStatus
{
    std::shared_ptr<const MachineStatusAnswer> answer{}; ///< never null
    OrderedJson reply{};                                 ///< class, value and descriptions, for programs
};

/**
 * The status of the machine that the user has chosen. Without a choice it is that of the driver's dispenser, or of its mixer where
 * there is no dispenser; the first answer settles that.
 */
class StatusQuestion
{
public:
    explicit StatusQuestion(const Driver &driver) : m_driver(driver) {}
    /// Of a command that only machines of \a kind understand.
    StatusQuestion(const Driver &driver, SerialDeviceType kind) : m_driver(driver), m_kind(kind) {}

    /// \throws RequestRefused, std::runtime_error for an answer that is no status, and as Driver::execute
    ToldStatus ask();
    /// The same of the circuit at \a position of a dispenser; 0 is the machine.
    ToldStatus ask(int position);
    /// Known when it has been asked, or chosen.
    bool isMixer() const;

private:
    const Driver &m_driver;
    std::optional<SerialDeviceType> m_kind{};
};

} // namespace quv
