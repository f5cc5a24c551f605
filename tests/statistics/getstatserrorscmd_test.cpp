// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getstatserrorscmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "statistics/getstatserrorsanswer.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetStatsErrorsAnswer;
using Errors = QList<DispError>;

constexpr char ofValue[] = "GetStatsErrorsAnswer::GetStatsErrorsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetStatsErrorsAnswer::GetStatsErrorsAnswer(QList<QVariant>&)";
constexpr char noArray[] = "GetStatsErrorsAnswer: cannot find calibrations list tag";
constexpr char badError[] = "GetStatsErrorsAnswer: errors during DispError creation";
constexpr char otherVariant[] = "GetStatsErrorsAnswer decoding failed: invalid QVariant value";

const QDateTime morning(QDate(2026, 3, 2), QTime(9, 15, 30, 250), Qt::UTC);
const Errors twoErrors = {DispError(morning, 2, 3, "17", "circuit stalled"),
                          DispError(QDateTime(), 1, 0, "DE00337", "no command")};

Value stalled()
{
    return structOf({{"timestamp", "2026-03-02T09:15:30.250Z"},
                     {"error_type", 2},
                     {"position_id", 3},
                     {"error_code", "17"},
                     {"description", "circuit stalled"}});
}

QVariantMap refused()
{
    return {{"timestamp", ""},
            {"error_type", 1},
            {"position_id", 0},
            {"error_code", "DE00337"},
            {"description", "no command"}};
}

constexpr char written[] =
    R"({"disp_error_list": [{"description": "circuit stalled", "error_code": "17", "error_type": 2, )"
    R"("position_id": 3, "timestamp": "2026-03-02T09:15:30.250Z"}, {"description": "no command", )"
    R"("error_code": "DE00337", "error_type": 1, "position_id": 0, "timestamp": ""}]})";

AnswerFacts answers()
{
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue("GetStatsErrorsAnswer",
                      structOf({{"disp_error_list", arrayOf(stalled(), valueOf(refused()))}}), written)
            .failsWith("DE03330", "Failed to create GetStatsErrorsAnswer")
            .refuses(structOf({}), "DE01384", noArray, ofValue)
            .refuses(structOf({{"disp_error_list", arrayOf(5)}}), "DE01383", badError, ofValue);
    answers.list =
        AnswerOfList("GetStatsErrorsAnswer", {QVariant::fromValue(twoErrors[0]), refused()}, written)
            .failsWith("DE03331", "Failed to create GetStatsErrorsAnswer")
            .refuses({5}, "DE01380", otherVariant, ofList)
            .refuses({QVariantMap{{"error_code", "17"}}}, "DE01379", badError, ofList);
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<GetStatsErrorsCmd>());
    facts.catalogue = {"GET_STATS_ERRORS", 87, "", 0};
    facts.protoType = 2;
    facts.valueFunction = "GetStatsErrorsCmd::GetStatsErrorsCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetStatsErrorsCmd::GetStatsErrorsCmd(QList<QVariant>)";
    facts.arguments = {
        optional(Integer, {"DE01385", "DE01388", "Error Type: expected INT parameter"}).takes({0, -1, 3}),
        optional(Integer, {"DE01386", "DE01389", "Position ID: expected INT parameter"})
            .takes({0, 2147483647}),
        optional(Text, {"DE01387", "DE01390", "Error Code: expected INT parameter"})
            .takes({"", QString::fromUtf8("\xC3\xB6")}),
    };
    facts.getters = {getter(&GetStatsErrorsCmd::errorType), getter(&GetStatsErrorsCmd::positionID),
                     getter(&GetStatsErrorsCmd::errorCode)};
    facts.words = Words("Errors history read", "Reading errors history");
    facts.defaults = Request().parameters({0, 0, ""}).written(R"([0, 0, ""])");
    facts.requests = {
        Request({2, 3, "17"}).typed<GetStatsErrorsCmd>(2, 3, QString("17")).written(R"([2, 3, "17"])"),
        Request({1, 4}).parameters({1, 4, ""}).written(R"([1, 4, ""])"),
        Request({1}).parameters({1, 0, ""}).written(R"([1, 0, ""])"),
        Request(List()).parameters({0, 0, ""}).written(R"([0, 0, ""])"),
    };
    facts.answers = answers();
    return facts;
}

TEST(GetStatsErrorsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
    static_assert(!std::is_constructible_v<GetStatsErrorsCmd, int>);
}

TEST(GetStatsErrorsAnswer, travelsAsAStruct)
{
    EXPECT_STREQ(Answer::dispErrorList_TAG, "disp_error_list");
    const Answer answer(twoErrors);
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), written);
    EXPECT_EQ(Answer(answer.toXmlRpcValue()).errors(), twoErrors);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"disp_error_list": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetStatsErrorsAnswer, refusesAValueWithoutErrors)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)", [] { Answer{Value()}; });
    for (const Value &value :
         {Value(5), arrayOf(stalled()), structOf({}), structOf({{"errors", arrayOf()}}),
          structOf({{"disp_error_list", 5}}), structOf({{"disp_error_list", stalled()}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01384", noArray, ofValue, [&] { Answer{value}; });
    }
    Value cut = stalled();
    cut["position_id"] = "3";
    for (const Value &bad : {Value(5), arrayOf(), structOf({}), cut}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01383", badError, ofValue, [&] {
            Answer{structOf({{"disp_error_list", arrayOf(stalled(), bad)}})};
        });
    }
    const Value whole = Answer(twoErrors).toXmlRpcValue();
    expectRefusal("DE01383", badError, ofValue, [&] { outOfMemoryOnce([&] { Answer{whole}; }); });
}

TEST(GetStatsErrorsAnswer, refusesAListOfOtherThings)
{
    const QVariant good = QVariant::fromValue(twoErrors[0]);
    for (const QVariant &bad :
         {QVariant(), QVariant(7), QVariant("17"), QVariant(List{good}), QVariant::fromValue(twoErrors),
          QVariant(QVariantMap{{"description", "circuit stalled"}})}) {
        SCOPED_TRACE(shown({bad}));
        for (List list : {List{bad}, List{good, bad}})
            expectRefusal("DE01380", otherVariant, ofList, [&] { Answer{list}; });
    }
    List list = {good, QVariantMap{{"error_code", "17"}}};
    expectRefusal("DE01379", badError, ofList, [&] { Answer{list}; });
    List none;
    EXPECT_EQ(Answer(none), Answer());
}

TEST(GetStatsErrorsAnswer, clonesAndCompares)
{
    const Answer answer(twoErrors);
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetStatsErrorsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const Errors &errors : {Errors(), twoErrors.mid(0, 1), Errors{twoErrors[1], twoErrors[0]}}) {
        const Answer other(errors);
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetStatsErrorsCmd, isTold)
{
    EXPECT_EQ(argumentsOf("GET_STATS_ERRORS"),
              (Lines{"error_type (int) = 0: 1 driver, 2 hardware, 3 configuration; 0 all",
                     "  XML-RPC, another type: DE01385", "  list, another type: DE01388",
                     "position (int) = 0: a circuit's position; 0 all", "  XML-RPC, another type: DE01386",
                     "  list, another type: DE01389",
                     "error_code (string) = \"\": as errors tell it; empty for all",
                     "  XML-RPC, another type: DE01387", "  list, another type: DE01390"}));
    EXPECT_EQ(membersOf("GET_STATS_ERRORS"),
              (Lines{"GetStatsErrorsAnswer",
                     "disp_error_list (array of structs): of each error \"timestamp\", \"error_type\", "
                     "\"position_id\", \"error_code\" and \"description\"",
                     "  XML-RPC, missing or another type: DE01384",
                     "  XML-RPC, an element of another type: DE01383",
                     "  list, an element of another type: DE01380",
                     "  list, an element that is no good error: DE01379", "  XML-RPC, : DE03330",
                     "  list, : DE03331"}));
}

} // namespace
