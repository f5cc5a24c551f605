// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_exception.h>

#include <memory>

namespace {

/** clang prints "const A &" where g++ prints "const A&". */
QString asGccPrints(QString signature)
{
    return signature.replace(QLatin1String(" *"), QLatin1String("*"))
        .replace(QLatin1String(" &"), QLatin1String("&"));
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
