// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilereadcmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "firmware/fwresourcefile.h"
#include "firmware/resourcetesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

using Cmd = ResourceFileReadCmd;

constexpr char notMade[] = "Failed to create ResourceFileReadAnswer";
constexpr char badAnswer[] = "ResourceFileWriteCmd: invalid FwResourceFile parameter";

AnswerFacts answers()
{
    constexpr char answerClass[] = "ResourceFileReadAnswer";
    constexpr char written[] =
        R"({"res_file": {"res_data_stream": <00a5>, "res_index": 3, "res_name": "P17.dmp", "res_type": 3}})";
    const FwResourceFile file(twoBytes(), "P17.dmp", FwResourceFile::DumpFile, 3);
    AnswerFacts answers = serialAnswers();
    answers.value =
        AnswerOfValue(answerClass, structOf({{"res_file", fileStruct(binary(twoBytes()), "P17.dmp", 3, 3)}}),
                      written)
            .failsWith("DE02765", notMade)
            .refuses(structOf({}), "DE02754", badAnswer,
                     "ResourceFileReadAnswer::ResourceFileReadAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList(answerClass, {QVariant::fromValue(file)}, written)
                       .failsWith("DE02765", notMade)
                       .refuses({7}, "DE02755", badAnswer,
                                "ResourceFileReadAnswer::ResourceFileReadAnswer(QList<QVariant>&)");
    return answers;
}

TEST(ResourceFileReadCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"RES_FILE_READ", 150, "", 1};
    facts.protoType = 1;
    facts.valueFunction = "ResourceFileReadCmd::ResourceFileReadCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ResourceFileReadCmd::ResourceFileReadCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE02760", "DE02762", "ResourceFileReadCmd: invalid parameter",
                                          "ResourceFileDeleteCmd: bad parameter"})
                           .takes({-1, 0, 2147483647})};
    facts.getters = {getter(&Cmd::resource)};
    facts.words = Words("Resource file read", "Reading resource file");
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {Request({243}).typed<Cmd>(243).written("[243]")};
    facts.answers = answers();
    expectCommandContract(facts);
}

TEST(ResourceFileReadCmd, doesNotMistakeOtherThingsForANumber)
{
    static_assert(!std::is_constructible_v<Cmd, bool>);
    static_assert(!std::is_constructible_v<Cmd, double>);
    static_assert(!std::is_constructible_v<Cmd, const char *>);
    static_assert(!std::is_convertible_v<int, Cmd>);
}

TEST(ResourceFileReadCmd, isExplained)
{
    EXPECT_EQ(argumentsOf("RES_FILE_READ"),
              (Lines{"resource (int): a number by which the driver knows the file",
                     "  XML-RPC, another type: DE02760", "  list, another type: DE02762"}));
}

} // namespace
