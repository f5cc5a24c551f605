// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/pro_cdata.h"

#include "configuration/referenceconfdata_p.h"

namespace {

using Shared = SharedPart<FW_FlowCorrection>;

int take(Shared &shared, const FW_Dispenser &dispenser)
{
    const FW_FlowCorrection *correction = dispenser.getFlowCorrectionByConfigRef(shared.reference);
    if (!correction)
        return ConfData::Absent;
    shared.part = *correction;
    return ConfData::Enabled;
}

bool give(const Shared &shared, FW_Dispenser &dispenser, bool)
{
    return dispenser.updateFlowCorrectionData(shared.reference, shared.part);
}

template <auto member>
constexpr quv::ConfAccess<Shared> plain = {[](const Shared &shared) { return shared.part.*member; },
                                           [](Shared &shared, int value) { shared.part.*member = value; }};

/** A delay, which travels in tenths of a second. */
template <auto member>
constexpr quv::ConfAccess<Shared> delay = {
    [](const Shared &shared) { return quv::scaled(shared.part.*member, 10); },
    [](Shared &shared, int value) { shared.part.*member = value / 10.0; }};

} // namespace

namespace quv {

template <>
const ReferenceStructure<Shared> &referenceStructure()
{
    using Part = FW_FlowCorrection;
    static const ReferenceStructure<Shared> structure = {
        22,
        {"DE02299", "Invalid Dispenser data", "DE02810", "DE02301", "DE02308", "DE02309", "DE02310"},
        "DE02298",
        "Invalid flow correction configuration reference",
        [](Shared &shared) { shared.part.setDefaults(-1); },
        take,
        give,
        {
            {"Profile ID", "DE02302", byMember<Shared, &Shared::reference>},
            {"Overcharge Steps", "DE02303", plain<&Part::overchargeSteps>},
            {"Predispense Steps", "DE02304", plain<&Part::predispenseSteps>},
            {"Bottom Delay", "DE02305", delay<&Part::bottomDelay>},
            {"Top Delay", "DE02312", delay<&Part::topDelay>},
            {"Zonal Flow Correction Level", "DE02306", plain<&Part::zonalFlowCorrectionLevel>},
            {"Zonal Delay Level", "DE02307", plain<&Part::zonalDelayLevel>},
        },
    };
    return structure;
}

} // namespace quv

template class ReferenceConfData<Shared>;

PRO_cdata::PRO_cdata(int reference, const FW_Machine *machine)
    : ReferenceConfData(reference, machine, Q_FUNC_INFO)
{}

PRO_cdata::PRO_cdata(QStringList tokens, int fieldCount) : ReferenceConfData(tokens, fieldCount, Q_FUNC_INFO)
{}

PRO_cdata::PRO_cdata(QString row) : ReferenceConfData(row, Q_FUNC_INFO) {}

PRO_cdata *PRO_cdata::clone() const
{
    return new PRO_cdata(*this);
}
