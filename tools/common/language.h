// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

#include <optional>

namespace quv {

/**
 * Lets the texts of the library speak the user's language, when it is one that they are translated to: that of the environment variable
 * QUV_LANG ("de", "de_AT", "en"), else the locale's. Codes, and what the tools say themselves, stay English.
 */
class Language
{
public:
    enum From { QuvLangOrLocale, QuvLang };

    /// The arguments of main() are for an application object, made when there is none and a translation needs it.
    Language(int &argc, char **argv, From from);

private:
    QTranslator m_translator;
    std::optional<QCoreApplication> m_application{};
};

} // namespace quv
