// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"

#include <QtCore/QList>
#include <QtCore/QPair>

namespace quv {
struct MemberFacts;
}

/** Which structures the firmware has, and of how many fields, `cmd_enabled` included. */
class QUVPROTOCOL_EXPORT GetConfigCmdsAnswer : public SerialProtoAnswer
{
public:
    GetConfigCmdsAnswer() = default;
    /** Behind the length token: version, minor version, count, so many pairs of code and field count. Throws DE01642 to DE01647. */
    explicit GetConfigCmdsAnswer(QStringList tokens);
    explicit GetConfigCmdsAnswer(const XmlRpc::XmlRpcValue &value); ///< keeps nothing of the value

    GetConfigCmdsAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;

    unsigned int version() const { return m_version; }
    unsigned int minorVersion() const { return m_minorVersion; }
    const QList<QPair<unsigned int, unsigned int>> &commands() const
    {
        return m_commands;
    }                                              ///< code, field count
    QList<unsigned int> getConfigCommands() const; ///< the codes alone

    /** "version", "minor_version" and, when there are any, "command_codes": structs of "cmd_code" and "field_count". */
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    static QList<quv::MemberFacts> memberFacts();

private:
    unsigned int m_version = 0;
    unsigned int m_minorVersion = 0;
    QList<QPair<unsigned int, unsigned int>> m_commands;
};
