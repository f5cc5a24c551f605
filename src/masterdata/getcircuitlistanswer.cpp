// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getcircuitlistanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "masterdata/circuitdata_p.h"

#include <QuvFramework/fw_circuit.h>

namespace quv {

template <>
const FieldType &fieldType<QList<CircuitData>>()
{
    static constexpr FieldType type = listedObjectsType<CircuitData>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notMade = {"DE03385", "GetCircuitListAnswer: errors during CircuitData creation"};
constexpr quv::Refusal noCircuit = {
    "DE03390", "GetCircuitListAnswer decoding failed: invalid QVariant value (expected FW_Circuit)"};
constexpr quv::Refusal noNumber = {
    "DE03391", "GetCircuitListAnswer decoding failed: invalid QVariant value (expected int)"};

/** Of the circuit at this place of a driver's list, and the number behind it. */
CircuitData circuitAt(const QList<QVariant> &list, int place, const char *function)
{
    const QVariant &circuit = list.at(place);
    if (circuit.userType() != qMetaTypeId<FW_Circuit>())
        quv::throwRefusal(noCircuit, function);
    int canister = 0;
    if (!quv::decodeVariant(list.value(place + 1), canister))
        quv::throwRefusal(noNumber, function);
    return CircuitData(circuit.value<FW_Circuit>(), canister);
}

} // namespace

struct GetCircuitListAnswer::Description
{
    using Answer = GetCircuitListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    circuitList_TAG, &Answer::m_circuits,
                    {"DE03381", "GetCircuitListAnswer: Errors during CircuitData list creation"}, noCircuit)
                    .unmadeElement(notMade)
                    .alsoInList("an element without a canister's ID behind it", noNumber)
                    .meaning("of each circuit where it is, what feeds it and which motors it has")};
    }
};

template class quv::DescribedAnswer<GetCircuitListAnswer, ConfProtoAnswer>;

GetCircuitListAnswer::GetCircuitListAnswer(const QList<CircuitData> &circuits) : m_circuits(circuits) {}

GetCircuitListAnswer::GetCircuitListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetCircuitListAnswer::GetCircuitListAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    const char *const function = Q_FUNC_INFO;
    for (int i = 0; i < list.size(); i += 2)
        quv::madeOrRefused(notMade, function, [&] { m_circuits.append(circuitAt(list, i, function)); });
}

GetCircuitListAnswer *GetCircuitListAnswer::clone() const
{
    return new GetCircuitListAnswer(*this);
}
