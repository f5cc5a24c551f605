// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "circuitdata.h"

#include <QtCore/QList>

/** The answer to GET_CIRCUIT_LIST: the circuits of a dispenser, the member "circuit_list" of a struct. */
class QUVPROTOCOL_EXPORT GetCircuitListAnswer
    : public quv::DescribedAnswer<GetCircuitListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char circuitList_TAG[] = "circuit_list";

    GetCircuitListAnswer() = default;
    explicit GetCircuitListAnswer(const QList<CircuitData> &circuits);
    /** Throws DE03381 without an array, DE03385 for an element that cannot be made, and as CircuitData does. */
    explicit GetCircuitListAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Of each circuit an FW_Circuit and behind it, as an int, the ID of the canister that it is filled from. Throws DE03390 and DE03391
     * when either is missing or of another type, DE03385 for a circuit that cannot be made.
     */
    explicit GetCircuitListAnswer(QList<QVariant> &list);

    GetCircuitListAnswer *clone() const override;

    const QList<CircuitData> &circuitList() const { return m_circuits; }

private:
    QList<CircuitData> m_circuits;
};
