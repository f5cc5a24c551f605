// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/objectlist_p.h"

#include "base/basetesting.h"

#include <QuvFramework/fw_metatype.h>

#include <stdexcept>

namespace {

using namespace testing_base;

/** A thing with a size, which may be one that cannot be read. */
struct Thing
{
    Thing() = default;
    explicit Thing(int number) : size(number) {}
    explicit Thing(const Value &value)
    {
        if (!DecodeXmlRpcValue(value, QStringLiteral("size"), size))
            throw FW_Exception("DE1", "No size", "Thing::Thing()");
        if (size < 0)
            throw std::invalid_argument("below nothing");
    }

    Value toXmlRpcValue() const { return structOf({{"size", size}}); }
    bool operator==(const Thing &other) const { return size == other.size; }

    int size = 0;
};

} // namespace

Q_DECLARE_METATYPE(Thing)

template <>
inline constexpr const char *quv::markOf<Thing> = "size";

namespace {

using Things = QList<Thing>;

const bool isRegistered = RegisterTravellingList<Thing>("Thing", "QList<Thing>");

constexpr quv::Refusal expected = {"DE2", "Things expected"};
constexpr quv::Refusal incorrect = {"DE3", "Incorrect things"};

Things decoded(const QVariant &variant)
{
    return quv::decodedList<Thing>(variant, expected, incorrect, "reader()");
}

TEST(ObjectList, isAListOfObjectsOrOfVariantsThatHoldThem)
{
    EXPECT_TRUE(isRegistered);
    EXPECT_EQ(decoded(QVariant::fromValue(Things{Thing(3), Thing(4)})), (Things{Thing(3), Thing(4)}));
    EXPECT_EQ(decoded(QVariant(List{QVariant::fromValue(Thing(3)), QVariantMap{{"size", 4}}})),
              (Things{Thing(3), Thing(4)}));
    EXPECT_EQ(decoded(QVariant(List())), Things());
    EXPECT_EQ(QVariant::fromValue(Things{Thing(3)}), QVariant::fromValue(Things{Thing(3)}));
    EXPECT_NE(QVariant::fromValue(Things{Thing(3)}), QVariant::fromValue(Things{Thing(4)}));
}

TEST(ObjectList, isNothingElse)
{
    for (const QVariant &other : {QVariant(), QVariant(3), QVariant("text"), QVariant::fromValue(Thing(3)),
                                  QVariant(QVariantMap{{"size", 3}}), QVariant(List{3}),
                                  QVariant(List{QVariant::fromValue(Thing(3)), QVariantMap{{"width", 4}}})}) {
        SCOPED_TRACE(shown({other}));
        EXPECT_FALSE(quv::holdsList<Thing>(other));
        expectRefusal("DE2", "Things expected", "reader()", [&] { decoded(other); });
    }
}

TEST(ObjectList, passesOnWhatAnObjectSaysOfItself)
{
    expectRefusal("DE1", "No size", "Thing::Thing()", [] {
        decoded(QVariant(List{QVariantMap{{"size", "three"}}}));
    });
    expectRefusal("DE3", "Incorrect things", "reader()", [] {
        decoded(QVariant(List{QVariantMap{{"size", -1}}}));
    });
}

} // namespace
