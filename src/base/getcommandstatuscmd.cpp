// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcommandstatuscmd.h"

#include "base/arguments_p.h"
#include "base/getcommandstatusanswer.h"
#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"

namespace {

constexpr char answerFailed[] = "Failed to create GetCommandStatusAnswer";

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::GET_CMD_STATUS);
}

} // namespace

template <class Self, class Archive>
void GetCommandStatusCmd::arguments(Self &self, Archive &archive)
{
    constexpr quv::ArgumentRefusal noTicket = {"DE00371", "DE00371",
                                               "GetCommandStatusCmd: expected String type parameter"};
    archive.required(self.m_ticketID, noTicket, noTicket);
}

GetCommandStatusCmd::GetCommandStatusCmd() : ConfProtoCommand(name(), nullptr) {}

GetCommandStatusCmd::GetCommandStatusCmd(QString ticketID)
    : ConfProtoCommand(name(), nullptr),
      m_ticketID(ticketID)
{}

GetCommandStatusCmd::GetCommandStatusCmd(const XmlRpc::XmlRpcValue &value)
    : ConfProtoCommand(name(), value, nullptr)
{
    if (!value.valid())
        throw FW_Exception("DE00559", "GetCommandStatusCmd decoding failed: invalid xml-rpc type",
                           Q_FUNC_INFO);
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00560", "GetCommandStatusCmd decoding failed: expected xml-rpc array type",
                           Q_FUNC_INFO);
    quv::ValueReader reader(value, Q_FUNC_INFO);
    arguments(*this, reader);
}

GetCommandStatusCmd::GetCommandStatusCmd(QList<QVariant> list) : ConfProtoCommand(name(), list, nullptr)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    arguments(*this, reader);
}

GetCommandStatusCmd *GetCommandStatusCmd::clone() const
{
    return new GetCommandStatusCmd(*this);
}

QList<QVariant> GetCommandStatusCmd::parameters() const
{
    quv::ListWriter writer;
    arguments(*this, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue GetCommandStatusCmd::xmlrpc_parameters(bool *ok) const
{
    quv::ValueWriter writer;
    arguments(*this, writer);
    return writer.result(ok);
}

bool GetCommandStatusCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01284", answerFailed, error,
                              [&] { return new GetCommandStatusAnswer(value); });
}

bool GetCommandStatusCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01284", answerFailed, error,
                              [&] { return new GetCommandStatusAnswer(list); });
}

bool GetCommandStatusCmd::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE00372", answerFailed, error);
}
