// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "referenceconfdata.h"

#include <QuvFramework/fw_ramp.h>

/** "@RAM", a ramp of dosing motors. */
class QUVPROTOCOL_EXPORT RAM_cdata final : public ReferenceConfData<SharedPart<FW_Ramp>>
{
public:
    RAM_cdata() = default;
    /** Throws DE00266 without a machine, DE02806 for one that is no dispenser. */
    RAM_cdata(int rampReference, const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE00268 without data, DE00269 to DE00273 for a field, DE00274 for a further
     * one, DE00275, and what ConfData throws.
     */
    RAM_cdata(QStringList tokens, int fieldCount);
    /** Throws DE00276, and what ConfData throws. */
    explicit RAM_cdata(QString row);

    RAM_cdata *clone() const override;

    const FW_Ramp &ramp() const { return m_shared.part; }
};
