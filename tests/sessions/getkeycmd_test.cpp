// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/getkeycmd.h"

#include "base/commandcontract.h"

#include <map>
#include <set>

namespace {

using namespace testing_base;

constexpr char notMade[] = "Failed to create DispenserStatusAnswer";

AnswerFacts answers()
{
    constexpr char invalid[] = "GetKeyAnswer decoding failed: invalid QVariant value";
    constexpr char dump[] = R"({"driver_key": "38"})";
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue("GetKeyAnswer", structOf({{"driver_key", "38"}}), dump)
            .failsWith("DE01289", notMade)
            .refuses(Value(0), "DE00908", invalid, "GetKeyAnswer::GetKeyAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("GetKeyAnswer", {"38"}, dump)
                       .failsWith("DE00912", notMade)
                       .refuses({}, "DE00908", invalid, "GetKeyAnswer::GetKeyAnswer(QList<QVariant>&)");
    return answers;
}

CommandFacts facts()
{
    constexpr char noKey[] = "Client key decoding failed: expected String containing an Int value";
    CommandFacts facts(formsOf<GetKeyCmd>());
    facts.catalogue = {"GET_KEY", 61, "", 2};
    facts.protoType = 2;
    facts.valueFunction = "GetKeyCmd::GetKeyCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetKeyCmd::GetKeyCmd(QList<QVariant>)";
    facts.arguments = {
        required(Text, {"DE00918", "DE00918", "Session ID decoding failed: expected String type"})
            .outOfRange({""}, {"DE00917", "DE00917", "Session ID decoding failed: empty String received"})
            .takes({"7", " ", QString::fromUtf8("S\xC3\xBC")}),
        required(Text, {"DE00910", "DE00910", "Client key decoding failed: expected String type"})
            .outOfRange({""}, {"DE00916", "DE00916", "Client key decoding failed: empty String received"})
            .outOfRange({"key", "7x", "2.5", "0x7", "2147483648", " "}, {"DE00915", "DE00915", noKey})
            .takes({"0", "59", "-5", "2147483647"}),
    };
    facts.getters = {getter(&GetKeyCmd::sessionID), getter(&GetKeyCmd::clientKey)};
    facts.words = silence();
    facts.defaults = Request().parameters({"", ""}).written(R"(["", ""])");
    facts.requests = {
        Request({"S-7", "38"}).typed<GetKeyCmd>(QString("S-7"), QString("38")).written(R"(["S-7", "38"])"),
        Request({QString::fromUtf8("S\xC3\xBC"), "7"}).written("[\"S\xC3\xBC\", \"7\"]"),
    };
    facts.answers = answers();
    return facts;
}

TEST(GetKeyCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetKeyCmd, checksTextsThatItReadsAlone)
{
    const GetKeyCmd command(QString(), QString("no number"));
    EXPECT_EQ(command.sessionID(), "");
    EXPECT_EQ(command.clientKey(), "no number");
}

TEST(GetKeyExchange, drawsFromTwoToNine)
{
    std::set<int> drawn;
    for (int i = 0; i < 2000; ++i)
        drawn.insert(GetKeyCmd::getRandomValue());
    EXPECT_EQ(drawn, (std::set<int>{2, 3, 4, 5, 6, 7, 8, 9}));
}

/** What a secret is shown to the other side as: 50 to its power, divided by 59, the rest. */
const std::map<int, QString> publicValues = {{2, "22"}, {3, "38"}, {4, "12"}, {5, "10"},
                                             {6, "28"}, {7, "43"}, {8, "26"}, {9, "2"}};

TEST(GetKeyExchange, givesTheValueOfTheSecretThatItDraws)
{
    std::set<int> drawn;
    for (int i = 0; i < 2000; ++i) {
        QString key;
        int secret = 0;
        ASSERT_TRUE(GetKeyCmd::createSharedKey(&key, &secret));
        ASSERT_EQ(publicValues.count(secret), 1U) << secret;
        EXPECT_EQ(key, publicValues.at(secret));
        drawn.insert(secret);
    }
    EXPECT_EQ(drawn.size(), publicValues.size());
}

TEST(GetKeyExchange, needsAPlaceForBothValues)
{
    QString key = QStringLiteral("as it was");
    int secret = 77;
    EXPECT_FALSE(GetKeyCmd::createSharedKey(nullptr, &secret));
    EXPECT_EQ(secret, 77);
    EXPECT_FALSE(GetKeyCmd::createSharedKey(&key, nullptr));
    EXPECT_EQ(key, "as it was");
    EXPECT_FALSE(GetKeyCmd::createSharedKey(nullptr, nullptr));
}

TEST(GetKeyExchange, givesBothSidesTheSameKey)
{
    for (const auto &[mine, myValue] : publicValues) {
        for (const auto &[other, otherValue] : publicValues) {
            const QString key = GetKeyCmd::createLoginKey(otherValue, mine);
            EXPECT_EQ(key, GetKeyCmd::createLoginKey(myValue, other)) << mine << " and " << other;
            EXPECT_FALSE(key.isEmpty());
        }
    }
    EXPECT_EQ(GetKeyCmd::createLoginKey("22", 3), "28"); // 10648 is 180 times 59 and 28
    EXPECT_EQ(GetKeyCmd::createLoginKey("38", 2), "28"); // 1444 is 24 times 59 and 28
}

TEST(GetKeyExchange, givesThePowerOfTheOthersValue)
{
    EXPECT_EQ(GetKeyCmd::createLoginKey("7", 1), "7");
    EXPECT_EQ(GetKeyCmd::createLoginKey("60", 1), "1");
    EXPECT_EQ(GetKeyCmd::createLoginKey("59", 1), "0");
    EXPECT_EQ(GetKeyCmd::createLoginKey("118", 4), "0");
    EXPECT_EQ(GetKeyCmd::createLoginKey("1", 2147483647), "1");
    EXPECT_EQ(GetKeyCmd::createLoginKey("2", 10), "21"); // 1024 is 17 times 59 and 21
    EXPECT_EQ(GetKeyCmd::createLoginKey("2", 63), "32"); // the greatest power of 2 that 64 bits hold
    EXPECT_EQ(GetKeyCmd::createLoginKey("2", 64), "0");  // and the next, of which nothing is left
    EXPECT_EQ(GetKeyCmd::createLoginKey("3", 41), "23"); // more than 64 bits, of which the lower are taken
    EXPECT_EQ(GetKeyCmd::createLoginKey("18446744073709551615", 2), "1");
}

TEST(GetKeyExchange, givesNoKeyForWhatIsNone)
{
    for (const char *other : {"0", "", "seven", "7x", "2.5", "-7", "18446744073709551616"})
        EXPECT_TRUE(GetKeyCmd::createLoginKey(other, 5).isEmpty()) << other;
    for (int secret : {0, -1, -2147483647})
        EXPECT_TRUE(GetKeyCmd::createLoginKey("7", secret).isEmpty()) << secret;
}

} // namespace
