// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/formulautils.h>
#include <QuvFramework/fw_error.h>
#include <QuvFramework/purgeformula.h>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

FW_Dispenser machine()
{
    FW_Dispenser machine = pouring::dispenser();
    machine.getCircuitByPosition(5)->setHeadId(2);
    machine.getCanisterById(7)->setCurrentQuantity(0);
    return machine;
}

/** Positions of the formula that the purge becomes; each circuit gives the same. */
std::vector<std::string> purged(const PurgeFormula &purge)
{
    Formula built;
    FW_DriverError error;
    EXPECT_TRUE(FormulaUtils::buildPurgeFormula(purge, built, machine(), &error));
    EXPECT_EQ(built.formulaType(), Formula::CircuitPositions);
    EXPECT_EQ(built.quantityUnit(), purge.quantityUnit());
    std::vector<std::string> ids;
    for (const FormulaItem &item : built.items()) {
        EXPECT_EQ(item.quantity, purge.quantity());
        EXPECT_EQ(item.queueID + item.nozzleValveID, 0);
        ids.push_back(item.id.toStdString());
    }
    return ids;
}

TEST(FormulaUtils, purgesTheChosenCircuits)
{
    EXPECT_THAT(purged(PurgeFormula()), ElementsAre("1", "2", "3", "5", "7", "8"));
    EXPECT_THAT(purged(PurgeFormula(2.5, true, 3)), ElementsAre("1", "2", "3", "5", "7"));
    EXPECT_THAT(purged(PurgeFormula(300.0, 1, 1)), ElementsAre("1", "2", "3", "7", "8"));
    EXPECT_THAT(purged(PurgeFormula(300.0, 2, 1)), ElementsAre("5"));
}

TEST(FormulaUtils, aPurgeOfNothing)
{
    Formula built;
    built.setDecimals(1);
    FW_DriverError error;
    EXPECT_FALSE(FormulaUtils::buildPurgeFormula(PurgeFormula(), built, FW_Dispenser(), &error));
    EXPECT_EQ(error.code(), "DE03024");
    EXPECT_EQ(error.text(), "PurgeFormula: the dispenser has no circuit to purge");
    EXPECT_FALSE(FormulaUtils::buildPurgeFormula(PurgeFormula(), built, FW_Dispenser(), nullptr));
    EXPECT_EQ(built.decimals(), 1);
}

TEST(FormulaUtils, aFormulaIsPurgedByCircuitPositions)
{
    Formula asked;
    asked.setFormulaType(Formula::ColorantCodes);
    asked.setQuantityUnit(Formula::Strokes);
    asked.setItems({{"KX", 2, 4, 0}, {"B", 1}});
    Formula built;
    FW_DriverError error;
    ASSERT_TRUE(FormulaUtils::buildPurgeFormula(asked, built, machine(), &error));
    EXPECT_EQ(built.formulaType(), Formula::CircuitPositions);
    EXPECT_EQ(built.quantityUnit(), Formula::Strokes);
    EXPECT_TRUE((built.items() == QVector<FormulaItem>{{"5", 2, 4, 0}, {"1", 1, 0, 0}}));

    asked.setItems({{"R", 1}});
    EXPECT_FALSE(FormulaUtils::buildPurgeFormula(asked, built, machine(), &error));
    EXPECT_EQ(error.code(), "DE03022");
    EXPECT_EQ(built.items().size(), 2); // as it was
}

TEST(FormulaUtils, aNegativeQuantityIsNotAddedUp)
{
    Formula asked;
    asked.setFormulaType(Formula::ColorantCodes);
    asked.setQuantityUnit(Formula::Strokes);
    asked.setItems({{"B", 3}, {"B", -1}});
    Formula built;
    FW_DriverError error;
    ASSERT_TRUE(FormulaUtils::buildPurgeFormula(asked, built, machine(), &error));
    EXPECT_TRUE(built.hasNegativeValues());
    EXPECT_TRUE((built.items() == QVector<FormulaItem>{{"B", 3}, {"B", -1}}));

    asked.setItems({{"B", 3}, {"B", 1}});
    ASSERT_TRUE(FormulaUtils::buildPurgeFormula(asked, built, machine(), &error));
    EXPECT_TRUE((built.items() == QVector<FormulaItem>{{"1", 4}}));

    asked.setItems({{"R", -1}});
    EXPECT_FALSE(FormulaUtils::buildPurgeFormula(asked, built, machine(), &error));
    EXPECT_EQ(error.code(), "DE03022");
}

} // namespace
