// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>

namespace quv {

/** The translation context of all texts for people. Texts are marked with QT_TRANSLATE_NOOP where they stand. */
constexpr char translationContext[] = "QuvProtocol";

inline QString translated(const char *text)
{
    return QCoreApplication::translate(translationContext, text);
}

} // namespace quv
