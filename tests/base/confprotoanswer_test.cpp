// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/confprotoanswer.h"

#include "base/basetesting.h"

#include <memory>

using namespace testing_base;

namespace {

/** Shows what a plain answer keeps to itself. */
class OpenConfAnswer : public ConfProtoAnswer
{
public:
    using ConfProtoAnswer::ConfProtoAnswer;
    explicit OpenConfAnswer(const ConfProtoAnswer &answer) : ConfProtoAnswer(answer) {}

    const List &stored() const { return m_parameters; }
};

} // namespace

TEST(ConfProtoAnswer, isOfItsType)
{
    List list = {1};
    EXPECT_EQ(ConfProtoAnswer().protoType(), 2);
    EXPECT_EQ(ConfProtoAnswer(list).protoType(), 2);
    EXPECT_EQ(ConfProtoAnswer(Value(1)).protoType(), 2);
}

TEST(ConfProtoAnswer, keepsTheListThatItIsMadeOf)
{
    List list = {1, "two"};
    OpenConfAnswer answer(list);
    list.clear();
    EXPECT_EQ(answer.stored(), (List{1, "two"}));
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    answer.clearConfProtoAnswer();
    EXPECT_EQ(answer.stored(), List());
    EXPECT_EQ(answer.protoType(), 2);
    const auto *copy = dynamic_cast<const ConfProtoAnswer *>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(OpenConfAnswer(*copy).stored(), (List{1, "two"}));
}

TEST(ConfProtoAnswer, keepsNothingOfAValue)
{
    EXPECT_EQ(OpenConfAnswer(arrayOf(1, 2)).stored(), List());
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { ConfProtoAnswer{Value()}; });
}

TEST(ConfProtoAnswer, keepsTheTypeOnlyOfAnotherAnswer)
{
    List list = {1};
    const ConfProtoAnswer full(list);
    const OpenConfAnswer ofRoot(static_cast<const ProtoAnswer &>(full));
    EXPECT_EQ(ofRoot.protoType(), 2);
    EXPECT_EQ(ofRoot.stored(), List());
    EXPECT_EQ(ConfProtoAnswer(ProtoAnswer(3)).protoType(), 3);
}

TEST(ConfProtoAnswer, writesZeroWhateverItHolds)
{
    List list = {1, 2};
    EXPECT_EQ(dumped(ConfProtoAnswer(list).toXmlRpcValue()), "0");
}

TEST(ConfProtoAnswer, comparesTypesOnly)
{
    List list = {1, 2};
    const ConfProtoAnswer full(list);
    const ConfProtoAnswer empty;
    EXPECT_TRUE(full.equalTo(&empty));
    EXPECT_FALSE(full.equalTo(nullptr));
    const ProtoAnswer plain;
    EXPECT_FALSE(full.equalTo(&plain));
}
