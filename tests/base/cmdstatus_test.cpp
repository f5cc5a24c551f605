// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/cmdstatus.h"

#include "base/basetesting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

#include <memory>

using namespace testing_base;

namespace {

constexpr char decodingFunction[] = "CmdStatus::CmdStatus(const XmlRpc::XmlRpcValue&)";

Value envelope(int retCode)
{
    return structOf({{"ret_code", retCode}, {"info", "as told"}, {"ret_value", 12}, {"errors", arrayOf()}});
}

CmdStatus executing()
{
    return CmdStatus(1, 0, 0, QString());
}

/** A status in its XML-RPC form; one member can be set. */
Value written(const char *member = nullptr, const Value &value = Value())
{
    Value status = structOf({{"status", 1},
                             {"info", "Filling"},
                             {"extra_info", "White"},
                             {"time_left", 2500},
                             {"percentage", 40},
                             {"cmd_answer", 0}});
    if (member)
        status[member] = value;
    return status;
}

Value writtenWithout(const char *member)
{
    Value status;
    status.begin();
    for (const auto &[name, value] : written()) {
        if (name != member)
            status[name] = value;
    }
    return status;
}

QString timeLeftStr(long long timeLeft, bool verbose)
{
    CmdStatus status = executing();
    status.setTimeLeft(timeLeft);
    return status.timeLeftStr(verbose);
}

/** Puts the texts of the library's context in angle brackets. */
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) == QLatin1String("QuvProtocol") ? QStringLiteral("<%1>").arg(text)
                                                                      : QString();
    }
    bool isEmpty() const override { return false; }
};

class TranslatedCmdStatus : public testing::Test
{
protected:
    TranslatedCmdStatus() { EXPECT_TRUE(QCoreApplication::installTranslator(&m_translator)); }
    ~TranslatedCmdStatus() override { QCoreApplication::removeTranslator(&m_translator); }

private:
    int m_argc = 1;
    char m_name[10] = "base_test";
    char *m_argv[2] = {m_name, nullptr};
    QCoreApplication m_application{m_argc, m_argv};
    BracketTranslator m_translator;
};

} // namespace

TEST(CmdStatus, startsWithoutAState)
{
    const CmdStatus status;
    EXPECT_EQ(status.status(), -5);
    EXPECT_EQ(status.timeLeft(), 0);
    EXPECT_EQ(status.percentage(), 0);
    EXPECT_EQ(status.info(), "Unknown");
    EXPECT_TRUE(status.extraInfo().isNull());
    EXPECT_FALSE(status.hasResultValue());
    EXPECT_TRUE(status.timeTrackingAvailable());
}

TEST(CmdStatus, tellsTheTextOfEachState)
{
    EXPECT_EQ(CmdStatus::getDescription(3), "Created...");
    EXPECT_EQ(CmdStatus::getDescription(2), "Queued...");
    EXPECT_EQ(CmdStatus::getDescription(1), "Executing...");
    EXPECT_EQ(CmdStatus::getDescription(0), "Done successfully!");
    EXPECT_EQ(CmdStatus::getDescription(-1), "Errors in command execution!");
    EXPECT_EQ(CmdStatus::getDescription(-3), "Interrupted!");
    EXPECT_EQ(CmdStatus::getDescription(-4), "Timeout elapsed!");
    for (const int state : {-2, -5, -6, 4, 100})
        EXPECT_EQ(CmdStatus::getDescription(state), "Unknown") << state;
}

TEST(CmdStatus, takesTheStatesFromTimeoutToCreated)
{
    for (int state = -4; state <= 3; ++state) {
        CmdStatus status;
        EXPECT_TRUE(CmdStatus::checkStatus(state)) << state;
        EXPECT_TRUE(status.setStatus(state)) << state;
        EXPECT_EQ(status.status(), state);
    }
    for (const int state : {-5, 4, -100, 100}) {
        CmdStatus status(1, 2500, 40, "Filling");
        EXPECT_FALSE(CmdStatus::checkStatus(state)) << state;
        EXPECT_FALSE(status.setStatus(state)) << state;
        EXPECT_EQ(status, CmdStatus(1, 2500, 40, "Filling"));
    }
}

TEST(CmdStatus, holdsProgressWhileRunning)
{
    for (const int state : {3, 2, 1}) {
        SCOPED_TRACE(state);
        CmdStatus status;
        ASSERT_TRUE(status.setStatus(state));
        status.setTimeLeft(5000000000LL);
        EXPECT_EQ(status.timeLeft(), 5000000000LL);
        status.setTimeLeft(-1);
        EXPECT_EQ(status.timeLeft(), 0);
        status.setPercentage(50);
        EXPECT_EQ(status.percentage(), 50);
        status.setPercentage(99);
        EXPECT_EQ(status.percentage(), 99);
        status.setPercentage(-3);
        EXPECT_EQ(status.percentage(), 0);
        for (const int tooMuch : {100, 120}) {
            SCOPED_TRACE(tooMuch);
            status.setPercentage(0);
            status.setPercentage(tooMuch);
            EXPECT_EQ(status.percentage(), 99);
        }
    }
}

TEST(CmdStatus, endsWithNoTimeAndAHundredPerCent)
{
    for (const int state : {0, -1, -2, -3, -4}) {
        SCOPED_TRACE(state);
        CmdStatus status(1, 2500, 40, "Filling");
        ASSERT_TRUE(status.setStatus(state));
        EXPECT_EQ(status.timeLeft(), 0);
        EXPECT_EQ(status.percentage(), 100);
        status.setPercentage(50);
        status.setTimeLeft(1000);
        EXPECT_EQ(status.timeLeft(), 0);
        EXPECT_EQ(status.percentage(), 100);
    }
    CmdStatus unknown;
    unknown.setPercentage(50);
    unknown.setTimeLeft(1000);
    EXPECT_EQ(unknown, CmdStatus());
}

TEST(CmdStatus, goesOnBetweenRunningStatesWithoutALoss)
{
    CmdStatus status(3, 2500, 40, "Filling");
    EXPECT_TRUE(status.setStatus(1));
    EXPECT_EQ(status.timeLeft(), 2500);
    EXPECT_EQ(status.percentage(), 40);
}

TEST(CmdStatus, isMadeAsTheSettersAllow)
{
    const CmdStatus running(2, 2500, 120, "Waiting");
    EXPECT_EQ(running.status(), 2);
    EXPECT_EQ(running.timeLeft(), 2500);
    EXPECT_EQ(running.percentage(), 99);
    EXPECT_EQ(running.info(), "Waiting");
    EXPECT_FALSE(running.hasResultValue());

    const CmdStatus ended(0, 2500, 40, Value(7), QString());
    EXPECT_EQ(ended.timeLeft(), 0);
    EXPECT_EQ(ended.percentage(), 100);
    EXPECT_EQ(ended.info(), "Done successfully!");
    EXPECT_TRUE(ended.hasResultValue());
    EXPECT_EQ(dumped(ended.resultValue()), "7");
}

TEST(CmdStatus, saysItsOwnTextBeforeThatOfTheState)
{
    CmdStatus status(1, 0, 0, "Filling");
    EXPECT_EQ(status.info(), "Filling");
    status.setInfo(QString(""));
    EXPECT_EQ(status.info(), "Executing...");
    status.setStatus(-2);
    EXPECT_EQ(status.info(), "Unknown");
    status.setExtraInfo("White");
    EXPECT_EQ(status.extraInfo(), "White");
}

TEST(CmdStatus, givesTheResultOnlyWhenEnded)
{
    CmdStatus status = executing();
    EXPECT_FALSE(status.hasResultValue());
    EXPECT_EQ(dumped(status.resultValue()), "0");
    status.setResultValue(Value("filled"));
    EXPECT_TRUE(status.hasResultValue());
    for (const int state : {3, 2, 1}) {
        status.setStatus(state);
        EXPECT_EQ(dumped(status.resultValue()), "0") << state;
    }
    for (const int state : {0, -1, -3, -4}) {
        status.setStatus(state);
        EXPECT_EQ(dumped(status.resultValue()), R"("filled")") << state;
    }
}

TEST(CmdStatus, tracksTimeUnlessItExecutesSilently)
{
    CmdStatus status = executing();
    EXPECT_FALSE(status.timeTrackingAvailable());
    status.setTimeLeft(1);
    EXPECT_TRUE(status.timeTrackingAvailable());
    status.setTimeLeft(0);
    status.setPercentage(1);
    EXPECT_TRUE(status.timeTrackingAvailable());
    for (const int state : {3, 2, 0, -1, -4})
        EXPECT_TRUE(CmdStatus(state, 0, 0, QString()).timeTrackingAvailable()) << state;
}

TEST(CmdStatus, givesTheResultAsAnEnvelope)
{
    bool ok = false;
    const CmdStatus ended(-1, 0, 0, envelope(4), QString());
    const XmlRpcAnswer answer = ended.getXmlRpcAnswer(&ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(answer.retCode(), 4);
    EXPECT_EQ(answer.infoMsg(), "as told");
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), "12");
    EXPECT_EQ(ended.getXmlRpcAnswer().retCode(), 4);
}

TEST(CmdStatus, givesTheDefaultEnvelopeWithoutAResult)
{
    Value broken = envelope(4);
    broken["errors"] = 5; // the last member that is read
    const XmlRpcAnswer plain;
    for (const CmdStatus &status :
         {CmdStatus(1, 0, 0, envelope(4), QString()), CmdStatus(), CmdStatus(0, 0, 0, broken, QString())}) {
        SCOPED_TRACE(dumped(status.toXmlRpcValue()));
        bool ok = true;
        const XmlRpcAnswer answer = status.getXmlRpcAnswer(&ok);
        EXPECT_FALSE(ok);
        EXPECT_EQ(answer.retCode(), plain.retCode());
        EXPECT_EQ(answer.infoMsg(), plain.infoMsg());
        EXPECT_EQ(dumped(answer.xmlrpcRetValue()), "0");
        EXPECT_NO_THROW(status.getXmlRpcAnswer());
    }
}

TEST(CmdStatus, writesTheTimeLeft)
{
    EXPECT_EQ(timeLeftStr(0, false), "00:00");
    EXPECT_EQ(timeLeftStr(999, false), "00:00");
    EXPECT_EQ(timeLeftStr(59000, false), "00:59");
    EXPECT_EQ(timeLeftStr(59400, false), "00:59");
    EXPECT_EQ(timeLeftStr(61000, false), "01:01");
    EXPECT_EQ(timeLeftStr(3599999, false), "59:59");
    EXPECT_EQ(timeLeftStr(3600000, false), "01:00:00");
    EXPECT_EQ(timeLeftStr(86399000, false), "23:59:59");
}

TEST(CmdStatus, wrapsTheTimeLeftAroundAfterADay)
{
    EXPECT_EQ(timeLeftStr(86400000, false), "00:00");
    EXPECT_EQ(timeLeftStr(86400000, true), "About 1 seconds remaining...");
    EXPECT_EQ(timeLeftStr(90061000, false), "01:01:01");
    EXPECT_EQ(timeLeftStr(5000000000LL, false), "20:53:20"); // beyond 32 bits
}

TEST(CmdStatus, tellsTheTimeLeftInWords)
{
    EXPECT_EQ(timeLeftStr(0, true), "About 1 seconds remaining...");
    EXPECT_EQ(timeLeftStr(5000, true), "About 6 seconds remaining...");
    EXPECT_EQ(timeLeftStr(59400, true), "About 60 seconds remaining...");
    EXPECT_EQ(timeLeftStr(60000, true), "About 1 minutes and 1 seconds remaining...");
    EXPECT_EQ(timeLeftStr(185000, true), "About 3 minutes and 6 seconds remaining...");
    EXPECT_EQ(timeLeftStr(3599999, true), "About 59 minutes and 60 seconds remaining...");
    EXPECT_EQ(timeLeftStr(3600000, true), "About 1 hours, 0 minutes and 1 seconds remaining...");
    EXPECT_EQ(timeLeftStr(7384000, true), "About 2 hours, 3 minutes and 5 seconds remaining...");
}

TEST_F(TranslatedCmdStatus, describesStates)
{
    EXPECT_EQ(CmdStatus::getDescription(3), "<Created...>");
    EXPECT_EQ(CmdStatus::getDescription(2), "<Queued...>");
    EXPECT_EQ(CmdStatus::getDescription(1), "<Executing...>");
    EXPECT_EQ(CmdStatus::getDescription(0), "<Done successfully!>");
    EXPECT_EQ(CmdStatus::getDescription(-1), "<Errors in command execution!>");
    EXPECT_EQ(CmdStatus::getDescription(-3), "<Interrupted!>");
    EXPECT_EQ(CmdStatus::getDescription(-4), "<Timeout elapsed!>");
    EXPECT_EQ(CmdStatus::getDescription(-5), "<Unknown>");
}

TEST_F(TranslatedCmdStatus, tellsTheTimeLeft)
{
    EXPECT_EQ(timeLeftStr(5000, true), "<About 6 seconds remaining...>");
    EXPECT_EQ(timeLeftStr(185000, true), "<About 3 minutes and 6 seconds remaining...>");
    EXPECT_EQ(timeLeftStr(7384000, true), "<About 2 hours, 3 minutes and 5 seconds remaining...>");
    EXPECT_EQ(timeLeftStr(5000, false), "00:05");
}

TEST(CmdStatus, writesAllMembers)
{
    CmdStatus status(1, 2500, 40, Value(7), "Filling");
    status.setExtraInfo("White");
    EXPECT_EQ(dumped(status.toXmlRpcValue()),
              R"({"cmd_answer": 0, "extra_info": "White", "info": "Filling", "percentage": 40, "status": 1, )"
              R"("time_left": 2500})");
    status.setStatus(0);
    EXPECT_EQ(dumped(status.toXmlRpcValue()),
              R"({"cmd_answer": 7, "extra_info": "White", "info": "Filling", "percentage": 100, )"
              R"("status": 0, "time_left": 0})");
}

TEST(CmdStatus, writesWhatItWasGivenNotTheTextOfTheState)
{
    EXPECT_EQ(dumped(CmdStatus().toXmlRpcValue()),
              R"({"cmd_answer": 0, "extra_info": "", "info": "", "percentage": 0, "status": -5, )"
              R"("time_left": 0})");
}

TEST(CmdStatus, writesTextsInLatin1)
{
    CmdStatus status(1, 0, 0, QString::fromUtf8("Blå"));
    status.setExtraInfo(QString::fromUtf8("20 °C"));
    EXPECT_EQ(dumped(status.toXmlRpcValue()["info"]), "\"Bl\xe5\"");
    EXPECT_EQ(dumped(status.toXmlRpcValue()["extra_info"]), "\"20 \xb0"
                                                            "C\"");
    const CmdStatus read(status.toXmlRpcValue());
    EXPECT_EQ(read.info(), QString::fromUtf8("Blå"));
    EXPECT_EQ(read.extraInfo(), QString::fromUtf8("20 °C"));
}

TEST(CmdStatus, cutsTheTimeLeftTo32Bits)
{
    CmdStatus status = executing();
    status.setTimeLeft(2147483647LL);
    EXPECT_EQ(dumped(status.toXmlRpcValue()["time_left"]), "2147483647");
    status.setTimeLeft(4294967296LL + 5);
    EXPECT_EQ(dumped(status.toXmlRpcValue()["time_left"]), "5");
}

TEST(CmdStatus, readsAllMembers)
{
    const CmdStatus running(written());
    EXPECT_EQ(running.status(), 1);
    EXPECT_EQ(running.timeLeft(), 2500);
    EXPECT_EQ(running.percentage(), 40);
    EXPECT_EQ(running.info(), "Filling");
    EXPECT_EQ(running.extraInfo(), "White");
    EXPECT_FALSE(running.hasResultValue());

    CmdStatus ended(0, 0, 0, envelope(0), "Filled");
    ended.setExtraInfo("White");
    EXPECT_EQ(CmdStatus(ended.toXmlRpcValue()), ended);
    EXPECT_EQ(CmdStatus(CmdStatus().toXmlRpcValue()), CmdStatus());
}

TEST(CmdStatus, readsAResultOfAnyType)
{
    for (const Value &result :
         {Value(7), Value("filled"), Value(true), Value(1.5), arrayOf(1, 2), structOf({{"a", 1}})}) {
        SCOPED_TRACE(dumped(result));
        Value status = written("cmd_answer", result);
        status["status"] = 0;
        const CmdStatus read(status);
        EXPECT_TRUE(read.hasResultValue());
        EXPECT_EQ(dumped(read.resultValue()), dumped(result));
    }
}

TEST(CmdStatus, refusesAMemberThatIsMissingOrOfAnotherType)
{
    struct Row
    {
        const char *member;
        const char *code;
        const char *text;
        Value otherType;
    };
    const Row rows[] = {
        {"status", "DE00386", "CmdStatus: expected status value", Value("1")},
        {"info", "DE00387", "CmdStatus: expected info value", Value(1)},
        {"extra_info", "DE01677", "CmdStatus: expected extra info value", Value(1)},
        {"time_left", "DE00388", "CmdStatus: expected time_left value", Value(1.5)},
        {"percentage", "DE00389", "CmdStatus: expected percentage value", Value("40")},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.member);
        expectRefusal(row.code, row.text, decodingFunction, [&] { CmdStatus{writtenWithout(row.member)}; });
        expectRefusal(row.code, row.text, decodingFunction,
                      [&] { CmdStatus{written(row.member, row.otherType)}; });
    }
    expectRefusal("DE00390", "CmdStatus: expected cmd_answer value", decodingFunction,
                  [] { CmdStatus{writtenWithout("cmd_answer")}; });
}

TEST(CmdStatus, refusesTheFirstMemberFirst)
{
    Value status = structOf({});
    const std::pair<const char *, const char *> rows[] = {
        {"status", "DE00386"},    {"info", "DE00387"},       {"extra_info", "DE01677"},
        {"time_left", "DE00388"}, {"percentage", "DE00389"}, {"cmd_answer", "DE00390"},
    };
    for (const auto &[member, code] : rows) {
        try {
            CmdStatus{status};
            ADD_FAILURE() << "taken without " << member;
        } catch (const FW_Exception &refusal) {
            EXPECT_EQ(refusal.code(), code);
        }
        status[member] = written()[member];
    }
    EXPECT_NO_THROW(CmdStatus{status});
}

TEST(CmdStatus, refusesWhatIsNoStruct)
{
    for (const Value &value : {Value(), Value(1), Value("1"), arrayOf(1)}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00386", "CmdStatus: expected status value", decodingFunction,
                      [&] { CmdStatus{value}; });
    }
}

TEST(CmdStatus, makesCopiesThatStandAlone)
{
    CmdStatus status(1, 2500, 40, structOf({{"a", 1}}), "Filling");
    const std::unique_ptr<CmdStatus> copy(status.clone());
    EXPECT_EQ(*copy, status);
    copy->setStatus(0);
    copy->setInfo("Filled");
    EXPECT_EQ(status, CmdStatus(1, 2500, 40, structOf({{"a", 1}}), "Filling"));
    EXPECT_EQ(dumped(copy->resultValue()), R"({"a": 1})");
}

TEST(CmdStatus, comparesAllFields)
{
    const CmdStatus status(1, 2500, 40, Value(7), "Filling");
    EXPECT_TRUE(status == CmdStatus(1, 2500, 40, Value(7), "Filling"));
    EXPECT_TRUE(status != CmdStatus(2, 2500, 40, Value(7), "Filling"));
    EXPECT_TRUE(status != CmdStatus(1, 2501, 40, Value(7), "Filling"));
    EXPECT_TRUE(status != CmdStatus(1, 2500, 41, Value(7), "Filling"));
    EXPECT_TRUE(status != CmdStatus(1, 2500, 40, Value(8), "Filling"));
    EXPECT_TRUE(status != CmdStatus(1, 2500, 40, Value(7), "Mixing"));
    CmdStatus other = status;
    other.setExtraInfo("White");
    EXPECT_TRUE(status != other);
}

TEST(CmdStatus, travelsInAVariant)
{
    const CmdStatus status(1, 2500, 40, "Filling");
    const QVariant variant = QVariant::fromValue(status);
    EXPECT_STREQ(variant.typeName(), "CmdStatus");
    EXPECT_TRUE(variant.canConvert<CmdStatus>());
    EXPECT_EQ(variant.value<CmdStatus>(), status);
    EXPECT_NE(QMetaType::type("CmdStatus"), int(QMetaType::UnknownType));
}
