// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/xmlrpcanswer.h"

#include "base/basetesting.h"
#include "base/outofmemory.h"

#include <QuvFramework/fw_errorlist.h>

#include <QtCore/QDateTime>

using namespace testing_base;

namespace {

constexpr char decodingFunction[] = "XmlRpcAnswer::XmlRpcAnswer(const XmlRpc::XmlRpcValue&)";

const QDateTime moment(QDate(2024, 3, 5), QTime(6, 7, 8, 9), Qt::UTC);

FW_DriverError driverError(const char *code, const char *text)
{
    FW_DriverError error(code, text);
    error.setTimestamp(moment);
    return error;
}

/** A driver's error, one of the hardware, and another of the driver. */
FW_ErrorList someErrors()
{
    FW_ErrorList errors;
    errors.append(driverError("DE00001", "first"));
    errors.append(QList<FW_HwError>{FW_HwError(5, 2, 3, true, SerialDeviceType::Dispenser)});
    errors.append(driverError("DE00002", "second"));
    return errors;
}

QString textAt(const FW_ErrorList &errors, int index)
{
    const auto *error = dynamic_cast<const FW_DriverError *>(errors[index]);
    return error ? error->text() : QString("none");
}

/** A good envelope; one member can be set or left out. */
Value envelope(const char *member = nullptr, const Value &value = Value())
{
    Value result;
    result.begin();
    const std::pair<const char *, Value> members[] = {
        {"ret_code", 4}, {"info", "told"}, {"ret_value", "V"}, {"errors", arrayOf()}, {"exec_time", 17}};
    for (const auto &[name, good] : members) {
        if (!member || std::string(name) != member)
            result[name] = good;
        else if (value.valid())
            result[name] = value;
    }
    return result;
}

void expectRefused(const char *code, const char *text, const Value &value)
{
    expectRefusal(code, text, decodingFunction, [&] { XmlRpcAnswer{value}; });
}

int returnCodeOf(const Value &value)
{
    return XmlRpcAnswer(value).retCode();
}

} // namespace

TEST(XmlRpcAnswer, namesItsMembers)
{
    EXPECT_STREQ(XmlRpcAnswer::retCode_TAG, "ret_code");
    EXPECT_STREQ(XmlRpcAnswer::infoMsg_TAG, "info");
    EXPECT_STREQ(XmlRpcAnswer::xmlrpcRetValue_TAG, "ret_value");
    EXPECT_STREQ(XmlRpcAnswer::errors_TAG, "errors");
    EXPECT_STREQ(XmlRpcAnswer::executionTime_TAG, "exec_time");
}

TEST(XmlRpcAnswer, startsCleared)
{
    const XmlRpcAnswer answer;
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), "0");
    EXPECT_EQ(answer.retCode(), -1);
    EXPECT_TRUE(answer.infoMsg().isNull());
    EXPECT_TRUE(answer.errors().isEmpty());
    EXPECT_EQ(answer.executionTime(), 0);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"errors": [], "exec_time": 0, "info": "", "ret_code": -1, "ret_value": 0})");
}

TEST(XmlRpcAnswer, goesBackToItsFirstStateWhenCleared)
{
    XmlRpcAnswer answer(4, arrayOf(1), someErrors(), "TINT", 70);
    answer.clear();
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), "0");
    EXPECT_EQ(answer.retCode(), -1);
    EXPECT_TRUE(answer.infoMsg().isNull());
    EXPECT_TRUE(answer.errors().isEmpty());
    EXPECT_EQ(answer.executionTime(), 0);
}

TEST(XmlRpcAnswer, isMadeOfCodeMessageAndValue)
{
    const XmlRpcAnswer answer(3, "as told", Value("V"));
    EXPECT_EQ(answer.retCode(), 3);
    EXPECT_EQ(answer.infoMsg(), "as told");
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), R"("V")");
    EXPECT_TRUE(answer.errors().isEmpty());
    EXPECT_EQ(answer.executionTime(), 0);
    EXPECT_EQ(XmlRpcAnswer(0, "", Value(1)).infoMsg(), "");
}

TEST(XmlRpcAnswer, isMadeOfCodeValueCommandAndTime)
{
    const XmlRpcAnswer good(0, Value(5), "TINT", 70);
    EXPECT_EQ(good.retCode(), 0);
    EXPECT_EQ(good.infoMsg(), "TINT command executed successfully!");
    EXPECT_EQ(dumped(good.xmlrpcRetValue()), "5");
    EXPECT_EQ(good.executionTime(), 70);
    EXPECT_TRUE(good.errors().isEmpty());
    EXPECT_EQ(XmlRpcAnswer(7, Value(5), "TINT", 70).infoMsg(), "TINT : Command has been interrupted!");
}

TEST(XmlRpcAnswer, isMadeWithErrors)
{
    const XmlRpcAnswer answer(4, Value(5), someErrors(), "TINT", 5000000000LL);
    EXPECT_EQ(answer.retCode(), 4);
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), "5");
    EXPECT_EQ(answer.infoMsg(), "TINT : Failed! Command not executed due to errors on firmware.");
    EXPECT_EQ(answer.executionTime(), 5000000000LL);
    ASSERT_EQ(answer.errors().size(), 3);
    EXPECT_EQ(textAt(answer.errors(), 0), "first");
    EXPECT_EQ(textAt(answer.errors(), 2), "second");
}

TEST(XmlRpcAnswer, isMadeOfErrorsAlone)
{
    const XmlRpcAnswer one(6, driverError("DE00001", "only"), "RESET");
    EXPECT_EQ(one.retCode(), 6);
    EXPECT_EQ(one.infoMsg(),
              "RESET : Failed! Command not executed due to errors in Driver internal procedures.");
    ASSERT_EQ(one.errors().size(), 1);
    EXPECT_EQ(textAt(one.errors(), 0), "only");
    EXPECT_EQ(dumped(one.xmlrpcRetValue()), "0");
    EXPECT_EQ(one.executionTime(), 0);

    const XmlRpcAnswer list(8, someErrors(), "");
    EXPECT_EQ(list.retCode(), 8);
    EXPECT_EQ(list.infoMsg(), "Command failed! : Failed! Command not executed due to generic errors.");
    EXPECT_EQ(list.errors().size(), 3);
    EXPECT_EQ(dumped(list.xmlrpcRetValue()), "0");
    EXPECT_EQ(list.executionTime(), 0);
}

TEST(XmlRpcAnswer, isMadeWithOrWithoutAValue)
{
    const Value value("V");
    const XmlRpcAnswer with(0, "as told", &value, "TINT");
    EXPECT_EQ(with.retCode(), 0);
    EXPECT_EQ(with.infoMsg(), "as told");
    EXPECT_EQ(dumped(with.xmlrpcRetValue()), R"("V")");
    const XmlRpcAnswer without(1, "", nullptr, "TINT");
    EXPECT_EQ(without.retCode(), 1);
    EXPECT_EQ(without.infoMsg(), "TINT : Failed! Xml-rpc command invalid for Driver.");
    EXPECT_EQ(dumped(without.xmlrpcRetValue()), "0");
    EXPECT_EQ(
        dumped(without.toXmlRpcValue()),
        R"({"errors": [], "exec_time": 0, "info": "TINT : Failed! Xml-rpc command invalid for Driver.", )"
        R"("ret_code": 1, "ret_value": 0})");
}

TEST(XmlRpcAnswer, setsOneFieldEach)
{
    XmlRpcAnswer answer;
    answer.setXmlrpcRetValue(arrayOf(1, 2));
    answer.setRetCode(2);
    answer.setInfoMsg("as told");
    answer.setErrors(someErrors());
    answer.setExecutionTime(9000000000LL);
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), "[1, 2]");
    EXPECT_EQ(answer.retCode(), 2);
    EXPECT_EQ(answer.infoMsg(), "as told");
    EXPECT_EQ(answer.errors().size(), 3);
    EXPECT_EQ(answer.executionTime(), 9000000000LL);
    answer.setErrors(FW_ErrorList());
    EXPECT_TRUE(answer.errors().isEmpty());
}

TEST(XmlRpcAnswer, appendsErrorsInOrder)
{
    XmlRpcAnswer answer;
    answer.appendDriverError(driverError("DE00009", "zeroth"));
    answer.appendErrors(someErrors());
    answer.appendError(driverError("DE00003", "third").toXmlRpcValue());
    ASSERT_EQ(answer.errors().size(), 5);
    EXPECT_EQ(textAt(answer.errors(), 0), "zeroth");
    EXPECT_EQ(textAt(answer.errors(), 1), "first");
    EXPECT_EQ(textAt(answer.errors(), 3), "second");
    EXPECT_EQ(textAt(answer.errors(), 4), "third");
    EXPECT_THROW(answer.appendError(Value(5)), FW_Exception);
    EXPECT_EQ(answer.errors().size(), 5);
    answer.appendErrors(answer.errors());
    EXPECT_EQ(answer.errors().size(), 10);
}

TEST(XmlRpcAnswer, takesItsMessageFromCommandAndCode)
{
    const struct
    {
        const char *command;
        int retCode;
        const char *text;
    } rows[] = {
        {"TINT", 0, "TINT command executed successfully!"},
        {"", 0, "Command executed successfully!"},
        {"TINT", 5, "TINT : Failed! Command not executed due to errors on the driver configuration."},
        {"", 2, "Command failed! : Failed! Serial answer invalid for Driver."},
        {"TINT", -1, "TINT : Failed! Generic error."},
        {"", 99, "Command failed! : Failed! Generic error."},
        {"100%2", 3, "100%2 : Failed! Serial command invalid for firmware."},
        {"100%2", 0, "100%2 command executed successfully!"},
    };
    XmlRpcAnswer answer;
    answer.setRetCode(8);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.text);
        answer.setInfoMsgFromCommand(row.command, row.retCode);
        EXPECT_EQ(answer.infoMsg(), row.text);
    }
    EXPECT_EQ(answer.retCode(), 8) << "the code that is told is not stored";
}

TEST(XmlRpcAnswer, writesTheEnvelope)
{
    XmlRpcAnswer answer(4, structOf({{"a", true}}), "TINT", 70);
    answer.appendDriverError(driverError("DE00001", "only"));
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"errors": [{"code": "DE00001", "error_type": 1, "text": "only", )"
              R"("timestamp": "2024-03-05T06:07:08.009Z"}], "exec_time": 70, )"
              R"("info": "TINT : Failed! Command not executed due to errors on firmware.", )"
              R"("ret_code": 4, "ret_value": {"a": true}})");
}

TEST(XmlRpcAnswer, writesZeroForAnEmptyValue)
{
    XmlRpcAnswer answer(0, Value(), "TINT", 0);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()["ret_value"]), "0");
    answer.setXmlrpcRetValue(Value());
    EXPECT_EQ(dumped(answer.toXmlRpcValue()["ret_value"]), "0");
}

TEST(XmlRpcAnswer, writesTheMessageInLatin1)
{
    const XmlRpcAnswer answer(0, QString::fromUtf8("Größe"), Value(1));
    EXPECT_EQ(dumped(answer.toXmlRpcValue()["info"]), "\"Gr\xF6\xDF"
                                                      "e\"");
}

TEST(XmlRpcAnswer, readsTheMessageInLatin1AndInUtf8)
{
    const QString text = QString::fromUtf8("Größe");
    EXPECT_EQ(XmlRpcAnswer(envelope("info", Value("Gr\xF6\xDF"
                                                  "e")))
                  .infoMsg(),
              text);
    EXPECT_EQ(XmlRpcAnswer(envelope("info", Value("Gr\xC3\xB6\xC3\x9F"
                                                  "e")))
                  .infoMsg(),
              text);
    EXPECT_EQ(XmlRpcAnswer(XmlRpcAnswer(0, text, Value(1)).toXmlRpcValue()).infoMsg(), text);
}

TEST(XmlRpcAnswer, cutsTheTimeTo32Bits)
{
    const struct
    {
        long long held;
        const char *written;
    } rows[] = {
        {4294967301LL, "5"}, // 2^32 + 5
        {2147483647LL, "2147483647"},
        {2147483648LL, "-2147483648"},
        {-1LL, "-1"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.held);
        const XmlRpcAnswer answer(0, Value(1), "TINT", row.held);
        EXPECT_EQ(answer.executionTime(), row.held);
        EXPECT_EQ(dumped(answer.toXmlRpcValue()["exec_time"]), row.written);
    }
    const XmlRpcAnswer answer(0, Value(1), "TINT", 4294967301LL);
    EXPECT_EQ(XmlRpcAnswer(answer.toXmlRpcValue()).executionTime(), 5);
}

TEST(XmlRpcAnswer, readsTheEnvelope)
{
    const Value value = envelope("errors", arrayOf(driverError("DE00001", "first").toXmlRpcValue(),
                                                   FW_ConfError(1, 2, 3, false).toXmlRpcValue(),
                                                   driverError("DE00002", "second").toXmlRpcValue()));
    const XmlRpcAnswer answer(value);
    EXPECT_EQ(answer.retCode(), 4);
    EXPECT_EQ(answer.infoMsg(), "told");
    EXPECT_EQ(dumped(answer.xmlrpcRetValue()), R"("V")");
    EXPECT_EQ(answer.executionTime(), 17);
    ASSERT_EQ(answer.errors().size(), 3);
    EXPECT_EQ(textAt(answer.errors(), 0), "first");
    EXPECT_EQ(answer.errors()[1]->errorType(), FW_Error::Configuration);
    EXPECT_EQ(textAt(answer.errors(), 2), "second");
    EXPECT_EQ(answer.errors()[0]->timestamp(), moment);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dumped(value));
}

TEST(XmlRpcAnswer, changesNothingWhenRead)
{
    const Value value = envelope("exec_time");
    const std::string before = dumped(value);
    const XmlRpcAnswer answer(value);
    EXPECT_EQ(answer.executionTime(), 0);
    EXPECT_TRUE(XmlRpcAnswer::isValidAnswer(value));
    EXPECT_EQ(dumped(value), before);
}

TEST(XmlRpcAnswer, readsAnyReturnValue)
{
    EXPECT_EQ(dumped(XmlRpcAnswer(envelope("ret_value", structOf({{"a", arrayOf(1, 2)}}))).xmlrpcRetValue()),
              R"({"a": [1, 2]})");
    EXPECT_EQ(dumped(XmlRpcAnswer(envelope("ret_value", Value(false))).xmlrpcRetValue()), "false");
}

TEST(XmlRpcAnswer, refusesWhatIsNoEnvelope)
{
    const char *noStruct = "XmlRpcAnswer: expected struct type for xmlrpc type";
    expectRefused("DE00355", noStruct, Value());
    expectRefused("DE00355", noStruct, Value(5));
    expectRefused("DE00355", noStruct, arrayOf(1));
    expectRefused("DE00356", "XmlRpcAnswer: expected ret_value value", structOf({}));
    expectRefused("DE00356", "XmlRpcAnswer: expected ret_value value", envelope("ret_value"));
    expectRefused("DE00357", "XmlRpcAnswer: expected ret_code value", envelope("ret_code"));
    expectRefused("DE00357", "XmlRpcAnswer: expected ret_code value", envelope("ret_code", Value("4")));
    expectRefused("DE00357", "XmlRpcAnswer: expected ret_code value", envelope("ret_code", Value(true)));
    expectRefused("DE00358", "XmlRpcAnswer: expected info value", envelope("info"));
    expectRefused("DE00358", "XmlRpcAnswer: expected info value", envelope("info", Value(5)));
    expectRefused("DE00366", "XmlRpcAnswer: expected errors value", envelope("errors"));
    const char *noArray = "XmlRpcAnswer: bad type for errors value: Array expected";
    expectRefused("DE00365", noArray, envelope("errors", structOf({{"a", 1}})));
    expectRefused("DE00365", noArray, envelope("errors", Value(0)));
    const char *badTime = "XmlRpcAnswer: error decoding execution time value";
    expectRefused("DE00523", badTime, envelope("exec_time", Value("17")));
    expectRefused("DE00523", badTime, envelope("exec_time", Value(17.0)));
    expectRefused("DE00523", badTime, envelope("exec_time", Value(true)));
}

TEST(XmlRpcAnswer, refusesInTheOrderOfReading)
{
    // each envelope lacks all from one member on, and one before it is told
    expectRefused("DE00356", "XmlRpcAnswer: expected ret_value value", structOf({{"exec_time", "bad"}}));
    expectRefused("DE00357", "XmlRpcAnswer: expected ret_code value",
                  structOf({{"ret_value", 0}, {"exec_time", "bad"}}));
    expectRefused("DE00358", "XmlRpcAnswer: expected info value",
                  structOf({{"ret_value", 0}, {"ret_code", 0}, {"exec_time", "bad"}}));
    expectRefused("DE00366", "XmlRpcAnswer: expected errors value",
                  structOf({{"ret_value", 0}, {"ret_code", 0}, {"info", ""}, {"exec_time", "bad"}}));
}

TEST(XmlRpcAnswer, passesOnWhatAnErrorIsRefusedFor)
{
    const Value good = driverError("DE00001", "first").toXmlRpcValue();
    Value noText = structOf({{"error_type", 1}, {"timestamp", "2024-03-05T06:07:08.009Z"}, {"code", "DE1"}});
    expectRefusal("DE03003", "FW_DriverError: expected text value",
                  "FW_DriverError::FW_DriverError(const XmlRpc::XmlRpcValue&)",
                  [&] { XmlRpcAnswer{envelope("errors", arrayOf(good, noText))}; });
    EXPECT_THROW(XmlRpcAnswer{envelope("errors", arrayOf(5))}, FW_Exception);
}

TEST(XmlRpcAnswer, saysSoWhenAnErrorCannotBeMade)
{
    // the first thing that is allocated is the error: all else is small
    const Value value = structOf({{"ret_code", 4},
                                  {"info", ""},
                                  {"ret_value", 0},
                                  {"errors", arrayOf(driverError("DE00001", "first").toXmlRpcValue())}});
    // what is made once, such as codecs, is there after this
    ASSERT_EQ(XmlRpcAnswer(value).errors().size(), 1);
    expectRefusal("DE00364", "XmlRpcAnswer: errors during error list creation", decodingFunction,
                  [&] { outOfMemoryOnce([&] { return XmlRpcAnswer(value).retCode(); }); });
}

TEST(XmlRpcAnswer, makesIndependentCopies)
{
    XmlRpcAnswer answer(4, arrayOf(1), someErrors(), "TINT", 70);
    const XmlRpcAnswer copy(answer);
    answer.clear();
    EXPECT_EQ(copy.retCode(), 4);
    EXPECT_EQ(dumped(copy.xmlrpcRetValue()), "[1]");
    EXPECT_EQ(copy.errors().size(), 3);
    EXPECT_EQ(copy.executionTime(), 70);
    EXPECT_EQ(copy.infoMsg(), "TINT : Failed! Command not executed due to errors on firmware.");
}

TEST(XmlRpcAnswer, knowsAnEnvelopeByItsFourMembers)
{
    EXPECT_TRUE(XmlRpcAnswer::isValidAnswer(envelope()));
    EXPECT_TRUE(XmlRpcAnswer::isValidAnswer(envelope("exec_time")));
    EXPECT_TRUE(XmlRpcAnswer::isValidAnswer(envelope("ret_code", Value("of any type"))));
    for (const char *member : {"ret_code", "info", "ret_value", "errors"})
        EXPECT_FALSE(XmlRpcAnswer::isValidAnswer(envelope(member))) << member;
    EXPECT_FALSE(XmlRpcAnswer::isValidAnswer(Value()));
    EXPECT_FALSE(XmlRpcAnswer::isValidAnswer(Value(5)));
    EXPECT_FALSE(XmlRpcAnswer::isValidAnswer(arrayOf("ret_code", "info", "ret_value", "errors")));
}

TEST(XmlRpcAnswer, printsTheCodeAndThenALineAnError)
{
    EXPECT_EQ(XmlRpcAnswer(0, Value(1), "TINT", 0).toPrintableString(), QStringList({"Success!"}));
    EXPECT_EQ(XmlRpcAnswer().toPrintableString(), QStringList({"Failed! Generic error."}));
    EXPECT_EQ(
        XmlRpcAnswer(4, someErrors(), "TINT").toPrintableString(),
        (QStringList{"Failed! Command not executed due to errors on firmware.Errors: ", "DE00001: first",
                     "Hardware error: code 5, module 2, value 3, flag 1", "DE00002: second"}));
}

TEST(XmlRpcAnswer, printsTheDriversErrorsAlone)
{
    EXPECT_EQ(XmlRpcAnswer(4, someErrors(), "TINT").getDriverErrorsStrings(),
              (QStringList{"DE00001: first", "DE00002: second"}));
    EXPECT_EQ(XmlRpcAnswer().getDriverErrorsStrings(), QStringList());
}

TEST(ErrorAnswer, tellsOneErrorOfTheDriver)
{
    const Value ofText = ErrorAnswer::getDriverErrorReturn(1, "DE00001", "only", "TINT");
    EXPECT_EQ(dumped(ofText["ret_code"]), "1");
    EXPECT_EQ(dumped(ofText["info"]), R"("TINT : Failed! Xml-rpc command invalid for Driver.")");
    EXPECT_EQ(dumped(ofText["ret_value"]), "0");
    EXPECT_EQ(dumped(ofText["exec_time"]), "0");
    EXPECT_EQ(ofText.size(), 5);
    ASSERT_EQ(ofText["errors"].size(), 1);
    EXPECT_EQ(dumped(ofText["errors"][0]["code"]), R"("DE00001")");
    EXPECT_EQ(dumped(ofText["errors"][0]["text"]), R"("only")");
    EXPECT_EQ(dumped(ofText["errors"][0]["error_type"]), "1");

    EXPECT_EQ(dumped(ErrorAnswer::getDriverErrorReturn(2, driverError("DE00001", "only"), "")),
              R"({"errors": [{"code": "DE00001", "error_type": 1, "text": "only", )"
              R"("timestamp": "2024-03-05T06:07:08.009Z"}], "exec_time": 0, )"
              R"("info": "Command failed! : Failed! Serial answer invalid for Driver.", )"
              R"("ret_code": 2, "ret_value": 0})");
}

TEST(ErrorAnswer, tellsAListOfErrors)
{
    const Value list = ErrorAnswer::getErrorReturn(4, someErrors(), "TINT");
    EXPECT_EQ(returnCodeOf(list), 4);
    EXPECT_EQ(dumped(list["info"]), R"("TINT : Failed! Command not executed due to errors on firmware.")");
    EXPECT_EQ(dumped(list["ret_value"]), "0");
    EXPECT_EQ(list["errors"].size(), 3);

    const Value both = ErrorAnswer::getErrorReturn(4, Value("V"), someErrors(), "TINT");
    EXPECT_EQ(returnCodeOf(both), 4);
    EXPECT_EQ(dumped(both["info"]), R"("TINT : Failed! Command not executed due to errors on firmware.")");
    EXPECT_EQ(dumped(both["ret_value"]), R"("V")");
    EXPECT_EQ(dumped(both["exec_time"]), "0");
    EXPECT_EQ(both["errors"].size(), 3);
}

TEST(SuccessAnswer, tellsAValue)
{
    EXPECT_EQ(dumped(SuccessAnswer::getSuccessAnswer(Value("V"), "TINT", 4294967301LL)),
              R"({"errors": [], "exec_time": 5, "info": "TINT command executed successfully!", )"
              R"("ret_code": 0, "ret_value": "V"})");
    EXPECT_EQ(dumped(SuccessAnswer::getSuccessAnswer(arrayOf(1), "", 70)),
              R"({"errors": [], "exec_time": 70, "info": "Command executed successfully!", )"
              R"("ret_code": 0, "ret_value": [1]})");
}

TEST(SuccessAnswer, tellsAMessage)
{
    Value value("V");
    EXPECT_EQ(dumped(SuccessAnswer::getSuccessAnswer("as told", &value, "TINT")),
              R"({"errors": [], "exec_time": 0, "info": "as told", "ret_code": 0, "ret_value": "V"})");
    EXPECT_EQ(dumped(SuccessAnswer::getSuccessAnswer("", nullptr, "TINT")),
              R"({"errors": [], "exec_time": 0, "info": "TINT command executed successfully!", )"
              R"("ret_code": 0, "ret_value": 0})");
}
