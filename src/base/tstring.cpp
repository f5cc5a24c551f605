// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/tstring.h"

#include <QtCore/QCoreApplication>

TString::TString(const char *text, const char *context)
    : m_text(QString::fromUtf8(text)),
      m_translated(QCoreApplication::translate(context, text)),
      m_context(context)
{}

TString::TString(const QString &text, const char *context)
    : m_text(text),
      m_translated(QCoreApplication::translate(context, text.toUtf8().constData())),
      m_context(context)
{}

TString &TString::arg(const QString &value, bool translateValue)
{
    m_text = m_text.arg(value);
    m_translated = m_translated.arg(
        translateValue ? QCoreApplication::translate(m_context, value.toUtf8().constData()) : value);
    return *this;
}
