// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pcircuit.h"

#include "base/record_p.h"
#include "dispensing/pcircuitformula_p.h"

namespace {

const quv::Record<PCircuit> &record()
{
    constexpr quv::Refusal bad = quv::badPCircuit;
    static const quv::Record<PCircuit> record({
        {PCircuit::positionID_TAG, &PCircuit::positionID, bad},
        {PCircuit::queueID_TAG, &PCircuit::queueID, bad},
        {PCircuit::speed_TAG, &PCircuit::speed, bad},
        {PCircuit::strokes_TAG, &PCircuit::strokes, bad},
    });
    return record;
}

} // namespace

PCircuit::PCircuit(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue PCircuit::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool PCircuit::operator==(const PCircuit &other) const
{
    return record().equal(*this, other);
}
