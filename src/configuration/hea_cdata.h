// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_heater.h>

/** "@HEA", the heater. */
class QUVPROTOCOL_EXPORT HEA_cdata final : public DeviceConfData<FW_Heater>
{
public:
    HEA_cdata() = default;
    /** Throws DE01632 without a machine, DE02799 for one that is no dispenser. */
    explicit HEA_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE01633 without data, DE01634 to DE01635 for a field, DE01636 for a further
     * one, DE01637, and what ConfData throws.
     */
    HEA_cdata(QStringList tokens, int fieldCount);
    /** Throws DE01638, and what ConfData throws. */
    explicit HEA_cdata(QString row);

    HEA_cdata *clone() const override;
};
