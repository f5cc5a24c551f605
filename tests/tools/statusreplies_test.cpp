// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/statusreplies.h"

#include <gtest/gtest.h>

namespace {

using quv::StatusReplies;
using quv::StatusSource;

const StatusSource Source{5, {QStringLiteral("1"), QStringLiteral("F5")}, 7};

TEST(StatusReplies, onlyTheSameSourceGivesTheReply)
{
    StatusReplies replies;
    EXPECT_EQ(replies.find(Source), QByteArray());
    replies.keep(Source, "five");
    EXPECT_EQ(replies.find(Source), QByteArray("five"));
    EXPECT_EQ(replies.find({6, Source.tokens, 7}), QByteArray());
    EXPECT_EQ(replies.find({5, Source.tokens, 8}), QByteArray());
    EXPECT_EQ(replies.find({5, {QStringLiteral("1"), QStringLiteral("F6")}, 7}), QByteArray());
    EXPECT_EQ(replies.find({5, {QStringLiteral("1")}, 7}), QByteArray());
}

TEST(StatusReplies, theOldestGivesWay)
{
    StatusReplies replies;
    replies.keep(Source, "first");
    for (int module = 10; module < 10 + int(StatusReplies::MaxKept) - 1; ++module)
        replies.keep({module, Source.tokens, 7}, "another");
    EXPECT_EQ(replies.find(Source), QByteArray("first"));
    replies.keep({99, Source.tokens, 7}, "last");
    EXPECT_EQ(replies.find(Source), QByteArray());
    EXPECT_EQ(replies.find({99, Source.tokens, 7}), QByteArray("last"));
}

} // namespace
