// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "../base/scaleprotocommand.h"

#include <QuvFramework/scaleutils.h>

/** WEIGHT: weighs what is on the scale; the answer is a WeightAnswer. */
class QUVPROTOCOL_EXPORT WeightCmd : public quv::DescribedCommand<WeightCmd, ScaleProtoCommand>
{
public:
    struct Description;

    WeightCmd() = default; ///< the net weight, without a unit and a time of its own
    WeightCmd(ScaleUtils::WeightType type, ScaleUtils::ScaleUnit unit, double stabilityTimeout);
    /**
     * Weight type (int), unit (int) and stability timeout (double), each optional; any number is taken. Throws DE02097, DE02098 or
     * DE02157 for one of another type.
     */
    explicit WeightCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02099, DE02101 or DE02158. */
    explicit WeightCmd(QList<QVariant> list);
    explicit WeightCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit WeightCmd(int) = delete;
    explicit WeightCmd(double) = delete;
    explicit WeightCmd(const char *) = delete;

    WeightCmd *clone() const override;

    ScaleUtils::WeightType weightType() const { return static_cast<ScaleUtils::WeightType>(m_weightType); }
    ScaleUtils::ScaleUnit scaleUnit() const { return static_cast<ScaleUtils::ScaleUnit>(m_scaleUnit); }
    /** Seconds in which the weight must become stable; -1.0 when none were given. */
    double stabilityTimeout() const { return m_stabilityTimeout; }

private:
    // as they travel
    int m_weightType = ScaleUtils::NetWeight;
    int m_scaleUnit = ScaleUtils::NoUnit;
    double m_stabilityTimeout = -1.0;
};
