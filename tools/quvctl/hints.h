// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class XmlRpcAnswer;

namespace quv {

/// What a user can do about a refusal; empty when its text says it all.
QString hintFor(const QString &code);

/// The errors of an envelope, a hint behind each that needs one.
QStringList errorLines(const XmlRpcAnswer &envelope);

/// Tells the errors that stand beside an answer on standard error; false when there are none.
bool tellErrors(const XmlRpcAnswer &envelope);

} // namespace quv
