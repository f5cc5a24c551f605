// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/** The answer to GET_SHELF_POS: a struct with the height of the shelf. */
class QUVPROTOCOL_EXPORT GetShelfPosAnswer : public quv::DescribedAnswer<GetShelfPosAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char XR_SHELF_POS[] = "shelf_position";

    GetShelfPosAnswer() = default;
    explicit GetShelfPosAnswer(int height);
    /**
     * Tokens: two digits of the height, the low one first. Throws DE01447 for fewer than two, DE01448 and DE01449 for a low
     * and a high digit that is no number, DE01449 as well for a height beyond an int, and what SerialProtoAnswer throws.
     */
    explicit GetShelfPosAnswer(QStringList tokens);
    explicit GetShelfPosAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE01450 without the member
    explicit GetShelfPosAnswer(QList<QVariant> &list); ///< a whole number; throws DE01450 without one
    explicit GetShelfPosAnswer(bool) = delete;         // would read as a height, as would the next two
    explicit GetShelfPosAnswer(double) = delete;
    explicit GetShelfPosAnswer(const char *) = delete;

    GetShelfPosAnswer *clone() const override;

    /** Millimetres. A firmware that does not know it says 60515, which is written, and then read by clients, as -1. */
    int height() const { return m_height; }

private:
    int m_height = 0;
};
