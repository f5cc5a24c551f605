// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "jsonvalue.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace quv {

enum class Colour { Plain, Bold, Red };

/// The text without its control and format characters: it comes from drivers and machines, and must not steer the terminal.
QString printable(const QString &text);
/// The word as it can be pasted into a shell, quoted when it must be.
QString shellWord(const QString &word);

/// A line on standard output, flushed. Colours show on a terminal only, and not with NO_COLOR; what is not
/// printable never reaches it.
void printLine(const QString &text, Colour colour = Colour::Plain);
/// The same in as many lines as a terminal needs, broken between words.
void printParagraph(const QString &text, Colour colour = Colour::Plain);
void printParagraph(const QString &text, Colour colour, int columns);
/// A line of JSON on standard output.
void printJson(const OrderedJson &json);
/// A text of the program's own on standard output, as it is and flushed.
void printWhole(const QString &text);
/// A line on standard error.
void printError(const QString &text);

/// For who writes to standard output by another way: it has failed, errno tells why.
void noteOutputFailure();
/// Flushes standard output. What went wrong with it since the program began, for the user; empty for nothing.
QString outputFailure();
/// Whether it has failed since nobody reads it any more.
bool isOutputClosed();

/// A line on standard error that tells nothing bad.
void printNote(const QString &text);

/// How wide a text for reading is: as COLUMNS says, else as the terminal is, else 80; never wider than is good to read.
int columnsOfText();

/// Whether standard output is a terminal on which a line can be drawn again.
bool canRedraw();
/// Draws \a text in the place of the line that was drawn last, as much of it as fits into one line; see canRedraw().
void redrawLine(const QString &text);

/// Lines of columns, each as wide as its widest cell.
class Columns
{
public:
    void add(const QStringList &cells) { m_rows.append(cells); }
    /// \a heading: the first row is printed bold.
    void print(bool heading) const;
    /// Behind \a indent, the last column broken where it does not fit on a terminal.
    void printBroken(int indent) const;
    void printBroken(int indent, int columns) const;

private:
    QList<int> widths() const;

    QList<QStringList> m_rows;
};

} // namespace quv
