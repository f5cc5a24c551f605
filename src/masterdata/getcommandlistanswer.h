// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "protocolcommandinfo.h"

#include <QtCore/QList>

/** The answer to GET_CMD_LIST: the commands of a machine, the member "command_list" of a struct. */
class QUVPROTOCOL_EXPORT GetCommandListAnswer
    : public quv::DescribedAnswer<GetCommandListAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char commandList_TAG[] = "command_list";

    GetCommandListAnswer() = default;
    explicit GetCommandListAnswer(const QList<ProtocolCommandInfo> &commands);
    /** Throws DE00433 without an array of structs, DE00432 for one that cannot be made, and as ProtocolCommandInfo does. */
    explicit GetCommandListAnswer(const XmlRpc::XmlRpcValue &value);
    /** Each element a command. Throws DE00430 for an invalid one, DE00429 for another type, and as ProtocolCommandInfo does. */
    explicit GetCommandListAnswer(QList<QVariant> &list);

    GetCommandListAnswer *clone() const override;

    const QList<ProtocolCommandInfo> &commandList() const { return m_commands; }

private:
    QList<ProtocolCommandInfo> m_commands;
};
