// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/addeventcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"

namespace {

using namespace testing_base;

using Events = QList<EventStatData>;
using Refills = QList<RefillStatData>;

constexpr char ofValue[] = "AddEventCmd::AddEventCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "AddEventCmd::AddEventCmd(QList<QVariant>)";
constexpr char badValue[] = "AddEventCmd: error in xmlrpc decoding";
constexpr char badVariant[] = "AddEventCmd decoding failed: invalid QVariant value";

const QDateTime morning(QDate(2026, 3, 2), QTime(9, 15, 30, 250), Qt::UTC);
const QDateTime evening(QDate(2026, 3, 2), QTime(18, 0), Qt::UTC);

const Events twoEvents = {EventStatData(morning, 7, 3, 2.5), EventStatData(evening, 12, 0, 0)};
const Refills oneRefill = {RefillStatData(evening, 4, QString::fromUtf8("R\xC3\xB6t"), 120.5, 2000)};

QVariant variantOf(const Events &events)
{
    return QVariant::fromValue(events);
}

QVariant variantOf(const Refills &refills)
{
    return QVariant::fromValue(refills);
}

Value eventStruct()
{
    return structOf(
        {{"timestamp", "2026-03-02T09:15:30.250Z"}, {"event_code", 7}, {"position_id", 3}, {"value", 2.5}});
}

QVariantMap eventMap()
{
    return {
        {"timestamp", "2026-03-02T18:00:00.000Z"}, {"event_code", 12}, {"position_id", 0}, {"value", 0.0}};
}

Value refillStruct()
{
    return structOf({{"timestamp", "2026-03-02T18:00:00.000Z"},
                     {"canister_id", 4},
                     {"colorant_code", "R\xC3\xB6t"},
                     {"previous_quantity", 120.5},
                     {"current_quantity", 2000.0}});
}

Value requestOf(const Value &type, const Value &events)
{
    return arrayOf(structOf({{"event_type", type}, {"stat_events", events}}));
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<AddEventCmd>());
    facts.catalogue = {"ADD_EVENT", 133, "", 1};
    facts.protoType = 2;
    facts.readsByHand = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.getters = {getter(&AddEventCmd::eventType), getter(&AddEventCmd::events),
                     getter(&AddEventCmd::refills)};
    facts.words = silence();
    facts.defaults = Request()
                         .parameters({0, variantOf(Events())})
                         .written(R"([{"event_type": 0, "stat_events": []}])")
                         .holds({0, variantOf(Events()), variantOf(Refills())});
    facts.requests = {
        Request({0, variantOf(twoEvents)})
            .typed<AddEventCmd>(twoEvents)
            .value(requestOf(0, arrayOf(eventStruct(), structOf({{"timestamp", "2026-03-02T18:00:00.000Z"},
                                                                 {"event_code", 12},
                                                                 {"position_id", 0},
                                                                 {"value", 0.0}}))))
            .written(R"([{"event_type": 0, "stat_events": [)"
                     R"({"event_code": 7, "position_id": 3, "timestamp": "2026-03-02T09:15:30.250Z", )"
                     R"("value": 2.50000}, {"event_code": 12, "position_id": 0, )"
                     R"("timestamp": "2026-03-02T18:00:00.000Z", "value": 0.00000}]}])")
            .holds({0, variantOf(twoEvents), variantOf(Refills())}),
        Request({1, variantOf(oneRefill)})
            .typed<AddEventCmd>(oneRefill)
            .value(requestOf(1, arrayOf(refillStruct())))
            .written("[{\"event_type\": 1, \"stat_events\": [{\"canister_id\": 4, \"colorant_code\": "
                     "\"R\xC3\xB6t\", \"current_quantity\": 2000.00, \"previous_quantity\": 120.500, "
                     "\"timestamp\": \"2026-03-02T18:00:00.000Z\"}]}]")
            .holds({1, variantOf(Events()), variantOf(oneRefill)}),
        Request({1, variantOf(Refills())})
            .typed<AddEventCmd>(Refills())
            .value(requestOf(1, arrayOf()))
            .written(R"([{"event_type": 1, "stat_events": []}])")
            .holds({1, variantOf(Events()), variantOf(Refills())}),
    };
    facts.answers = confAnswers();
    return facts;
}

TEST(AddEventCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(AddEventCmd, namesItsMembersAndTypes)
{
    EXPECT_STREQ(AddEventCmd::eventType_TAG, "event_type");
    EXPECT_STREQ(AddEventCmd::statEvents_TAG, "stat_events");
    EXPECT_EQ(AddEventCmd::Events, 0);
    EXPECT_EQ(AddEventCmd::Refills, 1);
    static_assert(!std::is_constructible_v<AddEventCmd, int>);
}

TEST(AddEventCmd, needsAStructOfTypeAndRecords)
{
    const Value two[] = {arrayOf(eventStruct(), 5), arrayOf(eventStruct(), refillStruct())};
    const Value cut = structOf({{"event_code", 7}});
    const struct
    {
        const char *code;
        Value request;
    } rows[] = {
        {"DE02478", arrayOf(5)},
        {"DE02478", arrayOf("text")},
        {"DE02478", arrayOf(arrayOf(0, arrayOf()))},
        {"DE02474", arrayOf(structOf({}))},
        {"DE02474", arrayOf(structOf({{"stat_events", arrayOf()}}))},
        {"DE02474", requestOf("0", arrayOf())},
        {"DE02474", requestOf(0.0, arrayOf())},
        {"DE02474", requestOf(false, 5)},
        {"DE02474", requestOf(2, arrayOf())},
        {"DE02474", requestOf(-1, arrayOf())},
        {"DE02474", requestOf(2147483647, arrayOf())},
        {"DE02475", arrayOf(structOf({{"event_type", 0}}))},
        {"DE02475", requestOf(0, eventStruct())},
        {"DE02475", requestOf(1, 5)},
        {"DE02475", requestOf(1, "text")},
        {"DE02476", requestOf(0, two[0])},
        {"DE02476", requestOf(0, two[1])},
        {"DE02476", requestOf(0, arrayOf(cut))},
        {"DE02476", requestOf(1, arrayOf(eventStruct()))},
        {"DE02476", requestOf(1, arrayOf(arrayOf()))},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(dumped(row.request));
        expectRefusal(row.code, badValue, ofValue, [&] { const AddEventCmd command(row.request); });
    }
    EXPECT_EQ(AddEventCmd(requestOf(0, arrayOf(eventStruct()))).events(), twoEvents.mid(0, 1));
}

TEST(AddEventCmd, needsATypeAndRecordsInAList)
{
    const QVariant event = QVariant::fromValue(twoEvents[0]);
    QVariantMap cut = eventMap();
    cut.remove("value");
    const struct
    {
        const char *code;
        List list;
    } rows[] = {
        {"DE02479", {"0", variantOf(twoEvents)}},
        {"DE02479", {0.0, variantOf(twoEvents)}},
        {"DE02479", {true, variantOf(oneRefill)}},
        {"DE02479", {QVariant(), variantOf(twoEvents)}},
        {"DE02479", {variantOf(twoEvents)}},
        {"DE02479", {2, variantOf(twoEvents)}},
        {"DE02479", {-1, variantOf(twoEvents)}},
        {"DE02479", {4294967296LL, variantOf(twoEvents)}},
        {"DE02477", {0}},
        {"DE02477", {1}},
        {"DE02477", {0, QVariant()}},
        {"DE02477", {0, 5}},
        {"DE02477", {0, event}},
        {"DE02477", {0, eventMap()}},
        {"DE02477", {0, variantOf(oneRefill)}},
        {"DE02477", {1, variantOf(twoEvents)}},
        {"DE02477", {0, List{event, 5}}},
        {"DE02477", {1, List{event}}},
        {"DE02477", {0, List{event, cut}}},
        {"DE02477", {0, QStringList{"text"}}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(shown(row.list));
        expectRefusal(row.code, badVariant, ofList, [&] { const AddEventCmd command(row.list); });
    }
}

TEST(AddEventCmd, takesRecordsAsVariantsToo)
{
    EXPECT_EQ(AddEventCmd(List{0, List{QVariant::fromValue(twoEvents[0]), eventMap()}}).events(), twoEvents);
    EXPECT_EQ(AddEventCmd(List{1LL, List{QVariant::fromValue(oneRefill[0])}}).refills(), oneRefill);
    EXPECT_EQ(AddEventCmd(List{0, List()}).events(), Events());
    EXPECT_EQ(AddEventCmd(List{0, variantOf(twoEvents), "rest"}).events(), twoEvents);
}

TEST(AddEventCmd, tellsWhenThereIsNoMemoryForTheRecords)
{
    const Value request = requestOf(1, arrayOf(refillStruct()));
    expectRefusal("DE02476", badValue, ofValue,
                  [&] { outOfMemoryOnce([&] { const AddEventCmd command(request); }); });
}

TEST(AddEventCmd, isTold)
{
    EXPECT_EQ(
        argumentsOf("ADD_EVENT"),
        (Lines{"events (struct): \"event_type\": 0 events, 1 refills; and \"stat_events\": an array of "
               "structs, of "
               "each event \"timestamp\", \"event_code\", \"position_id\" and \"value\", of each refill "
               "\"timestamp\", \"canister_id\", \"colorant_code\", \"previous_quantity\" and "
               "\"current_quantity\"; in a list two arguments",
               "  XML-RPC, another type: DE02478", "  XML-RPC, without a good event_type: DE02474",
               "  list, without a good event_type: DE02479", "  XML-RPC, stat_events is no array: DE02475",
               "  list, stat_events is no array: DE02477", "  XML-RPC, with a bad record: DE02476",
               "  list, with a bad record: DE02477"}));
}

} // namespace
