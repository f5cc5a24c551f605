// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "pouringmachine.h"

#include <chrono>
#include <thread>

namespace {

using namespace std::chrono_literals;
using namespace quv::test;
using quv::FirmwareReply;

/// The simulated firmware, behind a link on which rows can be lost.
class RowsLostFirmware final : public quv::Firmware
{
public:
    explicit RowsLostFirmware(const FW_Machine &machine) : m_firmware(machine, 1000) {}

    FirmwareReply execute(const QString &code, int module, const QList<int> &parameters) override
    {
        if (losesRows && code == QStringLiteral("0066"))
            throw std::runtime_error("the firmware gives no reply");
        return m_firmware.execute(code, module, parameters);
    }
    double speed() const override { return m_firmware.speed(); }

    bool losesRows = false;

private:
    quv::SimulatedFirmware m_firmware;
};

/// A driver that writes the configuration of a machine which pours.
class DriverConfigurationTest : public DriverFixture
{
protected:
    static XmlRpcValue row(int code, const char *text)
    {
        XmlRpcValue value;
        value["cmd_value"] = code;
        value["cmd_parameters"] = text;
        return value;
    }
    Envelope write(int code, const char *text) { return call("EXEC_B", "WRITE_CONFIG_ROW", row(code, text)); }
    std::string read(int code, int id = 1)
    {
        const Envelope answer = call("EXEC_B", "READ_CONFIG_ROW", code, id);
        EXPECT_EQ(answer.retCode, 0) << answer.error();
        return answer.text("cmd_parameters");
    }
    void finalise()
    {
        const Envelope envelope = call("EXEC_B", "FINALIZE_CONFIG");
        EXPECT_EQ(envelope.retCode, 0) << envelope.error();
        EXPECT_EQ(envelope.error(), "");
    }
    /// Milliseconds that a tint of two circuits should take.
    int estimate()
    {
        XmlRpcValue asked;
        asked["command"] = arrayOf("TINT", formula({{"A", 10}, {"B", 10}}));
        return call("EXEC_B", "GET_CMD_EST_EXEC_TIME", asked).number("exec_time");
    }
};

TEST_F(DriverConfigurationTest, rowsTravelAsTextAndAsDigits)
{
    const WatchedFirmware &firmware = addSimulated(pouringMachine(), 1000);
    EXPECT_EQ(read(7), "0,60,10,40");
    EXPECT_EQ(write(7, "1,300,11,41").retCode, 0);
    EXPECT_EQ(firmware.received.last().first, QStringLiteral("0065"));
    EXPECT_EQ(firmware.received.last().second, (QList<int>{7, 4, 1, 1, 2, 54, 1, 1, 11, 1, 41}));
    EXPECT_EQ(read(7), "1,300,11,41");
    EXPECT_EQ(firmware.received.last().second, (QList<int>{7, 1}));
    EXPECT_EQ(read(5, 3).substr(0, 18), "1,13,10,3,1,0,0,0,");
    EXPECT_EQ(read(10, 3), "0,3,20,20,60,15");
}

TEST_F(DriverConfigurationTest, theStructuresAreListed)
{
    addSimulated(pouringMachine(), 1000);
    const Envelope list = call("EXEC_B", "GET_CONFIG_CMDS");
    EXPECT_EQ(list.number("version"), 2);
    const XmlRpcValue structures = list.member("command_codes");
    ASSERT_EQ(structures.size(), 23);
    int code = 0;
    int fields = 0;
    DecodeXmlRpcValue(*FindXmlRpcElement(structures, 4), "cmd_code", code);
    DecodeXmlRpcValue(*FindXmlRpcElement(structures, 4), "field_count", fields);
    EXPECT_EQ(code, 5);
    EXPECT_EQ(fields, 53);
}

TEST_F(DriverConfigurationTest, whatTheFirmwareRefuses)
{
    addSimulated(pouringMachine(), 1000);
    const Envelope longer = write(7, "1,300,11,41,1");
    EXPECT_EQ(longer.retCode, 4);
    EXPECT_EQ(longer.error(),
              "DE03106 The firmware refused the code 0065: Bad command parameters (masks 0x20 and 0x0)");
    EXPECT_EQ(write(7, "3,300,11,41").error(), "DE03106 The firmware refused the code 0065: One or more "
                                               "fields contain values out of range (masks 0x1 and 0x0)");
    EXPECT_EQ(call("EXEC_B", "READ_CONFIG_ROW", 12, 1).retCode, 4);
    EXPECT_EQ(call("EXEC_B", "WRITE_CONFIG_ROW", row(0, "")).retCode, 4); // a command without a row
}

TEST_F(DriverConfigurationTest, theDriverFollowsWhatWasFinalised)
{
    addSimulated(pouringMachine(1), 10);
    EXPECT_EQ(estimate(), 1200); // 6 s each, ten times faster
    EXPECT_EQ(write(3, "1,1,1,1,2,1,1,60").retCode, 0);
    EXPECT_EQ(estimate(), 1200); // not yet
    const auto begin = std::chrono::steady_clock::now();
    finalise();
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 299ms); // 3 s, ten times faster
    EXPECT_FALSE(call("EXEC_B", "GET_STATUS").flag("conf_writing"));
    EXPECT_EQ(estimate(), 600);
}

TEST_F(DriverConfigurationTest, aPourTakesAsLongAsIsEstimatedAfterwards)
{
    addSimulated(pouringMachine(1), 50);
    write(3, "1,1,1,1,2,1,1,60");
    finalise();
    ASSERT_EQ(estimate(), 120);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}, {"B", 10}})).retCode, 0);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 119ms);
    EXPECT_EQ(level(11), "490");
    EXPECT_EQ(level(12), "490");
}

TEST_F(DriverConfigurationTest, aCircuitKeepsItsStrokesAndCalibration)
{
    addSimulated(pouringMachine(), 1000);
    std::string text = read(5, 1);
    ASSERT_EQ(text.substr(0, 10), "1,11,10,1,");
    text.replace(0, 1, "2"); // disabled
    EXPECT_EQ(write(5, text.c_str()).retCode, 0);
    finalise();
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 1}})).retCode, 1); // no circuit pours it
    text.replace(0, 1, "1");
    EXPECT_EQ(write(5, text.c_str()).retCode, 0);
    finalise();
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 1}})).retCode, 0);
    EXPECT_EQ(level(11), "499");
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 2}}, 2)).retCode, 0); // strokes of 400 steps
    EXPECT_EQ(level(11), "491");
}

TEST_F(DriverConfigurationTest, aCircuitThatIsAbsentIsGoneWhenThatIsFinal)
{
    addSimulated(pouringMachine(), 1000);
    const XmlRpcValue ofBoth = formula({{"A", 1}, {"B", 1}});
    std::string text = read(5, 1);
    ASSERT_EQ(text.substr(0, 10), "1,11,10,1,");
    text.replace(0, 1, "0");
    EXPECT_EQ(write(5, text.c_str()).retCode, 0);
    EXPECT_EQ(call("EXEC_B", "GET_FORMULA_CIRCUITS", ofBoth).retCode, 0); // not yet
    finalise();
    const Envelope refused = call("EXEC_B", "GET_FORMULA_CIRCUITS", ofBoth);
    EXPECT_EQ(refused.retCode, 1);
    EXPECT_EQ(call("EXEC_B", "TINT", ofBoth).retCode, 1);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"B", 1}})).retCode, 0);
    EXPECT_EQ(level(12), "499");
    text.replace(0, 1, "1");
    EXPECT_EQ(write(5, text.c_str()).retCode, 0);
    finalise();
    EXPECT_EQ(call("EXEC_B", "GET_FORMULA_CIRCUITS", ofBoth).retCode, 0);
    EXPECT_EQ(level(11), "500"); // the canister kept what it holds
}

TEST_F(DriverConfigurationTest, aTicketTellsTheEnd)
{
    addSimulated(pouringMachine(1), 10);
    write(3, "1,1,1,1,2,1,1,60");
    const Envelope begun = call("EXEC_NB", "FINALIZE_CONFIG");
    ASSERT_EQ(begun.retCode, 0) << begun.error();
    const auto until = std::chrono::steady_clock::now() + 10s;
    while (!call("EXEC_B", "GET_STATUS").flag("conf_writing"))
        ASSERT_LT(std::chrono::steady_clock::now(), until);
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 1}})).error(),
              "DE03106 The firmware refused the code 0017: Machine not available (masks 0x0 and 0x8); "
              "the machine is writing its configuration");
    EXPECT_EQ(write(7, "1,300,11,41").retCode, 4);
    EXPECT_EQ(read(3).substr(0, 16), "1,1,1,1,2,1,1,60");
    const std::string id = begun.text("ticket_id");
    while (call("EXEC_B", "GET_CMD_STATUS", id).number("status") > 0) {
        ASSERT_LT(std::chrono::steady_clock::now(), until);
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_EQ(Envelope(call("EXEC_B", "GET_CMD_STATUS", id).member("cmd_answer")).retCode, 0);
    EXPECT_EQ(estimate(), 600);
}

TEST_F(DriverConfigurationTest, theEndOfTheDriverEndsTheWaiting)
{
    addSimulated(pouringMachine(), 0.1);
    std::thread stopper([this] {
        std::this_thread::sleep_for(100ms);
        m_driver->stop();
    });
    const Envelope envelope = call("EXEC_B", "FINALIZE_CONFIG");
    stopper.join();
    EXPECT_EQ(envelope.retCode, 7);
    EXPECT_EQ(envelope.error(),
              "DE03116 The driver ends before the command has; the machine goes on by itself");
}

TEST_F(DriverConfigurationTest, aFirmwareThatDoesNotTellItsRowsIsNotFollowed)
{
    addScripted(std::make_unique<FW_Dispenser>(pouringMachine(1)), [](const QString &code) {
        if (code == QStringLiteral("0066"))
            return FirmwareReply{true, QStringLiteral("6 8 0 0 0 0 0").split(QLatin1Char(' '))};
        return FirmwareReply{false,
                             code == QStringLiteral("0006") ? IdleTokens : QStringList{QStringLiteral("0")}};
    });
    EXPECT_EQ(write(3, "1,1,1,1,2,1,1,60").retCode, 0);
    const Envelope ended = call("EXEC_B", "FINALIZE_CONFIG");
    EXPECT_EQ(ended.retCode, 0);
    EXPECT_EQ(ended.error(), "DE03120 The driver's machine does not follow the configuration: @GMC: the "
                             "firmware does not tell it");
    EXPECT_EQ(estimate(), 12000);
}

TEST_F(DriverConfigurationTest, aRowThatIsLostOnTheWayIsReadTheNextTime)
{
    auto owned = std::make_unique<RowsLostFirmware>(pouringMachine(1));
    RowsLostFirmware &firmware = *owned;
    m_driver->addMachine(std::make_unique<FW_Dispenser>(pouringMachine(1)), std::move(owned));
    ASSERT_EQ(estimate(), 12);
    EXPECT_EQ(write(3, "1,1,1,1,2,1,1,60").retCode, 0);
    firmware.losesRows = true;
    const Envelope ended = call("EXEC_B", "FINALIZE_CONFIG");
    EXPECT_EQ(ended.retCode, 0);
    EXPECT_EQ(ended.error(), "DE03120 The driver's machine does not follow the configuration: @GMC: the "
                             "firmware gives no reply");
    EXPECT_EQ(estimate(), 12);
    firmware.losesRows = false;
    finalise();
    EXPECT_EQ(estimate(), 6);
}

TEST_F(DriverConfigurationTest, aMixerKeepsItsName)
{
    auto mixer = std::make_unique<FW_Mixer>();
    auto firmware = std::make_unique<quv::SimulatedFirmware>(*mixer);
    m_driver->addMachine(std::move(mixer), std::move(firmware));
    EXPECT_EQ(write(2, "1,Mill 4").retCode, 0);
    finalise();
    EXPECT_EQ(read(2), "1,Mill 4");
    EXPECT_EQ(call("EXEC_B", "READ_CONFIG_ROW", 3, 1).retCode, 4);
}

} // namespace
