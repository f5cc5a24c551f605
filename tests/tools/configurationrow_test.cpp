// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/configurationrow.h"

#include <gtest/gtest.h>

namespace {

using quv::ConfigurationRow;
using quv::readConfigurationRow;
using Numbers = QList<int>;

TEST(ConfigurationRow, fieldsAreCountsAndDigitsLowDigitFirst)
{
    // 0, 245, 246, 246 squared, the greatest
    const auto row =
        readConfigurationRow({7, 6, 1, 1, 1, 0, 1, 245, 2, 0, 1, 3, 0, 0, 1, 4, 79, 52, 62, 144});
    ASSERT_TRUE(row);
    EXPECT_EQ(row->code, 7);
    EXPECT_EQ(row->values, (Numbers{1, 0, 245, 246, 60516, 2147483647}));
    EXPECT_FALSE(row->name);
    EXPECT_EQ(row->fieldCount(), 6);
    EXPECT_EQ(quv::wireFields(*row), (Numbers{1, 1, 1, 0, 1, 245, 2, 0, 1, 3, 0, 0, 1, 4, 79, 52, 62, 144}));
}

TEST(ConfigurationRow, whatIsNoRow)
{
    const QList<Numbers> wrong{
        {},
        {7},
        {0, 1, 1, 1},                   // no structure
        {7, 0},                         // no field
        {7, 1},                         // none of one
        {7, 1, 0},                      // no digit
        {7, 1, 2, 1},                   // one digit of two
        {7, 1, 1, 246},                 // no digit of this base
        {7, 1, 1, -1},                  //
        {7, 2, 1, 1},                   // one field of two
        {7, 1, 1, 1, 1, 5},             // a field left over
        {7, 1, 1, 1, 0},                //
        {7, 1, 4, 80, 52, 62, 144},     // beyond 31 bits
        {7, 1, 7, 1, 0, 0, 0, 0, 0, 0}, // more digits than any number has
        {2, 2, 1, 1, 3, 65, 66},        // two characters of three
        {2, 2, 1, 1, 1, 65, 66},        // a character left over
        {2, 2, 1, 1, 1, 256},           // no character
        {2, 3, 1, 1, 1, 65, 1, 1},      // behind the name
    };
    for (const Numbers &numbers : wrong)
        EXPECT_FALSE(readConfigurationRow(numbers)) << testing::PrintToString(numbers);
}

TEST(ConfigurationRow, aNameIsACountAndCharacters)
{
    const auto row = readConfigurationRow({2, 2, 1, 1, 3, 65, 32, -23}); // "A é", as signed bytes
    ASSERT_TRUE(row);
    EXPECT_EQ(row->values, Numbers{1});
    EXPECT_EQ(row->name, QByteArray("A \xE9"));
    EXPECT_EQ(row->fieldCount(), 2);
    EXPECT_EQ(quv::wireFields(*row), (Numbers{1, 1, 3, 65, 32, 233}));
    EXPECT_EQ(readConfigurationRow({2, 2, 1, 1, 1, 233})->name, QByteArray("\xE9"));
    EXPECT_FALSE(readConfigurationRow({2, 1, 1, 1})->name);
}

TEST(ConfigurationRow, anEmptyNameGoesOutAsABlank)
{
    const auto row = readConfigurationRow({2, 2, 1, 1, 0});
    ASSERT_TRUE(row);
    EXPECT_EQ(row->name, QByteArray(""));
    EXPECT_EQ(quv::wireFields(*row), (Numbers{1, 1, 1, 32}));
}

TEST(ConfigurationRow, itsIDIsOneOfItsFields)
{
    const auto id = [](int code, const Numbers &values) {
        return quv::instanceOf(ConfigurationRow{code, values, {}});
    };
    const Numbers values{1, 11, 12, 13, 14};
    EXPECT_EQ(id(5, values), 13);
    EXPECT_EQ(id(6, values), 12);
    EXPECT_EQ(id(10, values), 11);
    EXPECT_EQ(id(19, values), 11);
    EXPECT_EQ(id(22, values), 11);
    for (const int code : {1, 2, 3, 4, 7, 16, 26})
        EXPECT_EQ(id(code, values), 1) << code;
    EXPECT_EQ(id(5, {1, 11, 12}), 0);
}

} // namespace
