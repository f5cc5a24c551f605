// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/getkeycmd.h"

#include "base/describedcommand_p.h"
#include "sessions/getkeyanswer.h"
#include "sessions/keytext_p.h"

#include <QuvFramework/fw_utils.h>

namespace {

// What both sides of the exchange must know.
constexpr unsigned long long exchangeBase = 50;
constexpr unsigned long long exchangeModulus = 59;

/** A power of 64 bits, of which those beyond are lost, as in all programs that take part in the exchange. */
unsigned long long powerOf(unsigned long long base, int exponent)
{
    unsigned long long power = 1;
    for (; exponent > 0; exponent /= 2, base *= base) {
        if (exponent % 2 == 1)
            power *= base;
    }
    return power;
}

unsigned long long keyOf(unsigned long long base, int exponent)
{
    return powerOf(base, exponent) % exchangeModulus;
}

} // namespace

struct GetKeyCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_KEY;

    static constexpr char answerFailed[] = "Failed to create DispenserStatusAnswer"; // users know it so
    static constexpr quv::AnsweredBy<GetKeyAnswer> answer = {
        {}, {"DE01289", answerFailed}, {"DE00912", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noID = {"DE00918", "DE00918",
                                               "Session ID decoding failed: expected String type"};
        constexpr quv::ArgumentRefusal noKey = {"DE00910", "DE00910",
                                                "Client key decoding failed: expected String type"};
        archive.required({"session_id", "as LOGIN gave it"}, self.m_sessionID, noID, noID);
        archive.refuseUnless(!self.m_sessionID.isEmpty(),
                             {"DE00917", "DE00917", "Session ID decoding failed: empty String received"});
        archive.required({"client_key", "the client's public value, a decimal number"}, self.m_clientKey,
                         noKey, noKey);
        archive.refuseUnless(!self.m_clientKey.isEmpty(),
                             {"DE00916", "DE00916", "Client key decoding failed: empty String received"});
        archive.refuseUnless(
            quv::holdsInt(self.m_clientKey),
            {"DE00915", "DE00915", "Client key decoding failed: expected String containing an Int value"});
    }
};

template class quv::DescribedCommand<GetKeyCmd, ConfProtoCommand>;

GetKeyCmd::GetKeyCmd(QString sessionID, QString clientKey) : m_sessionID(sessionID), m_clientKey(clientKey) {}

GetKeyCmd::GetKeyCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

GetKeyCmd::GetKeyCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetKeyCmd *GetKeyCmd::clone() const
{
    return new GetKeyCmd(*this);
}

int GetKeyCmd::getRandomValue()
{
    return getThRandom() % 8 + 2;
}

bool GetKeyCmd::createSharedKey(QString *key, int *secret)
{
    if (!key || !secret)
        return false;
    for (*secret = getRandomValue(); *secret > 1; *secret = getRandomValue()) {
        // 0 and 1 would give the same session key whatever the other's secret is
        if (const unsigned long long value = keyOf(exchangeBase, *secret); value > 1) {
            *key = QString::number(value);
            return true;
        }
    }
    *key = QString::number(exchangeBase);
    return true;
}

QString GetKeyCmd::createLoginKey(QString otherKey, int secret)
{
    bool isNumber = false;
    const unsigned long long other = otherKey.toULongLong(&isNumber);
    if (!isNumber || other == 0 || secret < 1)
        return {};
    return QString::number(keyOf(other, secret));
}
