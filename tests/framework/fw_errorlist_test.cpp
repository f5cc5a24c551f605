// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_errorlist.h>
#include <QuvFramework/fw_xmlrpc.h>

#include "values.h"

#include <memory>
#include <utility>

using values::arrayOf;
using values::expectException;
using values::stored;
using values::structOf;
using values::XmlRpcValue;

namespace {

const QDateTime noon(QDate(2024, 2, 29), QTime(12, 0, 0, 7), Qt::UTC);

/** "1:DE00001 2:1234 3:99": kind and code of each error. */
std::string summary(const FW_ErrorList &list)
{
    std::string text;
    for (int i = 0; i < list.size(); ++i) {
        const FW_Error *error = list[i];
        text += (i > 0 ? " " : "") + std::to_string(error->errorType()) + ":";
        if (const auto *driver = dynamic_cast<const FW_DriverError *>(error))
            text += driver->code().toStdString();
        else if (const auto *hardware = dynamic_cast<const FW_HwError *>(error))
            text += std::to_string(hardware->code());
        else
            text += std::to_string(dynamic_cast<const FW_ConfError &>(*error).code());
    }
    return text;
}

FW_ErrorList listOfAllKinds()
{
    FW_ErrorList list;
    list.append(FW_DriverError("DE00001", "no machine"));
    list.append(QList<FW_HwError>{FW_HwError(1234, 7, 31, true, SerialDeviceType::Mixer)});
    list.append(QList<FW_ConfError>{FW_ConfError(99, 2, 5, false)});
    return list;
}

XmlRpcValue driverErrorValue(const char *code)
{
    return structOf(
        {{"error_type", 1}, {"timestamp", "2024-02-29T12:00:00.007Z"}, {"code", code}, {"text", "t"}});
}

TEST(FW_ErrorList, beginsEmpty)
{
    const FW_ErrorList list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.size(), 0);
    EXPECT_EQ(list[0], nullptr);
    const XmlRpcValue value = list.toXmlRpcValue();
    EXPECT_EQ(value.getType(), XmlRpcValue::TypeArray);
    EXPECT_EQ(value.size(), 0);
}

TEST(FW_ErrorList, keepsErrorsOfAllKindsInOrder)
{
    EXPECT_EQ(summary(listOfAllKinds()), "1:DE00001 2:1234 3:99");

    FW_ErrorList list;
    list.append(QList<FW_HwError>{FW_HwError(1, 0, 0, false, SerialDeviceType::Dispenser),
                                  FW_HwError(2, 0, 0, false, SerialDeviceType::Dispenser)});
    list.append(QList<FW_ConfError>{FW_ConfError(3, 0, 0, false), FW_ConfError(4, 0, 0, false)});
    list.append(QList<FW_HwError>());
    list.append(QList<FW_ConfError>());
    EXPECT_EQ(summary(list), "2:1 2:2 3:3 3:4");
}

TEST(FW_ErrorList, appendsACopyOfAnyError)
{
    FW_ErrorList list;
    auto error = std::make_unique<FW_HwError>(5, 6, 7, true, SerialDeviceType::Mixer);
    error->setTimestamp(noon);
    list.append(error.get());
    EXPECT_NE(list[0], error.get());
    error.reset();
    const auto *kept = dynamic_cast<const FW_HwError *>(list[0]);
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->code(), 5);
    EXPECT_EQ(kept->module(), 6);
    EXPECT_EQ(kept->value(), 7);
    EXPECT_TRUE(kept->flag());
    EXPECT_EQ(kept->device(), SerialDeviceType::Mixer);
    EXPECT_EQ(kept->timestamp(), noon);
}

TEST(FW_ErrorList, appendsADriverErrorByValue)
{
    FW_ErrorList list;
    {
        FW_DriverError error("DE00001", "text");
        error.setTimestamp(noon);
        list.append(error);
        error = FW_DriverError("DE00002", "other");
    }
    EXPECT_EQ(summary(list), "1:DE00001");
    EXPECT_EQ(list[0]->timestamp(), noon);
}

TEST(FW_ErrorList, nullAddsNothing)
{
    FW_ErrorList list;
    list.append(static_cast<const FW_Error *>(nullptr));
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(FW_ErrorList(QList<FW_Error *>{nullptr}).isEmpty());
}

TEST(FW_ErrorList, appendsAnErrorOfItsOwn)
{
    FW_ErrorList list = listOfAllKinds();
    for (int i = 0; i < 20; ++i) // far enough for the list to move its content
        list.append(list[1]);
    EXPECT_EQ(list.size(), 23);
    EXPECT_TRUE(list[22]->equalTo(FW_HwError(1234, 7, 31, true, SerialDeviceType::Mixer)));
}

TEST(FW_ErrorList, appendsItself)
{
    FW_ErrorList list = listOfAllKinds();
    list.append(list);
    EXPECT_EQ(summary(list), "1:DE00001 2:1234 3:99 1:DE00001 2:1234 3:99");
    EXPECT_NE(list[0], list[3]);
}

TEST(FW_ErrorList, copiesAreListsOfTheirOwn)
{
    auto original = std::make_unique<FW_ErrorList>(listOfAllKinds());
    const FW_ErrorList copy(*original);
    FW_ErrorList assigned;
    assigned.append(FW_DriverError("DE00009", "replaced"));
    assigned = *original;
    EXPECT_NE(copy[0], (*original)[0]);
    original->clear();
    EXPECT_TRUE(original->isEmpty());
    original.reset();
    EXPECT_EQ(summary(copy), "1:DE00001 2:1234 3:99");
    EXPECT_EQ(summary(assigned), "1:DE00001 2:1234 3:99");
}

TEST(FW_ErrorList, copyKeepsExceptions)
{
    FW_ErrorList list;
    list.append(FW_Exception("DE00001", "text", "int f()"));
    const FW_ErrorList copy(list);
    const auto *exception = dynamic_cast<const FW_Exception *>(copy[0]);
    ASSERT_NE(exception, nullptr);
    EXPECT_EQ(exception->function(), "int f()");
}

TEST(FW_ErrorList, survivesAssignmentToItself)
{
    FW_ErrorList list = listOfAllKinds();
    const FW_ErrorList &same = list;
    list = same;
    EXPECT_EQ(summary(list), "1:DE00001 2:1234 3:99");
}

TEST(FW_ErrorList, moves)
{
    FW_ErrorList source = listOfAllKinds();
    const FW_Error *first = source[0];
    FW_ErrorList moved(std::move(source));
    EXPECT_EQ(moved[0], first);
    FW_ErrorList target = listOfAllKinds();
    target = std::move(moved);
    EXPECT_EQ(target[0], first);
    EXPECT_EQ(summary(target), "1:DE00001 2:1234 3:99");
}

TEST(FW_ErrorList, isCopiedFromAListOfPointers)
{
    FW_DriverError driver("DE00001", "text");
    FW_ConfError configuration(3, 0, 0, false);
    const FW_ErrorList list(QList<FW_Error *>{&driver, nullptr, &configuration});
    EXPECT_EQ(summary(list), "1:DE00001 3:3");
    EXPECT_NE(list[0], &driver);
}

TEST(FW_ErrorList, takesErrorsOutOfVariants)
{
    FW_DriverError error("DE00001", "text");
    error.setTimestamp(noon);
    const FW_ErrorList list(QList<QVariant>{QVariant::fromValue(error), 5, QVariant(), "DE00002",
                                            QVariant::fromValue(listOfAllKinds())});
    EXPECT_EQ(summary(list), "1:DE00001 1:DE00001 2:1234 3:99");
    EXPECT_EQ(list[0]->timestamp(), noon);
    EXPECT_TRUE(FW_ErrorList(QList<QVariant>()).isEmpty());
}

TEST(FW_ErrorList, takesErrorsOfAllKindsOutOfVariants)
{
    FW_HwError hardware(1234, 7, 31, true, SerialDeviceType::Mixer);
    hardware.setTimestamp(noon);
    const FW_ConfError configuration(99, 2, 5, false);
    const FW_ErrorList list(QList<QVariant>{QVariant::fromValue(configuration), QVariant::fromValue(hardware),
                                            7, QVariant::fromValue(FW_DriverError("DE00001", "text")),
                                            QVariant::fromValue(hardware)});
    EXPECT_EQ(summary(list), "3:99 2:1234 1:DE00001 2:1234");
    EXPECT_TRUE(list[0]->equalTo(configuration));
    EXPECT_TRUE(list[1]->equalTo(hardware));
    EXPECT_EQ(list[1]->timestamp(), noon);
}

TEST(FW_ErrorList, indexOutOfRangeIsNull)
{
    const FW_ErrorList list = listOfAllKinds();
    EXPECT_NE(list[2], nullptr);
    EXPECT_EQ(list[3], nullptr);
    EXPECT_EQ(list[-1], nullptr);
}

TEST(FW_ErrorList, clears)
{
    FW_ErrorList list = listOfAllKinds();
    list.clear();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list[0], nullptr);
    list.append(FW_DriverError("DE00002", "again"));
    EXPECT_EQ(summary(list), "1:DE00002");
}

TEST(FW_ErrorList, equalsAListOfTheSameErrors)
{
    FW_ErrorList list = listOfAllKinds();
    EXPECT_TRUE(list == listOfAllKinds());
    EXPECT_FALSE(list != listOfAllKinds());
    EXPECT_TRUE(FW_ErrorList() == FW_ErrorList());

    FW_ErrorList longer = listOfAllKinds();
    longer.append(FW_DriverError("DE00002", "more"));
    EXPECT_TRUE(list != longer);
    EXPECT_TRUE(longer != list);
    EXPECT_TRUE(list != FW_ErrorList());

    FW_ErrorList reversed;
    for (int i = 2; i >= 0; --i)
        reversed.append(list[i]);
    EXPECT_TRUE(list != reversed);
}

TEST(FW_ErrorList, filtersByKindInOrder)
{
    FW_ErrorList list = listOfAllKinds();
    list.append(FW_DriverError("DE00002", "second"));

    const QList<FW_Error *> drivers = list.filterErrorTypes(1);
    ASSERT_EQ(drivers.size(), 2);
    EXPECT_EQ(drivers.at(0), list[0]);
    EXPECT_EQ(drivers.at(1), list[3]);
    ASSERT_EQ(list.filterErrorTypes(2).size(), 1);
    EXPECT_EQ(list.filterErrorTypes(2).at(0), list[1]);
    ASSERT_EQ(list.filterErrorTypes(3).size(), 1);
    EXPECT_EQ(list.filterErrorTypes(3).at(0), list[2]);
    EXPECT_TRUE(list.filterErrorTypes(0).isEmpty());
    EXPECT_TRUE(list.filterErrorTypes(4).isEmpty());
    EXPECT_TRUE(list.filterErrorTypes(-1).isEmpty());
}

TEST(FW_ErrorList, travelsAsAnArrayOfOneStructAnError)
{
    const XmlRpcValue value = listOfAllKinds().toXmlRpcValue();
    ASSERT_EQ(value.getType(), XmlRpcValue::TypeArray);
    ASSERT_EQ(value.size(), 3);
    const XmlRpcValue driver(value[0]);
    const XmlRpcValue hardware(value[1]);
    const XmlRpcValue configuration(value[2]);
    EXPECT_EQ(stored<std::string>(driver["code"]), "DE00001");
    EXPECT_EQ(stored<std::string>(driver["text"]), "no machine");
    EXPECT_EQ(stored<int>(hardware["error_type"]), 2);
    EXPECT_EQ(stored<int>(hardware["device"]), 4);
    EXPECT_EQ(stored<int>(configuration["error_type"]), 3);
    EXPECT_EQ(stored<int>(configuration["code"]), 99);
}

TEST(FW_ErrorList, comesBackFromItsValueToTheMillisecond)
{
    FW_ErrorList list = listOfAllKinds();
    list.append(FW_Exception("DE00002", QString::fromUtf8("caff\u00e8\n%1"), "int f()"));
    FW_HwError timed(1, 2, 3, false, SerialDeviceType::Scale);
    timed.setTimestamp(noon);
    list.append(&timed);

    const FW_ErrorList back(list.toXmlRpcValue());
    EXPECT_EQ(summary(back), "1:DE00001 2:1234 3:99 1:DE00002 2:1");
    EXPECT_TRUE(back == list);
    for (int i = 0; i < list.size(); ++i)
        EXPECT_EQ(back[i]->timestamp(), list[i]->timestamp()) << i;
    EXPECT_EQ(back[4]->timestamp(), noon);
}

TEST(FW_ErrorList, emptyListComesBackEmpty)
{
    EXPECT_TRUE(FW_ErrorList(FW_ErrorList().toXmlRpcValue()).isEmpty());
}

TEST(FW_ErrorList, appendsADecodedError)
{
    FW_ErrorList list;
    list.append(driverErrorValue("DE00005"));
    EXPECT_EQ(summary(list), "1:DE00005");
    EXPECT_EQ(list[0]->timestamp(), noon);
}

TEST(FW_ErrorList, appendsWhatAVariantHoldsAndTellsWhetherThereWasAnError)
{
    FW_ErrorList list;
    EXPECT_TRUE(list.appendHeld(QVariant::fromValue(FW_ConfError(99, 0, 0, false))));
    EXPECT_TRUE(list.appendHeld(QVariant::fromValue(listOfAllKinds())));
    EXPECT_TRUE(list.appendHeld(QVariant::fromValue(FW_DriverError("DE00007", "late"))));
    EXPECT_TRUE(
        list.appendHeld(QVariant::fromValue(FW_HwError(1235, 0, 0, false, SerialDeviceType::Dispenser))));
    const std::string whole = "3:99 1:DE00001 2:1234 3:99 1:DE00007 2:1235";
    EXPECT_EQ(summary(list), whole);
    for (const QVariant &other :
         {QVariant(), QVariant(5), QVariant("DE00001"), QVariant::fromValue(FW_ErrorList())})
        EXPECT_FALSE(list.appendHeld(other)) << other.typeName();
    EXPECT_EQ(summary(list), whole);
}

TEST(FW_ErrorList, travelsInAVariant)
{
    const FW_ErrorList errors = listOfAllKinds(); // made once, since it tells the time
    const QVariant variant = QVariant::fromValue(errors);
    EXPECT_STREQ(variant.typeName(), "FW_ErrorList");
    EXPECT_EQ(QMetaType::type("FW_ErrorList"), qMetaTypeId<FW_ErrorList>());
    EXPECT_TRUE(variant == QVariant::fromValue(errors));
    EXPECT_FALSE(variant == QVariant::fromValue(FW_ErrorList()));
    EXPECT_EQ(variant.value<QVariantList>().size(), 3);
    EXPECT_TRUE(SameXmlRpcValue(EncodeXmlRpcVariant(variant), errors.toXmlRpcValue()));
}

TEST(FW_ErrorList, staysAsItWasWhenAnErrorCannotBeDecoded)
{
    FW_ErrorList list = listOfAllKinds();
    expectException([&] { list.append(XmlRpcValue(5)); }, "DE03007", "FW_Error: unknown error type",
                    "static FW_Error* FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue&)");
    EXPECT_EQ(summary(list), "1:DE00001 2:1234 3:99");
}

TEST(FW_ErrorList, refusesWhatIsNoArray)
{
    const XmlRpcValue single = driverErrorValue("DE00005");
    for (const XmlRpcValue &bad : {XmlRpcValue(), XmlRpcValue(1), XmlRpcValue("[]"), single, structOf({})}) {
        SCOPED_TRACE(bad.toXml());
        const std::string before = bad.toXml();
        expectException([&] { const FW_ErrorList list(bad); }, "DE03006", "FW_ErrorList: expected array type",
                        "FW_ErrorList::FW_ErrorList(const XmlRpc::XmlRpcValue&)");
        EXPECT_EQ(bad.toXml(), before);
    }
}

TEST(FW_ErrorList, refusesAnArrayWithAnythingElse)
{
    const XmlRpcValue unknown = arrayOf({driverErrorValue("DE00005"), 5});
    expectException([&] { const FW_ErrorList list(unknown); }, "DE03007", "FW_Error: unknown error type",
                    "static FW_Error* FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue&)");
    const XmlRpcValue timeless = arrayOf({structOf({{"error_type", 2}})});
    expectException([&] { const FW_ErrorList list(timeless); }, "DE03001",
                    "FW_Error: expected error_type and timestamp values",
                    "FW_Error::FW_Error(const XmlRpc::XmlRpcValue&)");
    EXPECT_EQ(timeless[0].size(), 1);
}

} // namespace
