// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** MIXER_STATUS: asks a can mixer's firmware what the mixer is doing; the answer is a MixerStatusAnswer. */
class QUVPROTOCOL_EXPORT MixerStatusCmd : public quv::DescribedCommand<MixerStatusCmd, SerialProtoCommand>
{
public:
    struct Description;

    MixerStatusCmd() = default;
    explicit MixerStatusCmd(const XmlRpc::XmlRpcValue &value); ///< an array, of which nothing is read
    explicit MixerStatusCmd(QList<QVariant> list);             ///< likewise
    explicit MixerStatusCmd(int) = delete;                     // a mixer has no positions

    MixerStatusCmd *clone() const override;
    using DescribedCommand::setDefaults;
};
