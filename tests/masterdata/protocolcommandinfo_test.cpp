// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/protocolcommandinfo.h"

#include "base/basetesting.h"
#include "base/commanddata.h"

#include <type_traits>

namespace {

using namespace testing_base;
using Info = ProtocolCommandInfo;

constexpr char ofValue[] = "ProtocolCommandInfo::ProtocolCommandInfo(const XmlRpc::XmlRpcValue&)";

Value wholeStruct()
{
    return structOf({{"id", 8},
                     {"name", "TINT"},
                     {"code", "0017"},
                     {"min_params", 1},
                     {"max_params", 3},
                     {"driver_cmd", true},
                     {"version", 2},
                     {"enabled", false},
                     {"time_tracking", true}});
}

TEST(ProtocolCommandInfo, isEmptyAtFirst)
{
    EXPECT_EQ(
        dumped(Info().toXmlRpcValue()),
        R"({"code": "", "driver_cmd": false, "enabled": true, "id": 0, "max_params": 0, "min_params": 0, )"
        R"("name": "", "time_tracking": false, "version": 0})");
}

TEST(ProtocolCommandInfo, isASliceOfWhatTheDriverKnows)
{
    CommandData data;
    data.id = 8;
    data.name = "TINT";
    data.m_code = "0017";
    data.minParams = 1;
    data.maxParams = 3;
    data.version = 2;
    const Info plain(data);
    EXPECT_EQ(plain.id, 8);
    EXPECT_EQ(plain.name, "TINT");
    EXPECT_EQ(plain.code, "0017");
    EXPECT_EQ(plain.minParams, 1);
    EXPECT_EQ(plain.maxParams, 3);
    EXPECT_TRUE(plain.driverCmd);
    EXPECT_EQ(plain.version, 2);
    EXPECT_TRUE(plain.enabled);
    EXPECT_FALSE(plain.timeTracking);
    data.useDispenser = true;
    EXPECT_FALSE(Info(data).driverCmd);
    data.available = false;
    EXPECT_FALSE(Info(data).enabled);
    data.trackExecutionTime = true;
    EXPECT_TRUE(Info(data).timeTracking);
}

TEST(ProtocolCommandInfo, travelsAsAStruct)
{
    const Info info(wholeStruct());
    EXPECT_EQ(dumped(info.toXmlRpcValue()), dumped(wholeStruct()));
    EXPECT_TRUE(info.driverCmd);
    EXPECT_FALSE(info.enabled);
    EXPECT_EQ(info.maxParams, 3);
    Value old = structOf({{"id", 8},
                          {"name", "TINT"},
                          {"code", ""},
                          {"min_params", 0},
                          {"max_params", 0},
                          {"version", 0},
                          {"driver_cmd", false}});
    EXPECT_TRUE(Info(old).enabled);
    EXPECT_FALSE(Info(old).timeTracking);
    old["enabled"] = 0; // of another type: passed over
    old["time_tracking"] = 1;
    EXPECT_TRUE(Info(old).enabled);
    EXPECT_FALSE(Info(old).timeTracking);
}

TEST(ProtocolCommandInfo, needsSevenOfItsMembers)
{
    const struct
    {
        const char *key;
        const char *code;
        const char *text;
        Value other;
    } rows[] = {{"id", "DE00423", "ProtocolCommandInfo: expected id value", "8"},
                {"name", "DE00424", "ProtocolCommandInfo: expected name value", 8},
                {"code", "DE00425", "ProtocolCommandInfo: expected code value", 17},
                {"min_params", "DE00426", "ProtocolCommandInfo: expected min_params value", 1.0},
                {"max_params", "DE00427", "ProtocolCommandInfo: expected max_params value", true},
                {"driver_cmd", "DE00428", "ProtocolCommandInfo: expected driver_cmd value", 1},
                {"version", "DE01437", "ProtocolCommandInfo: expected version value", "2"}};
    Value first = structOf({});
    for (const auto &row : rows) {
        SCOPED_TRACE(row.key);
        expectRefusal(row.code, row.text, ofValue, [&] { Info{first}; }); // all before it are there
        Value other = wholeStruct();
        other[row.key] = row.other;
        expectRefusal(row.code, row.text, ofValue, [&] { Info{other}; });
        first[row.key] = wholeStruct()[row.key];
    }
    EXPECT_EQ(Info(first).name, "TINT");
    for (const Value &value : {Value(), Value(5), arrayOf(8, "TINT")})
        expectRefusal("DE00423", "ProtocolCommandInfo: expected id value", ofValue, [&] { Info{value}; });
    static_assert(!std::is_constructible_v<Info, int>);
    static_assert(!std::is_constructible_v<Info, const char *>);
}

TEST(ProtocolCommandInfo, differsInEachMember)
{
    const Info info(wholeStruct());
    EXPECT_TRUE(info == Info(wholeStruct()));
    const std::pair<const char *, Value> others[] = {
        {"id", 9},      {"name", "PACK"},      {"code", "0018"},  {"min_params", 2},       {"max_params", 4},
        {"version", 1}, {"driver_cmd", false}, {"enabled", true}, {"time_tracking", false}};
    for (const auto &[key, other] : others) {
        SCOPED_TRACE(key);
        Value changed = wholeStruct();
        changed[key] = other;
        EXPECT_TRUE(info != Info(changed));
        EXPECT_FALSE(info == Info(changed));
    }
}

TEST(ProtocolCommandInfo, isALineForPeople)
{
    EXPECT_EQ(QString(Info(wholeStruct())), "Command TINT (version 2)");
    Info info;
    info.name = "%2";
    EXPECT_EQ(QString(info), "Command %2 (version 0)");
}

TEST(ProtocolCommandInfo, travelsInAVariant)
{
    const Info info(wholeStruct());
    const QVariant variant = QVariant::fromValue(info);
    EXPECT_STREQ(variant.typeName(), "ProtocolCommandInfo");
    EXPECT_EQ(variant, QVariant::fromValue(Info(wholeStruct())));
    EXPECT_EQ(QVariant(variant.toMap()).value<Info>(), info);
}

} // namespace
