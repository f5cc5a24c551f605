// SPDX-License-Identifier: LGPL-3.0-or-later
#include "savedfile.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using quv::checkSavable;
using quv::FileError;
using quv::FileLock;
using quv::loadFile;
using quv::saveFile;

class SavedFileTest : public testing::Test
{
protected:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden);
    }
    template <class Work>
    static std::string failureOf(Work work)
    {
        try {
            work();
        } catch (const FileError &error) {
            return error.what();
        }
        return "";
    }

    QTemporaryDir m_folder{};
};

/// While it stands, no file grows beyond \a size, as when the disk is full.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

TEST_F(SavedFileTest, whatIsSavedIsLoaded)
{
    const QByteArray content = QByteArray(300000, 'x') + '\0' + "end";
    saveFile(path("file"), content);
    EXPECT_EQ(loadFile(path("file"), 400000), content);
    EXPECT_EQ(loadFile(path("file"), 3), "xxx");
    saveFile(path("file"), "");
    EXPECT_EQ(loadFile(path("file"), 3), "");
    EXPECT_EQ(files(), QStringList{QStringLiteral("file")});
}

TEST_F(SavedFileTest, aFullDiskLeavesTheFileAsItWas)
{
    saveFile(path("file"), "before");
    for (const int size : {1025, 20000, 300000}) {
        const SizeLimit limit(1024);
        EXPECT_EQ(failureOf([&] { saveFile(path("file"), QByteArray(size, 'x')); }), "File too large")
            << size;
    }
    EXPECT_EQ(loadFile(path("file"), 100), "before");
    EXPECT_EQ(files(), QStringList{QStringLiteral("file")});
}

TEST_F(SavedFileTest, whatIsNoRegularFileIsRefused)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe")), 0600), 0);
    for (const QString &refused : {path("pipe"), m_folder.path()}) {
        EXPECT_EQ(failureOf([&] { loadFile(refused, 10); }), "it is no regular file");
        EXPECT_EQ(failureOf([&] { saveFile(refused, "x"); }), "it is no regular file");
        EXPECT_EQ(failureOf([&] { checkSavable(refused); }), "it is no regular file");
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral("pipe")});
}

TEST_F(SavedFileTest, whatCannotBeHadIsToldByItsReason)
{
    EXPECT_EQ(failureOf([&] { loadFile(path("none"), 10); }), "No such file or directory");
    EXPECT_EQ(failureOf([&] { saveFile(path("none/file"), "x"); }), "No such file or directory");
    EXPECT_EQ(failureOf([&] { checkSavable(path("none/file")); }), "No such file or directory");
    EXPECT_EQ(failureOf([&] { const FileLock lock(path("none/file")); }), "No such file or directory");
    EXPECT_EQ(failureOf([&] { checkSavable(path("file")); }), "");
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(SavedFileTest, aLockIsHeldByOne)
{
    {
        const FileLock lock(path("file"));
        EXPECT_EQ(failureOf([&] { const FileLock second(path("file")); }), "another process uses it");
        EXPECT_EQ(failureOf([&] { const FileLock other(path("other")); }), "");
        EXPECT_EQ(files(), QStringList{QStringLiteral("file.lock")});
    }
    EXPECT_TRUE(files().isEmpty());
    EXPECT_EQ(failureOf([&] { const FileLock again(path("file")); }), "");
}

TEST_F(SavedFileTest, aLockKnowsAFileByAllItsNames)
{
    saveFile(path("file"), "x");
    ASSERT_TRUE(QFile::link(path("file"), path("link")));
    const FileLock lock(path("link"));
    EXPECT_EQ(failureOf([&] { const FileLock second(path("file")); }), "another process uses it");
}

TEST_F(SavedFileTest, aLockKnowsAFileThatIsStillToCome)
{
    ASSERT_TRUE(QFile::link(path("file"), path("link")));
    ASSERT_TRUE(QFile::link(QStringLiteral("link"), path("second"))); // relative, to a link
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("folder")));
    ASSERT_TRUE(QFile::link(path("folder"), path("other")));
    const FileLock lock(path("file"));
    for (const char *name : {"link", "second"})
        EXPECT_EQ(failureOf([&] { const FileLock again(path(name)); }), "another process uses it") << name;
    const FileLock inFolder(path("folder/file"));
    EXPECT_EQ(failureOf([&] { const FileLock again(path("other/file")); }), "another process uses it");
    ASSERT_TRUE(QFile::link(path("round"), path("round")));
    EXPECT_EQ(failureOf([&] { const FileLock turning(path("round")); }), ""); // whoever saves it is refused
    saveFile(path("second"), "x");
    EXPECT_EQ(loadFile(path("file"), 10), "x"); // what is locked is what is written
}

TEST_F(SavedFileTest, whatAProcessLeftBehindIsNoLock)
{
    saveFile(path("file.lock"), "");
    EXPECT_EQ(failureOf([&] { const FileLock lock(path("file")); }), "");
}

} // namespace
