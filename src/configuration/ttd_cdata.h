// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_turntable.h>

/** "@TTD", the turntable. */
class QUVPROTOCOL_EXPORT TTD_cdata final : public DeviceConfData<FW_Turntable>
{
public:
    TTD_cdata() = default;
    /** Throws DE01603 without a machine, DE02797 for one that is no dispenser. */
    explicit TTD_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE01604 without data, DE01605 to DE02829 for a field, DE01614 for a further
     * one, DE01615, and what ConfData throws.
     */
    TTD_cdata(QStringList tokens, int fieldCount);
    /** Throws DE01617, and what ConfData throws. */
    explicit TTD_cdata(QString row);

    TTD_cdata *clone() const override;
};
