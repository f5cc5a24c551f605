// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/flags_p.h"

#include <QuvFramework/fw_utils.h>

#include <QtCore/QByteArray>
#include <QtCore/QMutex>

#include <list>

namespace quv {

const char *propertyKey(const char *variable)
{
    static QMutex mutex;
    static std::list<QByteArray> keys;
    const QMutexLocker lock(&mutex);
    keys.push_back(stringVariableToStringProperty(variable).toUtf8());
    return keys.back().constData();
}

} // namespace quv
