// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "../base/machineid.h"
#include "dispenserstatus.h"
#include "mixerstatus.h"

#include <QtCore/QList>

/**
 * The answer to GET_ACTIVE_DISP, GET_DISP_LIST and GET_MIXER_LIST: the dispensers and the mixers, with what the driver has under
 * way on each.
 */
class QUVPROTOCOL_EXPORT GetActiveDispAnswer
    : public quv::DescribedAnswer<GetActiveDispAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char dispList_TAG[] = "disp_list";
    static constexpr char mixerList_TAG[] = "mixer_list";

    GetActiveDispAnswer() = default;
    /** Of all that are of one of the two kinds; the statuses are copied. */
    explicit GetActiveDispAnswer(const QList<MachineStatus *> &statuses);
    explicit GetActiveDispAnswer(const QList<DispenserStatus> &dispensers,
                                 const QList<MixerStatus> &mixers = {});
    /**
     * Throws DE03209 for a disp_list and DE03210 for a mixer_list that is no array, and what DispenserStatus and MixerStatus throw
     * of an element. Both may be missing.
     */
    explicit GetActiveDispAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Each element an ActiveDispAnswerParams or ActiveMixerAnswerParams, or a DispenserStatus or MixerStatus. Throws DE03211 for
     * another type or one that cannot be made, and what they throw of a bad map.
     */
    explicit GetActiveDispAnswer(QList<QVariant> &list);

    GetActiveDispAnswer *clone() const override;
    void clear();

    const QList<DispenserStatus> &dispensers() const { return m_dispensers; }
    const QList<MixerStatus> &mixers() const { return m_mixers; }

    // In the lists' order; a status without a machine has no ID.
    QList<int> getDispenserIDs() const;
    QList<int> getActiveDispenserIDs() const;
    QList<int> getMixerIDs() const;
    QList<int> getActiveMixerIDs() const;
    // \a devices is a mask of device types: 1 adds the dispensers, 4 the mixers after them.
    QList<MachineID> getMachineIDs(int devices) const;
    QList<MachineID> getActiveMachineIDs(int devices) const;

    /** The dispensers, then the mixers; they stay owned by the answer. */
    QList<const MachineStatus *> machineStatusList() const;

private:
    QList<DispenserStatus> m_dispensers;
    QList<MixerStatus> m_mixers;
};
