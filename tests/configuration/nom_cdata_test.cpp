// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/nom_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

constexpr char nameMissing[] = "Structure name field not found in answer";
constexpr char ofTokens[] = "NOM_cdata::NOM_cdata(QStringList, int)";
constexpr char ofText[] = "NOM_cdata::NOM_cdata(QString)";

QString nameOf(const char *received, int fieldCount)
{
    return NOM_cdata(tokens(received), fieldCount).structureName();
}

void expectNewDataMissing(const char *received, int fieldCount)
{
    expectRefusal("DE00183", "NEW_DATA field not found in answer", ofTokens,
                  [&] { NOM_cdata(tokens(received), fieldCount); });
}

} // namespace

TEST(NOM_cdata, beginsWithoutAName)
{
    const NOM_cdata row;
    EXPECT_EQ(row.commandCode(), 2);
    EXPECT_EQ(row.commandEnable(), -1);
    EXPECT_EQ(row.structureName(), QString());
    EXPECT_EQ(row.numOfConfigurationParams(), 1);
}

TEST(NOM_cdata, writesTheNameOfAnyMachine)
{
    FW_Dispenser dispenser;
    dispenser.setConfStructureName(QStringLiteral("Line 7"));
    const NOM_cdata row(&dispenser);
    EXPECT_EQ(sent(row), (QList<int>{1, 1, 6, 76, 105, 110, 101, 32, 55}));
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,Line 7"));
    EXPECT_EQ(row.numOfConfigurationParams(), 1);
    FW_Mixer mixer;
    mixer.setConfStructureName(QStringLiteral("M"));
    EXPECT_EQ(sent(NOM_cdata(&mixer)), (QList<int>{1, 1, 1, 77}));
    expectRefusal("DE00178", "Invalid Machine data", "NOM_cdata::NOM_cdata(const FW_Machine*)",
                  [] { NOM_cdata(static_cast<const FW_Machine *>(nullptr)); });
}

TEST(NOM_cdata, writesAnEmptyName)
{
    const FW_Dispenser dispenser;
    EXPECT_EQ(sent(NOM_cdata(&dispenser)), (QList<int>{1, 1, 0}));
    EXPECT_EQ(NOM_cdata(&dispenser).configurationParamsStr(), QStringLiteral("1,"));
}

TEST(NOM_cdata, takesAllTokensBehindTheCount)
{
    EXPECT_EQ(nameOf("01 01 03 41 42 63", 1), QStringLiteral("ABc"));
    EXPECT_EQ(nameOf("01 01 03 41 42 63", 2), QStringLiteral("ABc"));
    EXPECT_EQ(nameOf("01 01 02 41 42 63", 2), QStringLiteral("ABc"));
    EXPECT_EQ(NOM_cdata(tokens("01 02 03 41 42 63"), 2).commandEnable(), 2);
    EXPECT_EQ(NOM_cdata(tokens("01 02 03 41 42 63"), 2).parameters(), QList<int>());
    EXPECT_EQ(NOM_cdata(tokens("01 02 03 41 42 63"), 2).numOfConfigurationParams(), 1);
}

TEST(NOM_cdata, cutsItsNameAtWhatIsNoText)
{
    EXPECT_EQ(nameOf("01 01 02 41 1F", 1), QStringLiteral("A"));
    EXPECT_EQ(nameOf("01 01 03 41 42 7F", 2), QStringLiteral("AB"));
    EXPECT_EQ(nameOf("01 01 02 41 x", 1), QStringLiteral("A"));
    EXPECT_EQ(nameOf("01 01 02 1F 41", 2), QString());
    EXPECT_EQ(nameOf("01 01 03 41 42", 1), QString());
    EXPECT_EQ(nameOf("01 01 00", 1), QString());
}

TEST(NOM_cdata, readsTheNameOnceMoreAsANumber)
{
    expectNewDataMissing("01 01 00", 2);
    expectNewDataMissing("01 01 03 41 42", 2);
    expectNewDataMissing("01 01 03 41 42 43", 3);
    EXPECT_EQ(nameOf("01 01 14 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41", 2),
              QStringLiteral("AAAAAAAAAAAAAAAAAAAA"));
}

TEST(NOM_cdata, refusesTokensWithoutAName)
{
    expectRefusal("DE00180", nameMissing, ofTokens, [] { NOM_cdata(tokens("01 01"), 2); });
    expectRefusal("DE00180", nameMissing, ofTokens, [] { NOM_cdata(tokens("02 01 01"), 2); });
    expectRefusal("DE00085", "Command enabled field not found in answer",
                  "ConfData::ConfData(int, QStringList)", [] { NOM_cdata(tokens("01"), 2); });
    expectRefusal("DE00086", "Invalid Command enabled field in answer",
                  "ConfData::ConfData(int, QStringList)", [] { NOM_cdata(tokens("00 01"), 2); });
}

TEST(NOM_cdata, takesTheSecondPartOfTheText)
{
    EXPECT_EQ(NOM_cdata(QStringLiteral("1,Line 7")).structureName(), QStringLiteral("Line 7"));
    EXPECT_EQ(NOM_cdata(QStringLiteral("2,Line,7")).structureName(), QStringLiteral("Line"));
    EXPECT_EQ(NOM_cdata(QStringLiteral("1,")).structureName(), QString());
    EXPECT_EQ(NOM_cdata(QStringLiteral("1,%1 %2")).configurationParamsStr(), QStringLiteral("1,%1 %2"));
    expectRefusal("DE00184", nameMissing, ofText, [] { NOM_cdata(QStringLiteral("1")); });
    expectRefusal("DE00151", "Invalid Command enabled type field in answer",
                  "ConfData::ConfData(int, QString)", [] { NOM_cdata(QStringLiteral("x,Line 7")); });
}

TEST(NOM_cdata, namesTheMachine)
{
    const NOM_cdata row(QStringLiteral("2,Line 7"));
    FW_Dispenser dispenser;
    FW_Mixer mixer;
    EXPECT_TRUE(applied(row, dispenser));
    EXPECT_TRUE(applied(row, mixer));
    EXPECT_EQ(dispenser.confStructureName(), QStringLiteral("Line 7"));
    EXPECT_EQ(mixer.confStructureName(), QStringLiteral("Line 7"));
    EXPECT_FALSE(row.updateConfiguration(nullptr, nullptr, nullptr));
}

TEST(NOM_cdata, copiesAndClearsItsName)
{
    NOM_cdata row(QStringLiteral("1,Line 7"));
    const std::unique_ptr<const NOM_cdata> copy(row.clone());
    QString error;
    EXPECT_TRUE(row.updateLocalData(&error)); // nothing to move
    EXPECT_EQ(error, QString());
    EXPECT_EQ(row.structureName(), copy->structureName());
    row.clear();
    EXPECT_EQ(row.structureName(), QString());
    EXPECT_EQ(copy->structureName(), QStringLiteral("Line 7"));
    EXPECT_EQ(sentAndReceived(*copy).structureName(), QStringLiteral("Line 7"));
}

TEST(NOM_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(NOM_cdata(QStringLiteral("1,Line 7")).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
