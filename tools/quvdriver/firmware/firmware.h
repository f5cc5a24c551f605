// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quv {

/// What a firmware sends back: hexadecimal tokens in upper case, the length token first.
struct FirmwareReply
{
    /// A refusal is a reply of its own kind. Its parameters are six: two masks of reasons, and four that are not read.
    bool refused = false;
    QStringList tokens{};
    QString reason{}; ///< why it is refused, in words; a real firmware tells none
};

/// One machine's firmware, as the driver sees it: behind it stands a simulation, or a serial link.
class Firmware
{
public:
    Firmware() = default;
    Firmware(const Firmware &) = delete;
    Firmware &operator=(const Firmware &) = delete;
    virtual ~Firmware() = default;

    /// Carries out the command of \a code at the serial address \a module (0: the machine itself). Called by one thread
    /// at a time. Returns when the firmware has replied, which for a process is when it has begun.
    /// \throws std::runtime_error when no reply could be had
    virtual FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) = 0;

    /// How many times faster than a machine of its kind this one works; a real one is as fast as it is.
    virtual double speed() const { return 1; }

    /// Somebody has told the driver that a canister holds so much now. A real canister was filled by a hand; a simulated one
    /// has no other. Called like execute.
    virtual void canisterFilled(int /*canisterID*/, double /*quantity*/) {}
};

} // namespace quv
