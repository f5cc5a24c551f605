// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace quv {

/** How a process is carried out, for displays. */
inline QString executionWord(bool busy)
{
    return QString::fromLatin1(busy ? QT_TRANSLATE_NOOP("QuvProtocol", "busy")
                                    : QT_TRANSLATE_NOOP("QuvProtocol", "wait"));
}

} // namespace quv
