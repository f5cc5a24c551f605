// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fuzzinput.h"
#include "status/commandrefusedanswer.h"
#include "status/errornumanswer.h"
#include "status/fwerroranswer.h"

#include <QuvFramework/fw_exception.h>

namespace {

void checkRefusal(const FW_Exception &refusal)
{
    quv::require(refusal.code().size() == 7 && refusal.code().startsWith(QLatin1String("DE")) &&
                     !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                 "a refusal has its code, its text and its function");
}

/** A packet holds errors of one type, and reads back from its struct. */
void checkAnswer(const FwErrorAnswer &answer)
{
    quv::require(answer.hwErrors().isEmpty() != answer.confErrors().isEmpty(), "errors of one type");
    quv::require(FwErrorAnswer::checkErrorAnswerType(answer.errorsType()), "a packet has a type");
    for (const FW_HwError &error : answer.hwErrors())
        quv::require(error.code() >= 0 && error.module() >= 0 && error.value() >= 0 && error.value() <= 31,
                     "numbers in their range");
    quv::require(answer == FwErrorAnswer(answer.toXmlRpcValue()), "errors read back from their struct");
}

void checkAnswer(const ErrorNumAnswer &answer)
{
    quv::require(answer.num_errors >= 0 && answer.packets_count >= 0, "no negative number");
    quv::require(answer == ErrorNumAnswer(answer.toXmlRpcValue()), "the numbers read back from their struct");
}

void checkAnswer(const CommandRefusedAnswer &answer)
{
    const CommandRefusedError &error = answer.commandRefusedError();
    const QList<int> codes = error.getCommandRefusedErrorCodes();
    quv::require(!codes.isEmpty(), "a refusal has a reason");
    quv::require(codes.size() == error.getCommandRefusedErrorDescriptions().size(), "a text for each code");
    quv::require(!codes.contains(7), "there is no code 7");
}

template <class Answer>
void decode(const QStringList &tokens)
{
    try {
        checkAnswer(Answer(tokens));
    } catch (const FW_Exception &refusal) {
        checkRefusal(refusal);
    }
}

} // namespace

/** Blank-separated tokens give a packet of errors, their number or a refused command, or a refusal with its code. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    CommandRefusedAnswer::isAnErrorAnswer(text);
    const QStringList tokens = text.split(QLatin1Char(' '));
    decode<FwErrorAnswer>(tokens);
    decode<ErrorNumAnswer>(tokens);
    decode<CommandRefusedAnswer>(tokens);
    return 0;
}
