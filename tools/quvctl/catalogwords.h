// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

struct CMD_STRUCT;

namespace quv {

// Fields of a catalogue row for people; "-" where there is nothing to tell.
QString codesInWords(const CMD_STRUCT &row);      ///< 0006 (I3)
QString parametersInWords(const CMD_STRUCT &row); ///< 1 to 3
QString familiesInWords(const CMD_STRUCT &row);   ///< 1, 2
QString machinesInWords(const CMD_STRUCT &row);   ///< dispenser, mixer
QString kindInWords(const CMD_STRUCT &row);       ///< serial
QString timeoutInWords(const CMD_STRUCT &row);    ///< 40 s

/// Every field but the name, each behind its title.
QList<QPair<QString, QString>> rowInWords(const CMD_STRUCT &row);

} // namespace quv
