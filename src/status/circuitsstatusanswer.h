// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "dispenserstatusanswerslist.h"

class DispenserStatusCmd;
class FW_DriverError;

/**
 * What several circuits are doing, the answer to GET_CIRCUITS_STATUS. The driver gathers it from the answers to one GET_STATUS for
 * each circuit. Over XML-RPC a struct with one array.
 */
class QUVPROTOCOL_EXPORT CircuitsStatusAnswer
    : public quv::DescribedAnswer<CircuitsStatusAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char circuitsStatusAnswer_TAG[] = "circuits_status_answers";

    CircuitsStatusAnswer() = default;
    explicit CircuitsStatusAnswer(QList<QVariant> &list); ///< cleared; the list is not read
    explicit CircuitsStatusAnswer(DispenserStatusAnswersList answers);
    explicit CircuitsStatusAnswer(QList<QPair<int, DispenserStatusAnswer>> answers);
    /**
     * Throws DE01173 without the list, what DispenserStatusAnswersList throws of it, and DE01172 for any other failure to read
     * it. An answer about no circuit is written, but not read.
     */
    explicit CircuitsStatusAnswer(const XmlRpc::XmlRpcValue &value);

    CircuitsStatusAnswer *clone() const override;

    void clear() { m_answers.clear(); }
    /** Appends a copy of the answer under the command's position; false with DE01174 when one of them is null. */
    bool appendDispenserStatusAnswer(DispenserStatusAnswer *answer, DispenserStatusCmd *command,
                                     FW_DriverError *error);

    const DispenserStatusAnswersList &answers() const { return m_answers; }

private:
    DispenserStatusAnswersList m_answers;
};
