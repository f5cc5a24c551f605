// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settingsoperation.h"

#include "replies.h"

#include "settings/driversettings.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

OrderedJson settingsOperation(const Request &request)
{
    const QString name = request.text("name", QString());
    DriverSettings settings =
        request.has("value") ? DriverSettings(request.value("value"), name) : DriverSettings(name);
    QHash<QString, QVariant> hash;
    if (request.has("hash") && !DecodeXmlRpcValue(request.value("hash"), hash))
        throw BadRequest("\"hash\" must be an object");
    settings.update(hash);
    OrderedJson reply = success();
    reply["value"] = toJson(settings.toXmlRpcValue());
    return reply;
}

} // namespace quv
