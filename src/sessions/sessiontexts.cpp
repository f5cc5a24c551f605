// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/sessiontexts_p.h"

namespace quv {

void checkSessionText(const SessionText &text, const QString &read, const char *function)
{
    if (isGiven(text.empty) && read.isEmpty())
        throwRefusal(text.empty, function);
    if (!isGiven(text.noNumber))
        return;
    bool isNumber = false;
    read.toInt(&isNumber);
    if (!isNumber)
        throwRefusal(text.noNumber, function);
}

XmlRpc::XmlRpcValue writtenSessionTexts(const QList<QVariant> &texts, bool *ok)
{
    if (ok)
        *ok = true;
    return EncodeXmlRpcVariant(texts);
}

} // namespace quv
