// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_shelf.h>

/** "@SGA", the shelf and its puncher. */
class QUVPROTOCOL_EXPORT SGA_cdata final : public DeviceConfData<FW_Shelf>
{
public:
    SGA_cdata() = default;
    /** Throws DE00254 without a machine, DE02793 for one that is no dispenser. */
    explicit SGA_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00255 without data, DE00256 to DE02904 for a field, DE00263 for a further
     * one, DE00264, and what ConfData throws.
     */
    SGA_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00265, and what ConfData throws. */
    explicit SGA_cdata(QString row);

    SGA_cdata *clone() const override;
};
