// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "machinedriverstatusanswer.h"

class DispenserStatus;
class DispenserStatusAnswer;

namespace quv {
struct MemberFacts;
} // namespace quv

/**
 * The answer to GET_DISP_STATUS: what the driver has under way on a dispenser, "driver_status", and the last status of its
 * firmware, "disp_status", each the int 0 when it is absent; with "pos_available" and "pos_ready", which tell acceptPOScommands()
 * and readyForPOScommands() and are false when one of the two is absent.
 */
class QUVPROTOCOL_EXPORT DispenserDriverStatusAnswer : public MachineDriverStatusAnswer,
                                                       public ConfProtoAnswer
{
public:
    DispenserDriverStatusAnswer() = default;
    DispenserDriverStatusAnswer(const DispenserStatus *status, const DispenserStatusAnswer *answer);
    /**
     * Throws DE00735 without a driver_status, DE00736 without a disp_status, and what DispenserStatus and DispenserStatusAnswer
     * throw of what is no int 0.
     */
    explicit DispenserDriverStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * A DispenserStatus and a DispenserStatusAnswer, or 0 for one that is absent. Throws DE00735 and DE00737
     * for another type, and what they throw of bad maps.
     */
    explicit DispenserDriverStatusAnswer(QList<QVariant> &list);

    DispenserDriverStatusAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    static QList<quv::MemberFacts> memberFacts();
};
