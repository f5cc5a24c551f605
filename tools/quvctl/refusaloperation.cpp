// SPDX-License-Identifier: LGPL-3.0-or-later
#include "refusaloperation.h"

#include "replies.h"

#include "status/commandrefusedanswer.h"

namespace quv {

namespace {

OrderedJson replyTo(const CommandRefusedAnswer &refusal)
{
    OrderedJson texts = OrderedJson::array();
    for (const QString &text : refusal.commandRefusedError().getCommandRefusedErrorDescriptions())
        texts.push_back(toJson(text));
    OrderedJson reply = success();
    reply["codes"] = numbers(refusal.commandRefusedError().getCommandRefusedErrorCodes());
    reply["texts"] = std::move(texts);
    reply["value"] = toJson(refusal.toXmlRpcValue());
    return reply;
}

} // namespace

OrderedJson refusalOperation(const Request &request)
{
    if (request.has("tokens"))
        return replyTo(CommandRefusedAnswer(request.texts("tokens")));
    if (!request.has("raw"))
        throw BadRequest("a refusal needs \"tokens\" or \"raw\"");
    OrderedJson reply = success();
    reply["refused"] = CommandRefusedAnswer::isAnErrorAnswer(request.text("raw"));
    return reply;
}

} // namespace quv
