// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

#include <QuvFramework/fw_dispenser.h>

/**
 * "@GMC", how a dispenser is set up as a whole: working mode, parallelism, processes that go on by themselves. The rows of the
 * circuits follow it, for it tells what all level sensors have in common.
 */
class QUVPROTOCOL_EXPORT GMC_cdata final : public ConfData
{
public:
    GMC_cdata();
    /** Throws DE00185 without a machine, DE02789 for one that is no dispenser. */
    explicit GMC_cdata(const FW_Machine *machine);
    /** \a fieldCount counts `cmd_enabled`. Throws DE00186 to DE00195 and the codes of fields, and what ConfData throws. */
    GMC_cdata(QStringList tokens, int fieldCount);
    explicit GMC_cdata(QString row); ///< throws DE00196, and what ConfData throws

    GMC_cdata *clone() const override;
    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position
    void clear();                ///< a dispenser with its defaults, nothing told of easy-on and sensors
    const FW_Dispenser &dispenser() const { return m_dispenser; }
    /** Seconds without the computer until the machine switches itself off; negative when it is not told. */
    int easyOnTimeout() const { return m_easyOnTimeout; }
    /** The level sensors' policy in the low four bits, 16 for those of type 1; 0 for none. */
    int reserveSensor() const { return m_reserveSensor; }

    bool updateLocalData(QString *error) override;
    /** Appends reserveSensor() to \a extra, for the circuits. Only an enabled row changes the machine. */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override; ///< with "working_mode"

private:
    FW_Dispenser m_dispenser;
    int m_easyOnTimeout = -1;
    int m_reserveSensor = 0;
};
