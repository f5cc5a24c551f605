// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protoanswer.h"

namespace quv {

struct MemberFacts;

// The layer between an answer class and its base that reads, writes, compares and tells the members of its struct by one table, the
// function members() of the struct Description that the class declares and its source defines:
//
//     struct FooBarAnswer::Description
//     {
//         static std::vector<quv::Member<FooBarAnswer>> members();      see base/record_p.h
//     };
//     template class quv::DescribedAnswer<FooBarAnswer, ConfProtoAnswer>;

/** Derives Leaf from Base by its description. */
template <class Leaf, class Base>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it is virtual, as that of Base
class QUVPROTOCOL_EXPORT DescribedAnswer : public Base
{
public:
    DescribedAnswer();
    DescribedAnswer(const DescribedAnswer &other);
    DescribedAnswer &operator=(const DescribedAnswer &) = default;
    ~DescribedAnswer() override;

    Base *clone() const override = 0; // each class writes its own: a forgotten one does not compile
    bool equalTo(const ProtoAnswer *other) const override; ///< the same class and the same members
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    bool operator==(const Leaf &other) const;
    bool operator!=(const Leaf &other) const { return !(*this == other); }

    static QList<MemberFacts> memberFacts();

protected:
    using Base::Base;

    // Both read the members as the description tells; refusals name the \a function.
    void read(const XmlRpc::XmlRpcValue &value, const char *function);
    void read(const QList<QVariant> &list, const char *function);
};

} // namespace quv
