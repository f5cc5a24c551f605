// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <QuvFramework/fw_xmlrpc.h>
#include <QuvFramework/purgeformula.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace {

using values::arrayOf;
using values::structOf;
using values::XmlRpcValue;

bool isRefused(const XmlRpcValue &value)
{
    try {
        const PurgeFormula purge(value);
    } catch (const std::invalid_argument &) {
        return true;
    }
    return false;
}

void expect(const PurgeFormula &purge, double quantity, int unit, bool onlyFilled, int head)
{
    EXPECT_EQ(purge.quantity(), quantity);
    EXPECT_EQ(purge.quantityUnit(), unit);
    EXPECT_EQ(purge.onlyFilled(), onlyFilled);
    EXPECT_EQ(purge.head(), head);
}

TEST(PurgeFormula, itsForms)
{
    expect(PurgeFormula(), 1, 2, false, 0);
    expect(PurgeFormula(2.5, true, 3), 2.5, 3, true, 0);
    expect(PurgeFormula(2.5, 2, 1), 2.5, 1, false, 2);
    expect(PurgeFormula(QList<QVariant>{5}), 5, 3, false, 0);
    expect(PurgeFormula(QList<QVariant>{5.5, 1}), 5.5, 1, false, 0);
    expect(PurgeFormula(QList<QVariant>{5LL, 1, true}), 5, 1, true, 0);
    expect(PurgeFormula(QList<QVariant>{5.5, 2, true, 1}), 5.5, 2, true, 1);
}

TEST(PurgeFormula, parametersReadBack)
{
    const PurgeFormula purge(QList<QVariant>{5.5, 2, true, 1});
    EXPECT_EQ(purge.parameters(), (QList<QVariant>{5.5, 2, true, 1}));
    EXPECT_EQ(purge.parameters().at(0).type(), QVariant::Double);
    EXPECT_TRUE(PurgeFormula(purge.parameters()) == purge);
}

TEST(PurgeFormula, whatIsNone)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double quantity : {0.0, -1.0, infinity, std::nan("")}) {
        EXPECT_THROW(PurgeFormula(quantity, true, 3), std::invalid_argument) << quantity;
        EXPECT_THROW(PurgeFormula(quantity, 1, 3), std::invalid_argument) << quantity;
    }
    EXPECT_THROW(PurgeFormula(1.0, false, 4), std::invalid_argument);
    EXPECT_THROW(PurgeFormula(1.0, false, -1), std::invalid_argument);
    EXPECT_THROW(PurgeFormula(1.0, 3, 3), std::invalid_argument);
    EXPECT_THROW(PurgeFormula(1.0, -1, 3), std::invalid_argument);
    const QList<QVariant> bad[] = {{},
                                   {QStringLiteral("1")},
                                   {true},
                                   {0},
                                   {1, QStringLiteral("3")},
                                   {1, 3, 1},
                                   {1, 3, true, QStringLiteral("1")},
                                   {1, 3, true, 3}};
    for (const QList<QVariant> &parameters : bad)
        EXPECT_THROW(PurgeFormula(QList<QVariant>(parameters)), std::invalid_argument) << parameters.size();
}

TEST(PurgeFormula, isAStructOverXmlRpc)
{
    const PurgeFormula purge(QList<QVariant>{5.5, 2, true, 1});
    bool ok = false;
    const XmlRpcValue literal =
        structOf({{"purge_quantity", 5.5}, {"quantity_unit", 2}, {"only_filled", true}, {"head", 1}});
    EXPECT_TRUE(SameXmlRpcValue(purge.toXmlRpcValue(&ok), literal));
    EXPECT_TRUE(ok);
    EXPECT_TRUE(PurgeFormula(literal) == purge);
    EXPECT_TRUE(PurgeFormula(arrayOf({literal})) == purge);
    expect(PurgeFormula(structOf({{"purge_quantity", 3}})), 3, 3, false, 0);
}

TEST(PurgeFormula, valuesThatAreNone)
{
    const XmlRpcValue good = structOf({{"purge_quantity", 3}});
    EXPECT_FALSE(isRefused(good));
    for (const XmlRpcValue &value :
         {XmlRpcValue(), XmlRpcValue(5), XmlRpcValue("5"), arrayOf({}), arrayOf({5}),
          arrayOf({arrayOf({good})}), structOf({}), structOf({{"quantity_unit", 3}})})
        EXPECT_TRUE(isRefused(value)) << value.getType();
    const std::pair<const char *, XmlRpcValue> bad[] = {
        {"purge_quantity", "3"},
        {"purge_quantity", true},
        {"purge_quantity", 0},
        {"purge_quantity", -0.5},
        {"quantity_unit", 4},
        {"quantity_unit", "3"},
        {"only_filled", 1},
        {"head", 3},
        {"head", -1},
        {"head", true},
    };
    for (const auto &[key, member] : bad) {
        XmlRpcValue value = good;
        value[key] = member;
        EXPECT_TRUE(isRefused(value)) << key;
    }
}

TEST(PurgeFormula, travelsInAVariant)
{
    const PurgeFormula purge(2.5, true, 3);
    EXPECT_EQ(QMetaType::type("PurgeFormula"), qMetaTypeId<PurgeFormula>());
    const QVariant variant = QVariant::fromValue(purge);
    EXPECT_TRUE(variant == QVariant::fromValue(PurgeFormula(2.5, true, 3)));
    EXPECT_TRUE(variant != QVariant::fromValue(PurgeFormula()));
    const QVariantMap map = {
        {"purge_quantity", 2.5}, {"quantity_unit", 3}, {"only_filled", true}, {"head", 0}};
    EXPECT_EQ(variant.toMap(), map);
    EXPECT_TRUE(QVariant(map).value<PurgeFormula>() == purge);
    EXPECT_TRUE(SameXmlRpcValue(EncodeXmlRpcVariant(variant), purge.toXmlRpcValue()));
    EXPECT_THROW(QVariant(QVariantMap()).value<PurgeFormula>(), std::invalid_argument);
}

TEST(PurgeFormula, anyChangeMakesItAnother)
{
    const PurgeFormula original(QList<QVariant>{5.5, 2, true, 1});
    EXPECT_TRUE(original == PurgeFormula(QList<QVariant>{5.5, 2, true, 1}));
    const QList<QVariant> changes[] = {
        {5.6, 2, true, 1}, {5.5, 1, true, 1}, {5.5, 2, false, 1}, {5.5, 2, true, 2}};
    for (const QList<QVariant> &parameters : changes) {
        EXPECT_TRUE(PurgeFormula(QList<QVariant>(parameters)) != original);
        EXPECT_FALSE(PurgeFormula(QList<QVariant>(parameters)) == original);
    }
}

TEST(PurgeFormula, inOneLine)
{
    EXPECT_EQ(PurgeFormula().toPrintableString(true, nullptr), "1 strokes of each circuit");
    EXPECT_EQ(PurgeFormula(500.0, 2, 1).toPrintableString(true, nullptr), "500 steps of each circuit");
    EXPECT_EQ(PurgeFormula(500.0, 2, 1).toPrintableString(false, nullptr),
              "500 steps of each circuit of head 2");
    EXPECT_EQ(PurgeFormula(2.5, true, 3).toPrintableString(false, nullptr),
              "2.5 of each circuit with colorant");
    FW_Dispenser machine = pouring::dispenser();
    EXPECT_EQ(PurgeFormula().toPrintableString(true, &machine), "1 strokes of each circuit: 1,2,3,5,7,8");
    machine.getCanisterById(1)->setCurrentQuantity(0);
    EXPECT_EQ(PurgeFormula(2.5, true, 3).toPrintableString(true, &machine), "2.5 of each circuit: 3,5,7,8");
}

} // namespace
