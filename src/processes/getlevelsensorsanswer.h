// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <QtCore/QPair>

/** The answer to GET_LEVEL_SENSORS: circuit positions, each with what its level sensor tells. */
class QUVPROTOCOL_EXPORT GetLevelSensorsAnswer
    : public quv::DescribedAnswer<GetLevelSensorsAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char levels_TAG[] = "levels";

    GetLevelSensorsAnswer() = default;
    explicit GetLevelSensorsAnswer(const QList<QPair<int, int>> &levels);
    /**
     * Tokens: the number of positions; then of each the position and two digits of the level, the low one first. Throws DE03192 for a
     * number of positions, DE03193 for a position and DE03194 for a level that is missing or no number, and what SerialProtoAnswer
     * throws.
     */
    explicit GetLevelSensorsAnswer(QStringList tokens);
    explicit GetLevelSensorsAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE03195 without the member

    GetLevelSensorsAnswer *clone() const override;

    /** Positions, each with its level in the sensor's own unit. */
    const QList<QPair<int, int>> &levels() const { return m_levels; }

private:
    QList<QPair<int, int>> m_levels;
};
