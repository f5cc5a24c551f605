// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_exception.h>

#include <memory>

namespace {

/** clang puts the blank before "*" and "&": "const A &", "A *f()", where g++ prints "const A&", "A* f()". */
QString withBlanksOfGcc(const QString &signature)
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

bool isPartOfName(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char(':');
}

/** Among the arguments of a class's operation g++ leaves the class out: "A::A(B)" for "A::A(A::B)". */
QString asGccPrints(const QString &signature)
{
    QString text = withBlanksOfGcc(signature);
    const int arguments = text.indexOf(QLatin1Char('('));
    const int scope = text.lastIndexOf(QLatin1String("::"), arguments);
    if (arguments < 0 || scope < 0)
        return text;
    int begin = scope;
    while (begin > 0 && isPartOfName(text.at(begin - 1)))
        --begin;
    const QString ownClass = text.mid(begin, scope + 2 - begin);
    for (int at = text.indexOf(ownClass, arguments); at > 0; at = text.indexOf(ownClass, at + 1)) {
        if (!isPartOfName(text.at(at - 1)))
            text.remove(at, ownClass.size());
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
