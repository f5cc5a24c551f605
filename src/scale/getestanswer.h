// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** One test step of gravimetric dosing, the answer to GE_TEST. */
class QUVPROTOCOL_EXPORT GETestAnswer : public quv::DescribedAnswer<GETestAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char steps_TAG[] = "steps";
    static constexpr char speed_TAG[] = "speed";
    static constexpr char reqWeight_TAG[] = "req_weight";
    static constexpr char reqPercentage_TAG[] = "req_percentage";

    GETestAnswer() = default;
    GETestAnswer(int steps, int speed, double reqWeight, int reqPercentage);
    /**
     * Throws DE02226 (steps), DE02227 (speed, whose text asks for a double), DE02228 (weight) or DE02229 (percentage) for a member
     * that is missing or of another type.
     */
    explicit GETestAnswer(const XmlRpc::XmlRpcValue &value);
    /** The same four in order. Throws DE02225 for fewer. */
    explicit GETestAnswer(QList<QVariant> &list);
    explicit GETestAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GETestAnswer(int) = delete;
    explicit GETestAnswer(double) = delete;
    explicit GETestAnswer(const char *) = delete;

    GETestAnswer *clone() const override;

    int steps() const { return m_steps; }
    int speed() const { return m_speed; }
    double reqWeight() const { return m_reqWeight; }      ///< what the step is to weigh, in grams
    int reqPercentage() const { return m_reqPercentage; } ///< of the whole dose

    static QList<quv::MemberFacts> memberFacts(); ///< and how a list of too few is refused

private:
    int m_steps = 0;
    int m_speed = 0;
    double m_reqWeight = 0;
    int m_reqPercentage = 0;
};
