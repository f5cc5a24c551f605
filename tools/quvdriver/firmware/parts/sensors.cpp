// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/sensors.h"

#include "firmware/processnumbers.h"
#include "firmware/wiredigits.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

#include <algorithm>
#include <cmath>

namespace quv {
namespace {

constexpr qint64 MinutesOfHour = 60;

// Measures are in hundredths: of a degree Celsius, of a percent.
constexpr qint64 CoolestTemperature = 2100;
constexpr qint64 TemperatureSwing = 200; // up and down again within an hour
constexpr qint64 SensorStep = 30;        // from one sensor to the next
constexpr double WarmingOfMinute = 100;  // at work
constexpr double CoolingOfMinute = 50;
constexpr double MostWarmth = 800;
constexpr qint64 HumidityOfCoolest = 6000;
constexpr qint64 FullTank = 9000;
constexpr qint64 UsedOfHour = 100;
constexpr qint64 RefilledAfter = 5000;

} // namespace

std::vector<FirmwareCode> Sensors::codes()
{
    return {{QStringLiteral("0043"), {}, [this](int, const QList<int> &) { return tellStates(); }},
            {QStringLiteral("0060"),
             {},
             [this](int, const QList<int> &numbers) { return measure(numbers); },
             true}};
}

/// Work warms the machine, and then it cools, whether somebody looks or not.
void Sensors::lookBack()
{
    const qint64 now = m_machine.now();
    const qint64 rests = m_machine.endOfWork(m_looked, now);
    m_warmth = std::min(m_warmth + minutesOfMachine(m_looked, rests) * WarmingOfMinute, MostWarmth);
    m_warmth = std::max(m_warmth - minutesOfMachine(rests, now) * CoolingOfMinute, 0.0);
    m_looked = now;
}

FirmwareReply Sensors::tellStates() const
{
    constexpr int Masks = 10;
    constexpr int BitsOfMask = 7;
    SensorWords sensors;
    for (const auto &part : m_machine.parts())
        part->tellSensors(sensors);
    return replied(QList<int>{Masks * BitsOfMask} + sensors.numbers(1, Masks));
}

FirmwareReply Sensors::measure(const QList<int> &parameters) const
{
    constexpr int LastSensor = 20;
    enum Measure { Temperature, Humidity, WaterLevel };
    WireReader reader(parameters);
    const int sensor = reader.next(0, LastSensor);
    const int measure = reader.next(Temperature, WaterLevel);
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);

    const double minutes = minutesOfMachine(m_begin, m_machine.now());
    const qint64 hours = static_cast<qint64>(minutes) / MinutesOfHour;
    qint64 value = temperature(sensor);
    if (measure == Humidity) // the warmer the air, the drier
        value = HumidityOfCoolest - 2 * (value - CoolestTemperature);
    else if (measure == WaterLevel)
        value = FullTank - hours * UsedOfHour % RefilledAfter;

    constexpr int Digits = 5;
    QList<int> digits = wireDigits(value);
    while (digits.size() < Digits)
        digits.append(0);
    return replied(QList<int>{sensor, measure} + digits);
}

double Sensors::minutesOfMachine(qint64 from, qint64 until) const
{
    return double(until - from) * m_machine.speed() / MillisecondsOfMinute;
}

qint64 Sensors::temperature(int sensor) const
{
    const double minutes = minutesOfMachine(m_begin, m_machine.now());
    const double ofHour = std::fmod(minutes, double(MinutesOfHour)) / MinutesOfHour;
    const double swing = 1 - std::abs(2 * ofHour - 1); // 0 at its ends, 1 in its middle
    return CoolestTemperature + SensorStep * sensor + std::llround(m_warmth + TemperatureSwing * swing);
}

} // namespace quv
