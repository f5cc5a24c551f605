// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/sessions.h"

#include "firmware/simulatedfirmware.h"
#include "machines/drivenmachine.h"
#include "machines/refusal.h"

#include <QuvFramework/fw_mixer.h>

#include <gtest/gtest.h>

#include <QtCore/QSet>

namespace {

using namespace std::chrono_literals;
using quv::DrivenMachine;
using quv::Sessions;

/// "code text" of the refusal that \a work ends in; empty when it ends well.
template <class Work>
std::string refusalOf(Work work)
{
    try {
        work();
    } catch (const quv::CallRefusal &refusal) {
        const QList<FW_Error *> errors = refusal.errors.filterErrorTypes(1);
        const auto *error = dynamic_cast<const FW_DriverError *>(errors.value(0));
        return (error->code() + QLatin1Char(' ') + error->text()).toStdString();
    }
    return {};
}

/// 50 to the \a exponent modulo 59, step by step.
int power(int base, int exponent)
{
    int result = 1;
    for (int i = 0; i < exponent; ++i)
        result = result * base % 59;
    return result;
}

class SessionsTest : public testing::Test
{
protected:
    QString open() { return m_sessions.open(Session(), machine(1)); }
    DrivenMachine &machine(std::size_t number) { return number == 1 ? m_first : m_second; }
    /// The client's side of the exchange with the exponent 3: 50 to the 3 is 38 modulo 59.
    QString keyOf(const QString &id)
    {
        const int driverKey = m_sessions.exchangeKeys(id, QStringLiteral("38")).toInt();
        return QString::number(power(driverKey, 3));
    }
    bool isOpen(const QString &id)
    {
        return refusalOf([&] { m_sessions.machineOf(id); }).empty();
    }

    DrivenMachine m_first{std::make_unique<FW_Mixer>(), std::make_unique<quv::SimulatedFirmware>(FW_Mixer())};
    DrivenMachine m_second{std::make_unique<FW_Mixer>(),
                           std::make_unique<quv::SimulatedFirmware>(FW_Mixer())};
    Sessions::Clock::time_point m_now{};
    Sessions m_sessions{[this] { return m_now; }};
};

TEST_F(SessionsTest, anIDIsOfItsMachineAndOfNoOther)
{
    const QString first = open();
    const QString second = m_sessions.open(Session(), machine(2));
    EXPECT_EQ(&m_sessions.machineOf(first), &machine(1));
    EXPECT_EQ(&m_sessions.machineOf(second), &machine(2));
    EXPECT_EQ(refusalOf([&] { m_sessions.machineOf(QStringLiteral("12")); }),
              "DE03400 There is no session \"12\"; one ends by LOGOUT, or when it is unused for 30 minutes, "
              "for 5 before it "
              "is certified");
}

TEST_F(SessionsTest, idsAre128BitsAndEachAnother)
{
    QSet<QString> ids;
    for (int i = 0; i < 200; ++i) {
        const QString id = open();
        EXPECT_EQ(id.size(), 32);
        EXPECT_TRUE(QByteArray::fromHex(id.toLatin1()).toHex() == id.toLatin1()) << id.toStdString();
        ids.insert(id.left(16));
        ids.insert(id.right(16));
    }
    EXPECT_EQ(ids.size(), 400);
}

TEST_F(SessionsTest, logoutEndsOneSession)
{
    const QString first = open();
    const QString second = open();
    m_sessions.close(first);
    EXPECT_FALSE(isOpen(first));
    EXPECT_TRUE(isOpen(second));
    EXPECT_EQ(refusalOf([&] { m_sessions.close(first); }).substr(0, 7), "DE03400");
}

TEST_F(SessionsTest, bothSidesMakeTheSameKey)
{
    for (int i = 0; i < 50; ++i) {
        const QString id = open();
        EXPECT_TRUE(m_sessions.certify(id, keyOf(id)));
        EXPECT_TRUE(m_sessions.certify(id, keyOf(id))); // and again by a further exchange
    }
}

TEST_F(SessionsTest, aWrongKeyCertifiesNobodyAndIsTriedOnce)
{
    const QString id = open();
    EXPECT_EQ(refusalOf([&] { m_sessions.certify(id, QStringLiteral("1")); }),
              "DE03404 The session has no key; GET_KEY makes one");
    const QString key = keyOf(id);
    EXPECT_FALSE(m_sessions.certify(id, QString::number(key.toInt() + 59)));
    EXPECT_EQ(refusalOf([&] { m_sessions.certify(id, key); }).substr(0, 7), "DE03404");
    EXPECT_TRUE(m_sessions.certify(id, keyOf(id)));
}

TEST_F(SessionsTest, aPublicValueOfWhichNoKeyCanBeMade)
{
    const QString id = open();
    for (const char *value : {"0", "-5", "x"})
        EXPECT_EQ(refusalOf([&] { m_sessions.exchangeKeys(id, QLatin1String(value)); }),
                  "DE03405 The client key must be a number above 0")
            << value;
}

TEST_F(SessionsTest, aSessionEndsWhenItIsUnused)
{
    const QString id = open();
    m_now += 4min + 59s;
    EXPECT_TRUE(isOpen(id));
    m_now += 4min + 59s; // since it was used
    EXPECT_TRUE(isOpen(id));
    m_now += 5min;
    EXPECT_FALSE(isOpen(id));
}

TEST_F(SessionsTest, aCertifiedSessionLastsLonger)
{
    const QString id = open();
    EXPECT_TRUE(m_sessions.certify(id, keyOf(id)));
    m_now += 29min + 59s;
    EXPECT_TRUE(isOpen(id));
    m_now += 30min;
    EXPECT_FALSE(isOpen(id));

    const QString anew = open();
    EXPECT_TRUE(m_sessions.certify(anew, keyOf(anew)));
    keyOf(anew); // which nobody has shown
    m_now += 5min;
    EXPECT_FALSE(isOpen(anew));
}

TEST_F(SessionsTest, nobodyIsPushedOut)
{
    const QString first = open();
    EXPECT_TRUE(m_sessions.certify(first, keyOf(first)));
    for (int i = 1; i < 256; ++i)
        open();
    EXPECT_EQ(refusalOf([&] { open(); }), "DE03403 Too many sessions are open; try again when one has ended");
    EXPECT_TRUE(isOpen(first));
    m_sessions.close(first);
    const QString last = open();
    EXPECT_TRUE(isOpen(last));
    EXPECT_EQ(refusalOf([&] { open(); }).substr(0, 7), "DE03403");
    m_now += 5min;
    EXPECT_EQ(refusalOf([&] { open(); }), ""); // the others have ended
}

} // namespace
