// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/scenario.h"

#include "machinefile.h"
#include "pouringmachine.h"

#include <QuvFramework/fw_mixer.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <stdexcept>

namespace {

using quv::FaultKind;
using quv::FaultSpan;
using quv::Scenario;

class ScenarioTest : public testing::Test
{
protected:
    Scenario scenario(const QByteArray &text)
    {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        return Scenario(m_path);
    }
    /// Why an event is refused on the machine, without the path.
    std::string refusal(const QByteArray &event, const FW_Machine &machine = machineWithSensor())
    {
        return refusalOf(QByteArrayLiteral("{\"events\":[{\"event\":\"offline\",\"at\":1},") + event + "]}",
                         machine);
    }
    std::string refusalOf(const QByteArray &text, const FW_Machine &machine = machineWithSensor())
    {
        try {
            Scenario read = scenario(text);
            read.faultsOfNext(machine);
            read.checkMachines();
        } catch (const std::runtime_error &error) {
            const std::string path = m_path.left(40).toStdString() + (m_path.size() > 40 ? "..." : "");
            const std::string head = "Scenario \"" + path + "\": ";
            const std::string told = error.what();
            EXPECT_EQ(told.substr(0, head.size()), head);
            return told.substr(std::min(head.size(), told.size()));
        }
        return "not refused";
    }
    static FW_Dispenser machineWithSensor()
    {
        FW_Dispenser machine = pouringMachine();
        machine.getCanisterById(12)->setCanisterLevelSensor(1);
        return machine;
    }

    QTemporaryDir m_folder{};
    const QString m_path = m_folder.filePath(QStringLiteral("a.json"));
};

void expectSpan(const FaultSpan &span, FaultKind fault, int number, double begin, std::optional<double> end)
{
    EXPECT_EQ(span.fault, fault);
    EXPECT_EQ(span.number, number);
    EXPECT_EQ(span.begin, begin);
    EXPECT_EQ(span.end, end);
}

TEST_F(ScenarioTest, eachKindOfEventIsRead)
{
    Scenario read = scenario(R"({"events": [
        {"at": 3, "event": "door_open", "for": 2.5},
        {"at": 0, "event": "emergency"},
        {"at": 0.25, "event": "offline"},
        {"at": 1, "event": "can_present"},
        {"at": 1000000, "event": "link_lost", "for": 10},
        {"at": 2, "event": "circuit_blocked", "circuit": 4},
        {"at": 2, "event": "sensor_lies", "canister": 12},
        {"at": 2, "event": "board_refuses", "board": 255}]})");
    const std::vector<FaultSpan> faults = read.faultsOfNext(machineWithSensor());
    ASSERT_EQ(faults.size(), 8U);
    expectSpan(faults[0], FaultKind::DoorOpen, 0, 3000, 5500);
    expectSpan(faults[1], FaultKind::Emergency, 0, 0, std::nullopt);
    expectSpan(faults[2], FaultKind::Offline, 0, 250, std::nullopt);
    expectSpan(faults[3], FaultKind::CanPresent, 0, 1000, std::nullopt);
    expectSpan(faults[4], FaultKind::LinkLost, 0, 1000000000, 1000010000);
    expectSpan(faults[5], FaultKind::CircuitBlocked, 4, 2000, std::nullopt);
    expectSpan(faults[6], FaultKind::SensorLies, 12, 2000, std::nullopt);
    expectSpan(faults[7], FaultKind::BoardRefuses, 255, 2000, std::nullopt);
    read.checkMachines();
}

TEST_F(ScenarioTest, eventsGoToTheMachineThatTheyName)
{
    Scenario read = scenario(R"({"events": [
        {"at": 1, "event": "offline"},
        {"at": 2, "event": "offline", "machine": "dispenser"},
        {"at": 3, "event": "offline", "machine": "dispenser:2"},
        {"at": 4, "event": "offline", "machine": "mixer:7"},
        {"at": 5, "event": "offline", "machine": "dispenser:4"}]})");
    const auto begins = [&read](const FW_Machine &machine) {
        QList<double> times;
        for (const FaultSpan &span : read.faultsOfNext(machine))
            times.append(span.begin);
        return times;
    };
    FW_Mixer mixer;
    mixer.setId(7);
    FW_Dispenser dispenser = pouringMachine();
    dispenser.setId(4);
    EXPECT_EQ(begins(mixer), (QList<double>{1000, 4000})); // the first of all
    EXPECT_EQ(begins(dispenser), (QList<double>{2000, 5000}));
    EXPECT_THROW(read.checkMachines(), std::runtime_error);
    dispenser.setId(2);
    EXPECT_EQ(begins(dispenser), QList<double>{3000});
    read.checkMachines();
}

TEST_F(ScenarioTest, refusalsNameThePlace)
{
    const std::pair<const char *, const char *> cases[] = {
        {"1", "events[1]: must be an object"},
        {R"({"event":"offline"})", "events[1].at: is missing"},
        {R"({"at":1})", "events[1].event: is missing"},
        {R"({"event":7,"at":1})", "events[1].event: must be a text"},
        {R"({"event":"fire","at":1})", "events[1].event: must be one of emergency, offline, door_open, "
                                       "can_present, link_lost, circuit_blocked, "
                                       "sensor_lies, board_refuses"},
        {R"({"event":"offline","at":-0.1})", "events[1].at: must be a number of seconds from 0 to 1000000"},
        {R"({"event":"offline","at":"1"})", "events[1].at: must be a number of seconds from 0 to 1000000"},
        {R"({"event":"offline","at":1000000.1})",
         "events[1].at: must be a number of seconds from 0 to 1000000"},
        {R"({"event":"offline","at":1,"for":0})",
         "events[1].for: must be a number of seconds from 0.001 to 1000000"},
        {R"({"event":"offline","at":1,"circuit":1})", "events[1].circuit: unknown member"},
        {R"({"event":"circuit_blocked","at":1})", "events[1].circuit: is missing"},
        {R"({"event":"circuit_blocked","at":1,"circuit":0})",
         "events[1].circuit: must be an integer from 1 to 245"},
        {R"({"event":"circuit_blocked","at":1,"circuit":1.0})",
         "events[1].circuit: must be an integer from 1 to 245"},
        {R"({"event":"circuit_blocked","at":1,"circuit":5})",
         "events[1].circuit: the machine has no circuit at position 5"},
        {R"({"event":"sensor_lies","at":1,"canister":11})",
         "events[1].canister: the machine has no canister 11 with a level sensor"},
        {R"({"event":"board_refuses","at":1,"board":256})",
         "events[1].board: must be an integer from 1 to 255"},
        {R"({"event":"offline","at":1,"machine":"scale"})",
         "events[1].machine: must be \"dispenser\", \"mixer\", or one of them with its ID as "
         "\"dispenser:2\""},
        {R"({"event":"offline","at":1,"machine":"mixer"})",
         "events[1].machine: the driver has no such machine"},
        {R"({"event":"offline","at":1,"machine":"dispenser:2"})",
         "events[1].machine: the driver has no such machine"},
        {R"({"event":"offline","at":1})", "not refused"},
    };
    for (const auto &[event, text] : cases)
        EXPECT_EQ(refusal(event), text) << event;
    EXPECT_EQ(refusal(R"({"event":"circuit_blocked","at":1,"circuit":1})", FW_Mixer()),
              "events[1].circuit: the machine has no circuit at position 1");
    for (const char *text : {"[]", "{}", R"({"events":{}})", R"({"events":[],"name":"a"})"})
        EXPECT_EQ(refusalOf(text), "it must hold an object with the one member \"events\", an array") << text;
    EXPECT_EQ(refusalOf(QByteArray(1024 * 1024 + 1, ' ')), "it is greater than 1 MiB");
    EXPECT_EQ(refusalOf(R"({"events":[]})"), "not refused");
    EXPECT_THROW(Scenario(m_folder.filePath(QStringLiteral("none.json"))), std::runtime_error);
}

std::string standingRefusal(const char *faults)
{
    try {
        quv::standingFaults(nlohmann::json::parse(faults), pouringMachine());
    } catch (const std::runtime_error &error) {
        return error.what();
    }
    return "not refused";
}

TEST_F(ScenarioTest, theFaultsOfAMachineFileStand)
{
    const nlohmann::json faults =
        quv::readDescribedMachine(
            R"({"type":"dispenser","faults":[{"event":"circuit_blocked","circuit":2},{"event":"can_present"}]})")
            .faults;
    const std::vector<FaultSpan> read = quv::standingFaults(faults, pouringMachine());
    ASSERT_EQ(read.size(), 2U);
    expectSpan(read[0], FaultKind::CircuitBlocked, 2, 0, std::nullopt);
    expectSpan(read[1], FaultKind::CanPresent, 0, 0, std::nullopt);
    EXPECT_EQ(standingRefusal(R"([{"event":"offline"},{"event":"offline","at":0}])"),
              "faults[1].at: unknown member");
    EXPECT_EQ(standingRefusal(R"([{"event":"circuit_blocked","circuit":9}])"),
              "faults[0].circuit: the machine has no circuit at position 9");
    EXPECT_TRUE(quv::readDescribedMachine(R"({"type":"mixer"})").faults.empty());
}

} // namespace
