// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ram_cdata.h"

#include "configuration/referenceconfdata_p.h"

namespace {

using Shared = SharedPart<FW_Ramp>;

int take(Shared &shared, const FW_Dispenser &dispenser)
{
    const FW_Ramp *ramp = dispenser.getRampByConfigRef(shared.reference);
    if (!ramp)
        return ConfData::Absent;
    shared.part = *ramp;
    return ramp->isEnabled() ? ConfData::Enabled : ConfData::Disabled;
}

bool give(const Shared &shared, FW_Dispenser &dispenser, bool enabled)
{
    FW_Ramp ramp = shared.part;
    ramp.setEnabled(enabled);
    return dispenser.updateRampData(shared.reference, ramp);
}

template <auto get, auto set>
constexpr quv::ConfAccess<Shared> rampValue = {[](const Shared &shared) { return (shared.part.*get)(); },
                                               [](Shared &shared, int value) { (shared.part.*set)(value); }};

} // namespace

namespace quv {

template <>
const ReferenceStructure<Shared> &referenceStructure()
{
    static const ReferenceStructure<Shared> structure = {
        10,
        {"DE00266", "Invalid data", "DE02806", "DE00268", "DE00274", "DE00275", "DE00276"},
        nullptr,
        "",
        [](Shared &shared) { shared.part.setDefaults(); },
        take,
        give,
        {
            {"Ramp ID", "DE00269", byMember<Shared, &Shared::reference>},
            {"Slow speed steps after valve open", "DE00270",
             rampValue<&FW_Ramp::initialSteps, &FW_Ramp::setInitialSteps>},
            {"Slow speed steps before valve close", "DE00271",
             rampValue<&FW_Ramp::finalSteps, &FW_Ramp::setFinalSteps>},
            {"Ramp speed threshold", "DE00272",
             rampValue<&FW_Ramp::speedThreshold, &FW_Ramp::setSpeedThreshold>},
            {"Ramp slow speed", "DE00273", rampValue<&FW_Ramp::slowSpeed, &FW_Ramp::setSlowSpeed>},
        },
    };
    return structure;
}

} // namespace quv

template class ReferenceConfData<Shared>;

RAM_cdata::RAM_cdata(int rampReference, const FW_Machine *machine)
    : ReferenceConfData(rampReference, machine, Q_FUNC_INFO)
{}

RAM_cdata::RAM_cdata(QStringList tokens, int fieldCount) : ReferenceConfData(tokens, fieldCount, Q_FUNC_INFO)
{}

RAM_cdata::RAM_cdata(QString row) : ReferenceConfData(row, Q_FUNC_INFO) {}

RAM_cdata *RAM_cdata::clone() const
{
    return new RAM_cdata(*this);
}
