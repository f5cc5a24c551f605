// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/wordstable_p.h"

#include <gtest/gtest.h>

namespace {

constexpr quv::Words lids[] = {{2, "Lid close", "Closing lid", "Closing lid with care"},
                               {5, "Lid open", "Opening lid"}};
constexpr quv::Words others = {-1, "", "In progress"};

} // namespace

TEST(WordsTable, hasTheWordsOfANumber)
{
    EXPECT_STREQ(quv::wordsOf(lids, 2, others).commandText, "Lid close");
    EXPECT_STREQ(quv::wordsOf(lids, 5, others).commandText, "Lid open");
    EXPECT_STREQ(quv::wordsOf(lids, 3, others).commandText, "");
    EXPECT_EQ(&quv::wordsOf(lids, -1, others), &others);
}

TEST(WordsTable, tellsAnActionShortOrLong)
{
    EXPECT_EQ(quv::actionOf(lids[0], false).m_text, "Closing lid");
    EXPECT_EQ(quv::actionOf(lids[0], true).m_text, "Closing lid with care");
    EXPECT_EQ(quv::actionOf(lids[1], true).m_text, "Opening lid");
    EXPECT_STREQ(quv::actionOf(others, true).m_context, "QuvProtocol");
}
