// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfposcmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char answerFailed[] = "Failed to create GetShelfPosAnswer";

AnswerFacts answers()
{
    constexpr char noHeight[] = "GetShelfPosAnswer: Errors during shelf position decoding";
    const std::string written = R"({"shelf_position": 300})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("GetShelfPosAnswer", {"2", "36", "1"}, written)
                         .failsWith("DE01445", answerFailed)
                         .refuses({"1", "36"}, "DE01447", "Error during command answer decoding: bad length",
                                  "GetShelfPosAnswer::GetShelfPosAnswer(QStringList)");
    answers.value = AnswerOfValue("GetShelfPosAnswer", structOf({{"shelf_position", 300}}), written)
                        .failsWith("DE01442", answerFailed)
                        .refuses(structOf({}), "DE01450", noHeight,
                                 "GetShelfPosAnswer::GetShelfPosAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("GetShelfPosAnswer", {300}, written)
            .failsWith("DE01443", answerFailed)
            .refuses({}, "DE01450", noHeight, "GetShelfPosAnswer::GetShelfPosAnswer(QList<QVariant>&)");
    answers.envelope = {"DE01446", answerFailed};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<GetShelfPosCmd>());
    facts.catalogue = {"GET_SHELF_POS", 5, "0072", 0};
    facts.protoType = 1;
    facts.valueFunction = "GetShelfPosCmd::GetShelfPosCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetShelfPosCmd::GetShelfPosCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Integer, {"DE01439", "DE01440", "Shelf positioning: expected INT parameter"})
            .outOfRange({-1, 0, 1, 2, 4, 245}, {"DE01438", "DE01441", "Shelf positioning: invalid parameter"})
            .takes({3})};
    facts.getters = {getter(&GetShelfPosCmd::positionType)};
    facts.words = Words("Shelf position read", "Reading shelf position");
    facts.defaults = Request().parameters({3}).written("[3]").sends({3});
    facts.requests = {
        Request({3}).typed<GetShelfPosCmd>(3).written("[3]").sends({3}),
        Request(List()).parameters({3}).written("[3]").sends({3}),
        Request({4}).onlyTyped().typed<GetShelfPosCmd>(4).notReadBack().written("[4]").sends({4}),
    };
    facts.answers = answers();
    return facts;
}

TEST(GetShelfPosCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetShelfPosCmd, knowsOnePositionType)
{
    EXPECT_TRUE(GetShelfPosCmd::checkPositionType(3));
    for (int type : {-1, 0, 2, 4})
        EXPECT_FALSE(GetShelfPosCmd::checkPositionType(type)) << type;
}

TEST(GetShelfPosCmd, doesNotMistakeOtherArgumentsForAPositionType)
{
    static_assert(!std::is_constructible_v<GetShelfPosCmd, bool>);
    static_assert(!std::is_constructible_v<GetShelfPosCmd, double>);
    static_assert(!std::is_constructible_v<GetShelfPosCmd, const char *>);
}

} // namespace
