// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/circuitsstatuscmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "status/circuitsstatusanswer.h"
#include "status/dispenserstatuscmd.h"

#include <QuvFramework/fw_dispenser.h>

#include <utility>

namespace {

constexpr char answerFailed[] = "Failed to create CircuitsStatusAnswer";
constexpr quv::Refusal badForm = {"DE01155", "Bad command parameter"};
constexpr quv::Refusal noPositions = {"DE01156", "Bad command parameter"};
constexpr quv::Refusal badPosition = {"DE01157", "Bad command parameter"};
constexpr quv::Refusal badListPosition = {"DE01159", "Positions ID: expected INT parameter"};

constexpr char notThere[] = "One or more positions ID not present or disabled";
constexpr quv::Refusal typedNotThere = {"DE01154", notThere};
constexpr quv::Refusal valueNotThere = {"DE01158", notThere};
constexpr quv::Refusal listNotThere = {"DE01160", notThere};

using XmlRpc::XmlRpcValue;

/** The positions of the struct, or the single one. */
QList<int> positionsOf(const XmlRpcValue &argument, const char *function)
{
    int position = 0;
    if (DecodeXmlRpcValue(argument, position))
        return {position};
    if (argument.getType() != XmlRpcValue::TypeStruct)
        quv::throwRefusal(badForm, function);
    return quv::typedMember<QList<int>>(argument, CircuitsStatusCmd::CIRCUIT_POSITIONS, noPositions,
                                        badPosition, function);
}

QList<int> positionsOf(const QList<QVariant> &list, const char *function)
{
    QList<int> positions;
    for (const QVariant &element : list) {
        int position = 0;
        if (!quv::decodeVariant(element, position))
            quv::throwRefusal(badListPosition, function);
        positions.append(position);
    }
    return positions;
}

/** What a request for these positions asks for: with a dispenser only for what it has, and for all that when there is none. */
QList<int> checkedPositions(const QList<int> &positions, const FW_Dispenser *dispenser,
                            const quv::Refusal &refusal, const char *function)
{
    if (!dispenser)
        return positions;
    if (positions.isEmpty())
        return quv::madeOrRefused({"DE01175", "An error occurred building position ID list"}, function,
                                  [dispenser] { return dispenser->getPositionsIDList(true); });
    if (!dispenser->hasCircuitPositions(positions, true))
        quv::throwRefusal(refusal, function);
    return positions;
}

} // namespace

struct CircuitsStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CIRCUITS_STATUS;

    // the firmware never answers it as a whole
    static constexpr quv::AnsweredBy<CircuitsStatusAnswer> answer = {
        {}, {"DE00771", answerFailed}, {"DE01262", answerFailed}, {"DE01161", answerFailed}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        XmlRpcValue all;
        all[CIRCUIT_POSITIONS].setSize(0);
        teller.argument({"positions",
                         "a circuit's position, or a struct with an array of them; none stands for all "
                         "(in a list each is an argument of its own)"},
                        "struct", all);
        teller.refuse("another type", {badForm, {}});
        teller.refuse("a struct without the array", {noPositions, {}});
        teller.refuse("an element of another type", {badPosition, badListPosition});
        teller.refuse("a circuit that is not there or not enabled", {valueNotThere, listNotThere});
    }
};

template class quv::DescribedCommand<CircuitsStatusCmd, SerialProtoCommand>;

CircuitsStatusCmd::CircuitsStatusCmd(QList<int> positions, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser),
      m_positions(checkedPositions(positions, dispenser, typedNotThere, Q_FUNC_INFO))
{}

CircuitsStatusCmd::CircuitsStatusCmd(const XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    const XmlRpcValue *argument = FindXmlRpcElement(value, 0);
    m_positions = checkedPositions(argument ? positionsOf(*argument, Q_FUNC_INFO) : QList<int>(), dispenser,
                                   valueNotThere, Q_FUNC_INFO);
}

CircuitsStatusCmd::CircuitsStatusCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser),
      m_positions(checkedPositions(positionsOf(list, Q_FUNC_INFO), dispenser, listNotThere, Q_FUNC_INFO))
{}

CircuitsStatusCmd *CircuitsStatusCmd::clone() const
{
    return new CircuitsStatusCmd(*this);
}

QList<QVariant> CircuitsStatusCmd::parameters() const
{
    return intListToVariant(m_positions);
}

XmlRpcValue CircuitsStatusCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array.setSize(0);
    if (!m_positions.isEmpty())
        EncodeXmlRpcValue(array[0], CIRCUIT_POSITIONS, m_positions);
    return array;
}

bool CircuitsStatusCmd::setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error)
{
    auto *status = dynamic_cast<DispenserStatusAnswer *>(answer);
    if (!status)
        return true;
    auto *gathered = dynamic_cast<CircuitsStatusAnswer *>(m_protoAnswer.get());
    if (m_protoAnswer && !gathered)
        return FW_DriverError::D_E("DE01164", answerFailed, error);

    std::unique_ptr<CircuitsStatusAnswer> first; // kept only with something in it
    if (!gathered) {
        if (!quv::guarded("DE01162", answerFailed, error,
                          [&] { first = std::make_unique<CircuitsStatusAnswer>(); }))
            return false;
        gathered = first.get();
    }
    bool appended = false;
    quv::guarded("DE01163", answerFailed, error, [&] {
        appended =
            gathered->appendDispenserStatusAnswer(status, dynamic_cast<DispenserStatusCmd *>(command), error);
    });
    if (appended && first)
        m_protoAnswer = std::move(first);
    return appended;
}
