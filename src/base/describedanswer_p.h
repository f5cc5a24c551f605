// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedanswer.h"
#include "base/memberfacts_p.h"
#include "base/record_p.h"

namespace quv {

template <class Leaf>
const Record<Leaf> &recordOf()
{
    static const Record<Leaf> record(Leaf::Description::members());
    return record;
}

template <class Leaf, class Base>
DescribedAnswer<Leaf, Base>::DescribedAnswer() = default;

template <class Leaf, class Base>
DescribedAnswer<Leaf, Base>::DescribedAnswer(const DescribedAnswer &other) = default;

template <class Leaf, class Base>
DescribedAnswer<Leaf, Base>::~DescribedAnswer() = default;

template <class Leaf, class Base>
void DescribedAnswer<Leaf, Base>::read(const XmlRpc::XmlRpcValue &value, const char *function)
{
    recordOf<Leaf>().decode(value, static_cast<Leaf &>(*this), function);
}

template <class Leaf, class Base>
void DescribedAnswer<Leaf, Base>::read(const QList<QVariant> &list, const char *function)
{
    recordOf<Leaf>().decode(list, static_cast<Leaf &>(*this), function);
}

template <class Leaf, class Base>
bool DescribedAnswer<Leaf, Base>::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const Leaf *>(other);
    return that && *this == *that;
}

template <class Leaf, class Base>
XmlRpc::XmlRpcValue DescribedAnswer<Leaf, Base>::toXmlRpcValue() const
{
    return recordOf<Leaf>().encode(static_cast<const Leaf &>(*this));
}

template <class Leaf, class Base>
bool DescribedAnswer<Leaf, Base>::operator==(const Leaf &other) const
{
    return recordOf<Leaf>().equal(static_cast<const Leaf &>(*this), other);
}

template <class Leaf, class Base>
QList<MemberFacts> DescribedAnswer<Leaf, Base>::memberFacts()
{
    return factsOf(recordOf<Leaf>().rows());
}

} // namespace quv
