// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_fileutils.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include "values.h"

namespace {

TEST(FW_FileUtils, tellsWhatAFolderAllows)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    EXPECT_TRUE(FW_FileUtils::isDirWritable(folder.path()));
    EXPECT_TRUE(FW_FileUtils::isDirReadable(folder.path()));
    const QString file = folder.filePath("file");
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    for (const QString &none : {file, folder.filePath("none"), QString()}) {
        EXPECT_FALSE(FW_FileUtils::isDirWritable(none));
        EXPECT_FALSE(FW_FileUtils::isDirReadable(none));
    }
}

TEST(FW_FileUtils, hasOneSeparatorAtTheEndOrNone)
{
    EXPECT_EQ(FW_FileUtils::appendEndSeparator("/var/log"), "/var/log/");
    EXPECT_EQ(FW_FileUtils::appendEndSeparator("/var/log/"), "/var/log/");
    EXPECT_EQ(FW_FileUtils::appendEndSeparator("/"), "/");
    EXPECT_EQ(FW_FileUtils::appendEndSeparator(""), "");
    EXPECT_EQ(FW_FileUtils::removeEndSeparator("/var/log/"), "/var/log");
    EXPECT_EQ(FW_FileUtils::removeEndSeparator("/var/log//"), "/var/log");
    EXPECT_EQ(FW_FileUtils::removeEndSeparator("/var/log"), "/var/log");
    EXPECT_EQ(FW_FileUtils::removeEndSeparator("/"), "/");
    EXPECT_EQ(FW_FileUtils::removeEndSeparator(""), "");
}

TEST(FW_FileUtils, tellsAFileByItsName)
{
    EXPECT_EQ(FW_FileUtils::getFileName("/data/abc.tar.cmp", true), "abc.tar.cmp");
    EXPECT_EQ(FW_FileUtils::getFileName("/data/abc.tar.cmp", false), "abc.tar");
    EXPECT_EQ(FW_FileUtils::getFileName("abc", true), "abc");
    EXPECT_EQ(FW_FileUtils::getFileName("/data/", true), "");
    EXPECT_EQ(FW_FileUtils::getFileExtension("/data.d/abc.tar.CMP"), "CMP");
    EXPECT_EQ(FW_FileUtils::getFileExtension("/data.d/abc"), "");
}

} // namespace
