// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/logincmd.h"

#include "base/describedcommand_p.h"
#include "sessions/loginanswer.h"

struct LoginCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::LOGIN;

    static constexpr char answerFailed[] = "Failed to create LoginAnswer";
    static constexpr quv::AnsweredBy<LoginAnswer> answer = {
        {}, {"DE01291", answerFailed}, {"DE00367", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noID = {"DE00160", "DE00160",
                                               "Login failed: expected Int type for first parameter"};
        constexpr quv::ArgumentRefusal noName = {"DE00161", "DE00161",
                                                 "Login failed: expected String type for second parameter"};
        archive.required("machine_id", self.m_session.machine.id, noID, noID);
        archive.required("client_name", self.m_session.clientName, noName, noName);
        archive.optional("client_level", self.m_session.clientLevel,
                         {"DE01396", "DE01396", "Login failed: expected int type for third parameter"});
        archive.optional({"device_type", "1 dispenser, 2 scale, 4 mixer"}, self.m_deviceType,
                         {"DE03030", "DE03030", "Login failed: expected int type for fourth parameter"});
    }
};

template class quv::DescribedCommand<LoginCmd, ConfProtoCommand>;

LoginCmd::LoginCmd(const Session &session)
    : m_session(session),
      m_deviceType(static_cast<int>(session.machine.type))
{}

LoginCmd::LoginCmd(const MachineID &machine, QString name, int level)
    : LoginCmd(Session(machine, name, level))
{}

LoginCmd::LoginCmd(int machineID, QString name, int level)
    : LoginCmd(MachineID(machineID, SerialDeviceType::Dispenser), name, level)
{}

LoginCmd::LoginCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
    m_session.machine.type = static_cast<SerialDeviceType>(m_deviceType);
}

LoginCmd::LoginCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
    m_session.machine.type = static_cast<SerialDeviceType>(m_deviceType);
}

LoginCmd *LoginCmd::clone() const
{
    return new LoginCmd(*this);
}
