// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_canpresencesensor.h>

/** "@FOT", the sensor that sees the can. */
class QUVPROTOCOL_EXPORT FOT_cdata final : public DeviceConfData<FW_CanPresenceSensor>
{
public:
    FOT_cdata() = default;
    /** Throws DE00277 without a machine, DE02794 for one that is no dispenser. */
    explicit FOT_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00278 without data, DE00279 to DE00280 for a field, DE00281 for a further
     * one, DE00282, and what ConfData throws.
     */
    FOT_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00283, and what ConfData throws. */
    explicit FOT_cdata(QString row);

    FOT_cdata *clone() const override;
};
