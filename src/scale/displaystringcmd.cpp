// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/displaystringcmd.h"

#include "base/describedcommand_p.h"

struct DisplayStringCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::DISPLAY_STRING;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional("display_string", self.m_displayString,
                         {"DE02245", "DE02246", "Display string: expected STRING parameter"});
    }
};

template class quv::DescribedCommand<DisplayStringCmd, ScaleProtoCommand>;

DisplayStringCmd::DisplayStringCmd(const QString &displayString) : m_displayString(displayString) {}

DisplayStringCmd::DisplayStringCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

DisplayStringCmd::DisplayStringCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

DisplayStringCmd *DisplayStringCmd::clone() const
{
    return new DisplayStringCmd(*this);
}
