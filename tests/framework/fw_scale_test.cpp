// SPDX-License-Identifier: LGPL-3.0-or-later
#include "values.h"

#include <QuvFramework/fw_scale.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QVariant>

#include <stdexcept>
#include <type_traits>

namespace {

using namespace values;

FW_SerialPort port()
{
    return FW_SerialPort(FW_SerialPort::BluetoothConnection, "Libra", "00:11");
}

FW_Scale scale()
{
    return {"Libra 6", port(), ScaleUtils::Pound, 13.5, 2};
}

XmlRpcValue scaleValue()
{
    return structOf(
        {{"scale_model", "Libra 6"},
         {"scale_port", structOf({{"conn_type", 1}, {"conn_name", "Libra"}, {"conn_address", "00:11"}})},
         {"scale_unit", 3},
         {"max_weight", 13.5},
         {"precision", 2}});
}

TEST(FW_Scale, knowsNothingAtFirst)
{
    const FW_Scale none;
    EXPECT_EQ(none.model(), "");
    EXPECT_EQ(none.port(), FW_SerialPort());
    EXPECT_EQ(none.unit(), 0);
    EXPECT_EQ(none.maxWeight(), 0);
    EXPECT_EQ(none.precision(), 0);
    EXPECT_TRUE(FW_Scale(none.toXmlRpcValue()) == none);
}

TEST(FW_Scale, isAStructOverXmlRpc)
{
    EXPECT_EQ(scale().model(), "Libra 6");
    EXPECT_EQ(scale().port(), port());
    EXPECT_EQ(scale().unit(), ScaleUtils::Pound);
    EXPECT_EQ(scale().maxWeight(), 13.5);
    EXPECT_EQ(scale().precision(), 2);
    EXPECT_TRUE(SameXmlRpcValue(scale().toXmlRpcValue(), scaleValue()));
    EXPECT_TRUE(FW_Scale(scaleValue()) == scale());
}

TEST(FW_Scale, isRefusedWithoutAMemberOrWithAnotherType)
{
    for (const char *key : {"scale_model", "scale_port", "scale_unit", "max_weight", "precision"}) {
        SCOPED_TRACE(key);
        XmlRpcValue cut = structOf({});
        for (const auto &[name, member] : scaleValue()) {
            if (name != key)
                cut[name] = member;
        }
        EXPECT_THROW(const FW_Scale refused(cut), std::invalid_argument);
        XmlRpcValue other = scaleValue();
        other[key] = true;
        EXPECT_THROW(const FW_Scale refused(other), std::invalid_argument);
    }
    for (const XmlRpcValue &other : {XmlRpcValue(), XmlRpcValue(0), arrayOf({scaleValue()})})
        EXPECT_THROW(const FW_Scale refused(other), std::invalid_argument);
    static_assert(!std::is_constructible_v<FW_Scale, int>);
    static_assert(!std::is_constructible_v<FW_Scale, const char *>);
}

TEST(FW_Scale, anyChangeMakesItAnother)
{
    const FW_Scale others[] = {{"Libra 7", port(), ScaleUtils::Pound, 13.5, 2},
                               {"Libra 6", FW_SerialPort(), ScaleUtils::Pound, 13.5, 2},
                               {"Libra 6", port(), ScaleUtils::Gram, 13.5, 2},
                               {"Libra 6", port(), ScaleUtils::Pound, 13, 2},
                               {"Libra 6", port(), ScaleUtils::Pound, 13.5, 3}};
    for (const FW_Scale &other : others) {
        EXPECT_TRUE(scale() != other);
        EXPECT_FALSE(scale() == other);
    }
    EXPECT_FALSE(scale() != scale());
}

TEST(FW_Scale, travelsInAVariant)
{
    EXPECT_EQ(QMetaType::type("FW_Scale"), qMetaTypeId<FW_Scale>());
    const QVariant variant = QVariant::fromValue(scale());
    EXPECT_TRUE(variant == QVariant::fromValue(scale()));
    EXPECT_TRUE(QVariant(variant.toMap()).value<FW_Scale>() == scale());
}

// what clients and drivers have agreed on
TEST(ScaleUtils, hasTheNumbersThatTravel)
{
    EXPECT_EQ(ScaleUtils::NetWeight, 0);
    EXPECT_EQ(ScaleUtils::GrossWeight, 1);
    EXPECT_EQ(ScaleUtils::TareWeight, 2);
    EXPECT_EQ(ScaleUtils::NoUnit, -1);
    EXPECT_EQ(ScaleUtils::Gram, 0);
    EXPECT_EQ(ScaleUtils::Kilogram, 1);
    EXPECT_EQ(ScaleUtils::Ounce, 2);
    EXPECT_EQ(ScaleUtils::Pound, 3);
}

} // namespace
