// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/formula.h>
#include <QuvFramework/formulautils.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_utils.h>
#include <QuvFramework/fw_xmlrpc.h>
#include <QuvFramework/purgeformula.h>

#include <QtCore/QLocale>

#include <cmath>
#include <stdexcept>

namespace {

using XmlRpc::XmlRpcValue;

constexpr int MaxHead = 2;

const bool isRegistered = RegisterTravellingType<PurgeFormula>("PurgeFormula");

[[noreturn]] void refuse(const char *text)
{
    throw std::invalid_argument(text);
}

/** The struct of the purge: the value itself, or what stands alone in a request's array. */
const XmlRpcValue &structIn(const XmlRpcValue &value)
{
    const XmlRpcValue *element = FindXmlRpcElement(value, 0);
    return element ? *element : value;
}

/** The member in \a out; one that is left out changes nothing, one of another type is refused. */
template <class T>
void readOptional(const XmlRpcValue &value, const char *key, T &out)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, key);
    if (member && !DecodeXmlRpcValue(*member, out))
        refuse("a member of the purge is of another type");
}

template <class T>
void readOptional(const QList<QVariant> &list, int index, T &out)
{
    if (index < list.size() && !DecodeVariantList(list, index, out))
        refuse("a parameter of the purge is of another type");
}

bool isNumber(const QVariant &variant)
{
    return variant.userType() == QMetaType::Double || variant.userType() == QMetaType::Int ||
           variant.userType() == QMetaType::LongLong;
}

QString unitText(int unit)
{
    switch (unit) {
    case Formula::Steps:
        return QStringLiteral(" steps");
    case Formula::Strokes:
        return QStringLiteral(" strokes");
    default:
        return QString();
    }
}

} // namespace

PurgeFormula::PurgeFormula(double quantity, bool onlyFilled, int quantityUnit)
    : m_quantity(quantity),
      m_quantityUnit(quantityUnit),
      m_onlyFilled(onlyFilled)
{
    checkMembers();
}

PurgeFormula::PurgeFormula(double quantity, int head, int quantityUnit)
    : m_quantity(quantity),
      m_quantityUnit(quantityUnit),
      m_head(head)
{
    checkMembers();
}

PurgeFormula::PurgeFormula(QList<QVariant> parameters)
{
    if (parameters.isEmpty() || !isNumber(parameters.constFirst()))
        refuse("a purge needs a quantity");
    m_quantity = parameters.constFirst().toDouble();
    m_quantityUnit = Formula::WeightOrVolume;
    readOptional(parameters, 1, m_quantityUnit);
    readOptional(parameters, 2, m_onlyFilled);
    readOptional(parameters, 3, m_head);
    checkMembers();
}

PurgeFormula::PurgeFormula(const XmlRpcValue &value)
{
    const XmlRpcValue &members = structIn(value);
    const XmlRpcValue *quantity = FindXmlRpcMember(members, PURGE_QUANTITY);
    if (!quantity || !DecodeXmlRpcValue(*quantity, m_quantity))
        refuse("a purge needs a quantity");
    m_quantityUnit = Formula::WeightOrVolume;
    readOptional(members, QUANTITY_UNIT, m_quantityUnit);
    readOptional(members, ONLY_FILLED, m_onlyFilled);
    readOptional(members, HEAD, m_head);
    checkMembers();
}

void PurgeFormula::checkMembers() const
{
    if (!std::isfinite(m_quantity) || m_quantity <= 0)
        refuse("the quantity of a purge must be above 0");
    if (!Formula::checkQuantityUnit(m_quantityUnit))
        refuse("there is no such unit of quantities");
    if (m_head < 0 || m_head > MaxHead)
        refuse("there is no such head");
}

QVector<const FW_Circuit *> PurgeFormula::circuits(const FW_Dispenser &dispenser) const
{
    QVector<const FW_Circuit *> chosen;
    for (const FW_Canister &canister : dispenser.canisters()) {
        if (!canister.isEnabled() || (m_onlyFilled && canister.currentQuantity() <= 0))
            continue;
        for (const FW_Circuit &circuit : canister.circuits()) {
            if (circuit.isEnabled() && (m_head == 0 || circuit.headId() == m_head))
                chosen.append(&circuit);
        }
    }
    return chosen;
}

QList<QVariant> PurgeFormula::parameters() const
{
    return {m_quantity, m_quantityUnit, m_onlyFilled, m_head};
}

XmlRpcValue PurgeFormula::toXmlRpcValue(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue value;
    value[PURGE_QUANTITY] = m_quantity;
    value[QUANTITY_UNIT] = m_quantityUnit;
    value[ONLY_FILLED] = m_onlyFilled;
    value[HEAD] = m_head;
    return value;
}

QString PurgeFormula::toPrintableString(bool brief, const FW_Dispenser *dispenser) const
{
    QString text =
        QStringLiteral("%1%2 of each circuit")
            .arg(QString::number(m_quantity, 'g', QLocale::FloatingPointShortest), unitText(m_quantityUnit));
    if (!brief && m_head != 0)
        text += QStringLiteral(" of head %1").arg(m_head);
    if (!brief && m_onlyFilled)
        text += QStringLiteral(" with colorant");
    if (dispenser) {
        QList<int> positions;
        for (const FW_Circuit *circuit : circuits(*dispenser))
            positions.append(circuit->positionId());
        text += QStringLiteral(": ") + createListStr(positions, QLatin1Char(','));
    }
    return text;
}

bool PurgeFormula::operator==(const PurgeFormula &other) const
{
    return m_quantity == other.m_quantity && m_quantityUnit == other.m_quantityUnit &&
           m_onlyFilled == other.m_onlyFilled && m_head == other.m_head;
}
