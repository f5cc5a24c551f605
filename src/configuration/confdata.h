// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_CalibrationProfiles;
class FW_Machine;

/**
 * One row of a machine's configuration, the root of all structures: `cmd_enabled`, then the structure's parameters in a
 * fixed order. Fields behind those that a class knows stay in the parameters and go out again with them, so that a
 * firmware newer than this library loses nothing.
 *
 * On the serial link every field is a count and so many digits of base 246, low digit first. The text form, decimal numbers
 * joined by commas, serves XML-RPC and logs.
 */
class QUVPROTOCOL_EXPORT ConfData
{
public:
    /** What `cmd_enabled` says of a structure or of the device that it describes. */
    enum CommandEnable { Cleared = -1, Absent = 0, Enabled = 1, Disabled = 2 };

    ConfData() = default;
    explicit ConfData(int code) : m_commandCode(code) {}
    ConfData(int code, const FW_Machine *machine); ///< the machine is the structure's
    /** From the text form. Throws DE00834, DE00151 or DE00152. */
    ConfData(int code, QString row);
    /** From a received row. Throws DE00085 or DE00086. */
    ConfData(int code, QStringList tokens);
    ConfData(const ConfData &) = default;
    virtual ~ConfData();
    virtual ConfData *clone() const = 0; ///< owned by the caller

    /**
     * Applies the row to a machine. \a profiles and \a extra may be null; rows of one transfer share \a extra, in which
     * "@GMC" leaves a value for "@CPT".
     */
    virtual bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                                     QList<int> *extra) const = 0;
    /** The row as the firmware takes it; \a ok is false when a field cannot be written, such as a negative number. */
    virtual QList<int> serialParams(bool *ok = nullptr) const;
    virtual QString configurationParamsStr() const; ///< the row as text
    virtual int numOfConfigurationParams() const;   ///< without `cmd_enabled`
    virtual XmlRpc::XmlRpcValue toXmlRpcValue() const = 0;
    /**
     * Moves the parameters into the typed object; false when a mandatory one is missing. \a error tells the last one that is not
     * there, so that it is filled for an optional one as well.
     */
    virtual bool updateLocalData(QString *error) = 0;

    int commandEnable() const { return m_cmdEnabled; }
    /** Enabled or Disabled; Absent is for what the machine does not have. */
    void setCommandEnable(bool enabled);
    int commandCode() const { return m_commandCode; }
    void setCommandCode(int code) { m_commandCode = code; }
    int enabledFieldLength() const
    {
        return m_enabledFieldLength;
    } ///< digits of `cmd_enabled` in a received row
    const QList<int> &parameters() const { return m_parameters; }

    static bool checkCommandCode(int code);          ///< 1 to 26
    static QString confCommandToString(int code);    ///< "@ICS" and so on; empty for no structure
    static bool isMultipleInstance(int code);        ///< once per circuit or reference
    static bool checkCommandEnable(int cmd_enabled); ///< 0, 1 or 2
    static bool isCommandCodeSupported(int code, SerialDeviceType type);
    /** What the parameters of a structure are called, by position; empty for one that this library does not know. */
    static QStringList fieldLabels(int code);
    static QStringList labels() { return {}; } ///< of the class's own structure

    static bool createSerialParam(int value, QList<int> *out);
    static bool createSerialParam(QString value, QList<int> *out);
    // Read the field at the beginning of the tokens: the number of its digits, 0 for a failure.
    static int parseConfigurationParam(int *value, QStringList tokens);
    /** A text is a row's last field: all tokens behind the count, of which it holds those before one that cannot be printed. */
    static int parseConfigurationParam(QString *value, QStringList tokens);
    // Read one field and step behind it; false, and the label in the error, when it is not there.
    static bool parseNextConfigurationParam(QString label, int *value, QStringList tokens, int *position,
                                            QString *error);
    static bool parseNextConfigurationParam(QString label, int *value, QList<int> params, int *position,
                                            QString *error);

    XmlRpc::XmlRpcValue confData_toXmlRpcValue() const; ///< a struct of "cmd_enabled"
    void confData_clear();

protected:
    ConfData &operator=(const ConfData &) = default;

    int m_cmdEnabled = Cleared;
    int m_enabledFieldLength = 0;
    int m_commandCode = 0;
    QList<int> m_parameters;
};
