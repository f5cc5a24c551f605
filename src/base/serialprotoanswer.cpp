// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/serialprotoanswer.h"

#include "base/prototypes_p.h"
#include "base/tokens_p.h"

#include <QuvFramework/fw_exception.h>

#include <utility>

SerialProtoAnswer::SerialProtoAnswer() : ProtoAnswer(quv::SerialType) {}

SerialProtoAnswer::SerialProtoAnswer(QStringList tokens) : ProtoAnswer(quv::SerialType)
{
    if (tokens.isEmpty())
        throw FW_Exception("DE00076", "Empty answer received", Q_FUNC_INFO);
    unsigned length = 0;
    if (!quv::parseHex(tokens.constFirst(), length))
        throw FW_Exception("DE00070", "Invalid parameter length type found in answer", Q_FUNC_INFO);
    if (static_cast<quint64>(tokens.size()) < static_cast<quint64>(length) + 1)
        throw FW_Exception("DE00077", "Error during command answer decoding: bad length", Q_FUNC_INFO);
    if (tokens.isDetached()) { // handed over: no token needs to be copied
        m_parameters = std::move(tokens);
        m_parameters.removeFirst();
    } else {
        m_parameters = tokens.mid(1);
    }
}

SerialProtoAnswer::SerialProtoAnswer(QList<QVariant> &list) : ProtoAnswer(quv::SerialType, list) {}

SerialProtoAnswer::SerialProtoAnswer(const XmlRpc::XmlRpcValue &value) : ProtoAnswer(quv::SerialType, value)
{}

SerialProtoAnswer::SerialProtoAnswer(const ProtoAnswer &answer) : ProtoAnswer(answer) {}

SerialProtoAnswer *SerialProtoAnswer::clone() const
{
    return new SerialProtoAnswer(*this);
}
