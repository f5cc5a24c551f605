// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quv {

/// The name that is meant by one that is nearly its whole, or else nearly its first word, as "tiket" is of "ticket_id"; empty
/// when none is. Capitals do not count.
QString nameMeant(const QString &typed, const QStringList &names);
/**
 * To append to an error: '; did you mean "A" or "B"?', with the words that are nearest to \a word, three at most; nothing when
 * none is near. Capitals do not count.
 */
QString didYouMean(const QString &word, const QStringList &words);
/// The same for the name of a command.
QString didYouMeanCommand(const QString &name);

} // namespace quv
