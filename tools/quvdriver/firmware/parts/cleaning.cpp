// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/cleaning.h"

#include "firmware/processnumbers.h"
#include "firmware/wirereader.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

#include <algorithm>
#include <utility>

namespace quv {
namespace {

FirmwareReply refusedWithoutMotor(int module)
{
    return module == 0 ? refused(Reason::NotAvailable, QStringLiteral("the machine has no cleaning motors"))
                       : refused(Reason::WrongModule);
}

} // namespace

std::vector<FirmwareCode> Cleaning::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("0015"),
         {},
         [this](int module, const Numbers &numbers) { return clean(module, numbers); },
         true},
        {QStringLiteral("0025"), {}, [this](int, const Numbers &numbers) { return useBath(numbers); }, true},
        {QStringLiteral("002F"),
         {},
         [this](int module, const Numbers &numbers) { return cleanNozzles(module, numbers); },
         true},
    };
}

void Cleaning::tellStatus(StatusWords &status, int module) const
{
    const Stage *current = stage();
    if (!current)
        return;
    status.words.set(5, 3, module == 0 || current->positions.contains(module));
    const bool isWaterMoved = current->phase == Phase::Filling || current->phase == Phase::Emptying;
    status.words.set(9, 1, module == 0 && isWaterMoved);
}

/// Brushes alone are among the outputs.
void Cleaning::tellSensors(SensorWords &sensors) const
{
    const Stage *current = stage();
    const bool isBrushing = current && current->phase == Phase::Brushing;
    sensors.set(4, 5, isBrushing && hasDevice(FW_Device::Brush));
    sensors.set(5, 3, isBrushing && hasDevice(FW_Device::Brush2));
}

std::vector<ActiveCircuit> Cleaning::activeCircuits(int process) const
{
    std::vector<ActiveCircuit> circuits;
    const bool isOfNozzles = m_isOfNozzles && process == static_cast<int>(CircuitProcess::CleaningNozzles);
    if (!isOfNozzles && process != static_cast<int>(CircuitProcess::Cleaning))
        return circuits;
    const Stage *current = stage();
    for (const Stage &each : m_stages) {
        if (each.end <= m_machine.now())
            continue;
        int state = LogicalState;
        if (&each == current)
            state |= PhysicalState;
        for (const int position : each.positions) {
            const bool isTold = std::any_of(circuits.begin(), circuits.end(), [position](const auto &other) {
                return other.position == position;
            });
            if (!isTold)
                circuits.push_back({position, state});
        }
    }
    return circuits;
}

ProcessSet Cleaning::atWork() const
{
    const Stage *current = stage();
    if (!current)
        return {};
    return current->phase == Phase::Rinsing ? ProcessSet{Process::Cleaning, Process::Rinsing}
                                            : ProcessSet{Process::Cleaning};
}

/// What moves colorant inside the machine does not disturb a brush in the background.
ProcessSet Cleaning::excluded() const
{
    if (!stage())
        return {};
    return m_isBusy ? ProcessSet::all()
                    : ProcessSet::all().without({Process::Stirring, Process::Recirculating});
}

void Cleaning::goOn()
{
    if (m_machine.isHeld())
        stop();
    while (!m_stages.empty() && m_stages.front().end <= m_machine.now()) {
        if (m_stages.front().phase == Phase::Ultrasound)
            m_machine.countWaterCycle();
        m_stages.erase(m_stages.begin());
    }
}

FirmwareReply Cleaning::clean(int module, const QList<int> &parameters)
{
    constexpr int ByMotors = 1;
    constexpr int ByBrush = 2;
    constexpr int ByMotorOfCircuit = 3;
    WireReader reader(parameters);
    const int speed = reader.next(1, ConfiguredSpeed);
    const int seconds = reader.nextPair();
    const int type = reader.next(ByMotors, ByMotorOfCircuit);
    const bool isBusy = reader.next(0, 1) == 1;
    const bool isAtCircuit = type == ByMotorOfCircuit;
    if (!reader.isGood() || !reader.atEnd() || !isProcessSpeed(speed) ||
        (type != ByBrush && isAtCircuit != (module != 0)))
        return refused(Reason::WrongParameters);
    if (seconds == 0)
        return end(module);
    if (type == ByBrush && !hasDevice(FW_Device::Brush) && !hasDevice(FW_Device::Brush2))
        return refused(Reason::NotAvailable, QStringLiteral("the machine has no enabled brush"));
    const QList<int> cleaned = type == ByBrush ? positions(module) : positionsOfMotors(module);
    if (cleaned.isEmpty())
        return refusedWithoutMotor(module);
    Stage stage{type == ByBrush ? Phase::Brushing : Phase::ByMotors, cleaned, seconds * MillisecondsOfSecond};
    stage.isEndless = seconds == EndlessDuration;
    return begin({stage}, isBusy);
}

FirmwareReply Cleaning::cleanNozzles(int module, const QList<int> &parameters)
{
    WireReader reader(parameters);
    const int seconds = reader.nextPair();
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    if (seconds == 0)
        return end(module);
    if (module != 0 && !m_machine.circuitAt(module))
        return refused(Reason::WrongModule);
    const bool hasBath = hasDevice(FW_Device::UltrasoundCleaning);
    const bool hasBrush = hasDevice(FW_Device::Brush);
    if (!hasBath && !hasBrush && !hasRinsingCap())
        return refused(
            Reason::NotAvailable,
            QStringLiteral("the machine has no enabled ultrasound bath, brush or cap that rinses"));
    std::vector<Stage> stages = hasBath    ? fullBath()
                                : hasBrush ? nozzleByNozzle(module, seconds)
                                           : rinsing(module, seconds);
    if (stages.empty())
        return refusedWithoutMotor(module);
    FirmwareReply reply = begin(std::move(stages), true);
    m_isOfNozzles = m_isOfNozzles || !reply.refused;
    return reply;
}

FirmwareReply Cleaning::useBath(const QList<int> &parameters)
{
    constexpr int Full = 1;
    constexpr int Emptying = 2;
    constexpr int Filling = 3;
    constexpr int Ultrasound = 4;
    constexpr double TenthOfSecond = 100;
    WireReader reader(parameters);
    const int type = reader.next(Full, Ultrasound);
    const int number = type == Full ? EndlessDuration : reader.nextPair();
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    const auto *bath = dynamic_cast<const FW_UltrasoundCleaning *>(
        m_machine.dispenser().getDevice(FW_Device::UltrasoundCleaning));
    if (!bath || !bath->isEnabled())
        return refused(Reason::NotAvailable, QStringLiteral("the machine has no enabled ultrasound bath"));
    if (number == 0)
        return end(0);
    std::vector<Stage> stages = fullBath();
    if (type != Full) {
        const Phase phase = type == Emptying  ? Phase::Emptying
                            : type == Filling ? Phase::Filling
                                              : Phase::Ultrasound;
        stages.erase(std::remove_if(stages.begin(), stages.end(),
                                    [phase](const Stage &each) { return each.phase != phase; }),
                     stages.end());
        if (number != EndlessDuration)
            stages.front().duration = number * (type == Ultrasound ? MillisecondsOfSecond : TenthOfSecond);
    }
    return begin(std::move(stages), true);
}

FirmwareReply Cleaning::begin(std::vector<Stage> stages, bool isBusy)
{
    if (const auto obstacle = m_machine.obstacle(Process::Cleaning))
        return refused(*obstacle);
    double duration = 0;
    for (Stage &each : stages) {
        duration += each.duration;
        each.end = each.isEndless ? NeverEnds : m_machine.endOf(duration);
    }
    m_stages = std::move(stages);
    m_isBusy = isBusy;
    m_isOfNozzles = false;
    return begun();
}

/// Ends what cleans, unless it does so at other circuits alone.
FirmwareReply Cleaning::end(int module)
{
    if (module != 0 && !m_machine.circuitAt(module))
        return refused(Reason::WrongModule);
    const bool isConcerned =
        module == 0 || std::any_of(m_stages.begin(), m_stages.end(),
                                   [module](const Stage &each) { return each.positions.contains(module); });
    if (isConcerned)
        stop();
    return begun();
}

/// The bath is filled, cleans and is emptied, as long as configured.
std::vector<Cleaning::Stage> Cleaning::fullBath() const
{
    const auto &bath = dynamic_cast<const FW_UltrasoundCleaning &>(
        *m_machine.dispenser().getDevice(FW_Device::UltrasoundCleaning));
    const QList<int> all = positions(0);
    return {{Phase::Filling, all, bath.fillingTime() * MillisecondsOfSecond},
            {Phase::Ultrasound, all, bath.ultrasoundDuration() * MillisecondsOfSecond},
            {Phase::Emptying, all, bath.emptyingTime() * MillisecondsOfSecond}};
}

/// One nozzle after the other, by its own motor and the brush.
std::vector<Cleaning::Stage> Cleaning::nozzleByNozzle(int module, int seconds) const
{
    constexpr double WayToNozzle = 4000;
    std::vector<Stage> stages;
    for (const int position : positionsOfMotors(module)) {
        const FW_CleaningMotor &motor = *m_machine.circuitAt(position)->firstCleaningMotor();
        const int cleaning = seconds == EndlessDuration ? motor.duration() : seconds;
        stages.push_back({Phase::Brushing, {position}, WayToNozzle + cleaning * MillisecondsOfSecond});
    }
    return stages;
}

/// By the cap, which is closed meanwhile.
std::vector<Cleaning::Stage> Cleaning::rinsing(int module, int seconds) const
{
    constexpr int UsualTime = 15;
    const int time = seconds == EndlessDuration ? UsualTime : seconds;
    return {{Phase::Rinsing, positions(module), time * MillisecondsOfSecond}};
}

/// Of all circuits, or of the one at the module's position.
QList<int> Cleaning::positions(int module) const
{
    if (module == 0)
        return m_machine.dispenser().getPositionsIDList(true);
    return m_machine.circuitAt(module) ? QList<int>{module} : QList<int>();
}

QList<int> Cleaning::positionsOfMotors(int module) const
{
    QList<int> cleaned = positions(module);
    cleaned.erase(
        std::remove_if(cleaned.begin(), cleaned.end(),
                       [this](int position) { return !m_machine.circuitAt(position)->firstCleaningMotor(); }),
        cleaned.end());
    return cleaned;
}

bool Cleaning::hasDevice(int kind) const
{
    const FW_Device *device = m_machine.dispenser().getDevice(kind);
    return device && device->isEnabled();
}

bool Cleaning::hasRinsingCap() const
{
    const auto *cap = dynamic_cast<const FW_Autocap *>(m_machine.dispenser().getDevice(FW_Device::Autocap));
    return cap && cap->isEnabled() && cap->hasAutomaticCleaningSystem();
}

/// The one that goes on now; null when nothing is cleaned.
const Cleaning::Stage *Cleaning::stage() const
{
    const auto current = std::find_if(m_stages.begin(), m_stages.end(),
                                      [this](const Stage &each) { return m_machine.now() < each.end; });
    return current == m_stages.end() ? nullptr : &*current;
}

} // namespace quv
