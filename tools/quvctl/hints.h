// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class XmlRpcAnswer;

namespace quv {

/// Has the commands in hints name the machine that --on names; empty for none.
void setMachineOfHints(const QString &machine);

/// What a user can do about a refusal, of which its code, or all that it tells, is \a error; empty when that says it all.
QString hintFor(const QString &error);

/// The errors of an envelope, a hint behind each that needs one.
QStringList errorLines(const XmlRpcAnswer &envelope);

/// Tells the errors that stand beside an answer on standard error; false when there are none.
bool tellErrors(const XmlRpcAnswer &envelope);

} // namespace quv
