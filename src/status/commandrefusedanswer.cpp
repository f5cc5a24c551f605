// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/commandrefusedanswer.h"

#include "base/guard_p.h"

#include <QuvFramework/fw_exception.h>

#include <utility>

CommandRefusedAnswer::CommandRefusedAnswer(const XmlRpc::XmlRpcValue &) {}

CommandRefusedAnswer::CommandRefusedAnswer(QStringList tokens)
try : SerialProtoAnswer(std::move(tokens)) {
    constexpr int parametersOfARefusal = 6;
    const char *function = Q_FUNC_INFO;
    if (m_parameters.size() < parametersOfARefusal)
        throw FW_Exception("DE00063", "Error during command answer decoding: bad length", function);
    m_error = CommandRefusedError(m_parameters.mid(0, 2));
    if (!m_error.hasErrors())
        throw FW_Exception("DE00173", "Command refused due to unknown reason. No refused answer bit set!",
                           function);
} catch (...) {
    // only memory can lack here, and not for new: there is no test of it
    quv::rethrowCurrentException("DE00065", "CommandRefusedAnswer: invalid error answer", Q_FUNC_INFO);
}

CommandRefusedAnswer *CommandRefusedAnswer::clone() const
{
    return new CommandRefusedAnswer(*this);
}

bool CommandRefusedAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const CommandRefusedAnswer *>(other);
    return that && m_error == that->m_error;
}

XmlRpc::XmlRpcValue CommandRefusedAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[commandRefusedError_TAG] = m_error.toXmlRpcValue();
    return value;
}

void CommandRefusedAnswer::clear()
{
    m_error.clear();
}

bool CommandRefusedAnswer::isAnErrorAnswer(QString answer)
{
    constexpr int placeOfTheMark = 8;
    const QLatin1String mark("0A");
    return answer.midRef(placeOfTheMark, mark.size()).compare(mark, Qt::CaseInsensitive) == 0;
}
