// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/tstring.h"

#include "base/basetesting.h"
#include "base/protocommand.h"
#include "status/machinestatusanswer.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

#include <memory>

using namespace testing_base;

namespace {

void expectTexts(const TString &text, const char *source, const char *translated)
{
    EXPECT_EQ(text.m_text, QString::fromUtf8(source));
    EXPECT_EQ(text.m_translated, QString::fromUtf8(translated));
}

/** A program in Italian. */
class TStringInItalian : public testing::Test
{
protected:
    TStringInItalian()
    {
        EXPECT_TRUE(m_translator.load(TRANSLATION_FILE));
        EXPECT_TRUE(QCoreApplication::installTranslator(&m_translator));
    }
    ~TStringInItalian() override { QCoreApplication::removeTranslator(&m_translator); }

private:
    int m_argc = 1;
    char m_name[10] = "base_test";
    char *m_argv[2] = {m_name, nullptr};
    QCoreApplication m_application{m_argc, m_argv};
    QTranslator m_translator;
};

class StatusWords : public MachineStatusAnswer
{
public:
    StatusWords *clone() const override { return new StatusWords(*this); }
    bool decodeSerialStatus(QStringList, FW_DriverError *) override { return true; }
    bool acceptCommands() const override { return true; }
    QList<QPair<QString, bool>> getStatusDescriptions(const FW_Machine *) const override { return {}; }
};

} // namespace

TEST(TString, startsEmpty)
{
    const TString text;
    EXPECT_TRUE(text.m_text.isEmpty());
    EXPECT_TRUE(text.m_translated.isEmpty());
    EXPECT_STREQ(text.m_context, "");
}

TEST(TString, saysTheSourceTextWithoutATranslation)
{
    const TString literal("In progress", "QuvProtocol");
    expectTexts(literal, "In progress", "In progress");
    EXPECT_STREQ(literal.m_context, "QuvProtocol");
    const TString string(QString::fromUtf8("Nozzle at 20 °C"), "QuvProtocol");
    expectTexts(string, "Nozzle at 20 °C", "Nozzle at 20 °C");
    EXPECT_STREQ(string.m_context, "QuvProtocol");
}

TEST(TString, fillsTheNextPlaceInBothTexts)
{
    TString text("Circuit %1: %2", "QuvProtocol");
    TString &same = text.arg("4", false);
    EXPECT_EQ(&same, &text);
    expectTexts(text, "Circuit 4: %2", "Circuit 4: %2");
    text.arg("open", true);
    expectTexts(text, "Circuit 4: open", "Circuit 4: open");
    expectTexts(TString("%2 before %1", "QuvProtocol").arg("a", false).arg("b", false), "b before a",
                "b before a");
}

TEST_F(TStringInItalian, showsSourceAndTranslationSideBySide)
{
    expectTexts(TString("In progress", "QuvProtocol"), "In progress", "In corso");
    expectTexts(TString(QStringLiteral("In progress"), "QuvProtocol"), "In progress", "In corso");
}

TEST_F(TStringInItalian, passesTextsThroughUtf8)
{
    expectTexts(TString("Nozzle at 20 °C", "QuvProtocol"), "Nozzle at 20 °C", "Ugello a 20 °C, città");
    expectTexts(TString(QString::fromUtf8("Nozzle at 20 °C"), "QuvProtocol"), "Nozzle at 20 °C",
                "Ugello a 20 °C, città");
}

TEST_F(TStringInItalian, looksUpInItsContext)
{
    expectTexts(TString("open", "QuvProtocol"), "open", "aperto");
    expectTexts(TString("open", "Elsewhere"), "open", "spalancato");
    expectTexts(TString("open", ""), "open", "open");
    expectTexts(TString("In progress", "Elsewhere"), "In progress", "In progress");
    expectTexts(TString("no such text", "QuvProtocol"), "no such text", "no such text");
}

TEST_F(TStringInItalian, translatesAValueWhenAsked)
{
    expectTexts(TString("Circuit %1: %2", "QuvProtocol").arg("4", false).arg("open", true), "Circuit 4: open",
                "aperto nel circuito 4");
    expectTexts(TString("Circuit %1: %2", "QuvProtocol").arg("4", true).arg("open", false), "Circuit 4: open",
                "open nel circuito 4");
    expectTexts(TString("Door %1", "Elsewhere").arg("open", true), "Door open", "Porta spalancato");
    expectTexts(TString("Door %1", "Elsewhere").arg("In progress", true), "Door In progress",
                "Porta In progress");
}

TEST_F(TStringInItalian, saysWhatGoesOn)
{
    const TString own = ProtoCommand(QStringLiteral("GET_ERRORS")).actionString(false);
    expectTexts(own, "Searching for hardware errors", "Ricerca di errori hardware");
    EXPECT_STREQ(own.m_context, "QuvProtocol");
    // held translated, without a context
    const TString other = ProtoCommand(QStringLiteral("RESET")).actionString(false);
    expectTexts(other, "In corso", "In corso");
    EXPECT_STREQ(other.m_context, "");
    // a label for the log is never translated
    EXPECT_EQ(ProtoCommand(QStringLiteral("GET_ERRORS")).commandString(), "Errors read");
}

TEST_F(TStringInItalian, tellsAStatus)
{
    StatusWords status;
    status.emergency_pressed = true;
    status.offline_pressed = true;
    EXPECT_EQ(status.getMachineStatusDescriptions(SerialDeviceType::Mixer),
              (QList<QPair<QString, bool>>{{"Pulsante di emergenza premuto", true},
                                           {"Miscelatore fuori linea", true}}));
}
