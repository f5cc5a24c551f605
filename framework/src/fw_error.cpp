// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QCalendar>

#include <memory>

namespace {

// Qt makes its calendars when the first date is written, and not safely when several threads write their first ones at
// once: this one is made while the library is loaded.
const QCalendar firstCalendar;

const char errorTypeTag[] = "error_type";
const char timestampTag[] = "timestamp";
const char codeTag[] = "code";
const char textTag[] = "text";
const char moduleTag[] = "module";
const char valueTag[] = "value";
const char flagTag[] = "flag";
const char deviceTag[] = "device";

/** A list of errors is shown line by line, so that an error must never bring lines of its own. */
QString oneLine(const QString &text)
{
    return text.simplified();
}

QString numbersInWords(int code, int module, int value, bool flag)
{
    return QStringLiteral("code %1, module %2, value %3, flag %4")
        .arg(code)
        .arg(module)
        .arg(value)
        .arg(flag ? 1 : 0);
}

bool decodeNumbers(const XmlRpc::XmlRpcValue &error, int &code, int &module, int &value, bool &flag)
{
    return DecodeXmlRpcValue(error, codeTag, code) && DecodeXmlRpcValue(error, moduleTag, module) &&
           DecodeXmlRpcValue(error, valueTag, value) && DecodeXmlRpcValue(error, flagTag, flag);
}

void encodeNumbers(XmlRpc::XmlRpcValue &error, int code, int module, int value, bool flag)
{
    error[codeTag] = code;
    error[moduleTag] = module;
    error[valueTag] = value;
    error[flagTag] = flag;
}

bool isKnownDevice(int device)
{
    return device == static_cast<int>(SerialDeviceType::Dispenser) ||
           device == static_cast<int>(SerialDeviceType::Scale) ||
           device == static_cast<int>(SerialDeviceType::Mixer);
}

} // namespace

FW_Error::FW_Error() : m_timestamp(QDateTime::currentDateTimeUtc()) {}

FW_Error::FW_Error(const XmlRpc::XmlRpcValue &value)
{
    if (errorType(value) == Undefined || !DecodeXmlRpcTimestamp(value, timestampTag, m_timestamp, true))
        throw FW_Exception(QStringLiteral("DE03001"),
                           QStringLiteral("FW_Error: expected error_type and timestamp values"), Q_FUNC_INFO);
}

FW_Error::~FW_Error() = default;

void FW_Error::setTimestamp(const QDateTime &timestamp)
{
    if (timestamp.isValid())
        m_timestamp = timestamp;
}

XmlRpc::XmlRpcValue FW_Error::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[errorTypeTag] = static_cast<int>(errorType());
    value[timestampTag] = m_timestamp.toUTC().toString(Qt::ISODateWithMs).toStdString();
    return value;
}

FW_Error::Type FW_Error::errorType(const XmlRpc::XmlRpcValue &value)
{
    int type = Undefined;
    if (!DecodeXmlRpcValue(value, errorTypeTag, type) || type < Undefined || type > Configuration)
        return Undefined;
    return static_cast<Type>(type);
}

FW_Error *FW_Error::fromXmlRpcValue(const XmlRpc::XmlRpcValue &value)
{
    switch (errorType(value)) {
    case Driver:
        return std::make_unique<FW_DriverError>(value).release();
    case Hardware:
        return std::make_unique<FW_HwError>(value).release();
    case Configuration:
        return std::make_unique<FW_ConfError>(value).release();
    case Undefined:
        break;
    }
    throw FW_Exception(QStringLiteral("DE03007"), QStringLiteral("FW_Error: unknown error type"),
                       Q_FUNC_INFO);
}

FW_DriverError::FW_DriverError(const QString &code, const QString &text) : m_code(code), m_text(text) {}

FW_DriverError::FW_DriverError(const XmlRpc::XmlRpcValue &value) : FW_Error(value)
{
    if (!DecodeXmlRpcValue(value, codeTag, m_code))
        throw FW_Exception(QStringLiteral("DE03002"), QStringLiteral("FW_DriverError: expected code value"),
                           Q_FUNC_INFO);
    if (!DecodeXmlRpcValue(value, textTag, m_text))
        throw FW_Exception(QStringLiteral("DE03003"), QStringLiteral("FW_DriverError: expected text value"),
                           Q_FUNC_INFO);
}

FW_DriverError *FW_DriverError::clone() const
{
    return std::make_unique<FW_DriverError>(*this).release();
}

FW_Error::Type FW_DriverError::errorType() const
{
    return Driver;
}

QString FW_DriverError::toPrintableString() const
{
    return oneLine(QStringLiteral("%1: %2").arg(m_code, m_text));
}

XmlRpc::XmlRpcValue FW_DriverError::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = FW_Error::toXmlRpcValue();
    value[codeTag] = EncodeXmlRpcText(m_code);
    value[textTag] = EncodeXmlRpcText(m_text);
    return value;
}

bool FW_DriverError::equalTo(const FW_Error &other) const
{
    const auto *that = dynamic_cast<const FW_DriverError *>(&other);
    return that && m_code == that->m_code && m_text == that->m_text;
}

bool FW_DriverError::D_E(const QString &code, const QString &text, FW_DriverError *error)
{
    return error ? D_E(code, text, *error) : false;
}

bool FW_DriverError::D_E(const QString &code, const QString &text, FW_DriverError &error)
{
    error = FW_DriverError(code, text);
    return false;
}

FW_HwError::FW_HwError(int code, int module, int value, bool flag, const SerialDeviceType &device)
    : m_code(code),
      m_module(module),
      m_value(value),
      m_flag(flag),
      m_device(device)
{}

FW_HwError::FW_HwError(const XmlRpc::XmlRpcValue &value) : FW_Error(value)
{
    int device = 0;
    if (!decodeNumbers(value, m_code, m_module, m_value, m_flag) ||
        !DecodeXmlRpcValue(value, deviceTag, device) || !isKnownDevice(device))
        throw FW_Exception(QStringLiteral("DE03004"),
                           QStringLiteral("FW_HwError: expected the numbers of a hardware error"),
                           Q_FUNC_INFO);
    m_device = static_cast<SerialDeviceType>(device);
}

FW_HwError *FW_HwError::clone() const
{
    return std::make_unique<FW_HwError>(*this).release();
}

FW_Error::Type FW_HwError::errorType() const
{
    return Hardware;
}

QString FW_HwError::toPrintableString() const
{
    return QStringLiteral("Hardware error: ") + numbersInWords(m_code, m_module, m_value, m_flag);
}

XmlRpc::XmlRpcValue FW_HwError::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = FW_Error::toXmlRpcValue();
    encodeNumbers(value, m_code, m_module, m_value, m_flag);
    value[deviceTag] = static_cast<int>(m_device);
    return value;
}

bool FW_HwError::equalTo(const FW_Error &other) const
{
    const auto *that = dynamic_cast<const FW_HwError *>(&other);
    return that && m_code == that->m_code && m_module == that->m_module && m_value == that->m_value &&
           m_flag == that->m_flag && m_device == that->m_device;
}

FW_ConfError::FW_ConfError(int code, int module, int value, bool flag)
    : m_code(code),
      m_module(module),
      m_value(value),
      m_flag(flag)
{}

FW_ConfError::FW_ConfError(const XmlRpc::XmlRpcValue &value) : FW_Error(value)
{
    if (!decodeNumbers(value, m_code, m_module, m_value, m_flag))
        throw FW_Exception(QStringLiteral("DE03005"),
                           QStringLiteral("FW_ConfError: expected the numbers of a configuration error"),
                           Q_FUNC_INFO);
}

FW_ConfError *FW_ConfError::clone() const
{
    return std::make_unique<FW_ConfError>(*this).release();
}

FW_Error::Type FW_ConfError::errorType() const
{
    return Configuration;
}

QString FW_ConfError::toPrintableString() const
{
    return QStringLiteral("Configuration error: ") + numbersInWords(m_code, m_module, m_value, m_flag);
}

XmlRpc::XmlRpcValue FW_ConfError::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = FW_Error::toXmlRpcValue();
    encodeNumbers(value, m_code, m_module, m_value, m_flag);
    return value;
}

bool FW_ConfError::equalTo(const FW_Error &other) const
{
    const auto *that = dynamic_cast<const FW_ConfError *>(&other);
    return that && m_code == that->m_code && m_module == that->m_module && m_value == that->m_value &&
           m_flag == that->m_flag;
}
