// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/autotestseries_p.h"

#include "dispensing/packcmd.h"
#include "dispensing/tintcmd.h"
#include "processes/autocapcmd.h"
#include "processes/cleaningcmd.h"
#include "processes/pausecmd.h"
#include "processes/recirculationcmd.h"
#include "processes/resetcmd.h"
#include "processes/setdispoutputcmd.h"
#include "processes/shelfcmd.h"
#include "processes/stirallcmd.h"
#include "processes/turntablemovecmd.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_positioningredient.h>
#include <QuvFramework/fw_utils.h>

#include <QtCore/QLoggingCategory>

#include <algorithm>
#include <iterator>
#include <utility>

// made where their descriptions are
extern template class quv::DescribedCommand<AutocapCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<CleaningCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<PackCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<PauseCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<RecirculationCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<ResetCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<SetDispOutputCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<ShelfCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<StirAllCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<TintCmd, SerialProtoCommand>;
extern template class quv::DescribedCommand<TurntableMoveCmd, SerialProtoCommand>;

namespace {

Q_LOGGING_CATEGORY(machineLog, "quvprotocol.machine")

constexpr uint stirInterval = 500; // milliseconds

/** The greatest speed of a timed process; calibrations know greater ones. */
constexpr int maxProcessSpeed = 100;

/** Builds the series; each operation appends a piece of it. */
class SeriesBuilder
{
public:
    explicit SeriesBuilder(const FW_Dispenser &dispenser);

    bool isEmpty() const { return m_circuits.isEmpty(); } ///< true when nothing can be tested
    AutotestCmd::CommandList result() { return std::move(m_series); }

    void addLirador(int cycles);
    void addRotan(int cycles);
    void addOther(int cycles);

private:
    template <class Command, class... Arguments>
    void add(Arguments &&...arguments)
    {
        m_series.push_back(std::make_unique<Command>(std::forward<Arguments>(arguments)...));
    }

    void addTurns();
    void addPourOfRandomQuantities();
    void addPourOfRandomSpeeds();
    void addShortStirring();
    void addValves();
    void addRecirculations();
    void addCap();
    void addShelf();
    void addUnpacking();
    void addPours();

    void addRandomPour(const Formula &formula);
    void addPour(const FW_Circuit &circuit, int strokes, int speed);
    int nozzleValveOf(const FW_Circuit &circuit) const;

    const FW_Dispenser &m_dispenser;
    QVector<const FW_Circuit *> m_circuits; ///< that can pour, by their positions
    AutotestCmd::CommandList m_series;
};

/** A formula by circuit positions, to be filled. */
Formula emptyFormula(int quantityUnit)
{
    Formula formula;
    formula.setQuantityUnit(quantityUnit);
    return formula;
}

/** True for a circuit whose pours can be told in strokes. */
bool knowsStrokes(const FW_Circuit *circuit)
{
    return circuit->dosingMotor().stepsPerStroke() > 0;
}

SeriesBuilder::SeriesBuilder(const FW_Dispenser &dispenser) : m_dispenser(dispenser)
{
    for (const FW_Canister *canister : dispenser.getEnabledCanisters(true)) {
        for (const FW_Circuit &circuit : canister->circuits()) {
            if (circuit.isEnabled() && circuit.hasDosingMotor())
                m_circuits.append(&circuit);
        }
    }
    std::sort(m_circuits.begin(), m_circuits.end(), [](const FW_Circuit *left, const FW_Circuit *right) {
        return left->positionId() < right->positionId();
    });
}

// ---------------------------------------------------------------- the machines

void SeriesBuilder::addLirador(int cycles)
{
    constexpr int restPosition = 244;
    add<ResetCmd>();
    addTurns();
    for (int cycle = 0; cycle < cycles; ++cycle)
        addPourOfRandomQuantities();
    addTurns();
    add<TurntableMoveCmd>(restPosition);
}

void SeriesBuilder::addRotan(int cycles)
{
    constexpr int brush = 1;
    constexpr int seconds = 4;
    constexpr int allCircuits = 0;
    add<ResetCmd>();
    for (int cycle = 0; cycle < cycles; ++cycle) {
        addPourOfRandomSpeeds();
        add<CleaningCmd>(brush, FWProcess::configSpeed(), seconds, allCircuits, true);
        addShortStirring();
    }
}

void SeriesBuilder::addOther(int cycles)
{
    constexpr int restTime = 30000;
    constexpr qlonglong longStirring = 30;
    constexpr qlonglong shortStirring = 2;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        addValves();
        add<PauseCmd>(restTime);
        add<StirAllCmd>(longStirring, true, stirInterval, &m_dispenser);
        addRecirculations();
        addCap();
        addShelf();
        addUnpacking();
        addPours();
        add<StirAllCmd>(shortStirring, true, stirInterval, &m_dispenser);
    }
    add<ResetCmd>();
}

// ---------------------------------------------------------------- pieces of rotating machines

/** Turns the table to and fro by half of its circuits, each time from the next one on. */
void SeriesBuilder::addTurns()
{
    constexpr int rounds = 5;
    const QList<int> positions = m_dispenser.getPositionsIDSortedByCanister(true);
    const int count = positions.size();
    if (count < 2)
        return;
    for (int round = 0; round < rounds; ++round) {
        add<TurntableMoveCmd>(positions.at(round % count));
        add<TurntableMoveCmd>(positions.at((round + count / 2) % count));
    }
}

/** Pours of some circuits what their calibrations were measured with, at no greater speed than that of the motor. */
void SeriesBuilder::addPourOfRandomQuantities()
{
    Formula formula = emptyFormula(Formula::Steps);
    for (const int id : m_dispenser.getRandomCircuitsID(getRandomNumber(1, m_circuits.size()))) {
        const FW_Circuit &circuit = *m_dispenser.getCircuitById(id);
        const QVector<FW_CalibrationPoint> &points = circuit.calibration().points();
        const double quantity = getRandomNumber(points.constFirst().quantity, points.constLast().quantity);
        long long steps = 0;
        int speed = 0;
        if (!circuit.getStepsAndSpeed(quantity, steps, speed))
            continue; // no speed of its own would be the greatest of the motor
        formula.addItem(FW_PositionIngredient(circuit.positionId(), steps,
                                              std::min(speed, circuit.maxSpeed()), nozzleValveOf(circuit))
                            .formulaItem());
    }
    addRandomPour(formula);
}

/** Pours one stroke of some circuits, at a speed between those of their calibrations. */
void SeriesBuilder::addPourOfRandomSpeeds()
{
    QVector<const FW_Circuit *> circuits;
    std::copy_if(m_circuits.cbegin(), m_circuits.cend(), std::back_inserter(circuits), knowsStrokes);
    Formula formula = emptyFormula(Formula::Steps);
    for (int count = circuits.isEmpty() ? 0 : getRandomNumber(1, circuits.size()); count > 0; --count) {
        const FW_Circuit &circuit = *circuits.takeAt(getRandomNumber(0, circuits.size() - 1));
        const FW_Calibration &calibration = circuit.calibration();
        formula.addItem(FW_PositionIngredient(circuit.positionId(), circuit.dosingMotor().stepsFromStrokes(1),
                                              getRandomNumber(calibration.minSpeed(), calibration.maxSpeed()),
                                              nozzleValveOf(circuit))
                            .formulaItem());
    }
    addRandomPour(formula);
}

void SeriesBuilder::addShortStirring()
{
    constexpr qlonglong seconds = 4;
    QList<StirItem> items;
    for (const int position : m_dispenser.getPositionsIDListOfStirringMotors(true, true))
        items.append(StirItem(QVariant(position), seconds));
    if (!items.isEmpty()) // none would stand for all activities
        add<StirAllCmd>(items, StirItem::CircuitPosition, true, stirInterval, &m_dispenser);
}

// ---------------------------------------------------------------- pieces of the other machines

void SeriesBuilder::addValves()
{
    constexpr int valveTime = 500;
    for (const FW_Circuit *circuit : qAsConst(m_circuits)) {
        const FW_Valve *valve = circuit->firstValve();
        if (!valve || !FW_Valve::checkValveType(valve->valveType()))
            continue;
        for (const auto action : {SetDispOutputCmd::OpenElectrovalve, SetDispOutputCmd::CloseElectrovalve}) {
            add<SetDispOutputCmd>(action, circuit->positionId());
            add<PauseCmd>(valveTime);
        }
    }
}

void SeriesBuilder::addRecirculations()
{
    constexpr qlonglong slowSeconds = 60;
    constexpr qlonglong fastSeconds = 30;
    const auto recirculate = [this](const FW_Circuit &circuit, qlonglong seconds, int speed) {
        // busy: the next command would end a process that is only started
        add<RecirculationCmd>(circuit.positionId(), seconds, std::min(speed, maxProcessSpeed),
                              FWProcess::Seconds, true, &m_dispenser);
    };
    for (const FW_Circuit *circuit : qAsConst(m_circuits)) {
        recirculate(*circuit, slowSeconds, circuit->calibration().minSpeed());
        recirculate(*circuit, fastSeconds, circuit->calibration().maxSpeed());
    }
}

void SeriesBuilder::addCap()
{
    constexpr int machine = 0;
    constexpr int capTime = 1000;
    if (!m_dispenser.acceptCommands(FW_Device::Autocap))
        return;
    for (const auto action : {SetDispOutputCmd::OpenCap, SetDispOutputCmd::CloseCap}) {
        add<SetDispOutputCmd>(action, machine);
        add<PauseCmd>(capTime);
    }
    add<AutocapCmd>(AutocapCmd::Open);
    add<AutocapCmd>(AutocapCmd::Close);
}

void SeriesBuilder::addShelf()
{
    constexpr int noHeight = 0;
    constexpr int shelfTime = 1000;
    if (!m_dispenser.acceptCommands(FW_Device::Shelf))
        return;
    for (const int type : {ShelfCmd::CanPosition, ShelfCmd::LowPosition}) {
        add<ShelfCmd>(type, noHeight);
        add<PauseCmd>(shelfTime);
    }
}

/** Takes the pumps out of their transport position, as far as they are in it, so that the pours behind pour. */
void SeriesBuilder::addUnpacking()
{
    constexpr int strokes = 1;
    constexpr int speed = 50;
    Formula formula = emptyFormula(Formula::Strokes);
    for (const FW_Circuit *circuit : qAsConst(m_circuits))
        formula.addCircuit(CircuitFormulaItem(*circuit, strokes, speed));
    add<PackCmd>(PackCmd::PumpUnpack, formula, &m_dispenser);
}

void SeriesBuilder::addPours()
{
    constexpr int slowStrokes = 3;
    constexpr int fastStrokes = 1;
    for (const FW_Circuit *circuit : qAsConst(m_circuits)) {
        if (!knowsStrokes(circuit))
            continue;
        addPour(*circuit, slowStrokes, circuit->calibration().minSpeed());
        addPour(*circuit, fastStrokes, circuit->calibration().maxSpeed());
    }
}

// ---------------------------------------------------------------- pours

/** Tells the log what chance has chosen. */
void SeriesBuilder::addRandomPour(const Formula &formula)
{
    if (formula.isEmpty())
        return;
    qCDebug(machineLog).noquote() << "autotest:" << formula.toPrintableString(false, &m_dispenser);
    add<TintCmd>(formula, &m_dispenser);
}

void SeriesBuilder::addPour(const FW_Circuit &circuit, int strokes, int speed)
{
    Formula formula = emptyFormula(Formula::Steps);
    formula.addItem(FW_PositionIngredient(circuit.positionId(),
                                          circuit.dosingMotor().stepsFromStrokes(strokes), speed,
                                          nozzleValveOf(circuit))
                        .formulaItem());
    add<TintCmd>(formula, &m_dispenser);
}

/** The first valve, where a pour has to name one; 0 elsewhere. */
int SeriesBuilder::nozzleValveOf(const FW_Circuit &circuit) const
{
    return m_dispenser.hasNozzleBasedDosing() ? circuit.nozzleValvesID().value(0) : 0;
}

} // namespace

namespace quv {

AutotestCmd::CommandList autotestSeries(const FW_Dispenser &dispenser, int cycles)
{
    SeriesBuilder builder(dispenser);
    if (builder.isEmpty())
        return {};
    const QString name = dispenser.modelName();
    if (dispenser.model() == MachineModel::Lirador || FW_Dispenser::isLIRADORdispenser(name))
        builder.addLirador(cycles);
    else if (dispenser.model() == MachineModel::Rotan || FW_Dispenser::isROTANV1dispenser(name))
        builder.addRotan(cycles);
    else
        builder.addOther(cycles);
    return builder.result();
}

} // namespace quv
