// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_humidifier.h>

/** "@HUM", the humidifier. */
class QUVPROTOCOL_EXPORT HUM_cdata final : public DeviceConfData<FW_Humidifier>
{
public:
    HUM_cdata() = default;
    /** Throws DE00246 without a machine, DE02791 for one that is no dispenser. */
    explicit HUM_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00247 without data, DE00248 to DE00250 for a field, DE00251 for a further
     * one, DE00252, and what ConfData throws.
     */
    HUM_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00253, and what ConfData throws. */
    explicit HUM_cdata(QString row);

    HUM_cdata *clone() const override;
};
