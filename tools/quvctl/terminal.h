// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quv {

enum class Colour { Plain, Bold, Red };

/// A line on standard output, flushed. Colours show on a terminal only, and not with NO_COLOR; control characters of the
/// text never reach it.
void printLine(const QString &text, Colour colour = Colour::Plain);
/// The same on standard error.
void printError(const QString &text);

/// Lines of columns, each as wide as its widest cell.
class Columns
{
public:
    void add(const QStringList &cells) { m_rows.append(cells); }
    /// \a heading: the first row is printed bold.
    void print(bool heading) const;

private:
    QList<QStringList> m_rows;
};

} // namespace quv
