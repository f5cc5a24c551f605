// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "pouringmachine.h"

#include <atomic>
#include <cmath>
#include <future>
#include <random>
#include <thread>

namespace {

using namespace std::chrono_literals;
using namespace quv::test;
using quv::FirmwareReply;

/// The simulated firmware under a clock that stands still but when it is told to go. Who drives it takes it for a fast one, and so
/// asks it often.
class ClockedFirmware final : public quv::Firmware
{
public:
    explicit ClockedFirmware(const FW_Machine &machine)
        : m_firmware(machine, 1, [this] { return m_now.load(); })
    {}

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override
    {
        return m_firmware.execute(code, module, parameters);
    }
    double speed() const override { return 1000; }
    void canisterFilled(int canisterID, double quantity) override
    {
        m_firmware.canisterFilled(canisterID, quantity);
    }

    void advance(qint64 milliseconds) { m_now += milliseconds; }
    double content(int canister) const { return m_firmware.content(canister); }

private:
    std::atomic<qint64> m_now{1000};
    quv::SimulatedFirmware m_firmware;
};

/// A quantity of 0.5 in the first 100 steps, 9.5 in the next 900 and 15 in the 2000 after them.
FW_Dispenser bentMachine()
{
    FW_Dispenser machine = pouringMachine(2);
    for (int number = 1; number <= 4; ++number) {
        FW_Circuit circuit = *std::as_const(machine).getCircuitByPosition(number);
        circuit.setCalibration(FW_Calibration({{100, 0.5, 50, 0}, {1000, 10, 50, 0}, {3000, 25, 50, 0}}));
        machine.getCanisterById(10 + number)->circuits() = {circuit};
        machine.getCanisterById(10 + number)->setMaximumQuantity(20000);
        machine.getCanisterById(10 + number)->setCurrentQuantity(10000);
    }
    return machine;
}

double quantityOf(double steps)
{
    if (steps <= 100)
        return steps * 0.005;
    return steps <= 1000 ? 0.5 + (steps - 100) * 9.5 / 900 : 10 + (steps - 1000) * 0.0075;
}

class DriverStoppingTest : public DriverFixture
{
protected:
    /// \a real is what stands there, if it is not what the driver believes.
    ClockedFirmware &addClocked(const FW_Dispenser &machine, const FW_Dispenser *real = nullptr)
    {
        auto firmware = std::make_unique<ClockedFirmware>(real ? *real : machine);
        ClockedFirmware &added = *firmware;
        m_driver->addMachine(std::make_unique<FW_Dispenser>(machine), std::move(firmware));
        return added;
    }

    std::string begin(const char *name, const XmlRpcValue &argument)
    {
        const Envelope envelope = call("EXEC_NB", name, argument);
        EXPECT_EQ(envelope.retCode, 0) << envelope.error();
        return envelope.text("ticket_id");
    }
    template <class Condition>
    static void waitFor(Condition condition)
    {
        const auto until = std::chrono::steady_clock::now() + 20s;
        while (!condition()) {
            if (std::chrono::steady_clock::now() > until)
                throw std::logic_error("it never comes");
            std::this_thread::sleep_for(500us);
        }
    }
    void waitUntilItPours()
    {
        waitFor([this] { return call("EXEC_B", "GET_STATUS").flag("tinting"); });
    }
    /// The ticket's last state.
    Envelope end(const std::string &id)
    {
        waitFor([&] { return call("EXEC_B", "GET_CMD_STATUS", id).number("status") <= 0; });
        return call("EXEC_B", "GET_CMD_STATUS", id);
    }
    /// As the driver knows it, to the last digit.
    double levelOf(int canister)
    {
        constexpr double TooMuch = 1e6;
        XmlRpcValue more;
        more["formula_type"] = 3;
        more["quantity_unit"] = 3;
        more["ids"][0] = canister;
        more["quantities"][0] = TooMuch;
        const QString text = QString::fromStdString(call("EXEC_B", "SET_LEVELS", true, more).error());
        return text.section(QStringLiteral(" hold "), 1).section(QLatin1Char(';'), 0, 0).toDouble() - TooMuch;
    }
    /// Steps by position: poured, or in all.
    QMap<int, double> report(const char *key)
    {
        QMap<int, double> steps;
        const Formula told(call("EXEC_B", "GET_DISPENSED_FORMULA", 1, 1).member(key));
        for (const FormulaItem &item : told.items())
            steps[item.id.toInt()] = item.quantity;
        return steps;
    }
};

TEST_F(DriverStoppingTest, theBooksAddUpAfterStopsAtAnyMoment)
{
    ClockedFirmware &firmware = addClocked(bentMachine());
    std::mt19937 random(20260513); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    const auto upTo = [&random](int most) { return std::uniform_int_distribution<int>(1, most)(random); };
    QMap<int, double> before{{11, 10000}, {12, 10000}, {13, 10000}, {14, 10000}};
    int stopped = 0;
    for (int i = 0; i < 200; ++i) {
        const std::string id =
            begin("TINT", formula({{"A", upTo(20)}, {"B", upTo(20)}, {"C", upTo(20)}, {"D", upTo(20)}}));
        waitUntilItPours();
        firmware.advance(upTo(25000));
        EXPECT_EQ(call("EXEC_B", i % 5 == 4 ? "RESET" : "STOP").retCode, 0);
        firmware.advance(6000); // a reset
        const Envelope ended = end(id);

        const QMap<int, double> poured = report("dispensed_formula");
        const bool isWhole = poured == report("total_formula");
        EXPECT_EQ(ended.number("status"), isWhole ? 0 : -3) << i;
        EXPECT_EQ(Envelope(ended.member("cmd_answer")).retCode, isWhole ? 0 : 7) << i;
        stopped += isWhole ? 0 : 1;
        ASSERT_EQ(poured.size(), 4);
        for (int position = 1; position <= 4; ++position) {
            double &content = before[10 + position];
            content -= quantityOf(poured[position]);
            EXPECT_NEAR(firmware.content(10 + position), content, 1e-6) << i;
            EXPECT_NEAR(levelOf(10 + position), content, 1e-6) << i;
        }
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(stopped, 100);
    EXPECT_LT(stopped, 200);
}

TEST_F(DriverStoppingTest, aStoppedPourTellsWhoWaitsForIt)
{
    ClockedFirmware &firmware = addClocked(pouringMachine());
    auto waiting = std::async(std::launch::async, [&] {
        return call("EXEC_B", "TINT", formula({{"A", 10}, {"B", 10}}));
    });
    waitUntilItPours();
    firmware.advance(2400);
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
    const Envelope envelope = waiting.get();
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.info, QStringLiteral("TINT : Command has been interrupted!"));
    EXPECT_EQ(envelope.error(), "DE03411 TINT was stopped; the levels are lowered by what was poured|"
                                "DE03142 Less was poured than asked: \"A\" 4 of 10, in steps 400 of 1000|"
                                "DE03142 Less was poured than asked: \"B\" 0 of 10, in steps 0 of 1000");
    EXPECT_EQ(int(envelope.answer), 0);
    EXPECT_EQ(level(11), "496");
    EXPECT_EQ(level(12), "500");
    EXPECT_TRUE(call("EXEC_B", "GET_STATUS").flag("formula_interrupted"));
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("tinting"));
    EXPECT_TRUE(call("EXEC_B", "GET_STATUS").flag("head1_can_dose"));

    const std::string next = begin("TINT", formula({{"B", 1}}));
    waitUntilItPours();
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("formula_interrupted"));
    firmware.advance(600);
    EXPECT_EQ(end(next).number("status"), 0);
}

TEST_F(DriverStoppingTest, whoeverStopsItAtTheMachineEndsThePourAsWell)
{
    // the machine says so by itself
    bool isInterrupted = false;
    addScripted(std::make_unique<FW_Dispenser>(pouringMachine()), [&isInterrupted](const QString &code) {
        const char *reply = "0";
        if (code == QLatin1String("0017"))
            isInterrupted = true;
        if (code == QLatin1String("0006"))
            reply = isInterrupted ? "E 0 1 0 0 0 0 10 F5 F5 4 0 0 0 0" : "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
        if (code == QLatin1String("0074")) // 1000 and 1000 steps
            reply = "A 1 1 1 0 2 10 4 2 10 4";
        return FirmwareReply{false, QString::fromLatin1(reply).split(QLatin1Char(' '))};
    });
    const Envelope envelope = call("EXEC_B", "TINT", formula({{"A", 10}}));
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.error(), "DE03411 TINT was stopped; the levels are lowered by what was poured");
    EXPECT_EQ(level(11), "490");
}

TEST_F(DriverStoppingTest, aStopThatSparesTheFirmwareLetsItPourOn)
{
    ClockedFirmware &firmware = addClocked(pouringMachine());
    const std::string id = begin("TINT", formula({{"A", 10}}));
    waitUntilItPours();
    EXPECT_EQ(call("EXEC_B", "STOP", 0, 1).retCode, 0);
    EXPECT_TRUE(call("EXEC_B", "GET_STATUS").flag("tinting"));
    firmware.advance(6000);
    EXPECT_EQ(end(id).number("status"), 0);
    EXPECT_EQ(level(11), "490");
}

TEST_F(DriverStoppingTest, aPourThatGivesLessIsNotStoppedByAStopThatSparesTheFirmware)
{
    FW_Dispenser nearlyEmpty = pouringMachine();
    nearlyEmpty.getCanisterById(11)->setCurrentQuantity(4);
    ClockedFirmware &firmware = addClocked(pouringMachine(), &nearlyEmpty);
    const std::string id = begin("TINT", formula({{"A", 10}}));
    waitUntilItPours();
    EXPECT_EQ(call("EXEC_B", "STOP", 0, 1).retCode, 0);
    firmware.advance(6000);
    const Envelope ended = end(id);
    EXPECT_EQ(ended.number("status"), 0);
    EXPECT_EQ(Envelope(ended.member("cmd_answer")).error(),
              "DE03142 Less was poured than asked: \"A\" 4 of 10, in steps 400 of 1000");
    EXPECT_EQ(level(11), "496");
}

TEST_F(DriverStoppingTest, aResetThatIsHandedThroughEndsAPour)
{
    ClockedFirmware &firmware = addClocked(pouringMachine());
    const std::string id = begin("TINT", formula({{"A", 10}}));
    waitUntilItPours();
    firmware.advance(2400);
    EXPECT_EQ(call("EXEC_B", "DEEP_SERVICE", 0, 0, "0001", arrayOf()).error(), "");
    const Envelope ended = end(id);
    EXPECT_EQ(ended.number("status"), -3);
    EXPECT_EQ(Envelope(ended.member("cmd_answer")).error(),
              "DE03411 TINT was stopped; the levels are lowered by what was poured|"
              "DE03142 Less was poured than asked: \"A\" 4 of 10, in steps 400 of 1000");
    EXPECT_EQ(level(11), "496");
}

TEST_F(DriverStoppingTest, stoppingAgainAndStoppingNothingIsNoMistake)
{
    addClocked(pouringMachine());
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("formula_interrupted"));
    const std::string id = begin("PURGE", formula({{"A", 10}}));
    waitUntilItPours();
    EXPECT_EQ(call("EXEC_B", "STOP", 3, 2).retCode, 0);
    EXPECT_EQ(call("EXEC_B", "STOP").retCode, 0);
    EXPECT_EQ(end(id).number("status"), -3);
    EXPECT_EQ(level(11), "500");
    EXPECT_EQ(call("EXEC_B", "STOP", 4).retCode, 1);
}

} // namespace
