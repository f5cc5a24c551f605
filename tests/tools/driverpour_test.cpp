// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "pouringmachine.h"

#include <QuvFramework/formulaprogress.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

namespace {

using namespace std::chrono_literals;
using namespace quv::test;
using quv::FirmwareReply;

/// A driver with a machine that pours: a quantity of 10 takes 6 s at speed 1.
class DriverPourTest : public DriverFixture
{
protected:
    std::string begin(const char *name, const XmlRpcValue &argument)
    {
        const Envelope envelope = call("EXEC_NB", name, argument);
        EXPECT_EQ(envelope.retCode, 0) << envelope.error();
        return envelope.text("ticket_id");
    }
    Envelope ticket(const std::string &id) { return call("EXEC_B", "GET_CMD_STATUS", id); }
    /// What the ticket gives in the end.
    Envelope end(const std::string &id)
    {
        const auto until = std::chrono::steady_clock::now() + 20s;
        while (ticket(id).number("status") > 0) {
            if (std::chrono::steady_clock::now() > until)
                throw std::logic_error("it never ends");
            std::this_thread::sleep_for(5ms);
        }
        return Envelope(ticket(id).member("cmd_answer"));
    }
    void waitUntilItPours()
    {
        const auto until = std::chrono::steady_clock::now() + 10s;
        while (!call("EXEC_B", "GET_STATUS").flag("tinting")) {
            if (std::chrono::steady_clock::now() > until)
                throw std::logic_error("it never pours");
            std::this_thread::sleep_for(1ms);
        }
    }
    /// "position quantity" of each item of one of the formulas of the report.
    std::string reported(const char *key)
    {
        const Envelope report = call("EXEC_B", "GET_DISPENSED_FORMULA", 1, 1);
        EXPECT_EQ(report.retCode, 0) << report.error();
        const Formula reportedFormula(report.member(key));
        QStringList items;
        for (const FormulaItem &item : reportedFormula.items())
            items.append(QStringLiteral("%1 %2").arg(item.id).arg(item.quantity));
        return items.join(QStringLiteral(", ")).toStdString();
    }
};

TEST_F(DriverPourTest, aTintIsAnsweredWhenItIsPouredAndLowersTheLevels)
{
    addSimulated(pouringMachine(), 50);
    const auto begin = std::chrono::steady_clock::now();
    const Envelope envelope = call("EXEC_B", "TINT", formula({{"A", 10}, {"C", 2.5}}));
    const auto time = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    EXPECT_TRUE(envelope.failures.isEmpty());
    EXPECT_GE(time, 149ms); // 7.5 s, 50 times faster
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("tinting"));
    EXPECT_EQ(reported("dispensed_formula"), "1 1000, 3 250");
    EXPECT_EQ(reported("total_formula"), "1 1000, 3 250");
    EXPECT_EQ(level(11), "490");
    EXPECT_EQ(level(12), "500");
    EXPECT_EQ(level(13), "497.5");
}

TEST_F(DriverPourTest, aTintByTicketTellsItsProgressAndItsResult)
{
    addSimulated(pouringMachine(), 10);
    const std::string id = begin("TINT", formula({{"A", 10}})); // 600 ms
    int percentage = 0;
    int timeLeft = 600;
    bool sawMiddle = false;
    Envelope status = ticket(id);
    for (; status.number("status") > 0; status = ticket(id)) {
        EXPECT_GE(status.number("percentage"), percentage);
        EXPECT_LE(status.number("time_left"), timeLeft);
        percentage = status.number("percentage");
        timeLeft = status.number("time_left");
        sawMiddle = sawMiddle || (percentage > 10 && percentage < 90 && timeLeft > 60 && timeLeft < 540);
        EXPECT_EQ(int(status.member("cmd_answer")), 0);
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_TRUE(sawMiddle);
    EXPECT_EQ(status.number("status"), 0);
    EXPECT_EQ(status.number("percentage"), 100);
    EXPECT_EQ(status.number("time_left"), 0);
    EXPECT_EQ(status.text("info"), "Done successfully!");
    const Envelope result(status.member("cmd_answer"));
    EXPECT_EQ(result.retCode, 0);
    EXPECT_EQ(result.info, QStringLiteral("TINT command executed successfully!"));
    EXPECT_EQ(level(11), "490");
    EXPECT_EQ(end(id).retCode, 0); // kept
}

TEST_F(DriverPourTest, aTicketIsRefusedAtOnceForWhatEXEC_BRefuses)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 100);
    const Envelope unknown = call("EXEC_NB", "TINT", formula({{"Z", 10}}));
    EXPECT_EQ(unknown.retCode, 1);
    EXPECT_EQ(unknown.error(), "DE03021 Formula: the dispenser does not have \"Z\"");
    EXPECT_EQ(call("EXEC_NB", "TINT").retCode, 1);
    EXPECT_EQ(call("EXEC_NB", "GET_DRIVER_INFO").retCode, 6);
    EXPECT_EQ(call("EXEC_NB", "MIXER_STATUS").retCode, 5);
    EXPECT_TRUE(firmware.received.isEmpty());
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 0.1}})).retCode, 0); // none of them keeps the machine
}

TEST_F(DriverPourTest, anyCommandCanHaveATicket)
{
    addDispenser(IdleTokens);
    const Envelope envelope = call("EXEC_NB", "GET_STATUS");
    EXPECT_EQ(envelope.retCode, 0);
    EXPECT_EQ(envelope.info, QStringLiteral("GET_STATUS command executed successfully!"));
    const Envelope result = end(envelope.text("ticket_id"));
    EXPECT_EQ(result.retCode, 0);
    EXPECT_TRUE(result.flag("head1_can_dose"));
}

TEST_F(DriverPourTest, aCommandThatTheFirmwareRefusesEndsItsTicketInErrors)
{
    addDispenser(QStringLiteral("6 0 8 0 0 0 0").split(QLatin1Char(' ')), true);
    const std::string id = call("EXEC_NB", "RESET").text("ticket_id");
    const Envelope result = end(id);
    EXPECT_EQ(ticket(id).number("status"), -1);
    EXPECT_EQ(result.retCode, 4);
    EXPECT_EQ(result.error(),
              "DE03106 The firmware refused the code 0001: Machine not available (masks 0x0 and 0x8)");
}

TEST_F(DriverPourTest, anUnknownTicket)
{
    addDispenser(IdleTokens);
    const Envelope envelope = ticket("17");
    EXPECT_EQ(envelope.retCode, 1);
    EXPECT_EQ(
        envelope.error(),
        "DE03111 There is no ticket \"17\"; a result is kept for a minute, that of a pour for an hour or "
        "until it has been read");
}

TEST_F(DriverPourTest, aMachinePoursOnceAtATime)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 10);
    const std::string id = begin("TINT", formula({{"A", 10}}));
    waitUntilItPours();
    const std::string refusal = "DE03112 The machine is at TINT and pours once at a time";
    for (const char *method : {"EXEC_B", "EXEC_NB", "EXEC_NC"}) {
        const Envelope second = call(method, "TINT", formula({{"B", 10}}));
        EXPECT_EQ(second.retCode, 6) << method;
        EXPECT_EQ(second.error(), refusal) << method;
    }
    EXPECT_EQ(call("EXEC_B", "PURGE", formula({{"B", 10}})).error(), refusal);
    EXPECT_EQ(call("EXEC_B", "FINALIZE_CONFIG").retCode, 4); // by the machine itself
    EXPECT_EQ(end(id).retCode, 0);
    EXPECT_EQ(firmware.received.size(), 1);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"B", 1}})).retCode, 0);
    EXPECT_EQ(level(12), "499");
}

TEST_F(DriverPourTest, aRefusedTintDoesNotKeepTheMachine)
{
    addSimulated(pouringMachine(), 100);
    XmlRpcValue tooMuch = formula({{"A", 600}});
    tooMuch["levels_policy"] = 2;
    EXPECT_EQ(
        call("EXEC_B", "TINT", tooMuch).error(),
        "DE00061 Formula interrupted because the current amount would go below zero|"
        "DE03144 Canister 11 (\"A\") holds 500; without 600 it would fall below its critical level of 20");
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 1}})).retCode, 0);
}

TEST_F(DriverPourTest, theLevelsOfTheLastPourAreThoseThatTheNextIsCheckedBy)
{
    addSimulated(pouringMachine(), 10000);
    XmlRpcValue most = formula({{"A", 300}});
    most["levels_policy"] = 2;
    EXPECT_EQ(call("EXEC_B", "TINT", most).retCode, 0);
    EXPECT_EQ(level(11), "200");
    EXPECT_EQ(
        call("EXEC_B", "TINT", most).error(),
        "DE00061 Formula interrupted because the current amount would go below zero|"
        "DE03144 Canister 11 (\"A\") holds 200; without 300 it would fall below its critical level of 20");
}

TEST_F(DriverPourTest, aPourTellsHowFarItIs)
{
    addSimulated(pouringMachine(), 10);
    const std::string id = begin("TINT", formula({{"A", 10}, {"B", 10}}));
    waitUntilItPours();
    std::string dispensed = reported("dispensed_formula");
    EXPECT_NE(dispensed, "1 1000, 2 1000");
    while (dispensed.substr(0, 10) != "1 1000, 2 " || dispensed == "1 1000, 2 0") {
        std::this_thread::sleep_for(1ms);
        dispensed = reported("dispensed_formula");
    }
    EXPECT_NE(dispensed, "1 1000, 2 1000");
    EXPECT_EQ(reported("total_formula"), "1 1000, 2 1000");
    const XmlRpcValue progress = call("EXEC_B", "GET_FORMULA_EXECUTION", formula({})).member("frm_progress");
    const FormulaProgress running(progress);
    ASSERT_EQ(running.formulaChannels().size(), 1);
    const FormulaChannel &channel = *running.formulaChannels().constFirst();
    EXPECT_EQ(channel.channelID(), 1);
    EXPECT_GT(channel.percentage(), 30);
    EXPECT_LT(channel.percentage(), 100);
    EXPECT_LT(channel.timeLeft(), 700);
    EXPECT_EQ(channel.formula().items().size(), 2);
    EXPECT_EQ(end(id).retCode, 0);
    const FormulaProgress nothing(
        call("EXEC_B", "GET_FORMULA_EXECUTION", formula({})).member("frm_progress"));
    EXPECT_TRUE(nothing.formulaChannels().isEmpty());
}

TEST_F(DriverPourTest, nothingIsNotPoured)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 1000);
    for (const char *method : {"EXEC_B", "EXEC_NB", "EXEC_NC"}) {
        const Envelope refused = call(method, "TINT", formula({{"A", 0}, {"B", 10}}));
        EXPECT_EQ(refused.retCode, 1) << method;
        EXPECT_EQ(refused.error(), "DE03140 A quantity of 0 cannot be poured: \"A\"") << method;
        const Formula rest(refused.answer); // which can be poured
        ASSERT_EQ(rest.items().size(), 1) << method;
        EXPECT_EQ(rest.items()[0].id, QStringLiteral("B")) << method;
        EXPECT_EQ(rest.items()[0].quantity, 10) << method;
    }
    const Envelope allOfNothing = call("EXEC_B", "PURGE", formula({{"A", 0}}, 1));
    EXPECT_EQ(allOfNothing.error(), "DE03140 A quantity of 0 cannot be poured: position 1");
    EXPECT_EQ(int(allOfNothing.answer), 0);
    EXPECT_TRUE(firmware.received.isEmpty());
}

TEST_F(DriverPourTest, whatRoundsByMoreThanAHundredthIsRefusedWithWhatCanBePoured)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 1000);
    // 100 steps pour 1
    const Envelope weight = call("EXEC_B", "TINT", formula({{"A", 0.004}, {"B", 0.335}, {"C", 10.004}}));
    EXPECT_EQ(weight.retCode, 1);
    EXPECT_EQ(weight.error(),
              "DE03141 \"A\": 0.004 cannot be poured, the nearest is 0.01 (steps of the motor: 1)|"
              "DE03141 \"B\": 0.335 cannot be poured, the nearest is 0.34 (steps of the motor: 34)");
    const Envelope strokes = call("EXEC_B", "TINT", formula({{"A", 0.5}, {"B", 2}}, 2));
    EXPECT_EQ(strokes.error(), "DE03141 \"A\": 0.5 strokes cannot be poured, the nearest is 1");
    EXPECT_EQ(call("EXEC_B", "PRIMING", formula({{"A", 2.5}}, 2)).error(),
              "DE03141 \"A\": 2.5 strokes cannot be poured, the nearest is 3");
    XmlRpcValue steps = formula({}, 1);
    steps["formula_type"] = 1;
    steps["ids"][0] = 3;
    steps["quantities"][0] = 0.3;
    EXPECT_EQ(call("EXEC_B", "CHANNEL_TINT", 1, steps).retCode, 1);
    EXPECT_EQ(call("EXEC_B", "TINT2", steps).error(),
              "DE03141 position 3: 0.3 steps cannot be poured, the nearest is 1");
    EXPECT_TRUE(firmware.received.isEmpty());

    EXPECT_EQ(call("EXEC_B", "TINT", weight.answer).retCode, 0);
    EXPECT_EQ(firmware.received[0].second,
              (QList<int>{0, 3, 1, 0, 50, 1, 1, 2, 0, 50, 1, 34, 3, 0, 50, 2, 16, 4}));
    EXPECT_EQ(call("EXEC_B", "TINT", strokes.answer).retCode, 0);
    EXPECT_EQ(firmware.received[1].second, (QList<int>{0, 2, 1, 0, 50, 2, 154, 1, 2, 0, 50, 2, 62, 3}));
}

TEST_F(DriverPourTest, aHundredthMoreOrLessIsPoured)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 1000);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 0.504}})).retCode, 0); // 0.8 % more than 50 steps
    EXPECT_EQ(firmware.received[0].second.last(), 50);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 0.496}})).retCode, 0);
    EXPECT_EQ(firmware.received[1].second.last(), 50);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 0.345}})).retCode, 1);
    // what is named twice is poured at once
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 0.004}, {"A", 0.006}, {"A", 0}})).retCode, 0);
    EXPECT_EQ(firmware.received[2].second.last(), 1);
    // a pack is no amount
    EXPECT_EQ(call("EXEC_B", "PACK", 0, formula({{"C", 1}}, 2)).retCode, 0);
}

TEST_F(DriverPourTest, theTimeOfWhatWouldBeRefusedIsRefusedAsWell)
{
    addSimulated(pouringMachine(), 10);
    XmlRpcValue asked;
    asked["command"] = arrayOf("TINT", formula({{"A", 0}, {"B", 5}}));
    const Envelope refused = call("EXEC_B", "GET_CMD_EST_EXEC_TIME", asked);
    EXPECT_EQ(refused.error(), "DE03140 A quantity of 0 cannot be poured: \"A\"");
    EXPECT_EQ(Formula(refused.answer).items().size(), 1);
}

TEST_F(DriverPourTest, aPourThatGaveLessTellsItBesideItsAnswer)
{
    FW_Dispenser real = pouringMachine();
    real.getCanisterById(11)->setCurrentQuantity(4);
    real.getCanisterById(13)->setCurrentQuantity(1);
    addSimulated(pouringMachine(), 1000, &real);
    const std::string id = begin("TINT", formula({{"A", 10}, {"B", 1}}));
    const Envelope weight = end(id);
    EXPECT_EQ(weight.retCode, 0); // it was carried out, and is not to be sent again
    EXPECT_EQ(weight.error(), "DE03142 Less was poured than asked: \"A\" 4 of 10, in steps 400 of 1000");
    EXPECT_EQ(ticket(id).number("status"), 0);
    EXPECT_EQ(call("EXEC_B", "PRIMING", formula({{"C", 2}}, 2)).error(),
              "DE03142 Less was poured than asked: \"C\" 0.25 of 2, in steps 100 of 800");
    XmlRpcValue steps = formula({}, 1);
    steps["formula_type"] = 3;
    steps["ids"][0] = 11;
    steps["quantities"][0] = 20;
    EXPECT_EQ(call("EXEC_B", "TINT", steps).error(),
              "DE03142 Less was poured than asked: canister 11 0 of 20");
    EXPECT_EQ(call("EXEC_B", "PACK", 0, formula({{"C", 1}}, 2)).error(), "");
}

TEST_F(DriverPourTest, whatWasPouredIsToldAsItIsAskedFor)
{
    FW_Dispenser machine = pouringMachine();
    FW_Circuit second(31, 7); // of canister 11, with a pump of its own
    FW_DosingMotor motor;
    motor.setResolution(200);
    motor.setMaxSpeed(50);
    motor.setStepsPerStroke(100);
    second.setDosingMotor(motor);
    second.setCalibration(FW_Calibration({{10, 1, 50, 0}}));
    machine.getCanisterById(11)->addCircuit(second);
    FW_Dispenser real = machine;
    real.getCanisterById(12)->setCurrentQuantity(1.5);
    addSimulated(machine, 1000, &real);
    XmlRpcValue asked = formula({}, 1);
    asked["formula_type"] = 1;
    int i = 0;
    for (const auto &[position, steps] : {std::pair(1, 1000.0), std::pair(7, 50.0), std::pair(2, 200.0)}) {
        asked["ids"][i] = position;
        asked["quantities"][i++] = steps;
    }
    EXPECT_EQ(call("EXEC_B", "TINT", asked).retCode, 0);
    const auto told = [this](int type, int unit, const char *key) {
        const Envelope report = call("EXEC_B", "GET_DISPENSED_FORMULA", type, unit);
        const Formula formula(report.member(key));
        EXPECT_EQ(formula.formulaType(), type);
        EXPECT_EQ(formula.quantityUnit(), unit);
        QStringList items;
        for (const FormulaItem &item : formula.items())
            items.append(QStringLiteral("%1 %2").arg(item.id).arg(item.quantity));
        return items.join(QStringLiteral(", ")).toStdString();
    };
    EXPECT_EQ(told(1, 1, "dispensed_formula"), "1 1000, 7 50, 2 150");
    EXPECT_EQ(told(1, 3, "dispensed_formula"), "1 10, 7 5, 2 1.5");
    EXPECT_EQ(told(1, 0, "dispensed_formula"), "1 10, 7 5, 2 1.5");
    EXPECT_EQ(told(2, 2, "dispensed_formula"), "21 2.5, 31 0.5, 22 0.375");
    EXPECT_EQ(told(3, 1, "dispensed_formula"), "11 1050, 12 150");
    EXPECT_EQ(told(4, 3, "dispensed_formula"), "A 15, B 1.5");
    EXPECT_EQ(told(4, 3, "total_formula"), "A 15, B 2");
}

TEST_F(DriverPourTest, whatCannotBeToldAsItIsAskedForIsRefused)
{
    FW_Dispenser machine = pouringMachine();
    machine.getCircuitByPosition(1)->setCalibration(FW_Calibration());
    FW_DosingMotor motor;
    motor.setResolution(200);
    motor.setMaxSpeed(50);
    machine.getCircuitByPosition(1)->setDosingMotor(motor);
    machine.getCanisterById(11)->setColorantCode(QString());
    addSimulated(machine, 1000);
    XmlRpcValue asked = formula({}, 1);
    asked["formula_type"] = 1;
    asked["ids"][0] = 1;
    asked["quantities"][0] = 10;
    EXPECT_EQ(call("EXEC_B", "TINT", asked).retCode, 0);
    const std::string words = "DE03143 What the circuit at position 1 poured cannot be told in ";
    EXPECT_EQ(call("EXEC_B", "GET_DISPENSED_FORMULA").error(), words + "weight or volume");
    EXPECT_EQ(call("EXEC_B", "GET_DISPENSED_FORMULA", 3, 2).error(), words + "strokes");
    EXPECT_EQ(call("EXEC_B", "GET_DISPENSED_FORMULA", 4, 1).error(), words + "colorants");
    EXPECT_EQ(call("EXEC_B", "GET_DISPENSED_FORMULA", 3, 1).retCode, 0);
}

TEST_F(DriverPourTest, levelsFallByWhatWasReallyPoured)
{
    FW_Dispenser real = pouringMachine();
    real.getCanisterById(11)->setCurrentQuantity(4);
    addSimulated(pouringMachine(), 100, &real);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}})).retCode, 0);
    EXPECT_EQ(reported("dispensed_formula"), "1 400");
    EXPECT_EQ(reported("total_formula"), "1 1000");
    EXPECT_EQ(level(11), "496");
}

TEST_F(DriverPourTest, aRefillFillsTheSimulatedCanister)
{
    FW_Dispenser machine = pouringMachine();
    machine.getCanisterById(11)->setCurrentQuantity(4);
    addSimulated(machine, 100);
    EXPECT_EQ(call("EXEC_B", "SET_LEVELS", true, formula({{"A", 100}}), true).retCode, 0);
    EXPECT_EQ(level(11), "104");
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}})).retCode, 0);
    EXPECT_EQ(reported("dispensed_formula"), "1 1000");
    EXPECT_EQ(level(11), "94");
}

TEST_F(DriverPourTest, levelsDoNotFallBelowNothing)
{
    FW_Dispenser believed = pouringMachine();
    believed.getCanisterById(11)->setCurrentQuantity(4);
    const FW_Dispenser real = pouringMachine();
    addSimulated(believed, 100, &real);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}})).retCode, 0);
    EXPECT_EQ(level(11), "0");
}

TEST_F(DriverPourTest, purgePrimingAndPackAreWaitedForAsWell)
{
    addSimulated(pouringMachine(), 100);
    EXPECT_EQ(call("EXEC_B", "PURGE", formula({{"A", 10}})).retCode, 0);
    EXPECT_EQ(level(11), "490");
    EXPECT_EQ(call("EXEC_B", "PRIMING", formula({{"B", 3}}, 2)).retCode, 0);
    EXPECT_EQ(reported("dispensed_formula"), "2 1200");
    EXPECT_EQ(level(12), "488");
    EXPECT_EQ(call("EXEC_B", "PACK", 0, formula({{"C", 1}}, 2)).retCode, 0);
    EXPECT_EQ(reported("dispensed_formula"), "3 0");
    EXPECT_EQ(level(13), "500");
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("tinting"));
}

TEST_F(DriverPourTest, circuitListsAreWaitedForAsWell)
{
    addSimulated(pouringMachine(), 100);
    XmlRpcValue circuits;
    circuits["exec_criterion"] = 1;
    circuits["target_circuits"].setSize(0);
    for (int i = 0; i < 2; ++i) {
        XmlRpcValue circuit;
        circuit["position_id"] = i + 1;
        circuit["queue_id"] = 0;
        circuit["speed"] = 50;
        circuit["strokes"] = 2;
        circuits["target_circuits"][i] = circuit;
    }
    EXPECT_EQ(call("EXEC_B", "PRIMING2", circuits).retCode, 0);
    EXPECT_EQ(reported("dispensed_formula"), "1 800, 2 800");
    EXPECT_EQ(level(11), "492");
    for (const char *name : {"PACK2", "AIRPURGE"}) {
        EXPECT_EQ(call("EXEC_B", name, circuits).retCode, 0) << name;
        EXPECT_EQ(reported("dispensed_formula"), "1 0, 2 0") << name;
    }
    EXPECT_EQ(level(11), "492");
}

TEST_F(DriverPourTest, aTint2IsATintUnderItsOwnCode)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 1000);
    EXPECT_EQ(call("EXEC_B", "TINT2", formula({{"A", 10}})).retCode, 0);
    ASSERT_EQ(firmware.received.size(), 1);
    EXPECT_EQ(firmware.received[0].first, QStringLiteral("0035"));
    // no queue; 500 of the canister are 50000 steps, in hundreds 500 = 8 + 2 * 246
    EXPECT_EQ(firmware.received[0].second, (QList<int>{2, 1, 6, 1, 0, 50, 0, 2, 16, 4, 2, 8, 2}));
    EXPECT_EQ(level(11), "490");
}

TEST_F(DriverPourTest, oneChannelOfADualMachine)
{
    FW_Dispenser machine = pouringMachine(2);
    machine.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    const WatchedFirmware &firmware = addSimulated(machine, 10);
    const Envelope envelope = call("EXEC_NB", "CHANNEL_TINT", 2, formula({{"A", 10}}));
    EXPECT_EQ(envelope.retCode, 0) << envelope.error();
    waitUntilItPours();
    const FormulaProgress running(
        call("EXEC_B", "GET_FORMULA_EXECUTION", formula({})).member("frm_progress"));
    ASSERT_EQ(running.formulaChannels().size(), 1);
    EXPECT_EQ(running.formulaChannels().constFirst()->channelID(), 2);
    EXPECT_EQ(end(envelope.text("ticket_id")).retCode, 0);
    EXPECT_EQ(firmware.received[0].second, (QList<int>{2, 1, 1, 2, 50, 2, 16, 4}));
}

TEST_F(DriverPourTest, aTurntablePoursInTheOrderInWhichItReachesTheCircuits)
{
    const WatchedFirmware &firmware = addSimulated(rotatingMachine(), 1000);
    // the table begins at its first position, 3, and 1 is nearer to it than 2
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"B", 1}, {"A", 1}})).retCode, 0);
    EXPECT_EQ(firmware.received[0].second, (QList<int>{0, 2, 1, 0, 50, 1, 100, 2, 0, 50, 1, 100}));
    // and it goes on from 2, where it stopped
    EXPECT_EQ(call("EXEC_B", "PURGE", formula({{"A", 1}, {"C", 1}, {"B", 1}})).retCode, 0);
    EXPECT_EQ(firmware.received[1].second.value(2), 2);
    EXPECT_EQ(firmware.received[1].second.value(7), 1);
    EXPECT_EQ(firmware.received[1].second.value(12), 3);
    EXPECT_EQ(level(11), "498");
    EXPECT_EQ(level(12), "498");
    EXPECT_EQ(level(13), "499");
}

TEST_F(DriverPourTest, theEstimateOfATurntableHoldsItsWay)
{
    addSimulated(rotatingMachine(), 10);
    XmlRpcValue asked;
    asked["command"] = arrayOf("TINT", formula({{"A", 10}, {"D", 10}}));
    // a second to 1, 6 s, two seconds to 4, 6 s; ten times faster
    EXPECT_EQ(call("EXEC_B", "GET_CMD_EST_EXEC_TIME", asked).number("exec_time"), 1500);
}

TEST_F(DriverPourTest, aPourCannotBeWaitedForAsAChange)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 1000);
    XmlRpcValue parameters;
    parameters["cmd_parameters"] = arrayOf(formula({{"A", 1}}));
    const Envelope envelope = call("EXEC_NC", "TINT", parameters, 100, 1000);
    EXPECT_EQ(envelope.retCode, 1);
    EXPECT_EQ(envelope.error(),
              "DE03115 A command that pours cannot wait for a change: it would pour again and again");
    EXPECT_TRUE(firmware.received.isEmpty());
}

TEST_F(DriverPourTest, waitingForATicketToEnd)
{
    addSimulated(pouringMachine(), 10);
    const std::string id = begin("TINT", formula({{"A", 10}}));
    waitUntilItPours();
    XmlRpcValue last;
    last["last_answer"] = call("EXEC_B", "GET_STATUS").answer;
    const Envelope changed = call("EXEC_NC", "GET_STATUS", last, 10, 20000);
    EXPECT_EQ(changed.retCode, 0);
    EXPECT_FALSE(changed.flag("tinting"));
    EXPECT_EQ(end(id).retCode, 0);
}

TEST_F(DriverPourTest, aFirmwareThatDoesNotTellWhatItPouredLeavesTheLevels)
{
    addScripted(std::make_unique<FW_Dispenser>(pouringMachine()), [](const QString &code) {
        if (code == QLatin1String("0006"))
            return FirmwareReply{false, IdleTokens};
        if (code == QLatin1String("0074"))
            return FirmwareReply{true, QStringLiteral("6 8 0 0 0 0 0").split(QLatin1Char(' '))};
        return FirmwareReply{false, QStringList{QStringLiteral("0")}};
    });
    const Envelope envelope = call("EXEC_B", "TINT", formula({{"A", 10}}));
    EXPECT_EQ(envelope.retCode, 0);
    EXPECT_EQ(
        envelope.error(),
        "DE03117 The firmware does not tell what it poured, so the levels are as they were: it refuses to");
    EXPECT_EQ(level(11), "500");
}

TEST_F(DriverPourTest, aReportThatCannotBeReadLeavesTheLevels)
{
    addScripted(std::make_unique<FW_Dispenser>(pouringMachine()), [](const QString &code) {
        if (code == QLatin1String("0006"))
            return FirmwareReply{false, IdleTokens};
        return FirmwareReply{false, QStringList{QStringLiteral("0")}};
    });
    const Envelope envelope = call("EXEC_B", "TINT", formula({{"A", 10}}));
    EXPECT_EQ(envelope.retCode, 0);
    EXPECT_EQ(envelope.error(),
              "DE03117 The firmware does not tell what it poured, so the levels are as they were: "
              "Error during dispensed formula serial answer decoding: bad answer received");
    EXPECT_EQ(level(11), "500");
}

TEST_F(DriverPourTest, aLinkThatStaysLostDuringAPourFreesTheMachine)
{
    int asked = 0;
    addScripted(
        std::make_unique<FW_Dispenser>(pouringMachine()),
        [&asked](const QString &code) {
            if (code == QLatin1String("0006"))
                throw std::runtime_error("no reply within 2 s");
            ++asked;
            return FirmwareReply{false, QStringList{QStringLiteral("0")}};
        },
        3000);
    for (int i = 1; i <= 2; ++i) {
        const Envelope envelope = call("EXEC_B", "TINT", formula({{"A", 10}}));
        EXPECT_EQ(envelope.retCode, 8);
        EXPECT_EQ(envelope.error(), "DE03110 no reply within 2 s");
        EXPECT_EQ(asked, i);
    }
}

TEST_F(DriverPourTest, theDriversEndInterruptsWhoWaitsForAPour)
{
    addSimulated(pouringMachine(), 1);
    auto waiting = std::async(std::launch::async, [&] {
        return call("EXEC_B", "TINT", formula({{"A", 100}}));
    });
    waitUntilItPours();
    m_driver->stop();
    ASSERT_EQ(waiting.wait_for(5s), std::future_status::ready);
    const Envelope envelope = waiting.get();
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.error(),
              "DE03116 The driver ends before the command has; the machine goes on by itself");
    EXPECT_EQ(envelope.info, QStringLiteral("TINT : Command has been interrupted!"));
}

TEST_F(DriverPourTest, aDriverGoesWithoutWaitingForAPour)
{
    addSimulated(pouringMachine(), 1);
    const std::string id = begin("TINT", formula({{"A", 100}}));
    waitUntilItPours();
    m_driver->stop();
    EXPECT_EQ(end(id).retCode, 7);
    EXPECT_EQ(ticket(id).number("status"), -3);
    begin("RESET", XmlRpcValue(0));
    const auto begun = std::chrono::steady_clock::now();
    m_driver.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 2s);
}

TEST_F(DriverPourTest, manyAskWhileOnePours)
{
    addSimulated(pouringMachine(4), 40);
    const std::string id = begin("TINT", formula({{"A", 20}, {"B", 20}, {"C", 10}, {"D", 10}}));
    std::atomic<bool> isOver{false};
    std::vector<std::thread> clients;
    for (int i = 0; i < 8; ++i)
        clients.emplace_back([&] {
            for (int n = 0; !isOver; ++n) {
                EXPECT_EQ(call("EXEC_B", "GET_STATUS").retCode, 0);
                EXPECT_EQ(ticket(id).retCode, 0);
                EXPECT_EQ(call("EXEC_B", "GET_DISPENSED_FORMULA", 1, 1).retCode, 0);
                EXPECT_EQ(call("EXEC_B", "GET_FORMULA_EXECUTION", formula({})).retCode, 0);
                EXPECT_EQ(call("EXEC_B", "CHECK_FORMULA_LEVELS", formula({{"A", 1}}), false).retCode, 0);
                EXPECT_EQ(call("EXEC_B", "SET_LEVELS", true, formula({{"A", 0}})).retCode, 0);
                if (n < 10) { // only so many may wait for their turn
                    EXPECT_EQ(call("EXEC_NB", "GET_STATUS").retCode, 0);
                }
            }
        });
    EXPECT_EQ(end(id).retCode, 0);
    isOver = true;
    for (std::thread &client : clients)
        client.join();
    EXPECT_EQ(level(11), "480");
    EXPECT_EQ(level(12), "480");
    EXPECT_EQ(level(13), "490");
    EXPECT_EQ(level(14), "490");
}

TEST_F(DriverPourTest, ofManyAtOnceOneMayPour)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 10);
    std::atomic<int> poured{0};
    std::vector<std::thread> clients;
    for (int i = 0; i < 8; ++i)
        clients.emplace_back([&] {
            const Envelope envelope = call("EXEC_B", "TINT", formula({{"A", 10}}));
            if (envelope.retCode == 0)
                ++poured;
            else
                EXPECT_EQ(envelope.retCode, 6) << envelope.error();
        });
    for (std::thread &client : clients)
        client.join();
    EXPECT_EQ(poured, 1);
    EXPECT_EQ(firmware.received.size(), 1);
    EXPECT_EQ(level(11), "490");
}

} // namespace
