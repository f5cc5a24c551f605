// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_error.h>

#include "values.h"

#include <memory>
#include <type_traits>

using values::arrayOf;
using values::expectException;
using values::stored;
using values::structOf;
using values::XmlRpcValue;

namespace {

const QDateTime leapDay(QDate(2024, 2, 29), QTime(23, 59, 58, 123), Qt::UTC);
const char leapDayText[] = "2024-02-29T23:59:58.123Z";

const char rootSignature[] = "FW_Error::FW_Error(const XmlRpc::XmlRpcValue&)";
const char rootText[] = "FW_Error: expected error_type and timestamp values";

XmlRpcValue driverErrorValue()
{
    return structOf(
        {{"error_type", 1}, {"timestamp", leapDayText}, {"code", "DE00289"}, {"text", "Too few parameters"}});
}

XmlRpcValue hwErrorValue()
{
    return structOf({{"error_type", 2},
                     {"timestamp", leapDayText},
                     {"code", 1234},
                     {"module", 7},
                     {"value", 31},
                     {"flag", true},
                     {"device", 4}});
}

XmlRpcValue confErrorValue()
{
    return structOf({{"error_type", 3},
                     {"timestamp", leapDayText},
                     {"code", 99},
                     {"module", 2},
                     {"value", 5},
                     {"flag", true}});
}

XmlRpcValue with(XmlRpcValue value, const char *member, const XmlRpcValue &content)
{
    value[member] = content;
    return value;
}

XmlRpcValue without(const XmlRpcValue &value, const std::string &member)
{
    XmlRpcValue rest;
    for (const auto &[name, content] : value) {
        if (name != member)
            rest[name] = content;
    }
    return rest;
}

/** The reader is called with a value that it must refuse, and must leave as it was. */
template <class Error>
void expectRefusal(const XmlRpcValue &value, const char *code, const char *text, const char *function)
{
    SCOPED_TRACE(value.toXml());
    const std::string before = value.toXml();
    expectException([&] { const Error error(value); }, code, text, function);
    EXPECT_EQ(value.toXml(), before);
}

template <class Error>
void expectRootRefusals(const XmlRpcValue &good)
{
    for (const XmlRpcValue &bad :
         {XmlRpcValue(), XmlRpcValue(1), XmlRpcValue("1"), arrayOf({1}), structOf({}),
          without(good, "error_type"), without(good, "timestamp"), with(good, "error_type", "1"),
          with(good, "error_type", true), with(good, "error_type", 0), with(good, "error_type", 4),
          with(good, "error_type", -1), with(good, "timestamp", 1), with(good, "timestamp", ""),
          with(good, "timestamp", "yesterday"), with(good, "timestamp", "2024-02-30T00:00:00Z")})
        expectRefusal<Error>(bad, "DE03001", rootText, rootSignature);
}

TEST(FW_Error, isAnAbstractRootOfTheThreeKinds)
{
    EXPECT_TRUE(std::is_abstract_v<FW_Error>);
    EXPECT_TRUE(std::has_virtual_destructor_v<FW_Error>);
    EXPECT_EQ(FW_DriverError().errorType(), 1);
    EXPECT_EQ(FW_HwError(1, 2, 3, true, SerialDeviceType::Mixer).errorType(), 2);
    EXPECT_EQ(FW_ConfError(1, 2, 3, true).errorType(), 3);
}

TEST(FW_Error, isOfThisMoment)
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    const FW_DriverError error;
    const QDateTime after = QDateTime::currentDateTimeUtc();
    EXPECT_LE(before, error.timestamp());
    EXPECT_LE(error.timestamp(), after);
}

TEST(FW_Error, takesNoInvalidTime)
{
    FW_DriverError error;
    error.setTimestamp(leapDay);
    error.setTimestamp(QDateTime());
    EXPECT_EQ(error.timestamp(), leapDay);
}

TEST(FW_Error, writesItsTimeInUtcWithMilliseconds)
{
    FW_DriverError error;
    error.setTimestamp(QDateTime(QDate(2024, 3, 1), QTime(1, 59, 58, 123), Qt::OffsetFromUTC, 7200));
    EXPECT_EQ(stored<std::string>(error.toXmlRpcValue()["timestamp"]), "2024-02-29T23:59:58.123Z");
}

TEST(FW_Error, readsItsTimeWithAndWithoutOffset)
{
    const auto timeOf = [](const char *text) {
        return FW_DriverError(with(driverErrorValue(), "timestamp", text)).timestamp();
    };
    EXPECT_EQ(timeOf("2024-03-01T01:59:58.123+02:00"), leapDay);
    EXPECT_EQ(timeOf("2024-02-29T23:59:58.123"), leapDay);
    EXPECT_EQ(timeOf("2024-02-29T23:59:58Z"), leapDay.addMSecs(-123));
    const XmlRpcValue broken = values::dateTime(2024, 2, 29, 23, 59, 58);
    EXPECT_EQ(FW_DriverError(with(driverErrorValue(), "timestamp", broken)).timestamp(),
              leapDay.addMSecs(-123));
}

TEST(FW_Error, kindOfAValueIsReadWithoutAnError)
{
    EXPECT_EQ(FW_Error::errorType(structOf({{"error_type", 1}})), FW_Error::Driver);
    EXPECT_EQ(FW_Error::errorType(structOf({{"error_type", 2}})), FW_Error::Hardware);
    EXPECT_EQ(FW_Error::errorType(structOf({{"error_type", 3}})), FW_Error::Configuration);
    const XmlRpcValue noKind = structOf({{"code", 1}});
    for (const XmlRpcValue &bad :
         {XmlRpcValue(), XmlRpcValue(2), XmlRpcValue("2"), arrayOf({2}), noKind,
          structOf({{"error_type", 0}}), structOf({{"error_type", 4}}), structOf({{"error_type", -1}}),
          structOf({{"error_type", true}}), structOf({{"error_type", 2.0}}), structOf({{"error_type", "2"}})})
        EXPECT_EQ(FW_Error::errorType(bad), FW_Error::Undefined) << bad.toXml();
    EXPECT_EQ(FW_Error::errorType(noKind), FW_Error::Undefined);
    EXPECT_EQ(noKind.size(), 1);
}

TEST(FW_Error, isReadAsTheClassOfItsKind)
{
    const std::unique_ptr<FW_Error> driver(FW_Error::fromXmlRpcValue(driverErrorValue()));
    const std::unique_ptr<FW_Error> hardware(FW_Error::fromXmlRpcValue(hwErrorValue()));
    const std::unique_ptr<FW_Error> configuration(FW_Error::fromXmlRpcValue(confErrorValue()));
    ASSERT_NE(dynamic_cast<FW_DriverError *>(driver.get()), nullptr);
    ASSERT_NE(dynamic_cast<FW_HwError *>(hardware.get()), nullptr);
    ASSERT_NE(dynamic_cast<FW_ConfError *>(configuration.get()), nullptr);
    EXPECT_EQ(dynamic_cast<FW_DriverError &>(*driver).code(), "DE00289");
    EXPECT_EQ(dynamic_cast<FW_HwError &>(*hardware).code(), 1234);
    EXPECT_EQ(dynamic_cast<FW_ConfError &>(*configuration).code(), 99);
}

TEST(FW_Error, ofUnknownKindIsRefused)
{
    const char signature[] = "static FW_Error* FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue&)";
    for (const XmlRpcValue &bad :
         {XmlRpcValue(), XmlRpcValue(1), arrayOf({driverErrorValue()}), structOf({}),
          without(driverErrorValue(), "error_type"), with(driverErrorValue(), "error_type", 0),
          with(driverErrorValue(), "error_type", 4), with(driverErrorValue(), "error_type", "1")}) {
        SCOPED_TRACE(bad.toXml());
        const std::string before = bad.toXml();
        expectException([&] { const std::unique_ptr<FW_Error> error(FW_Error::fromXmlRpcValue(bad)); },
                        "DE03007", "FW_Error: unknown error type", signature);
        EXPECT_EQ(bad.toXml(), before);
    }
}

TEST(FW_Error, refusalOfItsClassPassesThrough)
{
    expectException(
        [] {
            const std::unique_ptr<FW_Error> error(
                FW_Error::fromXmlRpcValue(structOf({{"error_type", 1}, {"timestamp", leapDayText}})));
        },
        "DE03002", "FW_DriverError: expected code value",
        "FW_DriverError::FW_DriverError(const XmlRpc::XmlRpcValue&)");
}

TEST(FW_DriverError, beginsEmpty)
{
    const FW_DriverError error;
    EXPECT_EQ(error.code(), "");
    EXPECT_EQ(error.text(), "");
    EXPECT_EQ(error.function(), "");
}

TEST(FW_DriverError, copiesAndAssignsWithItsTime)
{
    FW_DriverError original("DE00001", "no machine");
    original.setTimestamp(leapDay);
    const FW_DriverError copy(original);
    FW_DriverError assigned("DE00002", "other");
    assigned = original;
    original = FW_DriverError();
    for (const FW_DriverError &error : {copy, assigned}) {
        EXPECT_EQ(error.code(), "DE00001");
        EXPECT_EQ(error.text(), "no machine");
        EXPECT_EQ(error.timestamp(), leapDay);
    }
}

TEST(FW_DriverError, cloneIsOneOfItsOwn)
{
    auto original = std::make_unique<FW_DriverError>("DE00001", "no machine");
    const std::unique_ptr<FW_DriverError> copy(original->clone());
    original.reset();
    EXPECT_EQ(copy->code(), "DE00001");
    EXPECT_EQ(copy->text(), "no machine");
}

TEST(FW_DriverError, endsAFailingFunctionInOneLine)
{
    FW_DriverError error;
    EXPECT_FALSE(FW_DriverError::D_E("DE00010", "by pointer", &error));
    EXPECT_EQ(error.code(), "DE00010");
    EXPECT_EQ(error.text(), "by pointer");

    EXPECT_FALSE(FW_DriverError::D_E("DE00011", "by reference", error));
    EXPECT_EQ(error.code(), "DE00011");
    EXPECT_EQ(error.text(), "by reference");

    EXPECT_FALSE(FW_DriverError::D_E("DE00012", "to nobody", nullptr));
    FW_DriverError *nobody = nullptr;
    EXPECT_FALSE(FW_DriverError::D_E("DE00012", "to nobody", nobody));
    EXPECT_EQ(error.code(), "DE00011");
}

TEST(FW_DriverError, anErrorFilledAgainForgetsTheThrower)
{
    FW_DriverError error = FW_Exception("DE00001", "thrown", "int f()");
    FW_DriverError::D_E("DE00002", "returned", error);
    EXPECT_EQ(error.function(), "");
}

TEST(FW_DriverError, printsAsOneLine)
{
    EXPECT_EQ(FW_DriverError("DE00001", "no machine").toPrintableString(), "DE00001: no machine");
    EXPECT_EQ(FW_DriverError("DE00001", "first\nsecond\r\n\tthird\n").toPrintableString(),
              "DE00001: first second third");
    EXPECT_EQ(
        FW_DriverError("DE\n1", QString("a") + QChar(0x2028) + "b" + QChar(0x2029) + "c" + QChar(0x85) + "d")
            .toPrintableString(),
        "DE 1: a b c d");
    EXPECT_EQ(FW_DriverError("DE00001", "%1 of %2").toPrintableString(), "DE00001: %1 of %2");
    EXPECT_EQ(FW_DriverError("%2", "text").toPrintableString(), "%2: text");
}

TEST(FW_DriverError, travelsAsAStruct)
{
    FW_DriverError error("DE00001", QString::fromUtf8("caff\u00e8\nvuoto"));
    error.setTimestamp(leapDay);
    const XmlRpcValue value = error.toXmlRpcValue();
    ASSERT_EQ(value.size(), 4);
    EXPECT_EQ(stored<int>(value["error_type"]), 1);
    EXPECT_EQ(stored<std::string>(value["timestamp"]), leapDayText);
    EXPECT_EQ(stored<std::string>(value["code"]), "DE00001");
    EXPECT_EQ(stored<std::string>(value["text"]), "caff\xc3\xa8\nvuoto");
}

TEST(FW_DriverError, isReadFromItsStruct)
{
    const FW_DriverError error(driverErrorValue());
    EXPECT_EQ(error.code(), "DE00289");
    EXPECT_EQ(error.text(), "Too few parameters");
    EXPECT_EQ(error.timestamp(), leapDay);
    EXPECT_EQ(error.function(), "");
    EXPECT_EQ(FW_DriverError(with(driverErrorValue(), "text", "caff\xe8")).text(),
              QString::fromUtf8("caff\u00e8"));
}

TEST(FW_DriverError, refusesWhatIsNoDriverError)
{
    const char signature[] = "FW_DriverError::FW_DriverError(const XmlRpc::XmlRpcValue&)";
    expectRootRefusals<FW_DriverError>(driverErrorValue());
    for (const XmlRpcValue &bad :
         {without(driverErrorValue(), "code"), with(driverErrorValue(), "code", 289)})
        expectRefusal<FW_DriverError>(bad, "DE03002", "FW_DriverError: expected code value", signature);
    for (const XmlRpcValue &bad : {without(driverErrorValue(), "text"), with(driverErrorValue(), "text", 1)})
        expectRefusal<FW_DriverError>(bad, "DE03003", "FW_DriverError: expected text value", signature);
}

TEST(FW_DriverError, equalsOneOfTheSameContentAtAnotherTime)
{
    FW_DriverError later("DE00001", "text");
    later.setTimestamp(leapDay);
    const FW_DriverError error("DE00001", "text");
    EXPECT_TRUE(error.equalTo(later));
    EXPECT_FALSE(error.equalTo(FW_DriverError("DE00002", "text")));
    EXPECT_FALSE(error.equalTo(FW_DriverError("DE00001", "other")));
    EXPECT_FALSE(error.equalTo(FW_ConfError(1, 2, 3, true)));
    const FW_Exception exception(error, "int f()");
    EXPECT_TRUE(error.equalTo(exception));
    EXPECT_TRUE(exception.equalTo(error));
}

TEST(FW_HwError, keepsTheNumbersOfTheFirmware)
{
    const FW_HwError error(1234, 7, 31, true, SerialDeviceType::Mixer);
    EXPECT_EQ(error.code(), 1234);
    EXPECT_EQ(error.module(), 7);
    EXPECT_EQ(error.value(), 31);
    EXPECT_TRUE(error.flag());
    EXPECT_EQ(error.device(), SerialDeviceType::Mixer);
    EXPECT_EQ(error.toPrintableString(), "Hardware error: code 1234, module 7, value 31, flag 1");
    EXPECT_EQ(FW_HwError(-1, 0, 2, false, SerialDeviceType::Dispenser).toPrintableString(),
              "Hardware error: code -1, module 0, value 2, flag 0");
}

TEST(FW_HwError, travelsAsAStruct)
{
    FW_HwError error(1234, 7, 31, true, SerialDeviceType::Mixer);
    error.setTimestamp(leapDay);
    const XmlRpcValue value = error.toXmlRpcValue();
    ASSERT_EQ(value.size(), 7);
    EXPECT_EQ(stored<int>(value["error_type"]), 2);
    EXPECT_EQ(stored<std::string>(value["timestamp"]), leapDayText);
    EXPECT_EQ(stored<int>(value["code"]), 1234);
    EXPECT_EQ(stored<int>(value["module"]), 7);
    EXPECT_EQ(stored<int>(value["value"]), 31);
    EXPECT_TRUE(stored<bool>(value["flag"]));
    EXPECT_EQ(stored<int>(value["device"]), 4);
}

TEST(FW_HwError, isReadFromItsStruct)
{
    const FW_HwError error(hwErrorValue());
    EXPECT_EQ(error.code(), 1234);
    EXPECT_EQ(error.module(), 7);
    EXPECT_EQ(error.value(), 31);
    EXPECT_TRUE(error.flag());
    EXPECT_EQ(error.device(), SerialDeviceType::Mixer);
    EXPECT_EQ(error.timestamp(), leapDay);
    EXPECT_EQ(FW_HwError(with(hwErrorValue(), "device", 1)).device(), SerialDeviceType::Dispenser);
    EXPECT_EQ(FW_HwError(with(hwErrorValue(), "device", 2)).device(), SerialDeviceType::Scale);
}

TEST(FW_HwError, refusesWhatIsNoHardwareError)
{
    const char signature[] = "FW_HwError::FW_HwError(const XmlRpc::XmlRpcValue&)";
    const char text[] = "FW_HwError: expected the numbers of a hardware error";
    expectRootRefusals<FW_HwError>(hwErrorValue());
    for (const char *number : {"code", "module", "value", "device"}) {
        expectRefusal<FW_HwError>(without(hwErrorValue(), number), "DE03004", text, signature);
        for (const XmlRpcValue &bad : {XmlRpcValue("1"), XmlRpcValue(true), XmlRpcValue(1.0), arrayOf({1})})
            expectRefusal<FW_HwError>(with(hwErrorValue(), number, bad), "DE03004", text, signature);
    }
    expectRefusal<FW_HwError>(without(hwErrorValue(), "flag"), "DE03004", text, signature);
    expectRefusal<FW_HwError>(with(hwErrorValue(), "flag", 1), "DE03004", text, signature);
    for (int device : {0, 3, 5, 8, -1})
        expectRefusal<FW_HwError>(with(hwErrorValue(), "device", device), "DE03004", text, signature);
}

TEST(FW_HwError, differsInAnyNumber)
{
    FW_HwError later(1, 2, 3, true, SerialDeviceType::Mixer);
    later.setTimestamp(leapDay);
    const FW_HwError error(1, 2, 3, true, SerialDeviceType::Mixer);
    EXPECT_TRUE(error.equalTo(later));
    EXPECT_FALSE(error.equalTo(FW_HwError(9, 2, 3, true, SerialDeviceType::Mixer)));
    EXPECT_FALSE(error.equalTo(FW_HwError(1, 9, 3, true, SerialDeviceType::Mixer)));
    EXPECT_FALSE(error.equalTo(FW_HwError(1, 2, 9, true, SerialDeviceType::Mixer)));
    EXPECT_FALSE(error.equalTo(FW_HwError(1, 2, 3, false, SerialDeviceType::Mixer)));
    EXPECT_FALSE(error.equalTo(FW_HwError(1, 2, 3, true, SerialDeviceType::Dispenser)));
    EXPECT_FALSE(error.equalTo(FW_ConfError(1, 2, 3, true)));
}

TEST(FW_ConfError, keepsTheNumbersOfTheFirmware)
{
    const FW_ConfError error(99, 2, 5, true);
    EXPECT_EQ(error.code(), 99);
    EXPECT_EQ(error.module(), 2);
    EXPECT_EQ(error.value(), 5);
    EXPECT_TRUE(error.flag());
    EXPECT_EQ(error.toPrintableString(), "Configuration error: code 99, module 2, value 5, flag 1");
}

TEST(FW_ConfError, travelsAsAStruct)
{
    FW_ConfError error(99, 2, 5, true);
    error.setTimestamp(leapDay);
    const XmlRpcValue value = error.toXmlRpcValue();
    ASSERT_EQ(value.size(), 6);
    EXPECT_EQ(stored<int>(value["error_type"]), 3);
    EXPECT_EQ(stored<std::string>(value["timestamp"]), leapDayText);
    EXPECT_EQ(stored<int>(value["code"]), 99);
    EXPECT_EQ(stored<int>(value["module"]), 2);
    EXPECT_EQ(stored<int>(value["value"]), 5);
    EXPECT_TRUE(stored<bool>(value["flag"]));
}

TEST(FW_ConfError, isReadFromItsStruct)
{
    const FW_ConfError error(confErrorValue());
    EXPECT_EQ(error.code(), 99);
    EXPECT_EQ(error.module(), 2);
    EXPECT_EQ(error.value(), 5);
    EXPECT_TRUE(error.flag());
    EXPECT_EQ(error.timestamp(), leapDay);
}

TEST(FW_ConfError, refusesWhatIsNoConfigurationError)
{
    const char signature[] = "FW_ConfError::FW_ConfError(const XmlRpc::XmlRpcValue&)";
    const char text[] = "FW_ConfError: expected the numbers of a configuration error";
    expectRootRefusals<FW_ConfError>(confErrorValue());
    for (const char *number : {"code", "module", "value"}) {
        expectRefusal<FW_ConfError>(without(confErrorValue(), number), "DE03005", text, signature);
        for (const XmlRpcValue &bad : {XmlRpcValue("1"), XmlRpcValue(true), XmlRpcValue(1.0), arrayOf({1})})
            expectRefusal<FW_ConfError>(with(confErrorValue(), number, bad), "DE03005", text, signature);
    }
    expectRefusal<FW_ConfError>(without(confErrorValue(), "flag"), "DE03005", text, signature);
    expectRefusal<FW_ConfError>(with(confErrorValue(), "flag", 1), "DE03005", text, signature);
}

TEST(FW_ConfError, differsInAnyNumber)
{
    FW_ConfError later(1, 2, 3, true);
    later.setTimestamp(leapDay);
    const FW_ConfError error(1, 2, 3, true);
    EXPECT_TRUE(error.equalTo(later));
    EXPECT_FALSE(error.equalTo(FW_ConfError(9, 2, 3, true)));
    EXPECT_FALSE(error.equalTo(FW_ConfError(1, 9, 3, true)));
    EXPECT_FALSE(error.equalTo(FW_ConfError(1, 2, 9, true)));
    EXPECT_FALSE(error.equalTo(FW_ConfError(1, 2, 3, false)));
    EXPECT_FALSE(error.equalTo(FW_HwError(1, 2, 3, true, SerialDeviceType::Dispenser)));
}

TEST(FW_HwError, startsWithoutNumbers)
{
    EXPECT_TRUE(FW_HwError().equalTo(FW_HwError(0, 0, 0, false, SerialDeviceType::Dispenser)));
    EXPECT_TRUE(FW_ConfError().equalTo(FW_ConfError(0, 0, 0, false)));
}

} // namespace
