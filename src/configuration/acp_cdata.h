// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "deviceconfdata.h"

#include <QuvFramework/fw_autocap.h>

/** "@ACP", the cap that closes the nozzles. */
class QUVPROTOCOL_EXPORT ACP_cdata final : public DeviceConfData<FW_Autocap>
{
public:
    ACP_cdata() = default;
    /** Throws DE00197 without a machine, DE02790 for one that is no dispenser. */
    explicit ACP_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00198 without data, DE00199 to DE02603 for a field, DE00206 for a further
     * one, DE00207, and what ConfData throws.
     */
    ACP_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00208, and what ConfData throws. */
    explicit ACP_cdata(QString row);

    ACP_cdata *clone() const override;
};
