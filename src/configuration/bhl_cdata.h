// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_bungholelocator.h>

/** "@BHL", the bung hole locator. */
class QUVPROTOCOL_EXPORT BHL_cdata final : public DeviceConfData<FW_BungHoleLocator>
{
public:
    BHL_cdata() = default;
    /** Throws DE00326 without a machine, DE02795 for one that is no dispenser. */
    explicit BHL_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00328 without data, DE00329 or DE00521 for a field, DE00702 for a further
     * one, DE00703, and what ConfData throws.
     */
    BHL_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00704, and what ConfData throws. */
    explicit BHL_cdata(QString row);

    BHL_cdata *clone() const override;
};
