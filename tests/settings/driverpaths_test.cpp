// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"
#include "settings/driversettings.h"
#include "settings/environment.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <unistd.h>

namespace {

using S = DriverSettings;

/** A folder of the test's own. */
class DriverPaths : public CleanEnvironment
{
protected:
    void SetUp() override
    {
        CleanEnvironment::SetUp();
        ASSERT_TRUE(m_folder.isValid());
        m_path = m_folder.path();
        allow(reading | writing);
    }
    void TearDown() override
    {
        allow(reading | writing);
        CleanEnvironment::TearDown();
    }

    void allow(QFile::Permissions permissions) { EXPECT_TRUE(QFile::setPermissions(m_path, permissions)); }

    static constexpr auto reading = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::ExeOther;
    static constexpr auto writing = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

    /** A file, which is no folder. */
    QString makeFile()
    {
        QFile file(m_path + "/file");
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    static void set(const char *name, const QString &value) { qputenv(name, value.toLocal8Bit()); }

    QTemporaryDir m_folder;
    QString m_path;
};

/** Ends with 0 when the two are the same to somebody whom permissions hold back. */
[[noreturn]] void exitAsAnyoneIfSame(QString (*what)(), const QString &expected)
{
    const bool held = geteuid() != 0 || setuid(65534) == 0;
    _exit(held && what() == expected ? 0 : 1);
}

TEST_F(DriverPaths, goByNoVariableAtFirst)
{
    EXPECT_EQ(S::getEnvRWDataPrefixPath(), "");
    EXPECT_EQ(S::getEnvConfigDataPrefixPath(), "");
    EXPECT_EQ(S::defaultAppPath(), "/var/lib/velto/nuadriver");
    EXPECT_EQ(S::defaultDataPath(), "/var/lib/velto/nuadriver/NUAlocal");
    EXPECT_EQ(S::defaultConfigurationPath(), "/var/lib/velto/nuadriver/NUAlocal/config/");
    EXPECT_EQ(S::defaultCustomCalibrationProfilesPath(), "/var/lib/velto/nuadriver/NUAlocal/profiles/");
    EXPECT_EQ(S::defaultStatsDBPath(), "/var/lib/velto/nuadriver/NUAlocal/stats/");
    EXPECT_EQ(S::defaultLogFilePath("driver"), "/var/log/velto/driver/");
}

TEST_F(DriverPaths, lieInTheFolderForData)
{
    for (const QString &value : {m_path, m_path + "/"}) {
        set("NUA_RW_DATA", value);
        EXPECT_EQ(S::getEnvRWDataPrefixPath(), m_path);
        EXPECT_EQ(S::defaultAppPath(), m_path);
        EXPECT_EQ(S::defaultDataPath(), m_path + "/NUAlocal");
        EXPECT_EQ(S::defaultConfigurationPath(), m_path + "/NUAlocal/config/");
        EXPECT_EQ(S::defaultCustomCalibrationProfilesPath(), m_path + "/NUAlocal/profiles/");
        EXPECT_EQ(S::defaultStatsDBPath(), m_path + "/NUAlocal/stats/");
    }
    const S settings("driver");
    EXPECT_EQ(settings.getConfigurationPath(), m_path + "/NUAlocal/config/");
    EXPECT_EQ(settings.getCustomCalibrationProfilesPath(), m_path + "/NUAlocal/profiles/");
    EXPECT_EQ(settings.getStatsDBPath(), m_path + "/NUAlocal/stats/");
    EXPECT_EQ(settings.getLogFilePath(), "/var/log/velto/driver/");
}

TEST_F(DriverPaths, lieInTheRootWithOneSeparator)
{
    const bool isOurs = access("/", W_OK) == 0;
    set("NUA_RW_DATA", "/");
    set("NUA_CONFIG", "/");
    EXPECT_EQ(S::defaultDataPath(), isOurs ? "/NUAlocal" : "/var/lib/velto/nuadriver/NUAlocal");
    EXPECT_EQ(S::getDriverPrivatePath(), "/config_data/"); // there is no application here
}

TEST_F(DriverPaths, ofTheDriversOwnFilesGoByTheProgram)
{
    EXPECT_EQ(S::getDriverPrivatePath(), "/config_data/"); // no program is known
    int count = 1;
    char name[] = "driver";
    char *arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    const QString own = QCoreApplication::applicationDirPath() + "/config_data/";
    EXPECT_NE(own, "/config_data/");
    EXPECT_EQ(S::getDriverPrivatePath(), own);
    EXPECT_EQ(S::defaultDefaultCalibrationProfilesPath(), own);
    set("NUA_CONFIG", m_path + "/");
    EXPECT_EQ(S::getEnvConfigDataPrefixPath(), m_path);
    EXPECT_EQ(S::getDriverPrivatePath(), m_path + "/config_data/");
    EXPECT_EQ(S("driver").getDefaultCalibrationProfilesPath(), m_path + "/config_data/");
    set("NUA_CONFIG", m_path + "/none");
    EXPECT_EQ(S::getDriverPrivatePath(), own);
}

TEST_F(DriverPaths, passOverWhatIsNoFolder)
{
    for (const QString &value : {QString(""), m_path + "/none", makeFile()}) {
        SCOPED_TRACE(value.toStdString());
        for (const char *name : {"NUA_RW_DATA", "NUA_CONFIG", "NUA_LOG_PATH"})
            set(name, value);
        EXPECT_EQ(S::getEnvValue("NUA_RW_DATA"), "");
        EXPECT_EQ(S::defaultAppPath(), "/var/lib/velto/nuadriver");
        EXPECT_EQ(S::getDriverPrivatePath(), "/config_data/");
        EXPECT_EQ(S::defaultLogFilePath("driver"), "/var/log/velto/driver/");
    }
}

TEST_F(DriverPaths, lieInTheFolderForLogs)
{
    for (const QString &value : {m_path, m_path + "/"}) {
        set("NUA_LOG_PATH", value);
        EXPECT_EQ(S::defaultLogFilePath("driver"), m_path + "/");
        EXPECT_EQ(S("driver").getLogFilePath(), m_path + "/");
    }
}

TEST_F(DriverPaths, ofDataMustBeWritable)
{
    using testing::ExitedWithCode;
    set("NUA_RW_DATA", m_path);
    set("NUA_CONFIG", m_path);
    EXPECT_EXIT(exitAsAnyoneIfSame(S::defaultAppPath, m_path), ExitedWithCode(0), "");
    EXPECT_EXIT(exitAsAnyoneIfSame(S::getDriverPrivatePath, m_path + "/config_data/"), ExitedWithCode(0), "");
    allow(reading);
    EXPECT_EXIT(exitAsAnyoneIfSame(S::defaultAppPath, "/var/lib/velto/nuadriver"), ExitedWithCode(0), "");
    EXPECT_EXIT(exitAsAnyoneIfSame(S::getDriverPrivatePath, "/config_data/"), ExitedWithCode(0), "");
}

TEST_F(DriverPaths, ofLogsMustBeReadableOnly)
{
    allow(reading);
    set("NUA_LOG_PATH", m_path);
    const auto path = [] { return S::defaultLogFilePath("driver"); };
    EXPECT_EXIT(exitAsAnyoneIfSame(path, m_path + "/"), testing::ExitedWithCode(0), "");
    allow(writing);
    EXPECT_EXIT(exitAsAnyoneIfSame(path, "/var/log/velto/driver/"), testing::ExitedWithCode(0), "");
}

TEST_F(DriverPaths, stayAsTheyWereMade)
{
    const S before("driver");
    set("NUA_RW_DATA", m_path);
    EXPECT_EQ(before.getConfigurationPath(), "/var/lib/velto/nuadriver/NUAlocal/config/");
    S again = before;
    again.setDefaults("driver");
    EXPECT_EQ(again.getConfigurationPath(), m_path + "/NUAlocal/config/");
    EXPECT_NE(again, before);
}

} // namespace
