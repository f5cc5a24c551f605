// SPDX-License-Identifier: LGPL-3.0-or-later
#include "terminal.h"

#include "unseencharacters.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <limits>
#include <sys/ioctl.h>
#include <unistd.h>

namespace quv {

namespace {

bool understandsEscapes(FILE *stream)
{
    return isatty(fileno(stream)) != 0 && qgetenv("TERM") != "dumb";
}

bool hasColours(FILE *stream)
{
    return understandsEscapes(stream) && qEnvironmentVariableIsEmpty("NO_COLOR");
}

/// What does not fit would wrap, and stay when the line is drawn again.
int columnsOfTerminal()
{
    winsize size{};
    const bool known = ioctl(fileno(stdout), TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 80;
}

/// How long a line may be; what is no terminal takes any, so that the next program gets whole lines.
int longestLine()
{
    return isatty(fileno(stdout)) != 0 ? columnsOfTerminal() : std::numeric_limits<int>::max();
}

/// The text in lines that fit; a word that does not fit is a line of its own.
QStringList brokenLines(const QString &text, int columns)
{
    QStringList lines{QString()};
    for (const QString &word : text.split(QLatin1Char(' '))) {
        QString &line = lines.last();
        if (line.isEmpty())
            line = word;
        else if (line.size() + 1 + word.size() <= columns)
            line += QLatin1Char(' ') + word;
        else
            lines.append(word);
    }
    return lines;
}

QString blanks(int count)
{
    return QString(count, QLatin1Char(' '));
}

const char *escape(Colour colour)
{
    switch (colour) {
    case Colour::Bold:
        return "\033[1m";
    case Colour::Red:
        return "\033[31m";
    case Colour::Plain:
        break;
    }
    return "";
}

/// Why standard output failed first; the stream itself remembers only that it did.
int outputError = 0;

void write(FILE *stream, const std::string &text)
{
    const bool isWritten =
        std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
    if (!isWritten && stream == stdout)
        noteOutputFailure();
}

void print(FILE *stream, const QString &text, Colour colour)
{
    std::string line = printable(text).toStdString();
    if (colour != Colour::Plain && hasColours(stream))
        line = escape(colour) + line + "\033[0m";
    line += '\n';
    write(stream, line);
}

} // namespace

QString printable(const QString &text)
{
    return withoutUnseen(text, [](uint) { return QChar(QChar::ReplacementCharacter); });
}

QString shellWord(const QString &word)
{
    static const QRegularExpression plain(QStringLiteral(R"(\A[\w@%+=:,./-]+\z)"));
    if (plain.match(word).hasMatch())
        return word;
    QString quoted = word;
    if (printable(word) == word)
        return QLatin1Char('\'') + quoted.replace(QLatin1Char('\''), QStringLiteral(R"('\'')")) +
               QLatin1Char('\'');
    quoted.replace(QLatin1Char('\\'), QStringLiteral(R"(\\)"));
    quoted.replace(QLatin1Char('\''), QStringLiteral(R"(\')"));
    quoted = withoutUnseen(quoted, [](uint character) { return QString::asprintf("\\U%08x", character); });
    return QStringLiteral("$'") + quoted + QLatin1Char('\'');
}

void printLine(const QString &text, Colour colour)
{
    print(stdout, text, colour);
}

void printParagraph(const QString &text, Colour colour)
{
    printParagraph(text, colour, longestLine());
}

void printParagraph(const QString &text, Colour colour, int columns)
{
    for (const QString &line : brokenLines(text, columns))
        printLine(line, colour);
}

void printJson(const OrderedJson &json)
{
    printLine(QString::fromStdString(writeJson(json)));
}

void printWhole(const QString &text)
{
    write(stdout, text.toStdString());
}

void printError(const QString &text)
{
    print(stderr, text, Colour::Red);
}

void noteOutputFailure()
{
    if (outputError == 0)
        outputError = errno;
}

QString outputFailure()
{
    write(stdout, {});
    return outputError == 0 ? QString() : QStringLiteral("standard output: ") + qt_error_string(outputError);
}

bool isOutputClosed()
{
    return outputError == EPIPE;
}

void printNote(const QString &text)
{
    print(stderr, text, Colour::Plain);
}

int columnsOfText()
{
    constexpr int narrowest = 40;
    constexpr int widest = 100;
    const int wanted = qEnvironmentVariableIntValue("COLUMNS");
    return std::clamp(wanted > 0 ? wanted : columnsOfTerminal(), narrowest, widest);
}

bool canRedraw()
{
    return understandsEscapes(stdout);
}

void redrawLine(const QString &text)
{
    const std::string line = "\r" + printable(text).left(columnsOfTerminal() - 1).toStdString() + "\033[K";
    write(stdout, line);
}

QList<int> Columns::widths() const
{
    QList<int> widths;
    for (const QStringList &row : m_rows)
        for (int i = 0; i < row.size(); ++i) {
            if (i == widths.size())
                widths.append(0);
            widths[i] = std::max(widths[i], row[i].size());
        }
    return widths;
}

void Columns::print(bool heading) const
{
    const QList<int> widths = this->widths();
    for (const QStringList &row : m_rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i)
            line += i + 1 < row.size() ? row[i].leftJustified(widths[i] + 2) : row[i];
        printLine(line, heading && &row == &m_rows.first() ? Colour::Bold : Colour::Plain);
    }
}

void Columns::printBroken(int indent) const
{
    printBroken(indent, longestLine());
}

void Columns::printBroken(int indent, int columns) const
{
    constexpr int narrowest = 24; // a last column with less room goes below the others
    const QList<int> widths = this->widths();
    int start = indent;
    for (int i = 0; i + 1 < widths.size(); ++i)
        start += widths[i] + 2;
    const bool fits = columns - start >= narrowest;
    const int lastStart = fits ? start : indent + 4;
    for (const QStringList &row : m_rows) {
        QString line = blanks(indent);
        for (int i = 0; i + 1 < row.size(); ++i)
            line += row[i].leftJustified(widths[i] + 2);
        QStringList texts = brokenLines(row.last(), columns - lastStart);
        if (fits)
            line += texts.takeFirst();
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        printLine(line);
        for (const QString &text : qAsConst(texts))
            if (!text.isEmpty())
                printLine(blanks(lastStart) + text);
    }
}

} // namespace quv
