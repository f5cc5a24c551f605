// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/mot_cdata.h"

#include "configuration/referenceconfdata_p.h"

#include <type_traits>

namespace {

using Shared = SharedTransmission;

int take(Shared &shared, const FW_Dispenser &dispenser)
{
    const FW_SingleTransmission *transmission = dispenser.getSingleTransmissionByConfigRef(shared.reference);
    if (!transmission)
        return ConfData::Absent;
    shared.part = *transmission;
    const auto motors = dispenser.getDosingMotorsBySingleTransmissionConfigRef(shared.reference);
    shared.smartSpeed = !motors.isEmpty() && motors.constFirst()->hasSmartSpeedReduction();
    return ConfData::Enabled;
}

bool give(const Shared &shared, FW_Dispenser &dispenser, bool)
{
    if (!dispenser.updateSingleTransmissionData(shared.reference, shared.part))
        return false;
    for (FW_DosingMotor *motor : dispenser.getDosingMotorsBySingleTransmissionConfigRef(shared.reference))
        motor->setSmartSpeedReduction(shared.smartSpeed);
    return true;
}

/** A value that travels \a scale times as great, in whole numbers. */
template <auto member, int scale = 1>
constexpr quv::ConfAccess<Shared> value = {
    [](const Shared &shared) { return quv::scaled(shared.part.*member, scale); },
    [](Shared &shared, int number) {
        using Value = std::decay_t<decltype(shared.part.*member)>;
        shared.part.*member = static_cast<Value>(number) / scale;
    }};

constexpr quv::ConfAccess<Shared> smartSpeed = {
    [](const Shared &shared) { return int(shared.smartSpeed); },
    [](Shared &shared, int number) { shared.smartSpeed = number != 0; }};

} // namespace

namespace quv {

template <>
const ReferenceStructure<Shared> &referenceStructure()
{
    using Part = FW_SingleTransmission;
    static const ReferenceStructure<Shared> structure = {
        19,
        {"DE01930", "Invalid data", "DE02809", "DE01963", "DE01981", "DE01982", "DE01983"},
        "DE01943",
        "Invalid single transmission configuration reference",
        [](Shared &shared) { shared.part.setDefaults(); },
        take,
        give,
        {
            {"Motor ID", "DE01964", byMember<Shared, &Shared::reference>},
            {"Motor rated current", "DE01965", value<&Part::motorRatedCurrent, 100>},
            {"Inverter rated current", "DE01966", value<&Part::inverterRatedCurrent, 100>},
            {"Inverter overload multiplier", "DE01967", value<&Part::inverterOverloadMultiplier, 100>},
            {"Overload motor control enable (DSC)", "DE01968", smartSpeed, Mandatory, nullptr,
             "Overload motor control enable"},
            {"Motor current multiplier", "DE01969", value<&Part::motorCurrentMultiplier, 100>},
            {"Motor overload timeout", "DE01970", value<&Part::motorOverloadTimeout>},
            {"Motor overload step", "DE01971", always<Shared, 10>},
            {"Motor max speed", "DE01972", value<&Part::motorMaxSpeed>},
            {"Y1 coordinate", "DE01973", value<&Part::y1, 10>},
            {"Y2 coordinate", "DE01974", value<&Part::y2, 10>},
            {"X1 coordinate", "DE01975", value<&Part::x1, 10>},
            {"X2 coordinate", "DE01976", value<&Part::x2, 10>},
            {"Motor speed error tolerance", "DE01977", value<&Part::motorSpeedErrorTolerance>},
            {"Encoder pulses", "DE01978", value<&Part::encoderPulses>},
            {"Encoder channels", "DE01979", value<&Part::encoderChannels>},
            {"Encoder step fraction", "DE01980", value<&Part::encoderStepFraction>},
            {"Inverter current max value", "DE02947", value<&Part::inverterCurrentMax, 10>, 18},
            {"Inverter voltage max value", "DE02948", value<&Part::inverterVoltageMax, 10>, 19},
        },
    };
    return structure;
}

} // namespace quv

template class ReferenceConfData<Shared>;

MOT_cdata::MOT_cdata(int reference, const FW_Machine *machine)
    : ReferenceConfData(reference, machine, Q_FUNC_INFO)
{}

MOT_cdata::MOT_cdata(QStringList tokens, int fieldCount) : ReferenceConfData(tokens, fieldCount, Q_FUNC_INFO)
{}

MOT_cdata::MOT_cdata(QString row) : ReferenceConfData(row, Q_FUNC_INFO) {}

MOT_cdata *MOT_cdata::clone() const
{
    return new MOT_cdata(*this);
}
