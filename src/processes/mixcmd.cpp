// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/mixcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "base/objectfield_p.h"
#include "base/requeststruct_p.h"
#include "base/wire_p.h"
#include "processes/mixercycle_p.h"

namespace {

constexpr int valuesPerCycle = 5;

constexpr char badValues[] = "MixCmd: bad xml-rpc values";
constexpr quv::Refusal noStruct = {"DE02338", badValues};
constexpr quv::Refusal noArray = {"DE02339", badValues};
constexpr quv::Refusal noCycles = {"DE02340", badValues};
constexpr quv::Refusal incorrectList = {"DE02341", "MixCmd failed: incorrect MixerCycle parameter"};
constexpr quv::Refusal noList = {"DE02342", "MixCmd failed: expected MixerCycle list type parameter"};

/** The array of cycles. */
const XmlRpc::XmlRpcValue &cyclesIn(const XmlRpc::XmlRpcValue &arguments, const char *function)
{
    const XmlRpc::XmlRpcValue &request = quv::structArgument(arguments, noStruct, function);
    return quv::arrayMember(request, MixCmd::mixerCycles_TAG, noCycles, noArray, function);
}

} // namespace

struct MixCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::MIX;
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Mix in progress");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"cycles",
                         "member \"mixer_cycles\": an array of structs of four ints, \"cycle_type\", "
                         "\"mixing_speed\", \"clamping_force\" and \"duration\"; the firmware chooses "
                         "a speed or a duration of -1"},
                        "struct");
        teller.refuse("another type", {noStruct, noList});
        teller.refuse("without mixer_cycles", {noCycles, {}});
        teller.refuse("mixer_cycles is no array", {noArray, {}});
        teller.refuse("with a bad cycle", {quv::badMixerCycle, {}});
        teller.refuse("unreadable", {{}, incorrectList});
    }
};

template class quv::DescribedCommand<MixCmd, SerialProtoCommand>;

MixCmd::MixCmd(const QList<MixerCycle> &cycles) : m_cycles(cycles) {}

MixCmd::MixCmd(int count, const MixerCycle &cycle)
{
    for (int i = 0; i < count; ++i)
        m_cycles.append(cycle);
}

MixCmd::MixCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpc::XmlRpcValue &cycles = cyclesIn(value, Q_FUNC_INFO);
    for (int i = 0; i < cycles.size(); ++i)
        m_cycles.append(MixerCycle(cycles[i]));
}

MixCmd::MixCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_cycles = quv::decodedList<MixerCycle>(list.value(0), noList, incorrectList, Q_FUNC_INFO);
}

MixCmd *MixCmd::clone() const
{
    return new MixCmd(*this);
}

QList<QVariant> MixCmd::parameters() const
{
    return {QVariant::fromValue(m_cycles)};
}

XmlRpc::XmlRpcValue MixCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = !m_cycles.isEmpty();
    XmlRpc::XmlRpcValue array;
    array.setSize(0);
    if (!m_cycles.isEmpty())
        quv::writeObjects<MixerCycle>(&m_cycles, array[0][mixerCycles_TAG]);
    return array;
}

QList<int> MixCmd::serialParameters(int) const
{
    QList<int> parameters = {0, m_cycles.size(), valuesPerCycle};
    for (const MixerCycle &cycle : m_cycles) {
        parameters << cycle.cycleType
                   << (cycle.mixingSpeed == MixerCycle::ofFirmware ? quv::unsetDigit : cycle.mixingSpeed)
                   << cycle.clampingForce;
        if (cycle.duration == MixerCycle::ofFirmware)
            parameters << quv::unsetDigit << quv::unsetDigit;
        else
            quv::appendTwoDigits(parameters, cycle.duration);
    }
    return parameters;
}
