// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmdbase.h"

#include "base/basetesting.h"

#include <limits>
#include <type_traits>

namespace {

using namespace testing_base;

using Base = GetDispensedFormulaCmdBase;

constexpr char ofInts[] = "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(int, int)";
constexpr char ofValue[] =
    "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetDispensedFormulaCmdBase::GetDispensedFormulaCmdBase(QList<QVariant>)";
constexpr char badType[] = "Formula type: invalid parameter";
constexpr char noType[] = "Formula type: expected INT parameter";
constexpr char badUnit[] = "Quantity unit: invalid parameter";
constexpr char noUnit[] = "Quantity unit: expected INT parameter";

TEST(GetDispensedFormulaCmdBase, asksByPositionInTheMachinesUnit)
{
    for (const Base &base : {Base(), Base(arrayOf()), Base(List())}) {
        EXPECT_EQ(base.formulaType(), 1);
        EXPECT_EQ(base.quantityUnit(), 0);
        EXPECT_EQ(base.parameters(), (List{1, 0}));
        EXPECT_EQ(dumped(base.xmlrpc_parameters_base()), "[1, 0]");
    }
}

TEST(GetDispensedFormulaCmdBase, takesATypeAndAUnit)
{
    for (int type : {1, 2, 3, 4}) {
        for (int unit : {0, 1, 2, 3}) {
            for (const Base &base : {Base(type, unit), Base(arrayOf(type, unit)), Base(List{type, unit}),
                                     Base(arrayOf(type, unit, "rest")), Base(List{type, unit, "rest"})}) {
                EXPECT_EQ(base.formulaType(), type);
                EXPECT_EQ(base.quantityUnit(), unit);
                EXPECT_EQ(base.parameters(), (List{type, unit}));
                bool ok = false;
                EXPECT_EQ(dumped(base.xmlrpc_parameters_base(&ok)),
                          '[' + std::to_string(type) + ", " + std::to_string(unit) + ']');
                EXPECT_TRUE(ok);
            }
        }
        EXPECT_EQ(Base(arrayOf(type)).parameters(), (List{type, 0}));
        EXPECT_EQ(Base(List{type}).parameters(), (List{type, 0}));
    }
}

TEST(GetDispensedFormulaCmdBase, writesTheWholeRequest)
{
    bool ok = false;
    EXPECT_EQ(dumped(Base(3, 2).toXmlRpcValue(QString(), &ok)), R"(["GET_DISPENSED_FORMULA", 3, 2])");
    EXPECT_TRUE(ok);
    EXPECT_EQ(dumped(Base(3, 2).toXmlRpcValue("user")), R"(["user", "GET_DISPENSED_FORMULA", 3, 2])");
}

TEST(GetDispensedFormulaCmdBase, refusesATypeThatThereIsNot)
{
    for (int bad : {0, 5, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE01908", badType, ofInts, [&] { const Base base(bad, 9); });
        expectRefusal("DE01910", badType, ofValue, [&] { const Base base(arrayOf(bad, 9)); });
        expectRefusal("DE01910", badType, ofValue, [&] { const Base base(arrayOf(bad)); });
        expectRefusal("DE01913", badType, ofList, [&] { const Base base(List{bad, 9}); });
        expectRefusal("DE01913", badType, ofList, [&] { const Base base(List{bad}); });
    }
}

TEST(GetDispensedFormulaCmdBase, refusesAUnitThatThereIsNot)
{
    for (int bad : {-1, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE01909", badUnit, ofInts, [&] { const Base base(1, bad); });
        expectRefusal("DE01720", badUnit, ofValue, [&] { const Base base(arrayOf(1, bad)); });
        expectRefusal("DE01720", badUnit, ofList, [&] { const Base base(List{1, bad}); });
    }
}

TEST(GetDispensedFormulaCmdBase, refusesWhatIsNoInteger)
{
    for (const Value &bad : {Value(true), Value(1.0), Value("1"), arrayOf(1)}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01911", noType, ofValue, [&] { const Base base(arrayOf(bad, 9)); });
        expectRefusal("DE01721", noUnit, ofValue, [&] { const Base base(arrayOf(1, bad)); });
    }
    for (const QVariant &bad : {QVariant(true), QVariant(1.0), QVariant("1"), QVariant()}) {
        expectRefusal("DE01912", noType, ofList, [&] { const Base base(List{bad, 9}); });
        expectRefusal("DE01722", noUnit, ofList, [&] { const Base base(List{1, bad}); });
    }
    static_assert(!std::is_constructible_v<Base, int>);
    static_assert(!std::is_constructible_v<Base, bool>);
}

TEST(GetDispensedFormulaCmdBase, goesBackToItsDefaults)
{
    Base base(4, 3);
    base.setDefaults();
    EXPECT_EQ(base.parameters(), (List{1, 0}));
}

} // namespace
