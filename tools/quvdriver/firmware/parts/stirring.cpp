// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/stirring.h"

#include "firmware/wirereader.h"

namespace quv {

Stirring::Stirring(SimulatedMachine &machine)
    : CircuitMotors(machine, {Process::Stirring, CircuitProcess::Stirring, TimedProcess::Stirring, 4,
                              QStringLiteral("no circuit has an enabled stirring motor"),
                              QStringLiteral("no more circuits than %1 are stirred at once")})
{}

std::vector<FirmwareCode> Stirring::codes()
{
    return {{QStringLiteral("0004"),
             {},
             [this](int module, const QList<int> &numbers) { return stir(module, numbers); },
             true}};
}

bool Stirring::hasMotor(const FW_Circuit &circuit) const
{
    const FW_StirringMotor *motor = circuit.firstStirringMotor();
    return hasOneMotor() || (motor && motor->isEnabled());
}

Rhythm Stirring::rhythm(const FW_Circuit &circuit) const
{
    const FW_StirringMotor *motor =
        hasOneMotor() ? m_machine.dispenser().firstStirringMotor() : circuit.firstStirringMotor();
    if (!motor)
        return {};
    return {double(motor->stirringPause(FW_TimeSpan::Milliseconds)),
            motor->stirringActivity() * MillisecondsOfSecond};
}

/// A motor of the SOLA100 line takes a rest and turns the other way for as long.
qint64 Stirring::endOf(int seconds) const
{
    constexpr double Rest = 10000;
    if (seconds == EndlessDuration)
        return NeverEnds;
    const bool turnsBack = FW_Dispenser::isSOLA100dispenser(m_machine.dispenser().modelName());
    return m_machine.endOf(seconds * MillisecondsOfSecond * (turnsBack ? 2 : 1) + (turnsBack ? Rest : 0));
}

FirmwareReply Stirring::stir(int module, const QList<int> &parameters)
{
    WireReader reader(parameters);
    const int seconds = reader.nextPair();
    const bool isBusy = reader.next(0, 1) == 1;
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    if (seconds == 0)
        return end(module);
    return begin(module, isBusy, [this, seconds](const FW_Circuit &) { return endOf(seconds); });
}

} // namespace quv
