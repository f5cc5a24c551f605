// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/confdata.h"

#include <gtest/gtest.h>

namespace {

TEST(FieldLabels, standInTheOrderOfTheRow)
{
    EXPECT_EQ(ConfData::fieldLabels(2), QStringList{"Structure name"});
    EXPECT_EQ(ConfData::fieldLabels(7), (QStringList{"Sensor Reading Period", "Multiplier Coefficient",
                                                     "Low Humidity Warning Threshold"}));
    EXPECT_EQ(ConfData::fieldLabels(10), (QStringList{"Ramp ID", "Slow speed steps after valve open",
                                                      "Slow speed steps before valve close",
                                                      "Ramp speed threshold", "Ramp slow speed"}));
    const QStringList machine = ConfData::fieldLabels(3);
    EXPECT_EQ(machine.value(0), "Working Mode");
    EXPECT_EQ(machine.value(15), "Reserve Sensor Type & Policy");
    const QStringList circuit = ConfData::fieldLabels(5);
    for (int position = 24; position <= 29; ++position) {
        SCOPED_TRACE(position);
        EXPECT_EQ(circuit.value(position - 1), "Layout Position ID");
    }
    EXPECT_EQ(circuit.value(51), "Smart Speed Reduction Enable");
    EXPECT_EQ(ConfData::fieldLabels(16).value(9), "Brush 2 Position");
}

TEST(FieldLabels, areAsManyAsTheStructureHas)
{
    // by code; 12, 23 and 24 have no class
    const int counts[] = {0, 1,  17, 10, 52, 10, 3,  8,  12, 5, 2, 0, 2,
                          2, 13, 10, 2,  2,  19, 12, 11, 7,  0, 0, 1, 3};
    for (int code = 1; code <= 26; ++code)
        EXPECT_EQ(ConfData::fieldLabels(code).size(), counts[code - 1]) << code;
}

TEST(FieldLabels, areNotKnownOfOtherStructures)
{
    for (const int code : {-1, 0, 12, 23, 24, 27, 1000})
        EXPECT_TRUE(ConfData::fieldLabels(code).isEmpty()) << code;
}

} // namespace
