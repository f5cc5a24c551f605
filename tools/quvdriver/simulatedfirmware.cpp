// SPDX-License-Identifier: LGPL-3.0-or-later
#include "simulatedfirmware.h"

#include <QuvFramework/fw_dispenser.h>

#include <array>
#include <chrono>
#include <cmath>

namespace quv {
namespace {

constexpr qint64 ResetDuration = 6000; // milliseconds
constexpr int MaxModule = 255;         // the address is one byte
constexpr int NoPosition = 245;

/// Why a command is refused: a bit of one of the two masks of reasons.
struct Reason
{
    int mask;
    int bit;
};
constexpr Reason UnknownCode{0, 3};
constexpr Reason WrongModule{0, 4};
constexpr Reason WrongParameters{0, 5};
constexpr Reason NotAvailable{1, 3};

template <class Numbers>
QStringList tokensOf(const Numbers &numbers)
{
    QStringList tokens{QString::number(numbers.size(), 16).toUpper()};
    for (const int number : numbers)
        tokens.append(QString::number(number, 16).toUpper());
    return tokens;
}

FirmwareReply refusal(Reason reason)
{
    std::array<int, 6> parameters{};
    parameters[static_cast<std::size_t>(reason.mask)] = 1 << reason.bit;
    return {true, tokensOf(parameters)};
}

} // namespace

struct SimulatedFirmware::Command
{
    QString code;
    FirmwareReply (SimulatedFirmware::*run)();
};

const SimulatedFirmware::Commands &SimulatedFirmware::commandsOf(const FW_Machine &machine)
{
    static const Commands mixer{
        {QStringLiteral("0001"), &SimulatedFirmware::beginReset},
    };
    static const Commands dispenser1{
        {QStringLiteral("0001"), &SimulatedFirmware::beginReset},
        {QStringLiteral("0006"), &SimulatedFirmware::status},
    };
    static const Commands dispenser2{
        {QStringLiteral("I3"), &SimulatedFirmware::status},
    };
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine);
    if (!dispenser)
        return mixer;
    return dispenser->commandFamily() == FW_Dispenser::CommandFamily2 ? dispenser2 : dispenser1;
}

SimulatedFirmware::SimulatedFirmware(const FW_Machine &machine, double speed, Clock clock)
    : m_commands(commandsOf(machine)),
      m_speed(speed),
      m_clock(std::move(clock)),
      m_resetEnd(m_clock())
{
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        m_heads = dispenser->hasMultipleHead() ? 2 : 1;
}

SimulatedFirmware::Clock SimulatedFirmware::steadyClock()
{
    return [] {
        using namespace std::chrono;
        return qint64(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
    };
}

FirmwareReply SimulatedFirmware::execute(const QString &code, int module, const QList<int> &parameters)
{
    for (const Command &command : m_commands) {
        if (command.code != code)
            continue;
        if (module < 0 || module > MaxModule)
            return refusal(WrongModule);
        if (!parameters.isEmpty())
            return refusal(WrongParameters);
        return (this->*command.run)();
    }
    return refusal(UnknownCode);
}

FirmwareReply SimulatedFirmware::status()
{
    const bool resetting = isResetting();
    // A head cannot dispense while it searches its origin.
    const int readyHeads = resetting ? 0 : (1 << m_heads) - 1;
    std::array<int, 14> parameters{};
    parameters[1] = 1; // at work
    parameters[2] = int(resetting) << 6;
    parameters[7] = NoPosition;
    parameters[8] = NoPosition;
    parameters[9] = readyHeads << 2;
    return {false, tokensOf(parameters)};
}

FirmwareReply SimulatedFirmware::beginReset()
{
    if (isResetting())
        return refusal(NotAvailable);
    m_resetEnd = m_clock() + std::llround(double(ResetDuration) / m_speed);
    return {false, tokensOf(std::array<int, 0>{})};
}

} // namespace quv
