// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/fwerrorcmd.h"

#include "base/commandcontract.h"
#include "catalogue/protocommandlist.h"
#include "status/clearerrorscmd.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char timestamp[] = "2024-02-29T23:59:58.123Z";

AnswerFacts answers()
{
    constexpr char notCreated[] = "Failed to create FwErrorAnswer";
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    const Value error = structOf({{"error_type", 3},
                                  {"timestamp", timestamp},
                                  {"code", 99},
                                  {"module", 2},
                                  {"value", 5},
                                  {"flag", true}});
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens("FwErrorAnswer", {"8", "1", "0", "1", "7", "1", "2", "3", "4A"},
                       R"({"fw_errors": [{"code": 182041, "device": 1, "error_type": 2, "flag": false, )"
                       R"("module": 7, "timestamp": "now", "value": 10}]})")
            .ofThisMoment()
            .failsWith("DE00489", notCreated)
            .refuses({"8", "3", "0", "1", "7", "1", "2", "3", "4A"}, "DE00137",
                     "Error during command answer decoding: invalid error type",
                     "FwErrorAnswer::FwErrorAnswer(QStringList)")
            .refuses({"8", "1"}, "DE00077", "Error during command answer decoding: bad length", serial);
    answers.value =
        AnswerOfValue("FwErrorAnswer", structOf({{"fw_errors", arrayOf(error)}}),
                      R"({"fw_errors": [{"code": 99, "error_type": 3, "flag": true, "module": 2, )"
                      R"("timestamp": "2024-02-29T23:59:58.123Z", "value": 5}]})")
            .failsWith("DE00447", notCreated)
            .refuses(structOf({}), "DE00450", "FwErrorAnswer: Errors during FW_Error list creation",
                     "FwErrorAnswer::FwErrorAnswer(const XmlRpc::XmlRpcValue&)");
    answers.envelope = {"DE00447", notCreated};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<FwErrorCmd>());
    facts.catalogue = {"GET_ERROR_PKT", 12, "000C", 0};
    facts.protoType = 1;
    facts.readsByHand = true; // its argument goes no further, so that parameters() never has it
    facts.valueFunction = "FwErrorCmd::FwErrorCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "FwErrorCmd::FwErrorCmd(QList<QVariant>)";
    facts.arguments = {optional(Integer, {"DE00465", "DE00466", "Error Packet: expected INT parameter"})};
    facts.getters = {getter(&FwErrorCmd::packetIndex)};
    facts.defaults = Request().written("[]").sends({0}).holds({0});
    const auto ofIndex = [](const List &arguments, int index) {
        return Request(arguments).parameters({}).written("[]").sends({index}).holds({index}).notReadBack();
    };
    facts.requests = {
        ofIndex({5}, 5).typed<FwErrorCmd>(5),       ofIndex({-1}, -1).typed<FwErrorCmd>(-1),
        ofIndex({245}, 245).typed<FwErrorCmd>(245), ofIndex({6, "rest", true}, 6),
        ofIndex({}, 0).typed<FwErrorCmd>(),
    };
    facts.answers = answers();
    return facts;
}

TEST(FwErrorCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FwErrorCmd, arrivesAtTheOtherEndWithIndex0)
{
    const Value request = FwErrorCmd(7).toXmlRpcValue("");
    EXPECT_EQ(dumped(request), R"(["GET_ERROR_PKT"])");
    EXPECT_EQ(FwErrorCmd(FwErrorCmd(7).xmlrpc_parameters()).packetIndex(), 0);
    EXPECT_EQ(FwErrorCmd(FwErrorCmd(7).parameters()).packetIndex(), 0);
    EXPECT_EQ(FwErrorCmd(FwErrorCmd(7)).packetIndex(), 7) << "a copy keeps it";
}

TEST(FwErrorCmd, asksByDefaultWhatClearsTheErrors)
{
    for (int family : {1, 2})
        EXPECT_EQ(FwErrorCmd().serialParameters(family), ClearErrorsCmd().serialParameters(family));
    EXPECT_EQ(FwErrorCmd().serialParameters(1), QList<int>{0});
    EXPECT_EQ(ProtoCommandList::cmdCode(FwErrorCmd().command(), 1), "000C");
    EXPECT_EQ(ProtoCommandList::cmdCode(ClearErrorsCmd().command(), 1), "000C");
}

TEST(FwErrorCmd, doesNotMistakeOtherArgumentsForAnIndex)
{
    static_assert(!std::is_constructible_v<FwErrorCmd, bool>);
    static_assert(!std::is_constructible_v<FwErrorCmd, double>);
    static_assert(!std::is_constructible_v<FwErrorCmd, const char *>);
    static_assert(std::is_constructible_v<FwErrorCmd, int>);
    static_assert(!std::is_convertible_v<int, FwErrorCmd>);
}

} // namespace
