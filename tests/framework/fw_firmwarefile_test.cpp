// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_firmwarefile.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

using namespace values;

const QByteArray image("\x00\xff\x10", 3);

FirmwareFile parallelFile()
{
    FirmwareFile file(image, {3, 4}, 2);
    file.setParallelSendSupported(true);
    return file;
}

XmlRpcValue fileValue()
{
    return structOf({{"image", binary(std::string("\x00\xff\x10", 3))},
                     {"board_addresses", arrayOf({3, 4})},
                     {"board_type", 2},
                     {"parallel_send", true}});
}

XmlRpcValue without(const char *key)
{
    XmlRpcValue cut = structOf({});
    for (const auto &[name, member] : fileValue()) {
        if (name != key)
            cut[name] = member;
    }
    return cut;
}

TEST(FirmwareFile, isEmptyAtFirst)
{
    const FirmwareFile file;
    EXPECT_TRUE(file.image().isEmpty());
    EXPECT_TRUE(file.addresses().isEmpty());
    EXPECT_EQ(file.boardType(), -1);
    EXPECT_FALSE(file.isParallelSendSupported());
    EXPECT_EQ(file.traceString(), "No boards of type -1: 0 bytes");
}

TEST(FirmwareFile, tellsImageBoardsAndType)
{
    const FirmwareFile file(image, {3, 4}, 2);
    EXPECT_EQ(file.image(), image);
    EXPECT_EQ(file.addresses(), (QList<int>{3, 4}));
    EXPECT_EQ(file.boardType(), 2);
    EXPECT_FALSE(file.isParallelSendSupported());
    EXPECT_TRUE(parallelFile().isParallelSendSupported());
    EXPECT_EQ(file.traceString(), "Boards 3,4 of type 2: 3 bytes");
}

TEST(FirmwareFile, isAStructOverXmlRpc)
{
    EXPECT_TRUE(SameXmlRpcValue(parallelFile().toXmlRpcValue(), fileValue()));
    EXPECT_TRUE(FirmwareFile(fileValue()) == parallelFile());
    EXPECT_TRUE(FirmwareFile(FirmwareFile().toXmlRpcValue()) == FirmwareFile());
    EXPECT_TRUE(FirmwareFile(without("parallel_send")) == FirmwareFile(image, {3, 4}, 2));
}

TEST(FirmwareFile, takesAnyTypeAndAddressOverXmlRpc)
{
    XmlRpcValue value = fileValue();
    value["board_type"] = 99;
    value["board_addresses"] = arrayOf({0, -5, 1000});
    const FirmwareFile file(value);
    EXPECT_EQ(file.boardType(), 99);
    EXPECT_EQ(file.addresses(), (QList<int>{0, -5, 1000}));
}

TEST(FirmwareFile, isRefusedWithoutAMemberOrWithAnotherType)
{
    for (const char *key : {"image", "board_addresses", "board_type", "parallel_send"}) {
        SCOPED_TRACE(key);
        for (const XmlRpcValue &other : {XmlRpcValue("x"), XmlRpcValue(2.5), arrayOf({"3"}), structOf({})}) {
            XmlRpcValue value = fileValue();
            value[key] = other;
            EXPECT_THROW(const FirmwareFile file(value), std::invalid_argument);
        }
        if (std::string(key) != "parallel_send") {
            EXPECT_THROW(const FirmwareFile file(without(key)), std::invalid_argument);
        }
    }
    for (const XmlRpcValue &other : {XmlRpcValue(), XmlRpcValue(5), arrayOf({fileValue()})})
        EXPECT_THROW(const FirmwareFile file(other), std::invalid_argument);
    static_assert(!std::is_constructible_v<FirmwareFile, int>);
    static_assert(!std::is_constructible_v<FirmwareFile, const char *>);
}

TEST(FirmwareFile, anyChangeMakesItAnother)
{
    const FirmwareFile file = parallelFile();
    EXPECT_TRUE(file == parallelFile());
    FirmwareFile other(image, {3, 4}, 2);
    EXPECT_TRUE(file != other);
    for (FirmwareFile changed :
         {FirmwareFile("x", {3, 4}, 2), FirmwareFile(image, {4, 3}, 2), FirmwareFile(image, {3, 4}, 3)}) {
        changed.setParallelSendSupported(true);
        EXPECT_TRUE(file != changed) << changed.traceString().toStdString();
    }
}

TEST(FirmwareFile, knowsTheTypesOfBoards)
{
    for (const int type : {1, 2, 15})
        EXPECT_TRUE(FirmwareFile::checkBoardType(type)) << type;
    for (const int type : {-1, 0, 16})
        EXPECT_FALSE(FirmwareFile::checkBoardType(type)) << type;
}

TEST(FirmwareFile, knowsTheAddressesOfBoards)
{
    for (const bool orAll : {false, true}) {
        for (const int address : {1, 200, 201, 215})
            EXPECT_TRUE(FirmwareFile::checkBoardAddress(address, orAll)) << address;
        for (const int address : {-1, 216, 245})
            EXPECT_FALSE(FirmwareFile::checkBoardAddress(address, orAll)) << address;
        EXPECT_EQ(FirmwareFile::checkBoardAddress(0, orAll), orAll);
    }
}

TEST(FirmwareFile, tellsWhereBoardsOfATypeCanBe)
{
    EXPECT_EQ(FirmwareFile::boardAddresses(1, false), QList<int>{201});
    EXPECT_EQ(FirmwareFile::boardAddresses(15, true), (QList<int>{0, 215}));
    const QList<int> ofCircuits = FirmwareFile::boardAddresses(2, false);
    ASSERT_EQ(ofCircuits.size(), 200);
    EXPECT_EQ(ofCircuits.first(), 1);
    EXPECT_EQ(ofCircuits.at(41), 42);
    EXPECT_EQ(ofCircuits.last(), 200);
    EXPECT_EQ(FirmwareFile::boardAddresses(2, true), QList<int>{0} + ofCircuits);
    for (const int type : {-1, 0, 16})
        EXPECT_EQ(FirmwareFile::boardAddresses(type, true), QList<int>());
}

TEST(FirmwareFile, travelsInAVariant)
{
    EXPECT_EQ(QMetaType::type("FirmwareFile"), qMetaTypeId<FirmwareFile>());
    const QVariant variant = QVariant::fromValue(parallelFile());
    EXPECT_TRUE(variant == QVariant::fromValue(parallelFile()));
    EXPECT_FALSE(variant == QVariant::fromValue(FirmwareFile()));
    EXPECT_TRUE(QVariant(variant.toMap()).value<FirmwareFile>() == parallelFile());
    EXPECT_THROW(QVariant(QVariantMap()).value<FirmwareFile>(), std::invalid_argument);
}

TEST(FirmwareFiles, travelInAVariant)
{
    EXPECT_EQ(QMetaType::type("FirmwareFiles"), qMetaTypeId<FirmwareFiles>());
    const FirmwareFiles files = {parallelFile(), FirmwareFile()};
    const QVariant variant = QVariant::fromValue(files);
    EXPECT_TRUE(variant == QVariant::fromValue(FirmwareFiles(files)));
    EXPECT_FALSE(variant == QVariant::fromValue(FirmwareFiles{parallelFile()}));
    EXPECT_TRUE(SameXmlRpcValue(EncodeXmlRpcVariant(variant),
                                arrayOf({fileValue(), FirmwareFile().toXmlRpcValue()})));
}

} // namespace
