// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/mixercycle.h"

#include "base/record_p.h"
#include "processes/mixercycle_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingList<MixerCycle>("MixerCycle", "QList<MixerCycle>");

const quv::Record<MixerCycle> &record()
{
    constexpr quv::Refusal bad = quv::badMixerCycle;
    static const quv::Record<MixerCycle> record({
        {MixerCycle::cycleType_TAG, &MixerCycle::cycleType, bad},
        {MixerCycle::mixingSpeed_TAG, &MixerCycle::mixingSpeed, bad},
        {MixerCycle::clampingForce_TAG, &MixerCycle::clampingForce, bad},
        {MixerCycle::duration_TAG, &MixerCycle::duration, bad},
    });
    return record;
}

} // namespace

MixerCycle::MixerCycle(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue MixerCycle::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool MixerCycle::operator==(const MixerCycle &other) const
{
    return record().equal(*this, other);
}
