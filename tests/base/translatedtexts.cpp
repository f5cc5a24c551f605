// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/translatedtexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

namespace testing_base {

namespace {

class QuotingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "QuvProtocol") == 0 ? translation(QString::fromUtf8(text)) : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

QString translation(const QString &text)
{
    return QChar(0xAB) + text + QChar(0xBB);
}

struct TranslatedTexts::Private
{
    int argumentCount = 1;
    char programName[5] = "test";
    char *arguments[2] = {programName, nullptr};
    QCoreApplication application{argumentCount, arguments};
    QuotingTranslator translator;
};

TranslatedTexts::TranslatedTexts() : d(std::make_unique<Private>())
{
    QCoreApplication::installTranslator(&d->translator);
}

TranslatedTexts::~TranslatedTexts()
{
    QCoreApplication::removeTranslator(&d->translator);
}

} // namespace testing_base
