// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_Circuit;
class FW_Dispenser;

/**
 * A purge by quantity: the same from each of the circuits that a rule chooses. Over XML-RPC a struct: "purge_quantity"
 * (double or int, above 0), "quantity_unit" (int, 3 when left out), "only_filled" (bool, false) and "head" (int, 0).
 */
class QUVFRAMEWORK_EXPORT PurgeFormula
{
public:
    static constexpr char PURGE_QUANTITY[] = "purge_quantity";
    static constexpr char QUANTITY_UNIT[] = "quantity_unit";
    static constexpr char ONLY_FILLED[] = "only_filled";
    static constexpr char HEAD[] = "head";

    /** 1 stroke of each enabled circuit. */
    PurgeFormula() = default;
    // All throw std::invalid_argument for a quantity that is not above 0, a unit that is none, or a head other than 0 to 2.
    /** The enabled circuits of all heads; with \a onlyFilled only those whose canister holds anything. */
    PurgeFormula(double quantity, bool onlyFilled, int quantityUnit);
    /** The enabled circuits of \a head (1 or 2; 0 for all). */
    PurgeFormula(double quantity, int head, int quantityUnit);
    /** What parameters() gives; all but the quantity may be left out at the end. */
    explicit PurgeFormula(QList<QVariant> parameters);
    /** The struct, or an array of that struct alone, which is what a request holds. */
    explicit PurgeFormula(const XmlRpc::XmlRpcValue &value);
    explicit PurgeFormula(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit PurgeFormula(int) = delete;
    explicit PurgeFormula(double) = delete;
    explicit PurgeFormula(const char *) = delete;

    double quantity() const { return m_quantity; }
    int quantityUnit() const { return m_quantityUnit; } ///< Formula::QuantityUnit
    bool onlyFilled() const { return m_onlyFilled; }
    int head() const { return m_head; }

    /** The circuits that the purge chooses, in the machine's order. */
    QVector<const FW_Circuit *> circuits(const FW_Dispenser &dispenser) const;

    /** Quantity (double), unit (int), only filled (bool), head (int). */
    QList<QVariant> parameters() const;
    XmlRpc::XmlRpcValue toXmlRpcValue(bool *ok = nullptr) const;
    /** "1 strokes of each circuit"; not \a brief also which. With a dispenser the positions follow. */
    QString toPrintableString(bool brief, const FW_Dispenser *dispenser) const;

    bool operator==(const PurgeFormula &other) const;
    bool operator!=(const PurgeFormula &other) const { return !(*this == other); }

private:
    void checkMembers() const;

    double m_quantity = 1;
    int m_quantityUnit = 2;
    bool m_onlyFilled = false;
    int m_head = 0;
};

Q_DECLARE_METATYPE(PurgeFormula)
