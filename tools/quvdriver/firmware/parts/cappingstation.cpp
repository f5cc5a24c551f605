// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/cappingstation.h"

#include "firmware/parts/resetting.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

#include <algorithm>

namespace quv {
namespace {

// Kinds of a cycle. All but the first begin with the plates closing, and end with their opening unless the can is only centred.
enum StationCycle { HomeCycle, CentringCycle, WholeCycle, MixingCycle, PluggingCycle, StationCycles };

enum StationActuator { StationPlates = 1, StationPlugLoader = 3 };

constexpr int GearmotorProcedure = 100;
constexpr int LateProcedure = 200;

/// The sensor at each end of an actuator's way: word and bit.
struct ActuatorSensors
{
    int homeWord;
    int homeBit;
    int workingWord;
    int workingBit;
};

constexpr ActuatorSensors actuatorSensors[] = {
    {8, 0, 8, 1}, // 1 the plates: open, closed
    {8, 2, 8, 3}, // 2 the gripper: up, down
    {8, 4, 8, 5}, // 3 the plug loader: withdrawn, loading
    {7, 3, 7, 4}, // 4 the puncher's cleaner: up, down
    {7, 6, 7, 5}, // 5 the drop catcher: in, out
    {9, 2, 9, 1}, // 6 the plate extractor: inside, outside
};

} // namespace

CappingStation::CappingStation(SimulatedMachine &machine)
    : m_machine(machine),
      m_isThere(FW_Dispenser::isZANDORDispenser(machine.dispenser().modelName()))
{}

std::vector<FirmwareCode> CappingStation::codes()
{
    using Numbers = QList<int>;
    if (!m_isThere)
        return {};
    return {
        {QStringLiteral("0027"),
         {},
         [this](int, const Numbers &numbers) { return moveActuator(numbers); },
         true},
        {QStringLiteral("0028"),
         {},
         [this](int, const Numbers &numbers) { return beginProcedure(numbers); },
         true},
        {QStringLiteral("0032"),
         {},
         [this](int, const Numbers &numbers) { return beginCycle(numbers); },
         true},
        {QStringLiteral("0037"), {}, [](int, const Numbers &) { return tellCommands(); }},
    };
}

void CappingStation::tellStatus(StatusWords &status, int /*module*/) const
{
    constexpr int ReserveOfPlugs = 5;
    if (!m_isThere)
        return;
    bool isHome = !stepNow();
    for (int actuator = 1; actuator <= ActuatorCount; ++actuator)
        isHome = isHome && placeNow(actuator) == Place::Home;
    Words<12> &words = status.words;
    words.set(11, 2, isAt(Activity::Mixing) || isAt(Activity::Calibrating));
    words.set(11, 3, isMoving(StationPlates, Place::Home));
    words.set(11, 4, isMoving(StationPlates, Place::Working));
    words.set(11, 5, isAt(Activity::Plugging));
    words.set(11, 6, placeNow(StationPlates) == Place::Working);
    words.set(12, 1, m_plugs <= ReserveOfPlugs);
    words.set(12, 2, m_lacksPlug);
    words.set(12, 3, isHome);
}

void CappingStation::tellSensors(SensorWords &sensors) const
{
    if (!m_isThere)
        return;
    for (int actuator = 1; actuator <= ActuatorCount; ++actuator) {
        const ActuatorSensors &ends = actuatorSensors[actuator - 1];
        sensors.set(ends.homeWord, ends.homeBit, placeNow(actuator) == Place::Home);
        sensors.set(ends.workingWord, ends.workingBit, placeNow(actuator) == Place::Working);
    }
    sensors.set(8, 6, m_plugs > 0);
    sensors.set(9, 0, m_plugs > 0 && isAt(Activity::Plugging));
}

ProcessSet CappingStation::atWork() const
{
    return stepNow() ? ProcessSet{Process::MovingStation} : ProcessSet();
}

ProcessSet CappingStation::excluded() const
{
    return atWork().isEmpty() ? ProcessSet() : ProcessSet::outsideCanisters();
}

void CappingStation::reset()
{
    if (!m_isThere)
        return;
    Step step;
    step.activity = Activity::GoingHome;
    step.end = double(m_machine.endOf(ResetDuration));
    m_steps = {step};
}

/// What has ended is how the station stands.
void CappingStation::goOn()
{
    auto step = m_steps.begin();
    for (; step != m_steps.end() && double(m_machine.now()) >= step->end; ++step) {
        apply(*step, m_places);
        if (step->activity == Activity::Plugging) {
            m_lacksPlug = m_plugs == 0;
            m_plugs = std::max(m_plugs - 1, 0);
        }
        if (step->actuator == StationPlugLoader && step->place == Place::Working) {
            m_plugs = FullMagazine;
            m_lacksPlug = false;
        }
    }
    m_steps.erase(m_steps.begin(), step);
}

void CappingStation::stop()
{
    goOn();
    for (int actuator = 1; actuator <= ActuatorCount; ++actuator)
        m_places.at(static_cast<std::size_t>(actuator - 1)) = placeNow(actuator);
    m_steps.clear();
}

void CappingStation::apply(const Step &step, std::array<Place, ActuatorCount> &places)
{
    if (step.activity == Activity::GoingHome)
        places.fill(Place::Home);
    if (step.activity == Activity::Moving)
        places.at(static_cast<std::size_t>(step.actuator - 1)) = step.place;
}

const CappingStation::Step *CappingStation::stepNow() const
{
    const auto step = std::find_if(m_steps.begin(), m_steps.end(), [this](const Step &candidate) {
        return double(m_machine.now()) < candidate.end;
    });
    return step == m_steps.end() ? nullptr : &*step;
}

bool CappingStation::isAt(Activity activity) const
{
    const Step *step = stepNow();
    return step && step->activity == activity;
}

CappingStation::Place CappingStation::placeNow(int actuator) const
{
    auto places = m_places;
    const Step *now = stepNow();
    for (const Step &step : m_steps) {
        if (&step == now)
            break;
        apply(step, places);
    }
    const Place place = places.at(static_cast<std::size_t>(actuator - 1));
    const bool goes =
        now && (now->activity == Activity::GoingHome
                    ? place != Place::Home
                    : now->activity == Activity::Moving && now->actuator == actuator && place != now->place);
    return goes ? Place::Between : place;
}

/// On its way to a place.
bool CappingStation::isMoving(int actuator, Place place) const
{
    const Step *step = stepNow();
    return step && step->place == place && placeNow(actuator) == Place::Between &&
           (step->activity == Activity::GoingHome ||
            (step->activity == Activity::Moving && step->actuator == actuator));
}

void CappingStation::add(Activity activity, double seconds)
{
    constexpr double Second = 1000; // milliseconds
    Step step;
    step.activity = activity;
    const double begin = m_steps.empty() ? double(m_machine.now()) : m_steps.back().end;
    step.end = begin + seconds * Second / m_machine.speed();
    m_steps.push_back(step);
}

void CappingStation::addMove(int actuator, Place place)
{
    constexpr double Duration = 2; // seconds
    add(Activity::Moving, Duration);
    m_steps.back().actuator = actuator;
    m_steps.back().place = place;
}

FirmwareReply CappingStation::beginCycle(const QList<int> &parameters)
{
    constexpr double HomingTime = 5; // seconds, as are these
    constexpr double PluggingTime = 4;
    constexpr double OwnMixingTime = 60;
    WireReader reader(parameters);
    const int cycle = reader.next(0, StationCycles - 1);
    const int mixingTime = reader.next(0, WireBase - 1);
    reader.next(0, WireBase - 1); // nothing of a simulated cycle depends on it
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    if (const auto obstacle = m_machine.obstacle(Process::MovingStation))
        return refused(*obstacle);
    goOn();
    if (cycle == HomeCycle) {
        add(Activity::GoingHome, HomingTime);
        return begun();
    }
    addMove(StationPlates, Place::Working);
    if (cycle == WholeCycle || cycle == PluggingCycle)
        add(Activity::Plugging, PluggingTime);
    if (cycle == WholeCycle || cycle == MixingCycle)
        add(Activity::Mixing, mixingTime == 0 ? OwnMixingTime : mixingTime);
    if (cycle != CentringCycle)
        addMove(StationPlates, Place::Home);
    return begun();
}

/// Actuator, operation, three numbers, and perhaps a counted one, on which nothing of a simulated movement depends.
FirmwareReply CappingStation::moveActuator(const QList<int> &parameters)
{
    constexpr int GoHome = 0;
    constexpr int GoToWork = 1;
    constexpr int NoOperation = 245; // likewise home
    WireReader reader(parameters);
    const int actuator = reader.next(1, ActuatorCount);
    const int operation = reader.next(GoHome, NoOperation);
    for (int number = 0; number < 3; ++number)
        reader.next(0, WireBase - 1);
    if (!reader.atEnd())
        reader.nextCounted(1);
    if (!reader.isGood() || !reader.atEnd() || (operation > GoToWork && operation != NoOperation))
        return refused(Reason::WrongParameters);
    if (const auto obstacle = m_machine.obstacle(Process::MovingStation))
        return refused(*obstacle);
    goOn();
    addMove(actuator, operation == GoToWork ? Place::Working : Place::Home);
    return begun();
}

FirmwareReply CappingStation::beginProcedure(const QList<int> &parameters)
{
    constexpr double Duration = 10; // seconds
    WireReader reader(parameters);
    const int procedure = reader.next(0, WireBase - 1);
    for (int left = reader.next(0, WireBase - 1); left > 0; --left)
        reader.nextCounted(0);
    const bool isKnown = procedure == GearmotorProcedure || procedure == LateProcedure;
    if (!reader.isGood() || !reader.atEnd() || !isKnown)
        return refused(Reason::WrongParameters);
    if (const auto obstacle = m_machine.obstacle(Process::MovingStation))
        return refused(*obstacle);
    goOn();
    add(Activity::Calibrating, Duration);
    return begun();
}

/// Of each command the code in two digits, how many kinds of it there are, and these.
FirmwareReply CappingStation::tellCommands()
{
    constexpr int High = 0; // digit of the codes, which are all small
    const QList<int> actuators{0x27, High, 6, 1, 2, 3, 4, 5, 6};
    const QList<int> procedures{0x28, High, 2, GearmotorProcedure, LateProcedure};
    const QList<int> cycles{0x32, High, 5, 0, 1, 2, 3, 4};
    const QList<int> listing{0x37, High, 0};
    return replied(QList<int>{4} + actuators + procedures + cycles + listing);
}

} // namespace quv
