// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/firmwarerefusal.h"

#include "machines/refusal.h"

#include "status/commandrefusedanswer.h"

#include <QuvFramework/fw_exception.h>

namespace quv {
namespace {

/// Nothing for a refusal of which the reasons cannot be read; \a text tells why.
CommandRefusedError reasonsOf(const FirmwareReply &refusal, QString &text)
{
    try {
        const CommandRefusedError error = CommandRefusedAnswer(refusal.tokens).commandRefusedError();
        text = error.getCommandRefusedErrorDescriptions().join(QStringLiteral(", "));
        return error;
    } catch (const FW_Exception &error) {
        text = error.text();
        return {};
    }
}

} // namespace

void refuseAsFirmware(const QString &code, const FirmwareReply &refusal)
{
    QString reasons;
    const CommandRefusedError error = reasonsOf(refusal, reasons);
    refuse(error.bad_cmd_code ? UnknownToFirmware : RefusedByFirmware, "DE03106",
           QStringLiteral("The firmware refused the code %1: %2 (masks 0x%3 and 0x%4)%5")
               .arg(code, reasons, refusal.tokens.value(1), refusal.tokens.value(2),
                    refusal.reason.isEmpty() ? QString() : QStringLiteral("; ") + refusal.reason));
}

} // namespace quv
