// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/fieldtype_p.h"

#include "base/basetesting.h"
#include "base/factlines.h"
#include "base/memberfacts_p.h"
#include "base/objectfield_p.h"

#include <ctime>
#include <new>
#include <stdexcept>

using namespace testing_base;

namespace {

/** Travels as a struct with one int, and says in different ways that it cannot be read. */
struct Nozzle
{
    Nozzle() = default;
    explicit Nozzle(int turnCount) : turns(turnCount) {}
    explicit Nozzle(const Value &value)
    {
        if (!DecodeXmlRpcValue(value, "turns", turns))
            throw std::invalid_argument("no nozzle");
        if (turns < 0)
            throw FW_Exception("DE1", "Turned back", "Nozzle::Nozzle()");
        if (turns > 99)
            throw std::bad_alloc();
    }

    Value toXmlRpcValue() const { return structOf({{"turns", turns}}); }

    bool operator==(const Nozzle &other) const { return turns == other.turns; }

    int turns = 7;
};

} // namespace

Q_DECLARE_METATYPE(Nozzle)

namespace quv {

template <>
inline constexpr const char *markOf<Nozzle> = "turns";
template <>
inline constexpr const char *nameOf<Nozzle> = "nozzle";
template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 2> ownRefusals<Nozzle> = {
    {{"another type", {"DE0", "No nozzle"}}, {"turned back", {"DE1", "Turned back"}}}};

template <>
const FieldType &fieldType<Nozzle>()
{
    static constexpr FieldType type = objectType<Nozzle>();
    return type;
}

template <>
const FieldType &fieldType<QList<Nozzle>>()
{
    static constexpr FieldType type = objectListType<Nozzle>();
    return type;
}

} // namespace quv

namespace {

const quv::FieldType &doubles()
{
    return quv::fieldType<QList<double>>();
}

TEST(FieldType, readsAnArrayOfDoubles)
{
    QList<double> field = {9.5};
    EXPECT_EQ(doubles().read(arrayOf(1.5, -2), &field), quv::Decoded::Good);
    EXPECT_EQ(field, (QList<double>{1.5, -2}));
    EXPECT_EQ(doubles().read(arrayOf(), &field), quv::Decoded::Good);
    EXPECT_EQ(field, QList<double>());

    field = {9.5};
    for (const Value &other : {Value(), Value(1.5), Value("1.5"), structOf({})})
        EXPECT_EQ(doubles().read(other, &field), quv::Decoded::OtherType);
    for (const Value &bad : {Value(true), Value("1.5"), arrayOf(1.5)})
        EXPECT_EQ(doubles().read(arrayOf(1.5, bad), &field), quv::Decoded::BadElement);
    EXPECT_EQ(field, QList<double>{9.5});
}

TEST(FieldType, readsAListOfDoubles)
{
    QList<double> field;
    EXPECT_TRUE(doubles().readVariant(QVariant::fromValue(QList<double>{1.5, 2}), &field));
    EXPECT_EQ(field, (QList<double>{1.5, 2}));
    EXPECT_TRUE(doubles().readVariant(QVariant(List{1.25, 3, 4LL}), &field));
    EXPECT_EQ(field, (QList<double>{1.25, 3, 4}));
    for (const QVariant &bad : {QVariant(), QVariant(1.5), QVariant(List{1.5, "2"}), QVariant("1.5"),
                                QVariant::fromValue(QList<int>{1})}) {
        EXPECT_FALSE(doubles().readVariant(bad, &field));
        EXPECT_EQ(field, (QList<double>{1.25, 3, 4}));
    }
}

TEST(FieldType, writesAndEmptiesDoubles)
{
    QList<double> field = {1.5, 2};
    Value value(false);
    doubles().write(&field, value);
    EXPECT_EQ(dumped(value), "[1.50000, 2.00000]");
    EXPECT_TRUE(doubles().equal(&field, &field));
    const QList<double> other = {1.5, 2.5};
    EXPECT_FALSE(doubles().equal(&field, &other));
    doubles().reset(&field);
    EXPECT_EQ(field, QList<double>());
    doubles().write(&field, value);
    EXPECT_EQ(dumped(value), "[]");
    EXPECT_STREQ(doubles().name, "array of doubles");
}

TEST(FieldType, ofAnArrayTellsABadElementFromAnotherType)
{
    QStringList texts = {"x"};
    QList<int> ints = {7};
    EXPECT_EQ(quv::fieldType<QStringList>().read(arrayOf("a", "b"), &texts), quv::Decoded::Good);
    EXPECT_EQ(quv::fieldType<QStringList>().read(arrayOf("a", 1), &texts), quv::Decoded::BadElement);
    EXPECT_EQ(quv::fieldType<QStringList>().read(Value("a"), &texts), quv::Decoded::OtherType);
    EXPECT_EQ(texts, (QStringList{"a", "b"}));
    EXPECT_EQ(quv::fieldType<QList<int>>().read(arrayOf(1, 2), &ints), quv::Decoded::Good);
    EXPECT_EQ(quv::fieldType<QList<int>>().read(arrayOf(1, "2"), &ints), quv::Decoded::BadElement);
    EXPECT_EQ(quv::fieldType<QList<int>>().read(Value(1), &ints), quv::Decoded::OtherType);
    EXPECT_EQ(ints, (QList<int>{1, 2}));
}

TEST(FieldType, hasANameForPeople)
{
    const struct
    {
        const quv::FieldType &type;
        const char *name;
    } rows[] = {
        {quv::fieldType<bool>(), "bool"},
        {quv::fieldType<int>(), "int"},
        {quv::fieldType<unsigned int>(), "int"},
        {quv::fieldType<long long>(), "int"},
        {quv::fieldType<unsigned long long>(), "int"},
        {quv::cutToInt(), "int"},
        {quv::fieldType<double>(), "double"},
        {quv::fieldType<QString>(), "string"},
        {quv::latin1Text(), "string"},
        {quv::fieldType<QByteArray>(), "base64"},
        {quv::fieldType<QDateTime>(), "date and time"},
        {quv::fieldType<QVersionNumber>(), "version"},
        {quv::fieldType<QStringList>(), "array of strings"},
        {quv::fieldType<QList<int>>(), "array of ints"},
        {quv::fieldType<QHash<QString, QVariant>>(), "struct"},
        {quv::fieldType<QMap<QString, QVariant>>(), "struct"},
        {quv::fieldType<Value>(), "any"},
    };
    for (const auto &row : rows)
        EXPECT_STREQ(row.type.name, row.name);
}

TEST(FieldType, ofAnyValueTakesAnyVariant)
{
    Value value;
    EXPECT_TRUE(quv::fieldType<Value>().readVariant(QVariant(List{1, "a"}), &value));
    EXPECT_EQ(dumped(value), R"([1, "a"])");
    EXPECT_TRUE(quv::fieldType<Value>().readVariant(QVariant(true), &value));
    EXPECT_EQ(dumped(value), "true");
}

TEST(FieldType, ofATimeIsATextInUniversalTime)
{
    const quv::FieldType &type = quv::fieldType<QDateTime>();
    QDateTime field(QDate(2026, 3, 4), QTime(5, 6, 7, 8), Qt::OffsetFromUTC, 3600);
    Value value;
    type.write(&field, value);
    EXPECT_EQ(dumped(value), R"("2026-03-04T04:06:07.008Z")");
    QDateTime read;
    EXPECT_EQ(type.read(value, &read), quv::Decoded::Good);
    EXPECT_TRUE(type.equal(&read, &field));
    EXPECT_EQ(type.read(Value("2026-03-04T04:06:07.008"), &read), quv::Decoded::Good);
    EXPECT_EQ(read, field);
    for (const Value &bad : {Value(), Value(1), Value("yesterday"), arrayOf()})
        EXPECT_EQ(type.read(bad, &read), quv::Decoded::OtherType);
    EXPECT_EQ(read, field);
    std::tm time{};
    time.tm_year = 126;
    time.tm_mon = 2;
    time.tm_mday = 4;
    time.tm_hour = 4;
    EXPECT_EQ(type.read(Value(&time), &read), quv::Decoded::Good);
    EXPECT_EQ(read.toString(Qt::ISODate), "2026-03-04T04:00:00Z"); // whatever the zone of the reader is

    EXPECT_TRUE(type.readVariant(QVariant(field), &read));
    EXPECT_EQ(read, field);
    EXPECT_TRUE(type.readVariant(QVariant("2026-03-04T04:06:08Z"), &read));
    EXPECT_EQ(read, field.addMSecs(992));
    for (const QVariant &bad : {QVariant(), QVariant(1), QVariant("yesterday")})
        EXPECT_FALSE(type.readVariant(bad, &read));

    // a time that nobody has set comes back as none
    type.reset(&field);
    type.write(&field, value);
    EXPECT_EQ(dumped(value), R"("")");
    EXPECT_EQ(type.read(value, &read), quv::Decoded::Good);
    EXPECT_TRUE(read.isNull());
}

TEST(FieldType, ofAVersionIsItsText)
{
    const quv::FieldType &type = quv::fieldType<QVersionNumber>();
    QVersionNumber field{3, 14, 0, 2};
    Value value;
    type.write(&field, value);
    EXPECT_EQ(dumped(value), R"("3.14.0.2")");
    QVersionNumber read;
    EXPECT_EQ(type.read(value, &read), quv::Decoded::Good);
    EXPECT_TRUE(type.equal(&read, &field));
    for (const Value &bad : {Value(), Value(1), Value("1.2-beta"), Value("v1"), Value("1.")})
        EXPECT_EQ(type.read(bad, &read), quv::Decoded::OtherType) << dumped(bad);
    EXPECT_EQ(read, field);
    EXPECT_TRUE(type.readVariant(QVariant("1.2"), &read));
    EXPECT_EQ(read, QVersionNumber(1, 2));
    EXPECT_TRUE(type.readVariant(QVariant::fromValue(field), &read));
    EXPECT_EQ(read, field);
    EXPECT_FALSE(type.readVariant(QVariant(1.2), &read));
    type.reset(&field);
    type.write(&field, value);
    EXPECT_EQ(dumped(value), R"("")");
    EXPECT_EQ(type.read(value, &read), quv::Decoded::Good);
    EXPECT_TRUE(read.isNull());
}

TEST(FieldType, ofThirtyTwoBitsWithoutSign)
{
    const quv::FieldType &type = quv::fieldType<unsigned int>();
    const struct
    {
        unsigned field;
        Value value;
    } rows[] = {{0, Value(0)},
                {2147483647U, Value(2147483647)},
                {2147483648U, Value(2147483648.0)},
                {4294967295U, Value(4294967295.0)}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.field);
        Value written;
        type.write(&row.field, written);
        EXPECT_TRUE(SameXmlRpcValue(written, row.value)) << dumped(written);
        unsigned read = 7;
        EXPECT_EQ(type.read(row.value, &read), quv::Decoded::Good);
        EXPECT_EQ(read, row.field);
        read = 7;
        EXPECT_TRUE(type.readVariant(QVariant(row.field), &read));
        EXPECT_EQ(read, row.field);
    }
    unsigned read = 7;
    for (const Value &bad : {Value(-1), Value("1"), Value(true), Value(5.0), Value(2147483647.0),
                             Value(2147483648.5), Value(4294967296.0)})
        EXPECT_EQ(type.read(bad, &read), quv::Decoded::OtherType) << dumped(bad);
    for (const QVariant &bad :
         {QVariant(), QVariant(-5), QVariant(5.0), QVariant(4294967296LL), QVariant("5")})
        EXPECT_FALSE(type.readVariant(bad, &read));
    EXPECT_EQ(read, 7U);
    EXPECT_TRUE(type.readVariant(QVariant(2147483648.0), &read)); // as it comes in a map
    EXPECT_EQ(read, 2147483648U);
}

TEST(FieldType, ofSixtyFourBitsWithoutSign)
{
    const quv::FieldType &type = quv::fieldType<unsigned long long>();
    const unsigned long long great = 5000000000ULL;
    Value value;
    type.write(&great, value);
    EXPECT_EQ(value.getType(), Value::TypeDouble);
    unsigned long long read = 7;
    EXPECT_EQ(type.read(value, &read), quv::Decoded::Good);
    EXPECT_EQ(read, great);
    for (const Value &bad : {Value(-1), Value("1"), Value(5000000000.5), Value(true)})
        EXPECT_EQ(type.read(bad, &read), quv::Decoded::OtherType);
    for (const QVariant &good : {QVariant(5), QVariant(5LL), QVariant(5U), QVariant(5ULL)}) {
        EXPECT_TRUE(type.readVariant(good, &read));
        EXPECT_EQ(read, 5ULL);
    }
    EXPECT_TRUE(type.readVariant(QVariant(5000000000.0), &read));
    EXPECT_EQ(read, great);
    for (const QVariant &bad : {QVariant(), QVariant(-5), QVariant(5.0), QVariant("5"), QVariant(true)})
        EXPECT_FALSE(type.readVariant(bad, &read));
    EXPECT_EQ(read, great);
}

TEST(FieldType, ofBytesAndOfNamedVariants)
{
    const quv::FieldType &bytes = quv::fieldType<QByteArray>();
    const QByteArray field("\0\xA5", 2);
    Value value;
    bytes.write(&field, value);
    QByteArray read;
    EXPECT_EQ(bytes.read(value, &read), quv::Decoded::Good);
    EXPECT_EQ(read, field);
    EXPECT_EQ(bytes.read(Value("text"), &read), quv::Decoded::OtherType);
    EXPECT_TRUE(bytes.readVariant(QVariant(QByteArray("x")), &read));
    EXPECT_EQ(read, "x");
    EXPECT_FALSE(bytes.readVariant(QVariant("x"), &read));

    const quv::FieldType &hash = quv::fieldType<QHash<QString, QVariant>>();
    const quv::FieldType &map = quv::fieldType<QMap<QString, QVariant>>();
    QVariantHash ofHash;
    QVariantMap ofMap;
    EXPECT_EQ(hash.read(structOf({{"a", 1}}), &ofHash), quv::Decoded::Good);
    EXPECT_EQ(map.read(structOf({{"a", 1}}), &ofMap), quv::Decoded::Good);
    EXPECT_EQ(ofHash, (QVariantHash{{"a", 1}}));
    EXPECT_EQ(ofMap, (QVariantMap{{"a", 1}}));
    hash.write(&ofHash, value);
    EXPECT_EQ(dumped(value), R"({"a": 1})");
    map.write(&ofMap, value);
    EXPECT_EQ(dumped(value), R"({"a": 1})");
    for (const QVariant &good : {QVariant(QVariantHash{{"b", "c"}}), QVariant(QVariantMap{{"b", "c"}})}) {
        EXPECT_TRUE(hash.readVariant(good, &ofHash));
        EXPECT_TRUE(map.readVariant(good, &ofMap));
        EXPECT_EQ(ofHash, (QVariantHash{{"b", "c"}}));
        EXPECT_EQ(ofMap, (QVariantMap{{"b", "c"}}));
    }
    EXPECT_FALSE(hash.readVariant(QVariant(List{1}), &ofHash));
    EXPECT_FALSE(map.readVariant(QVariant("a"), &ofMap));
}

TEST(FieldType, ofAnObjectIsItsOwnStruct)
{
    constexpr quv::FieldType type = quv::objectType<Nozzle>();
    Nozzle field;
    EXPECT_EQ(type.read(structOf({{"turns", 5}}), &field), quv::Decoded::Good);
    EXPECT_EQ(field.turns, 5);
    for (const Value &bad : {Value(), Value(5), structOf({}), structOf({{"turns", 100}})})
        EXPECT_EQ(type.read(bad, &field), quv::Decoded::OtherType);
    EXPECT_EQ(field.turns, 5);
    expectRefusal("DE1", "Turned back", "Nozzle::Nozzle()", [&] {
        type.read(structOf({{"turns", -1}}), &field);
    });

    Value value(false);
    type.write(&field, value);
    EXPECT_EQ(dumped(value), R"({"turns": 5})");
    const Nozzle same(5);
    EXPECT_TRUE(type.equal(&field, &same));
    type.reset(&field);
    EXPECT_EQ(field.turns, 7);
    EXPECT_FALSE(type.equal(&field, &same));
    EXPECT_STREQ(type.name, "nozzle");
}

TEST(FieldType, ofObjectsIsAnArrayOfTheirStructs)
{
    constexpr quv::FieldType type = quv::objectListType<Nozzle>();
    QList<Nozzle> field;
    EXPECT_EQ(type.read(arrayOf(structOf({{"turns", 5}}), structOf({{"turns", 6}})), &field),
              quv::Decoded::Good);
    EXPECT_EQ(field, (QList<Nozzle>{Nozzle(5), Nozzle(6)}));
    for (const Value &bad : {Value(), Value(5), structOf({{"turns", 5}})})
        EXPECT_EQ(type.read(bad, &field), quv::Decoded::OtherType);
    EXPECT_EQ(type.read(arrayOf(structOf({{"turns", 5}}), Value(5)), &field), quv::Decoded::BadElement);
    EXPECT_EQ(field, (QList<Nozzle>{Nozzle(5), Nozzle(6)}));
    expectRefusal("DE1", "Turned back", "Nozzle::Nozzle()", [&] {
        type.read(arrayOf(structOf({{"turns", -1}})), &field);
    });

    Value value(false);
    type.write(&field, value);
    EXPECT_EQ(dumped(value), R"([{"turns": 5}, {"turns": 6}])");
    const QList<Nozzle> same = {Nozzle(5), Nozzle(6)};
    EXPECT_TRUE(type.equal(&field, &same));
    type.reset(&field);
    EXPECT_EQ(field, QList<Nozzle>());
    type.write(&field, value);
    EXPECT_EQ(dumped(value), "[]");
    EXPECT_STREQ(type.name, "array of structs");
}

TEST(FieldType, ofObjectsKnowsTheirOwnRefusals)
{
    constexpr quv::FieldType type = quv::objectListType<Nozzle>();
    ASSERT_EQ(type.ownRefusalCount, 2u);
    EXPECT_STREQ(type.ownRefusals[0].first, "another type");
    EXPECT_STREQ(type.ownRefusals[0].second.code, "DE0");
    EXPECT_STREQ(type.ownRefusals[1].first, "turned back");
    EXPECT_STREQ(type.ownRefusals[1].second.code, "DE1");
    EXPECT_EQ(doubles().ownRefusalCount, 0u);
}

TEST(FieldType, ofObjectsIsToldWithTheirOwnRefusals)
{
    struct Rail
    {
        QList<Nozzle> nozzles;
    };
    const quv::Record<Rail> record({quv::Member<Rail>("nozzles", &Rail::nozzles, {"DE2", "No nozzles"})
                                        .unmadeElement({"DE3", "Nozzle unmade"})
                                        .alsoInList("the list is odd", {"DE4", "Odd"}),
                                    quv::Member<Rail>("spares", &Rail::nozzles, {"DE2", "No nozzles"})});
    const QList<quv::MemberFacts> members = quv::factsOf(record.rows());
    Lines nozzles;
    appendRefusals(nozzles, members.at(0).refusals);
    EXPECT_EQ(nozzles,
              (Lines{"  XML-RPC, missing or another type: DE2", "  XML-RPC, an element of another type: DE0",
                     "  XML-RPC, an element turned back: DE1",
                     "  XML-RPC, an element that cannot be made: DE3", "  list, the list is odd: DE4"}));
    Lines spares;
    appendRefusals(spares, members.at(1).refusals);
    EXPECT_EQ(spares,
              (Lines{"  XML-RPC, missing or another type: DE2", "  XML-RPC, an element of another type: DE0",
                     "  XML-RPC, an element turned back: DE1"}));
}

TEST(FieldType, ofAnObjectIsToldWithItsOwnRefusals)
{
    struct Rail
    {
        Nozzle nozzle;
        Nozzle spare;
    };
    const quv::Record<Rail> record(
        {quv::Member<Rail>("nozzle", &Rail::nozzle, {"DE2", "No nozzle"}),
         quv::Member<Rail>("spare", &Rail::spare, {"DE3", "No spare"}).unmade({"DE4", "Spare unmade"})});
    const QList<quv::MemberFacts> members = quv::factsOf(record.rows());
    Lines nozzle;
    appendRefusals(nozzle, members.at(0).refusals);
    EXPECT_EQ(nozzle, (Lines{"  XML-RPC, missing or another type: DE2", "  XML-RPC, another type: DE0",
                             "  XML-RPC, turned back: DE1"}));
    Lines spare;
    appendRefusals(spare, members.at(1).refusals);
    EXPECT_EQ(spare, (Lines{"  XML-RPC, missing: DE3", "  XML-RPC, cannot be made: DE4",
                            "  XML-RPC, another type: DE0", "  XML-RPC, turned back: DE1"}));
}

TEST(FieldType, ofObjectsInAListIsAListOfThem)
{
    constexpr quv::FieldType type = quv::objectListType<Nozzle>();
    QList<Nozzle> field;
    EXPECT_TRUE(type.readVariant(QVariant::fromValue(QList<Nozzle>{Nozzle(5)}), &field));
    EXPECT_EQ(field, QList<Nozzle>{Nozzle(5)});
    EXPECT_TRUE(type.readVariant(QVariantList{QVariant::fromValue(Nozzle(1)), QVariant::fromValue(Nozzle(2))},
                                 &field));
    EXPECT_EQ(field, (QList<Nozzle>{Nozzle(1), Nozzle(2)}));
    for (const QVariant &bad :
         {QVariant(), QVariant(6), QVariant::fromValue(Nozzle(5)), QVariant(QVariantList{6})})
        EXPECT_FALSE(type.readVariant(bad, &field));
    EXPECT_EQ(field, (QList<Nozzle>{Nozzle(1), Nozzle(2)}));
}

TEST(FieldType, ofAnObjectInAListIsAlsoAMap)
{
    QMetaType::registerConverter<QVariantMap, Nozzle>(
        [](const QVariantMap &members) { return Nozzle(EncodeXmlRpcVariant(members)); });
    constexpr quv::FieldType type = quv::objectType<Nozzle>();
    Nozzle field;
    EXPECT_TRUE(type.readVariant(QVariant::fromValue(Nozzle(5)), &field));
    EXPECT_EQ(field.turns, 5);
    EXPECT_TRUE(type.readVariant(QVariantMap{{"turns", 6}}, &field));
    EXPECT_EQ(field.turns, 6);
    for (const QVariant &bad : {QVariant(), QVariant(6), QVariant(QVariantMap{{"turn", 1}}),
                                QVariant(QVariantMap{{"turns", "1"}}), QVariant(QVariantMap{{"turns", 100}})})
        EXPECT_FALSE(type.readVariant(bad, &field));
    EXPECT_EQ(field.turns, 6);
    expectRefusal("DE1", "Turned back", "Nozzle::Nozzle()", [&] {
        type.readVariant(QVariantMap{{"turns", -1}}, &field);
    });
}

} // namespace
