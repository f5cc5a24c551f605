// SPDX-License-Identifier: LGPL-3.0-or-later
#include "fuzzinput.h"
#include "status/dispenserstatusanswer.h"
#include "status/getactivecircuitsanswer.h"
#include "status/mixerstatusanswer.h"
#include "status/sensordataanswer.h"
#include "status/sensorsstatusanswer.h"

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>

namespace {

bool isCode(const QString &code)
{
    return code.size() == 7 && code.startsWith(QLatin1String("DE"));
}

/** A status that was decoded writes itself and reads back the same, and can be told in words. */
template <class Status>
void checkAnswer(const Status &answer)
{
    quv::require(answer.checkStatus(answer.status()), "a decoded status is 1 or 2");
    quv::require(answer == Status(answer.toXmlRpcValue()), "a status reads back from its struct");
    quv::require(answer.hasBadWorkingState() == !answer.getFirstBadWorkingState().isEmpty(),
                 "a bad state has a text");
    const Status cleared;
    quv::require(Status::getNewStatesDescriptions(&answer, &answer).isEmpty(), "no change, no text");
    Status::getNewStatesDescriptions(&cleared, &answer);
}

void checkAnswer(const SensorsStatusAnswer &answer)
{
    quv::require(answer == SensorsStatusAnswer(answer.toXmlRpcValue()),
                 "sensors read back from their struct");
}

void checkAnswer(const SensorDataAnswer &answer)
{
    quv::require(answer == SensorDataAnswer(answer.toXmlRpcValue()), "a measure reads back from its struct");
}

void checkAnswer(const GetActiveCircuitsAnswer &answer)
{
    quv::require(answer == GetActiveCircuitsAnswer(answer.toXmlRpcValue()),
                 "active circuits read back from their struct");
    quv::require(answer.positionsID().size() == answer.nozzleValvePositions().size() +
                                                    answer.statusTypeMasks().size() +
                                                    answer.stallLevelsPos().size(),
                 "each active circuit has one second value");
}

/** The tokens give an answer, or a refusal with its code. */
template <class Answer, class... Arguments>
void decode(const QStringList &tokens, Arguments... arguments)
{
    try {
        checkAnswer(Answer(tokens, arguments...));
    } catch (const FW_Exception &refusal) {
        quv::require(isCode(refusal.code()) && !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                     "a refusal has its code, its text and its function");
    }
}

} // namespace

/** Blank-separated tokens of a firmware answer are given to every decoder of a status. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QStringList tokens = text.split(QLatin1Char(' '));
    decode<DispenserStatusAnswer>(tokens);
    decode<SensorsStatusAnswer>(tokens);
    decode<SensorDataAnswer>(tokens);
    for (const int process : {1, 11, 13})
        decode<GetActiveCircuitsAnswer>(tokens, static_cast<CircuitProcess>(process));
    decode<MixerStatusAnswer>(tokens);
    return 0;
}
