// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QString>

/** A text for people in two forms: the English source for logs, and its translation for displays. */
class QUVPROTOCOL_EXPORT TString
{
public:
    TString() = default;
    /** \a context is the translation context; it must outlive the text, as a literal does. */
    TString(const char *text, const char *context);
    TString(const QString &text, const char *context);

    /**
     * Fills the next %n in both texts and gives the text itself. The translated text gets \a value translated in the
     * same context when \a translateValue is true; the source text always gets it as it is.
     */
    TString &arg(const QString &value, bool translateValue);

    QString m_text;             ///< English source text
    QString m_translated;       ///< in the running language
    const char *m_context = ""; ///< translation context
};
