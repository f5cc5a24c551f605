// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The root of all errors: what went wrong, and when.
 *
 * In XML-RPC every error is a struct with the members "error_type" (int, see Type), "timestamp" (string, ISO 8601 in
 * UTC with milliseconds) and those of its own class.
 */
class QUVFRAMEWORK_EXPORT FW_Error
{
public:
    /** Who reported the error; also the filter of FW_ErrorList::filterErrorTypes. */
    enum Type { Undefined = 0, Driver = 1, Hardware = 2, Configuration = 3 };

    virtual ~FW_Error();
    virtual FW_Error *clone() const = 0; ///< a copy, owned by the caller
    virtual Type errorType() const = 0;
    virtual QString toPrintableString() const = 0; ///< one line, whatever the texts hold
    virtual XmlRpc::XmlRpcValue toXmlRpcValue() const;

    /**
     * Same type and same content. The time is left out: the same error told twice is one error; and so is the function
     * of an exception, which does not travel.
     */
    virtual bool equalTo(const FW_Error &other) const = 0;

    QDateTime timestamp() const { return m_timestamp; }
    void setTimestamp(const QDateTime &timestamp); ///< an invalid time changes nothing

    /** The kind of the error that \a value holds; Undefined when it holds none. */
    static Type errorType(const XmlRpc::XmlRpcValue &value);

    /** Decodes an error of any kind, owned by the caller. Throws FW_Exception for anything else. */
    static FW_Error *fromXmlRpcValue(const XmlRpc::XmlRpcValue &value);

protected:
    FW_Error(); ///< an error of this moment
    /** Reads what all errors share. Throws FW_Exception DE03001 when \a value is no struct of an error. */
    explicit FW_Error(const XmlRpc::XmlRpcValue &value);
    FW_Error(const FW_Error &) = default;
    FW_Error &operator=(const FW_Error &) = default;

private:
    QDateTime m_timestamp;
};

/** An error that the driver or the protocol library raised: a code of DE and five digits, and an English text. */
class QUVFRAMEWORK_EXPORT FW_DriverError : public FW_Error
{
public:
    FW_DriverError() = default;
    FW_DriverError(const QString &code, const QString &text);
    /** Members "code" and "text", both strings. Throws FW_Exception DE03002 or DE03003. */
    explicit FW_DriverError(const XmlRpc::XmlRpcValue &value);

    FW_DriverError *clone() const override;
    Type errorType() const override;
    QString toPrintableString() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const FW_Error &other) const override;

    QString code() const { return m_code; }
    QString text() const { return m_text; }
    /** The signature of the function that threw; empty for an error that was never an exception. Does not travel. */
    QString function() const { return m_function; }

    /** Fills \a error when it is given. Always false, so that a failing function ends in one line. */
    static bool D_E(const QString &code, const QString &text, FW_DriverError *error);
    static bool D_E(const QString &code, const QString &text, FW_DriverError &error);

protected:
    QString m_code;
    QString m_text;
    QString m_function;
};

/** An error that the firmware reported of its hardware. */
class QUVFRAMEWORK_EXPORT FW_HwError : public FW_Error
{
public:
    FW_HwError() = default; ///< all numbers 0, of a dispenser
    FW_HwError(int code, int module, int value, bool flag, const SerialDeviceType &device);
    /** Members "code", "module", "value", "device" (ints) and "flag" (bool). Throws FW_Exception DE03004. */
    explicit FW_HwError(const XmlRpc::XmlRpcValue &value);

    FW_HwError *clone() const override;
    Type errorType() const override;
    QString toPrintableString() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const FW_Error &other) const override;

    int code() const { return m_code; }
    int module() const { return m_module; }
    int value() const { return m_value; } ///< five bits, as the firmware sent them
    bool flag() const { return m_flag; }
    SerialDeviceType device() const { return m_device; }

private:
    int m_code = 0;
    int m_module = 0;
    int m_value = 0;
    bool m_flag = false;
    SerialDeviceType m_device = SerialDeviceType::Dispenser;
};

/** An error that the firmware reported of its configuration. */
class QUVFRAMEWORK_EXPORT FW_ConfError : public FW_Error
{
public:
    FW_ConfError() = default; ///< all numbers 0
    FW_ConfError(int code, int module, int value, bool flag);
    /** Members "code", "module", "value" (ints) and "flag" (bool). Throws FW_Exception DE03005. */
    explicit FW_ConfError(const XmlRpc::XmlRpcValue &value);

    FW_ConfError *clone() const override;
    Type errorType() const override;
    QString toPrintableString() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const FW_Error &other) const override;

    int code() const { return m_code; }
    int module() const { return m_module; }
    int value() const { return m_value; }
    bool flag() const { return m_flag; }

private:
    int m_code = 0;
    int m_module = 0;
    int m_value = 0;
    bool m_flag = false;
};
