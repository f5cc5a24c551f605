// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/setcolorantlistcmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"
#include "base/record_p.h"
#include "base/requeststruct_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

using XmlRpc::XmlRpcValue;
/** A canister's ID and the colorant in it. */
using Filling = QPair<int, FW_Colorant>;

constexpr quv::Refusal notDecoded = {"DE03394", "SetColorantListCmd: xmlrpc decoding failed"};
constexpr char notMade[] = "SetColorantListCmd: errors during colorant creation";
constexpr quv::Refusal noColorants = {"DE03395", notMade};
constexpr quv::Refusal badColorant = {"DE03396", notMade};

} // namespace

namespace quv {

template <>
const FieldType &fieldType<FW_Colorant>()
{
    static constexpr FieldType type = objectType<FW_Colorant>();
    return type;
}

} // namespace quv

namespace {

const quv::Record<Filling> &fillingRecord()
{
    static const quv::Record<Filling> record({
        {SetColorantListCmd::canisterID_TAG, &Filling::first, badColorant},
        {SetColorantListCmd::colorant_TAG, &Filling::second, badColorant},
    });
    return record;
}

const bool travels = QMetaType::registerEqualsComparator<QList<Filling>>() &&
                     QMetaType::registerConverter<Filling, QVariantMap>([](const Filling &filling) {
                         return DecodeXmlRpcVariant(fillingRecord().encode(filling)).toMap();
                     });

Filling fillingOf(const XmlRpcValue &value, const char *function)
{
    Filling filling;
    fillingRecord().decode(value, filling, function);
    return filling;
}

/** The pair, or the map that stands for one; what a pair holds may be more than its struct can. */
Filling fillingOf(const QVariant &variant, const char *function)
{
    if (variant.userType() == qMetaTypeId<Filling>())
        return variant.value<Filling>();
    if (variant.userType() != QMetaType::QVariantMap)
        quv::throwRefusal(badColorant, function);
    return fillingOf(EncodeXmlRpcObject(variant), function);
}

template <class Source>
void append(QList<Filling> &fillings, const Source &source, const char *function)
{
    quv::madeOrRefused(badColorant, function, [&] { fillings.append(fillingOf(source, function)); });
}

} // namespace

struct SetColorantListCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_COLORANT_LIST;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"colorants",
             "a struct with colorant_list, of each canister its canister_id and the colorant in it "
             "(in a list the array itself)"},
            "struct");
        teller.refuse("another type", {notDecoded, noColorants});
        teller.refuse("colorant_list is missing or no array", {noColorants, {}});
        teller.refuse("an element without a good canister_id or colorant", {badColorant, badColorant});
        teller.refuse("a colorant with a wrong member", {quv::toldOfMachineData, {}});
    }
};

template class quv::DescribedCommand<SetColorantListCmd, ConfProtoCommand>;

SetColorantListCmd::SetColorantListCmd(const QList<QPair<int, FW_Colorant>> &colorants)
    : m_colorants(colorants)
{}

SetColorantListCmd::SetColorantListCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpcValue &request = quv::structArgument(value, notDecoded, Q_FUNC_INFO);
    const XmlRpcValue &fillings =
        quv::arrayMember(request, colorantList_TAG, noColorants, noColorants, Q_FUNC_INFO);
    for (int i = 0; i < fillings.size(); ++i)
        append(m_colorants, fillings[i], Q_FUNC_INFO);
}

SetColorantListCmd::SetColorantListCmd(QList<QVariant> list) : DescribedCommand(list)
{
    const QVariant fillings = list.value(0);
    if (fillings.userType() == qMetaTypeId<QList<Filling>>()) {
        m_colorants = fillings.value<QList<Filling>>();
        return;
    }
    if (fillings.userType() != QMetaType::QVariantList)
        quv::throwRefusal(noColorants, Q_FUNC_INFO);
    const QVariantList each = fillings.toList();
    for (const QVariant &filling : each)
        append(m_colorants, filling, Q_FUNC_INFO);
}

SetColorantListCmd *SetColorantListCmd::clone() const
{
    return new SetColorantListCmd(*this);
}

QList<QVariant> SetColorantListCmd::parameters() const
{
    return {QVariant::fromValue(m_colorants)};
}

XmlRpcValue SetColorantListCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    XmlRpcValue &fillings = array[0][colorantList_TAG];
    fillings.setSize(m_colorants.size());
    for (int i = 0; i < m_colorants.size(); ++i)
        fillings[i] = fillingRecord().encode(m_colorants.at(i));
    return array;
}
