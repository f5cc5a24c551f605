// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QuvFramework/fw_statistics.h>

#include <QtCore/QList>

/** The answer to GET_STATS_ERRORS: errors of the history, the member "disp_error_list" of a struct. */
class QUVPROTOCOL_EXPORT GetStatsErrorsAnswer
    : public quv::DescribedAnswer<GetStatsErrorsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char dispErrorList_TAG[] = "disp_error_list";

    GetStatsErrorsAnswer() = default;
    explicit GetStatsErrorsAnswer(const QList<DispError> &errors);
    /** Throws DE01384 without the array, and DE01383 for an element that is no DispError. */
    explicit GetStatsErrorsAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Each element an error, or its map, which has "error_code". Throws DE01380 for anything else, and DE01379 for a map that is no
     * good error.
     */
    explicit GetStatsErrorsAnswer(QList<QVariant> &list);

    GetStatsErrorsAnswer *clone() const override;

    const QList<DispError> &errors() const { return m_errors; }

    static QList<quv::MemberFacts> memberFacts();

private:
    QList<DispError> m_errors;
};
