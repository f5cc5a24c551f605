// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

/** "@NOM", the name of the machine's configuration. Its one field is a text, so that the row has always one. */
class QUVPROTOCOL_EXPORT NOM_cdata final : public ConfData
{
public:
    NOM_cdata();
    explicit NOM_cdata(const FW_Machine *machine); ///< throws DE00178 without a machine
    /** \a fieldCount counts `cmd_enabled`. Throws DE00180 or DE00183, and what ConfData throws. */
    NOM_cdata(QStringList tokens, int fieldCount);
    /** The second part of the text; a name ends at its first comma. Throws DE00184, and what ConfData throws. */
    explicit NOM_cdata(QString row);

    NOM_cdata *clone() const override;
    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position
    void clear();                ///< empties the name
    QString structureName() const { return m_name; }

    bool updateLocalData(QString *) override { return true; } ///< there is nothing to move
    bool updateConfiguration(
        FW_Machine *machine, FW_CalibrationProfiles *profiles,
        QList<int> *extra) const override; ///< names the machine's configuration; false for null
    QList<int> serialParams(bool *ok = nullptr) const override;
    QString configurationParamsStr() const override;
    int numOfConfigurationParams() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

private:
    QString m_name;
};
