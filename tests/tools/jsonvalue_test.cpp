// SPDX-License-Identifier: LGPL-3.0-or-later
#include "jsonvalue.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

#include <gmock/gmock.h>

#include <cmath>
#include <ctime>
#include <limits>

struct Travelling
{
    int number = 0;
};
Q_DECLARE_METATYPE(Travelling)

namespace {

using namespace quv;
using XmlRpc::XmlRpcValue;

XmlRpcValue valueOf(std::string_view text)
{
    return toXmlRpcValue(parseJson(text));
}

QVariant variantOf(std::string_view text)
{
    return toVariant(parseJson(text));
}

std::string jsonOf(const XmlRpcValue &value)
{
    return writeJson(toJson(value));
}

std::string jsonOf(const QVariant &variant)
{
    return writeJson(toJson(variant));
}

std::string parseRefusal(std::string_view text)
{
    try {
        parseJson(text);
    } catch (const JsonError &error) {
        return error.what();
    }
    return "accepted";
}

std::string valueRefusal(std::string_view text)
{
    try {
        valueOf(text);
    } catch (const JsonError &error) {
        return error.what();
    }
    return "accepted";
}

std::string variantRefusal(std::string_view text)
{
    try {
        variantOf(text);
    } catch (const JsonError &error) {
        return error.what();
    }
    return "accepted";
}

int readInt(std::string_view text)
{
    const XmlRpcValue value = valueOf(text);
    EXPECT_EQ(value.getType(), XmlRpcValue::TypeInt) << text;
    return value.getType() == XmlRpcValue::TypeInt ? static_cast<const int &>(value) : -99;
}

double readDouble(std::string_view text)
{
    const XmlRpcValue value = valueOf(text);
    EXPECT_EQ(value.getType(), XmlRpcValue::TypeDouble) << text;
    return value.getType() == XmlRpcValue::TypeDouble ? static_cast<const double &>(value) : -99;
}

TEST(JsonValue, WholeNumbersAreInts)
{
    EXPECT_EQ(readInt("5"), 5);
    EXPECT_EQ(readInt("-0"), 0);
    EXPECT_EQ(readInt("2147483647"), 2147483647);
    EXPECT_EQ(readInt("-2147483648"), std::numeric_limits<int>::min());
}

TEST(JsonValue, NumbersWithAFractionOrAnExponentAreDoubles)
{
    EXPECT_EQ(readDouble("1.0"), 1.0);
    EXPECT_EQ(readDouble("1e3"), 1000.0);
    EXPECT_EQ(readDouble("-2E-1"), -0.2);
    EXPECT_EQ(readDouble("4294967296.0"), 4294967296.0);
    EXPECT_TRUE(std::signbit(readDouble("-0.0")));
}

TEST(JsonValue, WholeNumbersBeyond32BitsAreRefused)
{
    EXPECT_EQ(valueRefusal("2147483648"), "the whole number 2147483648 does not fit in 32 bits");
    EXPECT_EQ(valueRefusal("[-2147483649]"), "the whole number -2147483649 does not fit in 32 bits");
    EXPECT_EQ(variantRefusal("2147483648"), "the whole number 2147483648 does not fit in 32 bits");
}

TEST(JsonValue, WholeNumbersBeyond64BitsAreNoDoubles)
{
    EXPECT_EQ(parseJson("9223372036854775807").get<long long>(), std::numeric_limits<long long>::max());
    EXPECT_EQ(parseRefusal("9223372036854775808"),
              "the whole number 9223372036854775808 does not fit in 64 bits");
    EXPECT_EQ(parseRefusal("123456789012345678901234567890123456789012345"),
              "the whole number 1234567890123456789012345678901234567890... does not fit in 64 bits");
    EXPECT_EQ(parseRefusal("1e999"), "no JSON: a number is too large for a double");
}

TEST(JsonValue, OtherScalars)
{
    const XmlRpcValue yes = valueOf("true");
    ASSERT_EQ(yes.getType(), XmlRpcValue::TypeBoolean);
    EXPECT_TRUE(static_cast<const bool &>(yes));
    const XmlRpcValue text = valueOf(R"("caf\u00e9 \u0000!")");
    ASSERT_EQ(text.getType(), XmlRpcValue::TypeString);
    EXPECT_EQ(static_cast<const std::string &>(text), std::string("caf\xc3\xa9 \0!", 8));
}

TEST(JsonValue, ArraysAndStructs)
{
    EXPECT_EQ(valueOf("[]").getType(), XmlRpcValue::TypeArray);
    EXPECT_EQ(valueOf("[]").size(), 0);
    EXPECT_EQ(valueOf("{}").getType(), XmlRpcValue::TypeStruct);
    EXPECT_EQ(valueOf("{}").size(), 0);
    EXPECT_EQ(jsonOf(valueOf(R"({"b":[1,2.5,{"x":"y"}],"a":false})")),
              R"({"a":false,"b":[1,2.5,{"x":"y"}]})");
}

TEST(JsonValue, Binary)
{
    const XmlRpcValue bytes = valueOf(R"({"$base64":"AAH/"})");
    ASSERT_EQ(bytes.getType(), XmlRpcValue::TypeBase64);
    EXPECT_THAT(static_cast<const XmlRpcValue::BinaryData &>(bytes),
                testing::ElementsAre('\0', '\1', '\xff'));
    EXPECT_EQ(jsonOf(bytes), R"({"$base64":"AAH/"})");
    EXPECT_EQ(variantOf(R"({"$base64":"AAH/"})"), QVariant(QByteArray("\0\1\xff", 3)));

    EXPECT_EQ(valueRefusal(R"({"$base64":"A*H/"})"), "\"$base64\" holds no valid base64");
    EXPECT_EQ(valueRefusal(R"({"$base64":5})"), "\"$base64\" is a string and the only member of its object");
    EXPECT_EQ(valueRefusal(R"({"$base64":"","a":1})"),
              "\"$base64\" is a string and the only member of its object");
}

TEST(JsonValue, NullIsRefused)
{
    EXPECT_EQ(valueRefusal("[null]"), "null is no value of the protocol");
    EXPECT_EQ(variantRefusal("null"), "null is no value of the protocol");
}

TEST(JsonValue, VariantsHaveTheirOwnTypes)
{
    EXPECT_EQ(variantOf("5").type(), QVariant::Int);
    EXPECT_EQ(variantOf("5.0").type(), QVariant::Double);
    EXPECT_EQ(variantOf("true").type(), QVariant::Bool);
    EXPECT_EQ(variantOf("\"5\"").type(), QVariant::String);
    const QVariant list = variantOf(R"([1,"\u20ac",{"k":2.5}])");
    ASSERT_EQ(list.type(), QVariant::List);
    ASSERT_EQ(list.toList().size(), 3);
    EXPECT_EQ(list.toList()[0], QVariant(1));
    EXPECT_EQ(list.toList()[1], QVariant(QString(QChar(0x20ac))));
    ASSERT_EQ(list.toList()[2].type(), QVariant::Map);
    EXPECT_EQ(list.toList()[2].toMap().value(QStringLiteral("k")), QVariant(2.5));
}

TEST(JsonValue, NestingIsLimited)
{
    EXPECT_EQ(parseRefusal(std::string(64, '[') + std::string(64, ']')), "accepted");
    EXPECT_EQ(parseRefusal(std::string(65, '[') + std::string(65, ']')),
              "arrays and objects are nested more than 64 levels deep");
    EXPECT_EQ(parseRefusal(std::string(1000000, '[')),
              "arrays and objects are nested more than 64 levels deep");
}

TEST(JsonValue, WhatSteersATerminalIsEscaped)
{
    const QString text = QString::fromUtf8(
        "\x7F\xC2\x85\xE2\x80\xAE\xE2\x80\xA8\xEF\xBB\xBF\xF3\xA0\x81\x81 \xC3\xA4\xF0\x9F\x98\x80");
    const std::string written = quv::writeJson(quv::toJson(text));
    EXPECT_EQ(written, "\"\\u007f\\u0085\\u202e\\u2028\\ufeff\\udb40\\udc41 \xC3\xA4\xF0\x9F\x98\x80\"");
    EXPECT_EQ(quv::toVariant(quv::parseJson(written)), QVariant(text));
}

TEST(JsonValue, ValuesAreCounted)
{
    const auto arrayOf = [](int count) {
        std::string text("[0");
        for (int i = 1; i < count; ++i)
            text += ",0";
        return text + "]";
    };
    EXPECT_EQ(parseRefusal(arrayOf(199999)), "accepted");
    EXPECT_EQ(parseRefusal(arrayOf(200000)), "it holds more than 200000 values");
    EXPECT_EQ(parseRefusal("[" + arrayOf(100000) + "," + arrayOf(99998) + "]"),
              "it holds more than 200000 values");
}

TEST(JsonValue, RefusalsQuoteFortyCharacters)
{
    std::string name;
    for (int i = 0; i < 100000; ++i)
        name += "\xC3\xA4";
    std::string quoted;
    for (int i = 0; i < 40; ++i)
        quoted += "\xC3\xA4";
    EXPECT_EQ(parseRefusal("{\"" + name + "\":1,\"" + name + "\":2}"),
              "the member \"" + quoted + "...\" stands twice in one object");
}

TEST(JsonValue, MembersStandOnce)
{
    EXPECT_EQ(parseRefusal(R"({"a":1,"b":{"a":2}})"), "accepted");
    EXPECT_EQ(parseRefusal(R"({"a":1,"b":2,"a":3})"), "the member \"a\" stands twice in one object");
    EXPECT_EQ(parseRefusal("{\"\\u0061\":1,\"a\":3}"), "the member \"a\" stands twice in one object");
}

TEST(JsonValue, TextThatIsNoJson)
{
    using testing::StartsWith;
    EXPECT_THAT(parseRefusal(""), StartsWith("no JSON: parse error at line 1, column 1"));
    EXPECT_THAT(parseRefusal("{\"a\":1"), StartsWith("no JSON: parse error at line 1, column 7"));
    EXPECT_THAT(parseRefusal("{} {}"), StartsWith("no JSON: parse error at line 1, column 4"));
    EXPECT_THAT(parseRefusal("NaN"), StartsWith("no JSON: parse error"));
    EXPECT_THAT(parseRefusal("01"), StartsWith("no JSON: parse error"));
    EXPECT_THAT(parseRefusal("{'a':1}"), StartsWith("no JSON: parse error"));
}

TEST(JsonValue, BytesThatAreNoUtf8AreNotRepeated)
{
    const std::string refusal = parseRefusal("\"\xff\xfe\"");
    EXPECT_THAT(refusal, testing::StartsWith("no JSON: parse error"));
    for (const char c : refusal)
        EXPECT_TRUE(c >= ' ' && c <= '~') << refusal;
    EXPECT_THAT(parseRefusal("\"\xed\xa0\x80\""),
                testing::StartsWith("no JSON: parse error")); // a lone surrogate
    EXPECT_EQ(parseRefusal(std::string_view("{}\0{", 4)), "no JSON: it holds a NUL byte");
}

TEST(JsonValue, DoublesReadBackExactlyAndAsDoubles)
{
    EXPECT_EQ(jsonOf(XmlRpcValue(3.0)), "3.0");
    EXPECT_EQ(jsonOf(XmlRpcValue(-0.0)), "-0.0");
    EXPECT_EQ(jsonOf(XmlRpcValue(0.1)), "0.1");
    EXPECT_EQ(jsonOf(XmlRpcValue(1e300)), "1e+300");
    for (const double number :
         {1.0 / 3, 5e-324, std::numeric_limits<double>::max(), 123456789012345680.0, 1e15})
        EXPECT_EQ(readDouble(jsonOf(XmlRpcValue(number))), number);
    EXPECT_EQ(jsonOf(XmlRpcValue(std::nan(""))), "null");
    EXPECT_EQ(jsonOf(XmlRpcValue(std::numeric_limits<double>::infinity())), "null");
}

TEST(JsonValue, TextIsWrittenAsUtf8WhateverItsBytes)
{
    EXPECT_EQ(jsonOf(XmlRpcValue("caf\xc3\xa9")), "\"caf\xc3\xa9\"");
    EXPECT_EQ(jsonOf(XmlRpcValue("caf\xe9")), "\"caf\xc3\xa9\"");
    EXPECT_EQ(jsonOf(XmlRpcValue("a\n\"\x01")), R"("a\n\"\u0001")");
    XmlRpcValue record;
    record[std::string("\xe9")] = 1;
    EXPECT_EQ(jsonOf(record), "{\"\xc3\xa9\":1}");
}

TEST(JsonValue, DatesAreIsoTexts)
{
    std::tm time{};
    time.tm_year = 124;
    time.tm_mon = 1;
    time.tm_mday = 29;
    time.tm_hour = 7;
    time.tm_min = 8;
    time.tm_sec = 9;
    EXPECT_EQ(jsonOf(XmlRpcValue(&time)), "\"2024-02-29T07:08:09\"");
    const QDateTime utc(QDate(2024, 2, 29), QTime(7, 8, 9, 10), Qt::UTC);
    EXPECT_EQ(jsonOf(QVariant(utc)), "\"2024-02-29T07:08:09.010Z\"");
}

TEST(JsonValue, VariantsAreWrittenByTheirTypes)
{
    const QVariantList list = {1,
                               2.0,
                               true,
                               QStringLiteral("x"),
                               QByteArray("\1", 1),
                               4294967301LL,
                               QStringList{QStringLiteral("p"), QStringLiteral("q")},
                               QVariantMap{{QStringLiteral("k"), 5}},
                               QVariant()};
    EXPECT_EQ(jsonOf(QVariant(list)),
              R"([1,2.0,true,"x",{"$base64":"AQ=="},4294967301,["p","q"],{"k":5},null])");
    EXPECT_EQ(jsonOf(QVariant::fromValue(QList<int>{1, 2})), "[1,2]");
}

TEST(JsonValue, TypesThatConvertToMembersAreWrittenAsObjects)
{
    QMetaType::registerConverter<Travelling, QVariantMap>([](const Travelling &object) {
        return QVariantMap{{QStringLiteral("number"), object.number}, {QStringLiteral("share"), 0.5}};
    });
    const QVariant variant = QVariant::fromValue(Travelling{7});
    EXPECT_EQ(jsonOf(variant), R"({"number":7,"share":0.5})");
    EXPECT_EQ(jsonOf(QVariant(QVariantList{variant, 1})), R"([{"number":7,"share":0.5},1])");
}

TEST(JsonValue, AnEmptyValueIsNull)
{
    EXPECT_EQ(jsonOf(XmlRpcValue()), "null");
}

} // namespace
