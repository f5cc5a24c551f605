// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/cmdstatus.h"

#include "base/guard_p.h"
#include "base/memberfacts_p.h"
#include "base/record_p.h"
#include "base/translation_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QTime>

namespace {

constexpr char answerTag[] = "cmd_answer";

constexpr long long dayLength = 24LL * 60 * 60 * 1000; // ms

} // namespace

const quv::Record<CmdStatus> &CmdStatus::record()
{
    using Member = quv::Member<CmdStatus>;
    static const quv::Record<CmdStatus> record({
        Member("status", &CmdStatus::m_status, {"DE00386", "CmdStatus: expected status value"})
            .meaning("3 created, 2 queued, 1 executing, 0 done, -1 failed, -3 interrupted, -4 timed out"),
        Member("info", &CmdStatus::m_info, {"DE00387", "CmdStatus: expected info value"})
            .as(quv::latin1Text()),
        Member("extra_info", &CmdStatus::m_extraInfo, {"DE01677", "CmdStatus: expected extra info value"})
            .as(quv::latin1Text()),
        Member("time_left", &CmdStatus::m_timeLeft, {"DE00388", "CmdStatus: expected time_left value"})
            .as(quv::cutToInt())
            .meaning("milliseconds"),
        Member("percentage", &CmdStatus::m_percentage, {"DE00389", "CmdStatus: expected percentage value"}),
        Member(answerTag, &CmdStatus::m_resultValue, {"DE00390", "CmdStatus: expected cmd_answer value"})
            .meaning("the final envelope; 0 while there is none"),
    });
    return record;
}

CmdStatus::CmdStatus(int status, int timeLeft, int percentage, QString info)
    : CmdStatus(status, timeLeft, percentage, XmlRpc::XmlRpcValue(), info)
{}

CmdStatus::CmdStatus(int status, int timeLeft, int percentage, XmlRpc::XmlRpcValue result, QString info)
    : m_info(info),
      m_resultValue(result)
{
    setStatus(status);
    setTimeLeft(timeLeft);
    setPercentage(percentage);
}

CmdStatus::CmdStatus(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
    if (SameXmlRpcValue(m_resultValue, XmlRpc::XmlRpcValue(0)))
        m_resultValue.clear(); // stands for no result
}

CmdStatus *CmdStatus::clone() const
{
    return new CmdStatus(*this);
}

bool CmdStatus::operator==(const CmdStatus &other) const
{
    return record().equal(*this, other);
}

XmlRpc::XmlRpcValue CmdStatus::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = record().encode(*this);
    value[answerTag] = resultValue(); // which a running command has not yet
    return value;
}

QString CmdStatus::info() const
{
    return m_info.isEmpty() ? getDescription(m_status) : m_info;
}

XmlRpc::XmlRpcValue CmdStatus::resultValue() const
{
    return isRunning() || !m_resultValue.valid() ? XmlRpc::XmlRpcValue(0) : m_resultValue;
}

bool CmdStatus::setStatus(int status)
{
    if (!checkStatus(status))
        return false;
    m_status = status;
    if (!isRunning()) {
        m_timeLeft = 0;
        m_percentage = 100;
    }
    return true;
}

void CmdStatus::setTimeLeft(long long timeLeft)
{
    if (isRunning())
        m_timeLeft = qMax(timeLeft, 0LL);
}

void CmdStatus::setPercentage(int percentage)
{
    if (isRunning())
        m_percentage = qBound(0, percentage, 99);
}

bool CmdStatus::timeTrackingAvailable() const
{
    return m_timeLeft != 0 || m_percentage != 0 || m_status != Executing;
}

XmlRpcAnswer CmdStatus::getXmlRpcAnswer(bool *ok) const
{
    XmlRpcAnswer answer;
    const bool decoded = quv::guarded("", "", nullptr, [&] { answer = XmlRpcAnswer(resultValue()); });
    if (ok)
        *ok = decoded;
    return answer;
}

QString CmdStatus::timeLeftStr(bool verbose) const
{
    const QTime time = QTime(0, 0).addMSecs(static_cast<int>(m_timeLeft % dayLength));
    if (!verbose)
        return time.toString(time.hour() < 1 ? QStringLiteral("mm:ss") : QStringLiteral("HH:mm:ss"));

    const int seconds = time.second() + 1; // never says 0
    if (time.hour() > 0)
        return quv::translated(
                   QT_TRANSLATE_NOOP("QuvProtocol", "About %1 hours, %2 minutes and %3 seconds remaining..."))
            .arg(time.hour())
            .arg(time.minute())
            .arg(seconds);
    const QString text = quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "About %1 seconds remaining..."));
    return time.minute() > 0 ? text.arg(QStringLiteral("%1 minutes and %2").arg(time.minute()).arg(seconds))
                             : text.arg(seconds);
}

QList<quv::MemberFacts> CmdStatus::memberFacts()
{
    return quv::factsOf(record().rows());
}

bool CmdStatus::checkStatus(int status)
{
    return status >= TimedOut && status <= Created;
}

QString CmdStatus::getDescription(int status)
{
    switch (status) {
    case Created:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Created..."));
    case Queued:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Queued..."));
    case Executing:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Executing..."));
    case Done:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Done successfully!"));
    case Failed:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Errors in command execution!"));
    case Interrupted:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Interrupted!"));
    case TimedOut:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Timeout elapsed!"));
    default:
        return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "Unknown"));
    }
}
