// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilelistcmd.h"

#include "base/commandcontract.h"
#include "firmware/fwresourcefile.h"
#include "firmware/resourcetesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

using Cmd = ResourceFileListCmd;

constexpr char notMade[] = "Failed to create ResourceFileListAnswer";

AnswerFacts answers()
{
    constexpr char answerClass[] = "ResourceFileListAnswer";
    constexpr char written[] =
        R"({"res_file_list": [{"res_data_stream": <00a5>, "res_index": 3, "res_name": "P17.dmp", "res_type": 3}]})";
    const FwResourceFile file(twoBytes(), "P17.dmp", FwResourceFile::DumpFile, 3);
    AnswerFacts answers = serialAnswers();
    answers.value =
        AnswerOfValue(answerClass,
                      structOf({{"res_file_list", arrayOf(fileStruct(binary(twoBytes()), "P17.dmp", 3, 3))}}),
                      written)
            .failsWith("DE02771", notMade)
            .refuses(structOf({{"res_file_list", arrayOf()}}), "DE02759",
                     "ResourceFileListAnswer: no FwResourceFile found",
                     "ResourceFileListAnswer::ResourceFileListAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList(answerClass, {QVariant::fromValue(QList<FwResourceFile>{file})}, written)
                       .failsWith("DE02772", notMade)
                       .refuses({}, "DE02756", "Too few parameters received",
                                "ResourceFileListAnswer::ResourceFileListAnswer(QList<QVariant>&)");
    return answers;
}

TEST(ResourceFileListCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"RES_FILE_LIST", 151, "", 1};
    facts.protoType = 1;
    facts.valueFunction = "ResourceFileListCmd::ResourceFileListCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ResourceFileListCmd::ResourceFileListCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE02767", "DE02769", "ResourceFileListCmd: invalid parameter",
                                          "ResourceFileListCmd: bad parameter"})
                           .takes({-1, 0, 2147483647})};
    facts.getters = {getter(&Cmd::resource)};
    facts.words = Words("Resource files list read", "Reading resource files list");
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {Request({243}).typed<Cmd>(243).written("[243]")};
    facts.answers = answers();
    expectCommandContract(facts);
    static_assert(!std::is_constructible_v<Cmd, bool>);
    static_assert(!std::is_constructible_v<Cmd, double>);
    static_assert(!std::is_constructible_v<Cmd, const char *>);
}

} // namespace
