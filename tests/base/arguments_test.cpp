// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/arguments_p.h"

#include "base/argumentteller_p.h"
#include "base/basetesting.h"

#include <climits>
#include <vector>

using namespace testing_base;

namespace {

/** Two arguments that must be given and five that may be. */
struct Wash
{
    int circuit = -1;
    QString name = "none";
    bool warm = false;
    double share = 1.5;
    long long stamp = 77;
    QStringList notes = {"old"};
    QList<int> steps = {9};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required("circuit", self.circuit, {"V1", "L1", "Circuit missing"},
                         {"V2", "L2", "Circuit: int expected"});
        archive.required("name", self.name, {"V3", "L3", "Name missing"},
                         {"V4", "L4", "Name: text expected"});
        archive.optional("warm", self.warm, {"V5", "L5", "Warm: bool expected"});
        archive.optional("share", self.share, {"V6", "L6", "Share: number expected"});
        archive.optional("stamp", self.stamp, {"V7", "L7", "Stamp: int expected"});
        archive.optional("notes", self.notes, {"V8", "L8", "Notes: texts expected"});
        archive.optional("steps", self.steps, {"V9", "L9", "Steps: ints expected"});
    }
};

constexpr char signature[] = "Wash::Wash(const Arguments&)";

template <class Arguments = Wash>
Arguments readValue(const Value &value)
{
    Arguments arguments;
    quv::ValueReader reader(value, signature);
    Arguments::arguments(arguments, reader);
    return arguments;
}

template <class Arguments = Wash>
Arguments readList(const List &list)
{
    Arguments arguments;
    quv::ListReader reader(list, signature);
    Arguments::arguments(arguments, reader);
    return arguments;
}

Value written(const Wash &wash)
{
    return quv::writtenArguments([&](auto &archive) { Wash::arguments(wash, archive); });
}

void expectValueRefused(const char *code, const char *text, const Value &value)
{
    expectRefusal(code, text, signature, [&] { readValue(value); });
}

void expectListRefused(const char *code, const char *text, const List &list)
{
    expectRefusal(code, text, signature, [&] { readList(list); });
}

void expectFull(const Wash &wash)
{
    EXPECT_EQ(wash.circuit, 5);
    EXPECT_EQ(wash.name, "north");
    EXPECT_TRUE(wash.warm);
    EXPECT_EQ(wash.share, 0.25);
    EXPECT_EQ(wash.stamp, 12);
    EXPECT_EQ(wash.notes, (QStringList{"a", "b"}));
    EXPECT_EQ(wash.steps, (QList<int>{1, 2}));
}

void expectDefaultsAfterName(const Wash &wash)
{
    EXPECT_EQ(wash.circuit, 5);
    EXPECT_EQ(wash.name, "north");
    EXPECT_FALSE(wash.warm);
    EXPECT_EQ(wash.share, 1.5);
    EXPECT_EQ(wash.stamp, 77);
    EXPECT_EQ(wash.notes, QStringList({"old"}));
    EXPECT_EQ(wash.steps, QList<int>({9}));
}

} // namespace

TEST(Arguments, areReadByPosition)
{
    expectFull(readValue(arrayOf(5, "north", true, 0.25, 12, arrayOf("a", "b"), arrayOf(1, 2))));
    expectFull(readList(
        {5, "north", true, 0.25, 12LL, QStringList{"a", "b"}, QVariant::fromValue(QList<int>{1, 2})}));
    expectFull(readList({5, "north", true, 0.25, 12, List{"a", "b"}, QVariant(List{1, 2})}));
}

TEST(Arguments, leaveTheirFieldsAloneWhenTheyAreNotGiven)
{
    expectDefaultsAfterName(readValue(arrayOf(5, "north")));
    expectDefaultsAfterName(readList({5, "north"}));
}

TEST(Arguments, areNotReadBeyondTheLast)
{
    EXPECT_EQ(readValue(arrayOf(5, "north", true, 0.25, 12, arrayOf("a"), arrayOf(1), "more")).steps,
              QList<int>({1}));
}

TEST(Arguments, areRefusedInTheFormsOwnCodeWhenTheyAreMissing)
{
    expectValueRefused("V1", "Circuit missing", arrayOf());
    expectValueRefused("V1", "Circuit missing", Value());
    expectValueRefused("V1", "Circuit missing", Value(5));
    expectValueRefused("V1", "Circuit missing", structOf({{"circuit", 5}}));
    expectValueRefused("V3", "Name missing", arrayOf(5));
    expectListRefused("L1", "Circuit missing", {});
    expectListRefused("L3", "Name missing", {5});
}

TEST(Arguments, areRefusedInTheFormsOwnCodeWhenTheyAreOfAnotherType)
{
    expectValueRefused("V2", "Circuit: int expected", arrayOf("5", "north"));
    expectValueRefused("V2", "Circuit: int expected", arrayOf(true, "north"));
    expectValueRefused("V2", "Circuit: int expected", arrayOf(5.0, "north"));
    expectValueRefused("V4", "Name: text expected", arrayOf(5, 5));
    expectValueRefused("V5", "Warm: bool expected", arrayOf(5, "north", 1));
    expectValueRefused("V6", "Share: number expected", arrayOf(5, "north", true, "0.25"));
    expectValueRefused("V7", "Stamp: int expected", arrayOf(5, "north", true, 0.25, 12.0));
    expectValueRefused("V8", "Notes: texts expected", arrayOf(5, "north", true, 0.25, 12, arrayOf("a", 1)));
    expectValueRefused("V9", "Steps: ints expected",
                       arrayOf(5, "north", true, 0.25, 12, arrayOf(), arrayOf(1, "2")));

    expectListRefused("L2", "Circuit: int expected", {"5", "north"});
    expectListRefused("L2", "Circuit: int expected", {true, "north"});
    expectListRefused("L2", "Circuit: int expected", {5.0, "north"});
    expectListRefused("L2", "Circuit: int expected", {2147483648LL, "north"});
    expectListRefused("L2", "Circuit: int expected", {QVariant(), "north"});
    expectListRefused("L4", "Name: text expected", {5, 5});
    expectListRefused("L5", "Warm: bool expected", {5, "north", 1});
    expectListRefused("L6", "Share: number expected", {5, "north", true, "0.25"});
    expectListRefused("L7", "Stamp: int expected", {5, "north", true, 0.25, 12.0});
    expectListRefused("L8", "Notes: texts expected", {5, "north", true, 0.25, 12, QVariant(List{"a", 1})});
    expectListRefused("L9", "Steps: ints expected",
                      {5, "north", true, 0.25, 12, QStringList(), QVariant(List{1, "2"})});
}

TEST(Arguments, takeWholeNumbersForNumbers)
{
    EXPECT_EQ(readValue(arrayOf(5, "north", true, 3)).share, 3.0);
    EXPECT_EQ(readList({5, "north", true, 3}).share, 3.0);
    EXPECT_EQ(readList({5LL, "north"}).circuit, 5);
    EXPECT_EQ(readList({5, "north", true, 0.5, 5000000000LL}).stamp, 5000000000LL);
}

TEST(Arguments, areWrittenInOrder)
{
    Wash wash;
    wash.circuit = 5;
    wash.name = "north";
    wash.warm = true;
    wash.share = 0.25;
    wash.stamp = 12;
    wash.notes = QStringList{"a", "b"};
    wash.steps = {1, 2};

    const Value values = written(wash);
    EXPECT_EQ(dumped(values), R"([5, "north", true, 0.250000, 12, ["a", "b"], [1, 2]])");
    EXPECT_EQ(values.size(), 7);

    quv::ListWriter variants;
    Wash::arguments(wash, variants);
    const List list = variants.result();
    ASSERT_EQ(list.size(), 7);
    EXPECT_EQ(list.at(0), QVariant(5));
    EXPECT_EQ(list.at(1), QVariant("north"));
    EXPECT_EQ(list.at(2), QVariant(true));
    EXPECT_EQ(list.at(3), QVariant(0.25));
    EXPECT_EQ(list.at(4), QVariant(12LL));
    EXPECT_EQ(list.at(5), QVariant(QStringList{"a", "b"}));
    EXPECT_EQ(list.at(6).value<QList<int>>(), (QList<int>{1, 2}));
    EXPECT_EQ(list.at(0).userType(), QMetaType::Int);
    EXPECT_EQ(list.at(4).userType(), QMetaType::LongLong);

    expectFull(readValue(values));
    expectFull(readList(list));
}

namespace {

/** What a list must hold, and XML-RPC may leave out. */
struct Soak
{
    unsigned int pause = 500;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required("pause", self.pause, {{}, {"L1", "Pause missing"}},
                         {"V2", "L2", "Pause: int expected"});
    }
};

template <class Reader, class Source>
unsigned int pauseOf(const Source &source)
{
    Soak soak;
    Reader reader(source, signature);
    Soak::arguments(soak, reader);
    return soak.pause;
}

} // namespace

TEST(Arguments, areRequiredInAFormInWhichTheirAbsenceHasACode)
{
    EXPECT_EQ(pauseOf<quv::ValueReader>(arrayOf()), 500U);
    expectRefusal("L1", "Pause missing", signature, [] { pauseOf<quv::ListReader>(List()); });

    quv::CommandFacts facts;
    quv::ArgumentTeller teller(facts);
    const Soak fresh;
    Soak::arguments(fresh, teller);
    ASSERT_EQ(facts.arguments.size(), 1);
    EXPECT_TRUE(facts.arguments.at(0).optional);
    EXPECT_EQ(facts.arguments.at(0).type, "int");
    EXPECT_EQ(dumped(facts.arguments.at(0).defaultValue), "500");
    EXPECT_EQ(facts.arguments.at(0).refusals.at(0).form, "list");
    EXPECT_EQ(facts.arguments.at(0).refusals.at(0).code, "L1");
}

TEST(Arguments, withoutASignAreCutOnlyOverXmlRpc)
{
    EXPECT_EQ(pauseOf<quv::ValueReader>(arrayOf(0)), 0U);
    EXPECT_EQ(pauseOf<quv::ValueReader>(arrayOf(2147483647)), 2147483647U);
    expectRefusal("V2", "Pause: int expected", signature, [] { pauseOf<quv::ValueReader>(arrayOf(-1)); });
    EXPECT_EQ(pauseOf<quv::ListReader>(List{4294967295U}), 4294967295U);
    EXPECT_EQ(pauseOf<quv::ListReader>(List{4294967295LL}), 4294967295U);
    for (const QVariant &other : {QVariant(-1), QVariant(4294967296LL), QVariant(7.0), QVariant("7")})
        expectRefusal("L2", "Pause: int expected", signature, [&] { pauseOf<quv::ListReader>(List{other}); });

    Soak soak;
    soak.pause = 3000000000U;
    quv::ListWriter writer;
    Soak::arguments(soak, writer);
    EXPECT_EQ(writer.result().at(0), QVariant(3000000000U));
    EXPECT_EQ(dumped(quv::writtenArguments([&](auto &archive) { Soak::arguments(soak, archive); })),
              "[-1294967296]");
}

TEST(Arguments, areAnEmptyArrayWhenThereAreNone)
{
    EXPECT_EQ(dumped(quv::writtenArguments([](auto &) {})), "[]");
    EXPECT_EQ(quv::ListWriter().result(), List());
}

TEST(Arguments, areWrittenInUtf8)
{
    Wash wash;
    wash.name = QString::fromUtf8("Größe");
    EXPECT_EQ(dumped(written(wash)[1]), "\"Gr\xC3\xB6\xC3\x9F"
                                        "e\"");
}

namespace {

/** A check that only one of the forms makes. */
struct Turn
{
    int turns = 1;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional("turns", self.turns, {});
        archive.refuseUnless(self.turns < 9, {{"V1", "Too many turns"}, {}});
    }
};

} // namespace

TEST(Arguments, areNotCheckedInAFormThatHasNoCodeForIt)
{
    Turn turn;
    const Value value = arrayOf(9);
    quv::ValueReader valueReader(value, signature);
    expectRefusal("V1", "Too many turns", signature, [&] { Turn::arguments(turn, valueReader); });
    const List list = {10};
    quv::ListReader listReader(list, signature);
    Turn::arguments(turn, listReader);
    EXPECT_EQ(turn.turns, 10);
}

namespace {

/** What is sent between two arguments that are read. */
struct Rinse
{
    int circuit = -1;
    bool announced = true;
    int turns = 1;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.convertible("circuit", self.circuit, {{"V1", "Circuit: int expected"}, {}});
        archive.unread({"announced", "to people"}, self.announced);
        archive.optional("turns", self.turns, {});
    }
};

} // namespace

TEST(Arguments, ThatAreOnlySentAreNotRead)
{
    const Value value = arrayOf(5, false, 7);
    const List list = {5, false, 7};
    Rinse fromValue = readValue<Rinse>(value);
    const Rinse fromList = readList<Rinse>(list);
    for (const Rinse &rinse : {fromValue, fromList}) {
        EXPECT_EQ(rinse.circuit, 5);
        EXPECT_TRUE(rinse.announced);
        EXPECT_EQ(rinse.turns, 7);
    }
    fromValue.announced = false;
    EXPECT_EQ(dumped(quv::writtenArguments([&](auto &archive) { Rinse::arguments(fromValue, archive); })),
              "[5, false, 7]");
    quv::ListWriter listWriter;
    Rinse::arguments(fromValue, listWriter);
    EXPECT_EQ(listWriter.result(), (List{5, false, 7}));
}

TEST(Arguments, AreToldWithTheRefusalsThatHaveACode)
{
    quv::CommandFacts facts;
    quv::ArgumentTeller teller(facts);
    const Rinse fresh;
    Rinse::arguments(fresh, teller);
    ASSERT_EQ(facts.arguments.size(), 3);
    EXPECT_EQ(facts.arguments.at(0).name, "circuit");
    EXPECT_FALSE(facts.arguments.at(0).optional);
    ASSERT_EQ(facts.arguments.at(0).refusals.size(), 1);
    EXPECT_EQ(facts.arguments.at(0).refusals.at(0).form, "XML-RPC");
    EXPECT_EQ(facts.arguments.at(0).refusals.at(0).code, "V1");
    EXPECT_EQ(facts.arguments.at(1).name, "announced");
    EXPECT_EQ(facts.arguments.at(1).type, "bool");
    EXPECT_EQ(facts.arguments.at(1).meaning, "to people");
    EXPECT_TRUE(facts.arguments.at(1).optional);
    EXPECT_EQ(dumped(facts.arguments.at(1).defaultValue), "true");
    EXPECT_TRUE(facts.arguments.at(1).refusals.isEmpty());
    EXPECT_EQ(facts.arguments.at(2).name, "turns");
    EXPECT_TRUE(facts.arguments.at(2).refusals.isEmpty());
}

namespace {

/** A height that only kinds below 2 need. */
struct Lift
{
    int kind = -1;
    int height = 40;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required("kind", self.kind, {"V1", "L1", "Kind missing"}, {"V2", "L2", "Kind: int expected"});
        archive.requiredIf(self.kind < 2, {"height", "millimetres"}, self.height,
                           {"V3", "L3", "Height missing"}, {"V4", "L4", "Height: int expected"});
    }
};

} // namespace

TEST(Arguments, areRequiredOnlyWhenTheirConditionHolds)
{
    expectRefusal("V3", "Height missing", signature, [] { readValue<Lift>(arrayOf(1)); });
    expectRefusal("L3", "Height missing", signature, [] { readList<Lift>(List{1}); });
    for (const Lift &lift : {readValue<Lift>(arrayOf(2)), readList<Lift>(List{2})}) {
        EXPECT_EQ(lift.kind, 2);
        EXPECT_EQ(lift.height, 40);
    }
    for (int kind : {1, 2}) {
        EXPECT_EQ(readValue<Lift>(arrayOf(kind, 7)).height, 7);
        EXPECT_EQ(readList<Lift>(List{kind, 7}).height, 7);
        expectRefusal("V4", "Height: int expected", signature,
                      [kind] { readValue<Lift>(arrayOf(kind, "7")); });
        expectRefusal("L4", "Height: int expected", signature, [kind] { readList<Lift>(List{kind, "7"}); });
    }
    expectRefusal("V2", "Kind: int expected", signature, [] { readValue<Lift>(arrayOf("1")); });
    expectRefusal("L1", "Kind missing", signature, [] { readList<Lift>(List()); });

    for (const Lift &lift : {readValue<Lift>(arrayOf(1, 7)), readValue<Lift>(arrayOf(2, 7))}) {
        quv::ListWriter writer;
        Lift::arguments(lift, writer);
        EXPECT_EQ(writer.result(), (List{lift.kind, 7}));
    }
    const Lift lowest = readValue<Lift>(arrayOf(2));
    EXPECT_EQ(dumped(quv::writtenArguments([&](auto &archive) { Lift::arguments(lowest, archive); })),
              "[2, 40]");
}

TEST(Arguments, ThatMayBeRequiredAreToldAsOptionalWithBothRefusals)
{
    quv::CommandFacts facts;
    quv::ArgumentTeller teller(facts);
    const Lift fresh;
    Lift::arguments(fresh, teller);
    ASSERT_EQ(facts.arguments.size(), 2);
    const quv::ArgumentFacts &height = facts.arguments.at(1);
    EXPECT_EQ(height.name, "height");
    EXPECT_EQ(height.type, "int");
    EXPECT_EQ(height.meaning, "millimetres");
    EXPECT_TRUE(height.optional);
    EXPECT_EQ(dumped(height.defaultValue), "40");
    std::vector<QString> refusals;
    for (const quv::RefusalFacts &refusal : height.refusals)
        refusals.push_back(refusal.form + ", " + refusal.when + ": " + refusal.code);
    EXPECT_EQ(refusals, (std::vector<QString>{"XML-RPC, missing: V3", "list, missing: L3",
                                              "XML-RPC, another type: V4", "list, another type: L4"}));
}

TEST(Arguments, convertsWhatAnIntCanHold)
{
    struct
    {
        QVariant variant;
        int number;
    } const rows[] = {{7, 7},
                      {-7LL, -7},
                      {2.5, 3},
                      {"-12", -12},
                      {-2147483648.0, INT_MIN},
                      {"-2147483648", INT_MIN},
                      {2147483647.4, INT_MAX},
                      {2147483647.0, 2147483647},
                      {true, 1}};
    for (const auto &row : rows) {
        int number = 99;
        EXPECT_TRUE(quv::convertVariant(row.variant, number)) << row.number;
        EXPECT_EQ(number, row.number);
    }
}

TEST(Arguments, convertsNothingElseAndLeavesTheNumberAlone)
{
    for (const QVariant &variant :
         {QVariant(), QVariant("seven"), QVariant("2147483648"), QVariant("4294967297"),
          QVariant("99999999999999999999"), QVariant(2147483648LL), QVariant(2147483648.0),
          QVariant(-2147483649.0), QVariant(qQNaN()), QVariant(List{7})}) {
        int number = 99;
        EXPECT_FALSE(quv::convertVariant(variant, number)) << variant.typeName();
        EXPECT_EQ(number, 99);
    }
}
