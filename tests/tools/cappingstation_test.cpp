// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouringmachine.h"
#include "simulatedparts.h"

#include <gtest/gtest.h>

namespace {

FW_Dispenser stationMachine()
{
    FW_Dispenser machine = pouringMachine();
    machine.setModelName(QStringLiteral("Zandor"));
    return machine;
}

/// A station beside a dispenser. What differs from an idle machine is in masks 8 (bit 2: ready), 11 and 12.
class SimulatedStation : public testing::Test
{
protected:
    /// Masks 8, 11 and 12.
    std::string masks()
    {
        const QStringList tokens = QString::fromStdString(m_machine.ask("0006")).split(QLatin1Char(' '));
        return QStringList{tokens.value(10), tokens.value(13), tokens.value(14)}.join(' ').toStdString();
    }

    SimulatedParts m_machine{stationMachine()};

    static constexpr char AtHome[] = "4 0 8";
    static constexpr char WrongNumbers[] = "refused 6 20 0 0 0 0 0";
    static constexpr char IsBusy[] = "refused 6 0 8 0 0 0 0";
};

TEST_F(SimulatedStation, standsAtHome)
{
    EXPECT_EQ(masks(), AtHome);
    // the cleaner up, the drop catcher in; plates open, gripper up, loader withdrawn, plugs in stock; the extractor inside
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 55 4 0");
}

TEST_F(SimulatedStation, theWholeCycleClosesPlugsMixesAndOpens)
{
    EXPECT_EQ(m_machine.ask("0032", {2, 30, 0}), "0");
    EXPECT_EQ(masks(), "0 10 0"); // closing
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 54 4 0");
    m_machine.now += 2000;
    EXPECT_EQ(masks(), "0 60 0"); // plugging, the can centred
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 56 5 0");
    m_machine.now += 4000;
    EXPECT_EQ(masks(), "0 44 0"); // mixing
    m_machine.now += 29999;
    EXPECT_EQ(masks(), "0 44 0");
    m_machine.now += 1;
    EXPECT_EQ(masks(), "0 8 0"); // opening
    m_machine.now += 2000;
    EXPECT_EQ(masks(), AtHome);
}

TEST_F(SimulatedStation, cyclesDoPartsOfIt)
{
    EXPECT_EQ(m_machine.ask("0032", {3, 0, 0}), "0"); // mixes for its own time
    m_machine.now += 2000;
    EXPECT_EQ(masks(), "0 44 0");
    m_machine.now += 59999;
    EXPECT_EQ(masks(), "0 44 0");
    m_machine.now += 1;
    EXPECT_EQ(masks(), "0 8 0");
    m_machine.now += 2000;
    EXPECT_EQ(masks(), AtHome);

    EXPECT_EQ(m_machine.ask("0032", {4, 0, 0}), "0"); // plugs
    m_machine.now += 2000;
    EXPECT_EQ(masks(), "0 60 0");
    m_machine.now += 4000;
    EXPECT_EQ(masks(), "0 8 0");
    m_machine.now += 2000;
    EXPECT_EQ(masks(), AtHome);

    EXPECT_EQ(m_machine.ask("0032", {1, 0, 0}), "0"); // centres
    EXPECT_EQ(masks(), "0 10 0");
    m_machine.now += 2000;
    EXPECT_EQ(masks(), "4 40 0");
    EXPECT_EQ(m_machine.ask("0032", {0, 0, 0}), "0"); // goes home
    EXPECT_EQ(masks(), "0 8 0");
    m_machine.now += 4999;
    EXPECT_EQ(masks(), "0 8 0");
    m_machine.now += 1;
    EXPECT_EQ(masks(), AtHome);
}

TEST_F(SimulatedStation, plugsRunOutAndAreLoaded)
{
    const auto plug = [this] {
        EXPECT_EQ(m_machine.ask("0032", {4, 0, 0}), "0");
        m_machine.now += 8000;
    };
    for (int plugged = 0; plugged < 14; ++plugged)
        plug();
    EXPECT_EQ(masks(), AtHome); // six are left
    plug();
    EXPECT_EQ(masks(), "4 0 A"); // the reserve
    for (int plugged = 15; plugged < 20; ++plugged)
        plug();
    EXPECT_EQ(masks(), "4 0 A");
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 15 4 0"); // none in stock
    plug();
    EXPECT_EQ(masks(), "4 0 E"); // none was mounted
    EXPECT_EQ(m_machine.ask("0027", {3, 1, 0, 64, 245}), "0");
    m_machine.now += 2000;
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 65 4 0"); // loading, and plugs in stock
    EXPECT_EQ(masks(), "4 0 0");                             // the lack is forgotten
    EXPECT_EQ(m_machine.ask("0027", {3, 245, 0, 64, 245}), "0");
    m_machine.now += 2000;
    plug();
    EXPECT_EQ(masks(), AtHome);
}

TEST_F(SimulatedStation, actuatorsMoveOneByOne)
{
    // their sensors at work
    const std::pair<int, const char *> rows[] = {{1, "0 0 0 0 0 0 48 56 4 0"}, {2, "0 0 0 0 0 0 48 59 4 0"},
                                                 {3, "0 0 0 0 0 0 48 65 4 0"}, {4, "0 0 0 0 0 0 50 55 4 0"},
                                                 {5, "0 0 0 0 0 0 28 55 4 0"}, {6, "0 0 0 0 0 0 48 55 2 0"}};
    for (const auto &[actuator, sensors] : rows) {
        EXPECT_EQ(m_machine.ask("0027", {actuator, 1, 0, 64, 245, 2, 54, 1}), "0");
        EXPECT_EQ(m_machine.ask("0027", {actuator, 0, 0, 64, 245}), IsBusy);
        m_machine.now += 2000;
        EXPECT_EQ(m_machine.sensors(), sensors) << actuator;
        EXPECT_EQ(m_machine.ask("0027", {actuator, 0, 0, 64, 245}), "0");
        m_machine.now += 2000;
        EXPECT_EQ(masks(), AtHome) << actuator;
    }
}

TEST_F(SimulatedStation, proceduresTakeTenSeconds)
{
    EXPECT_EQ(m_machine.ask("0028", {100, 0}), "0");
    EXPECT_EQ(masks(), "0 4 0");
    m_machine.now += 9999;
    EXPECT_EQ(masks(), "0 4 0");
    m_machine.now += 1;
    EXPECT_EQ(masks(), AtHome);
    EXPECT_EQ(m_machine.ask("0028", {200, 2, 1, 7, 2, 54, 1}), "0");
}

TEST_F(SimulatedStation, stoppedItIsNotAtHomeUntilItHasGoneThere)
{
    m_machine.ask("0032", {4, 0, 0});
    m_machine.now += 1000;
    m_machine.stop();
    EXPECT_EQ(masks(), "4 0 0");
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 54 4 0"); // the plates neither open nor closed
    EXPECT_EQ(m_machine.ask("0001"), "0");
    m_machine.now += 6000;
    EXPECT_EQ(masks(), AtHome);
    EXPECT_EQ(m_machine.sensors(), "0 0 0 0 0 0 48 55 4 0");
}

TEST_F(SimulatedStation, tellsItsCommands)
{
    // of each the code in two digits, the number of its kinds, and these
    EXPECT_EQ(m_machine.ask("0037"), "1A 4 27 0 6 1 2 3 4 5 6 28 0 2 64 C8 32 0 5 0 1 2 3 4 37 0 0");
}

TEST_F(SimulatedStation, refusesWhatItCannotDo)
{
    for (const QList<int> &wrong : {QList<int>{}, {2, 0}, {5, 0, 0}, {2, 0, 0, 0}, {2, 246, 0}})
        EXPECT_EQ(m_machine.ask("0032", wrong), WrongNumbers);
    for (const QList<int> &wrong :
         {QList<int>{}, {0, 0, 0, 0, 0}, {7, 0, 0, 0, 0}, {1, 2, 0, 0, 0}, {1, 0, 0, 0}, {1, 0, 0, 0, 0, 1}})
        EXPECT_EQ(m_machine.ask("0027", wrong), WrongNumbers);
    for (const QList<int> &wrong : {QList<int>{}, {100}, {101, 0}, {100, 1}, {100, 0, 1}})
        EXPECT_EQ(m_machine.ask("0028", wrong), WrongNumbers);
    m_machine.ask("0032", {2, 30, 0});
    EXPECT_EQ(m_machine.ask("0032", {0, 0, 0}), IsBusy);
    EXPECT_EQ(m_machine.ask("0028", {100, 0}), IsBusy);
    EXPECT_EQ(m_machine.ask("0017", {1, 1, 1, 0, 50, 2, 16, 4}), IsBusy);
}

TEST(SimulatedStationLess, onlyMachinesOfTheLineHaveOne)
{
    SimulatedParts machine(pouringMachine());
    for (const char *code : {"0027", "0028", "0032", "0037"})
        EXPECT_EQ(machine.ask(code), "no such code");
    EXPECT_EQ(machine.ask("0006"), "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0");
    EXPECT_EQ(machine.sensors(), "0 0 0 0 0 0 0 0 0 0");
}

} // namespace
