// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

/** A structure that this library does not know: its row is kept as it came. The owner sets the code. */
class QUVPROTOCOL_EXPORT GENERIC_cdata final : public ConfData
{
public:
    GENERIC_cdata() = default;
    /** An enabled row without fields. Throws DE00284 without a machine, DE02805 for one that is no dispenser. */
    explicit GENERIC_cdata(const FW_Machine *machine);
    /** \a fieldCount counts `cmd_enabled`. Throws DE00285 or DE00286, and what ConfData throws. */
    GENERIC_cdata(QStringList tokens, int fieldCount);
    explicit GENERIC_cdata(QString row); ///< throws what ConfData throws

    GENERIC_cdata *clone() const override;
    void clear() {} ///< there is no object to a row that nobody knows

    bool updateLocalData(QString *) override { return true; } ///< there is nothing to move
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override; ///< does nothing; true
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
};
