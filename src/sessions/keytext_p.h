// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace quv {

/** True for a text that is a decimal int, as all keys are. */
inline bool holdsInt(const QString &text)
{
    bool isInt = false;
    text.toInt(&isInt);
    return isInt;
}

} // namespace quv
