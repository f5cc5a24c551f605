// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgequantitycmd.h"

#include "dispensing/formula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char invalidPurge[] = "PurgeQuantityCmd failed: invalid PurgeFormula type parameter";

/** A purge formula may be the whole request: the base is then to count it as the one argument that it is. */
XmlRpc::XmlRpcValue requestOf(const XmlRpc::XmlRpcValue &value)
{
    if (!FindXmlRpcMember(value, PurgeFormula::PURGE_QUANTITY))
        return value;
    XmlRpc::XmlRpcValue array;
    array[0] = value;
    return array;
}

} // namespace

PurgeQuantityCmd::PurgeQuantityCmd() = default;

PurgeQuantityCmd::PurgeQuantityCmd(const PurgeFormula &formula) : m_purgeFormula(formula) {}

PurgeQuantityCmd::PurgeQuantityCmd(double quantity, bool onlyFilled, int quantityUnit)
    : m_purgeFormula(quv::madeOrRefused({"DE01258", invalidPurge}, Q_FUNC_INFO,
                                        [&] { return PurgeFormula(quantity, onlyFilled, quantityUnit); }))
{}

PurgeQuantityCmd::PurgeQuantityCmd(double quantity, int head, int quantityUnit)
    : m_purgeFormula(quv::madeOrRefused({"DE01257", invalidPurge}, Q_FUNC_INFO,
                                        [&] { return PurgeFormula(quantity, head, quantityUnit); }))
{}

PurgeQuantityCmd::PurgeQuantityCmd(const XmlRpc::XmlRpcValue &value)
    : PurgeCmd(requestOf(value), nullptr),
      m_purgeFormula(quv::decodedValue<PurgeFormula>(&value, {"DE01241", invalidPurge}, Q_FUNC_INFO))
{}

PurgeQuantityCmd::PurgeQuantityCmd(QList<QVariant> list)
    : PurgeCmd(list, nullptr),
      m_purgeFormula(
          quv::madeOrRefused({"DE01259", invalidPurge}, Q_FUNC_INFO, [&] { return PurgeFormula(list); }))
{}

PurgeQuantityCmd *PurgeQuantityCmd::clone() const
{
    return new PurgeQuantityCmd(*this);
}

QList<QVariant> PurgeQuantityCmd::parameters() const
{
    return m_purgeFormula.parameters();
}

XmlRpc::XmlRpcValue PurgeQuantityCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array;
    array[0] = m_purgeFormula.toXmlRpcValue(ok);
    return array;
}

TString PurgeQuantityCmd::actionString(bool detailed) const
{
    return detailed ? purgeOf(m_purgeFormula.toPrintableString(true, nullptr))
                    : PurgeCmd::actionString(false);
}
