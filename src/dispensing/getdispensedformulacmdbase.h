// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The arguments of GET_DISPENSED_FORMULA, which three classes of commands share: the type of the formula wanted and the unit
 * of its quantities. Arguments that are left out keep their defaults.
 */
class QUVPROTOCOL_EXPORT GetDispensedFormulaCmdBase
{
public:
    struct Description;

    GetDispensedFormulaCmdBase() = default;
    /** Throws DE01908, DE01909 for a type and a unit that there is not. */
    GetDispensedFormulaCmdBase(int formulaType, int quantityUnit);
    /** Throws DE01911, DE01721 for another type of argument, DE01910, DE01720 for a type and a unit that there is not. */
    explicit GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue &value);
    /** Throws DE01912, DE01722 for another type of argument, DE01913, DE01720 for a type and a unit that there is not. */
    explicit GetDispensedFormulaCmdBase(QList<QVariant> list);
    explicit GetDispensedFormulaCmdBase(bool) = delete; // would be a value, as would the next three
    explicit GetDispensedFormulaCmdBase(int) = delete;
    explicit GetDispensedFormulaCmdBase(double) = delete;
    explicit GetDispensedFormulaCmdBase(const char *) = delete;

    void setDefaults();

    int formulaType() const { return m_formulaType; }   ///< Formula::Type
    int quantityUnit() const { return m_quantityUnit; } ///< Formula::QuantityUnit

    QList<QVariant> parameters() const;
    XmlRpc::XmlRpcValue xmlrpc_parameters_base(bool *ok = nullptr) const;
    /** The whole request. */
    XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const;

private:
    void check(const char *typeCode, const char *unitCode, const char *function) const;

    int m_formulaType = 1;
    int m_quantityUnit = 0;
};
