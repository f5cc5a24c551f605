// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/confdata.h"

#include "configurationtesting.h"

#include <QuvFramework/fw_mixer.h>

#include <limits>

namespace {

using namespace testing_configuration;

constexpr char ofTokens[] = "ConfData::ConfData(int, QStringList)";
constexpr char ofText[] = "ConfData::ConfData(int, QString)";
constexpr int greatest = std::numeric_limits<int>::max();

/** A row of no structure in particular. */
class Row : public ConfData
{
public:
    using ConfData::ConfData;
    Row(int enabled, const QList<int> &parameters)
    {
        m_cmdEnabled = enabled;
        m_parameters = parameters;
    }

    Row *clone() const override { return new Row(*this); }
    bool updateConfiguration(FW_Machine *, FW_CalibrationProfiles *, QList<int> *) const override
    {
        return true;
    }
    Value toXmlRpcValue() const override { return confData_toXmlRpcValue(); }
    bool updateLocalData(QString *) override { return true; }
};

QList<int> serialParam(int value)
{
    QList<int> out{99}; // what is there stays
    EXPECT_TRUE(ConfData::createSerialParam(value, &out));
    EXPECT_EQ(out.takeFirst(), 99);
    return out;
}

/** The number of digits, then the value. */
std::pair<int, int> parsed(const QStringList &tokens)
{
    int value = 77;
    const int digits = ConfData::parseConfigurationParam(&value, tokens);
    return {digits, value};
}

std::pair<int, QString> parsedText(const QStringList &tokens)
{
    QString value = QStringLiteral("before");
    const int digits = ConfData::parseConfigurationParam(&value, tokens);
    return {digits, value};
}

using Number = std::pair<int, int>;
using Text = std::pair<int, QString>;

// ---------------------------------------------------------------- structures

TEST(ConfData, namesTheStructures)
{
    const QStringList names =
        tokens("@ICS @NOM @GMC @ACP @CPT @AGI @HUM @TEM @SGA @RAM @FOT @AUT @BHL @LIT @TTD @PUL "
               "@HEA @NOZ @MOT @LTD @USS @PRO @ZDR @MIX @LCK @PLC");
    ASSERT_EQ(names.size(), 26);
    for (int code = 1; code <= 26; ++code) {
        SCOPED_TRACE(code);
        EXPECT_EQ(ConfData::confCommandToString(code), names.at(code - 1));
        EXPECT_TRUE(ConfData::checkCommandCode(code));
    }
    for (const int code : {0, 27, -1, greatest, std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(code);
        EXPECT_EQ(ConfData::confCommandToString(code), QString());
        EXPECT_FALSE(ConfData::checkCommandCode(code));
        EXPECT_FALSE(ConfData::isMultipleInstance(code));
        EXPECT_FALSE(ConfData::isCommandCodeSupported(code, SerialDeviceType::Dispenser));
        EXPECT_FALSE(ConfData::isCommandCodeSupported(code, SerialDeviceType::Mixer));
    }
}

TEST(ConfData, knowsWhichDeviceHasAStructure)
{
    const QList<int> onNoDevice{12, 23, 24};
    for (int code = 1; code <= 26; ++code) {
        SCOPED_TRACE(code);
        EXPECT_EQ(ConfData::isCommandCodeSupported(code, static_cast<SerialDeviceType>(1)),
                  !onNoDevice.contains(code));
        EXPECT_EQ(ConfData::isCommandCodeSupported(code, static_cast<SerialDeviceType>(4)), code <= 2);
        for (const int other : {0, 2, 3, 5, -1}) {
            SCOPED_TRACE(other);
            EXPECT_FALSE(ConfData::isCommandCodeSupported(code, static_cast<SerialDeviceType>(other)));
        }
    }
}

TEST(ConfData, knowsWhichStructuresExistOnceForEachId)
{
    const QList<int> multiple{5, 6, 10, 19, 22};
    for (int code = 1; code <= 26; ++code)
        EXPECT_EQ(ConfData::isMultipleInstance(code), multiple.contains(code)) << code;
}

TEST(ConfData, knowsTheValuesOfEnabled)
{
    for (const int good : {0, 1, 2}) {
        SCOPED_TRACE(good);
        EXPECT_TRUE(ConfData::checkCommandEnable(good));
    }
    for (const int bad : {-1, 3, greatest, std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(bad);
        EXPECT_FALSE(ConfData::checkCommandEnable(bad));
    }
}

// ---------------------------------------------------------------- fields on the link

TEST(ConfData, writesANumberAsItsDigits)
{
    EXPECT_EQ(serialParam(0), (QList<int>{1, 0}));
    EXPECT_EQ(serialParam(1), (QList<int>{1, 1}));
    EXPECT_EQ(serialParam(245), (QList<int>{1, 245}));
    EXPECT_EQ(serialParam(246), (QList<int>{2, 0, 1}));
    EXPECT_EQ(serialParam(300), (QList<int>{2, 54, 1}));
    EXPECT_EQ(serialParam(246 * 246), (QList<int>{3, 0, 0, 1}));
    EXPECT_EQ(serialParam(greatest), (QList<int>{4, 79, 52, 62, 144}));
}

TEST(ConfData, writesNoNegativeNumber)
{
    QList<int> out;
    EXPECT_FALSE(ConfData::createSerialParam(-1, &out));
    EXPECT_FALSE(ConfData::createSerialParam(1, nullptr));
}

TEST(ConfData, writesATextAsItsCharacters)
{
    QList<int> out{99};
    EXPECT_TRUE(ConfData::createSerialParam(QStringLiteral("Ab 1"), &out));
    EXPECT_EQ(out, (QList<int>{99, 4, 65, 98, 32, 49}));
    out.clear();
    EXPECT_TRUE(ConfData::createSerialParam(QString::fromUtf8("\u00E9\u20AC\u00FF"), &out));
    EXPECT_EQ(out, (QList<int>{3, -23, 0, -1}));
    out.clear();
    EXPECT_TRUE(ConfData::createSerialParam(QString(), &out));
    EXPECT_EQ(out, (QList<int>{0}));
    EXPECT_FALSE(ConfData::createSerialParam(QStringLiteral("a"), nullptr));
}

TEST(ConfData, readsANumberOfItsDigits)
{
    EXPECT_EQ(parsed(tokens("01 00")), (Number{1, 0}));
    EXPECT_EQ(parsed(tokens("01 f5")), (Number{1, 245}));
    EXPECT_EQ(parsed(tokens("02 36 01")), (Number{2, 300}));
    EXPECT_EQ(parsed(tokens("02 36 01 07 08")), (Number{2, 300}));
    EXPECT_EQ(parsed(tokens("04 4F 34 3E 90")), (Number{4, 2147483647}));
    EXPECT_EQ(parsed(tokens("3 1 0 0")), (Number{3, 1}));
}

TEST(ConfData, readsNoNumberOfAnythingElse)
{
    const Number none{0, 0};
    EXPECT_EQ(parsed({}), none);
    EXPECT_EQ(parsed(tokens("01")), none);
    EXPECT_EQ(parsed(tokens("00 05")), none);
    EXPECT_EQ(parsed(tokens("02 05")), none);
    EXPECT_EQ(parsed(tokens("zz 05")), none);
    EXPECT_EQ(parsed(tokens("01 zz")), none);
    EXPECT_EQ(parsed({QString(), QStringLiteral("05")}), none);
    EXPECT_EQ(parsed(tokens("FFFFFFFF 05")), none);
    EXPECT_EQ(parsed(tokens("04 50 34 3E 90")), none); // one more than an int holds
    EXPECT_EQ(parsed(tokens("09 FF FF FF FF FF FF FF FF FF")), none);
}

TEST(ConfData, readsATextToTheEndOfTheTokens)
{
    EXPECT_EQ(parsedText(tokens("02 41 7E")), (Text{2, QStringLiteral("A~")}));
    EXPECT_EQ(parsedText(tokens("01 41 20 62")), (Text{1, QStringLiteral("A b")}));
}

TEST(ConfData, readsNoTextOfAnythingElse)
{
    const Text none{0, QString()};
    EXPECT_EQ(parsedText({}), none);
    EXPECT_EQ(parsedText(tokens("00")), none);
    EXPECT_EQ(parsedText(tokens("00 41")), none);
    EXPECT_EQ(parsedText(tokens("01")), none);
    EXPECT_EQ(parsedText(tokens("03 41 42")), none);
    EXPECT_EQ(parsedText(tokens("zz 41")), none);
    EXPECT_EQ(parsedText(tokens("01 zz")), none);
    EXPECT_EQ(parsedText(tokens("01 1F")), none);
    EXPECT_EQ(parsedText(tokens("01 7F")), none);
    EXPECT_EQ(parsedText(tokens("01 -1")), none);
}

TEST(ConfData, keepsWhatStandsBeforeACharacterThatIsNone)
{
    EXPECT_EQ(parsedText(tokens("03 41 42 0A")), (Text{0, QStringLiteral("AB")}));
    EXPECT_EQ(parsedText(tokens("01 41 zz")), (Text{0, QStringLiteral("A")})); // behind the count as well
    EXPECT_EQ(parsedText(tokens("04 41 7F 42 43")), (Text{0, QStringLiteral("A")}));
}

TEST(ConfData, stepsBehindAFieldOfTokens)
{
    int value = 0;
    int position = 5;
    QString error;
    const QString label = QStringLiteral("Low Speed");
    EXPECT_TRUE(ConfData::parseNextConfigurationParam(label, &value, tokens("02 36 01"), &position, &error));
    EXPECT_EQ(value, 300);
    EXPECT_EQ(position, 8);
    EXPECT_EQ(error, QString());
    EXPECT_FALSE(ConfData::parseNextConfigurationParam(label, &value, tokens("02 36"), &position, &error));
    EXPECT_EQ(position, 8);
    EXPECT_EQ(error, QStringLiteral("Low Speed field not found in answer"));
    EXPECT_FALSE(ConfData::parseNextConfigurationParam(label, &value, QStringList(), &position, nullptr));
}

TEST(ConfData, stepsBehindAParameter)
{
    int value = 0;
    int position = 0;
    QString error;
    const QString label = QStringLiteral("Low %1"); // stands as it is
    const QList<int> parameters{300, -4};
    EXPECT_TRUE(ConfData::parseNextConfigurationParam(label, &value, parameters, &position, &error));
    EXPECT_EQ(value, 300);
    EXPECT_TRUE(ConfData::parseNextConfigurationParam(label, &value, parameters, &position, &error));
    EXPECT_EQ(value, -4);
    EXPECT_EQ(position, 2);
    EXPECT_EQ(error, QString());
    EXPECT_FALSE(ConfData::parseNextConfigurationParam(label, &value, parameters, &position, &error));
    EXPECT_EQ(position, 2);
    EXPECT_EQ(error, QStringLiteral("Low %1 field not found in answer"));
    position = -1;
    EXPECT_FALSE(ConfData::parseNextConfigurationParam(label, &value, parameters, &position, nullptr));
}

// ---------------------------------------------------------------- rows

TEST(ConfData, beginsCleared)
{
    const FW_Mixer machine;
    int form = 0;
    for (const Row &row :
         {Row(), Row(7), Row(7, &machine), Row(7, static_cast<const FW_Machine *>(nullptr))}) {
        SCOPED_TRACE(++form);
        EXPECT_EQ(row.commandEnable(), -1);
        EXPECT_EQ(row.enabledFieldLength(), 0);
        EXPECT_EQ(row.parameters(), QList<int>());
        EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("-1"));
    }
    EXPECT_EQ(Row().commandCode(), 0);
    EXPECT_EQ(Row(7).commandCode(), 7);
    EXPECT_EQ(Row(7, &machine).commandCode(), 7);
}

TEST(ConfData, isClearedAgain)
{
    Row row(7, tokens("02 36 01"));
    row.confData_clear();
    EXPECT_EQ(row.commandEnable(), -1);
    EXPECT_EQ(row.enabledFieldLength(), 0);
    EXPECT_EQ(row.commandCode(), 0);
    Row written(7, QStringLiteral("1,2"));
    written.confData_clear();
    EXPECT_EQ(written.parameters(), QList<int>());
}

TEST(ConfData, isEnabledOrDisabledButNotAbsent)
{
    Row row(7);
    row.setCommandEnable(true);
    EXPECT_EQ(row.commandEnable(), 1);
    row.setCommandEnable(false);
    EXPECT_EQ(row.commandEnable(), 2);
}

TEST(ConfData, isWrittenForTheLink)
{
    EXPECT_EQ(sent(Row(1, QList<int>{300, 0, 245})), (QList<int>{1, 1, 2, 54, 1, 1, 0, 1, 245}));
    EXPECT_EQ(sent(Row(2, QList<int>())), (QList<int>{1, 2}));
    bool ok = true;
    Row(1, QList<int>{1, -1, 2}).serialParams(&ok);
    EXPECT_FALSE(ok);
    ok = true;
    Row(-1, QList<int>{1}).serialParams(&ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(Row(1, QList<int>{5}).serialParams(), (QList<int>{1, 1, 1, 5}));
}

TEST(ConfData, isWrittenAsText)
{
    EXPECT_EQ(Row(1, QList<int>{100, 2}).configurationParamsStr(), QStringLiteral("1,100,2"));
    EXPECT_EQ(Row(1, QList<int>{-5}).configurationParamsStr(), QStringLiteral("1,-5"));
    EXPECT_EQ(Row(1, QList<int>()).configurationParamsStr(), QStringLiteral("1"));
    EXPECT_EQ(Row(1, QList<int>{100, 2}).numOfConfigurationParams(), 2);
}

TEST(ConfData, isWrittenToXmlRpc)
{
    EXPECT_EQ(dumped(Row(2, QList<int>{100}).confData_toXmlRpcValue()), R"({"cmd_enabled": 2})");
}

TEST(ConfData, readsEnabledOfTokens)
{
    const Row row(7, tokens("02 36 01 01 05"));
    EXPECT_EQ(row.commandCode(), 7);
    EXPECT_EQ(row.commandEnable(), 300);
    EXPECT_EQ(row.enabledFieldLength(), 2);
    EXPECT_EQ(row.parameters(), QList<int>()); // those are the structure's
    EXPECT_EQ(Row(7, tokens("01 00")).commandEnable(), 0);
}

TEST(ConfData, refusesTokensWithoutEnabled)
{
    for (const char *few : {"", "01", "zz"}) {
        SCOPED_TRACE(few);
        expectRefusal("DE00085", "Command enabled field not found in answer", ofTokens,
                      [&] { Row(7, tokens(few)); });
    }
    for (const char *bad : {"00 01", "02 01", "zz 01", "01 zz"}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE00086", "Invalid Command enabled field in answer", ofTokens,
                      [&] { Row(7, tokens(bad)); });
    }
}

TEST(ConfData, readsAText)
{
    const Row row(7, QStringLiteral("1,100,-2,2147483647"));
    EXPECT_EQ(row.commandCode(), 7);
    EXPECT_EQ(row.commandEnable(), 1);
    EXPECT_EQ(row.enabledFieldLength(), 0);
    EXPECT_EQ(row.parameters(), (QList<int>{100, -2, greatest}));
    EXPECT_EQ(Row(7, QStringLiteral("0")).parameters(), QList<int>());
}

TEST(ConfData, refusesATextThatIsNotOfNumbers)
{
    for (const char *bad : {"", ",", "x", "x,1", "0x1", "1.0", "2147483648"}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE00151", "Invalid Command enabled type field in answer", ofText,
                      [&] { Row(7, QString::fromLatin1(bad)); });
    }
    for (const char *bad : {"1,", "1,,2", "1,2,", "1,x", "1,2,0x3", "1,1.5", "1,2147483648"}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE00152", "Invalid configuration parameter field in answer", ofText,
                      [&] { Row(7, QString::fromLatin1(bad)); });
    }
}

TEST(ConfData, takesANameForANumberInItsStructureOnly)
{
    EXPECT_EQ(Row(2, QStringLiteral("1,Rotan")).parameters(), (QList<int>{0}));
    EXPECT_EQ(Row(2, QStringLiteral("1,")).parameters(), (QList<int>{0}));
    expectRefusal("DE00151", "Invalid Command enabled type field in answer", ofText,
                  [] { Row(2, QStringLiteral("Rotan")); });
}

} // namespace
