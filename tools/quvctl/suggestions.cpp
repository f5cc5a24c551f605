// SPDX-License-Identifier: LGPL-3.0-or-later
#include "suggestions.h"

#include "catalogue/protocommandlist.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace quv {

namespace {

constexpr int most = 3;

/// How many letters must be put in, left out, replaced or swapped with their neighbour to make one word of the other.
int distance(const QString &a, const QString &b)
{
    const auto columns = static_cast<std::size_t>(b.size()) + 1;
    std::vector<int> before(columns);
    std::vector<int> row(columns);
    std::vector<int> next(columns);
    for (std::size_t j = 0; j < columns; ++j)
        row[j] = static_cast<int>(j);
    for (int i = 1; i <= a.size(); ++i) {
        next[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const auto column = static_cast<std::size_t>(j);
            const int changed = row[column - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            next[column] = std::min({changed, row[column] + 1, next[column - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                next[column] = std::min(next[column], before[column - 2] + 1);
        }
        before.swap(row);
        row.swap(next);
    }
    return row.back();
}

/// Of longer words more letters may be wrong.
int mostWrong(const QString &word)
{
    return std::max(1, word.size() / 3);
}

/// The words that whoever typed \a word may have meant: the nearest ones, three at most. Capitals do not count.
QStringList nearestWords(const QString &word, const QStringList &words)
{
    const QString typed = word.toUpper();
    int nearest = mostWrong(word);
    QStringList found;
    for (const QString &candidate : words) {
        if (std::abs(candidate.size() - word.size()) > nearest)
            continue;
        const int far = distance(typed, candidate.toUpper());
        if (far > nearest)
            continue;
        if (far < nearest)
            found.clear();
        nearest = far;
        found.append(candidate);
    }
    return found.mid(0, most);
}

} // namespace

QString nameMeant(const QString &typed, const QStringList &names)
{
    if (const QStringList meant = nearestWords(typed, names); !meant.isEmpty())
        return meant.first();
    QStringList beginnings;
    for (const QString &name : names)
        beginnings.append(name.section(QLatin1Char('_'), 0, 0));
    const QStringList meant = nearestWords(typed, beginnings);
    return meant.isEmpty() ? QString() : names[beginnings.indexOf(meant.first())];
}

QString didYouMean(const QString &word, const QStringList &words)
{
    QStringList meant;
    for (const QString &near : nearestWords(word, words))
        meant.append(QLatin1Char('"') + near + QLatin1Char('"'));
    if (meant.isEmpty())
        return {};
    const QString last = meant.takeLast();
    const QString others =
        meant.isEmpty() ? QString() : meant.join(QStringLiteral(", ")) + QStringLiteral(" or ");
    return QStringLiteral("; did you mean %1%2?").arg(others, last);
}

QString didYouMeanCommand(const QString &name)
{
    QStringList names;
    for (int id = 0; id < ProtoCommandList::rowCount; ++id)
        names.append(ProtoCommandList::row(id)->name);
    return didYouMean(name, names);
}

} // namespace quv
