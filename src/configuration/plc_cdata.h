// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_plcboard.h>

/** "@PLC", the board to a production line. */
class QUVPROTOCOL_EXPORT PLC_cdata final : public DeviceConfData<FW_PLCBoard>
{
public:
    PLC_cdata() = default;
    /** Throws DE02909 without a machine, DE02910 for one that is no dispenser. */
    explicit PLC_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE02911 without data, DE02912 to DE02914 for a field, DE02915 for a further
     * one, DE02916, and what ConfData throws.
     */
    PLC_cdata(QStringList tokens, int fieldCount);
    /** Throws DE02917, and what ConfData throws. */
    explicit PLC_cdata(QString row);

    PLC_cdata *clone() const override;
};
