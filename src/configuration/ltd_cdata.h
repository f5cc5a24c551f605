// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_lineartable.h>

/** "@LTD", the linear table. */
class QUVPROTOCOL_EXPORT LTD_cdata final : public DeviceConfData<FW_Lineartable>
{
public:
    LTD_cdata() = default;
    /** Throws DE01995 without a machine, DE02802 for one that is no dispenser. */
    explicit LTD_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE01996 without data, DE01997 to DE02009 for a field, DE02010 for a further
     * one, DE02011, and what ConfData throws.
     */
    LTD_cdata(QStringList tokens, int fieldCount);
    /** Throws DE02012, and what ConfData throws. */
    explicit LTD_cdata(QString row);

    LTD_cdata *clone() const override;
};
