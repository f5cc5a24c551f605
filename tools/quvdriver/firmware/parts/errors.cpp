// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/errors.h"

#include "firmware/wiredigits.h"
#include "firmware/wirereply.h"

#include <utility>

namespace quv {
namespace {

using ErrorPacket = QList<int>; // places in the buffer, of errors of one kind

QList<ErrorPacket> errorPackets(const QList<RaisedError> &errors)
{
    constexpr int ErrorsOfPacket = 5;
    QList<ErrorPacket> packets;
    for (const auto kind : {RaisedError::Kind::Hardware, RaisedError::Kind::Configuration}) {
        ErrorPacket packet;
        for (int place = 0; place < errors.size(); ++place) {
            if (errors.at(place).kind != kind)
                continue;
            if (packet.size() == ErrorsOfPacket)
                packets.append(std::exchange(packet, {}));
            packet.append(place);
        }
        if (!packet.isEmpty())
            packets.append(packet);
    }
    return packets;
}

/// So many digits, low digit first.
void appendErrorDigits(QList<int> &numbers, int number, int digits)
{
    for (; digits > 0; --digits, number /= WireBase)
        numbers.append(number % WireBase);
}

} // namespace

std::vector<FirmwareCode> Errors::codes()
{
    return {{QStringLiteral("000C"),
             {},
             [this](int, const QList<int> &numbers) { return answer(numbers); },
             true}};
}

void Errors::tellStatus(StatusWords &status, int module) const
{
    for (const RaisedError &error : std::as_const(m_machine).errors()) {
        if (module != 0 && error.module != module)
            continue;
        status.words.set(2, 6, error.kind == RaisedError::Kind::Hardware);
        status.words.set(3, 0, error.kind == RaisedError::Kind::Configuration);
        status.words.set(3, 5, !error.isRead);
    }
}

FirmwareReply Errors::answer(const QList<int> &parameters)
{
    constexpr int Clear = 0;
    constexpr int Number = 245;
    if (parameters.size() != 1)
        return refused(Reason::WrongParameters);
    if (parameters.constFirst() == Number)
        return tellNumber();
    if (parameters.constFirst() != Clear)
        return tellPacket(parameters.constFirst());
    m_machine.clearErrors();
    return begun();
}

FirmwareReply Errors::tellNumber() const
{
    const QList<RaisedError> &errors = std::as_const(m_machine).errors();
    QList<int> numbers;
    appendErrorDigits(numbers, errors.size(), 2);
    return replied(numbers << errorPackets(errors).size());
}

FirmwareReply Errors::tellPacket(int index)
{
    constexpr int DigitsOfCode = 3;
    const QList<ErrorPacket> packets = errorPackets(std::as_const(m_machine).errors());
    if (index < 1 || index > packets.size())
        return refused(Reason::WrongParameters);
    const ErrorPacket &packet = packets.at(index - 1);
    const RaisedError::Kind kind = m_machine.errors()[packet.constFirst()].kind;
    QList<int> numbers{static_cast<int>(kind), index, static_cast<int>(packet.size())};
    for (const int place : packet) {
        RaisedError &error = m_machine.errors()[place];
        numbers.append(error.module);
        appendErrorDigits(numbers, error.code, DigitsOfCode);
        numbers.append(error.value);
        error.isRead = true;
    }
    return replied(numbers);
}

} // namespace quv
