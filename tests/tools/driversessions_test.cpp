// SPDX-License-Identifier: LGPL-3.0-or-later
#include "drivercalls.h"
#include "pouringmachine.h"

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
    const std::string there = "; it has dispenser:1, mixer:1, dispenser:2, mixer:2";
    const Envelope envelope = call("EXEC_B", "LOGIN", 3, "client");
    EXPECT_EQ(envelope.retCode, 5);
    EXPECT_EQ(envelope.error(), "DE03401 The driver has no dispenser with the ID 3" + there);
    EXPECT_EQ(call("EXEC_B", "LOGIN", 3, "client", 0, 4).error(),
              "DE03401 The driver has no mixer with the ID 3" + there);
    EXPECT_EQ(call("EXEC_B", "LOGIN", 1, "client", 0, 2).error(),
              "DE03401 The driver has no scale with the ID 1" + there);
    EXPECT_EQ(call("EXEC_B", "LOGIN", 1, "client", 0, 7).error(),
              "DE03401 The driver has no machine of the kind 7 with the ID 1" + there);
}

TEST_F(DriverSessionsTest, aDriverWithoutMachinesSaysSo)
{
    m_driver = std::make_unique<quv::Driver>();
    EXPECT_EQ(call("EXEC_B", "LOGIN", 1, "client").error(),
              "DE03401 The driver has no dispenser with the ID 1; it has none at all");
}

TEST_F(DriverSessionsTest, aCommandThatThereIsNotIsNamedBehindItsSession)
{
    const std::string session = login(1, 1);
    const Envelope unknown = call("EXEC_B", session, "NOSUCH", 5);
    EXPECT_EQ(unknown.retCode, 1);
    ASSERT_EQ(unknown.failures.size(), 2);
    EXPECT_EQ(unknown.failures[1], QStringLiteral("DE03103 The catalogue has no command \"NOSUCH\""));
    EXPECT_EQ(unknown.error().find(session), std::string::npos);
    EXPECT_EQ(call("EXEC_NB", session, 5).error(),
              "DE03102 The command name must be a text, not the integer 5");
    EXPECT_EQ(call("EXEC_NC", session).error(), "DE03101 The request holds no command name");
    // what is no session's may be a command with its first argument
    EXPECT_EQ(call("EXEC_B", "NOSUCH", session).failures.value(1),
              QStringLiteral("DE03103 The catalogue has no command \"NOSUCH\""));
    EXPECT_EQ(asked(), (Counts{0, 0, 0, 0}));
}

XmlRpcValue timeOf(const XmlRpcValue &command)
{
    XmlRpcValue asked;
    asked["command"] = command;
    return asked;
}

TEST_F(DriverSessionsTest, aTimeIsThatOfTheMachineToWhichTheCommandWouldGo)
{
    addSimulated(*withID<FW_Dispenser>(3), 4);
    const XmlRpcValue shelf = timeOf(arrayOf("SHELF_MOVE", 1, 0)); // 5 s
    EXPECT_EQ(call("EXEC_B", login(3, 1), "GET_CMD_EST_EXEC_TIME", shelf).number("exec_time"), 1250);
    EXPECT_EQ(call("EXEC_B", "GET_CMD_EST_EXEC_TIME", shelf).number("exec_time"), 5000);
    const XmlRpcValue tint = timeOf(arrayOf("TINT", formula({{"A", 10}})));
    const Envelope refused = call("EXEC_B", login(1, 4), "GET_CMD_EST_EXEC_TIME", tint);
    EXPECT_EQ(refused.retCode, 5);
    EXPECT_EQ(refused.error(), "DE03402 TINT is not for a mixer, which is the machine of the session");
    EXPECT_EQ(call("EXEC_B", login(1, 1), "GET_CMD_EST_EXEC_TIME", timeOf(arrayOf("MIXER_STATUS"))).error(),
              "DE03402 MIXER_STATUS is not for a dispenser, which is the machine of the session");
    EXPECT_EQ(call("EXEC_B", "GET_CMD_EST_EXEC_TIME", timeOf(arrayOf("MIXER_STATUS"))).error(), "");
    EXPECT_EQ(asked(), (Counts{0, 0, 0, 0}));

    m_driver = std::make_unique<quv::Driver>();
    addMixer({QStringLiteral("0")});
    EXPECT_EQ(call("EXEC_B", "GET_CMD_EST_EXEC_TIME", tint).error(),
              "DE03104 This driver has no machine that carries out this command");
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
              "DE03401 The driver has no dispenser with the ID 7; it has dispenser:1, mixer:1, dispenser:2, "
              "mixer:2");
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

/// A driver that has asked a firmware of this version what it can do.
class DriverVersionTest : public DriverFixture
{
protected:
    /// Its commands are those of \a table, or of the simulated machine.
    WatchedFirmware &addVersion(const FW_Version &version, const char *table = nullptr)
    {
        const FW_Dispenser machine = pouringMachine();
        const quv::Abilities::Ask ask = [&](const QString &code, const QList<int> &parameters) {
            if (code == QLatin1String("000F"))
                return FirmwareReply{false, tokens({version.m_family, version.m_hardware, version.m_major,
                                                    version.m_minor, version.m_patch, version.m_revision})};
            if (table)
                return FirmwareReply{false, QString::fromLatin1(table).split(QLatin1Char(' '))};
            return quv::SimulatedFirmware(machine).execute(code, 0, parameters);
        };
        auto firmware = std::make_unique<WatchedFirmware>(machine, 10000);
        WatchedFirmware &added = *firmware;
        m_driver->addMachine(std::make_unique<FW_Dispenser>(machine), std::move(firmware),
                             quv::Abilities(machine, ask));
        return added;
    }
    static QStringList tokens(const QList<int> &numbers)
    {
        QStringList tokens{QString::number(numbers.size(), 16)};
        for (const int number : numbers)
            tokens.append(QString::number(number, 16));
        return tokens;
    }
};

TEST_F(DriverVersionTest, anOldFirmwareIsNotAskedForWhatItDoesNotHave)
{
    const WatchedFirmware &firmware = addVersion({63, 1, 1, 0, 0, 32});
    const Envelope refused = call("EXEC_B", "PRIMING2", arrayOf());
    EXPECT_EQ(refused.retCode, 1); // what is wrong with the command itself comes first
    const Envelope active = call("EXEC_B", "SW_PROCESS_TOGGLE", 1, 1);
    EXPECT_EQ(active.retCode, 3);
    EXPECT_EQ(active.error(), "DE03406 The machine's firmware has the version 63.1.1.0.0.32, which does not "
                              "have SW_PROCESS_TOGGLE");
    EXPECT_TRUE(firmware.received.isEmpty());
}

TEST_F(DriverVersionTest, whatTheFirmwareDoesNotListIsNotAskedOfIt)
{
    // two commands: 0006, and 0017 that cannot be executed
    const WatchedFirmware &firmware = addVersion({63, 1, 1, 0, 0, 41}, "9 2 6 0 1 1 17 0 2 0");
    EXPECT_EQ(call("EXEC_B", "GET_STATUS").retCode, 0);
    const Envelope unlisted = call("EXEC_B", "RESET");
    EXPECT_EQ(unlisted.retCode, 3);
    EXPECT_EQ(unlisted.error(), "DE03407 The machine's firmware does not list RESET among its commands");
    EXPECT_EQ(call("EXEC_NB", "TINT", formula({{"A", 10}})).error(),
              "DE03407 The machine's firmware does not list TINT among its commands");
    EXPECT_TRUE(firmware.received.isEmpty());
}

TEST_F(DriverVersionTest, aTintGoesOutByTheLaterCodeOnAFirmwareThatHasIt)
{
    const WatchedFirmware &firmware = addVersion({63, 1, 1, 0, 0, 41});
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}})).error(), "");
    ASSERT_EQ(firmware.received.size(), 1);
    EXPECT_EQ(firmware.received[0].first, QStringLiteral("0035"));
    // criterion 2, one circuit of six fields: position 1, no queue, speed 50, no nozzle valve, steps 1000, no level steps
    EXPECT_EQ(firmware.received[0].second.mid(0, 3), (QList<int>{2, 1, 6}));
    EXPECT_EQ(level(11), "490");
    EXPECT_EQ(call("EXEC_B", "PURGE", formula({{"A", 10}})).error(), "");
    EXPECT_EQ(firmware.received.constLast().first, QStringLiteral("0035"));
    EXPECT_EQ(firmware.received.constLast().second.at(0), 66); // the criterion 2 and the mark of a purge
    EXPECT_EQ(level(11), "480");
}

TEST_F(DriverVersionTest, aTintStaysATintOnAFirmwareWithoutTheLaterCode)
{
    const WatchedFirmware &firmware = addVersion({63, 1, 1, 0, 0, 40});
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}})).error(), "");
    EXPECT_EQ(firmware.received[0].first, QStringLiteral("0017"));
}

TEST_F(DriverVersionTest, aTintStaysATintWhenTheLaterCodeIsNotListed)
{
    // 0006, 0017 and 0074
    const WatchedFirmware &firmware = addVersion({63, 1, 1, 0, 0, 41}, "D 3 6 0 1 1 17 0 2 1 74 0 1 1");
    EXPECT_EQ(call("EXEC_B", "TINT", formula({{"A", 10}})).error(), "");
    EXPECT_EQ(firmware.received[0].first, QStringLiteral("0017"));
}

} // namespace
