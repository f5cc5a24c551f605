// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/** The answer to ERRORS_NUM: how many errors wait in the firmware's buffer, and in how many packets it tells them. */
class QUVPROTOCOL_EXPORT ErrorNumAnswer : public quv::DescribedAnswer<ErrorNumAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char numErrors_TAG[] = "num_errors";
    static constexpr char packetsCount_TAG[] = "packets_count";

    ErrorNumAnswer() = default;
    /** Throws DE00445 or DE00446 for a member that is no int. */
    explicit ErrorNumAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * The number of errors, low digit and high digit, and the number of packets. Throws DE00088 (fewer than three parameters),
     * DE00131, DE00132 or DE00133 (one is not hexadecimal), or what SerialProtoAnswer throws.
     */
    explicit ErrorNumAnswer(QStringList tokens);

    ErrorNumAnswer *clone() const override;
    void clear();

    int num_errors = 0;
    int packets_count = 0;
};
