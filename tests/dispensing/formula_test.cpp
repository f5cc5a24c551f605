// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/formula_p.h"

#include "dispensing/dispensertesting.h"
#include "dispensing/tintcmd.h"

#include <stdexcept>

// What the commands that carry a formula share, as far as no command alone can show it.

namespace {

using namespace testing_dispensing;

constexpr char function[] = "Some::function()";

TEST(SharedFormula, sharesWhatAMakerMakes)
{
    EXPECT_EQ(quv::madeOrRefused({"DE09000", "Not made"}, function, [] { return 7; }), 7);
}

TEST(SharedFormula, refusesWhatCouldNotBeMade)
{
    const quv::Refusal refusal = {"DE09000", "Not made"};
    expectRefusal("DE09000", "Not made", function, [&] {
        quv::madeOrRefused(refusal, function, []() -> Formula { throw std::bad_alloc(); });
    });
    expectRefusal("DE09000", "Not made", function,
                  [&] { quv::madeOrRefused(refusal, function, []() -> Formula { throw 7; }); });
    expectRefusal("DE09001", "Of the framework", "Framework::copy()", [&] {
        quv::madeOrRefused(refusal, function, []() -> Formula {
            throw FW_Exception("DE09001", "Of the framework", "Framework::copy()");
        });
    });
}

TEST(SharedFormula, requiresAGoodCheck)
{
    EXPECT_NO_THROW(quv::require(function, [](FW_DriverError &) { return true; }));
    expectRefusal("DE09000", "Not good", function, [] {
        quv::require(function,
                     [](FW_DriverError &error) { return FW_DriverError::D_E("DE09000", "Not good", error); });
    });
}

TEST(SharedFormula, cannotCheckLevelsOfAnotherMachinesCanisters)
{
    const quv::LevelsCodes codes = {"DE09001", "DE09002", "DE09003", "DE09004"};
    const FW_Dispenser machine = dispenser();
    FW_DriverError error;
    EXPECT_FALSE(quv::levelsSuffice(formulaOf(Formula::CanisterIDs, Formula::WeightOrVolume, {{"199", -1}}),
                                    &machine, codes, error));
    expectError(error, "DE09001", badLevels);
}

TEST(SharedFormula, knowsAFormulaInAVariant)
{
    const QVariantMap formula = {{"formula_type", 1}};
    const QVariantMap purge = {{"purge_quantity", 1.0}};
    EXPECT_TRUE(quv::holds<Formula>(QVariant::fromValue(Formula())));
    EXPECT_TRUE(quv::holds<Formula>(formula));
    EXPECT_FALSE(quv::holds<Formula>(purge));
    EXPECT_FALSE(quv::holds<Formula>(QVariant::fromValue(PurgeFormula())));
    EXPECT_TRUE(quv::holds<PurgeFormula>(QVariant::fromValue(PurgeFormula())));
    EXPECT_TRUE(quv::holds<PurgeFormula>(purge));
    EXPECT_FALSE(quv::holds<PurgeFormula>(formula));
    for (const QVariant &other :
         {QVariant(), QVariant(1), QVariant("1"), QVariant(List{formula}), QVariant(QVariantMap())}) {
        SCOPED_TRACE(shown({other}));
        EXPECT_FALSE(quv::holds<Formula>(other));
        EXPECT_FALSE(quv::holds<PurgeFormula>(other));
    }
}

TEST(SharedFormula, knowsTheLongTint)
{
    TintCmd command;
    EXPECT_FALSE(quv::isTint2(command));
    ASSERT_TRUE(command.setCommand("TINT2"));
    EXPECT_TRUE(quv::isTint2(command));
}

} // namespace
