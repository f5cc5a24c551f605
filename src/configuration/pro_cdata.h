// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "referenceconfdata.h"

#include <QuvFramework/fw_flowcorrection.h>

/** "@PRO", a flow correction of dosing motors. */
class QUVPROTOCOL_EXPORT PRO_cdata final : public ReferenceConfData<SharedPart<FW_FlowCorrection>>
{
public:
    PRO_cdata() = default;
    /** Throws DE02298 for the reference -1, DE02299 without a machine, DE02810 for one that is no dispenser. */
    PRO_cdata(int reference, const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE02301 without data, DE02302 to DE02312 for a field, DE02308 for a further
     * one, DE02309, and what ConfData throws.
     */
    PRO_cdata(QStringList tokens, int fieldCount);
    /** Throws DE02310, and what ConfData throws. */
    explicit PRO_cdata(QString row);

    PRO_cdata *clone() const override;

    const FW_FlowCorrection &flowCorrection() const { return m_shared.part; }
};
