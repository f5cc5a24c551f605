// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/numberpairs_p.h"

#include "base/basetesting.h"

namespace {

using namespace testing_base;

using Pairs = QList<QPair<int, int>>;

const quv::FieldType &type()
{
    return quv::fieldType<Pairs>();
}

TEST(NumberPairs, travelAsAnArrayOfArrays)
{
    Value value(false);
    const Pairs pairs = {{3, 40}, {12, -1}};
    type().write(&pairs, value);
    EXPECT_EQ(dumped(value), "[[3, 40], [12, -1]]");
    Pairs read = {{7, 7}};
    EXPECT_EQ(type().read(value, &read), quv::Decoded::Good);
    EXPECT_EQ(read, pairs);

    const Pairs none;
    type().write(&none, value);
    EXPECT_EQ(dumped(value), "[]");
    EXPECT_EQ(type().read(value, &read), quv::Decoded::Good);
    EXPECT_EQ(read, none);
}

TEST(NumberPairs, areTwoIntsEach)
{
    Pairs read = {{7, 8}};
    for (const Value &other : {Value(), Value(3), structOf({})})
        EXPECT_EQ(type().read(other, &read), quv::Decoded::OtherType) << dumped(other);
    for (const Value &bad : {Value(3), arrayOf(), arrayOf(3), arrayOf(3, 40, 5), arrayOf(3, "40")}) {
        EXPECT_EQ(type().read(arrayOf(bad), &read), quv::Decoded::BadElement) << dumped(bad);
        EXPECT_EQ(type().read(arrayOf(arrayOf(3, 40), bad), &read), quv::Decoded::BadElement) << dumped(bad);
    }
    EXPECT_EQ(read, (Pairs{{7, 8}}));
}

TEST(NumberPairs, haveNoListForm)
{
    Pairs read = {{7, 8}};
    EXPECT_FALSE(type().readVariant(QVariant(List{QVariant(List{3, 40})}), &read));
    EXPECT_EQ(read, (Pairs{{7, 8}}));
}

} // namespace
