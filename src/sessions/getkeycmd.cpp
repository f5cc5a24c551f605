// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/getkeycmd.h"

#include "base/describedcommand_p.h"
#include "sessions/getkeyanswer.h"
#include "sessions/sessiontexts_p.h"

#include <QuvFramework/fw_utils.h>

namespace {

// What both sides of the exchange must know.
constexpr unsigned long long exchangeBase = 50;
constexpr unsigned long long exchangeModulus = 59;

constexpr quv::SessionText texts[] = {
    {{"session_id", "as LOGIN gave it"},
     {"DE00918", "Session ID decoding failed: expected String type"},
     {"DE00917", "Session ID decoding failed: empty String received"},
     {}},
    {{"client_key", "the client's public value, a decimal number"},
     {"DE00910", "Client key decoding failed: expected String type"},
     {"DE00916", "Client key decoding failed: empty String received"},
     {"DE00915", "Client key decoding failed: expected String containing an Int value"}},
};

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

    static void tellArguments(quv::ArgumentTeller &teller) { quv::tellSessionTexts(texts, teller); }
};

template class quv::DescribedCommand<GetKeyCmd, ConfProtoCommand>;

GetKeyCmd::GetKeyCmd(QString sessionID, QString clientKey)
{
    m_parameters = {sessionID, clientKey};
}

GetKeyCmd::GetKeyCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    m_parameters = quv::readSessionTexts(quv::ValueSource(value), texts, Q_FUNC_INFO);
}

GetKeyCmd::GetKeyCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_parameters = quv::readSessionTexts(quv::ListSource(list), texts, Q_FUNC_INFO);
}

GetKeyCmd *GetKeyCmd::clone() const
{
    return new GetKeyCmd(*this);
}

XmlRpc::XmlRpcValue GetKeyCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::writtenSessionTexts(m_parameters, ok);
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
