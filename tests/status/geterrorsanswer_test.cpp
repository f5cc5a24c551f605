// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/geterrorsanswer.h"

#include "base/outofmemory.h"
#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"
#include "status/errortesting.h"
#include "status/fwerroranswer.h"

#include <memory>

namespace {

using namespace testing_status;

constexpr char ofValue[] = "GetErrorsAnswer::GetErrorsAnswer(const XmlRpc::XmlRpcValue&)";

FW_ErrorList errorsOfAllKinds()
{
    FW_ErrorList errors;
    errors.append(driverErrorStruct("DE00289"));
    errors.append(configurationErrorStruct(99));
    errors.append(hardwareErrorStruct(1234));
    return errors;
}

constexpr char allKinds[] = "driver DE00289, conf 99 2 5 false, hw 1234 7 31 true 4";

Value answerOf(const Value &errors)
{
    return structOf({{"fw_errors", errors}});
}

TEST(GetErrorsAnswer, startsEmpty)
{
    EXPECT_TRUE(GetErrorsAnswer().errorList().isEmpty());
    EXPECT_EQ(GetErrorsAnswer().protoType(), 1);
}

TEST(GetErrorsAnswer, keepsACopyOfTheList)
{
    FW_ErrorList errors = errorsOfAllKinds();
    GetErrorsAnswer answer(errors);
    errors.clear();
    EXPECT_EQ(shown(answer.errorList()), allKinds);
    EXPECT_EQ(answer.protoType(), 1);
    answer.clear();
    EXPECT_TRUE(answer.errorList().isEmpty());
}

TEST(GetErrorsAnswer, readsNothingOfTokens)
{
    for (const char *tokens : {"0", "8 1 0 1 7 5 0 0 0", "2 x y"}) {
        const GetErrorsAnswer answer(tokensOf(tokens));
        EXPECT_TRUE(answer.errorList().isEmpty()) << tokens;
        EXPECT_EQ(answer.serialParameters(), tokensOf(tokens).mid(1));
    }
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", serial, [] { GetErrorsAnswer{QStringList()}; });
    expectRefusal("DE00077", "Error during command answer decoding: bad length", serial,
                  [] { GetErrorsAnswer{tokensOf("2 1")}; });
}

TEST(GetErrorsAnswer, takesTheErrorsOutOfAList)
{
    List list = {QVariant::fromValue(FW_DriverError("DE00001", "text")),
                 QVariant::fromValue(FW_HwError(5, 7, 1, true, SerialDeviceType::Dispenser)),
                 5,
                 QVariant(),
                 QVariant::fromValue(FW_ConfError(6, 8, 2, false)),
                 QVariant::fromValue(errorsOfAllKinds())};
    const GetErrorsAnswer answer(list);
    EXPECT_EQ(shown(answer.errorList()),
              std::string("driver DE00001, hw 5 7 1 true 1, conf 6 8 2 false, ") + allKinds);
    EXPECT_EQ(list.size(), 6);
    List none;
    EXPECT_TRUE(GetErrorsAnswer(none).errorList().isEmpty());
}

TEST(GetErrorsAnswer, saysSoWhenThereIsNoMemoryForAnError)
{
    List list = {QVariant::fromValue(FW_DriverError("DE00001", "text"))};
    expectRefusal("DE00467", "GetErrorsAnswer: errors during FW_ErrorList creation (QVariant)",
                  "GetErrorsAnswer::GetErrorsAnswer(QList<QVariant>&)",
                  [&] { outOfMemoryOnce([&] { GetErrorsAnswer{list}; }); });
    const Value value = answerOf(arrayOf(driverErrorStruct("DE00289")));
    EXPECT_EQ(GetErrorsAnswer(value).errorList().size(), 1);
    expectRefusal("DE00470", "GetErrorsAnswer: errors during FW_ErrorList creation (XmlRpcValue)", ofValue,
                  [&] { outOfMemoryOnce([&] { GetErrorsAnswer{value}; }); });
}

TEST(GetErrorsAnswer, travelsInTheOrderOfTheList)
{
    const Value value = answerOf(
        arrayOf(driverErrorStruct("DE00289"), configurationErrorStruct(99), hardwareErrorStruct(1234)));
    const GetErrorsAnswer answer(value);
    EXPECT_EQ(shown(answer.errorList()), allKinds);
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), dumped(value));
    EXPECT_EQ(GetErrorsAnswer(errorsOfAllKinds()), answer);
    EXPECT_EQ(dumped(GetErrorsAnswer().toXmlRpcValue()), R"({"fw_errors": []})");
    EXPECT_TRUE(GetErrorsAnswer(answerOf(arrayOf())).errorList().isEmpty());
}

TEST(GetErrorsAnswer, refusesAValueWithoutErrors)
{
    for (const Value &value :
         {Value(), Value(5), arrayOf(), structOf({}), structOf({{"errors", arrayOf()}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00471", "GetErrorsAnswer: Errors during FW_ErrorList list creation (XmlRpcValue)",
                      ofValue, [&] { GetErrorsAnswer{value}; });
    }
}

TEST(GetErrorsAnswer, passesOnWhatTheListRefuses)
{
    for (const Value &errors : {Value(5), structOf({})}) {
        SCOPED_TRACE(dumped(errors));
        expectRefusal("DE03006", "FW_ErrorList: expected array type",
                      "FW_ErrorList::FW_ErrorList(const XmlRpc::XmlRpcValue&)",
                      [&] { GetErrorsAnswer{answerOf(errors)}; });
    }
    expectRefusal("DE03007", "FW_Error: unknown error type",
                  "static FW_Error* FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue&)",
                  [] { GetErrorsAnswer{answerOf(arrayOf(5))}; });
}

TEST(GetErrorsAnswer, isEqualByItsList)
{
    const GetErrorsAnswer answer(errorsOfAllKinds());
    const std::unique_ptr<const GetErrorsAnswer> copy(answer.clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_TRUE(answer == *copy);
    FW_ErrorList more = errorsOfAllKinds();
    more.append(hardwareErrorStruct(1));
    const GetErrorsAnswer others[] = {GetErrorsAnswer(), GetErrorsAnswer(more)};
    for (const GetErrorsAnswer &other : others) {
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const FwErrorAnswer anotherClass;
    EXPECT_FALSE(GetErrorsAnswer().equalTo(&anotherClass));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetErrorsAnswer, answersThePlainCommandInAllForms)
{
    SerialProtoCommand command("GET_ERRORS", nullptr);
    List list = {QVariant::fromValue(errorsOfAllKinds())};
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_EQ(className(command.getProtoAnswer()), "GetErrorsAnswer");
    EXPECT_EQ(shown(dynamic_cast<const GetErrorsAnswer &>(*command.getProtoAnswer()).errorList()), allKinds);
    ASSERT_TRUE(command.setSerialAnswer({"0"}, nullptr));
    EXPECT_EQ(className(command.getProtoAnswer()), "GetErrorsAnswer");
    ASSERT_TRUE(command.buildProtoAnswer(answerOf(arrayOf()), nullptr));
    EXPECT_EQ(className(command.getProtoAnswer()), "GetErrorsAnswer");
    FW_DriverError error;
    EXPECT_FALSE(command.buildProtoAnswer(structOf({}), &error));
    EXPECT_EQ(error.code(), "DE00471");
    EXPECT_EQ(command.commandString(), "Errors read");
    EXPECT_EQ(command.actionString(false).m_text, "Searching for hardware errors");
    EXPECT_EQ(command.actionString(true).m_text, "Searching for hardware errors");
    EXPECT_EQ(command.serialParameters(1), QList<int>());
    EXPECT_EQ(ProtoCommandList::cmdCode("GET_ERRORS", 1), "");
}

} // namespace
