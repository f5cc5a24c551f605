// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

/** A part that dosing motors share, and the reference by which they do. */
template <class Part>
struct QUVPROTOCOL_EXPORT SharedPart
{
    Part part;
    int reference = 0;
};

/**
 * What the structures that describe a part shared by dosing motors have in common. A reference that no motor has still gives
 * a complete row, of the part's defaults, with `cmd_enabled` 0.
 */
template <class Shared>
class QUVPROTOCOL_EXPORT ReferenceConfData : public ConfData
{
public:
    void clear(); ///< gives the part its defaults and the reference 0
    int reference() const { return m_shared.reference; }

    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position

    bool updateLocalData(QString *error) override;
    /**
     * Gives the part to all dosing motors of a dispenser that have the reference. `cmd_enabled` 0 changes nothing. False
     * without a dispenser, and when no motor has the reference.
     */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

protected:
    // \a function is the signature of the structure's own constructor, which refusals name.
    ReferenceConfData();
    ReferenceConfData(int reference, const FW_Machine *machine, const char *function);
    ReferenceConfData(QStringList tokens, int fieldCount, const char *function);
    ReferenceConfData(QString row, const char *function);

    Shared m_shared;
};
