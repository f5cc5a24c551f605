// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ratios.h"
#include "status/fwerroranswer.h"
#include "suites.h"

#include <QtCore/QStringList>

namespace {

/** A packet of four hardware errors. */
QStringList packet()
{
    return QString::fromLatin1("17 1 1 4 2 A5 1 0 1F 3 10 0 0 40 F5 7 2 1 5 1 0 0 0 0")
        .split(QLatin1Char(' '));
}

QList<FW_HwError> readByHand(const QStringList &tokens)
{
    bool ok = false;
    const auto number = [&](int index) { return static_cast<int>(tokens.at(index).toUInt(&ok, 16)); };
    QList<FW_HwError> errors;
    const int end = 4 + 5 * number(3);
    for (int i = 4; i < end; i += 5) {
        const int code = number(i + 1) + 246 * number(i + 2) + 60516 * number(i + 3);
        const int flags = number(i + 4);
        errors.append(FW_HwError(code, number(i), flags & 31, (flags & 32) != 0 || (flags & 64) == 0,
                                 SerialDeviceType::Dispenser));
    }
    return errors;
}

} // namespace

void quv::addErrorRatios()
{
    addRatio("errors: packet from tokens", 1.5, repeat([list = packet()] { return FwErrorAnswer(list); }),
             repeat([list = packet()] { return readByHand(list); }));
}
