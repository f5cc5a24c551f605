// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "purgecmd.h"

#include <QuvFramework/purgeformula.h>

/**
 * PURGE as a client asks for it: the same quantity from circuits that a rule chooses. The driver makes a PurgeFormulaCmd of
 * it; it has no serial form itself.
 */
class QUVPROTOCOL_EXPORT PurgeQuantityCmd : public PurgeCmd
{
public:
    PurgeQuantityCmd();
    explicit PurgeQuantityCmd(const PurgeFormula &formula);
    // The parameters are those of PurgeFormula.
    PurgeQuantityCmd(double quantity, bool onlyFilled, int quantityUnit); ///< throws DE01258
    PurgeQuantityCmd(double quantity, int head, int quantityUnit);        ///< throws DE01257
    /** A purge formula, alone or in an array. Throws DE01241 when it cannot be read. */
    explicit PurgeQuantityCmd(const XmlRpc::XmlRpcValue &value);
    /** What PurgeFormula::parameters() gives. Throws DE01259 when it cannot be read. */
    explicit PurgeQuantityCmd(QList<QVariant> list);
    explicit PurgeQuantityCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit PurgeQuantityCmd(int) = delete;
    explicit PurgeQuantityCmd(double) = delete;
    explicit PurgeQuantityCmd(const char *) = delete;

    PurgeQuantityCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    TString actionString(bool detailed) const override;

    const PurgeFormula &purgeFormula() const { return m_purgeFormula; }

private:
    PurgeFormula m_purgeFormula;
};
