// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareupdatecmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "firmware/fwupdateresult.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <string>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "FirmwareUpdateCmd::FirmwareUpdateCmd(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "FirmwareUpdateCmd::FirmwareUpdateCmd(QList<QVariant>)";
constexpr char badFile[] = "FirmwareUpdateCmd: invalid FirmwareFile parameter";
constexpr char noFile[] = "FirmwareUpdateCmd: expected FirmwareFile type parameter";

QVariant variantOf(const FirmwareFiles &files)
{
    return QVariant::fromValue(files);
}

Value fileStruct(const char *image, const Value &addresses, int type)
{
    std::string bytes(image);
    return structOf({{"image", Value(static_cast<void *>(bytes.data()), static_cast<int>(bytes.size()))},
                     {"board_addresses", addresses},
                     {"board_type", type}});
}

Words updating(const char *boards)
{
    const std::string text = std::string("Firmware update to the following boards:\n") + boards;
    return {"Firmware update", "Updating firmware", untranslated(text.c_str())};
}

AnswerFacts answers()
{
    constexpr char notCreated[] = "Failed to create FirmwareUpdateAnswer";
    constexpr char invalid[] = "FirmwareUpdateAnswer: invalid FwUpdateResultList parameter";
    constexpr char written[] = R"({"update_result": [{"board_address": 3, "update_result": 4}]})";
    AnswerFacts answers = serialAnswers();
    answers.value =
        AnswerOfValue(
            "FirmwareUpdateAnswer",
            structOf({{"update_result", arrayOf(structOf({{"board_address", 3}, {"update_result", 4}}))}}),
            written)
            .failsWith("DE00181", notCreated)
            .refuses(structOf({}), "DE00972", invalid,
                     "FirmwareUpdateAnswer::FirmwareUpdateAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list =
        AnswerOfList("FirmwareUpdateAnswer", {QVariant::fromValue(QList<FwUpdateResult>{{3, 4}})}, written)
            .failsWith("DE00528", notCreated)
            .refuses({5}, "DE00967", invalid, "FirmwareUpdateAnswer::FirmwareUpdateAnswer(QList<QVariant>&)");
    answers.envelope = {"DE00181", notCreated};
    return answers;
}

CommandFacts facts()
{
    const FirmwareFile slaves("abc", {3, 4}, 2);
    const FirmwareFile machine("de", {201}, 1);
    CommandFacts facts(formsOf<FirmwareUpdateCmd>());
    facts.catalogue = {"UPDATE_FW", 33, "", 1};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.timeNeedsAMachine = true;
    facts.valueFunction = ofValue;
    facts.listFunction = ofList;
    facts.getters = {getter(&FirmwareUpdateCmd::files)};
    facts.defaults = Request().parameters({variantOf({})}).written("[[]]").says(updating(""));
    facts.requests = {
        Request({variantOf({slaves, machine})})
            .typed<FirmwareUpdateCmd>(FirmwareFiles{slaves, machine})
            .value(arrayOf(arrayOf(fileStruct("abc", arrayOf(3, 4), 2), fileStruct("de", arrayOf(201), 1))))
            .written(
                R"([[{"board_addresses": [3, 4], "board_type": 2, "image": <616263>, "parallel_send": false}, )"
                R"({"board_addresses": [201], "board_type": 1, "image": <6465>, "parallel_send": false}]])")
            .takes(97500)
            .says(updating("Boards 3,4 of type 2: 3 bytes\nBoards 201 of type 1: 2 bytes\n")),
        Request({variantOf({})})
            .typed<FirmwareUpdateCmd>(FirmwareFiles())
            .onlyFromList()
            .written("[[]]")
            .notReadBack()
            .says(updating("")),
    };
    facts.answers = answers();
    return facts;
}

TEST(FirmwareUpdateCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareUpdateCmd, tellsItsArgument)
{
    constexpr char files[] =
        "files (array of structs): of each file \"image\" (binary), \"board_addresses\" (array of ints), "
        "\"board_type\" (int) and, where the boards take it all at once, \"parallel_send\" (bool)";
    EXPECT_EQ(argumentsOf("UPDATE_FW"),
              (Lines{files, "  XML-RPC, another type: DE00846", "  list, another type: DE00851",
                     "  XML-RPC, empty: DE00849", "  XML-RPC, with a bad file: DE00848",
                     "  list, with a bad file: DE00851"}));
}

TEST(FirmwareUpdateCmd, needsAnArrayOfFiles)
{
    for (const Value &other : {Value(5), Value("x"), fileStruct("abc", arrayOf(3), 2)}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00846", "FirmwareUpdateCmd: invalid xml-rpc type (not array)", ofValue,
                      [&] { const FirmwareUpdateCmd command(arrayOf(other)); });
    }
    expectRefusal("DE00849", "FirmwareUpdateCmd: no FirmwareFile found", ofValue,
                  [] { const FirmwareUpdateCmd command(arrayOf(arrayOf())); });
    const Value good = fileStruct("abc", arrayOf(3), 2);
    for (const Value &bad : {Value(5), structOf({}), fileStruct("abc", Value(3), 2),
                             structOf({{"board_addresses", arrayOf(3)}, {"board_type", 2}})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE00848", badFile, ofValue,
                      [&] { const FirmwareUpdateCmd command(arrayOf(arrayOf(good, bad))); });
    }
    static_assert(!std::is_constructible_v<FirmwareUpdateCmd, int>);
    static_assert(!std::is_constructible_v<FirmwareUpdateCmd, const char *>);
}

TEST(FirmwareUpdateCmd, takesFilesAsVariantsToo)
{
    const FirmwareFile file("abc", {3}, 2);
    const QVariant one = QVariant::fromValue(file);
    EXPECT_EQ(FirmwareUpdateCmd(List{QVariant(List{one, one.toMap()})}).files(), (FirmwareFiles{file, file}));
    EXPECT_EQ(FirmwareUpdateCmd(List{QVariant(List())}).files(), FirmwareFiles());
}

TEST(FirmwareUpdateCmd, needsAListOfFiles)
{
    for (const QVariant &other :
         {QVariant(), QVariant(5), QVariant("x"), QVariant::fromValue(FirmwareFile()), QVariant(List{5}),
          QVariant(List{QVariantMap{{"board_type", 2}}}), QVariant(List{QVariantMap{{"image", "abc"}}})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE00851", noFile, ofList, [&] { const FirmwareUpdateCmd command(List{other}); });
    }
}

TEST(FirmwareUpdateCmd, tellsWhenThereIsNoMemoryForAFile)
{
    const Value value = arrayOf(arrayOf(fileStruct("abc", arrayOf(3), 2)));
    expectRefusal("DE00848", badFile, ofValue,
                  [&] { outOfMemoryOnce([&] { const FirmwareUpdateCmd command(value); }); });
    const List list = {QVariant(List{QVariant::fromValue(FirmwareFile("abc", {3}, 2)).toMap()})};
    expectRefusal("DE00851", noFile, ofList,
                  [&] { outOfMemoryOnce([&] { const FirmwareUpdateCmd command(list); }); });
}

// ---------------------------------------------------------------- how long it takes

FirmwareFile fileOf(int type, const QList<int> &addresses, int size = 100000)
{
    return FirmwareFile(QByteArray(size, 'x'), addresses, type);
}

FirmwareFile parallelFile(int type, const QList<int> &addresses)
{
    FirmwareFile file = fileOf(type, addresses);
    file.setParallelSendSupported(true);
    return file;
}

FW_Dispenser dispenserAt(const QList<int> &positions)
{
    FW_Dispenser dispenser;
    FW_Canister canister(1);
    for (const int position : positions)
        canister.addCircuit(FW_Circuit(position, position));
    dispenser.addCanister(canister);
    return dispenser;
}

TEST(FirmwareUpdateCmd, takesTimeForEachBoard)
{
    struct Row
    {
        FirmwareFiles files;
        long long time;
    };
    const Row rows[] = {
        {{}, 0},
        {{fileOf(1, {})}, 47000},
        {{fileOf(2, {})}, 31000},
        {{fileOf(1, {201})}, 73500}, // 14000 + 17500 + 9000 + 25000 + 8000
        {{fileOf(1, {201, 202})}, 100000},
        {{fileOf(6, {206})}, 74500},
        {{fileOf(8, {208})}, 74500},
        {{fileOf(9, {209})}, 77900},
        {{fileOf(11, {211})}, 88500},
        {{fileOf(2, {3})}, 86500},
        {{fileOf(2, {3, 4})}, 122000}, // 6000 + 2 * (7000 + 17500) + 31000 + 11000 + 25000
        {{fileOf(2, {3, 4, 5})}, 157500},
        {{fileOf(3, {203})}, 80500},
        {{fileOf(3, {203, 204})}, 130000},
        {{fileOf(14, {214})}, 80500},
        {{fileOf(15, {215})}, 80500},
        {{fileOf(13, {213})}, 95500},
        {{fileOf(4, {204})}, 85500},
        {{fileOf(7, {207})}, 85500},
        {{fileOf(99, {7})}, 85500},
        // all at once: the others are spared the opening, unless they are slow
        {{parallelFile(2, {3, 4})}, 104500},
        {{parallelFile(3, {203, 204})}, 112500},
        {{parallelFile(1, {201, 202})}, 100000},
        // the first file's type decides how it begins and ends, and what slow boards take
        {{fileOf(3, {203}), fileOf(1, {201})}, 107000},
        {{fileOf(1, {201}), fileOf(3, {203})}, 123000},
        {{fileOf(6, {206}), fileOf(1, {201})}, 102000},
        {{fileOf(1, {201}), fileOf(6, {206})}, 100000},
        {{fileOf(9, {209}), fileOf(2, {3})}, 133400},
        {{fileOf(11, {211}), fileOf(9, {209})}, 130000},
        {{fileOf(2, {3}), fileOf(2, {4})}, 142000}, // each file has a first board of its own
        // what is less than a millisecond is lost for each board
        {{fileOf(1, {201}, 99)}, 64508},
        {{fileOf(4, {204}, 7)}, 55502},
        {{fileOf(3, {203, 204}, 3)}, 80000},
        {{fileOf(2, {3, 4}, 109)}, 80044},
    };
    for (const Row &row : rows) {
        QString files;
        for (const FirmwareFile &file : row.files)
            files += file.traceString() + QLatin1Char(' ');
        EXPECT_EQ(FirmwareUpdateCmd(row.files).getCmdEstimatedExecutionTime(nullptr), row.time)
            << files.toStdString();
    }
}

TEST(FirmwareUpdateCmd, takesNoTimeForCircuitsBoardsThatAreNotWired)
{
    const FirmwareUpdateCmd command(FirmwareFiles{fileOf(2, {3, 4})});
    const FW_Mixer mixer;
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&mixer), 122000);
    const struct
    {
        QList<int> positions;
        long long time;
    } rows[] = {{{3, 4}, 122000}, {{3}, 86500}, {{4}, 86500}, {{}, 31000}, {{5}, 31000}};
    for (const auto &row : rows) {
        const FW_Dispenser dispenser = dispenserAt(row.positions);
        EXPECT_EQ(command.getCmdEstimatedExecutionTime(&dispenser), row.time) << row.positions.size();
        EXPECT_EQ(
            FirmwareUpdateCmd(FirmwareFiles{fileOf(3, {3, 4})}).getCmdEstimatedExecutionTime(&dispenser),
            130000)
            << "a board of another type";
    }
    const FW_Dispenser second = dispenserAt({4});
    EXPECT_EQ(FirmwareUpdateCmd(FirmwareFiles{parallelFile(2, {3, 4})}).getCmdEstimatedExecutionTime(&second),
              86500)
        << "the first that is there is the first";
}

// ---------------------------------------------------------------- gates

TEST(FirmwareUpdateCmd, knowsWhichFirmwareTakesFilesHow)
{
    struct Row
    {
        FW_Version version;
        bool multiple = false;
        bool bluetooth = false;
    };
    const Row rows[] = {
        {FW_Version(), false, false},       {FW_Version(70, -1), false, false},
        {FW_Version(63, 31), false, false}, {FW_Version(63, 32), true, false},
        {FW_Version(63, 33), true, false},  {FW_Version(63, 34), true, true},
        {FW_Version(70, 0), true, false},   {FW_Version(70, 4), true, false},
        {FW_Version(70, 5), true, true},    {FW_Version(72, 0), true, false},
        {FW_Version(72, 5), true, false},   {FW_Version(72, 6), true, true},
        {FW_Version(1, 0), true, false},    {FW_Version(68, 99), true, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.version.toString().toStdString());
        EXPECT_EQ(FirmwareUpdateCmd::isMultipleFileSendSupported(row.version), row.multiple);
        EXPECT_EQ(FirmwareUpdateCmd::isBluetoothFileSendSupported(row.version), row.bluetooth);
    }
}

} // namespace
