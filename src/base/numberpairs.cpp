// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/numberpairs_p.h"

namespace {

using Pairs = QList<QPair<int, int>>;

quv::Decoded readPairs(const XmlRpc::XmlRpcValue &value, void *field)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        return quv::Decoded::OtherType;
    Pairs pairs;
    for (int i = 0; i < value.size(); ++i) {
        QList<int> pair;
        if (!DecodeXmlRpcValue(value[i], pair) || pair.size() != 2)
            return quv::Decoded::BadElement;
        pairs.append({pair.first(), pair.last()});
    }
    *static_cast<Pairs *>(field) = pairs;
    return quv::Decoded::Good;
}

bool readNoVariant(const QVariant &, void *)
{
    return false;
}

void writePairs(const void *field, XmlRpc::XmlRpcValue &value)
{
    const auto &pairs = *static_cast<const Pairs *>(field);
    value.clear();
    value.setSize(pairs.size());
    for (int i = 0; i < pairs.size(); ++i) {
        value[i][0] = pairs.at(i).first;
        value[i][1] = pairs.at(i).second;
    }
}

} // namespace

namespace quv {

template <>
const FieldType &fieldType<Pairs>()
{
    static constexpr FieldType type = {"array of arrays of two ints",
                                       FieldType::Other,
                                       readPairs,
                                       readNoVariant,
                                       writePairs,
                                       equalFields<Pairs>,
                                       resetField<Pairs>};
    return type;
}

} // namespace quv
