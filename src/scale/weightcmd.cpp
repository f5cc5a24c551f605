// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/weightcmd.h"

#include "base/describedcommand_p.h"
#include "scale/scalewords_p.h"
#include "scale/weightanswer.h"

struct WeightCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::WEIGHT;
    static constexpr auto commandText = "Weight";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Weighing");

    static constexpr quv::AnsweredBy<WeightAnswer> answer = {
        {}, {"DE03320", quv::weightAnswerFailed}, {"DE03321", quv::weightAnswerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"weight_type", "0 net, 1 gross, 2 tare"}, self.m_weightType,
                         {"DE02097", "DE02099", "Weight type: expected INT parameter"});
        archive.optional({"scale_unit", quv::requestedUnit}, self.m_scaleUnit,
                         {"DE02098", "DE02101", "Scale unit: expected INT parameter"});
        archive.optional({"stability_timeout", "seconds; -1.0 is not set"}, self.m_stabilityTimeout,
                         {"DE02157", "DE02158", "Stability timeout: expected DOUBLE parameter"});
    }
};

template class quv::DescribedCommand<WeightCmd, ScaleProtoCommand>;

WeightCmd::WeightCmd(ScaleUtils::WeightType type, ScaleUtils::ScaleUnit unit, double stabilityTimeout)
    : m_weightType(type),
      m_scaleUnit(unit),
      m_stabilityTimeout(stabilityTimeout)
{}

WeightCmd::WeightCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

WeightCmd::WeightCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

WeightCmd *WeightCmd::clone() const
{
    return new WeightCmd(*this);
}
