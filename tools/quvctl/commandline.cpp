// SPDX-License-Identifier: LGPL-3.0-or-later
#include "commandline.h"

#include "excerpt.h"
#include "suggestions.h"

#include <algorithm>
#include <cmath>

namespace quv {

namespace {

// Keeps the parser from taking -5 for an option; nobody can type it.
const QChar guard(1);

bool looksNegative(const QString &word)
{
    return word.size() > 1 && word[0] == QLatin1Char('-') &&
           (word[1].isDigit() || word[1] == QLatin1Char('.'));
}

QString guarded(const QString &word)
{
    return looksNegative(word) ? guard + word : word;
}

QString unguarded(const QString &word)
{
    return word.startsWith(guard) ? word.mid(1) : word;
}

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

QCommandLineOption parserOption(const OptionText &option)
{
    QStringList names(latin1(option.name));
    if (option.letter)
        names.append(QString(QLatin1Char(option.letter)));
    return {names, latin1(option.text), option.value ? latin1(option.value) : QString()};
}

/// The word by which a user gave the option of one letter that nobody knows.
QString wordOfLetter(const QString &letter, const QStringList &words)
{
    const auto word = std::find_if(words.begin(), words.end(), [&](const QString &each) {
        return each.startsWith(QLatin1Char('-') + letter);
    });
    return word == words.end() ? QLatin1Char('-') + letter : *word;
}

/// What a word with one dash stands for: a long option, or a quantity, which has none.
QString meantByOneDash(const QString &word, const QStringList &known)
{
    const QString &name = word.mid(1);
    if (name.size() > 1 && name.contains(QLatin1Char('=')))
        return QStringLiteral("; did you mean \"%1\"?").arg(excerpt(name));
    return name.size() > 1 ? didYouMean(QStringLiteral("--") + name, known) : QString();
}

/// What the parser found wrong, and which options the unknown ones may stand for.
QString parserError(const QCommandLineParser &parser, const Subcommand &subcommand, const QStringList &words)
{
    QStringList known(QStringLiteral("--help"));
    for (const OptionText &option : subcommand.options)
        known.append(QStringLiteral("--") + latin1(option.name));
    QString text = parser.errorText();
    for (const QString &unknown : parser.unknownOptionNames())
        text.replace(unknown, excerpt(unknown));
    for (const QString &unknown : parser.unknownOptionNames()) {
        if (unknown.size() == 1) {
            const QString word = wordOfLetter(unknown, words);
            return QStringLiteral("there is no option \"%1\"%2")
                .arg(excerpt(word), meantByOneDash(word, known));
        }
        const QString suggestion = didYouMean(QStringLiteral("--") + unknown, known);
        if (suggestion.isEmpty())
            continue;
        text.chop(text.endsWith(QLatin1Char('.')) ? 1 : 0);
        return text + suggestion;
    }
    return text;
}

UsageError outOfRange(const char *option, double min, double max)
{
    return UsageError(QStringLiteral("--%1 takes a number from %2 to %3")
                          .arg(latin1(option))
                          .arg(min)
                          .arg(max, 0, 'g', 12));
}

} // namespace

CommandLine::CommandLine(const Subcommand &subcommand, const QStringList &words)
{
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QString()});
    for (const OptionText &option : subcommand.options)
        m_parser.addOption(parserOption(option));

    QStringList line(latin1(subcommand.name)); // where the parser expects the program's name
    for (const QString &word : words)
        line.append(guarded(word));
    if (!m_parser.parse(line))
        throw UsageError(parserError(m_parser, subcommand, words));
    for (const QString &word : m_parser.positionalArguments())
        m_words.append(unguarded(word));

    if (wantsHelp())
        return;
    if (m_words.size() < subcommand.minWords)
        throw UsageError(
            QStringLiteral("%1 needs %2").arg(latin1(subcommand.name), latin1(subcommand.words)));
    if (subcommand.maxWords >= 0 && m_words.size() > subcommand.maxWords)
        throw UsageError(QStringLiteral("unexpected \"%1\"").arg(excerpt(m_words[subcommand.maxWords])));
}

bool CommandLine::isSet(const char *option) const
{
    return m_parser.isSet(latin1(option));
}

QString CommandLine::value(const char *option, const QString &otherwise) const
{
    return isSet(option) ? unguarded(m_parser.value(latin1(option))) : otherwise;
}

int CommandLine::number(const char *option, int otherwise, int min, int max) const
{
    bool ok = false;
    const int number = value(option, QString::number(otherwise)).toInt(&ok);
    if (!ok || number < min || number > max)
        throw outOfRange(option, min, max);
    return number;
}

double CommandLine::decimal(const char *option, double otherwise, double min, double max) const
{
    bool ok = false;
    const double number = value(option, QString::number(otherwise)).toDouble(&ok);
    if (!ok || !(number >= min && number <= max))
        throw outOfRange(option, min, max);
    return number;
}

QString CommandLine::choice(const char *option, const QString &otherwise, const QStringList &choices) const
{
    QString choice = value(option, otherwise);
    if (isSet(option) && !choices.contains(choice))
        throw UsageError(
            QStringLiteral("--%1 is one of: %2").arg(latin1(option), choices.join(QStringLiteral(", "))));
    return choice;
}

std::vector<OptionText> withDriverOptions(std::vector<OptionText> options)
{
    options.push_back(
        {"host", "HOST", "the driver: HOST, HOST:PORT or http://HOST:PORT/PATH (QUV_HOST, or 127.0.0.1)"});
    options.push_back({"port", "PORT", "the driver's port (QUV_PORT, or 9333)"});
    options.push_back({"on", "MACHINE",
                       "the machine: dispenser, mixer or, by its number, dispenser:2 (QUV_ON, or the active "
                       "dispenser; the mixer for what only mixers do)"});
    options.push_back({"timeout", "SECONDS", "how long a call may take (60)"});
    options.push_back(
        {"token-file", "FILE", "the file with the token that the driver asks for (QUV_TOKEN_FILE)"});
    options.push_back({"verbose", nullptr, "tell each call of the driver on standard error", 'v'});
    return options;
}

std::chrono::milliseconds intervalOf(const CommandLine &line)
{
    return std::chrono::milliseconds(std::llround(line.decimal("interval", 0.5, 0.01, 86400) * 1000));
}

} // namespace quv
