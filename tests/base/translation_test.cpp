// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"

#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>

// What the translators get to see: all texts for people, found by their tool in the sources.

namespace {

using Texts = QMap<QString, QSet<QString>>; // by context

Texts readTranslationFile(const QString &path)
{
    Texts texts;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.name() == QLatin1String("source"))
            texts[context].insert(reader.readElementText());
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

Texts collectTexts(QString &complaints)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(folder.isValid());
    const QString file = folder.filePath("all.ts");
    QProcess lupdate;
    lupdate.start(LUPDATE,
                  {"-silent", "-locations", "none", "-extensions", "h,cpp", SOURCE_FOLDER, "-ts", file});
    EXPECT_TRUE(lupdate.waitForFinished(60000));
    EXPECT_EQ(lupdate.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(lupdate.exitCode(), 0);
    complaints = QString::fromLocal8Bit(lupdate.readAllStandardError());
    return readTranslationFile(file);
}

} // namespace

TEST(Translation, findsAllTextsInOneContext)
{
    QString complaints;
    const Texts texts = collectTexts(complaints);
    EXPECT_EQ(complaints, "");
    EXPECT_EQ(texts.keys(), QStringList({"QuvProtocol"}));

    const QSet<QString> &found = texts["QuvProtocol"];
    const char *const expected[] = {
        // what commands say
        "Retrieving calibration profiles",
        "Searching for hardware errors",
        "Retrieving application settings",
        "Retrieving application info",
        "Reading scale configuration",
        "In progress",
        "Cleaning hardware errors",
        // why a firmware refuses a command
        "One or more fields contain values out of range",
        "ETX not present",
        "Bad checksum",
        "Unknown command code",
        "Wrong position ID",
        "Bad command parameters",
        "Command refused because of errors",
        "Configuration writing error",
        "Configuration row writing error",
        "Machine not available",
        "Bad working mode",
        // what machines are doing
        "Emergency button pressed",
        "Offline button pressed",
        "Mixer offline",
        "Board not initialized",
        "Startup in progress",
        "Reset in progress",
        "Boot loader is active",
        "Boot loader memory reset",
        "Boot loader firmware update",
        "Configuration writing",
        "Hardware error present",
        "Configuration error present",
        "Can is present",
        "Shelf moving up",
        "Upper plate moving up",
        "Shelf moving down",
        "Upper plate moving down",
        "Door open",
        "Machine turned off while working",
        "Machine unlocked",
        "Process error",
        "Process interrupted",
        "New error present",
        "Dispenser not available",
        "Mixer not available",
        "Running normal mode",
    };
    for (const char *text : expected)
        EXPECT_TRUE(found.contains(text)) << text;
}

TEST(Translation, leavesTheTextsOfLogsOut)
{
    QString complaints;
    const QSet<QString> found = collectTexts(complaints)["QuvProtocol"];
    for (const char *text : {"Errors read", "Calibration profiles read", "Application settings read",
                             "Application info read", "Success!", "Failed to create answer"})
        EXPECT_FALSE(found.contains(text)) << text;
}

// The translation of the product is whole: each text that lupdate finds has its German one, with the same places for what is filled in.
TEST(Translation, germanHasEveryText)
{
    QString complaints;
    QSet<QString> missing = collectTexts(complaints)["QuvProtocol"];
    QFile file(GERMAN_TRANSLATION);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
            EXPECT_TRUE(missing.remove(source)) << "twice, or no text any more: " << source.toStdString();
        } else if (reader.name() == QLatin1String("translation")) {
            EXPECT_FALSE(reader.attributes().hasAttribute("type")) << "unfinished: " << source.toStdString();
            const QString german = reader.readElementText();
            EXPECT_FALSE(german.trimmed().isEmpty()) << source.toStdString();
            for (const char *place : {"%1", "%2", "%3", "%4"})
                EXPECT_EQ(german.count(QLatin1String(place)), source.count(QLatin1String(place)))
                    << place << " in " << german.toStdString();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(QStringList(missing.values()), QStringList())
        << "see CONTRIBUTING.md for how to translate them";
}
