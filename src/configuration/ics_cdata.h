// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

/** "@ICS", which begins a configuration: `cmd_enabled` alone. */
class QUVPROTOCOL_EXPORT ICS_cdata final : public ConfData
{
public:
    ICS_cdata();
    explicit ICS_cdata(const FW_Machine *machine); ///< enabled, whatever the machine is
    /** \a fieldCount counts `cmd_enabled`. Throws DE00177 for a further field, and what ConfData throws. */
    ICS_cdata(QStringList tokens, int fieldCount);
    explicit ICS_cdata(QString row); ///< throws what ConfData throws

    ICS_cdata *clone() const override;
    void clear() {} ///< the structure has no object

    bool updateLocalData(QString *) override { return true; } ///< there is nothing to move
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override; ///< does nothing; true
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
};
