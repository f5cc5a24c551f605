// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** The answer to CLONE_DISPENSER: the ID of the copy, the member "disp_id" of a struct. */
class QUVPROTOCOL_EXPORT CloneDispenserAnswer
    : public quv::DescribedAnswer<CloneDispenserAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char dispID_TAG[] = "disp_id";

    CloneDispenserAnswer() = default;
    explicit CloneDispenserAnswer(int dispID);
    explicit CloneDispenserAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE01481 without the member
    /** An int. Throws DE01476 for an empty list, DE01475 for another type. */
    explicit CloneDispenserAnswer(QList<QVariant> &list);
    explicit CloneDispenserAnswer(bool) = delete; // would read as an ID, as would the next two
    explicit CloneDispenserAnswer(double) = delete;
    explicit CloneDispenserAnswer(const char *) = delete;

    CloneDispenserAnswer *clone() const override;

    int dispID() const { return m_dispID; }

private:
    int m_dispID = 0;
};
