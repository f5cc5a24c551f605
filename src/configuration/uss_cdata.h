// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_ultrasoundcleaning.h>

/** "@USS", the ultrasound cleaning. */
class QUVPROTOCOL_EXPORT USS_cdata final : public DeviceConfData<FW_UltrasoundCleaning>
{
public:
    USS_cdata() = default;
    /** Throws DE02176 without a machine, DE02803 for one that is no dispenser. */
    explicit USS_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE02177 without data, DE02178 to DE02188 for a field, DE02189 for a further
     * one, DE02190, and what ConfData throws.
     */
    USS_cdata(QStringList tokens, int fieldCount);
    /** Throws DE02191, and what ConfData throws. */
    explicit USS_cdata(QString row);

    USS_cdata *clone() const override;
};
