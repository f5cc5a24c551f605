// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "driver.h"
#include "xmlrpcerrors.h"

#include "base/protoanswer.h"
#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_error.h>

#include <memory>
#include <optional>

namespace quv {

/// \throws RequestRefused for a command that was not carried out
inline void requireDone(const XmlRpcAnswer &envelope)
{
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope);
}

/// The answer that \a command has got. \throws RequestRefused, std::runtime_error for an answer of another class
template <class Answer>
const Answer &answerIn(const XmlRpcAnswer &envelope, const ProtoCommand &command)
{
    requireDone(envelope);
    const auto *answer = dynamic_cast<const Answer *>(command.getProtoAnswer());
    if (!answer)
        throw std::runtime_error("the answer to " + command.command().toStdString() + " is another one");
    return *answer;
}

/// A command without arguments.
inline std::unique_ptr<ProtoCommand> plainCommand(ProtoCommandList::CommandListValue row)
{
    return std::unique_ptr<ProtoCommand>(
        ProtoCommandList::getProtoCommand(ProtoCommandList::cmdStr(row), QList<QVariant>(), nullptr));
}

/// Sends a command, and gives its answer. \throws as answerIn
template <class Answer>
const Answer &executed(const Driver &driver, ProtoCommand &command)
{
    return answerIn<Answer>(driver.execute(command), command);
}

/// The same of a command without arguments.
template <class Answer>
Answer answerTo(ProtoCommandList::CommandListValue row, const Driver &driver)
{
    const auto command = plainCommand(row);
    return executed<Answer>(driver, *command);
}

/// What \a question gives; nothing when the driver cannot tell it. \throws TransportError when it is gone
template <class Question>
auto ifTold(Question question) -> std::optional<decltype(question())>
{
    try {
        return question();
    } catch (const TransportError &) {
        throw;
    } catch (const std::exception &) { // a refusal, or an answer of another driver's own
        return std::nullopt;
    } catch (const FW_DriverError &) {
        return std::nullopt;
    }
}

/// The answer to a command without arguments; nothing when the driver cannot tell it. \throws as ifTold
template <class Answer>
std::optional<Answer> answerIfAny(ProtoCommandList::CommandListValue row, const Driver &driver)
{
    return ifTold([&] { return answerTo<Answer>(row, driver); });
}

} // namespace quv
