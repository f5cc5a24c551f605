// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/motorrunningcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"

#include <algorithm>

struct MotorRunningCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::MOTOR_RUNNING;
    static constexpr auto commandText = "Motor running";

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // none is refused by the base already, as long as the catalogue asks for one
        archive.required({"position", "a circuit's position"}, self.m_moduleID,
                         {"DE00637", "DE01458", "Expected Position ID parameter"},
                         {"DE00965", "DE01542", "Position ID: expected INT parameter"});
        archive.optional({"duration", "1 to 120540, which is not checked"}, self.m_duration,
                         {{"DE00966", "Motor running duration: expected INT parameter"},
                          {"DE01543", "Motor running duration: expected INT or LONG parameter"}});
    }
};

template class quv::DescribedCommand<MotorRunningCmd, SerialProtoCommand>;

MotorRunningCmd::MotorRunningCmd(int position, qlonglong duration) : m_duration(duration)
{
    m_moduleID = position;
}

MotorRunningCmd::MotorRunningCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

MotorRunningCmd::MotorRunningCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

MotorRunningCmd *MotorRunningCmd::clone() const
{
    return new MotorRunningCmd(*this);
}

QList<int> MotorRunningCmd::serialParameters(int) const
{
    QList<int> parameters;
    quv::appendTwoDigits(parameters, std::max(m_duration, 0LL)); // a negative number has no digits
    return parameters;
}

TString MotorRunningCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Activating motor running on circuit position %1"),
                   quv::translationContext)
        .arg(QString::number(m_moduleID), false);
}

bool MotorRunningCmd::checkDuration(unsigned long long duration)
{
    return duration >= 1 && duration <= 120540;
}
