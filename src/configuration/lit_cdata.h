// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_nozzlelight.h>

/** "@LIT", the light at the nozzles. */
class QUVPROTOCOL_EXPORT LIT_cdata final : public DeviceConfData<FW_NozzleLight>
{
public:
    LIT_cdata() = default;
    /** Throws DE00705 without a machine, DE02796 for one that is no dispenser. */
    explicit LIT_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00707 without data, DE00708 or DE00522 for a field, DE00709 for a further
     * one, DE00710, and what ConfData throws.
     */
    LIT_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00711, and what ConfData throws. */
    explicit LIT_cdata(QString row);

    LIT_cdata *clone() const override;
};
