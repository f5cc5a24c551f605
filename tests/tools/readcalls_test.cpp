// SPDX-License-Identifier: LGPL-3.0-or-later
#include "readcalls.h"

#include <gtest/gtest.h>

namespace {

using quv::ReadCalls;

std::string callOf(const std::string &method)
{
    return "<methodCall><methodName>" + method + "</methodName></methodCall>";
}

class ReadCallsTest : public testing::Test
{
protected:
    ReadCalls m_calls{{}, [this](const quv::MethodCall &call) {
                          ++m_asked;
                          return call.method == QStringLiteral("last");
                      }};
    int m_asked = 0;
};

TEST_F(ReadCallsTest, theSameDocumentIsReadOnce)
{
    const auto first = m_calls.read(callOf("last"));
    EXPECT_EQ(first->call.method, QStringLiteral("last"));
    EXPECT_TRUE(first->mayLast);
    EXPECT_EQ(m_calls.read(callOf("last")), first);
    EXPECT_EQ(m_asked, 1);
    const auto other = m_calls.read(callOf("other"));
    EXPECT_EQ(other->call.method, QStringLiteral("other"));
    EXPECT_FALSE(other->mayLast);
    EXPECT_EQ(m_calls.read(callOf("last")), first);
}

TEST_F(ReadCallsTest, longDocumentsAreNotKept)
{
    const std::string document = callOf("last") + std::string(ReadCalls::MaxDocument, ' ');
    const auto first = m_calls.read(document);
    EXPECT_NE(m_calls.read(document), first);
    EXPECT_EQ(m_asked, 2);
}

TEST_F(ReadCallsTest, manyOthersMakeItForgotten)
{
    const auto first = m_calls.read(callOf("last"));
    for (std::size_t number = 0; number < ReadCalls::MaxKept; ++number)
        m_calls.read(callOf("m" + std::to_string(number)));
    EXPECT_NE(m_calls.read(callOf("last")), first);
}

TEST_F(ReadCallsTest, whatIsNoCallIsRefusedEachTime)
{
    EXPECT_THROW(m_calls.read("<methodCall>"), quv::CodecError);
    EXPECT_THROW(m_calls.read("<methodCall>"), quv::CodecError);
    EXPECT_EQ(m_asked, 0);
}

} // namespace
