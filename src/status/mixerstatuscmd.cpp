// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerstatuscmd.h"

#include "base/describedcommand_p.h"
#include "status/mixerstatusanswer.h"

struct MixerStatusCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::MIXER_STATUS;

    static constexpr char answerFailed[] = "Failed to create MixerStatusAnswer";
    static constexpr quv::AnsweredBy<MixerStatusAnswer> answer = {{"DE02519", answerFailed},
                                                                  {"DE02517", answerFailed},
                                                                  {"DE02518", answerFailed},
                                                                  {"DE02520", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &, Archive &)
    {} // there are none
};

template class quv::DescribedCommand<MixerStatusCmd, SerialProtoCommand>;

MixerStatusCmd::MixerStatusCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

MixerStatusCmd::MixerStatusCmd(QList<QVariant> list) : DescribedCommand(list) {}

MixerStatusCmd *MixerStatusCmd::clone() const
{
    return new MixerStatusCmd(*this);
}
