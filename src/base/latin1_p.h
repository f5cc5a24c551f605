// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <string>

namespace quv {

/** The text in Latin-1, in which names and messages travel; a character outside it becomes "?". */
inline std::string latin1(const QString &text)
{
    return text.toLatin1().toStdString();
}

} // namespace quv
