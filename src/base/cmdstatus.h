// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"
#include "xmlrpcanswer.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {
struct MemberFacts;
template <class T>
class Record;
} // namespace quv

/**
 * How far the command behind a ticket has come. A running status holds progress, an ended one the result.
 *
 * In XML-RPC a struct with the members "status", "time_left" (milliseconds, cut to 32 bits), "percentage" (ints), "info",
 * "extra_info" (strings) and "cmd_answer" (the final envelope; 0 while there is none), all of them required.
 */
class QUVPROTOCOL_EXPORT CmdStatus
{
public:
    /** States above 0 are running ones. */
    enum State {
        Created = 3,
        Queued = 2,
        Executing = 1,
        Done = 0,
        Failed = -1,
        Interrupted = -3,
        TimedOut = -4,
        Unknown = -5
    };

    CmdStatus() = default;
    // Times are in milliseconds. What a state does not allow is passed over, as the setters do.
    CmdStatus(int status, int timeLeft, int percentage, QString info);
    CmdStatus(int status, int timeLeft, int percentage, XmlRpc::XmlRpcValue result, QString info);
    /** Throws DE00386 to DE00390 or DE01677 for the first member that is missing or of another type. */
    explicit CmdStatus(const XmlRpc::XmlRpcValue &value);

    CmdStatus *clone() const; ///< owned by the caller
    bool operator==(const CmdStatus &other) const;
    bool operator!=(const CmdStatus &other) const { return !(*this == other); }
    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    int status() const { return m_status; }
    long long timeLeft() const { return m_timeLeft; } ///< milliseconds
    int percentage() const { return m_percentage; }   ///< 0 to 99 while running, 100 when ended
    QString info() const;                             ///< the text that was given, else that of the state
    QString extraInfo() const { return m_extraInfo; }
    XmlRpc::XmlRpcValue resultValue() const; ///< the stored value once ended; the integer 0 while running
    bool hasResultValue() const { return m_resultValue.valid(); }

    /** False, and nothing changes, outside -4 to 3. An ended state sets the time to 0 and the percentage to 100. */
    bool setStatus(int status);
    void setTimeLeft(long long timeLeft); ///< only while running; at least 0
    void setPercentage(int percentage);   ///< only while running; clamped to 0 to 99
    void setInfo(const QString &info) { m_info = info; }
    void setExtraInfo(const QString &info) { m_extraInfo = info; }
    void setResultValue(const XmlRpc::XmlRpcValue &result) { m_resultValue = result; }

    /** False only for an executing command that has reported nothing yet. */
    bool timeTrackingAvailable() const;
    /** The result as an envelope; the default one, and \a ok false, when it is none. */
    XmlRpcAnswer getXmlRpcAnswer(bool *ok = nullptr) const;
    /** "mm:ss" or "HH:mm:ss", or in words; the time wraps around after 24 hours. */
    QString timeLeftStr(bool verbose) const;

    static bool checkStatus(int status);
    static QString getDescription(int status);

    static QList<quv::MemberFacts> memberFacts();

private:
    static const quv::Record<CmdStatus> &record();
    bool isRunning() const { return m_status > 0; }

    int m_status = Unknown;
    long long m_timeLeft = 0;
    int m_percentage = 0;
    QString m_info;
    QString m_extraInfo;
    XmlRpc::XmlRpcValue m_resultValue;
};

Q_DECLARE_METATYPE(CmdStatus)
