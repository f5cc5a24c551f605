// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"

#include <QuvFramework/fw_mixer.h>

namespace {

using namespace quv::test;
using quv::FirmwareReply;

template <class Machine>
std::unique_ptr<Machine> withID(int id)
{
    auto machine = std::make_unique<Machine>();
    machine->setId(id);
    return machine;
}

/// Two dispensers and two mixers, of which each tells its number.
class DriverSessionsTest : public DriverFixture
{
protected:
    DriverSessionsTest()
    {
        for (const int id : {1, 2}) {
            m_dispensers.append(&addScripted(withID<FW_Dispenser>(id), [] {
                return FirmwareReply{false, IdleTokens};
            }));
            m_mixers.append(&addScripted(withID<FW_Mixer>(id), [] {
                return FirmwareReply{false, {QStringLiteral("0")}};
            }));
        }
    }

    std::string login(int id, int type)
    {
        const Envelope envelope = call("EXEC_B", "LOGIN", id, "client", 0, type);
        EXPECT_EQ(envelope.retCode, 0) << envelope.error();
        return envelope.text("session_id");
    }
    /// How often each firmware was asked: the dispensers, then the mixers.
    std::vector<int> asked() const
    {
        return {m_dispensers[0]->asked.size(), m_dispensers[1]->asked.size(), m_mixers[0]->asked.size(),
                m_mixers[1]->asked.size()};
    }

    QList<ScriptedFirmware *> m_dispensers{};
    QList<ScriptedFirmware *> m_mixers{};
};

using Counts = std::vector<int>;

TEST_F(DriverSessionsTest, withoutASessionTheFirstMachineOfAKindIsAsked)
{
    EXPECT_EQ(call("EXEC_B", "RESET").retCode, 0);
    EXPECT_EQ(asked(), (Counts{1, 0, 0, 0}));
    EXPECT_EQ(call("EXEC_B", "MIXER_PLATES", 1).retCode, 0); // both kinds have it, but what it moves
    EXPECT_EQ(asked(), (Counts{1, 0, 1, 0}));
    EXPECT_EQ(call("EXEC_B", "", "RESET").retCode, 0); // no session
    EXPECT_EQ(asked(), (Counts{2, 0, 1, 0}));
}

TEST_F(DriverSessionsTest, aRequestGoesToTheMachineOfItsSession)
{
    const std::string dispenser = login(2, 1);
    const std::string mixer = login(2, 4);
    EXPECT_EQ(call("EXEC_B", dispenser, "GET_STATUS").retCode, 0);
    EXPECT_EQ(asked(), (Counts{0, 1, 0, 0}));
    EXPECT_EQ(call("EXEC_B", mixer, "RESET").retCode, 0);
    EXPECT_EQ(call("EXEC_B", mixer, "STOP", 0, 0).retCode, 0);
    EXPECT_EQ(asked(), (Counts{0, 1, 0, 2}));
    EXPECT_EQ(call("EXEC_NC", dispenser, "GET_STATUS").retCode, 0);
    EXPECT_EQ(asked(), (Counts{0, 2, 0, 2}));
}

TEST_F(DriverSessionsTest, mixingIsNoPour)
{
    XmlRpcValue cycle;
    cycle["cycle_type"] = 1;
    cycle["mixing_speed"] = 100;
    cycle["clamping_force"] = 2;
    cycle["duration"] = 300;
    XmlRpcValue cycles;
    cycles["mixer_cycles"] = arrayOf(cycle);
    EXPECT_EQ(call("EXEC_B", "MIX", cycles).retCode, 0);
    EXPECT_EQ(m_mixers[0]->asked, QStringList{QStringLiteral("0031 0 8")});
    EXPECT_EQ(call("EXEC_B", "MIX", cycles).retCode, 0); // no claim has been left
    EXPECT_EQ(asked(), (Counts{0, 0, 2, 0}));
}

TEST_F(DriverSessionsTest, theVersionOfAMixersFirmware)
{
    auto mixer = std::make_unique<FW_Mixer>();
    mixer->setId(3);
    auto firmware = std::make_unique<quv::SimulatedFirmware>(*mixer);
    EXPECT_TRUE(m_driver->addMachine(std::move(mixer), std::move(firmware)));
    const Envelope version = call("EXEC_B", login(3, 4), "READ_FW_VERSION", 0);
    EXPECT_EQ(version.error(), "");
    EXPECT_TRUE(version.member("app_version") == arrayOf(100, 1, 1, 0, 0, 1));
}

TEST_F(DriverSessionsTest, whatIsForAnotherKindIsRefused)
{
    const std::string mixer = login(1, 4);
    const Envelope refused = call("EXEC_B", mixer, "GET_STATUS");
    EXPECT_EQ(refused.retCode, 5);
    EXPECT_EQ(refused.error(), "DE03402 GET_STATUS is not for a mixer, which is the machine of the session");
    EXPECT_EQ(call("EXEC_B", login(1, 1), "MIX").error(),
              "DE03402 MIX is not for a dispenser, which is the machine of the session");
    EXPECT_EQ(asked(), (Counts{0, 0, 0, 0}));
    EXPECT_EQ(call("EXEC_B", mixer, "SET_ACTIVE_DISP", 2, 1).retCode, 0); // for the driver itself
}

TEST_F(DriverSessionsTest, aLeadingTextThatIsNoSessionsIsRefused)
{
    const std::string session = login(1, 1);
    EXPECT_EQ(call("EXEC_B", "x", "GET_STATUS").error(),
              "DE03400 There is no session \"x\"; one ends by LOGOUT, or when it is unused for 30 minutes, "
              "for 5 before it "
              "is certified");
    EXPECT_EQ(call("EXEC_NB", session + " ", "RESET").retCode, 1);
    EXPECT_EQ(call("EXEC_B", session, "LOGOUT", session).retCode, 0);
    EXPECT_EQ(call("EXEC_B", session, "GET_STATUS").retCode, 1);
    EXPECT_EQ(call("EXEC_B", "GET_KEY", session, "50").retCode, 1);
    EXPECT_EQ(asked(), (Counts{0, 0, 0, 0}));
}

TEST_F(DriverSessionsTest, aLoginNamesAMachineThatThereIs)
{
    const Envelope envelope = call("EXEC_B", "LOGIN", 3, "client");
    EXPECT_EQ(envelope.retCode, 5);
    EXPECT_EQ(envelope.error(), "DE03401 The driver has no dispenser with the ID 3");
    EXPECT_EQ(call("EXEC_B", "LOGIN", 3, "client", 0, 4).error(),
              "DE03401 The driver has no mixer with the ID 3");
    EXPECT_EQ(call("EXEC_B", "LOGIN", 1, "client", 0, 2).error(),
              "DE03401 The driver has no scale with the ID 1");
    EXPECT_EQ(call("EXEC_B", "LOGIN", 1, "client", 0, 7).error(),
              "DE03401 The driver has no machine of the kind 7 with the ID 1");
}

/// "disp_id active" of each dispenser that the driver lists.
std::string listed(const Envelope &envelope)
{
    QStringList words;
    const XmlRpcValue list = envelope.member("disp_list");
    for (int i = 0; i < list.size(); ++i) {
        const XmlRpcValue &status = *FindXmlRpcElement(list, i);
        int id = 0;
        bool active = false;
        DecodeXmlRpcValue(*FindXmlRpcMember(status, "dispenser_info"), "disp_id", id);
        DecodeXmlRpcValue(status, "active", active);
        words.append(QStringLiteral("%1 %2").arg(id).arg(active));
    }
    return words.join(QStringLiteral(", ")).toStdString();
}

TEST_F(DriverSessionsTest, theActiveMachineIsToldAndChosen)
{
    EXPECT_EQ(listed(call("EXEC_B", "GET_ACTIVE_DISP")), "1 1, 2 0");
    EXPECT_EQ(call("EXEC_B", "GET_ACTIVE_DISP").member("mixer_list").size(), 2);
    EXPECT_EQ(call("EXEC_B", "SET_ACTIVE_DISP", 2, 1).retCode, 0);
    EXPECT_EQ(listed(call("EXEC_B", "GET_ACTIVE_DISP")), "1 0, 2 1");
    EXPECT_EQ(call("EXEC_B", "GET_STATUS").retCode, 0);
    EXPECT_EQ(asked(), (Counts{0, 1, 0, 0}));

    XmlRpcValue mixer;
    mixer["id"] = 2;
    mixer["machine"] = 4;
    EXPECT_EQ(call("EXEC_B", "SET_ACTIVE_MACHINE", mixer, mixer).retCode, 0);
    EXPECT_EQ(call("EXEC_B", "MIXER_PLATES", 1).retCode, 0);
    EXPECT_EQ(asked(), (Counts{0, 1, 0, 1}));
    EXPECT_EQ(call("EXEC_B", "SET_ACTIVE_DISP", 7, 1).error(),
              "DE03401 The driver has no dispenser with the ID 7");
    EXPECT_EQ(listed(call("EXEC_B", "GET_ACTIVE_DISP")), "1 0, 2 1");
}

TEST_F(DriverSessionsTest, theStatusOfAMachineStandsBesideWhatTheDriverDoes)
{
    const Envelope envelope = call("EXEC_B", login(2, 1), "GET_DISP_STATUS");
    EXPECT_EQ(envelope.error(), "");
    EXPECT_EQ(m_dispensers[1]->asked, QStringList{QStringLiteral("0006 0 0")});
    EXPECT_FALSE(envelope.flag("pos_available")); // it is not the active one
    EXPECT_TRUE(call("EXEC_B", "GET_DISP_STATUS").flag("pos_ready"));
    EXPECT_EQ(call("EXEC_B", "GET_MIXER_STATUS").retCode, 2); // its reply is no status
    EXPECT_EQ(m_mixers[0]->asked, QStringList{QStringLiteral("0033 0 0")});
}

TEST_F(DriverSessionsTest, aStatusThatTheFirmwareRefusesIsLeftOut)
{
    addScripted(withID<FW_Dispenser>(3), [] {
        return FirmwareReply{true, QStringLiteral("6 8 0 0 0 0 0").split(QLatin1Char(' '))};
    });
    const Envelope envelope = call("EXEC_B", login(3, 1), "GET_DISP_STATUS");
    EXPECT_EQ(envelope.retCode, 0);
    EXPECT_EQ(int(envelope.member("disp_status")), 0);
    EXPECT_FALSE(envelope.flag("pos_ready"));
}

} // namespace
