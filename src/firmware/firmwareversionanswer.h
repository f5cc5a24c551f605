// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"

#include <QuvFramework/fw_program.h>

namespace quv {
struct MemberFacts;
}

/** The answer to READ_FW_VERSION: the firmware on one module. Over XML-RPC the struct of its FW_Program. */
class QUVPROTOCOL_EXPORT FirmwareVersionAnswer : public SerialProtoAnswer
{
public:
    FirmwareVersionAnswer() = default;
    explicit FirmwareVersionAnswer(const FW_Program &program);
    /** Tokens of a board that was asked by itself, see FW_Program. Throws DE00628, and what SerialProtoAnswer throws. */
    explicit FirmwareVersionAnswer(QStringList tokens);
    explicit FirmwareVersionAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE01474

    FirmwareVersionAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override; ///< the same class and the same program
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    void clear() { m_program = FW_Program(); }

    const FW_Program &program() const { return m_program; }

    bool operator==(const FirmwareVersionAnswer &other) const { return m_program == other.m_program; }
    bool operator!=(const FirmwareVersionAnswer &other) const { return !(*this == other); }

    static QList<quv::MemberFacts> memberFacts();

private:
    FW_Program m_program;
};
