// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "fwupdateresultlist.h"

/** The answer to UPDATE_FW: how the update of each board has ended. Over XML-RPC a struct with one array. */
class QUVPROTOCOL_EXPORT FirmwareUpdateAnswer
    : public quv::DescribedAnswer<FirmwareUpdateAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char fwUpdateResultList_TAG[] = "update_result";

    FirmwareUpdateAnswer() = default;
    explicit FirmwareUpdateAnswer(FwUpdateResultList results);
    explicit FirmwareUpdateAnswer(QList<FwUpdateResult> results);
    /** First in the list is the FwUpdateResultList. Throws DE00964 for an empty list, DE00967 for another type. */
    explicit FirmwareUpdateAnswer(QList<QVariant> &list);
    /** Throws DE00972 without the member, DE00971 when it is no array or cannot be read, or what FwUpdateResultList throws. */
    explicit FirmwareUpdateAnswer(const XmlRpc::XmlRpcValue &value);

    FirmwareUpdateAnswer *clone() const override;
    void clear() { m_results.clear(); }

    const FwUpdateResultList &results() const { return m_results; }

    static QList<quv::MemberFacts> memberFacts(); ///< and that an empty list is refused in words of its own

private:
    FwUpdateResultList m_results;
};
