// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "zandorcommand.h"

#include <QtCore/QList>

/** The answer to ZDR_GET_COMMANDS: the commands that a capping station knows. */
class QUVPROTOCOL_EXPORT GetZandorCommandsAnswer
    : public quv::DescribedAnswer<GetZandorCommandsAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char commands_TAG[] = "cmd_list";

    GetZandorCommandsAnswer() = default;
    explicit GetZandorCommandsAnswer(const QList<ZandorCommand> &commands);
    /**
     * Tokens: the number of commands, then for each its code in two base-246 digits, the number of its fields, and the
     * fields, each one token. Throws DE02891 for too few tokens, DE02892 to DE02895 for a number of commands, a code, a
     * number of fields and a field that is no number, and what SerialProtoAnswer throws.
     */
    explicit GetZandorCommandsAnswer(QStringList tokens);
    explicit GetZandorCommandsAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE02895 for anything else
    explicit GetZandorCommandsAnswer(QList<QVariant> &list);            ///< each element a command; likewise

    GetZandorCommandsAnswer *clone() const override;

    const QList<ZandorCommand> &commands() const { return m_commands; }

private:
    QList<ZandorCommand> m_commands;
};
