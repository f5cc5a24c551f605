// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/tarecmd.h"

#include "base/describedcommand_p.h"

struct TareCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TARE;
    static constexpr auto commandText = "Tare";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Taring");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"stability", "whether to wait for a stable weight first"}, self.m_stability,
                         {"DE02102", "DE02102", "Stability parameter: expected BOOL parameter"});
        archive.optional({"check_tare", "whether to weigh again and see that it is 0"}, self.m_checkTare,
                         {"DE02103", "DE02103", "Check tare parameter: expected BOOL parameter"});
    }
};

template class quv::DescribedCommand<TareCmd, ScaleProtoCommand>;

TareCmd::TareCmd(bool stability, bool checkTare) : m_stability(stability), m_checkTare(checkTare) {}

TareCmd::TareCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

TareCmd::TareCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

TareCmd *TareCmd::clone() const
{
    return new TareCmd(*this);
}
