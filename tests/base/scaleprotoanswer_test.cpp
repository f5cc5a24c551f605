// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/scaleprotoanswer.h"

#include "base/basetesting.h"

#include <memory>

using namespace testing_base;

namespace {

/** Shows what a plain answer keeps to itself. */
class OpenScaleAnswer : public ScaleProtoAnswer
{
public:
    using ScaleProtoAnswer::ScaleProtoAnswer;
    explicit OpenScaleAnswer(const ScaleProtoAnswer &answer) : ScaleProtoAnswer(answer) {}

    const List &stored() const { return m_parameters; }
};

} // namespace

TEST(ScaleProtoAnswer, isOfItsType)
{
    List list = {1};
    EXPECT_EQ(ScaleProtoAnswer().protoType(), 3);
    EXPECT_EQ(ScaleProtoAnswer(list).protoType(), 3);
    EXPECT_EQ(ScaleProtoAnswer(Value(1)).protoType(), 3);
}

TEST(ScaleProtoAnswer, keepsTheListThatItIsMadeOf)
{
    List list = {1, "two"};
    OpenScaleAnswer answer(list);
    list.clear();
    EXPECT_EQ(answer.stored(), (List{1, "two"}));
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    answer.clearScaleProtoAnswer();
    EXPECT_EQ(answer.stored(), List());
    EXPECT_EQ(answer.protoType(), 3);
    const auto *copy = dynamic_cast<const ScaleProtoAnswer *>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(OpenScaleAnswer(*copy).stored(), (List{1, "two"}));
}

TEST(ScaleProtoAnswer, keepsNothingOfAValue)
{
    EXPECT_EQ(OpenScaleAnswer(arrayOf(1, 2)).stored(), List());
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { ScaleProtoAnswer{Value()}; });
}

TEST(ScaleProtoAnswer, keepsTheTypeOnlyOfAnotherAnswer)
{
    List list = {1};
    const ScaleProtoAnswer full(list);
    const OpenScaleAnswer ofRoot(static_cast<const ProtoAnswer &>(full));
    EXPECT_EQ(ofRoot.protoType(), 3);
    EXPECT_EQ(ofRoot.stored(), List());
    EXPECT_EQ(ScaleProtoAnswer(ProtoAnswer(1)).protoType(), 1);
}

TEST(ScaleProtoAnswer, writesZeroWhateverItHolds)
{
    List list = {1, 2};
    EXPECT_EQ(dumped(ScaleProtoAnswer(list).toXmlRpcValue()), "0");
}

TEST(ScaleProtoAnswer, comparesTypesOnly)
{
    List list = {1, 2};
    const ScaleProtoAnswer full(list);
    const ScaleProtoAnswer empty;
    EXPECT_TRUE(full.equalTo(&empty));
    EXPECT_FALSE(full.equalTo(nullptr));
    const ProtoAnswer plain;
    EXPECT_FALSE(full.equalTo(&plain));
}

TEST(ScaleProtoAnswer, tellsNoParametersWhateverItHolds)
{
    List list = {1, 2};
    EXPECT_EQ(ScaleProtoAnswer(list).parameters(), List());
    EXPECT_EQ(ScaleProtoAnswer().parameters(), List());
}
