// SPDX-License-Identifier: LGPL-3.0-or-later
#include "waterchangeoperation.h"

#include "replies.h"

#include "statistics/usswaterchangestatus.h"

namespace quv {

OrderedJson waterChangeOperation(const Request &request)
{
    const UssWaterChangeStatus status(request.value("value"));
    OrderedJson reply = success();
    reply["needWaterChange"] = status.needWaterChange();
    reply["remainingCleaningCycles"] = status.remainingCleaningCycles();
    reply["value"] = toJson(status.toXmlRpcValue());
    return reply;
}

} // namespace quv
