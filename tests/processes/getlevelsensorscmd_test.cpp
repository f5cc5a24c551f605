// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getlevelsensorscmd.h"

#include "base/commandcontract.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <type_traits>

namespace {

using namespace testing_base;

AnswerFacts answers()
{
    constexpr char failed[] = "Failed to create GetLevelSensorsAnswer";
    const std::string written = R"({"levels": [[3, 300]]})";
    AnswerFacts answers = serialAnswers();
    answers.tokens = AnswerOfTokens("GetLevelSensorsAnswer", {"4", "1", "3", "36", "1"}, written)
                         .failsWith("DE03189", failed)
                         .refuses({"0"}, "DE03192", "GetLevelSensorsAnswer: expected the number of positions",
                                  "GetLevelSensorsAnswer::GetLevelSensorsAnswer(QStringList)");
    answers.value =
        AnswerOfValue("GetLevelSensorsAnswer", structOf({{"levels", arrayOf(arrayOf(3, 300))}}), written)
            .failsWith("DE03190", failed)
            .refuses(structOf({}), "DE03195", "GetLevelSensorsAnswer: expected levels value",
                     "GetLevelSensorsAnswer::GetLevelSensorsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.envelope = {"DE03191", failed};
    return answers;
}

std::vector<Gate> firmware()
{
    return {{FW_Version(63, 39), false}, {FW_Version(63, 40), true},  {FW_Version(63, 99), true},
            {FW_Version(62, 99), false}, {FW_Version(70, 99), false}, {FW_Version(), false}};
}

CommandFacts facts()
{
    constexpr char label[] = "Read level sensors";
    constexpr char brief[] = "Level sensor read";
    const auto positions = [](const List &list) { return QVariant(list); };
    CommandFacts facts(formsOf<GetLevelSensorsCmd>());
    facts.catalogue = {"GET_LEVEL_SENSORS", 156, "0029", 0};
    facts.protoType = 1;
    facts.valueFunction = "GetLevelSensorsCmd::GetLevelSensorsCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetLevelSensorsCmd::GetLevelSensorsCmd(QList<QVariant>)";
    facts.arguments = {
        optional().refuses({Value(7), Value(true), Value("7"), structOf({}), arrayOf(7, "8"), arrayOf(7.0)},
                           {QVariant(), 7, true, "7", QVariantMap(), List{7, "8"}, List{7.0},
                            QStringList{"7"}, List{2147483648LL}},
                           {"DE02847", "DE02848", "GetLevelSensorsCmd: invalid parameter"})};
    facts.defaults = Request()
                         .parameters({positions({})})
                         .written("[[]]")
                         .sends({0})
                         .says({label, brief, "Level sensor read for positions "});
    facts.requests = {
        Request({positions({3, 5})})
            .value(arrayOf(arrayOf(3, 5)))
            .typed<GetLevelSensorsCmd>(QList<int>{3, 5})
            .written("[[3, 5]]")
            .sends({0, 3, 5})
            .says({label, brief, "Level sensor read for positions 3,5"}),
        Request(List())
            .parameters({positions({})})
            .typed<GetLevelSensorsCmd>(QList<int>())
            .written("[[]]")
            .sends({0})
            .says({label, brief, "Level sensor read for positions "}),
    };
    facts.requests.push_back(facts.requests.front().alsoFromList({QVariant::fromValue(QList<int>{3, 5})}));
    facts.timeNeedsAMachine = true;
    facts.firmware = firmware();
    facts.answers = answers();
    return facts;
}

TEST(GetLevelSensorsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetLevelSensorsCmd, knowsItsFirmware)
{
    for (const Gate &gate : firmware())
        EXPECT_EQ(GetLevelSensorsCmd::checkSupportedCommand(gate.version), gate.isSupported)
            << gate.version.toString().toStdString();
}

TEST(GetLevelSensorsCmd, holdsThePositions)
{
    EXPECT_EQ(GetLevelSensorsCmd(arrayOf(arrayOf(3, 5))).positions(), (QList<int>{3, 5}));
    EXPECT_EQ(GetLevelSensorsCmd(List{QVariant(List{3, 5})}).positions(), (QList<int>{3, 5}));
    EXPECT_EQ(GetLevelSensorsCmd().positions(), QList<int>());
}

TEST(GetLevelSensorsCmd, takesTimeForTheReadingsOneAfterTheOther)
{
    FW_Dispenser dispenser;
    const auto time = [&](const QList<int> &positions, int parallelism) {
        dispenser.setTintingParallelism(parallelism);
        return GetLevelSensorsCmd(positions).getCmdEstimatedExecutionTime(&dispenser);
    };
    EXPECT_EQ(time({1, 2, 3, 4, 5}, 1), 40000);
    EXPECT_EQ(time({1, 2, 3, 4, 5}, 2), 16000); // in whole numbers
    EXPECT_EQ(time({1, 2, 3, 4, 5}, 5), 8000);
    EXPECT_EQ(time({1, 2, 3, 4, 5}, 6), 0);
    EXPECT_EQ(time({}, 1), 0);
    EXPECT_EQ(time({1, 2}, 0), 0);
    EXPECT_EQ(time({1, 2}, -1), 0);
    const FW_Mixer mixer;
    EXPECT_EQ(GetLevelSensorsCmd(QList<int>{1}).getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(GetLevelSensorsCmd(QList<int>{1}).getCmdEstimatedExecutionTime(nullptr), 0);
}

TEST(GetLevelSensorsCmd, doesNotMistakeOneNumberForPositions)
{
    static_assert(!std::is_constructible_v<GetLevelSensorsCmd, int>);
    static_assert(!std::is_constructible_v<GetLevelSensorsCmd, bool>);
    static_assert(!std::is_constructible_v<GetLevelSensorsCmd, double>);
    static_assert(!std::is_constructible_v<GetLevelSensorsCmd, const char *>);
}

} // namespace
