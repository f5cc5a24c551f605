// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getdispensedformulacmdbase.h"

#include "base/basetesting.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Base = GetDispensedFormulaCmdBase;

// what it refuses is told where the commands are tested that derive from it

TEST(GetDispensedFormulaCmdBase, asksByPositionInTheMachinesUnit)
{
    int form = 0;
    for (const Base &base : {Base(), Base(arrayOf()), Base(List())}) {
        SCOPED_TRACE(++form);
        EXPECT_EQ(base.formulaType(), 1);
        EXPECT_EQ(base.quantityUnit(), 0);
        EXPECT_EQ(base.parameters(), (List{1, 0}));
        EXPECT_EQ(dumped(base.xmlrpc_parameters_base()), "[1, 0]");
    }
}

TEST(GetDispensedFormulaCmdBase, takesATypeAndAUnit)
{
    for (int type : {1, 2, 3, 4}) {
        SCOPED_TRACE(type);
        for (int unit : {0, 1, 2, 3}) {
            SCOPED_TRACE(unit);
            SCOPED_TRACE(unit);
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

TEST(GetDispensedFormulaCmdBase, doesNotMistakeOneArgumentForBoth)
{
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
