// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_exception.h>

#include <memory>

namespace {

/** clang puts the blank before "*" and "&": "const A &", "A *f()", where g++ prints "const A&", "A* f()". */
QString asGccPrints(const QString &signature)
{
    QString text;
    bool blankTaken = false;
    for (const QChar c : signature) {
        if (c == QLatin1Char('*') || c == QLatin1Char('&')) {
            if (text.endsWith(QLatin1Char(' '))) {
                text.chop(1);
                blankTaken = true;
            }
        } else {
            if (blankTaken && (c.isLetter() || c == QLatin1Char('_')))
                text += QLatin1Char(' ');
            blankTaken = false;
        }
        text += c;
    }
    return text;
}

} // namespace

FW_Exception::FW_Exception(const QString &code, const QString &text, const QString &function)
    : FW_DriverError(code, text)
{
    m_function = asGccPrints(function);
}

FW_Exception::FW_Exception(const FW_DriverError &error, const QString &function) : FW_DriverError(error)
{
    m_function = asGccPrints(function);
}

FW_Exception *FW_Exception::clone() const
{
    return std::make_unique<FW_Exception>(*this).release();
}
