// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QtCore/QStringList>
#include <QtCore/QVariant>

/**
 * GET_COL_USAGE_STATS: asks the driver how much of a colorant a machine has used. What is wanted to know are names of members of
 * ColorantUsageStatData, which travel as one text, with a bar between them. The answer is a GetColorantUsageStatsAnswer.
 */
class QUVPROTOCOL_EXPORT GetColorantUsageStatsCmd
    : public quv::DescribedCommand<GetColorantUsageStatsCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetColorantUsageStatsCmd() = default; ///< of no machine; nothing in particular is asked for
    // The serial number is believed.
    GetColorantUsageStatsCmd(const QString &serialNumber, const QString &colorantCode,
                             const QStringList &information, int count);
    GetColorantUsageStatsCmd(const QString &serialNumber, int colorantCode, const QStringList &information,
                             int count);
    /**
     * Throws DE02262 (no text as serial number), DE02263 (one that no machine can have), DE02264 (a colorant code that is neither
     * text nor int), DE02265 (no text as information) and DE02266 (no int as count); none may be left out.
     */
    explicit GetColorantUsageStatsCmd(const XmlRpc::XmlRpcValue &value);
    /** The same; the information may be a list of texts as well. */
    explicit GetColorantUsageStatsCmd(QList<QVariant> list);
    explicit GetColorantUsageStatsCmd(int) = delete; // would be an XML-RPC value

    GetColorantUsageStatsCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< as they travel, the information as one text
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QString &serialNumber() const { return m_serialNumber; }
    const QVariant &colorantCode() const { return m_colorantCode; }  ///< a QString or an int
    const QStringList &information() const { return m_information; } ///< none for all there is to know
    int count() const { return m_count; }                            ///< of records, at most

    static QString buildInfoListStr(const QStringList &information);
    static QStringList buildInfoList(const QString &text); ///< without empty parts

private:
    template <class Reader>
    void take(Reader reader);

    QString m_serialNumber;
    QVariant m_colorantCode = QString();
    QStringList m_information;
    int m_count = 0;
};
