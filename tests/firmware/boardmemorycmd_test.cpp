// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardmemorycmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Cmd = BoardMemoryCmd;
using Numbers = QList<int>;

constexpr char ofValue[] = "BoardMemoryCmd::BoardMemoryCmd(const XmlRpc::XmlRpcValue&)";
constexpr char badParameter[] = "BoardMemoryCmd: error in parameter decoding";

AnswerFacts answers()
{
    constexpr char notCreated[] = "Failed to create BoardMemoryAnswer";
    constexpr char noValue[] = "BoardMemoryAnswer: expected board answer value";
    constexpr char written[] = R"({"board_answer": "300"})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("BoardMemoryAnswer", {"6", "1", "2", "3", "4", "36", "1"}, written)
                         .failsWith("DE00557", notCreated)
                         .refuses({"2", "1"}, "DE00077", "Error during command answer decoding: bad length",
                                  "SerialProtoAnswer::SerialProtoAnswer(QStringList)");
    answers.value = AnswerOfValue("BoardMemoryAnswer", structOf({{"board_answer", "300"}}), written)
                        .failsWith("DE00696", notCreated)
                        .refuses(Value(300), "DE03300", noValue,
                                 "BoardMemoryAnswer::BoardMemoryAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("BoardMemoryAnswer", {"300"}, written)
            .failsWith("DE01179", notCreated)
            .refuses({300}, "DE03301", noValue, "BoardMemoryAnswer::BoardMemoryAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00556", notCreated};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"BOARD_MEMORY", 40, "0F01", 6};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.comesBackFromList = false; // a list gives the command no values
    facts.defaults = Request().written(R"(["R", "B"])").sends({82, 66});
    facts.requests = {
        Request({"W", "E", 1, 2, 3, 4, 5, 6, 7, 8})
            .typed<Cmd>(QChar('W'), QChar('E'), Numbers{1, 2, 3, 4}, Numbers{5, 6, 7, 8})
            .onlyFromValue()
            .parameters({})
            .written(R"(["W", "E", 1, 2, 3, 4, 5, 6, 7, 8])")
            .sends({87, 69, 1, 2, 3, 4, 5, 6, 7, 8}),
        Request({"W", "E", -1, 300, 3, 4, 5})
            .onlyFromValue()
            .parameters({})
            .written(R"(["W", "E", -1, 300, 3, 4, 5])")
            .sends({87, 69, -1, 300, 3, 4, 5}),
        Request({"R", "B", 1, 2, 3, 4})
            .typed<Cmd>(QChar('R'), QChar('B'), Numbers{1, 2, 3, 4}, Numbers())
            .onlyFromValue()
            .parameters({})
            .written(R"(["R", "B", 1, 2, 3, 4])")
            .sends({82, 66, 1, 2, 3, 4}),
        Request({"R", "B", 1, 2, 3, 4})
            .onlyFromList()
            .parameters({})
            .written(R"(["R", "B"])")
            .sends({82, 66})
            .notReadBack(),
    };
    facts.answers = answers();
    return facts;
}

TEST(BoardMemoryCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(BoardMemoryCmd, tellsWhatItHolds)
{
    for (const Cmd &command :
         {Cmd(QChar('W'), QChar('E'), {1, 2, 3, 4}, {5, 6}), Cmd(arrayOf("W", "E", 1, 2, 3, 4, 5, 6))}) {
        EXPECT_EQ(command.operation(), QChar('W'));
        EXPECT_EQ(command.subject(), QChar('E'));
        EXPECT_EQ(command.address(), (Numbers{1, 2, 3, 4}));
        EXPECT_EQ(command.data(), (Numbers{5, 6}));
    }
    EXPECT_EQ(Cmd().operation(), QChar('R'));
    EXPECT_EQ(Cmd().subject(), QChar('B'));
}

TEST(BoardMemoryCmd, refusesEachElementByItsPlace)
{
    const Value good = arrayOf("W", "E", 1, 2, 3, 4, 5, 6, 7, 8);
    const char *codes[] = {"DE00402", "DE00407", "DE00342", "DE00558", "DE00431",
                           "DE00695", "DE00695", "DE00695", "DE00695", "DE00695"};
    for (int i = 9; i >= 0; --i) {
        SCOPED_TRACE(i);
        const Value others[] = {Value(true), Value(7.0), arrayOf(7), structOf({}),
                                i < 2 ? Value(7) : Value("7")};
        for (const Value &other : others) {
            Value value = good;
            value[i] = other;
            expectRefusal(codes[i], badParameter, ofValue, [&] { const Cmd command(value); });
        }
    }
    Value allBad = arrayOf(1, 2, "3", "4", "5", "6", "7");
    expectRefusal("DE00402", badParameter, ofValue, [&] { const Cmd command(allBad); });
    allBad[0] = "W";
    expectRefusal("DE00407", badParameter, ofValue, [&] { const Cmd command(allBad); });
    Value eleven = good;
    eleven[10] = "rest";
    EXPECT_EQ(Cmd(eleven).data(), (Numbers{5, 6, 7, 8})) << "more are read by nobody";
}

TEST(BoardMemoryCmd, needsSingleCharacters)
{
    for (const char *text : {"", "RB"}) {
        SCOPED_TRACE(text);
        expectRefusal("DE00402", badParameter, ofValue,
                      [&] { const Cmd command(arrayOf(text, "B", 1, 2, 3, 4)); });
        expectRefusal("DE00407", badParameter, ofValue,
                      [&] { const Cmd command(arrayOf("R", text, 1, 2, 3, 4)); });
    }
}

TEST(BoardMemoryCmd, sendsOnlyCodesOfOneByte)
{
    EXPECT_EQ(Cmd(QChar(255), QChar(0), {}, {}).serialParameters(1), (Numbers{255, 0}));
    EXPECT_EQ(Cmd(QChar(256), QChar(0x20AC), {}, {}).serialParameters(1), (Numbers{0, 0}));
    const Cmd read(arrayOf("\xE2\x82\xAC", "\xC3\xA9", 1, 2, 3, 4)); // a euro sign, and an e with an acute
    EXPECT_EQ(read.serialParameters(1), (Numbers{0, 233, 1, 2, 3, 4}));
    EXPECT_EQ(dumped(read.xmlrpc_parameters()), "[\"\xE2\x82\xAC\", \"\xC3\xA9\", 1, 2, 3, 4]");
}

TEST(BoardMemoryCmd, tellsItsArgumentsAndItsAnswer)
{
    EXPECT_EQ(argumentsOf("BOARD_MEMORY"),
              (Lines{"operation (string): one character, R to read",
                     "  XML-RPC, another type: DE00402",
                     "  XML-RPC, out of range: DE00402",
                     "subject (string): one character",
                     "  XML-RPC, another type: DE00407",
                     "  XML-RPC, out of range: DE00407",
                     "address_1 (int): of the board's own meaning, as all numbers here",
                     "  XML-RPC, another type: DE00342",
                     "address_2 (int)",
                     "  XML-RPC, another type: DE00558",
                     "address_3 (int)",
                     "  XML-RPC, another type: DE00431",
                     "address_4 (int)",
                     "  XML-RPC, another type: DE00695",
                     "data_1 (int) = 0",
                     "  XML-RPC, another type: DE00695",
                     "data_2 (int) = 0",
                     "  XML-RPC, another type: DE00695",
                     "data_3 (int) = 0",
                     "  XML-RPC, another type: DE00695",
                     "data_4 (int) = 0",
                     "  XML-RPC, another type: DE00695"}));
    EXPECT_EQ(
        membersOf("BOARD_MEMORY"),
        (Lines{"BoardMemoryAnswer", "board_answer (string): a number in decimal digits; empty for none",
               "  XML-RPC, missing or another type: DE03300", "  list, missing or another type: DE03301",
               "  tokens, : DE00557", "  XML-RPC, : DE00696", "  list, : DE01179", "  envelope, : DE00556"}));
}

TEST(BoardMemoryCmd, doesNotMistakeOtherArguments)
{
    static_assert(!std::is_constructible_v<Cmd, int>);
    static_assert(!std::is_constructible_v<Cmd, bool>);
    static_assert(!std::is_constructible_v<Cmd, double>);
    static_assert(!std::is_constructible_v<Cmd, const char *>);
}

} // namespace
