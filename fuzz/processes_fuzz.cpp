// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fuzzinput.h"
#include "processes/getshelfposanswer.h"
#include "processes/getturntablepositionsanswer.h"
#include "processes/getzandorcommandsanswer.h"

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace {

/** Checks the answer that the tokens give, if they give one and not a refusal with its code. */
template <class Answer, class Check>
void decode(const QStringList &tokens, Check check)
{
    Answer answer;
    try {
        answer = Answer(tokens);
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code().size() == 7 && !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                     "a refusal has its code, its text and its function");
        return;
    }
    check(answer);
}

void checkHeight(const GetShelfPosAnswer &answer)
{
    quv::require(answer.height() >= 0, "a firmware tells no negative height");
    quv::require(GetShelfPosAnswer(answer.toXmlRpcValue()).height() ==
                     (answer.height() == 60515 ? -1 : answer.height()),
                 "a height reads back from its struct, but for the unknown one");
}

void checkPositions(const GetTurntablePositionsAnswer &answer)
{
    quv::require(GetTurntablePositionsAnswer(answer.toXmlRpcValue()) == answer,
                 "circuits read back from their struct");
}

void checkCommands(const GetZandorCommandsAnswer &answer)
{
    quv::require(GetZandorCommandsAnswer(answer.toXmlRpcValue()) == answer,
                 "commands read back from their struct");
}

} // namespace

/** Blank-separated tokens as the answers about the shelf, the turntable and the capping station. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QStringList tokens = text.split(QLatin1Char(' '));
    decode<GetShelfPosAnswer>(tokens, checkHeight);
    decode<GetTurntablePositionsAnswer>(tokens, checkPositions);
    decode<GetZandorCommandsAnswer>(tokens, checkCommands);
    return 0;
}
