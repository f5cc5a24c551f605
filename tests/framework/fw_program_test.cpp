// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_program.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>
#include <type_traits>

namespace {

using namespace values;

const FW_Version application(63, 2, 3, 4, 5, 38);
const FW_Version bootLoader(63, 2, 1, 0, 0, 7);

/** 63.2.3.4.5.38, then 63.2.1.0.0.7. */
const QStringList bothVersions = {"3F", "2", "3", "4", "5", "26", "3F", "2", "1", "0", "0", "7"};

XmlRpcValue programValue()
{
    return structOf({{"board_address", 17},
                     {"app_version", arrayOf({63, 2, 3, 4, 5, 38})},
                     {"boot_version", arrayOf({63, 2, 1, 0, 0, 7})}});
}

TEST(FW_Program, knowsNothingAtFirst)
{
    const FW_Program program;
    EXPECT_EQ(program.boardAddress(), -1);
    EXPECT_FALSE(program.applicationVersion().isValid());
    EXPECT_FALSE(program.bootLoaderVersion().isValid());
}

TEST(FW_Program, readsBothVersionsOfABoard)
{
    const FW_Program program(bothVersions, false);
    EXPECT_EQ(program.boardAddress(), -1);
    EXPECT_TRUE(program.applicationVersion() == application);
    EXPECT_TRUE(program.bootLoaderVersion() == bootLoader);
}

TEST(FW_Program, readsTheAddressOfASlaveFirst)
{
    EXPECT_TRUE(FW_Program(QStringList{"11"} + bothVersions, true) ==
                FW_Program(17, application, bootLoader));
}

TEST(FW_Program, readsWhatABoardTells)
{
    struct Row
    {
        QStringList tokens;
        FW_Version app;
        FW_Version boot;
    };
    const Row rows[] = {
        {{"3F", "26"}, FW_Version(63, 38), FW_Version()},
        {{"3F", "26", "3f", "7"}, FW_Version(63, 38), FW_Version(63, 7)},
        {bothVersions.mid(0, 6), application, FW_Version()},
        {bothVersions, application, bootLoader},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.tokens.size());
        EXPECT_TRUE(FW_Program(row.tokens, false) == FW_Program(-1, row.app, row.boot));
        EXPECT_TRUE(FW_Program(QStringList{"0"} + row.tokens, true) == FW_Program(0, row.app, row.boot));
    }
}

TEST(FW_Program, refusesAnyOtherNumberOfTokens)
{
    const QStringList tokens = bothVersions + bothVersions;
    for (const int size : {0, 1, 3, 5, 7, 8, 9, 10, 11, 13, 14, 24}) {
        SCOPED_TRACE(size);
        EXPECT_THROW(FW_Program(tokens.mid(0, size), false), std::invalid_argument);
        EXPECT_THROW(FW_Program(QStringList{"1"} + tokens.mid(0, size), true), std::invalid_argument);
    }
    EXPECT_THROW(FW_Program(QStringList(), true), std::invalid_argument);
}

TEST(FW_Program, refusesTokensThatAreNoNumbers)
{
    const QStringList tokens = QStringList{"11"} + bothVersions;
    for (int i = 0; i < tokens.size(); ++i) {
        for (const char *bad : {"x", "", "-1", "80000000"}) {
            SCOPED_TRACE(std::to_string(i) + bad);
            QStringList wrong = tokens;
            wrong[i] = bad;
            EXPECT_THROW(FW_Program(wrong, true), std::invalid_argument);
        }
    }
}

TEST(FW_Program, isAStructOverXmlRpc)
{
    const FW_Program program(17, application, bootLoader);
    EXPECT_TRUE(SameXmlRpcValue(program.toXmlRpcValue(), programValue()));
    EXPECT_TRUE(FW_Program(programValue()) == program);
    EXPECT_TRUE(SameXmlRpcValue(
        FW_Program().toXmlRpcValue(),
        structOf({{"board_address", -1}, {"app_version", arrayOf({})}, {"boot_version", arrayOf({})}})));
    EXPECT_TRUE(FW_Program(FW_Program().toXmlRpcValue()) == FW_Program());
}

TEST(FW_Program, isRefusedWithoutAMemberOrWithAnotherType)
{
    for (const char *key : {"board_address", "app_version", "boot_version"}) {
        SCOPED_TRACE(key);
        XmlRpcValue cut = structOf({});
        for (const auto &[name, member] : programValue()) {
            if (name != key)
                cut[name] = member;
        }
        EXPECT_THROW(const FW_Program program(cut), std::invalid_argument);
        for (const XmlRpcValue &other :
             {XmlRpcValue("63.2.3.4.5.38"), XmlRpcValue(2.5), structOf({}), arrayOf({63, 38}),
              arrayOf({63, 2, 3, 4, 5, -1}), arrayOf({63, 2, 3, 4, 5, "6"})}) {
            XmlRpcValue value = programValue();
            value[key] = other;
            EXPECT_THROW(const FW_Program program(value), std::invalid_argument);
        }
    }
    for (const XmlRpcValue &other : {XmlRpcValue(), XmlRpcValue(5), arrayOf({63, 2, 3, 4, 5, 38})})
        EXPECT_THROW(const FW_Program program(other), std::invalid_argument);
    static_assert(!std::is_constructible_v<FW_Program, int>);
    static_assert(!std::is_constructible_v<FW_Program, const char *>);
}

TEST(FW_Program, anyChangeMakesItAnother)
{
    const FW_Program program(17, application, bootLoader);
    EXPECT_TRUE(program == FW_Program(17, application, bootLoader));
    EXPECT_FALSE(program != FW_Program(17, application, bootLoader));
    EXPECT_TRUE(program != FW_Program(18, application, bootLoader));
    EXPECT_TRUE(program != FW_Program(17, bootLoader, bootLoader));
    EXPECT_TRUE(program != FW_Program(17, application, FW_Version()));
}

TEST(FW_Program, travelsInAVariant)
{
    const FW_Program program(17, application, bootLoader);
    EXPECT_EQ(QMetaType::type("FW_Program"), qMetaTypeId<FW_Program>());
    const QVariant variant = QVariant::fromValue(program);
    EXPECT_TRUE(variant == QVariant::fromValue(FW_Program(program)));
    EXPECT_TRUE(QVariant(variant.toMap()).value<FW_Program>() == program);
}

} // namespace
