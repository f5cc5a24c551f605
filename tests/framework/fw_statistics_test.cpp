// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_statistics.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QVariant>

#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace values;

constexpr int most = std::numeric_limits<int>::max();
const QDateTime morning(QDate(2026, 3, 2), QTime(9, 15, 30, 250), Qt::UTC);
constexpr char morningText[] = "2026-03-02T09:15:30.250Z";

/** What a record is as a struct, and what its members are when they differ. */
struct Form
{
    XmlRpcValue whole;
    std::vector<std::pair<std::string, XmlRpcValue>> others;
};

Form eventForm()
{
    return {
        structOf({{"timestamp", morningText}, {"event_code", most}, {"position_id", 3}, {"value", -2.5}}),
        {{"timestamp", "2026-03-02T09:15:30.251Z"}, {"event_code", 8}, {"position_id", 4}, {"value", 2.5}}};
}

Form refillForm()
{
    return {structOf({{"timestamp", morningText},
                      {"canister_id", 4},
                      {"colorant_code", "R\xC3\xB6t"},
                      {"previous_quantity", 120.5},
                      {"current_quantity", 2000.25}}),
            {{"timestamp", ""},
             {"canister_id", 5},
             {"colorant_code", ""},
             {"previous_quantity", 0.0},
             {"current_quantity", 0.0}}};
}

Form usageForm()
{
    return {structOf({{"colorant_code", "KX"},
                      {"from", morningText},
                      {"to", "2026-03-09T00:00:00.000Z"},
                      {"dispensed", 12.5},
                      {"purged", 1.5},
                      {"refilled", 2000.0},
                      {"dispensations", 17}}),
            {{"colorant_code", "B"},
             {"from", ""},
             {"to", morningText},
             {"dispensed", 0.0},
             {"purged", 0.0},
             {"refilled", 0.0},
             {"dispensations", 0}}};
}

Form errorForm()
{
    return {structOf({{"timestamp", morningText},
                      {"error_type", 2},
                      {"position_id", 3},
                      {"error_code", "17"},
                      {"description", "circuit stalled"}}),
            {{"timestamp", ""},
             {"error_type", 1},
             {"position_id", 0},
             {"error_code", "18"},
             {"description", ""}}};
}

Form waterForm()
{
    return {structOf({{"timestamp", morningText}, {"cleaning_cycles", -120}}),
            {{"timestamp", ""}, {"cleaning_cycles", 120}}};
}

XmlRpcValue without(const XmlRpcValue &value, const std::string &key)
{
    XmlRpcValue cut = structOf({});
    for (const auto &[name, member] : value) {
        if (name != key)
            cut[name] = member;
    }
    return cut;
}

template <class Data>
void expectForm(const char *name, const Form &form)
{
    SCOPED_TRACE(name);
    const Data data(form.whole);
    EXPECT_TRUE(SameXmlRpcValue(data.toXmlRpcValue(), form.whole));
    EXPECT_TRUE(data == Data(form.whole));
    EXPECT_FALSE(data != Data(form.whole));
    EXPECT_EQ(form.others.size(), static_cast<std::size_t>(form.whole.size()));
    for (const auto &[key, other] : form.others) {
        SCOPED_TRACE(key);
        XmlRpcValue changed = form.whole;
        changed[key] = other;
        EXPECT_TRUE(data != Data(changed));
        EXPECT_FALSE(data == Data(changed));
        for (const XmlRpcValue &wrong : {XmlRpcValue(true), arrayOf({}), structOf({})}) {
            changed[key] = wrong;
            EXPECT_THROW(const Data none(changed), std::invalid_argument);
        }
    }
    for (const XmlRpcValue &value :
         {XmlRpcValue(), XmlRpcValue(5), XmlRpcValue("text"), arrayOf({form.whole})})
        EXPECT_THROW(const Data none(value), std::invalid_argument);
    static_assert(!std::is_constructible_v<Data, int>);
    static_assert(!std::is_constructible_v<Data, const char *>);
}

template <class Data>
void expectVariants(const char *name, const Form &form)
{
    SCOPED_TRACE(name);
    const Data data(form.whole);
    const QVariant one = QVariant::fromValue(data);
    EXPECT_STREQ(one.typeName(), name);
    EXPECT_EQ(QMetaType::type(name), qMetaTypeId<Data>());
    EXPECT_TRUE(one == QVariant::fromValue(Data(form.whole)));
    EXPECT_TRUE(QVariant(one.toMap()).value<Data>() == data);
    const QList<Data> two = {data, data};
    const QVariant list = QVariant::fromValue(two);
    EXPECT_EQ(QMetaType::type(("QList<" + std::string(name) + ">").c_str()), qMetaTypeId<QList<Data>>());
    EXPECT_TRUE(list == QVariant::fromValue(two));
    EXPECT_FALSE(list == QVariant::fromValue(QList<Data>{data}));
    EXPECT_TRUE(QVariant(QVariantList{one, one.toMap()}).template value<QList<Data>>() == two);
}

TEST(StatisticsRecords, areStructsOverXmlRpc)
{
    expectForm<EventStatData>("EventStatData", eventForm());
    expectForm<RefillStatData>("RefillStatData", refillForm());
    expectForm<ColorantUsageStatData>("ColorantUsageStatData", usageForm());
    expectForm<DispError>("DispError", errorForm());
    expectForm<WaterChangeStatData>("WaterChangeStatData", waterForm());
}

TEST(StatisticsRecords, travelInVariantsAloneAndInLists)
{
    expectVariants<EventStatData>("EventStatData", eventForm());
    expectVariants<RefillStatData>("RefillStatData", refillForm());
    expectVariants<ColorantUsageStatData>("ColorantUsageStatData", usageForm());
    expectVariants<DispError>("DispError", errorForm());
    expectVariants<WaterChangeStatData>("WaterChangeStatData", waterForm());
}

TEST(StatisticsRecords, needEachMember)
{
    for (const auto &[key, other] : eventForm().others)
        EXPECT_THROW(EventStatData{without(eventForm().whole, key)}, std::invalid_argument) << key;
    for (const auto &[key, other] : refillForm().others)
        EXPECT_THROW(RefillStatData{without(refillForm().whole, key)}, std::invalid_argument) << key;
    for (const auto &[key, other] : errorForm().others)
        EXPECT_THROW(DispError{without(errorForm().whole, key)}, std::invalid_argument) << key;
    for (const auto &[key, other] : waterForm().others)
        EXPECT_THROW(WaterChangeStatData{without(waterForm().whole, key)}, std::invalid_argument) << key;
}

TEST(StatisticsRecords, haveTheirFields)
{
    const EventStatData event(morning, most, 3, -2.5);
    EXPECT_TRUE(event == EventStatData(eventForm().whole));
    EXPECT_EQ(event.timestamp, morning);
    EXPECT_EQ(event.eventCode, most);
    EXPECT_EQ(event.positionID, 3);
    EXPECT_EQ(event.value, -2.5);

    const RefillStatData refill(morning, 4, QString::fromUtf8("R\xC3\xB6t"), 120.5, 2000.25);
    EXPECT_TRUE(refill == RefillStatData(refillForm().whole));
    EXPECT_EQ(refill.canisterID, 4);
    EXPECT_EQ(refill.colorantCode, QString::fromUtf8("R\xC3\xB6t"));
    EXPECT_EQ(refill.previousQuantity, 120.5);
    EXPECT_EQ(refill.currentQuantity, 2000.25);

    const DispError error(morning, 2, 3, "17", "circuit stalled");
    EXPECT_TRUE(error == DispError(errorForm().whole));
    EXPECT_EQ(error.errorType, 2);
    EXPECT_EQ(error.errorCode, "17");
    EXPECT_EQ(error.description, "circuit stalled");

    const WaterChangeStatData water(morning, -120);
    EXPECT_TRUE(water == WaterChangeStatData(waterForm().whole));
    EXPECT_EQ(water.cleaningCycles, -120);
    EXPECT_TRUE(SameXmlRpcValue(WaterChangeStatData().toXmlRpcValue(),
                                structOf({{"timestamp", ""}, {"cleaning_cycles", 0}})));
    EXPECT_FALSE(WaterChangeStatData(WaterChangeStatData().toXmlRpcValue()).timestamp.isValid());
}

TEST(StatisticsRecords, tellTimesInUtc)
{
    const QDateTime inRome(QDate(2026, 3, 2), QTime(10, 15, 30, 250), Qt::OffsetFromUTC, 3600);
    EXPECT_TRUE(SameXmlRpcValue(WaterChangeStatData(inRome, -120).toXmlRpcValue(), waterForm().whole));
    EXPECT_TRUE(WaterChangeStatData(inRome, 1) == WaterChangeStatData(morning, 1));
    for (const XmlRpcValue &time :
         {XmlRpcValue("2026-03-02T09:15:30"), XmlRpcValue("2026-03-02T10:15:30+01:00"),
          dateTime(2026, 3, 2, 9, 15, 30)}) {
        const WaterChangeStatData water(structOf({{"timestamp", time}, {"cleaning_cycles", 1}}));
        EXPECT_EQ(water.timestamp, morning.addMSecs(-250));
    }
    EXPECT_THROW(WaterChangeStatData(structOf({{"timestamp", "soon"}, {"cleaning_cycles", 1}})),
                 std::invalid_argument);
}

TEST(ColorantUsageStatData, knowsNothingAtFirst)
{
    const ColorantUsageStatData nothing;
    EXPECT_TRUE(SameXmlRpcValue(nothing.toXmlRpcValue(), structOf({})));
    EXPECT_TRUE(ColorantUsageStatData(structOf({})) == nothing);
    EXPECT_TRUE(ColorantUsageStatData(structOf({{"colour", "red"}})) == nothing);
    EXPECT_FALSE(nothing.dispensed.has_value());
}

TEST(ColorantUsageStatData, writesOnlyWhatWasAskedFor)
{
    const XmlRpcValue whole = usageForm().whole;
    const ColorantUsageStatData usage(whole);
    EXPECT_TRUE(SameXmlRpcValue(usage.toXmlRpcValue({"purged"}), structOf({{"purged", 1.5}})));
    EXPECT_TRUE(SameXmlRpcValue(usage.toXmlRpcValue({"dispensations", "to"}),
                                structOf({{"to", "2026-03-09T00:00:00.000Z"}, {"dispensations", 17}})));
    EXPECT_TRUE(SameXmlRpcValue(usage.toXmlRpcValue({"colour"}), structOf({})));
    EXPECT_TRUE(SameXmlRpcValue(usage.toXmlRpcValue(QStringList()), whole));
}

TEST(ColorantUsageStatData, writesOnlyWhatIsKnown)
{
    const XmlRpcValue whole = usageForm().whole;
    for (const auto &[key, other] : usageForm().others) {
        SCOPED_TRACE(key);
        const ColorantUsageStatData cut(without(whole, key));
        EXPECT_TRUE(SameXmlRpcValue(cut.toXmlRpcValue(), without(whole, key)));
        EXPECT_TRUE(SameXmlRpcValue(cut.toXmlRpcValue({QString::fromStdString(key)}), structOf({})));
        EXPECT_TRUE(cut != ColorantUsageStatData(whole));
    }
    ColorantUsageStatData usage;
    usage.colorantCode = QStringLiteral("KX");
    usage.from = morning;
    usage.dispensations = 0;
    EXPECT_TRUE(
        SameXmlRpcValue(usage.toXmlRpcValue(),
                        structOf({{"colorant_code", "KX"}, {"from", morningText}, {"dispensations", 0}})));
}

} // namespace
