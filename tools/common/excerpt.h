// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <string>

namespace quv {

/// The most characters that a text quotes of what came from outside: enough to find it, never a megabyte.
inline constexpr int ExcerptLength = 40;

/// \a text when it is short, else its beginning and "...".
inline QString excerpt(const QString &text)
{
    if (text.size() <= ExcerptLength)
        return text;
    const bool splitsPair = text.at(ExcerptLength - 1).isHighSurrogate();
    return text.left(splitsPair ? ExcerptLength - 1 : ExcerptLength) + QStringLiteral("...");
}

/// The same of UTF-8.
inline std::string excerpt(const std::string &text)
{
    constexpr std::size_t MostBytes = 4 * ExcerptLength; // of as many characters
    return excerpt(QString::fromStdString(text.substr(0, MostBytes + 1))).toStdString();
}

} // namespace quv
