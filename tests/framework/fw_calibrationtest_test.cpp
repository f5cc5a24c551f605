// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_calibrationtest.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QVariant>

#include <stdexcept>
#include <type_traits>

namespace {

using namespace values;

const FW_CalibrationTest pour(2.5, 2.4, 800, 60, 4);

XmlRpcValue pourValue()
{
    return structOf(
        {{"target_quantity", 2.5}, {"quantity", 2.4}, {"steps", 800}, {"speed", 60}, {"nozzle_valve", 4}});
}

TEST(FW_CalibrationTest, isAStructOverXmlRpc)
{
    EXPECT_TRUE(SameXmlRpcValue(pour.toXmlRpcValue(), pourValue()));
    EXPECT_TRUE(FW_CalibrationTest(pourValue()) == pour);
    const FW_CalibrationTest great(1, 2, 4294967296, 0, 0);
    EXPECT_TRUE(SameXmlRpcValue(great.toXmlRpcValue(), structOf({{"target_quantity", 1.0},
                                                                 {"quantity", 2.0},
                                                                 {"steps", 4294967296.0},
                                                                 {"speed", 0},
                                                                 {"nozzle_valve", 0}})));
    EXPECT_TRUE(FW_CalibrationTest(great.toXmlRpcValue()) == great);
    EXPECT_TRUE(FW_CalibrationTest(FW_CalibrationTest().toXmlRpcValue()) == FW_CalibrationTest());
}

TEST(FW_CalibrationTest, mayHaveNoNozzleValve)
{
    const FW_CalibrationTest test(
        structOf({{"target_quantity", 2.5}, {"quantity", 2}, {"steps", 800}, {"speed", 60}}));
    EXPECT_TRUE(test == FW_CalibrationTest(2.5, 2, 800, 60, 0));
}

TEST(FW_CalibrationTest, isRefusedWithoutAMemberOrWithAnotherType)
{
    for (const char *key : {"target_quantity", "quantity", "steps", "speed", "nozzle_valve"}) {
        SCOPED_TRACE(key);
        XmlRpcValue cut = structOf({});
        for (const auto &[name, member] : pourValue()) {
            if (name != key)
                cut[name] = member;
        }
        if (key != std::string("nozzle_valve")) {
            EXPECT_THROW(const FW_CalibrationTest test(cut), std::invalid_argument);
        }
        for (const XmlRpcValue &other : {XmlRpcValue("7"), XmlRpcValue(true), structOf({}), arrayOf({7})}) {
            XmlRpcValue value = pourValue();
            value[key] = other;
            EXPECT_THROW(const FW_CalibrationTest test(value), std::invalid_argument);
        }
    }
    for (const char *key : {"steps", "speed", "nozzle_valve"}) {
        XmlRpcValue value = pourValue();
        value[key] = 2.5;
        EXPECT_THROW(const FW_CalibrationTest test(value), std::invalid_argument) << key;
    }
    for (const XmlRpcValue &other : {XmlRpcValue(), XmlRpcValue(5), arrayOf({2.5, 2.4, 800, 60, 4})})
        EXPECT_THROW(const FW_CalibrationTest test(other), std::invalid_argument);
    static_assert(!std::is_constructible_v<FW_CalibrationTest, int>);
    static_assert(!std::is_constructible_v<FW_CalibrationTest, const char *>);
}

TEST(FW_CalibrationTest, anyChangeMakesItAnother)
{
    EXPECT_TRUE(pour == FW_CalibrationTest(2.5, 2.4, 800, 60, 4));
    EXPECT_FALSE(pour != FW_CalibrationTest(2.5, 2.4, 800, 60, 4));
    EXPECT_TRUE(pour != FW_CalibrationTest(2.6, 2.4, 800, 60, 4));
    EXPECT_TRUE(pour != FW_CalibrationTest(2.5, 2.5, 800, 60, 4));
    EXPECT_TRUE(pour != FW_CalibrationTest(2.5, 2.4, 801, 60, 4));
    EXPECT_TRUE(pour != FW_CalibrationTest(2.5, 2.4, 800, 61, 4));
    EXPECT_TRUE(pour != FW_CalibrationTest(2.5, 2.4, 800, 60, 0));
}

TEST(FW_CalibrationTest, travelsInAVariant)
{
    EXPECT_EQ(QMetaType::type("FW_CalibrationTest"), qMetaTypeId<FW_CalibrationTest>());
    EXPECT_EQ(QMetaType::type("QList<FW_CalibrationTest>"), qMetaTypeId<QList<FW_CalibrationTest>>());
    const QVariant variant = QVariant::fromValue(pour);
    EXPECT_TRUE(variant == QVariant::fromValue(FW_CalibrationTest(pour)));
    EXPECT_TRUE(QVariant(variant.toMap()).value<FW_CalibrationTest>() == pour);
    const QList<FW_CalibrationTest> list = {pour, FW_CalibrationTest()};
    EXPECT_TRUE(QVariant::fromValue(list) ==
                QVariant::fromValue(QList<FW_CalibrationTest>{pour, FW_CalibrationTest()}));
    EXPECT_FALSE(QVariant::fromValue(list) == QVariant::fromValue(QList<FW_CalibrationTest>{pour}));
}

} // namespace
