// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "referenceconfdata.h"

#include <QuvFramework/fw_singletransmission.h>

/** A transmission, with what its row tells of the dosing motors behind it. */
struct QUVPROTOCOL_EXPORT SharedTransmission : SharedPart<FW_SingleTransmission>
{
    bool smartSpeed = false; ///< of all motors that share the transmission
};

/** "@MOT", a transmission of dosing motors. */
class QUVPROTOCOL_EXPORT MOT_cdata final : public ReferenceConfData<SharedTransmission>
{
public:
    MOT_cdata() = default;
    /** Throws DE01943 for the reference -1, DE01930 without a machine, DE02809 for one that is no dispenser. */
    MOT_cdata(int reference, const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE01963 without data, DE01964 to DE02948 for a field, DE01981 for a further
     * one, DE01982, and what ConfData throws.
     */
    MOT_cdata(QStringList tokens, int fieldCount);
    /** Throws DE01983, and what ConfData throws. */
    explicit MOT_cdata(QString row);

    MOT_cdata *clone() const override;

    const FW_SingleTransmission &transmission() const { return m_shared.part; }
    bool smartSpeed() const { return m_shared.smartSpeed; }
};
