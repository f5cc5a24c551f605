// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwresourcefile.h"

#include "base/translatedtexts.h"
#include "firmware/resourcetesting.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <type_traits>

namespace {

using namespace testing_firmware;

using File = FwResourceFile;

constexpr char ofPath[] = "FwResourceFile::FwResourceFile(QString)";

File dump()
{
    return {twoBytes(), "P17.dmp", File::DumpFile, 3};
}

void expectFields(const File &file, const QByteArray &data, const char *name, int type, int index)
{
    EXPECT_EQ(file.dataStream, data);
    EXPECT_EQ(file.name, QString(name));
    EXPECT_EQ(file.type, type);
    EXPECT_EQ(file.index, index);
}

TEST(FwResourceFile, isAnEmptyConfigurationFileAtFirst)
{
    expectFields(File(), "", "", 1, 0);
    expectFields(dump(), QByteArray("\x00\xA5", 2), "P17.dmp", 3, 3);
    File file = dump();
    file.clear();
    expectFields(file, "", "", 1, 0);
}

TEST(FwResourceFile, travelsAsAStruct)
{
    EXPECT_EQ(dumped(dump().toXmlRpcValue()),
              R"({"res_data_stream": <00a5>, "res_index": 3, "res_name": "P17.dmp", "res_type": 3})");
    EXPECT_EQ(dumped(File().toXmlRpcValue()),
              R"({"res_data_stream": <>, "res_index": 0, "res_name": "", "res_type": 1})");
    for (const File &file :
         {dump(), File(),
          File(QByteArray(1000, '\xFF'), QString::fromUtf8("\u00E8"), static_cast<ResourceType>(-7), -1)})
        EXPECT_EQ(File(file.toXmlRpcValue()), file);
}

TEST(FwResourceFile, takesATextForItsBytes)
{
    expectFields(File(fileStruct("1,\xC3\xA8", "n.txt", 2, 5)), "1,\xC3\xA8", "n.txt", 2, 5);
    expectFields(File(fileStruct("", "", 99, -1)), "", "", 99, -1);
}

TEST(FwResourceFile, needsEachMember)
{
    expectMembersNeeded<File>(fileStruct(binary("x"), "n", 1, 0),
                              {{"res_data_stream", "DE02719", {7, true, 7.5, arrayOf(0, 165), structOf({})}},
                               {"res_name", "DE02720", {7, true, binary("n"), arrayOf()}},
                               {"res_type", "DE02721", {"1", true, 1.0, structOf({})}},
                               {"res_index", "DE02782", {"1", true, 1.0, arrayOf(1)}}},
                              badFile, ofFile);
}

// ---------------------------------------------------------------- from disk

class FwResourceFileOnDisk : public testing::Test
{
protected:
    QString written(const char *name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(QString::fromUtf8(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

TEST_F(FwResourceFileOnDisk, isLoadedWithItsNameAndType)
{
    const QByteArray content = QByteArray("\x00\n\r\xFF", 4);
    expectFields(File(written("A1.cmp", content)), content, "A1.cmp", 1, 0);
    expectFields(File(written("B 2.TXT", content)), content, "B 2.TXT", 2, 0);
    expectFields(File(written("c.tar.dmp", content)), content, "c.tar.dmp", 3, 0); // by the last suffix
    expectFields(File(written("d.blb", content)), content, "d.blb", 0, 0);
    expectFields(File(written("noSuffix", content)), content, "noSuffix", 0, 0);
}

TEST_F(FwResourceFileOnDisk, isRefusedWhenThereIsNothingToLoad)
{
    const auto expectRefused = [](const char *code, const char *text, const QString &path) {
        SCOPED_TRACE(path.toStdString());
        expectRefusal(code, text, ofPath, [&] { const File file(path); });
    };
    expectRefused("DE02716", "FwResourceFile: empty file path given", "");
    expectRefused("DE02716", "FwResourceFile: empty file path given", QString());
    constexpr char cannotOpen[] = "FwResourceFile: cannot open the file in read mode";
    expectRefused("DE02717", cannotOpen, m_folder.filePath("absent.cmp"));
    expectRefused("DE02717", cannotOpen, m_folder.path());
    expectRefused("DE02717", cannotOpen, "/proc/self/mem"); // opens, and cannot be read
    expectRefused("DE02718", "FwResourceFile: empty file given", written("empty.cmp", ""));
}

TEST(FwResourceFile, doesNotMistakeOtherThingsForAPath)
{
    static_assert(!std::is_constructible_v<File, const char *>);
    static_assert(!std::is_constructible_v<File, QByteArray>);
    static_assert(!std::is_constructible_v<File, int>);
    static_assert(!std::is_convertible_v<QString, File>);
}

// ---------------------------------------------------------------- types

TEST(FwResourceFile, knowsItsTypeByAnExtension)
{
    const std::pair<const char *, int> rows[] = {{"cmp", 1}, {"CMP", 1},  {"Txt", 2}, {"txt", 2}, {"dmp", 3},
                                                 {"DMP", 3}, {"blb", 0},  {"", 0},    {"zip", 0}, {".cmp", 0},
                                                 {"cm", 0},  {"cmpx", 0}, {" cmp", 0}};
    for (const auto &[extension, type] : rows) {
        File file(QByteArray(), "n", File::CorruptedFile, 0);
        file.setResourceTypeFromFileExtension(extension);
        EXPECT_EQ(file.type, type) << extension;
        EXPECT_EQ(file.name, "n");
    }
}

TEST(FwResourceFile, knowsItsTypeByAllThatFollowsTheFirstDotOfItsName)
{
    const std::pair<const char *, int> rows[] = {{"abc.cmp", 1},      {"abc.CMP", 1}, {"abc.Txt", 2},
                                                 {"abc.dmp", 3},      {"abc.blb", 0}, {"abc.tar.cmp", 0},
                                                 {"a.b.txt", 0},      {"abc", 0},     {"", 0},
                                                 {"/d.d/abc.txt", 2}, {".cmp", 1}};
    for (const auto &[name, type] : rows) {
        File file(QByteArray(), "n", File::CorruptedFile, 0);
        file.setResourceNameAndType(name);
        EXPECT_EQ(file.type, type) << name;
        EXPECT_EQ(file.name, QString(name));
    }
}

TEST(FwResourceFile, hasANumberForItsTypeInTheFirmware)
{
    const std::pair<int, int> rows[] = {{0, 244}, {1, 243}, {2, 242}, {3, 241}, {4, 245}};
    for (const auto &[type, number] : rows) {
        File file(QByteArray(), "n", static_cast<ResourceType>(type), 9);
        EXPECT_EQ(file.getResourceIndexOfType(), number);
        file.type = 77;
        file.setResourceTypeValue(number);
        EXPECT_EQ(file.type, type);
        EXPECT_EQ(file.index, 9);
    }
    for (const int unknown : {-1, 5, 245})
        EXPECT_EQ(File(QByteArray(), "n", static_cast<ResourceType>(unknown), 9).getResourceIndexOfType(), 0);
    for (const int unknown : {7, 240, 246, 0, -244}) {
        File file = dump();
        file.setResourceTypeValue(unknown);
        EXPECT_EQ(file.type, 3) << unknown;
    }
}

TEST(FwResourceFile, describesItsType)
{
    const std::pair<int, const char *> rows[] = {{0, "Generic resource file"},
                                                 {1, "Configuration file"},
                                                 {2, "Message file"},
                                                 {3, "Dump file"},
                                                 {4, "File corrupted"}};
    const TranslatedTexts translated;
    for (const auto &[type, text] : rows) {
        const TString described =
            File(QByteArray(), "n", static_cast<ResourceType>(type), 0).getResourceDescription();
        EXPECT_EQ(described.m_text, QString(text));
        EXPECT_EQ(described.m_translated, translation(text));
        EXPECT_STREQ(described.m_context, "QuvProtocol");
    }
    for (const int unknown : {-1, 5}) {
        const TString described =
            File(QByteArray(), "n", static_cast<ResourceType>(unknown), 0).getResourceDescription();
        EXPECT_EQ(described.m_text, "");
        EXPECT_EQ(described.m_translated, "");
    }
}

TEST(FwResourceFile, hasAnExtensionForEachTypeButTheCorrupted)
{
    const std::pair<int, const char *> rows[] = {{0, "blb"}, {1, "cmp"}, {2, "txt"}, {3, "dmp"},
                                                 {4, ""},    {5, ""},    {-1, ""}};
    for (const auto &[type, extension] : rows)
        EXPECT_EQ(File::resourceFileExtension(static_cast<ResourceType>(type)), QString(extension)) << type;
}

TEST(FwResourceFile, filtersFilesByTheirTypes)
{
    const QList<ResourceType> types = {File::ConfigurationFile, File::MessageFile};
    EXPECT_EQ(File::getResourceFileNameFilters(types, "Files"), QStringList("Files (*.cmp *.txt)"));
    EXPECT_EQ(File::getResourceFileNameFilters(types, ""), (QStringList{"*.cmp", "*.txt"}));
    EXPECT_EQ(File::getResourceFileNameFilters({File::DumpFile}, "%2 %1"), QStringList("%2 %1 (*.dmp)"));
    EXPECT_EQ(File::getResourceFileNameFilters({File::GenericFile, File::CorruptedFile}, ""),
              (QStringList{"*.blb", "*."}));
    EXPECT_EQ(File::getResourceFileNameFilters({}, "Files"), QStringList());
    EXPECT_EQ(File::getResourceFileNameFilters({}, ""), QStringList());
}

TEST(FwResourceFile, hasACodeInTheNameOfAConfiguration)
{
    const auto code = [](const char *name, ResourceType type) {
        return File(QByteArray(), name, type, 0).findSAPcode();
    };
    EXPECT_EQ(code("_12AB34-x.cmp", File::ConfigurationFile), "12AB34");
    EXPECT_EQ(code("--", File::ConfigurationFile), "");
    for (const ResourceType other :
         {File::GenericFile, File::MessageFile, File::DumpFile, File::CorruptedFile})
        EXPECT_EQ(code("12AB34.cmp", other), "") << other;
}

// ---------------------------------------------------------------- comparing, variants

TEST(FwResourceFile, differsInEachField)
{
    EXPECT_TRUE(dump() == dump());
    EXPECT_FALSE(dump() != dump());
    for (const File &other :
         {File("\x01\xA5", "P17.dmp", File::DumpFile, 3), File(twoBytes(), "P18.dmp", File::DumpFile, 3),
          File(twoBytes(), "P17.dmp", File::MessageFile, 3),
          File(twoBytes(), "P17.dmp", File::DumpFile, 4)}) {
        EXPECT_TRUE(dump() != other);
        EXPECT_FALSE(dump() == other);
    }
}

TEST(FwResourceFile, travelsInAVariantAloneAndInAList)
{
    const QVariant variant = QVariant::fromValue(dump());
    EXPECT_STREQ(variant.typeName(), "FwResourceFile");
    EXPECT_EQ(variant, QVariant::fromValue(dump()));
    EXPECT_EQ(variant.toMap(), fileMap(twoBytes(), "P17.dmp", 3, 3));
    EXPECT_EQ(QVariant(variant.toMap()).value<File>(), dump());
    const QVariant list = QVariant::fromValue(QList<File>{dump(), File()});
    EXPECT_STREQ(list.typeName(), "QList<FwResourceFile>");
    EXPECT_EQ(list, QVariant::fromValue(QList<File>{dump(), File()}));
    EXPECT_EQ(QVariant(List{variant, fileMap("ab", "n", 2, 1)}).value<QList<File>>(),
              (QList<File>{dump(), File("ab", "n", File::MessageFile, 1)}));
}

} // namespace
