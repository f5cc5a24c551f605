// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QtCore/QMetaType>

/** MIXER_PLATES: moves the plates of a can mixer that grip the can. */
class QUVPROTOCOL_EXPORT MixerPlatesCmd : public quv::DescribedCommand<MixerPlatesCmd, SerialProtoCommand>
{
public:
    struct Description;

    /** The firmware's own number; any is sent as it is. */
    enum MixerPlatesAction : int {};

    static constexpr int endless = 60515; ///< a duration: two digits of 245
    static constexpr int configSpeed = 245;

    MixerPlatesCmd() = default;
    MixerPlatesCmd(MixerPlatesAction action, int duration, int speed, int extra);
    /**
     * The action (int), then duration, speed and a fourth number, each of which keeps its default when it is missing or no int.
     * Throws DE02889 when the action is no int.
     */
    explicit MixerPlatesCmd(const XmlRpc::XmlRpcValue &value);
    /** All four as a list. What does not convert to an int, or is missing, is 0 here. */
    explicit MixerPlatesCmd(QList<QVariant> list);
    explicit MixerPlatesCmd(int) = delete; // would be an XML-RPC value

    MixerPlatesCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** Action, digits of the duration as many as there are, speed, fourth number. */
    QList<int> serialParameters(int family) const override;

    MixerPlatesAction action() const { return m_action; }
    int duration() const { return m_duration; }
    int speed() const { return m_speed; }
    int extra() const { return m_extra; } ///< what it means is between client and firmware

private:
    MixerPlatesAction m_action{};
    int m_duration = endless;
    int m_speed = configSpeed;
    int m_extra = 0;
};

Q_DECLARE_METATYPE(MixerPlatesCmd::MixerPlatesAction)
