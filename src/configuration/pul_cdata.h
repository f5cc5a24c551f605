// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

#include <QuvFramework/fw_brush.h>
#include <QuvFramework/fw_brush2.h>

class FW_Dispenser;

/** What "@PUL" tells: the brushes, and the accurate cleaning that the cleaning motors of all circuits do alike. */
struct QUVPROTOCOL_EXPORT CleaningConf
{
    FW_Brush brush;
    FW_Brush2 secondBrush;
    int accuratePolicy = 0;   ///< schedule, target and process as FW_CleaningMotor::cleanPolicyFwMask
    int accurateDuration = 0; ///< seconds; 0 for no accurate cleaning
    int accurateTurntableSpeed = 50;
};

/** "@PUL", brushes and cleaning. `cmd_enabled` is that of the first brush. */
class QUVPROTOCOL_EXPORT PUL_cdata final : public ConfData
{
public:
    PUL_cdata();
    /** Throws DE01618 without a machine, DE02798 for one that is no dispenser. */
    explicit PUL_cdata(const FW_Machine *machine);
    /**
     * \a fieldCount counts `cmd_enabled`. Throws DE01619 without data, DE01620 to DE02842 for a field, DE01629 for a further
     * one, DE01630, and what ConfData throws.
     */
    PUL_cdata(QStringList tokens, int fieldCount);
    /** Throws DE01631, and what ConfData throws. */
    explicit PUL_cdata(QString row);

    PUL_cdata *clone() const override;
    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position
    void clear();                ///< gives brushes and cleaning their defaults
    const CleaningConf &cleaning() const { return m_cleaning; }

    bool updateLocalData(QString *error) override;
    /**
     * Gives the brushes to a dispenser, the second one only when it has a position, and the accurate cleaning to all its
     * cleaning motors: a duration of 0 removes them, and circuits get one if no circuit has any. `cmd_enabled` 0 changes
     * nothing. False without a dispenser and for a policy that is none.
     */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

private:
    bool giveAccurateCleaning(FW_Dispenser &dispenser) const;

    CleaningConf m_cleaning;
};
