// SPDX-License-Identifier: LGPL-3.0-or-later
#include "language.h"

#include <QtCore/QLocale>
#include <QtCore/QString>

#include <clocale>

// outside of all namespaces, as what the resource compiler writes
static void openTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace quv {

Language::Language(int &argc, char **argv, From from)
{
    const QString asked = qEnvironmentVariable("QUV_LANG");
    if (asked.isEmpty() && from == QuvLang)
        return;
    openTranslations();
    const QLocale locale = asked.isEmpty() ? QLocale::system() : QLocale(asked);
    if (!m_translator.load(locale, QStringLiteral("quvprotocol"), QStringLiteral("_"),
                           QStringLiteral(":/translations")))
        return;
    if (!QCoreApplication::instance())
        m_application.emplace(argc, argv);
    std::setlocale(LC_NUMERIC,
                   "C"); // numbers on the wire and in JSON have a point, whatever the application object sets
    QCoreApplication::installTranslator(&m_translator);
}

} // namespace quv
