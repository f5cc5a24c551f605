// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_temperaturesensor.h>

/** "@TEM", the temperature sensor. */
class QUVPROTOCOL_EXPORT TEM_cdata final : public DeviceConfData<FW_TemperatureSensor>
{
public:
    TEM_cdata() = default;
    /** Throws DE00595 without a machine, DE02792 for one that is no dispenser. */
    explicit TEM_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00597 without data, DE00598 to DE02831 for a field, DE00605 for a further
     * one, DE00606, and what ConfData throws.
     */
    TEM_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00607, and what ConfData throws. */
    explicit TEM_cdata(QString row);

    TEM_cdata *clone() const override;
};
