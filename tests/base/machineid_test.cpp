// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/machineid.h"

#include "base/basetesting.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <limits>
#include <type_traits>

namespace {

using namespace testing_base;
using Type = SerialDeviceType;

constexpr char ofValue[] = "MachineID::MachineID(const XmlRpc::XmlRpcValue&)";
constexpr char badValue[] = "Bad Machine ID value";

TEST(MachineID, isNoDispenserYet)
{
    const MachineID machine;
    EXPECT_EQ(machine.id, 0);
    EXPECT_EQ(machine.type, Type::Dispenser);
    EXPECT_EQ(static_cast<int>(machine.type), 1);
}

TEST(MachineID, isAStructOfTwoNumbers)
{
    EXPECT_STREQ(MachineID::id_TAG, "id");
    EXPECT_STREQ(MachineID::machine_TAG, "machine");
    EXPECT_EQ(dumped(MachineID(3, Type::Mixer).toXmlRpcValue()), R"({"id": 3, "machine": 4})");
    EXPECT_EQ(dumped(MachineID(-7, Type::Scale).toXmlRpcValue()), R"({"id": -7, "machine": 2})");
    EXPECT_EQ(dumped(MachineID().toXmlRpcValue()), R"({"id": 0, "machine": 1})");
}

TEST(MachineID, comesBackFromItsStruct)
{
    const MachineID mixer(structOf({{"id", 3}, {"machine", 4}, {"more", "is not read"}}));
    EXPECT_EQ(mixer.id, 3);
    EXPECT_EQ(mixer.type, Type::Mixer);
    const MachineID scale(structOf({{"id", std::numeric_limits<int>::max()}, {"machine", 2}}));
    EXPECT_EQ(scale.id, 2147483647);
    EXPECT_EQ(scale.type, Type::Scale);
    EXPECT_EQ(MachineID(structOf({{"id", 5}, {"machine", 1}})), MachineID(5, Type::Dispenser));
}

TEST(MachineID, keepsATypeThatThereIsNot)
{
    const MachineID machine(structOf({{"id", 3}, {"machine", 3}}));
    EXPECT_EQ(static_cast<int>(machine.type), 3);
    EXPECT_EQ(dumped(machine.toXmlRpcValue()), R"({"id": 3, "machine": 3})");
}

TEST(MachineID, isRefusedWithoutAnID)
{
    for (const Value &value :
         {Value(), Value(3), Value("3"), arrayOf(3, 4), structOf({}), structOf({{"machine", 4}}),
          structOf({{"id", "3"}, {"machine", 4}}), structOf({{"id", true}, {"machine", 4}}),
          structOf({{"id", 3.0}, {"machine", 4}}), structOf({{"id", "3"}, {"machine", "4"}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02679", badValue, ofValue, [&] { const MachineID machine(value); });
    }
}

TEST(MachineID, isRefusedWithoutAType)
{
    for (const Value &value :
         {structOf({{"id", 3}}), structOf({{"id", 3}, {"machine", "4"}}),
          structOf({{"id", 3}, {"machine", true}}), structOf({{"id", 3}, {"machine", 4.0}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE02680", badValue, ofValue, [&] { const MachineID machine(value); });
    }
}

TEST(MachineID, isToldInWords)
{
    EXPECT_EQ(QString(MachineID(1, Type::Dispenser)), "ID 1 - TYPE: Dispenser");
    EXPECT_EQ(QString(MachineID(12, Type::Mixer)), "ID 12 - TYPE: Mixer");
    EXPECT_EQ(QString(MachineID(-3, Type::Scale)), "ID -3 - TYPE: Scale");
    EXPECT_EQ(QString(MachineID(5, static_cast<Type>(3))), "ID 5 - TYPE: ");
    EXPECT_EQ(QString(MachineID(5, static_cast<Type>(0))), "ID 5 - TYPE: ");
}

TEST(MachineID, isTheSameWithTheSameNumberAndType)
{
    EXPECT_EQ(MachineID(3, Type::Mixer), MachineID(3, Type::Mixer));
    EXPECT_NE(MachineID(3, Type::Mixer), MachineID(4, Type::Mixer));
    EXPECT_NE(MachineID(3, Type::Mixer), MachineID(3, Type::Dispenser));
}

TEST(MachineID, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(MachineID(3, Type::Mixer));
    EXPECT_STREQ(variant.typeName(), "MachineID");
    EXPECT_EQ(variant, QVariant::fromValue(MachineID(3, Type::Mixer)));
    EXPECT_NE(variant, QVariant::fromValue(MachineID(3, Type::Scale)));
    EXPECT_EQ(variant.toMap(), (QVariantMap{{"id", 3}, {"machine", 4}}));
    EXPECT_EQ(QVariant(QVariantMap{{"id", 3}, {"machine", 4}}).value<MachineID>(), MachineID(3, Type::Mixer));
    EXPECT_EQ(dumped(EncodeXmlRpcVariant(variant)), R"({"id": 3, "machine": 4})");
}

TEST(MachineID, isNotMistakenForANumber)
{
    static_assert(!std::is_constructible_v<MachineID, int>);
    static_assert(!std::is_constructible_v<MachineID, bool>);
    static_assert(!std::is_constructible_v<MachineID, double>);
    static_assert(!std::is_constructible_v<MachineID, const char *>);
    static_assert(!std::is_convertible_v<Value, MachineID>);
}

} // namespace
