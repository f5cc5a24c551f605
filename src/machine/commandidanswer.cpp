// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commandidanswer.h"

#include "base/describedanswer_p.h"
#include "base/tokens_p.h"

#include <QuvFramework/fw_exception.h>

#include <utility>

struct CommandIDAnswer::Description
{
    static std::vector<quv::Member<CommandIDAnswer>> members()
    {
        return {quv::Member<CommandIDAnswer>(commandIDs_TAG, &CommandIDAnswer::m_commandIDs,
                                             {"DE03280", "CommandIDAnswer: expected command_ids value"})
                    .meaning("the firmware's identifiers for the code")};
    }
};

template class quv::DescribedAnswer<CommandIDAnswer, SerialProtoAnswer>;

CommandIDAnswer::CommandIDAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    constexpr char noNumber[] = "Error during command answer decoding: expected number of identifier";
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(1, {"DE00071", noNumber});
    const int count = reader.next({"DE00069", noNumber});
    if (count != reader.remaining())
        throw FW_Exception("DE00124", "Error during command answer decoding: bad length for serial answer",
                           Q_FUNC_INFO);
    m_commandIDs.reserve(count);
    while (!reader.atEnd())
        m_commandIDs.append(static_cast<int>(
            reader.nextUnsigned({"DE00072", "Error during command answer decoding: conversion failed"})));
}

CommandIDAnswer::CommandIDAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

CommandIDAnswer *CommandIDAnswer::clone() const
{
    return new CommandIDAnswer(*this);
}

QList<unsigned int> CommandIDAnswer::commandIDs() const
{
    QList<unsigned int> ids;
    ids.reserve(m_commandIDs.size());
    for (const int id : m_commandIDs)
        ids.append(static_cast<unsigned int>(id));
    return ids;
}
