// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/scaleprotoanswer.h"

#include <QuvFramework/scaleutils.h>

#include <type_traits>

/** A weight as the scale tells it, the answer to WEIGHT and to GET_CURRENT_WEIGHT. */
class QUVPROTOCOL_EXPORT WeightAnswer : public quv::DescribedAnswer<WeightAnswer, ScaleProtoAnswer>
{
public:
    struct Description;

    static constexpr char weightValue_TAG[] = "weight_value";
    static constexpr char unit_TAG[] = "unit";
    static constexpr char stableWeight_TAG[] = "stable_weight";
    static constexpr char precision_TAG[] = "precision";

    WeightAnswer() = default;             ///< a stable weight of 0
    explicit WeightAnswer(double weight); ///< a stable one in grams, without decimals
    WeightAnswer(double weight, ScaleUtils::ScaleUnit unit, bool stableWeight, int precision);
    /**
     * Throws DE02087 (weight), DE02088 (unit, whose text asks for a string), DE02089 (stable) or DE02091 (precision) for a member
     * that is missing or of another type.
     */
    explicit WeightAnswer(const XmlRpc::XmlRpcValue &value);
    /** The same four in order. Throws DE02092 for fewer, and DE02093 to DE02096 for one of another type. */
    explicit WeightAnswer(QList<QVariant> &list);
    // a flag or a text is no weight
    template <class T, std::enable_if_t<std::is_same_v<T, bool> || std::is_same_v<T, const char *>, int> = 0>
    explicit WeightAnswer(T) = delete;

    WeightAnswer *clone() const override;
    QList<QVariant> parameters() const override; ///< weight, unit (int), stable, precision

    double weight() const { return m_weight; }
    ScaleUtils::ScaleUnit unit() const { return static_cast<ScaleUtils::ScaleUnit>(m_unit); }
    bool stableWeight() const { return m_stableWeight; }
    int precision() const { return m_precision; } ///< decimals that the scale tells

    static QList<quv::MemberFacts> memberFacts(); ///< and how a list of too few is refused

private:
    double m_weight = 0;
    int m_unit = ScaleUtils::Gram; // as it travels
    bool m_stableWeight = true;
    int m_precision = 0;
};
