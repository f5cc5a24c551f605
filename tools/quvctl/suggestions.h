// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quv {

/// Whether \a word may be \a meant with a letter or two wrong. Capitals do not count.
bool isNear(const QString &word, const QString &meant);
/**
 * To append to an error: '; did you mean "A" or "B"?', with the words that are nearest to \a word, three at most; nothing when
 * none is near. Capitals do not count.
 */
QString didYouMean(const QString &word, const QStringList &words);
/// The same for the name of a command.
QString didYouMeanCommand(const QString &name);

} // namespace quv
