// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getdispinfocmd.h"

#include "setup/dispinfoanswer.h"
#include "setup/dispinfotesting.h"

#include <type_traits>

namespace {

using namespace testing_setup;

TEST(GetDispInfoCmd, keepsTheCommandContract)
{
    CommandFacts facts = dispInfoFacts<GetDispInfoCmd>({"GET_DISP_INFO", 24, "0077", 1}, 1);
    facts.answers = serialAnswers();
    facts.answers.tokens = AnswerOfTokens("DispInfoAnswer", {"3", "4B", "31", "e9"}, R"({"value": "K1é"})")
                               .failsWith("DE00098", "Failed to create ProtoAnswer")
                               .refuses({"2", "4B", "x"}, "DE00453", "DispInfoAnswer: error in decoding",
                                        "DispInfoAnswer::DispInfoAnswer(QStringList, int)")
                               .refuses({}, "DE00076", "Empty answer received",
                                        "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    facts.answers.value = AnswerOfValue("DispInfoAnswer", structOf({{"value", "K1"}}), R"({"value": "K1"})")
                              .failsWith("DE01295", "Failed to create answer")
                              .refuses(structOf({}), "DE00302", "DispInfoAnswer: error in decoding",
                                       "DispInfoAnswer::DispInfoAnswer(const XmlRpc::XmlRpcValue&)");
    expectCommandContract(facts);
}

TEST(GetDispInfoCmd, passesOverTheTypeThatItAskedFor)
{
    GetDispInfoCmd command(6);
    ASSERT_TRUE(command.setSerialAnswer({"3", "6", "4B", "31"}, nullptr));
    EXPECT_EQ(dynamic_cast<const DispInfoAnswer &>(*command.getProtoAnswer()).value(), "K1");
    ASSERT_TRUE(command.setSerialAnswer({"3", "5", "4B", "31"}, nullptr));
    EXPECT_EQ(dynamic_cast<const DispInfoAnswer &>(*command.getProtoAnswer()).value(), "\5K1");
}

TEST(GetDispInfoCmd, doesNotMistakeOtherArgumentsForAType)
{
    static_assert(!std::is_constructible_v<GetDispInfoCmd, bool>);
    static_assert(!std::is_constructible_v<GetDispInfoCmd, double>);
    static_assert(!std::is_constructible_v<GetDispInfoCmd, const char *>);
    static_assert(!std::is_convertible_v<int, GetDispInfoCmd>);
}

} // namespace
