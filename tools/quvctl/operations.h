// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

#include <memory>

class CmdStatus;
class FW_DriverError;
class FW_Machine;
class ProtoAnswer;
class ProtoCommand;
class XmlRpcAnswer;

namespace quv {

/**
 * What a request asks for, under "ok": true.
 * \throws BadRequest when the request is none, FW_DriverError when the library refuses it
 */
OrderedJson runOperation(const Request &request);

/// The command that "name" or "class", "args", "form" and "machine" tell. \throws as runOperation
std::unique_ptr<ProtoCommand> makeCommand(const Request &request);
/// The same for a machine that was read before.
std::unique_ptr<ProtoCommand> makeCommand(const Request &request, const FW_Machine *machine);

/// What a command sends, and to a firmware of \a family, and what people are told of it; \a machine is null for none.
OrderedJson encodedReply(const ProtoCommand &command, const FW_Machine *machine, int family);

/// The same, holding the answer that it made of "tokens". \throws as runOperation
std::unique_ptr<ProtoCommand> decodedCommand(const Request &request);

/// Class and value of the answer that \a command holds, and its descriptions when it is a status.
OrderedJson answerReply(const ProtoCommand &command);
/// The envelope that \a command holds, and the answer when there is one.
OrderedJson envelopeReply(const ProtoCommand &command);

/// Return code, message and lines for people.
OrderedJson envelopeJson(const XmlRpcAnswer &envelope);
/// State, texts and struct of a ticket's status, as members to add to a reply.
OrderedJson commandStatusReply(const CmdStatus &status, bool verbose);

OrderedJson failureReply(const FW_DriverError &error);
OrderedJson failureReply(const std::string &text);

} // namespace quv
