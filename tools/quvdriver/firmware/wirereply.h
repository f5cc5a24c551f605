// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"

namespace quv {

/// Why a firmware refuses a command: a bit of one of the two masks of reasons, the second from 8 on.
enum class Reason {
    FieldOutOfRange = 0,
    UnknownCode = 3,
    WrongModule = 4,
    WrongParameters = 5,
    ErrorsPresent = 8,
    ConfigurationNotWritten = 9,
    NotAvailable = 11,
    WrongWorkingMode = 12,
};

/// What stands in the way of a command, also in words for people.
struct Obstacle
{
    Reason reason = Reason::NotAvailable;
    QString text{};
};

/// \a text tells people more than the bit does.
FirmwareReply refused(Reason reason, const QString &text = {});
inline FirmwareReply refused(const Obstacle &obstacle)
{
    return refused(obstacle.reason, obstacle.text);
}
/// The reply of a command with these numbers.
FirmwareReply replied(const QList<int> &numbers);
/// The reply of a command that tells nothing.
inline FirmwareReply begun()
{
    return replied({});
}

} // namespace quv
