// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getcolorantusagestatscmd.h"

#include "base/commandcontract.h"
#include "base/factlines.h"
#include "base/outofmemory.h"
#include "statistics/colorantusagedispstats.h"
#include "statistics/getcolorantusagestatsanswer.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetColorantUsageStatsAnswer;
using Stats = ColorantUsageDispStats;

constexpr char ofAnswerValue[] =
    "GetColorantUsageStatsAnswer::GetColorantUsageStatsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofAnswerList[] = "GetColorantUsageStatsAnswer::GetColorantUsageStatsAnswer(QList<QVariant>&)";
constexpr char ofStats[] = "ColorantUsageDispStats::ColorantUsageDispStats(const XmlRpc::XmlRpcValue&)";

constexpr char noArray[] = "ColorantUsageDispStats: invalid xml-rpc type";
constexpr char noStruct[] = "ColorantUsageDispStats: invalid xml-rpc type (not struct)";
constexpr char noStats[] = "GetColorantUsageStatsAnswer encoding failed: invalid QVariant value "
                           "(expected QList of ColorantUsageDispStats type)";
constexpr char noTexts[] =
    "GetColorantUsageStatsAnswer encoding failed: invalid QVariant value (expected QStringList type)";

ColorantUsageStatData usage(double dispensed, double purged)
{
    ColorantUsageStatData data;
    data.colorantCode = QStringLiteral("B");
    data.dispensed = dispensed;
    data.purged = purged;
    return data;
}

QList<Stats> twoMachines()
{
    return {Stats("VT-17/4", {usage(12.5, 1.5), usage(3, 0.5)}), Stats("VT 18", {})};
}

Value machineStruct()
{
    return structOf({{"serial_number", "VT-17/4"},
                     {"colorant_usage_stats_data",
                      arrayOf(structOf({{"colorant_code", "B"}, {"dispensed", 12.5}, {"purged", 1.5}}),
                              structOf({{"colorant_code", "B"}, {"dispensed", 3.0}, {"purged", 0.5}}))}});
}

QVariantMap secondMap()
{
    return {{"serial_number", "VT 18"}, {"colorant_usage_stats_data", List()}};
}

constexpr char writtenAll[] =
    R"({"colorant_usage_disp_stats": [{"colorant_usage_stats_data": [)"
    R"({"colorant_code": "B", "dispensed": 12.5000, "purged": 1.50000}, )"
    R"({"colorant_code": "B", "dispensed": 3.00000, "purged": 0.500000}], "serial_number": "VT-17/4"}, )"
    R"({"colorant_usage_stats_data": [], "serial_number": "VT 18"}]})";
constexpr char writtenPurged[] =
    R"({"colorant_usage_disp_stats": [{"colorant_usage_stats_data": [{"purged": 1.50000}, {"purged": 0.500000}], )"
    R"("serial_number": "VT-17/4"}, {"colorant_usage_stats_data": [], "serial_number": "VT 18"}]})";

AnswerFacts answers()
{
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue(
            "GetColorantUsageStatsAnswer",
            structOf({{"colorant_usage_disp_stats", arrayOf(machineStruct(), valueOf(secondMap()))}}),
            writtenAll)
            .failsWith("DE03332", "Failed to create GetColorantUsageStatsAnswer")
            .refuses(structOf({}), "DE02261", noArray, ofAnswerValue)
            .refuses(structOf({{"colorant_usage_disp_stats", arrayOf(5)}}), "DE02252", noStruct, ofStats);
    answers.list =
        AnswerOfList("GetColorantUsageStatsAnswer",
                     {QVariant::fromValue(twoMachines()), QStringList{"purged", "refilled"}}, writtenPurged)
            .failsWith("DE03333", "Failed to create GetColorantUsageStatsAnswer")
            .refuses({}, "DE02259", noStats, ofAnswerList)
            .refuses({QVariant::fromValue(twoMachines())}, "DE02260", noTexts, ofAnswerList);
    return answers;
}

CommandFacts facts()
{
    const ArgumentRefusal noSerial = {"DE02262", "DE02262", "Serial number: error in value decoding"};
    const ArgumentRefusal badSerial = {"DE02263", "DE02263", "Serial number: error in serial number format"};
    const ArgumentRefusal noColorant = {"DE02264", "DE02264", "Colorant code: error in value decoding"};
    const ArgumentRefusal noInformation = {"DE02265", "DE02265", "Return info list: error in value decoding"};
    const ArgumentRefusal noCount = {"DE02266", "DE02266", "Count: error in value decoding"};

    CommandFacts facts(formsOf<GetColorantUsageStatsCmd>());
    facts.catalogue = {"GET_COL_USAGE_STATS", 118, "", 0};
    facts.protoType = 2;
    facts.valueFunction = "GetColorantUsageStatsCmd::GetColorantUsageStatsCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetColorantUsageStatsCmd::GetColorantUsageStatsCmd(QList<QVariant>)";
    facts.arguments = {
        required(Text, noSerial)
            .absent(noSerial)
            .outOfRange({"", " ", "VT_17", "123456789012345678901", QString::fromUtf8("\xC3\xB6")}, badSerial)
            .takes({"1", "12345678901234567890"}),
        required()
            .absent(noColorant)
            .refuses({Value(true), Value(7.0), arrayOf("B"), structOf({})},
                     {QVariant(), true, 7.0, QByteArray("B"), List{"B"}, QStringList{"B"}, 4294967296LL},
                     noColorant)
            .takes({"", "KX", 0, -7}),
        required()
            .absent(noInformation)
            .refuses({Value(7), Value(true), arrayOf(), arrayOf("purged"), structOf({})},
                     {QVariant(), 7, true, QByteArray("purged"), List{"purged", 7}, QVariantMap()},
                     noInformation),
        required(Integer, noCount).absent(noCount).takes({0, -1, 2147483647}),
    };
    facts.getters = {
        getter(&GetColorantUsageStatsCmd::serialNumber), getter(&GetColorantUsageStatsCmd::colorantCode),
        getter(&GetColorantUsageStatsCmd::information), getter(&GetColorantUsageStatsCmd::count)};
    facts.defaults =
        Request().parameters({"", "", "", 0}).written(R"(["", "", "", 0])").holds({"", "", QStringList(), 0});
    facts.requests = {
        Request({"VT-17/4", "B", "purged|refilled", 12})
            .typed<GetColorantUsageStatsCmd>(QString("VT-17/4"), QString("B"),
                                             QStringList{"purged", "refilled"}, 12)
            .written(R"(["VT-17/4", "B", "purged|refilled", 12])")
            .holds({"VT-17/4", "B", QStringList{"purged", "refilled"}, 12}),
        Request({"VT 18", 42, "", 1})
            .typed<GetColorantUsageStatsCmd>(QString("VT 18"), 42, QStringList(), 1)
            .written(R"(["VT 18", 42, "", 1])")
            .holds({"VT 18", 42, QStringList(), 1}),
        Request({"VT 18", "42", QStringList{"from", "to"}, 3})
            .value(arrayOf("VT 18", "42", "|from||to|", 3))
            .parameters({"VT 18", "42", "from|to", 3})
            .written(R"(["VT 18", "42", "from|to", 3])")
            .holds({"VT 18", "42", QStringList{"from", "to"}, 3}),
        Request({"VT 18", 42LL, List{"to"}, 3LL})
            .onlyFromList()
            .parameters({"VT 18", 42, "to", 3})
            .written(R"(["VT 18", 42, "to", 3])")
            .holds({"VT 18", 42, QStringList{"to"}, 3}),
    };
    facts.answers = answers();
    return facts;
}

TEST(GetColorantUsageStatsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
    static_assert(!std::is_constructible_v<GetColorantUsageStatsCmd, int>);
}

TEST(GetColorantUsageStatsCmd, writesItsInformationAsOneText)
{
    using Cmd = GetColorantUsageStatsCmd;
    EXPECT_EQ(Cmd::buildInfoListStr({}), "");
    EXPECT_EQ(Cmd::buildInfoListStr({"from"}), "from");
    EXPECT_EQ(Cmd::buildInfoListStr({"from", "to", "purged"}), "from|to|purged");
    EXPECT_EQ(Cmd::buildInfoList(""), QStringList());
    EXPECT_EQ(Cmd::buildInfoList(QString()), QStringList());
    EXPECT_EQ(Cmd::buildInfoList("|"), QStringList());
    EXPECT_EQ(Cmd::buildInfoList("from"), QStringList{"from"});
    EXPECT_EQ(Cmd::buildInfoList("|from||to|"), (QStringList{"from", "to"}));
    EXPECT_EQ(Cmd::buildInfoList("from, to"), QStringList{"from, to"});
}

TEST(ColorantUsageDispStats, travelsAsAStruct)
{
    EXPECT_STREQ(Stats::serialNumber_TAG, "serial_number");
    EXPECT_STREQ(Stats::colorantUsageStatsData_TAG, "colorant_usage_stats_data");
    EXPECT_EQ(dumped(Stats().toXmlRpcValue()), R"({"colorant_usage_stats_data": [], "serial_number": ""})");
    const Stats stats(machineStruct());
    EXPECT_EQ(stats, twoMachines()[0]);
    EXPECT_EQ(dumped(stats.toXmlRpcValue()), dumped(machineStruct()));
    EXPECT_EQ(
        dumped(stats.toXmlRpcValue({"dispensed", "to"})),
        R"({"colorant_usage_stats_data": [{"dispensed": 12.5000}, {"dispensed": 3.00000}], "serial_number": "VT-17/4"})");
}

TEST(ColorantUsageDispStats, refusesAnythingElse)
{
    for (const Value &value : {Value(), Value(5), Value("VT-17/4"), arrayOf("VT-17/4", arrayOf())})
        expectRefusal("DE02252", noStruct, ofStats, [&] { Stats{value}; });
    Value wrong[] = {structOf({}),    structOf({{"serial_number", "VT-17/4"}}),
                     machineStruct(), machineStruct(),
                     machineStruct(), structOf({{"colorant_usage_stats_data", arrayOf()}})};
    wrong[2]["serial_number"] = 17;
    wrong[3]["colorant_usage_stats_data"] = structOf({});
    wrong[4]["colorant_usage_stats_data"][1]["purged"] = "0.5";
    for (const Value &value : wrong) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02253", noArray, ofStats, [&] { Stats{value}; });
    }
    static_assert(!std::is_constructible_v<Stats, int>);
    static_assert(!std::is_constructible_v<Stats, const char *>);
}

TEST(ColorantUsageDispStats, travelsInAVariantAloneAndInAList)
{
    const QVariant one = QVariant::fromValue(twoMachines()[0]);
    EXPECT_STREQ(one.typeName(), "ColorantUsageDispStats");
    EXPECT_EQ(one, QVariant::fromValue(Stats(machineStruct())));
    EXPECT_NE(one, QVariant::fromValue(twoMachines()[1]));
    EXPECT_EQ(QVariant(one.toMap()).value<Stats>(), twoMachines()[0]);
    EXPECT_STREQ(QVariant::fromValue(twoMachines()).typeName(), "QList<ColorantUsageDispStats>");
    EXPECT_EQ(QVariant(List{one, secondMap()}).value<QList<Stats>>(), twoMachines());
    EXPECT_NE(Stats("1", {}), Stats("2", {}));
    EXPECT_NE(Stats("1", {}), Stats("1", {usage(1, 2)}));
}

TEST(GetColorantUsageStatsAnswer, writesOnlyWhatWasAskedFor)
{
    EXPECT_STREQ(Answer::colorantUsageDispStats_TAG, "colorant_usage_disp_stats");
    EXPECT_EQ(Answer(twoMachines()).protoType(), 2);
    EXPECT_EQ(dumped(Answer(twoMachines()).toXmlRpcValue()), writtenAll);
    EXPECT_EQ(dumped(Answer(twoMachines(), {"purged"}).toXmlRpcValue()), writtenPurged);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"colorant_usage_disp_stats": []})");
    EXPECT_EQ(Answer(Answer(twoMachines()).toXmlRpcValue()).stats(), twoMachines());
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
    const Answer read(Answer(twoMachines(), {"purged"}).toXmlRpcValue());
    EXPECT_EQ(dumped(read.toXmlRpcValue()), writtenPurged);
    EXPECT_EQ(read.information(), QStringList());
}

TEST(GetColorantUsageStatsAnswer, refusesAValueWithoutMachines)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)", [] { Answer{Value()}; });
    for (const Value &value : {Value(5), arrayOf(machineStruct()), structOf({}), machineStruct(),
                               structOf({{"colorant_usage_disp_stats", machineStruct()}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02261", noArray, ofAnswerValue, [&] { Answer{value}; });
    }
    const auto expectBadElement = [](const Value &bad, const char *code, const char *text) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal(code, text, ofStats, [&] {
            Answer{structOf({{"colorant_usage_disp_stats", arrayOf(machineStruct(), bad)}})};
        });
    };
    expectBadElement(arrayOf(), "DE02252", noStruct);
    expectBadElement(structOf({}), "DE02253", noArray);
    const Value whole = structOf({{"colorant_usage_disp_stats", arrayOf(valueOf(secondMap()))}});
    expectRefusal("DE02261", noArray, ofAnswerValue, [&] { outOfMemoryOnce([&] { Answer{whole}; }); });
}

TEST(GetColorantUsageStatsAnswer, needsMachinesAndInformationInAList)
{
    const QVariant machines = QVariant::fromValue(twoMachines());
    const QVariant one = QVariant::fromValue(twoMachines()[0]);
    const QVariant texts = QStringList{"purged"};
    for (const QVariant &other :
         {QVariant(), QVariant(5), one, QVariant(secondMap()), QVariant(List{one, 5}), texts,
          QVariant(List{QVariantMap{{"colorant_usage_stats_data", List()}}})}) {
        SCOPED_TRACE(shown({other}));
        List list = {other, texts};
        expectRefusal("DE02259", noStats, ofAnswerList, [&] { Answer{list}; });
    }
    for (const QVariant &other : {QVariant(), QVariant(5), QVariant("purged"), QVariant(List{"purged", 5})}) {
        SCOPED_TRACE(shown({other}));
        List list = {machines, other};
        expectRefusal("DE02260", noTexts, ofAnswerList, [&] { Answer{list}; });
    }
    List bad = {List{QVariantMap{{"serial_number", "VT 18"}}}, texts};
    expectRefusal("DE02253", noArray, ofStats, [&] { Answer{bad}; });
    List variants = {List{one, secondMap()}, List{"purged"}, "rest"};
    EXPECT_EQ(Answer(variants), Answer(twoMachines(), {"purged"}));
    List nothing = {List(), QStringList()};
    EXPECT_EQ(Answer(nothing), Answer());
}

TEST(GetColorantUsageStatsAnswer, clonesAndCompares)
{
    const Answer answer(twoMachines(), {"purged"});
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetColorantUsageStatsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const Answer &other :
         {Answer(), Answer(twoMachines()), Answer(twoMachines(), {"purged", "to"}), Answer({}, {"purged"})}) {
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetColorantUsageStatsCmd, isTold)
{
    EXPECT_EQ(
        argumentsOf("GET_COL_USAGE_STATS"),
        (Lines{"serial_number (string): of the machine",
               "  XML-RPC, missing: DE02262",
               "  list, missing: DE02262",
               "  XML-RPC, another type: DE02262",
               "  list, another type: DE02262",
               "  XML-RPC, out of range: DE02263",
               "  list, out of range: DE02263",
               "colorant_code (string): a text or an int",
               "  XML-RPC, missing: DE02264",
               "  list, missing: DE02264",
               "  XML-RPC, another type: DE02264",
               "  list, another type: DE02264",
               "information (string): what is wanted to know, with a bar between: colorant_code, from, to, "
               "dispensed, "
               "purged, refilled, dispensations; all when it is empty",
               "  XML-RPC, missing: DE02265",
               "  list, missing: DE02265",
               "  XML-RPC, another type: DE02265",
               "  list, another type: DE02265",
               "count (int): of records, at most",
               "  XML-RPC, missing: DE02266",
               "  list, missing: DE02266",
               "  XML-RPC, another type: DE02266",
               "  list, another type: DE02266"}));
    EXPECT_EQ(membersOf("GET_COL_USAGE_STATS"),
              (Lines{"GetColorantUsageStatsAnswer",
                     "colorant_usage_disp_stats (array of structs): of each machine its \"serial_number\", "
                     "and in an array "
                     "what it has used of the colorant, each time with the information that was asked for",
                     "  XML-RPC, missing or another type: DE02261",
                     "  XML-RPC, an element of another type: DE02252",
                     "  XML-RPC, an element without a string as serial_number and an array of records as "
                     "colorant_usage_stats_data: DE02253",
                     "  list, missing or another type: DE02259",
                     "  list, without the information that was asked for: DE02260", "  XML-RPC, : DE03332",
                     "  list, : DE03333"}));
}

} // namespace
