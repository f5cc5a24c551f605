// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilewritecmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "firmware/resourcetesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

using Cmd = ResourceFileWriteCmd;
using Files = QList<FwResourceFile>;

constexpr char ofValue[] = "ResourceFileWriteCmd::ResourceFileWriteCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ResourceFileWriteCmd::ResourceFileWriteCmd(QList<QVariant>)";
constexpr char invalid[] = "ResourceFileWriteCmd: invalid FwResourceFile parameter";

Files twoFiles()
{
    return {FwResourceFile(twoBytes(), "P17.dmp", FwResourceFile::DumpFile, 3),
            FwResourceFile("ab", "m.txt", FwResourceFile::MessageFile, 1)};
}

TEST(ResourceFileWriteCmd, keepsTheCommandContract)
{
    constexpr char written[] =
        R"([[{"res_data_stream": <00a5>, "res_index": 3, "res_name": "P17.dmp", "res_type": 3}, )"
        R"({"res_data_stream": <6162>, "res_index": 1, "res_name": "m.txt", "res_type": 2}]])";
    const Value value =
        arrayOf(arrayOf(fileStruct(binary(twoBytes()), "P17.dmp", 3, 3), fileStruct("ab", "m.txt", 2, 1)));
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"RES_FILE_WRITE", 149, "", 1};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.getters = {getter(&Cmd::resourceFiles)};
    facts.words = Words("Resource file write", "Sending resource file");
    facts.defaults = Request().parameters({QVariant::fromValue(Files())}).written("[[]]");
    const Request files =
        Request({QVariant::fromValue(twoFiles())}).typed<Cmd>(twoFiles()).value(value).written(written);
    facts.requests = {files, Request({QVariant::fromValue(Files())})
                                 .typed<Cmd>(Files())
                                 .onlyFromList()
                                 .notReadBack()
                                 .written("[[]]")};
    facts.answers = serialAnswers();
    expectCommandContract(facts);
}

TEST(ResourceFileWriteCmd, takesFilesAsVariantsToo)
{
    EXPECT_EQ(Cmd(List{QVariant(List{QVariant::fromValue(twoFiles().at(0)), fileMap("ab", "m.txt", 2, 1)})})
                  .resourceFiles(),
              twoFiles());
    EXPECT_EQ(Cmd(List{QVariant(List())}).resourceFiles(), Files());
    EXPECT_EQ(Cmd(arrayOf(arrayOf(fileStruct("x", "n", 1, 0)), "rest")).resourceFiles().size(), 1);
    static_assert(!std::is_constructible_v<Cmd, int>);
}

TEST(ResourceFileWriteCmd, needsFiles)
{
    const Value good = fileStruct("x", "n", 1, 0);
    for (const Value &other : {Value(7), Value("x"), good, structOf({})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE02722", invalid, ofValue, [&] { const Cmd command(arrayOf(other)); });
    }
    expectRefusal("DE02723", "ResourceFileWriteCmd: no FwResourceFile found", ofValue,
                  [] { const Cmd command(arrayOf(arrayOf())); });
    for (const Value &bad : {Value(7), arrayOf(good), structOf({})})
        expectRefusal("DE02719", badFile, ofFile, [&] { const Cmd command(arrayOf(arrayOf(good, bad))); });
    for (const QVariant &other :
         {QVariant(), QVariant(7), QVariant::fromValue(twoFiles().at(0)), QVariant(fileMap("x", "n", 1, 0)),
          QVariant(List{7}), QVariant(List{fileMap("x", "n", 1, 0), QVariantMap{{"res_name", "n"}}})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE02725", "ResourceFileWriteCmd: expected FwResourceFile type parameter", ofList,
                      [&] { const Cmd command(List{other}); });
    }
    expectRefusal("DE02720", badFile, ofFile,
                  [] { const Cmd command(List{QVariant(List{fileMap("x", 7, 1, 0)})}); });
}

TEST(ResourceFileWriteCmd, isExplained)
{
    EXPECT_EQ(
        argumentsOf("RES_FILE_WRITE"),
        (Lines{"files (array of structs): each \"res_data_stream\" (base64, or a text), \"res_name\", "
               "\"res_type\" "
               "(0 generic, 1 configuration, 2 messages, 3 dump, 4 corrupted) and \"res_index\"",
               "  XML-RPC, another type: DE02722", "  list, another type: DE02725",
               "  XML-RPC, without a file: DE02723", "  XML-RPC, without bytes as res_data_stream: DE02719",
               "  XML-RPC, without a string as res_name: DE02720",
               "  XML-RPC, without an int as res_type: DE02721",
               "  XML-RPC, without an int as res_index: DE02782"}));
}

} // namespace
