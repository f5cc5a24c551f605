// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/pourrequest.h"
#include "xmlrpccodec.h"

#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/airpurgecmd.h"
#include "dispensing/channeltintcmd.h"
#include "dispensing/pack2cmd.h"
#include "dispensing/packcmd.h"
#include "dispensing/priming2cmd.h"
#include "dispensing/primingcmd.h"
#include "dispensing/purgeformulacmd.h"
#include "dispensing/tintcmd.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QLoggingCategory>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>

// From a client's command to what the firmware makes of it: the request travels as XML, the driver makes its command of it,
// and the simulated firmware's own reader reads the integers back. What comes out must be what was drawn by lot.

namespace {

using quv::PourLayout;
using quv::PourPart;

constexpr int Circuits = 40;
constexpr int StepsPerGram = 10;
constexpr int Speed = 45;
constexpr int Rounds = 250;

/** The speed of the motor at the position, which differs from the calibration's. */
int motorSpeed(int position)
{
    return 60 + position;
}

/** Forty circuits at the positions from 1 on; the queue of a circuit is 50 more than its position. */
FW_Dispenser machine()
{
    FW_Dispenser dispenser;
    dispenser.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    dispenser.setTintingParallelism(2);
    for (int position = 1; position <= Circuits; ++position) {
        FW_DosingMotor motor;
        motor.setStepsPerStroke(3000);
        motor.setMaxSpeed(motorSpeed(position));
        FW_Circuit circuit(100 + position, position);
        circuit.setDosingMotor(motor);
        circuit.setQueueID(50 + position);
        circuit.setCalibration(
            FW_Calibration({{StepsPerGram, 1, Speed, 0}, {1000 * StepsPerGram, 1000, Speed, 0}}));
        FW_Canister canister(200 + position);
        canister.setMaximumQuantity(1e9);
        canister.setCurrentQuantity(1e8);
        canister.setColorantCode(QStringLiteral("C%1").arg(position));
        canister.addCircuit(circuit);
        dispenser.addColorant(FW_Colorant(QStringLiteral("C%1").arg(position)));
        dispenser.addCanister(canister);
    }
    return dispenser;
}

/** Circuits and amounts by lot: some of the positions, each once, in any order. */
class Lots
{
public:
    explicit Lots(unsigned seed) : m_generator(seed) {}

    int number(int min, int max) { return std::uniform_int_distribution<int>(min, max)(m_generator); }

    /** A number of any magnitude from 1 to 2^bits. */
    qint64 amount(int bits)
    {
        const qint64 half = qint64(1) << number(0, bits - 1);
        return half + std::uniform_int_distribution<qint64>(0, half - 1)(m_generator);
    }

    QList<int> positions()
    {
        QList<int> all;
        for (int position = 1; position <= Circuits; ++position)
            all.append(position);
        std::shuffle(all.begin(), all.end(), m_generator);
        return all.mid(0, number(1, Circuits));
    }

private:
    std::mt19937 m_generator;
};

/** How an item of this type calls the circuit at the position. */
QString nameOf(int position, int formulaType)
{
    switch (formulaType) {
    case Formula::CircuitIDs:
        return QString::number(100 + position);
    case Formula::CanisterIDs:
        return QString::number(200 + position);
    case Formula::ColorantCodes:
        return QStringLiteral("C%1").arg(position);
    default:
        return QString::number(position);
    }
}

/** What a client asks for, and what the firmware must read of it. */
struct Pour
{
    Formula formula;
    std::vector<PourPart> parts;
};

Pour pourByLot(Lots &lots, Formula::QuantityUnit unit)
{
    Pour pour;
    pour.formula.setFormulaType(lots.number(1, 4));
    pour.formula.setQuantityUnit(unit);
    for (const int position : lots.positions()) {
        const bool isWeight = unit == Formula::WeightOrVolume;
        const qint64 amount =
            unit == Formula::Strokes ? lots.number(2, 30000) : lots.amount(isWeight ? 30 : 45);
        const int ownQueue = lots.number(0, 1) == 1 ? lots.number(1, 245) : 0;
        const double quantity = isWeight ? double(amount) / StepsPerGram : double(amount);
        pour.formula.addItem({nameOf(position, pour.formula.formulaType()), quantity, ownQueue, 0});
        pour.parts.push_back({position, ownQueue != 0 ? ownQueue : 50 + position,
                              isWeight ? Speed : motorSpeed(position), 0, amount, 0});
    }
    return pour;
}

/** The driver's command of a client's request, which has travelled as XML. */
std::unique_ptr<SerialProtoCommand> received(const ProtoCommand &sent, const FW_Dispenser &dispenser)
{
    const QByteArray document = quv::writeMethodCall("EXEC_B", sent.toXmlRpcValue(QString()));
    const XmlRpc::XmlRpcValue request = quv::parseMethodCall(document).params;
    QString name;
    if (!DecodeXmlRpcValue(request, 0, name))
        throw std::runtime_error("the request has no name");
    XmlRpc::XmlRpcValue arguments;
    arguments.setSize(0);
    for (int i = 1; i < request.size(); ++i)
        arguments[i - 1] = request[i];
    std::unique_ptr<ProtoCommand> command(ProtoCommandList::getProtoCommand(name, arguments, &dispenser));
    auto *serial = dynamic_cast<SerialProtoCommand *>(command.get());
    if (!serial)
        throw std::runtime_error("the command is not the firmware's");
    static_cast<void>(command.release());
    return std::unique_ptr<SerialProtoCommand>(serial);
}

void expectParts(const SerialProtoCommand &command, PourLayout layout, int criterion,
                 const std::vector<PourPart> &parts)
{
    const auto request = quv::readPourRequest(layout, command.serialParameters(1));
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(request->criterion, criterion);
    ASSERT_EQ(request->parts.size(), parts.size());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(request->parts[i].position, parts[i].position);
        EXPECT_EQ(request->parts[i].queue, parts[i].queue);
        EXPECT_EQ(request->parts[i].speed, parts[i].speed);
        EXPECT_EQ(request->parts[i].amount, parts[i].amount);
    }
}

std::vector<PourPart> withQueue(std::vector<PourPart> parts, int queue)
{
    for (PourPart &part : parts)
        part.queue = queue;
    return parts;
}

PCircuitFormula circuitsByLot(Lots &lots, bool withStrokes, std::vector<PourPart> &parts)
{
    PCircuitFormula formula;
    formula.executionCriterion = lots.number(1, 2);
    for (const int position : lots.positions()) {
        const int strokes = withStrokes ? int(lots.amount(24)) : 0;
        const PCircuit circuit(position, lots.number(0, 245), lots.number(1, 245), strokes);
        formula.targetCircuits.append(circuit);
        parts.push_back({position, circuit.queueID, circuit.speed, 0, strokes, 0});
    }
    return formula;
}

/** Many rounds, each with lots of its own. */
template <class Round>
void play(unsigned seed, Round round)
{
    const FW_Dispenser dispenser = machine();
    Lots lots(seed);
    for (int i = 0; i < Rounds; ++i) {
        SCOPED_TRACE(i);
        round(lots, dispenser);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(PourRoundTrip, aTintByWeightKeepsCircuitsStepsSpeedsAndQueues)
{
    play(1, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::WeightOrVolume);
        expectParts(*received(TintCmd(pour.formula, nullptr), dispenser), PourLayout::Tint, 2, pour.parts);
    });
}

TEST(PourRoundTrip, aTintInStepsKeepsThemToTheLast)
{
    play(2, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::Steps);
        expectParts(*received(TintCmd(pour.formula, nullptr), dispenser), PourLayout::Tint, 2, pour.parts);
    });
}

TEST(PourRoundTrip, aTintWithoutQueuesHasNone)
{
    play(3, [](Lots &lots, const FW_Dispenser &dispenser) {
        Pour pour = pourByLot(lots, Formula::WeightOrVolume);
        pour.formula.setExecutionCriterion(1);
        expectParts(*received(TintCmd(pour.formula, nullptr), dispenser), PourLayout::Tint, 1,
                    withQueue(pour.parts, 0));
    });
}

TEST(PourRoundTrip, aTintInItsNewFormTellsTheContentsAsWell)
{
    play(4, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::WeightOrVolume);
        const auto command = received(TintCmd(pour.formula, nullptr), dispenser);
        ASSERT_TRUE(command->setCommand("TINT2"));
        expectParts(*command, PourLayout::Tint2, 2, pour.parts);
        const auto request = quv::readPourRequest(PourLayout::Tint2, command->serialParameters(1));
        EXPECT_FALSE(request->isPurge);
        EXPECT_EQ(request->parts.front().checkLevel, 10000000)
            << "100,000,000 grams of 10 steps, in hundreds";
    });
}

TEST(PourRoundTrip, aPurgeOfAFormulaIsTheSamePourWithAMark)
{
    QLoggingCategory::setFilterRules(QStringLiteral("quvprotocol.*.debug=false"));
    play(5, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::WeightOrVolume);
        const auto command = received(PurgeFormulaCmd(pour.formula, nullptr), dispenser);
        expectParts(*command, PourLayout::Tint, 2, pour.parts);
        ASSERT_TRUE(command->setCommand("TINT2"));
        expectParts(*command, PourLayout::Tint2, 2, pour.parts);
        EXPECT_TRUE(quv::readPourRequest(PourLayout::Tint2, command->serialParameters(1))->isPurge);
    });
}

TEST(PourRoundTrip, aChannelTintHasItsChannelForAQueue)
{
    play(6, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::WeightOrVolume);
        const int channel = lots.number(1, 2);
        expectParts(*received(ChannelTintCmd(channel, pour.formula, &dispenser), dispenser), PourLayout::Tint,
                    2, withQueue(pour.parts, channel));
    });
}

TEST(PourRoundTrip, aPrimingKeepsItsStrokes)
{
    play(7, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::Strokes);
        expectParts(*received(PrimingCmd(pour.formula, nullptr), dispenser), PourLayout::Tint, 3,
                    withQueue(pour.parts, 0));
    });
}

TEST(PourRoundTrip, aPackMovesEachCircuit)
{
    play(8, [](Lots &lots, const FW_Dispenser &dispenser) {
        const Pour pour = pourByLot(lots, Formula::Strokes);
        const int movement = lots.number(0, 1);
        std::vector<PourPart> parts = withQueue(pour.parts, 0);
        for (PourPart &part : parts)
            part.amount = movement;
        expectParts(*received(PackCmd(movement, pour.formula, nullptr), dispenser), PourLayout::Tint, 3,
                    parts);
    });
}

TEST(PourRoundTrip, aPrimingOfCircuitsKeepsAllNumbers)
{
    play(9, [](Lots &lots, const FW_Dispenser &dispenser) {
        std::vector<PourPart> parts;
        const PCircuitFormula formula = circuitsByLot(lots, true, parts);
        expectParts(*received(Priming2Cmd(formula, nullptr), dispenser), PourLayout::Strokes,
                    formula.executionCriterion, parts);
    });
}

TEST(PourRoundTrip, aPackOfCircuitsKeepsAllNumbersWithAndWithoutStrokes)
{
    play(10, [](Lots &lots, const FW_Dispenser &dispenser) {
        std::vector<PourPart> parts;
        const PCircuitFormula formula = circuitsByLot(lots, lots.number(0, 1) == 1, parts);
        expectParts(*received(Pack2Cmd(formula, nullptr), dispenser), PourLayout::Strokes,
                    formula.executionCriterion, parts);
        expectParts(*received(AirpurgeCmd(formula, nullptr), dispenser), PourLayout::Strokes, 9, parts);
    });
}

} // namespace
