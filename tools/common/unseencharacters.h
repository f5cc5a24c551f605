// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace quv {

/// Whether a character shows nothing and changes how others show: control and format characters, such as those that turn the
/// direction of writing, and ends of lines.
inline bool isUnseen(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

/// As UTF-16. QString::fromUcs4 takes some for a mark of the byte order, and drops them.
inline QString utf16Of(uint character)
{
    if (QChar::requiresSurrogates(character))
        return QString(QChar(QChar::highSurrogate(character))) + QChar(QChar::lowSurrogate(character));
    return QString(QChar(character));
}

/// \a text with \a replaced(character) in the place of each such character.
template <class Replaced>
QString withoutUnseen(const QString &text, Replaced replaced)
{
    QString seen;
    for (const uint character : text.toUcs4()) {
        if (isUnseen(character))
            seen += replaced(character);
        else
            seen += utf16Of(character);
    }
    return seen;
}

} // namespace quv
