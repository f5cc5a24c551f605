// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "machinedriverstatusanswer.h"

class MixerStatus;
class MixerStatusAnswer;

namespace quv {
struct MemberFacts;
} // namespace quv

/**
 * The answer to GET_MIXER_STATUS: what the driver has under way on a mixer, "driver_status", and the last status of its firmware,
 * "disp_status", each the int 0 when it is absent; with "pos_available" and "pos_ready", which tell acceptPOScommands() and
 * readyForPOScommands() and are false when one of the two is absent.
 */
class QUVPROTOCOL_EXPORT MixerDriverStatusAnswer : public MachineDriverStatusAnswer, public ConfProtoAnswer
{
public:
    MixerDriverStatusAnswer() = default;
    MixerDriverStatusAnswer(const MixerStatus *status, const MixerStatusAnswer *answer);
    /**
     * Throws DE03206 without a driver_status, DE03207 without a disp_status, and what MixerStatus and MixerStatusAnswer
     * throw of what is no int 0.
     */
    explicit MixerDriverStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * A MixerStatus and a MixerStatusAnswer, or 0 for one that is absent. Throws DE03206 and DE03208
     * for another type, and what they throw of bad maps.
     */
    explicit MixerDriverStatusAnswer(QList<QVariant> &list);

    MixerDriverStatusAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    static QList<quv::MemberFacts> memberFacts();
};
