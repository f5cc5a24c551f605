// SPDX-License-Identifier: LGPL-3.0-or-later
#include "durationwords.h"

#include "commandline.h"

#include <gtest/gtest.h>

namespace {

std::optional<int> seconds(const char *word)
{
    return quv::secondsInWords(QString::fromLatin1(word));
}

std::string words(long long time)
{
    return quv::timeInWords(time).toStdString();
}

TEST(DurationWords, areReadAsSeconds)
{
    EXPECT_EQ(seconds("90"), 90);
    EXPECT_EQ(seconds("90s"), 90);
    EXPECT_EQ(seconds("3min"), 180);
    EXPECT_EQ(seconds("1h"), 3600);
    EXPECT_EQ(seconds("1h30min"), 5400);
    EXPECT_EQ(seconds("1h30min5s"), 5405);
    EXPECT_EQ(seconds("2min5"), 125);
    EXPECT_EQ(seconds("0"), 0);
}

TEST(DurationWords, areNothingElse)
{
    for (const char *word :
         {"", "min", "3m", "3 min", "-3", "1.5min", "3min1h", "s", "12345678", "1h30min5s "})
        EXPECT_EQ(seconds(word), std::nullopt) << word;
}

TEST(DurationWords, haveARange)
{
    EXPECT_EQ(quv::secondsOf(QStringLiteral("100"), 100), 100);
    EXPECT_EQ(quv::secondsOf(QStringLiteral("1"), 100), 1);
    for (const char *word : {"101", "0", "2min", "soon"})
        EXPECT_THROW(quv::secondsOf(QString::fromLatin1(word), 100), quv::UsageError) << word;
}

TEST(DurationWords, areToldAsPeopleDo)
{
    EXPECT_EQ(words(0), "0 s");
    EXPECT_EQ(words(59), "59 s");
    EXPECT_EQ(words(60), "1 min");
    EXPECT_EQ(words(95), "1 min 35 s");
    EXPECT_EQ(words(3600), "1 h");
    EXPECT_EQ(words(5405), "1 h 30 min 5 s");
    EXPECT_EQ(words(3605), "1 h 5 s");
}

} // namespace
