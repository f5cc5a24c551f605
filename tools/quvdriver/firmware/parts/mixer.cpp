// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/mixer.h"

#include "firmware/parts/resetting.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

#include <algorithm>
#include <cmath>

namespace quv {
namespace {

constexpr int OwnValue = 245;                           // of a speed, and of each digit of a time
constexpr int OwnTime = OwnValue + OwnValue * WireBase; // of two digits
constexpr int FullPlateSpeed = 100;                     // percent
constexpr double HeightTolerance = 0.5;                 // millimetres
constexpr double Second = 1000;                         // milliseconds

/// Two digits; a greater number is the greatest that is no own value.
QList<int> twoWireDigits(double number)
{
    const int told = std::min(static_cast<int>(std::ceil(number)), OwnTime - 1);
    return {told % WireBase, told / WireBase};
}

} // namespace

std::vector<FirmwareCode> Mixer::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("0030"),
         {},
         [this](int, const Numbers &numbers) { return movePlates(numbers); },
         true},
        {QStringLiteral("0031"), {}, [this](int, const Numbers &numbers) { return mix(numbers); }, true},
        {QStringLiteral("0033"), {}, [this](int module, const Numbers &) { return tell(module); }},
    };
}

FirmwareReply Mixer::tell(int module) const
{
    constexpr int AtWork = 1;
    const StatusWords status = m_machine.status(module);
    return replied(QList<int>{0, AtWork} + status.words.numbers(1, 6) + status.mixing);
}

void Mixer::tellStatus(StatusWords &status, int /*module*/) const
{
    const Step *step = stepNow();
    const bool isCycle = step && step->cycle > 0;
    const bool arePlates = step && !isCycle;
    const bool goesDown = arePlates && step->height < step->from;
    const bool isMix = step && m_isMix;
    Words<12> &words = status.words;
    words.set(1, 2, isMix);
    words.set(1, 3, arePlates);
    words.set(1, 4, isCycle);
    words.set(2, 0, !step && !isOpen() && !holdsCan());
    words.set(2, 1, isCycle || m_isTurned);
    words.set(4, 3, holdsCan());
    words.set(4, 5, goesDown);
    words.set(4, 6, arePlates && !goesDown);
    words.set(5, 0, holdsCan());
    words.set(5, 4, m_isInterrupted);
    words.set(5, 5, isMix);
    words.set(6, 1, mayBegin(Process::Mixing));
    words.set(6, 3, m_isTurned);
    words.set(6, 4, !isMix);

    const int force = step ? step->force : m_force;
    status.mixing = QList<int>{isCycle ? step->cycle : 0} + twoWireDigits(secondsLeft()) +
                    QList<int>{isCycle ? step->speed : 0, holdsCan() ? force : 0} +
                    twoWireDigits(heightNow());
}

ProcessSet Mixer::atWork() const
{
    if (!stepNow())
        return {};
    return {m_isMix ? Process::Mixing : Process::MovingPlates};
}

/// What has ended is how the mixer stands.
void Mixer::goOn()
{
    if (stepNow() || m_steps.empty())
        return;
    m_height = m_steps.back().height;
    m_force = m_steps.back().force;
    m_isTurned = m_isTurned && !m_steps.back().turnsUpright;
    m_steps.clear();
}

const Mixer::Step *Mixer::stepNow() const
{
    const auto step = std::find_if(m_steps.begin(), m_steps.end(), [this](const Step &candidate) {
        return double(m_machine.now()) < candidate.end;
    });
    return step == m_steps.end() ? nullptr : &*step;
}

double Mixer::heightNow() const
{
    const Step *step = stepNow();
    if (!step)
        return m_steps.empty() ? m_height : m_steps.back().height;
    return step->from +
           (step->height - step->from) * (double(m_machine.now()) - step->begin) / (step->end - step->begin);
}

double Mixer::secondsLeft() const
{
    return stepNow() ? (m_steps.back().end - double(m_machine.now())) * m_machine.speed() / Second : 0;
}

bool Mixer::isOpen() const
{
    return heightNow() > OpenPlates - HeightTolerance;
}

bool Mixer::holdsCan() const
{
    const Step *step = stepNow();
    return (!step || step->cycle > 0) && heightNow() < Can + HeightTolerance;
}

void Mixer::stop()
{
    const Step *step = stepNow();
    if (!step)
        return;
    m_isInterrupted = m_isMix;
    m_isTurned = m_isTurned || step->cycle > 0;
    m_force = holdsCan() ? step->force : 0;
    m_height = heightNow();
    m_steps.clear();
}

/// The plates stand upright and open then.
void Mixer::reset()
{
    Step opening;
    opening.from = heightNow();
    opening.height = OpenPlates;
    opening.turnsUpright = true;
    opening.begin = double(m_machine.now());
    opening.end = double(m_machine.endOf(ResetDuration));
    m_steps = {opening};
    m_isMix = false;
    m_isInterrupted = false;
}

bool Mixer::mayBegin(Process process) const
{
    return !m_isTurned && m_machine.mayBegin(process);
}

FirmwareReply Mixer::refusedToBegin(Process process) const
{
    const auto obstacle = m_machine.obstacle(process);
    return obstacle ? refused(*obstacle)
                    : refused(Reason::NotAvailable, QStringLiteral("the mixer must be reset"));
}

FirmwareReply Mixer::movePlates(const QList<int> &parameters)
{
    constexpr int Open = 0;
    constexpr int Close = 1;
    constexpr int FewestNumbers = 4; // of a time with one digit
    constexpr int OwnForce = 50;
    WireReader reader(parameters);
    const int action = reader.next(Open, Close);
    const bool hasOneDigit = parameters.size() == FewestNumbers;
    const int time = hasOneDigit ? reader.next(0, WireBase - 1) : reader.nextPair();
    const int speed = reader.next(1, OwnValue);
    const int force = reader.next(0, WireBase - 1);
    if (!reader.isGood() || !reader.atEnd() || (speed > FullPlateSpeed && speed != OwnValue))
        return refused(Reason::WrongParameters);
    const bool areMoved = atWork().has(Process::MovingPlates) && !m_machine.isAt({Process::Resetting});
    if (time == 0 && areMoved) { // a reset moves them as well, and is not for this to end
        stop();
        return begun();
    }
    if (!mayBegin(Process::MovingPlates))
        return refusedToBegin(Process::MovingPlates);
    goOn();
    m_isMix = false;
    m_isInterrupted = false;
    const double percent = speed == OwnValue ? FullPlateSpeed : speed;
    const double longest = time == OwnTime ? Unlimited : time;
    if (action == Open)
        addPlates(OpenPlates, 0, percent, longest);
    else
        addPlates(Can, force == 0 ? OwnForce : force, percent, longest);
    return begun();
}

/// The plates' way to a height between them, or as far as they come in so many milliseconds.
void Mixer::addPlates(double height, int force, double percent, double longest)
{
    constexpr double Fastest = 0.1; // millimetres in a millisecond
    const double speed = Fastest * percent / FullPlateSpeed;
    Step step;
    step.force = force;
    step.from = m_steps.empty() ? m_height : m_steps.back().height;
    const double way = std::clamp(height - step.from, -speed * longest, speed * longest);
    step.height = step.from + way;
    add(step, std::abs(way) / speed);
}

void Mixer::add(Step step, double milliseconds)
{
    step.begin = m_steps.empty() ? double(m_machine.now()) : m_steps.back().end;
    step.end = step.begin + milliseconds / m_machine.speed();
    m_steps.push_back(step);
}

FirmwareReply Mixer::mix(const QList<int> &parameters)
{
    constexpr int NumbersOfCycle = 5;
    constexpr int OwnSpeed = 120;   // turns per minute
    constexpr int OwnDuration = 60; // seconds
    WireReader reader(parameters);
    reader.next(0, 0);
    const int count = reader.next(1, WireBase - 1);
    reader.next(NumbersOfCycle, NumbersOfCycle);
    std::vector<Step> cycles;
    std::vector<int> times; // seconds
    for (int number = 1; number <= count; ++number) {
        reader.next(0, WireBase - 1); // the kind of motion, which takes no other time
        Step cycle;
        cycle.cycle = number;
        cycle.speed = reader.next(0, OwnValue);
        if (cycle.speed == OwnValue)
            cycle.speed = OwnSpeed;
        cycle.force = reader.next(0, WireBase - 1);
        cycle.from = Can;
        cycle.height = Can;
        cycles.push_back(cycle);
        const int time = reader.nextPair();
        times.push_back(time == OwnTime ? OwnDuration : time);
    }
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    if (!mayBegin(Process::Mixing))
        return refusedToBegin(Process::Mixing);
    goOn();
    m_isMix = true;
    m_isInterrupted = false;
    addPlates(Can, cycles.front().force, FullPlateSpeed);
    for (std::size_t i = 0; i < cycles.size(); ++i)
        add(cycles[i], times[i] * Second);
    addPlates(OpenPlates, 0, FullPlateSpeed);
    return begun();
}

} // namespace quv
