// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_lock.h>

/** "@LCK", the lock of the door. */
class QUVPROTOCOL_EXPORT LCK_cdata final : public DeviceConfData<FW_Lock>
{
public:
    LCK_cdata() = default;
    /** Throws DE02435 without a machine, DE02804 for one that is no dispenser. */
    explicit LCK_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE02436 without data, DE02437 for the field, DE02438 for a further
     * one, DE02439, and what ConfData throws.
     */
    LCK_cdata(QStringList tokens, int fieldCount);
    /** Throws DE02440, and what ConfData throws. */
    explicit LCK_cdata(QString row);

    LCK_cdata *clone() const override;
};
