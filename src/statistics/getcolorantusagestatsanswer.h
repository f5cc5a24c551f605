// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "colorantusagedispstats.h"

#include <QtCore/QStringList>

/**
 * The answer to GET_COL_USAGE_STATS: what machines have used of a colorant, the member "colorant_usage_disp_stats" of a struct. Only
 * the information that was asked for is written.
 */
class QUVPROTOCOL_EXPORT GetColorantUsageStatsAnswer
    : public quv::DescribedAnswer<GetColorantUsageStatsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char colorantUsageDispStats_TAG[] = "colorant_usage_disp_stats";

    GetColorantUsageStatsAnswer() = default;
    explicit GetColorantUsageStatsAnswer(const QList<ColorantUsageDispStats> &stats,
                                         const QStringList &information = {});
    /** Throws DE02261 without the array, or for an element that cannot be made, and what ColorantUsageDispStats throws. */
    explicit GetColorantUsageStatsAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Two elements: the machines as a QList of ColorantUsageDispStats, or as a list of variants of which each is one or its map; and
     * the information that was asked for, a list of texts. Throws DE02259 and DE02260 for anything else in their places, and what
     * ColorantUsageDispStats throws of a bad map.
     */
    explicit GetColorantUsageStatsAnswer(QList<QVariant> &list);

    GetColorantUsageStatsAnswer *clone() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    const QList<ColorantUsageDispStats> &stats() const { return m_stats; }
    const QStringList &information() const { return m_information; } ///< none for all; does not travel

    static QList<quv::MemberFacts> memberFacts();

private:
    QList<ColorantUsageDispStats> m_stats;
    QStringList m_information;
};
