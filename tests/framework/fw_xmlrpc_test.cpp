// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_xmlrpc.h>

#include "values.h"

#include <cstdlib>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <type_traits>

using values::arrayOf;
using values::binary;
using values::dateTime;
using values::stored;
using values::structOf;
using values::XmlRpcValue;

struct Travelling
{
    int number = 0;
};
Q_DECLARE_METATYPE(Travelling)

/** Registered, but without a way to a struct. */
struct Foreign
{
    int number = 0;
};
Q_DECLARE_METATYPE(Foreign)

namespace {

constexpr int leastInt = std::numeric_limits<int>::min();
constexpr int greatestInt = std::numeric_limits<int>::max();
constexpr long long leastLong = std::numeric_limits<long long>::min();
constexpr long long greatestLong = std::numeric_limits<long long>::max();

const QString cafe = QString::fromUtf8("caf\u00e9");

using Kinds = std::set<std::string>;

/** A value of each kind, by name. */
const std::map<std::string, XmlRpcValue> &everyKind()
{
    static const std::map<std::string, XmlRpcValue> kinds = {
        {"empty", XmlRpcValue()},
        {"bool", true},
        {"int", 41},
        {"negative int", -41},
        {"double", 2.5},
        {"text", "41"},
        {"empty text", ""},
        {"time", dateTime(2024, 2, 29, 12, 30, 1)},
        {"binary", binary("ab")},
        {"empty array", arrayOf({})},
        {"int array", arrayOf({1, -2})},
        {"text array", arrayOf({"a", "b"})},
        {"mixed array", arrayOf({1, "a"})},
        {"late double array", arrayOf({1, 2, 2.5})},
        {"bool array", arrayOf({true})},
        {"nested array", arrayOf({arrayOf({1})})},
        {"empty struct", structOf({})},
        {"struct", structOf({{"a", 1}})},
    };
    return kinds;
}

bool same(const XmlRpcValue &a, const XmlRpcValue &b)
{
    return a.getType() == b.getType() && a.toXml() == b.toXml();
}

template <class T>
bool same(const T &a, const T &b)
{
    return a == b;
}

/** A refused read: false, no exception, the target untouched, nothing made up in the value. */
template <class T, class Read>
void expectRefused(const XmlRpcValue &value, const T &untouched, Read read)
{
    const std::string before = value.toXml();
    const XmlRpcValue::Type typeBefore = value.getType();
    T out = untouched;
    EXPECT_NO_THROW(EXPECT_FALSE(read(value, out)));
    EXPECT_TRUE(same(out, untouched));
    EXPECT_EQ(value.getType(), typeBefore);
    EXPECT_EQ(value.toXml(), before);
}

/** Reads the three ways: the value itself, a member of a struct, an element of an array. */
template <class T>
void expectReads(const XmlRpcValue &value, const T &untouched, const T &expected)
{
    SCOPED_TRACE(value.toXml());
    T out = untouched;
    EXPECT_TRUE(DecodeXmlRpcValue(value, out));
    EXPECT_TRUE(same(out, expected));

    const XmlRpcValue record = structOf({{"other", "x"}, {"key", value}});
    out = untouched;
    EXPECT_TRUE(DecodeXmlRpcValue(record, "key", out));
    EXPECT_TRUE(same(out, expected));
    EXPECT_EQ(record.size(), 2);

    const XmlRpcValue array = arrayOf({"x", value});
    out = untouched;
    EXPECT_TRUE(DecodeXmlRpcValue(array, 1, out));
    EXPECT_TRUE(same(out, expected));
    EXPECT_EQ(array.size(), 2);
}

template <class T>
void expectRefusedInEveryPlace(const XmlRpcValue &value, const T &untouched)
{
    expectRefused(value, untouched, [](const XmlRpcValue &v, T &out) { return DecodeXmlRpcValue(v, out); });
    expectRefused(structOf({{"key", value}}), untouched,
                  [](const XmlRpcValue &v, T &out) { return DecodeXmlRpcValue(v, "key", out); });
    expectRefused(arrayOf({value}), untouched,
                  [](const XmlRpcValue &v, T &out) { return DecodeXmlRpcValue(v, 0, out); });
}

/** Every kind but the accepted ones is refused; so is what is missing and what has no members or elements. */
template <class T>
void expectAccepts(const Kinds &accepted, const T &untouched)
{
    for (const auto &[kind, value] : everyKind()) {
        SCOPED_TRACE(kind);
        if (accepted.count(kind) == 0) {
            expectRefusedInEveryPlace(value, untouched);
        } else {
            T out = untouched;
            EXPECT_TRUE(DecodeXmlRpcValue(value, out));
        }
    }
    for (const auto &[kind, value] : everyKind()) {
        SCOPED_TRACE("no member, no element: " + kind);
        for (const char *key : {"key", "", "A", "0"})
            expectRefused(value, untouched,
                          [&](const XmlRpcValue &v, T &out) { return DecodeXmlRpcValue(v, key, out); });
        for (int index : {-1, 3, leastInt, greatestInt})
            expectRefused(value, untouched,
                          [&](const XmlRpcValue &v, T &out) { return DecodeXmlRpcValue(v, index, out); });
    }
}

TEST(DecodeXmlRpcValue, readsBool)
{
    expectAccepts<bool>({"bool"}, true);
    expectAccepts<bool>({"bool"}, false);
    expectReads(XmlRpcValue(true), false, true);
    expectReads(XmlRpcValue(false), true, false);
}

TEST(DecodeXmlRpcValue, readsInt)
{
    expectAccepts<int>({"int", "negative int"}, 5);
    for (int number : {0, 1, -1, leastInt, greatestInt})
        expectReads(XmlRpcValue(number), 5, number);
}

TEST(DecodeXmlRpcValue, readsUnsignedInt)
{
    expectAccepts<unsigned int>({"int"}, 5u);
    expectReads(XmlRpcValue(0), 5u, 0u);
    expectReads(XmlRpcValue(greatestInt), 5u, 2147483647u);
    expectRefusedInEveryPlace(XmlRpcValue(-1), 5u);
    expectRefusedInEveryPlace(XmlRpcValue(leastInt), 5u);
}

TEST(DecodeXmlRpcValue, readsLongLong)
{
    expectAccepts<long long>({"int", "negative int"}, 5LL);
    expectReads(XmlRpcValue(leastInt), 5LL, -2147483648LL);
    expectReads(XmlRpcValue(greatestInt), 5LL, 2147483647LL);
}

TEST(DecodeXmlRpcValue, readsALongLongBeyondAnIntAsItIsWritten)
{
    for (long long number : {2147483648LL, -2147483649LL, 9007199254740992LL, leastLong})
        expectReads(EncodeXmlRpcVariant(number), 5LL, number);
    for (double number :
         {0.0, 7.0, -7.0, 2147483647.0, -2147483648.0, 2147483648.5, 9223372036854775808.0, -1e19,
          std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        expectRefusedInEveryPlace(XmlRpcValue(number), 5LL);
}

TEST(DecodeXmlRpcValue, readsUnsignedLongLong)
{
    expectAccepts<unsigned long long>({"int"}, 5ULL);
    expectReads(XmlRpcValue(0), 5ULL, 0ULL);
    expectReads(XmlRpcValue(greatestInt), 5ULL, 2147483647ULL);
    expectRefusedInEveryPlace(XmlRpcValue(-1), 5ULL);
    for (unsigned long long number : {2147483648ULL, 9007199254740992ULL, 18446744073709549568ULL})
        expectReads(EncodeXmlRpcVariant(number), 5ULL, number);
    // the greatest number is written as 2^64, the double nearest to it
    expectReads(EncodeXmlRpcVariant(18446744073709551615ULL), 5ULL, 18446744073709551615ULL);
    expectReads(XmlRpcValue(18446744073709551616.0), 5ULL, 18446744073709551615ULL);
    for (double number : {0.0, 7.0, 2147483648.5, -2147483649.0, 18446744073709555712.0})
        expectRefusedInEveryPlace(XmlRpcValue(number), 5ULL);
}

TEST(DecodeXmlRpcValue, readsDoubleAndAcceptsAnInt)
{
    expectAccepts<double>({"double", "int", "negative int"}, 5.5);
    expectReads(XmlRpcValue(2.25), 5.5, 2.25);
    expectReads(XmlRpcValue(-41), 5.5, -41.0);
    expectReads(XmlRpcValue(greatestInt), 5.5, 2147483647.0);
    expectReads(XmlRpcValue(std::numeric_limits<double>::infinity()), 5.5,
                std::numeric_limits<double>::infinity());
}

TEST(DecodeXmlRpcValue, readsText)
{
    expectAccepts<QString>({"text", "empty text"}, QString("untouched"));
    expectReads(XmlRpcValue("caf\xc3\xa9"), QString("untouched"), cafe);
    expectReads(XmlRpcValue("caf\xe9"), QString("untouched"), cafe);
    expectReads(XmlRpcValue(""), QString("untouched"), QString(""));
}

TEST(DecodeXmlRpcValue, readsBinary)
{
    expectAccepts<QByteArray>({"binary"}, QByteArray("untouched"));
    expectReads(binary(std::string("\0\xff\n", 3)), QByteArray("untouched"), QByteArray("\0\xff\n", 3));
    expectReads(binary(""), QByteArray("untouched"), QByteArray(""));
}

TEST(DecodeXmlRpcValue, readsListOfTexts)
{
    expectAccepts<QStringList>({"empty array", "text array"}, QStringList{"untouched"});
    expectReads(arrayOf({"caf\xe9", "caf\xc3\xa9", ""}), QStringList{"untouched"},
                QStringList{cafe, cafe, ""});
    expectReads(arrayOf({}), QStringList{"untouched"}, QStringList());
}

TEST(DecodeXmlRpcValue, readsListOfInts)
{
    expectAccepts<QList<int>>({"empty array", "int array"}, QList<int>{5});
    expectReads(arrayOf({3, leastInt, greatestInt}), QList<int>{5}, QList<int>{3, leastInt, greatestInt});
    expectReads(arrayOf({}), QList<int>{5}, QList<int>());
}

XmlRpcValue deepStruct()
{
    return structOf({{"flag", true},
                     {"number", 41},
                     {"real", 2.5},
                     {"text", "caf\xe9"},
                     {"bytes", binary("ab")},
                     {"list", arrayOf({1, "a"})},
                     {"caf\xe9", structOf({{"inner", 1}})}});
}

template <class Map>
Map deepMap()
{
    return Map{{"flag", true},
               {"number", 41},
               {"real", 2.5},
               {"text", cafe},
               {"bytes", QByteArray("ab")},
               {"list", QVariantList{1, "a"}},
               {cafe, QVariantMap{{"inner", 1}}}};
}

TEST(DecodeXmlRpcValue, readsStructAsHash)
{
    using Hash = QHash<QString, QVariant>;
    expectAccepts<Hash>({"empty struct", "struct"}, Hash{{"untouched", 1}});
    expectReads(structOf({}), Hash{{"untouched", 1}}, Hash());
    expectReads(deepStruct(), Hash{{"untouched", 1}}, deepMap<Hash>());
    Hash hash;
    ASSERT_TRUE(DecodeXmlRpcValue(deepStruct(), hash));
    EXPECT_EQ(hash.value("flag").userType(), QMetaType::Bool);
    EXPECT_EQ(hash.value("number").userType(), QMetaType::Int);
    EXPECT_EQ(hash.value("real").userType(), QMetaType::Double);
    EXPECT_EQ(hash.value("bytes").userType(), QMetaType::QByteArray);
}

TEST(DecodeXmlRpcValue, readsStructAsMap)
{
    using Map = QMap<QString, QVariant>;
    expectAccepts<Map>({"empty struct", "struct"}, Map{{"untouched", 1}});
    expectReads(structOf({}), Map{{"untouched", 1}}, Map());
    expectReads(deepStruct(), Map{{"untouched", 1}}, deepMap<Map>());
}

TEST(DecodeXmlRpcValue, readsAnyValueAsItIs)
{
    Kinds all;
    for (const auto &[kind, value] : everyKind()) {
        all.insert(kind);
        expectReads(value, XmlRpcValue("untouched"), value);
    }
    expectAccepts<XmlRpcValue>(all, XmlRpcValue("untouched"));
}

TEST(DecodeXmlRpcValue, readsAPartOfAValueIntoTheValueItself)
{
    XmlRpcValue value = structOf({{"child", structOf({{"grandchild", arrayOf({1, "last"})}})}});
    ASSERT_TRUE(DecodeXmlRpcValue(value, "child", value));
    ASSERT_TRUE(DecodeXmlRpcMember(value, "grandchild", value));
    ASSERT_TRUE(DecodeXmlRpcValue(value, 1, value));
    EXPECT_EQ(stored<std::string>(value), "last");
}

TEST(DecodeXmlRpcValue, findsMembersByTheirWholeName)
{
    int out = 5;
    const XmlRpcValue accented = structOf({{"caf\xc3\xa9", 1}});
    EXPECT_TRUE(DecodeXmlRpcValue(accented, cafe, out));
    EXPECT_EQ(out, 1);
    const XmlRpcValue unnamed = structOf({{"", 2}});
    EXPECT_TRUE(DecodeXmlRpcValue(unnamed, "", out));
    EXPECT_EQ(out, 2);

    const XmlRpcValue shortName = structOf({{"a", 3}});
    EXPECT_FALSE(DecodeXmlRpcValue(shortName, QString("a") + QChar(0) + "b", out));
    EXPECT_EQ(out, 2);
    EXPECT_EQ(shortName.size(), 1);
}

TEST(DecodeXmlRpcValue, indexIsCheckedOnTheLimit)
{
    const XmlRpcValue array = arrayOf({1, 2});
    int out = 5;
    EXPECT_TRUE(DecodeXmlRpcValue(array, 0, out));
    EXPECT_EQ(out, 1);
    EXPECT_TRUE(DecodeXmlRpcValue(array, 1, out));
    EXPECT_EQ(out, 2);
    EXPECT_FALSE(DecodeXmlRpcValue(array, 2, out));
    EXPECT_EQ(out, 2);
    EXPECT_EQ(array.size(), 2);
}

TEST(DecodeXmlRpcValue, readsNonConstValuesWithoutChangingThem)
{
    XmlRpcValue record = structOf({{"a", 1}});
    XmlRpcValue empty;
    XmlRpcValue array = arrayOf({1});
    int number = 5;
    bool flag = true;
    EXPECT_FALSE(DecodeXmlRpcValue(record, "key", number));
    EXPECT_FALSE(DecodeXmlRpcValue(record, "a", flag));
    EXPECT_FALSE(DecodeXmlRpcValue(empty, number));
    EXPECT_FALSE(DecodeXmlRpcValue(empty, "a", number));
    EXPECT_FALSE(DecodeXmlRpcValue(empty, 0, number));
    EXPECT_FALSE(DecodeXmlRpcValue(array, 1, number));
    EXPECT_EQ(record.size(), 1);
    EXPECT_EQ(array.size(), 1);
    EXPECT_FALSE(empty.valid());
    EXPECT_EQ(number, 5);
    EXPECT_TRUE(flag);
}

TEST(FindXmlRpcMember, givesTheMemberInPlace)
{
    const XmlRpcValue record = structOf({{"a", 1}, {"b", "two"}});
    const XmlRpcValue *member = FindXmlRpcMember(record, "b");
    ASSERT_NE(member, nullptr);
    EXPECT_EQ(stored<std::string>(*member), "two");
    EXPECT_EQ(member, &record["b"]);
    EXPECT_EQ(FindXmlRpcMember(record, "c"), nullptr);
    EXPECT_EQ(record.size(), 2);
    for (const auto &[kind, value] : everyKind())
        EXPECT_EQ(FindXmlRpcMember(value, "key"), nullptr) << kind;
}

TEST(FindXmlRpcElement, givesTheElementInPlace)
{
    const XmlRpcValue array = arrayOf({1, 2});
    EXPECT_EQ(FindXmlRpcElement(array, 1), &array[1]);
    EXPECT_EQ(FindXmlRpcElement(array, 2), nullptr);
    EXPECT_EQ(FindXmlRpcElement(array, -1), nullptr);
    for (const char *kind : {"empty", "int", "text", "binary", "struct", "empty array"})
        EXPECT_EQ(FindXmlRpcElement(everyKind().at(kind), 0), nullptr) << kind;
}

TEST(DecodeXmlRpcMember, givesTheRawMember)
{
    for (const auto &[kind, value] : everyKind()) {
        SCOPED_TRACE(kind);
        const XmlRpcValue record = structOf({{"key", value}});
        XmlRpcValue out("untouched");
        EXPECT_TRUE(DecodeXmlRpcMember(record, "key", out));
        EXPECT_TRUE(same(out, value));
        for (const XmlRpcValue &other : {record, value})
            expectRefused(other, XmlRpcValue("untouched"), [](const XmlRpcValue &v, XmlRpcValue &target) {
                return DecodeXmlRpcMember(v, "missing", target);
            });
    }
}

/** Local time is two hours ahead of UTC while this lives. */
class TwoHoursAhead
{
public:
    TwoHoursAhead()
    {
        if (qEnvironmentVariableIsSet("TZ"))
            m_before = qgetenv("TZ");
        qputenv("TZ", "TEST-2");
        tzset();
    }
    ~TwoHoursAhead()
    {
        if (m_before)
            qputenv("TZ", *m_before);
        else
            qunsetenv("TZ");
        tzset();
    }
    TwoHoursAhead(const TwoHoursAhead &) = delete;
    TwoHoursAhead &operator=(const TwoHoursAhead &) = delete;

private:
    std::optional<QByteArray> m_before;
};

const QDateTime noon(QDate(2024, 2, 29), QTime(12, 0, 0), Qt::UTC);

QDateTime timestampOf(const XmlRpcValue &value, bool utc)
{
    QDateTime out;
    EXPECT_TRUE(DecodeXmlRpcTimestamp(structOf({{"key", value}}), "key", out, utc)) << value.toXml();
    return out;
}

TEST(DecodeXmlRpcTimestamp, readsADateTime)
{
    const TwoHoursAhead zone;
    EXPECT_EQ(timestampOf(dateTime(2024, 2, 29, 12, 0, 0), true), noon);
    EXPECT_EQ(timestampOf(dateTime(2024, 2, 29, 14, 0, 0), false), noon);
}

TEST(DecodeXmlRpcTimestamp, readsIso8601)
{
    const TwoHoursAhead zone;
    EXPECT_EQ(timestampOf("2024-02-29T12:00:00", true), noon);
    EXPECT_EQ(timestampOf("2024-02-29T14:00:00", false), noon);
    EXPECT_EQ(timestampOf("2024-02-29T12:00:00.250", true), noon.addMSecs(250));
    EXPECT_EQ(timestampOf("2024-02-29", true), noon.addSecs(-12 * 3600));
    for (bool utc : {true, false}) { // an offset of its own says it all
        EXPECT_EQ(timestampOf("2024-02-29T12:00:00Z", utc), noon);
        EXPECT_EQ(timestampOf("2024-02-29T17:30:00+05:30", utc), noon);
    }
}

TEST(DecodeXmlRpcTimestamp, readsUtcTimesThatLocalClocksSkip)
{
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
    EXPECT_EQ(timestampOf("2024-03-31T02:30:00", true), QDateTime(QDate(2024, 3, 31), QTime(2, 30), Qt::UTC));
    if (before.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", before);
    tzset();
}

TEST(DecodeXmlRpcTimestamp, refusesWhatIsMissingOrNoTime)
{
    for (const XmlRpcValue &bad :
         {XmlRpcValue(), XmlRpcValue(20240229), XmlRpcValue(""), XmlRpcValue("noon"),
          XmlRpcValue("2024-02-30T12:00:00"), XmlRpcValue("2024-02-29T25:00:00"),
          dateTime(2024, 13, 1, 0, 0, 0), dateTime(2024, 2, 30, 0, 0, 0), dateTime(2024, 2, 29, 24, 0, 0),
          dateTime(2024, 2, 29, 12, 0, 61), arrayOf({"2024-02-29"})}) {
        SCOPED_TRACE(bad.toXml());
        for (bool utc : {true, false}) {
            const auto read = [utc](const XmlRpcValue &value, QDateTime &out) {
                return DecodeXmlRpcTimestamp(value, "key", out, utc);
            };
            expectRefused(structOf({{"key", bad}}), noon, read);
            expectRefused(structOf({{"other", "2024-02-29T12:00:00"}}), noon, read);
            expectRefused(bad, noon, read);
        }
    }
}

TEST(DecodeXmlRpcText, isUtf8WhenValid)
{
    EXPECT_EQ(DecodeXmlRpcText(""), "");
    EXPECT_EQ(DecodeXmlRpcText("plain"), "plain");
    EXPECT_EQ(DecodeXmlRpcText("caf\xc3\xa9"), cafe);
    EXPECT_EQ(DecodeXmlRpcText("\xf0\x9f\x8e\xa8"), QString::fromUtf16(u"\xd83c\xdfa8"));
    EXPECT_EQ(DecodeXmlRpcText("\xef\xbb\xbf"
                               "a"),
              QString(QChar(0xfeff)) + "a");
    EXPECT_EQ(DecodeXmlRpcText(std::string("a\0b", 3)), QString("a") + QChar(0) + "b");
}

TEST(DecodeXmlRpcText, isLatin1Otherwise)
{
    EXPECT_EQ(DecodeXmlRpcText("caf\xe9"), cafe);
    EXPECT_EQ(DecodeXmlRpcText("\xe9t\xe9"), QString::fromUtf16(u"\u00e9t\u00e9"));
    EXPECT_EQ(DecodeXmlRpcText("caf\xc3"), QString::fromUtf16(u"caf\u00c3"));     // cut short
    EXPECT_EQ(DecodeXmlRpcText("\xc0\xaf"), QString::fromUtf16(u"\u00c0\u00af")); // longer than needed
    EXPECT_EQ(DecodeXmlRpcText("\xed\xa0\x80").size(), 3);                        // half a pair
    EXPECT_EQ(DecodeXmlRpcText("\xf4\x90\x80\x80").size(), 4);                    // beyond Unicode
    EXPECT_EQ(DecodeXmlRpcText("\xc3\xa9 \xe9"), QString::fromUtf16(u"\u00c3\u00a9 \u00e9")); // both in one
}

TEST(EncodeXmlRpcText, isUtf8)
{
    EXPECT_EQ(EncodeXmlRpcText(QString()), "");
    EXPECT_EQ(EncodeXmlRpcText(cafe), "caf\xc3\xa9");
    EXPECT_EQ(EncodeXmlRpcText(QString("a") + QChar(0) + "b"), std::string("a\0b", 3));
}

/** Encodes into an empty value, a scalar, an array and a struct, and gives the member of the last. */
template <class T>
XmlRpcValue encoded(const T &member)
{
    for (XmlRpcValue value :
         {XmlRpcValue(), XmlRpcValue(7), XmlRpcValue("text"), arrayOf({1, 2}), binary("ab")}) {
        EncodeXmlRpcValue(value, "key", member);
        EXPECT_EQ(value.getType(), XmlRpcValue::TypeStruct);
        EXPECT_EQ(value.size(), 1);
        EXPECT_TRUE(value.hasMember("key"));
    }
    XmlRpcValue record = structOf({{"key", "replaced"}, {"other", 9}});
    EncodeXmlRpcValue(record, "key", member);
    EXPECT_EQ(record.size(), 2);
    EXPECT_EQ(stored<int>(record["other"]), 9);
    return record["key"];
}

TEST(EncodeXmlRpcValue, writesScalars)
{
    EXPECT_TRUE(stored<bool>(encoded(true)));
    EXPECT_FALSE(stored<bool>(encoded(false)));
    EXPECT_EQ(stored<int>(encoded(0)), 0);
    EXPECT_EQ(stored<int>(encoded(leastInt)), leastInt);
    EXPECT_EQ(stored<double>(encoded(2.0)), 2.0);
    EXPECT_EQ(stored<std::string>(encoded(cafe)), "caf\xc3\xa9");
    EXPECT_EQ(stored<std::string>(encoded(QString())), "");
}

TEST(EncodeXmlRpcValue, writesLists)
{
    const XmlRpcValue texts = encoded(QStringList{cafe, ""});
    ASSERT_EQ(texts.getType(), XmlRpcValue::TypeArray);
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(stored<std::string>(texts[0]), "caf\xc3\xa9");
    EXPECT_EQ(stored<std::string>(texts[1]), "");

    const XmlRpcValue numbers = encoded(QList<int>{1, -2});
    ASSERT_EQ(numbers.getType(), XmlRpcValue::TypeArray);
    ASSERT_EQ(numbers.size(), 2);
    EXPECT_EQ(stored<int>(numbers[0]), 1);
    EXPECT_EQ(stored<int>(numbers[1]), -2);

    for (const XmlRpcValue &none : {encoded(QStringList()), encoded(QList<int>())}) {
        EXPECT_EQ(none.getType(), XmlRpcValue::TypeArray);
        EXPECT_EQ(none.size(), 0);
    }
}

TEST(EncodeXmlRpcValue, writesHash)
{
    const XmlRpcValue value =
        encoded(QHash<QString, QVariant>{{"a", 1}, {cafe, "x"}, {"b", QVariantList{true}}});
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeStruct);
    ASSERT_EQ(value.size(), 3);
    EXPECT_EQ(stored<int>(value["a"]), 1);
    EXPECT_EQ(stored<std::string>(value["caf\xc3\xa9"]), "x");
    EXPECT_TRUE(stored<bool>(value["b"][0]));

    const XmlRpcValue none = encoded(QHash<QString, QVariant>());
    EXPECT_EQ(none.getType(), XmlRpcValue::TypeStruct);
    EXPECT_EQ(none.size(), 0);
}

TEST(EncodeXmlRpcValue, writesAnyValue)
{
    for (const auto &[kind, value] : everyKind()) {
        if (kind != "empty") {
            EXPECT_TRUE(same(encoded(value), value)) << kind;
        }
    }
    // an empty value would make the whole struct unreadable
    EXPECT_EQ(stored<int>(encoded(XmlRpcValue())), 0);
}

TEST(EncodeXmlRpcValue, writesAValueIntoItself)
{
    XmlRpcValue value = structOf({{"a", 1}});
    EncodeXmlRpcValue(value, "copy", value);
    ASSERT_EQ(value.size(), 2);
    EXPECT_EQ(value["copy"].size(), 1);
    EXPECT_EQ(stored<int>(value["copy"]["a"]), 1);
    EncodeXmlRpcValue(value, "copy", value["copy"]["a"]);
    EXPECT_EQ(stored<int>(value["copy"]), 1);

    XmlRpcValue number(5);
    EncodeXmlRpcValue(number, "self", number);
    EXPECT_EQ(stored<int>(number["self"]), 5);
}

TEST(EncodeXmlRpcValue, writesOneMemberPerEntry)
{
    XmlRpcValue value(7);
    EncodeXmlRpcValue(value,
                      QMap<QString, QVariant>{{"a", 1}, {cafe, QStringList{"x"}}, {"none", QVariant()}});
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeStruct);
    ASSERT_EQ(value.size(), 3);
    EXPECT_EQ(stored<int>(value["a"]), 1);
    EXPECT_EQ(stored<std::string>(value["caf\xc3\xa9"][0]), "x");
    EXPECT_EQ(stored<int>(value["none"]), 0);

    EncodeXmlRpcValue(value, QMap<QString, QVariant>{{"a", 2.5}, {"b", true}});
    EXPECT_EQ(value.size(), 4);
    EXPECT_EQ(stored<double>(value["a"]), 2.5);

    XmlRpcValue none(7);
    EncodeXmlRpcValue(none, QMap<QString, QVariant>());
    EXPECT_EQ(none.getType(), XmlRpcValue::TypeStruct);
    EXPECT_EQ(none.size(), 0);
}

template <class T, class = void>
struct CanBeMember : std::false_type
{};

template <class T>
struct CanBeMember<
    T, std::void_t<decltype(EncodeXmlRpcValue(std::declval<XmlRpcValue &>(), QString(), std::declval<T>()))>>
    : std::true_type
{};

TEST(EncodeXmlRpcValue, takesNothingThatWouldSilentlyBecomeAnotherType)
{
    EXPECT_TRUE(CanBeMember<bool>::value);
    EXPECT_TRUE(CanBeMember<int>::value);
    EXPECT_TRUE(CanBeMember<double>::value);
    EXPECT_TRUE(CanBeMember<QString>::value);
    EXPECT_TRUE(CanBeMember<QStringList>::value);
    EXPECT_TRUE(CanBeMember<QList<int>>::value);
    EXPECT_TRUE((CanBeMember<QHash<QString, QVariant>>::value));
    EXPECT_TRUE(CanBeMember<XmlRpcValue>::value);

    EXPECT_FALSE(CanBeMember<const char *>::value);
    EXPECT_FALSE(CanBeMember<char *>::value);
    EXPECT_FALSE(CanBeMember<const char(&)[4]>::value);
    EXPECT_FALSE(CanBeMember<const int *>::value);
    EXPECT_FALSE(CanBeMember<XmlRpcValue *>::value);
    EXPECT_FALSE(CanBeMember<std::nullptr_t>::value);
    EXPECT_FALSE(CanBeMember<long long>::value);
    EXPECT_FALSE(CanBeMember<unsigned int>::value);
    EXPECT_FALSE(CanBeMember<unsigned long long>::value);
    EXPECT_FALSE(CanBeMember<QByteArray>::value);
    EXPECT_FALSE(CanBeMember<QVariant>::value);
}

template <class Value, class = void>
struct CanBeRead : std::false_type
{};

template <class Value>
struct CanBeRead<
    Value, std::void_t<decltype(DecodeXmlRpcValue(std::declval<Value>(), QString(), std::declval<int &>()))>>
    : std::true_type
{};

template <class Value, class = void>
struct CanBeSearched : std::false_type
{};

template <class Value>
struct CanBeSearched<Value, std::void_t<decltype(FindXmlRpcMember(std::declval<Value>(), std::string()))>>
    : std::true_type
{};

TEST(DecodeXmlRpcValue, takesNoPointerForAValue)
{
    EXPECT_TRUE(CanBeRead<const XmlRpcValue &>::value);
    EXPECT_TRUE(CanBeRead<XmlRpcValue &>::value);
    EXPECT_TRUE(CanBeRead<XmlRpcValue>::value);
    EXPECT_FALSE(CanBeRead<XmlRpcValue *>::value);
    EXPECT_FALSE(CanBeRead<const XmlRpcValue *>::value);
    EXPECT_FALSE(CanBeRead<const char *>::value);
}

TEST(FindXmlRpcMember, looksIntoNoTemporary)
{
    EXPECT_TRUE(CanBeSearched<const XmlRpcValue &>::value);
    EXPECT_TRUE(CanBeSearched<XmlRpcValue &>::value);
    EXPECT_FALSE(CanBeSearched<XmlRpcValue>::value);
    EXPECT_FALSE(CanBeSearched<const XmlRpcValue>::value);
    EXPECT_FALSE(CanBeSearched<const XmlRpcValue *>::value);
}

TEST(DecodeXmlRpcVariant, givesEachKindItsType)
{
    const TwoHoursAhead zone;
    EXPECT_FALSE(DecodeXmlRpcVariant(XmlRpcValue()).isValid());
    const auto expectVariant = [](const XmlRpcValue &value, QMetaType::Type type, const QVariant &expected) {
        const QVariant variant = DecodeXmlRpcVariant(value);
        EXPECT_EQ(variant.userType(), type) << value.toXml();
        EXPECT_EQ(variant, expected) << value.toXml();
    };
    expectVariant(true, QMetaType::Bool, true);
    expectVariant(-3, QMetaType::Int, -3);
    expectVariant(2.0, QMetaType::Double, 2.0);
    expectVariant("caf\xe9", QMetaType::QString, cafe);
    expectVariant(binary("ab"), QMetaType::QByteArray, QByteArray("ab"));
    expectVariant(dateTime(2024, 2, 29, 14, 0, 0), QMetaType::QDateTime, noon);
    expectVariant(arrayOf({1, arrayOf({"a"})}), QMetaType::QVariantList, QVariantList{1, QVariantList{"a"}});
    expectVariant(arrayOf({}), QMetaType::QVariantList, QVariantList());
    expectVariant(structOf({{"a", structOf({})}}), QMetaType::QVariantMap, QVariantMap{{"a", QVariantMap()}});
}

TEST(EncodeXmlRpcVariant, writesEachTypeAsItsKind)
{
    EXPECT_TRUE(stored<bool>(EncodeXmlRpcVariant(true)));
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(-3)), -3);
    EXPECT_EQ(stored<double>(EncodeXmlRpcVariant(2.0)), 2.0);
    EXPECT_EQ(stored<double>(EncodeXmlRpcVariant(2.5f)), 2.5);
    EXPECT_EQ(stored<std::string>(EncodeXmlRpcVariant(cafe)), "caf\xc3\xa9");
    EXPECT_EQ(stored<std::string>(EncodeXmlRpcVariant(QChar('x'))), "x");
    const auto bytes = stored<XmlRpcValue::BinaryData>(EncodeXmlRpcVariant(QByteArray("a\0b", 3)));
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), std::string("a\0b", 3));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QStringList{"a", "b"}), arrayOf({"a", "b"})));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariant::fromValue(QList<int>{1, 2})), arrayOf({1, 2})));
    EXPECT_TRUE(
        same(EncodeXmlRpcVariant(QVariant::fromValue(QList<bool>{true, false})), arrayOf({true, false})));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariantList{1, QVariantList()}), arrayOf({1, arrayOf({})})));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariantMap{{"a", 1}}), structOf({{"a", 1}})));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariantHash{{"a", 1}}), structOf({{"a", 1}})));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariantMap()), structOf({})));
}

TEST(EncodeXmlRpcVariant, writesWholeNumbersAsIntsOrElseAsDoubles)
{
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue(short(-5)))), -5);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue(ushort(65535)))), 65535);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue(uchar(246)))), 246);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue(static_cast<signed char>(-5)))), -5);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue('A'))), 65);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue(5L))), 5);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(QVariant::fromValue(5UL))), 5);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(2147483647u)), 2147483647);
    EXPECT_EQ(stored<double>(EncodeXmlRpcVariant(2147483648u)), 2147483648.0);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(-2147483648LL)), leastInt);
    EXPECT_EQ(stored<double>(EncodeXmlRpcVariant(-2147483649LL)), -2147483649.0);
    EXPECT_EQ(stored<double>(EncodeXmlRpcVariant(4294967301LL)), 4294967301.0);
    EXPECT_EQ(stored<int>(EncodeXmlRpcVariant(7ULL)), 7);
    EXPECT_EQ(stored<double>(EncodeXmlRpcVariant(std::numeric_limits<unsigned long long>::max())),
              18446744073709551615.0);
}

TEST(EncodeXmlRpcVariant, writesDateAndTimeInLocalTime)
{
    const TwoHoursAhead zone;
    for (const QDateTime &time : {noon, noon.toLocalTime(), noon.toOffsetFromUtc(5 * 3600)}) {
        const auto broken = stored<std::tm>(EncodeXmlRpcVariant(time));
        EXPECT_EQ(broken.tm_year, 124);
        EXPECT_EQ(broken.tm_mon, 1);
        EXPECT_EQ(broken.tm_mday, 29);
        EXPECT_EQ(broken.tm_hour, 14);
        EXPECT_EQ(broken.tm_min, 0);
        EXPECT_EQ(broken.tm_sec, 0);
        EXPECT_EQ(DecodeXmlRpcVariant(EncodeXmlRpcVariant(time)).toDateTime(), noon);
    }
}

TEST(EncodeXmlRpcVariant, writesTypesThatConvertToMembersAsTheirStruct)
{
    QMetaType::registerConverter<Travelling, QVariantMap>([](const Travelling &object) {
        return QVariantMap{{"number", object.number}, {"list", QVariantList{0.5, "a"}}};
    });
    const QVariant variant = QVariant::fromValue(Travelling{7});
    const XmlRpcValue expected = structOf({{"number", 7}, {"list", arrayOf({0.5, "a"})}});
    EXPECT_TRUE(same(EncodeXmlRpcVariant(variant), expected));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariantList{1, variant}), arrayOf({1, expected})));
    EXPECT_TRUE(same(EncodeXmlRpcVariant(QVariant::fromValue(Foreign{7})), 0));
}

TEST(EncodeXmlRpcVariant, writesZeroForWhatXmlRpcCannotHold)
{
    for (const QVariant &foreign : {QVariant(), QVariant(QDate(2024, 2, 29)), QVariant(QDateTime()),
                                    QVariant::fromValue(static_cast<void *>(nullptr))}) {
        const XmlRpcValue value = EncodeXmlRpcVariant(foreign);
        ASSERT_EQ(value.getType(), XmlRpcValue::TypeInt);
        EXPECT_EQ(stored<int>(value), 0);
    }
}

TEST(EncodeXmlRpcObject, isTheSameButForWhatXmlRpcCannotHold)
{
    const QVariantMap whole = {
        {"a", 1}, {"b", 2.5}, {"c", "x"}, {"d", QVariantList{1, QVariantMap{{"e", true}}}}};
    EXPECT_TRUE(same(EncodeXmlRpcObject(whole), EncodeXmlRpcVariant(whole)));
    EXPECT_FALSE(EncodeXmlRpcObject(QVariant()).valid());

    const QVariantMap gaps = {{"a", QVariant()},
                              {"b", QVariant(QDateTime())},
                              {"c", QVariantList{1, QVariant()}},
                              {"d", QVariantMap{{"e", QVariant()}}},
                              {"f", QVariantHash{{"g", QVariant()}}},
                              {"h", 0}};
    const XmlRpcValue value = EncodeXmlRpcObject(gaps);
    ASSERT_EQ(value.size(), 6);
    EXPECT_FALSE(value["a"].valid());
    EXPECT_FALSE(value["b"].valid());
    EXPECT_EQ(stored<int>(value["c"][0]), 1);
    EXPECT_FALSE(value["c"][1].valid());
    ASSERT_TRUE(value["d"].hasMember("e"));
    EXPECT_FALSE(value["d"]["e"].valid());
    ASSERT_TRUE(value["f"].hasMember("g"));
    EXPECT_FALSE(value["f"]["g"].valid());
    EXPECT_EQ(stored<int>(value["h"]), 0);
}

const QList<QVariant> &everyVariant()
{
    static const QList<QVariant> variants = {
        QVariant(),                                     // 0
        true,                                           // 1
        41,                                             // 2
        -41,                                            // 3
        2.0,                                            // 4
        "41",                                           // 5
        41u,                                            // 6
        41LL,                                           // 7
        41ULL,                                          // 8
        4294967301LL,                                   // 9
        QStringList{"a", "b"},                          // 10
        QVariantList{"a", "b"},                         // 11
        QVariant::fromValue(QList<int>{1, -2}),         // 12
        QVariantList{1, -2LL},                          // 13
        QVariantList{1, "a"},                           // 14
        QVariantList(),                                 // 15
        QVariantMap{{"a", 1}},                          // 16
        QByteArray("41"),                               // 17
        std::numeric_limits<unsigned long long>::max(), // 18
        QVariantList{"a", 1},                           // 19
        QVariantList{4294967301LL},                     // 20
        QVariant(QDateTime()),                          // 21
    };
    return variants;
}

/** The elements that convert, by index, and what they give. */
template <class T>
void expectDecodes(const QMap<int, T> &expected, const T &untouched)
{
    const QList<QVariant> &variants = everyVariant();
    for (int index : {-1, leastInt, variants.size(), greatestInt}) {
        T out = untouched;
        EXPECT_NO_THROW(EXPECT_FALSE(DecodeVariantList(variants, index, out))) << index;
        EXPECT_EQ(out, untouched) << index;
    }
    for (int index = 0; index < variants.size(); ++index) {
        T out = untouched;
        bool converted = false;
        EXPECT_NO_THROW(converted = DecodeVariantList(variants, index, out)) << index;
        EXPECT_EQ(converted, expected.contains(index)) << index;
        EXPECT_EQ(out, expected.value(index, untouched)) << index;
    }
}

TEST(DecodeVariantList, readsBool)
{
    expectDecodes<bool>({{1, true}}, false);
    expectDecodes<bool>({{1, true}}, true);
    bool out = true;
    EXPECT_TRUE(DecodeVariantList({false}, 0, out));
    EXPECT_FALSE(out);
}

TEST(DecodeVariantList, readsInt)
{
    expectDecodes<int>({{2, 41}, {3, -41}, {6, 41}, {7, 41}, {8, 41}}, 5);
    int out = 5;
    EXPECT_TRUE(DecodeVariantList({2147483647LL}, 0, out));
    EXPECT_EQ(out, greatestInt);
    EXPECT_FALSE(DecodeVariantList({2147483648LL}, 0, out));
    EXPECT_TRUE(DecodeVariantList({-2147483648LL}, 0, out));
    EXPECT_EQ(out, leastInt);
    EXPECT_FALSE(DecodeVariantList({-2147483649LL}, 0, out));
    EXPECT_FALSE(DecodeVariantList({2147483648u}, 0, out));
    EXPECT_EQ(out, leastInt);
}

TEST(DecodeVariantList, readsLongLong)
{
    expectDecodes<long long>({{2, 41}, {3, -41}, {6, 41}, {7, 41}, {8, 41}, {9, 4294967301LL}}, 5);
    long long out = 5;
    EXPECT_TRUE(DecodeVariantList({greatestLong}, 0, out));
    EXPECT_EQ(out, greatestLong);
    EXPECT_TRUE(DecodeVariantList({leastLong}, 0, out));
    EXPECT_EQ(out, leastLong);
    EXPECT_FALSE(DecodeVariantList({9223372036854775808ULL}, 0, out));
    EXPECT_EQ(out, leastLong);
}

TEST(DecodeVariantList, readsListOfTexts)
{
    expectDecodes<QStringList>({{10, {"a", "b"}}, {11, {"a", "b"}}, {15, {}}}, QStringList{"untouched"});
}

TEST(DecodeVariantList, readsListOfInts)
{
    expectDecodes<QList<int>>({{12, {1, -2}}, {13, {1, -2}}, {15, {}}}, QList<int>{5});
}

TEST(SameXmlRpcValue, holdsForTheSameKindAndContentOnly)
{
    for (const auto &[name, value] : everyKind()) {
        for (const auto &[otherName, other] : everyKind())
            EXPECT_EQ(SameXmlRpcValue(value, other), name == otherName) << name << ", " << otherName;
    }
}

TEST(SameXmlRpcValue, looksAllTheWayDown)
{
    const XmlRpcValue value = structOf({{"list", arrayOf({structOf({{"a", 1}})})}});
    EXPECT_TRUE(SameXmlRpcValue(value, structOf({{"list", arrayOf({structOf({{"a", 1}})})}})));
    EXPECT_FALSE(
        SameXmlRpcValue(value, structOf({{"list", arrayOf({structOf({{"b", 1}})})}}))); // another name
    EXPECT_FALSE(SameXmlRpcValue(value, structOf({{"list", arrayOf({structOf({{"a", 2}})})}})));
    EXPECT_FALSE(SameXmlRpcValue(value, structOf({{"list", arrayOf({structOf({{"a", 1}}), 1})}})));
    EXPECT_FALSE(SameXmlRpcValue(value, structOf({{"list", arrayOf({structOf({{"a", 1}, {"b", 1}})})}})));
}

TEST(intListToVariant, keepsTheNumbersAsInts)
{
    const QList<QVariant> variants = intListToVariant({1, -2, greatestInt});
    ASSERT_EQ(variants.size(), 3);
    EXPECT_EQ(variants.at(0), QVariant(1));
    EXPECT_EQ(variants.at(1), QVariant(-2));
    EXPECT_EQ(variants.at(2), QVariant(greatestInt));
    for (const QVariant &variant : variants)
        EXPECT_EQ(variant.userType(), QMetaType::Int);
    EXPECT_TRUE(intListToVariant({}).isEmpty());
}

} // namespace
