// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_nozzlevalve.h>

/** "@NOZ", the nozzle valve. */
class QUVPROTOCOL_EXPORT NOZ_cdata final : public DeviceConfData<FW_NozzleValve>
{
public:
    NOZ_cdata() = default;
    /** Throws DE01632 without a machine, DE02801 for one that is no dispenser. */
    explicit NOZ_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE01934 without data, DE01935 to DE01936 for a field, DE01937 for a further
     * one, DE01938, and what ConfData throws.
     */
    NOZ_cdata(QStringList tokens, int fieldCount);
    /** Throws DE01939, and what ConfData throws. */
    explicit NOZ_cdata(QString row);

    NOZ_cdata *clone() const override;
};
