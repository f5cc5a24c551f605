// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setdispinfocmd.h"

#include "setup/dispinfocmd_p.h"

struct SetDispInfoCmd::Description : DispInfoCmd::Description
{
    static constexpr auto command = ProtoCommandList::SET_DISP_INFO;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        DispInfoCmd::Description::arguments(self, archive);
        archive.required({"value", "the text; an empty one clears it"}, self.m_value,
                         {"DE00307", "DE00309", "Too few parameters received"},
                         {{"DE00308", "Dispenser info value: expected String parameter"},
                          {"DE00310", "Dispenser info type: expected INT parameter"}}); // users know it so
    }
};

template class quv::DescribedCommand<SetDispInfoCmd, DispInfoCmd>;

SetDispInfoCmd::SetDispInfoCmd(int infoType, const QString &value) : m_value(value)
{
    m_infoType = infoType;
}

SetDispInfoCmd::SetDispInfoCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO); // the type was read before, by the class that all three share
}

SetDispInfoCmd::SetDispInfoCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SetDispInfoCmd *SetDispInfoCmd::clone() const
{
    return new SetDispInfoCmd(*this);
}

QList<int> SetDispInfoCmd::serialParameters(int) const
{
    constexpr int clearing = 0;
    constexpr int writing = 2;
    QList<int> parameters = {m_infoType, m_value.isEmpty() ? clearing : writing};
    for (const QChar character : m_value)
        parameters.append(static_cast<unsigned char>(character.toLatin1()));
    return parameters;
}
