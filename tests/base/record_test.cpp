// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/record_p.h"

#include "base/basetesting.h"

using namespace testing_base;

namespace {

struct Valve
{
    bool open = false;
    int position = -1;
    long long cycles = 7;
    double flow = 0.5;
    QString label = "none";
    QStringList notes = {"old"};
    QList<int> steps = {9};
    bool hidden = false;
    bool ignored = false;
};

struct LockedValve : Valve
{
    bool locked = false;
};

constexpr char signature[] = "Valve::Valve(const XmlRpc::XmlRpcValue&)";
constexpr char expected[] = "Valve: expected %1 value";

using Row = quv::Member<Valve>;

const quv::Record<Valve> &valveRecord()
{
    // not sorted: refusals come in this order, whatever the struct's
    static const quv::Record<Valve> record({
        {"position", &Valve::position, {"DE1", expected}},
        {"open", &Valve::open, {"DE2", expected}},
        {"cycles", &Valve::cycles},
        {"flow", &Valve::flow, {"DE3", "The flow is missing"}},
        {"label", &Valve::label},
        {"notes", &Valve::notes},
        {"steps", &Valve::steps},
        Row("hidden", &Valve::hidden).uses(quv::Read | quv::Compare),
        Row("ignored", &Valve::ignored).uses(quv::Read | quv::Write),
        Row::alwaysFalse("legacy"),
    });
    return record;
}

Valve decoded(const Value &value)
{
    Valve valve;
    valveRecord().decode(value, valve, signature);
    return valve;
}

Valve fullValve()
{
    Valve valve;
    valve.open = true;
    valve.position = 3;
    valve.cycles = 12;
    valve.flow = 2.25;
    valve.label = "north";
    valve.notes = QStringList{"a", "b"};
    valve.steps = {1, 2};
    valve.hidden = true;
    valve.ignored = true;
    return valve;
}

constexpr char fullText[] =
    R"({"cycles": 12, "flow": 2.25000, "ignored": true, "label": "north", "legacy": false, )"
    R"("notes": ["a", "b"], "open": true, "position": 3, "steps": [1, 2]})";

} // namespace

TEST(Record, readsMembersOfAllTypes)
{
    const Valve valve = decoded(structOf({{"cycles", 12},
                                          {"flow", 2.25},
                                          {"hidden", true},
                                          {"ignored", true},
                                          {"label", "north"},
                                          {"notes", arrayOf("a", "b")},
                                          {"open", true},
                                          {"position", 3},
                                          {"steps", arrayOf(1, 2)}}));
    EXPECT_TRUE(valve.open);
    EXPECT_EQ(valve.position, 3);
    EXPECT_EQ(valve.cycles, 12);
    EXPECT_EQ(valve.flow, 2.25);
    EXPECT_EQ(valve.label, "north");
    EXPECT_EQ(valve.notes, (QStringList{"a", "b"}));
    EXPECT_EQ(valve.steps, (QList<int>{1, 2}));
    EXPECT_TRUE(valve.hidden);
    EXPECT_TRUE(valve.ignored);
}

TEST(Record, readsAListInTheOrderOfItsTable)
{
    const quv::Record<Valve> record({
        {"position", &Valve::position, {"DE1", expected}, {"DE7", "No position"}},
        Row("cycles", &Valve::cycles).uses(quv::Write | quv::Compare), // has no place in a list
        Row::alwaysFalse("legacy"),                                    // nor has this
        {"label", &Valve::label},
        {"open", &Valve::open, {"DE2", expected}, {"DE8", "No %1"}},
    });
    const auto valveOf = [&record](const List &list) {
        Valve valve;
        record.decode(list, valve, signature);
        return valve;
    };
    const Valve valve = valveOf({3, "north", true});
    EXPECT_EQ(valve.position, 3);
    EXPECT_EQ(valve.cycles, 7);
    EXPECT_EQ(valve.label, "north");
    EXPECT_TRUE(valve.open);
    EXPECT_EQ(valveOf({3, 5, true, "more"}).label, "none"); // an optional one of another type

    expectRefusal("DE7", "No position", signature, [&] { valveOf({}); });
    expectRefusal("DE7", "No position", signature, [&] { valveOf({"3", 5, 5}); });
    expectRefusal("DE8", "No open", signature, [&] { valveOf({3, "north"}); });
    expectRefusal("DE8", "No open", signature, [&] { valveOf({3, "north", 1}); });
}

TEST(Record, leavesTheFieldsOfOptionalMembersAlone)
{
    const Value missing = structOf({{"open", true}, {"position", 3}, {"flow", 2}});
    const Value ofOtherType = structOf({{"open", true},
                                        {"position", 3},
                                        {"flow", 2},
                                        {"cycles", "12"},
                                        {"label", 5},
                                        {"notes", arrayOf(1)},
                                        {"steps", arrayOf("1")},
                                        {"hidden", 1}});
    for (const Value &value : {missing, ofOtherType}) {
        const Valve valve = decoded(value);
        EXPECT_EQ(valve.flow, 2.0) << "a whole number is a number";
        EXPECT_EQ(valve.cycles, 7);
        EXPECT_EQ(valve.label, "none");
        EXPECT_EQ(valve.notes, QStringList({"old"}));
        EXPECT_EQ(valve.steps, QList<int>({9}));
        EXPECT_FALSE(valve.hidden);
    }
}

TEST(Record, readsNoOtherMembers)
{
    const Value value = structOf({{"aaa", 1},
                                  {"flow", 2.5},
                                  {"legacy", true},
                                  {"mmm", 1},
                                  {"open", true},
                                  {"position", 3},
                                  {"zzz", 1}});
    const std::string before = dumped(value);
    EXPECT_EQ(decoded(value).flow, 2.5);
    EXPECT_EQ(dumped(value), before);
}

TEST(Record, refusesTheFirstInTheTablesOrder)
{
    const auto refused = [](const char *code, const char *text, const Value &value) {
        expectRefusal(code, text, signature, [&] { decoded(value); });
    };
    refused("DE1", "Valve: expected position value", structOf({}));
    refused("DE1", "Valve: expected position value", Value());
    refused("DE1", "Valve: expected position value", Value(5));
    refused("DE1", "Valve: expected position value", arrayOf(1));
    refused("DE1", "Valve: expected position value", structOf({{"open", true}, {"flow", 2.5}}));
    refused("DE1", "Valve: expected position value",
            structOf({{"open", 1}, {"position", "3"}, {"flow", ""}}));
    refused("DE2", "Valve: expected open value", structOf({{"position", 3}}));
    refused("DE2", "Valve: expected open value", structOf({{"position", 3}, {"open", 1}, {"flow", 2.5}}));
    refused("DE3", "The flow is missing", structOf({{"position", 3}, {"open", false}}));
}

TEST(Record, writesAllButWhatIsNotWritten)
{
    EXPECT_EQ(dumped(valveRecord().encode(fullValve())), fullText);
    EXPECT_EQ(dumped(valveRecord().encode(Valve())),
              R"({"cycles": 7, "flow": 0.500000, "ignored": false, "label": "none", "legacy": false, )"
              R"("notes": ["old"], "open": false, "position": -1, "steps": [9]})");
    EXPECT_EQ(dumped(valveRecord().encode(fullValve())), fullText) << "nothing of the last one is left";
}

TEST(Record, writesIntoWhatIsThere)
{
    Value value = structOf({{"more", 1}, {"open", "of another type"}, {"position", true}});
    valveRecord().encodeInto(fullValve(), value);
    EXPECT_EQ(dumped(value),
              R"({"cycles": 12, "flow": 2.25000, "ignored": true, "label": "north", "legacy": false, )"
              R"("more": 1, "notes": ["a", "b"], "open": true, "position": 3, "steps": [1, 2]})");
    Value none;
    valveRecord().encodeInto(fullValve(), none);
    EXPECT_EQ(dumped(none), fullText);
    Value number(5);
    valveRecord().encodeInto(fullValve(), number);
    EXPECT_EQ(dumped(number), fullText);
}

TEST(Record, readsWhatItWrote)
{
    const Valve full = fullValve();
    Valve again = decoded(valveRecord().encode(full));
    EXPECT_FALSE(again.hidden) << "never written";
    again.hidden = true;
    EXPECT_TRUE(valveRecord().equal(full, again));
}

TEST(Record, comparesEveryFieldThatCounts)
{
    const Valve valve = fullValve();
    EXPECT_TRUE(valveRecord().equal(valve, fullValve()));
    void (*const changes[])(Valve &) = {
        [](Valve &v) { v.open = false; },    [](Valve &v) { v.position = 4; },
        [](Valve &v) { v.cycles = 13; },     [](Valve &v) { v.flow = 2.5; },
        [](Valve &v) { v.label = "south"; }, [](Valve &v) { v.notes.removeLast(); },
        [](Valve &v) { v.steps.append(3); }, [](Valve &v) { v.hidden = false; },
    };
    int row = 0;
    for (const auto change : changes) {
        SCOPED_TRACE(++row);
        Valve other = fullValve();
        change(other);
        EXPECT_FALSE(valveRecord().equal(valve, other));
        EXPECT_FALSE(valveRecord().equal(other, valve));
    }
    Valve other = fullValve();
    other.ignored = false;
    EXPECT_TRUE(valveRecord().equal(valve, other));
}

TEST(Record, emptiesWhatIsReadWhenReset)
{
    Valve valve = fullValve();
    valveRecord().reset(valve);
    EXPECT_FALSE(valve.open);
    EXPECT_EQ(valve.position, 0);
    EXPECT_EQ(valve.cycles, 0);
    EXPECT_EQ(valve.flow, 0.0);
    EXPECT_TRUE(valve.label.isEmpty());
    EXPECT_TRUE(valve.notes.isEmpty());
    EXPECT_TRUE(valve.steps.isEmpty());
    EXPECT_FALSE(valve.hidden);
    EXPECT_FALSE(valve.ignored);
}

TEST(Record, leavesWhatIsOnlyWrittenWhenReset)
{
    const quv::Record<Valve> record({Row("open", &Valve::open, {"DE1", expected}).uses(quv::Write)});
    Valve valve = fullValve();
    record.reset(valve);
    EXPECT_TRUE(valve.open);
    record.decode(structOf({{"open", false}}), valve, signature);
    EXPECT_TRUE(valve.open) << "nor is it read";
    EXPECT_NO_THROW(record.decode(structOf({}), valve, signature)) << "nor asked for";
}

TEST(Record, beginsWithTheBaseOfADerivedClass)
{
    const quv::Record<LockedValve> record(valveRecord(),
                                          {{"locked", &LockedValve::locked, {"DE9", "Locked: %1 missing"}}});
    EXPECT_EQ(record.rows().size(), 11U);
    LockedValve valve;
    record.decode(structOf({{"open", true}, {"position", 3}, {"flow", 2}, {"locked", true}}), valve,
                  signature);
    EXPECT_TRUE(valve.open);
    EXPECT_TRUE(valve.locked);
    EXPECT_EQ(dumped(record.encode(valve)["locked"]), "true");
    EXPECT_EQ(dumped(record.encode(valve)["legacy"]), "false");
    expectRefusal("DE1", "Valve: expected position value", signature,
                  [&] { record.decode(structOf({}), valve, signature); });
    expectRefusal("DE9", "Locked: locked missing", signature, [&] {
        record.decode(structOf({{"open", true}, {"position", 3}, {"flow", 2}}), valve, signature);
    });
    LockedValve other = valve;
    EXPECT_TRUE(record.equal(valve, other));
    other.locked = false;
    EXPECT_FALSE(record.equal(valve, other));
}

TEST(Record, writesSomeMembersOnlyWhenFilled)
{
    const quv::Record<Valve> record({
        {"open", &Valve::open, {"DE2", expected}},
        Row::writtenWhenFilled("steps", &Valve::steps, {"DE7", "Steps: another type"}),
        Row::writtenWhenFilled("label", &Valve::label),
    });
    Valve valve = fullValve();
    EXPECT_EQ(dumped(record.encode(valve)), R"({"label": "north", "open": true, "steps": [1, 2]})");
    valve.steps.clear();
    EXPECT_EQ(dumped(record.encode(valve)), R"({"label": "north", "open": true})");
    valve.label.clear();
    Value value = structOf({{"other", 1}});
    record.encodeInto(valve, value);
    EXPECT_EQ(dumped(value), R"({"open": true, "other": 1})");
    valve.label = "south";
    record.encodeInto(valve, value);
    EXPECT_EQ(dumped(value), R"({"label": "south", "open": true, "other": 1})");

    record.decode(structOf({{"open", false}}), valve, signature);
    EXPECT_EQ(valve.label, "south");
    expectRefusal("DE7", "Steps: another type", signature, [&] {
        record.decode(structOf({{"open", false}, {"steps", 5}}), valve, signature);
    });
}

TEST(Record, isAnEmptyStructWithoutMembers)
{
    const quv::Record<Valve> record{std::vector<Row>()};
    EXPECT_EQ(dumped(record.encode(fullValve())), "{}");
    Valve valve = fullValve();
    EXPECT_NO_THROW(record.decode(Value(), valve, signature));
    EXPECT_TRUE(record.equal(valve, Valve()));
}

TEST(Record, takesTheLaterOfTwoRowsWithOneKey)
{
    const quv::Record<Valve> record({{"state", &Valve::hidden}, {"state", &Valve::open}});
    Valve valve;
    record.decode(structOf({{"state", true}}), valve, signature);
    EXPECT_TRUE(valve.open);
    EXPECT_FALSE(valve.hidden);
    EXPECT_EQ(dumped(record.encode(valve)), R"({"state": true})");
}
