// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/session.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Type = SerialDeviceType;

Session whole()
{
    return {17, MachineID(3, Type::Mixer), "till", 2, "41", "29", true};
}

void expectEmpty(const Session &session)
{
    EXPECT_EQ(session.number, 0);
    EXPECT_EQ(session.machine.id, 0);
    EXPECT_EQ(session.machine.type, Type::Dispenser);
    EXPECT_EQ(session.clientName, "");
    EXPECT_EQ(session.sessionKey, "");
    EXPECT_EQ(session.clientKey, "");
    EXPECT_FALSE(session.certified);
    EXPECT_EQ(session.clientLevel, 0);
}

TEST(Session, isEmptyAtFirstAndWhenCleared)
{
    expectEmpty(Session());
    Session session = whole();
    session.clear();
    expectEmpty(session);
}

TEST(Session, takesWhatALoginTells)
{
    const Session session(MachineID(3, Type::Mixer), "till", 2);
    EXPECT_EQ(session.machine, MachineID(3, Type::Mixer));
    EXPECT_EQ(session.clientName, "till");
    EXPECT_EQ(session.clientLevel, 2);
    EXPECT_EQ(session.number, 0);
    EXPECT_FALSE(session.certified);
}

TEST(Session, takesANumber)
{
    const Session session(17, MachineID(3, Type::Scale), "till", 2);
    EXPECT_EQ(session.number, 17);
    EXPECT_EQ(session.machine, MachineID(3, Type::Scale));
    EXPECT_EQ(session.clientName, "till");
    EXPECT_EQ(session.clientLevel, 2);
    EXPECT_EQ(session.sessionKey, "");
}

TEST(Session, takesKeysAndWhetherItIsCertified)
{
    const Session session = whole();
    EXPECT_EQ(session.number, 17);
    EXPECT_EQ(session.sessionKey, "41");
    EXPECT_EQ(session.clientKey, "29");
    EXPECT_TRUE(session.certified);
    EXPECT_EQ(session.clientLevel, 2);
}

TEST(Session, hasItsFieldsInOrder)
{
    const Session session;
    const auto at = [](const auto &field) { return reinterpret_cast<const char *>(&field); };
    EXPECT_EQ(at(session.number), at(session));
    const std::vector<const char *> places = {
        at(session.number),    at(session.machine),   at(session.clientName), at(session.sessionKey),
        at(session.clientKey), at(session.certified), at(session.clientLevel)};
    for (std::size_t i = 1; i < places.size(); ++i)
        EXPECT_LT(places[i - 1], places[i]) << i;
}

TEST(Session, differsInEachField)
{
    EXPECT_EQ(whole(), whole());
    std::vector<Session> others(7, whole());
    others[0].number = 18;
    others[1].machine.id = 4;
    others[2].clientName = "other";
    others[3].sessionKey = "42";
    others[4].clientKey = "30";
    others[5].certified = false;
    others[6].clientLevel = 3;
    for (const Session &other : others) {
        EXPECT_TRUE(whole() != other);
        EXPECT_FALSE(whole() == other);
    }
}

} // namespace
