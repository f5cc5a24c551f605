// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/driverinfo.h"

#include "settings/structs.h"

#include <type_traits>
#include <vector>

namespace {

using namespace testing_base;

constexpr char dump[] =
    R"({"config_file_path": "/etc/nua/configuration.xml", "custom_calib_file_path": "/var/nua/profiles/", )"
    R"("default_calib_file_path": "/usr/nua/config_data/", "driver_name": "nuadriver", "driver_path": "/usr/nua", )"
    R"("driver_version": "3.14.2", "host_name": "shop-1", "settings_path": "/etc/nua/settings"})";

DriverInfo whole()
{
    return {"nuadriver",
            "/usr/nua",
            QVersionNumber(3, 14, 2),
            "shop-1",
            "/etc/nua/configuration.xml",
            "/usr/nua/config_data/",
            "/var/nua/profiles/",
            "/etc/nua/settings"};
}

/** A member, and what a struct is refused with that lacks it. */
struct Row
{
    const char *member;
    const char *code;
    const char *text;
};

constexpr Row rows[] = {
    {"driver_name", "DE01311", "DriverInfo: expected driver name value"},
    {"driver_path", "DE00354", "DriverInfo: expected driver path value"},
    {"driver_version", "DE00795", "DriverInfo: expected version value"},
    {"host_name", "DE00796", "DriverInfo: expected host name value"},
    {"config_file_path", "DE00624", "DriverInfo: expected configuration file path value"},
    {"default_calib_file_path", "DE01472", "DriverInfo: expected default calibration profiles path value"},
    {"custom_calib_file_path", "DE00625", "DriverInfo: expected custom calibration profiles path value"},
};

/** The whole struct with one member as \a value, or without it. */
Value structWith(const char *changed, const Value &value)
{
    Value all = testing_settings::without(whole().toXmlRpcValue(), changed);
    if (value.valid())
        all[changed] = value;
    return all;
}

TEST(DriverInfo, knowsNothingAtFirst)
{
    DriverInfo info = whole();
    info.setDefaults();
    EXPECT_EQ(info, DriverInfo());
    EXPECT_EQ(info.driverName, "");
    EXPECT_TRUE(info.version.isNull());
    EXPECT_EQ(info.settingsPath, "");
    EXPECT_EQ(
        dumped(info.toXmlRpcValue()),
        R"({"config_file_path": "", "custom_calib_file_path": "", "default_calib_file_path": "", )"
        R"("driver_name": "", "driver_path": "", "driver_version": "", "host_name": "", "settings_path": ""})");
}

TEST(DriverInfo, takesItsFieldsInOrder)
{
    const DriverInfo info = whole();
    EXPECT_EQ(info.driverName, "nuadriver");
    EXPECT_EQ(info.driverPath, "/usr/nua");
    EXPECT_EQ(info.version, QVersionNumber(3, 14, 2));
    EXPECT_EQ(info.hostName, "shop-1");
    EXPECT_EQ(info.configurationFilePath, "/etc/nua/configuration.xml");
    EXPECT_EQ(info.defaultProfilesPath, "/usr/nua/config_data/");
    EXPECT_EQ(info.customProfilesPath, "/var/nua/profiles/");
    EXPECT_EQ(info.settingsPath, "/etc/nua/settings");
}

TEST(DriverInfo, travelsAsAStruct)
{
    EXPECT_EQ(dumped(whole().toXmlRpcValue()), dump);
    EXPECT_EQ(DriverInfo(whole().toXmlRpcValue()), whole());
}

TEST(DriverInfo, needsAllButThePathOfTheSettings)
{
    constexpr char function[] = "DriverInfo::DriverInfo(const XmlRpc::XmlRpcValue&)";
    for (const Row &row : rows) {
        for (const Value &value : {Value(), Value(7), Value(true), arrayOf("a")})
            expectRefusal(row.code, row.text, function, [&] { DriverInfo{structWith(row.member, value)}; });
    }
    for (const Value &value : {Value(), Value(7)})
        EXPECT_EQ(DriverInfo(structWith("settings_path", value)).settingsPath, "");
    for (const Value &value : {Value(), Value(5), Value("a"), arrayOf("a"), structOf({})})
        expectRefusal(rows[0].code, rows[0].text, function, [&] { DriverInfo{value}; });
}

TEST(DriverInfo, differsInEachField)
{
    std::vector<DriverInfo> others(8, whole());
    others[0].driverName = "other";
    others[1].driverPath = "other";
    others[2].version = QVersionNumber(3, 14, 3);
    others[3].hostName = "other";
    others[4].configurationFilePath = "other";
    others[5].defaultProfilesPath = "other";
    others[6].customProfilesPath = "other";
    others[7].settingsPath = "other";
    for (const DriverInfo &other : others) {
        EXPECT_TRUE(whole() != other);
        EXPECT_FALSE(whole() == other);
    }
}

TEST(DriverInfo, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(whole());
    EXPECT_STREQ(variant.typeName(), "DriverInfo");
    EXPECT_EQ(QVariant(variant.toMap()).value<DriverInfo>(), whole());
    EXPECT_EQ(variant, QVariant::fromValue(whole()));
    static_assert(!std::is_constructible_v<DriverInfo, int> &&
                  !std::is_constructible_v<DriverInfo, const char *>);
}

} // namespace
