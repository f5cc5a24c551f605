// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/logincmd.h"

#include "base/describedcommand_p.h"
#include "sessions/loginanswer.h"

namespace {

/** What travels of a session, the type of the machine as its number. */
struct Arguments
{
    explicit Arguments(const Session &session)
        : machineID(session.machine.id),
          clientName(session.clientName),
          clientLevel(session.clientLevel),
          deviceType(static_cast<int>(session.machine.type))
    {}

    Session session() const
    {
        return {MachineID(machineID, static_cast<SerialDeviceType>(deviceType)), clientName, clientLevel};
    }

    template <class Archive>
    void describe(Archive &archive)
    {
        constexpr quv::ArgumentRefusal noID = {"DE00160", "DE00160",
                                               "Login failed: expected Int type for first parameter"};
        constexpr quv::ArgumentRefusal noName = {"DE00161", "DE00161",
                                                 "Login failed: expected String type for second parameter"};
        archive.required("machine_id", machineID, noID, noID);
        archive.required("client_name", clientName, noName, noName);
        archive.optional("client_level", clientLevel,
                         {"DE01396", "DE01396", "Login failed: expected int type for third parameter"});
        archive.optional({"device_type", "1 dispenser, 2 scale, 4 mixer"}, deviceType,
                         {"DE03030", "DE03030", "Login failed: expected int type for fourth parameter"});
    }

    int machineID = 0;
    QString clientName;
    int clientLevel = 0;
    int deviceType = 0;
};

template <class Reader>
Session readSession(Reader reader)
{
    Arguments arguments{Session()};
    arguments.describe(reader);
    return arguments.session();
}

} // namespace

struct LoginCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::LOGIN;

    static constexpr char answerFailed[] = "Failed to create LoginAnswer";
    static constexpr quv::AnsweredBy<LoginAnswer> answer = {
        {}, {"DE01291", answerFailed}, {"DE00367", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller) { Arguments(Session()).describe(teller); }
};

template class quv::DescribedCommand<LoginCmd, ConfProtoCommand>;

LoginCmd::LoginCmd(const Session &session) : m_session(session) {}

LoginCmd::LoginCmd(const MachineID &machine, QString name, int level) : m_session(machine, name, level) {}

LoginCmd::LoginCmd(int machineID, QString name, int level)
    : LoginCmd(MachineID(machineID, SerialDeviceType::Dispenser), name, level)
{}

LoginCmd::LoginCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      m_session(readSession(quv::ValueReader(value, Q_FUNC_INFO)))
{}

LoginCmd::LoginCmd(QList<QVariant> list)
    : DescribedCommand(list),
      m_session(readSession(quv::ListReader(list, Q_FUNC_INFO)))
{}

LoginCmd *LoginCmd::clone() const
{
    return new LoginCmd(*this);
}

QList<QVariant> LoginCmd::parameters() const
{
    quv::ListWriter writer;
    Arguments(m_session).describe(writer);
    return writer.result();
}

XmlRpc::XmlRpcValue LoginCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    return quv::writtenArguments([this](auto &archive) { Arguments(m_session).describe(archive); });
}
