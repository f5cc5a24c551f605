// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "status/dispenserstatus.h"
#include "status/machinestatus.h"
#include "status/mixerstatus.h"

#include <algorithm>
#include <optional>

// What the statuses of dispensers and mixers share.

namespace quv {

/** The info of the status's own kind of machine, or none. */
inline const DispenserInfo *infoOf(const DispenserStatus &status)
{
    return status.dispenserInfo();
}
inline const MixerInfo *infoOf(const MixerStatus &status)
{
    return status.mixerInfo();
}

/** True for what travels in the place of an object that there is not. */
bool standsForNone(const XmlRpc::XmlRpcValue &value);
bool standsForNone(const QVariant &variant);

/** The info, which is of the status's own kind of machine, or what stands for none. */
XmlRpc::XmlRpcValue writtenInfo(const MachineInfo *info);

/** The T that a member is, or none. Throws \a refusal when it is missing or cannot be made. */
template <class T>
std::optional<T> optionalObject(const XmlRpc::XmlRpcValue *member, const Refusal &refusal,
                                const char *function)
{
    if (member && standsForNone(*member))
        return {};
    return decodedValue<T>(member, refusal, function);
}

/** The T that an element of a list is, or none. Throws \a refusal when it is missing or another thing. */
template <class T>
std::optional<T> optionalObject(const QList<QVariant> &list, int index, const Refusal &refusal,
                                const char *function)
{
    if (index < list.size() && standsForNone(list.at(index)))
        return {};
    return decodedVariant<T>(list.value(index), refusal, refusal, function);
}

template <class T>
const T *pointerTo(const std::optional<T> &object)
{
    return object ? &*object : nullptr;
}

/** Gives the status the info that the source is: a member, or a list and a place in it. */
template <class Info, class... Source>
void readInfo(MachineStatus &status, const Refusal &refusal, const char *function, const Source &...source)
{
    madeOrRefused(refusal, function, [&] {
        status.setMachineInfo(pointerTo(optionalObject<Info>(source..., refusal, function)));
    });
}

int SIDof(const MachineStatus *status);
inline int SIDof(const MachineStatus &status)
{
    return SIDof(&status);
}

template <class Status>
bool haveOtherSIDs(const QList<Status> &before, const QList<Status> &after)
{
    return !std::equal(before.begin(), before.end(), after.begin(), after.end(),
                       [](const auto &left, const auto &right) { return SIDof(left) == SIDof(right); });
}

template <class Status>
bool differ(const QList<Status> &before, const QList<Status> &after, SerialDeviceType type)
{
    return !std::equal(
        before.begin(), before.end(), after.begin(), after.end(),
        [type](const Status &left, const Status &right) { return left.equalTo(right, false, type); });
}

/** What clients go by: infos without the way to the machine, and what keeps the machine from working. */
bool haveSameRelevance(const MachineStatus &left, const MachineStatus &right);

} // namespace quv
