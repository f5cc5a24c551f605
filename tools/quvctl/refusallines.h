// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "catalogue/commandfacts.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace quv {

struct Explanation;

/// A refusal as people read it. What is alike in several forms, or of several members, stands once.
struct RefusalLine
{
    QString code;
    QString forms; ///< XML-RPC, list
    QString when;  ///< position is of another type
    QString text;  ///< with an ellipsis for the member, when it is that of several
};

/// When an argument, a member or an answer is refused: "position is of another type" for "another type" and "position".
QString inWords(const QString &when, const QString &of);

/// The same of an explanation; empty when the sources do not tell.
QString whenInWords(const Explanation &explanation);

/// Those of a request as a whole come as they are, before those that the command tells of its arguments and its answer.
QList<RefusalLine> refusalLines(const QList<RefusalFacts> &ofRequest, const CommandFacts &command);

} // namespace quv
