// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "mixercycle.h"

/**
 * MIX: lets a can mixer shake the can in a number of cycles, one after the other. Over XML-RPC its one argument is a struct with
 * the member "mixer_cycles", an array of MixerCycle; in a list it is the list of them.
 */
class QUVPROTOCOL_EXPORT MixCmd : public quv::DescribedCommand<MixCmd, SerialProtoCommand>
{
public:
    struct Description;

    static constexpr char mixerCycles_TAG[] = "mixer_cycles";

    MixCmd() = default;
    explicit MixCmd(const QList<MixerCycle> &cycles);
    MixCmd(int count, const MixerCycle &cycle); ///< the same cycle \a count times; none for a count below 1
    /** Throws DE02338 (no struct), DE02340 (no cycles), DE02339 (they are no array), and DE02337 of MixerCycle. */
    explicit MixCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The cycles as QList<MixerCycle>, or as a list of variants of which each is one, or the map that stands for it. Throws
     * DE02342 for anything else, DE02337 of a bad map, and DE02341 when there is no memory for them.
     */
    explicit MixCmd(QList<QVariant> list);
    explicit MixCmd(int) = delete; // would be an XML-RPC value

    MixCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue
    xmlrpc_parameters(bool *ok = nullptr) const override; ///< empty and false without a cycle

    /**
     * 0, the number of cycles and 5, the number of values of each; then of each cycle type, speed, force, and duration in two digits.
     * 245 is sent for a speed, 245 and 245 for a duration that the firmware chooses.
     */
    QList<int> serialParameters(int family) const override;

    const QList<MixerCycle> &cycles() const { return m_cycles; }

private:
    QList<MixerCycle> m_cycles;
};
