// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fuzzinput.h"
#include "processes/getlevelsensorsanswer.h"
#include "processes/getshelfposanswer.h"
#include "processes/getturntablepositionsanswer.h"
#include "processes/getzandorcommandsanswer.h"
#include "processes/newtransparentcmdanswer.h"
#include "processes/workingmodeanswer.h"

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

template <class Answer>
void checkStruct(const Answer &answer)
{
    quv::require(Answer(answer.toXmlRpcValue()) == answer, "an answer reads back from its struct");
}

} // namespace

/** Blank-separated tokens as the answers about the shelf, the turntable, the capping station and the boards. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QStringList tokens = text.split(QLatin1Char(' '));
    decode<GetShelfPosAnswer>(tokens, checkHeight);
    decode<GetTurntablePositionsAnswer>(tokens, checkStruct<GetTurntablePositionsAnswer>);
    decode<GetZandorCommandsAnswer>(tokens, checkStruct<GetZandorCommandsAnswer>);
    decode<GetLevelSensorsAnswer>(tokens, checkStruct<GetLevelSensorsAnswer>);
    decode<NewTransparentCmdAnswer>(tokens, checkStruct<NewTransparentCmdAnswer>);
    decode<WorkingModeAnswer>(tokens, checkStruct<WorkingModeAnswer>);
    return 0;
}
