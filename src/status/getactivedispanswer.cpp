// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/getactivedispanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "status/activedispanswerparams.h"
#include "status/activemixeranswerparams.h"
#include "status/dispenserstatus_p.h"
#include "status/machinestatus_p.h"
#include "status/mixerstatus_p.h"

namespace quv {

template <>
const FieldType &fieldType<QList<DispenserStatus>>()
{
    static constexpr FieldType type = listedObjectsType<DispenserStatus>();
    return type;
}

template <>
const FieldType &fieldType<QList<MixerStatus>>()
{
    static constexpr FieldType type = listedObjectsType<MixerStatus>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal noDispensers = {"DE03209", "GetActiveDispAnswer: expected disp_list value"};
constexpr quv::Refusal noMixers = {"DE03210", "GetActiveDispAnswer: expected mixer_list value"};
constexpr quv::Refusal otherElement = {"DE03211",
                                       "GetActiveDispAnswer decoding failed: invalid QVariant value"};

int idOf(const DispenserInfo &info)
{
    return info.disp_id;
}
int idOf(const MixerInfo &info)
{
    return info.mixer_id;
}

template <class Status>
QList<int> idsOf(const QList<Status> &statuses, bool onlyActive)
{
    QList<int> ids;
    for (const Status &status : statuses) {
        const auto *info = quv::infoOf(status);
        if (info && (status.active || !onlyActive))
            ids.append(idOf(*info));
    }
    return ids;
}

template <class Status>
void appendIDs(const QList<Status> &statuses, bool onlyActive, SerialDeviceType type, int devices,
               QList<MachineID> &machines)
{
    if (!(devices & static_cast<int>(type)))
        return;
    for (const int id : idsOf(statuses, onlyActive))
        machines.append(MachineID(id, type));
}

QList<MachineID> machineIDs(const GetActiveDispAnswer &answer, bool onlyActive, int devices)
{
    QList<MachineID> machines;
    appendIDs(answer.dispensers(), onlyActive, SerialDeviceType::Dispenser, devices, machines);
    appendIDs(answer.mixers(), onlyActive, SerialDeviceType::Mixer, devices, machines);
    return machines;
}

DispenserStatus statusOf(const ActiveDispAnswerParams &params)
{
    return DispenserStatus(params.dispenser, params.connectionType, params.enabled, params.active);
}
MixerStatus statusOf(const ActiveMixerAnswerParams &params)
{
    return MixerStatus(params.mixer, params.connectionType, params.enabled, params.active);
}

/** Appends the status that the element holds, or that is made of the Params in it; false when there is neither. */
template <class Params, class Status>
bool appendStatus(const QVariant &element, QList<Status> &statuses)
{
    if (element.userType() == qMetaTypeId<Params>())
        statuses.append(statusOf(element.value<Params>()));
    else if (quv::holds<Status>(element))
        statuses.append(element.value<Status>());
    else
        return false;
    return true;
}

} // namespace

struct GetActiveDispAnswer::Description
{
    using Answer = GetActiveDispAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(dispList_TAG, &Answer::m_dispensers, {}, otherElement)
                    .otherType(noDispensers)
                    .meaning("of each dispenser what the driver has under way, and which it is"),
                quv::Member<Answer>(mixerList_TAG, &Answer::m_mixers)
                    .otherType(noMixers)
                    .meaning("the same of each mixer")};
    }
};

template class quv::DescribedAnswer<GetActiveDispAnswer, ConfProtoAnswer>;

GetActiveDispAnswer::GetActiveDispAnswer(const QList<MachineStatus *> &statuses)
    : GetActiveDispAnswer(MachineStatus::filterDispenserStatus(statuses),
                          MachineStatus::filterMixerStatus(statuses))
{}

GetActiveDispAnswer::GetActiveDispAnswer(const QList<DispenserStatus> &dispensers,
                                         const QList<MixerStatus> &mixers)
    : m_dispensers(dispensers),
      m_mixers(mixers)
{}

GetActiveDispAnswer::GetActiveDispAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetActiveDispAnswer::GetActiveDispAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    for (const QVariant &element : qAsConst(list)) {
        const bool isMachine = quv::madeOrRefused(otherElement, Q_FUNC_INFO, [&] {
            return appendStatus<ActiveDispAnswerParams>(element, m_dispensers) ||
                   appendStatus<ActiveMixerAnswerParams>(element, m_mixers);
        });
        if (!isMachine)
            quv::throwRefusal(otherElement, Q_FUNC_INFO);
    }
}

GetActiveDispAnswer *GetActiveDispAnswer::clone() const
{
    return new GetActiveDispAnswer(*this);
}

void GetActiveDispAnswer::clear()
{
    m_dispensers.clear();
    m_mixers.clear();
}

QList<int> GetActiveDispAnswer::getDispenserIDs() const
{
    return idsOf(m_dispensers, false);
}

QList<int> GetActiveDispAnswer::getActiveDispenserIDs() const
{
    return idsOf(m_dispensers, true);
}

QList<int> GetActiveDispAnswer::getMixerIDs() const
{
    return idsOf(m_mixers, false);
}

QList<int> GetActiveDispAnswer::getActiveMixerIDs() const
{
    return idsOf(m_mixers, true);
}

QList<MachineID> GetActiveDispAnswer::getMachineIDs(int devices) const
{
    return machineIDs(*this, false, devices);
}

QList<MachineID> GetActiveDispAnswer::getActiveMachineIDs(int devices) const
{
    return machineIDs(*this, true, devices);
}

QList<const MachineStatus *> GetActiveDispAnswer::machineStatusList() const
{
    QList<const MachineStatus *> statuses;
    for (const DispenserStatus &status : m_dispensers)
        statuses.append(&status);
    for (const MixerStatus &status : m_mixers)
        statuses.append(&status);
    return statuses;
}
