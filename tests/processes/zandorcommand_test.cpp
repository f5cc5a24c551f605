// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zandorcommand.h"

#include "base/basetesting.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "ZandorCommand::ZandorCommand(const XmlRpc::XmlRpcValue&)";
constexpr char badCommand[] = "GetZandorCommandsAnswer: Errors during ProtocolCommandInfo list creation";

TEST(ZandorCommand, holdsACodeAndFields)
{
    EXPECT_EQ(ZandorCommand().code, 0);
    EXPECT_EQ(ZandorCommand().fields, QList<int>());
    EXPECT_EQ(ZandorCommand(50, {1, 2}).code, 50);
    EXPECT_EQ(ZandorCommand(50, {1, 2}).fields, (QList<int>{1, 2}));
}

TEST(ZandorCommand, travelsAsAStruct)
{
    EXPECT_STREQ(ZandorCommand::code_TAG, "code");
    EXPECT_STREQ(ZandorCommand::fields_TAG, "fields");
    EXPECT_EQ(dumped(ZandorCommand(50, {1, 2}).toXmlRpcValue()), R"({"code": 50, "fields": [1, 2]})");
    EXPECT_EQ(dumped(ZandorCommand().toXmlRpcValue()), R"({"code": 0, "fields": []})");
    EXPECT_EQ(ZandorCommand(structOf({{"code", 50}, {"fields", arrayOf(1, 2)}, {"more", 7}})),
              ZandorCommand(50, {1, 2}));
    EXPECT_EQ(ZandorCommand(structOf({{"code", -1}, {"fields", arrayOf()}})), ZandorCommand(-1, {}));
}

TEST(ZandorCommand, needsBoth)
{
    for (const Value &value :
         {Value(), Value(50), arrayOf(50, arrayOf(1)), structOf({}), structOf({{"code", 50}}),
          structOf({{"fields", arrayOf(1)}}), structOf({{"code", "50"}, {"fields", arrayOf(1)}}),
          structOf({{"code", 50}, {"fields", 1}}), structOf({{"code", 50}, {"fields", arrayOf(1, "2")}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02895", badCommand, ofValue, [&] { const ZandorCommand command(value); });
    }
    static_assert(!std::is_constructible_v<ZandorCommand, int>);
    static_assert(!std::is_constructible_v<ZandorCommand, const char *>);
}

TEST(ZandorCommand, differsInBoth)
{
    const ZandorCommand command(50, {1, 2});
    EXPECT_TRUE(command == ZandorCommand(50, {1, 2}));
    EXPECT_FALSE(command != ZandorCommand(50, {1, 2}));
    for (const ZandorCommand &other :
         {ZandorCommand(51, {1, 2}), ZandorCommand(50, {2, 1}), ZandorCommand(50, {})}) {
        EXPECT_TRUE(command != other);
        EXPECT_FALSE(command == other);
    }
}

TEST(ZandorCommand, travelsInAVariant)
{
    const ZandorCommand command(50, {1, 2});
    const QVariant variant = QVariant::fromValue(command);
    EXPECT_STREQ(variant.typeName(), "ZandorCommand");
    EXPECT_EQ(variant, QVariant::fromValue(ZandorCommand(50, {1, 2})));
    EXPECT_EQ(variant.toMap(), (QVariantMap{{"code", 50}, {"fields", List{1, 2}}}));
    EXPECT_EQ(QVariant(variant.toMap()).value<ZandorCommand>(), command);
}

} // namespace
