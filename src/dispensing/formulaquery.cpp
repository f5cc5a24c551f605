// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/formulaquery_p.h"

#include "dispensing/formula_p.h"

namespace quv {

namespace {

template <class T>
std::optional<T> heldBy(const QVariant &variant)
{
    if (!holds<T>(variant))
        return std::nullopt;
    try {
        return variant.value<T>();
    } catch (const std::invalid_argument &) {
        return std::nullopt; // a map that cannot be read
    }
}

XmlRpc::XmlRpcValue emptyArray()
{
    XmlRpc::XmlRpcValue array;
    array.setSize(0);
    return array;
}

/** The array; one that is empty tells of a failure. */
XmlRpc::XmlRpcValue told(const XmlRpc::XmlRpcValue &array, bool *ok)
{
    if (ok)
        *ok = array.size() > 0;
    return array;
}

} // namespace

std::optional<Formula> formulaIn(const QVariant &variant)
{
    return heldBy<Formula>(variant);
}

std::optional<PurgeFormula> purgeFormulaIn(const QVariant &variant)
{
    return heldBy<PurgeFormula>(variant);
}

QList<QVariant> formulaParameters(QList<QVariant> list)
{
    if (list.isEmpty())
        return list;
    if (const auto formula = formulaIn(list.constFirst()))
        list.first() = QVariant::fromValue(*formula);
    else if (const auto purge = purgeFormulaIn(list.constFirst()))
        list.first() = QVariant::fromValue(*purge);
    return list;
}

XmlRpc::XmlRpcValue formulaQueryValue(const QList<QVariant> &parameters, bool *ok)
{
    XmlRpc::XmlRpcValue array = emptyArray();
    if (parameters.size() == 1) {
        if (const auto purge = purgeFormulaIn(parameters.constFirst()))
            array[0] = purge->toXmlRpcValue(nullptr);
    } else if (parameters.size() == 2 && parameters.at(1).canConvert<bool>()) {
        if (const auto formula = formulaIn(parameters.constFirst())) {
            array[0] = formula->toXmlRpcValue(nullptr);
            array[1] = parameters.at(1).toBool();
        }
    }
    return told(array, ok);
}

XmlRpc::XmlRpcValue formulaValue(const QList<QVariant> &parameters, bool *ok)
{
    XmlRpc::XmlRpcValue array = emptyArray();
    if (const auto formula = formulaIn(parameters.value(0)))
        array[0] = formula->toXmlRpcValue(nullptr);
    return told(array, ok);
}

} // namespace quv
