// SPDX-License-Identifier: LGPL-3.0-or-later
#include "excerpt.h"
#include "explanations.h"
#include "jsonvalue.h"
#include "refusallines.h"
#include "subcommands.h"
#include "terminal.h"

#include <QuvFramework/fw_error.h>

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace quv {

namespace {

using Explanations = std::vector<Explanation>;

/// The code that a user means by a word such as DE00060, de60 or 60.
QString codeOf(const QString &word)
{
    static const QRegularExpression form(QStringLiteral("^(DE)?([0-9]{1,5})$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(word);
    if (!match.hasMatch())
        throw UsageError(
            QStringLiteral("\"%1\" is no code of a refusal, such as DE00060 or 60").arg(excerpt(word)));
    return QStringLiteral("DE") + match.captured(2).rightJustified(5, QLatin1Char('0'));
}

int numberOf(const QString &code)
{
    return code.midRef(2).toInt();
}

/// The known codes with the nearest numbers, in their order.
QStringList nearestCodes(const QString &code)
{
    constexpr std::size_t most = 3;
    const int number = numberOf(code);
    std::set<int> known;
    for (const Explanation &explanation : explanations())
        known.insert(numberOf(QString::fromLatin1(explanation.code)));
    std::vector<int> numbers(known.begin(), known.end());
    std::stable_sort(numbers.begin(), numbers.end(),
                     [&](int a, int b) { return std::abs(a - number) < std::abs(b - number); });
    numbers.resize(std::min(numbers.size(), most));
    std::sort(numbers.begin(), numbers.end());
    QStringList codes;
    for (const int near : numbers)
        codes.append(QStringLiteral("DE%1").arg(near, 5, 10, QLatin1Char('0')));
    return codes;
}

Explanations explanationsOf(const QString &code)
{
    Explanations found;
    for (const Explanation &explanation : explanations())
        if (code == QLatin1String(explanation.code))
            found.push_back(explanation);
    if (found.empty())
        throw FW_DriverError(code, QStringLiteral("no refusal has this code; the nearest are %1")
                                       .arg(nearestCodes(code).join(QStringLiteral(", "))));
    return found;
}

QString cell(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString cell(const char *text)
{
    return cell(QString::fromUtf8(text));
}

OrderedJson listed(const char *texts)
{
    OrderedJson array = OrderedJson::array();
    for (const QString &text : QString::fromUtf8(texts).split(QStringLiteral(", "), Qt::SkipEmptyParts))
        array.push_back(toJson(text));
    return array;
}

OrderedJson inJson(const QString &code, const Explanations &found)
{
    OrderedJson refusals = OrderedJson::array();
    for (const Explanation &explanation : found)
        refusals.push_back(OrderedJson::object({{"text", explanation.text},
                                                {"names", listed(explanation.names)},
                                                {"class", explanation.refuser},
                                                {"form", explanation.form},
                                                {"when", toJson(whenInWords(explanation))},
                                                {"functions", listed(explanation.functions)},
                                                {"file", explanation.file}}));
    return OrderedJson::object({{"code", toJson(code)}, {"refusals", std::move(refusals)}});
}

/// What stands in the place of the ellipsis.
QString namesInWords(const Explanation &explanation)
{
    const QString names = QString::fromUtf8(explanation.names);
    return QStringLiteral("%1: \u2026 is %2%3")
        .arg(QString::fromUtf8(explanation.refuser),
             names.contains(QLatin1Char(',')) ? QStringLiteral("one of ") : QString(), names);
}

/// One text with all who refuse with it.
void printText(const QString &text, const Explanations &found)
{
    Columns columns;
    columns.add({QStringLiteral("CLASS"), QStringLiteral("FORM"), QStringLiteral("WHEN"),
                 QStringLiteral("FUNCTION"), QStringLiteral("FILE")});
    QStringList names;
    for (const Explanation &explanation : found) {
        if (text != QString::fromUtf8(explanation.text))
            continue;
        columns.add({cell(explanation.refuser), cell(explanation.form), cell(whenInWords(explanation)),
                     cell(explanation.functions), cell(explanation.file)});
        if (*explanation.names != '\0')
            names.append(namesInWords(explanation));
    }
    columns.print(false);
    for (const QString &line : qAsConst(names))
        printLine(line);
}

void print(const QString &code, const Explanations &found)
{
    QStringList texts;
    for (const Explanation &explanation : found)
        texts.append(QString::fromUtf8(explanation.text));
    texts.removeDuplicates();
    for (const QString &text : qAsConst(texts)) {
        if (text != texts.first())
            printLine(QString());
        printLine(QStringLiteral("%1: %2").arg(code, text), Colour::Bold);
        printText(text, found);
    }
}

ExitStatus runExplain(const CommandLine &line)
{
    QStringList codes;
    for (const QString &word : line.words())
        codes.append(codeOf(word));
    for (int i = 0; i < codes.size(); ++i) {
        const Explanations found = explanationsOf(codes.at(i));
        if (line.isSet("json")) {
            printJson(inJson(codes.at(i), found));
            continue;
        }
        if (i > 0)
            printLine(QString());
        print(codes.at(i), found);
    }
    return Done;
}

} // namespace

const Subcommand explainSubcommand = {
    "explain",
    "CODE [CODE...]",
    "what a refusal's code means, and who refuses with it",
    "Shows the texts of a code such as DE00060 (or 60), and for each the class that refuses with it, the "
    "form\n"
    "in which it got what it refused, when it does, and where. An ellipsis stands for what only the refused\n"
    "thing itself tells.",
    1,
    -1,
    {{"json", nullptr, "one JSON object a line, one a code"}},
    runExplain};

} // namespace quv
