// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatuscmd.h"

#include "base/arguments_p.h"
#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"
#include "status/dispenserstatusanswer.h"

#include <utility>

namespace {

constexpr char answerFailed[] = "Failed to create DispenserStatusAnswer";

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::GET_STATUS);
}

} // namespace

template <class Self, class Archive>
void DispenserStatusCmd::arguments(Self &self, Archive &archive)
{
    archive.optional(self.m_moduleID, {"DE00298", "DE00300", "Position ID: expected INT parameter"});
}

DispenserStatusCmd::DispenserStatusCmd() : SerialProtoCommand(name(), nullptr)
{
    setDefaults();
}

DispenserStatusCmd::DispenserStatusCmd(int positionID) : DispenserStatusCmd()
{
    setModuleID(positionID);
}

DispenserStatusCmd::DispenserStatusCmd(const XmlRpc::XmlRpcValue &value)
    : SerialProtoCommand(name(), value, nullptr)
{
    setDefaults();
    quv::ValueReader reader(value, Q_FUNC_INFO);
    arguments(*this, reader);
}

DispenserStatusCmd::DispenserStatusCmd(QList<QVariant> list) : SerialProtoCommand(name(), list, nullptr)
{
    setDefaults();
    quv::ListReader reader(list, Q_FUNC_INFO);
    arguments(*this, reader);
}

DispenserStatusCmd *DispenserStatusCmd::clone() const
{
    return new DispenserStatusCmd(*this);
}

void DispenserStatusCmd::setDefaults()
{
    setModuleID(0);
}

QList<QVariant> DispenserStatusCmd::parameters() const
{
    quv::ListWriter writer;
    arguments(*this, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue DispenserStatusCmd::xmlrpc_parameters(bool *ok) const
{
    quv::ValueWriter writer;
    arguments(*this, writer);
    return writer.result(ok);
}

bool DispenserStatusCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01266", answerFailed, error,
                              [&] { return new DispenserStatusAnswer(value); });
}

bool DispenserStatusCmd::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01267", answerFailed, error,
                              [&] { return new DispenserStatusAnswer(list); });
}

bool DispenserStatusCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return replaceProtoAnswer("DE00097", answerFailed, error,
                              [&] { return new DispenserStatusAnswer(std::move(tokens)); });
}

bool DispenserStatusCmd::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE00027", answerFailed, error);
}
