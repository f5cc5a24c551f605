// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "pouringmachine.h"

#include <QuvFramework/formulaprogress.h>

namespace {

using namespace quv::test;

QList<int> integers(const Envelope &envelope, const char *key)
{
    QList<int> values;
    EXPECT_TRUE(DecodeXmlRpcValue(envelope.answer, key, values)) << envelope.error();
    return values;
}

/// What the driver answers of its dispenser's canisters, circuits and calibrations.
class DriverQueriesTest : public DriverFixture
{
protected:
    DriverQueriesTest() : m_firmware(addSimulated(pouringMachine(), 2)) {}

    WatchedFirmware &m_firmware;
};

TEST_F(DriverQueriesTest, levelsThatAFormulaWouldReach)
{
    // each canister holds 500, with a warning below 50 and a reserve of 20
    const Envelope check = call("EXEC_B", "CHECK_FORMULA_LEVELS",
                                formula({{"A", 450}, {"B", 450.5}, {"C", 480}, {"D", 480.5}}), false);
    EXPECT_EQ(check.retCode, 0) << check.error();
    EXPECT_EQ(integers(check, "canisters_below_critical"), (QList<int>{14}));
    EXPECT_EQ(integers(check, "canisters_below_warning"), (QList<int>{12, 13}));
    const Envelope good = call("EXEC_B", "CHECK_FORMULA_LEVELS", formula({{"A", 1}}), false);
    EXPECT_TRUE(integers(good, "canisters_below_critical").isEmpty());
    EXPECT_TRUE(integers(good, "canisters_below_warning").isEmpty());
    const Envelope purge = call("EXEC_B", "CHECK_FORMULA_LEVELS", formula({{"B", 470}}), true);
    EXPECT_EQ(integers(purge, "canisters_below_warning"), (QList<int>{12}));
    EXPECT_EQ(level(14), "500"); // asked, not poured
}

TEST_F(DriverQueriesTest, levelsThatAPurgeByQuantityWouldReach)
{
    XmlRpcValue purge;
    purge["purge_quantity"] = 460.0;
    purge["quantity_unit"] = 3;
    EXPECT_EQ(integers(call("EXEC_B", "CHECK_FORMULA_LEVELS", purge), "canisters_below_warning"),
              (QList<int>{11, 12, 13, 14}));
}

TEST_F(DriverQueriesTest, whatDoesNotFitTheMachineIsRefusedInTheFormulasWords)
{
    const std::string unknown = "DE03021 Formula: the dispenser does not have \"Z\"";
    const XmlRpcValue asked = formula({{"Z", 1}});
    for (const Envelope &envelope :
         {call("EXEC_B", "CHECK_FORMULA_LEVELS", asked, false),
          call("EXEC_B", "CHECK_FORMULA_LEVELS", asked, true), call("EXEC_B", "GET_FORMULA_CIRCUITS", asked),
          call("EXEC_B", "GET_LOW_LEVEL_FORMULA", asked), call("EXEC_B", "SET_LEVELS", true, asked)}) {
        EXPECT_EQ(envelope.retCode, 1);
        EXPECT_EQ(envelope.error(), unknown);
    }
}

TEST_F(DriverQueriesTest, circuitsThatAFormulaUses)
{
    const Envelope circuits =
        call("EXEC_B", "GET_FORMULA_CIRCUITS", formula({{"C", 2.5}, {"A", 10}, {"C", 1}}));
    EXPECT_EQ(circuits.retCode, 0) << circuits.error();
    EXPECT_EQ(integers(circuits, "circuits"), (QList<int>{23, 21}));
    EXPECT_EQ(integers(circuits, "positions"), (QList<int>{3, 1}));
    const XmlRpcValue quantities = circuits.member("quantities");
    ASSERT_EQ(quantities.size(), 2);
    EXPECT_EQ(double(quantities[0]), 3.5);
    EXPECT_EQ(double(quantities[1]), 10);
}

TEST_F(DriverQueriesTest, theFormulaInTheMachinesOwnTerms)
{
    const Envelope envelope = call("EXEC_B", "GET_LOW_LEVEL_FORMULA", formula({{"C", 2.5}, {"A", 10}}));
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    const Formula low(envelope.member("low_level_formula"));
    EXPECT_EQ(low.formulaType(), Formula::CircuitPositions);
    EXPECT_EQ(low.quantityUnit(), Formula::Steps);
    ASSERT_EQ(low.items().size(), 2);
    EXPECT_EQ(low.items()[0].id, QStringLiteral("3"));
    EXPECT_EQ(low.items()[0].quantity, 250);
    EXPECT_EQ(low.items()[0].queueID, 5);
    EXPECT_EQ(low.items()[1].id, QStringLiteral("1"));
    EXPECT_EQ(low.items()[1].quantity, 1000);
    EXPECT_EQ(low.items()[1].queueID, 0);
    EXPECT_FALSE(envelope.member("low_level_formula").hasMember("speeds")) << "none was asked for";
}

TEST_F(DriverQueriesTest, speedsThatAFormulaAsksForStayInTheMachinesOwnTerms)
{
    XmlRpcValue asked = formula({{"C", 2.5}, {"A", 10}, {"B", 1}, {"C", 1}});
    asked["speeds"] = arrayOf(0, 35, 45, 20);
    const Envelope envelope = call("EXEC_B", "GET_LOW_LEVEL_FORMULA", asked);
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    const Formula low(envelope.member("low_level_formula"));
    ASSERT_EQ(low.items().size(), 3);
    EXPECT_EQ(low.items()[0].speed, 0); // of what is named twice the first counts
    EXPECT_EQ(low.items()[1].speed, 35);
    EXPECT_EQ(low.items()[2].speed, 45);
    EXPECT_EQ(low.items()[0].quantity, 350);
}

TEST_F(DriverQueriesTest, levelsAreChangedOrSet)
{
    EXPECT_EQ(call("EXEC_B", "SET_LEVELS", true, formula({{"A", 10.5}, {"B", -20}})).retCode, 0);
    EXPECT_EQ(level(11), "510.5");
    EXPECT_EQ(level(12), "480");
    EXPECT_EQ(call("EXEC_B", "SET_LEVELS", false, formula({{"A", 1000}, {"B", 0}}), false).retCode, 0);
    EXPECT_EQ(level(11), "1000");
    EXPECT_EQ(level(12), "0");
    EXPECT_EQ(level(13), "500");
}

TEST_F(DriverQueriesTest, levelsBelowZeroAndAboveTheMaximumAreRefusedAndChangeNothing)
{
    const Envelope below = call("EXEC_B", "SET_LEVELS", true, formula({{"A", 10}, {"B", -500.5}}));
    EXPECT_EQ(below.retCode, 1);
    EXPECT_EQ(below.error(), "DE03118 Canister 12 cannot hold -0.5; it holds 0 to 1000");
    EXPECT_EQ(call("EXEC_B", "SET_LEVELS", true, formula({{"A", 500.5}})).error(),
              "DE03118 Canister 11 cannot hold 1000.5; it holds 0 to 1000");
    EXPECT_EQ(call("EXEC_B", "SET_LEVELS", false, formula({{"A", -1}})).error(),
              "DE03118 Canister 11 cannot hold -1; it holds 0 to 1000");
    EXPECT_EQ(level(11), "500");
}

TEST_F(DriverQueriesTest, timeThatACommandWouldTake)
{
    XmlRpcValue tint;
    tint["command"] = arrayOf("TINT", formula({{"A", 10}, {"B", 5}}));
    const Envelope envelope = call("EXEC_B", "GET_CMD_EST_EXEC_TIME", tint);
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_EQ(envelope.number("exec_time"), 4500); // 6 s and 3 s, twice as fast
    XmlRpcValue status;
    status["command"] = arrayOf("GET_STATUS");
    EXPECT_EQ(call("EXEC_B", "GET_CMD_EST_EXEC_TIME", status).retCode, 0);
    EXPECT_TRUE(m_firmware.received.isEmpty());
}

TEST_F(DriverQueriesTest, timeOfWhatGoesOnInTheBackground)
{
    const auto time = [this](const XmlRpcValue &request) {
        XmlRpcValue asked;
        asked["command"] = request;
        return call("EXEC_B", "GET_CMD_EST_EXEC_TIME", asked).number("exec_time");
    };
    EXPECT_EQ(time(arrayOf("STIRRING", 1, 30)), 15000); // twice as fast
    EXPECT_EQ(time(arrayOf("RECIRCULATION", 1, 30)), 15000);
    EXPECT_EQ(time(arrayOf("CLEANING", 1, 245, 20)), 10000);
    EXPECT_EQ(time(arrayOf("RECIRCULATION", 1, 30, 50, 1)), 0); // strokes
    EXPECT_EQ(time(arrayOf("STIRRING", 1, 60515)), 0);          // without an end
    EXPECT_EQ(time(arrayOf("STIRRING", 1, 0)), 0);
}

TEST_F(DriverQueriesTest, nothingRuns)
{
    const Envelope envelope = call("EXEC_B", "GET_FORMULA_EXECUTION", formula({{"A", 1}}));
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_TRUE(FormulaProgress(envelope.member("frm_progress")).formulaChannels().isEmpty());
}

TEST_F(DriverQueriesTest, queriesByTicketAndBySecondLook)
{
    const Envelope begun = call("EXEC_NB", "GET_FORMULA_CIRCUITS", formula({{"A", 1}}));
    EXPECT_FALSE(begun.text("ticket_id").empty());
    XmlRpcValue parameters;
    parameters["cmd_parameters"] = arrayOf(formula({{"A", 1}}));
    const Envelope looked = call("EXEC_NC", "GET_FORMULA_CIRCUITS", parameters, 10, 100);
    EXPECT_EQ(looked.retCode, 0) << looked.error();
    EXPECT_EQ(integers(looked, "positions"), (QList<int>{1}));
}

TEST_F(DriverQueriesTest, aDriverWithoutADispenserHasNoCircuits)
{
    m_driver = std::make_unique<quv::Driver>();
    addMixer({QStringLiteral("0")});
    EXPECT_EQ(call("EXEC_B", "GET_FORMULA_CIRCUITS", formula({{"A", 1}})).error(),
              "DE03104 This driver has no machine that carries out this command");
    EXPECT_EQ(call("EXEC_B", "SET_LEVELS", true, formula({{"A", 1}})).retCode, 5);
    EXPECT_EQ(call("EXEC_B", "GET_CMD_STATUS", "1").retCode, 1);
}

} // namespace
