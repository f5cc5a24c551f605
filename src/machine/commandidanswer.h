// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <QtCore/QList>

/** The answer to GET_CMD_ID: the firmware's identifiers for a code, the member "command_ids" of a struct. */
class QUVPROTOCOL_EXPORT CommandIDAnswer : public quv::DescribedAnswer<CommandIDAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char commandIDs_TAG[] = "command_ids";

    CommandIDAnswer() = default;
    /**
     * The number of identifiers, then exactly as many. Throws DE00071 (no number), DE00069 (it is none), DE00124 (another number
     * of identifiers), DE00072 (one is no number), or what SerialProtoAnswer throws.
     */
    explicit CommandIDAnswer(QStringList tokens);
    explicit CommandIDAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE03280 without an array of ints
    explicit CommandIDAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit CommandIDAnswer(int) = delete;
    explicit CommandIDAnswer(double) = delete;
    explicit CommandIDAnswer(const char *) = delete;

    CommandIDAnswer *clone() const override;

    QList<unsigned int> commandIDs() const;

private:
    QList<int> m_commandIDs; ///< as they travel: one that no int holds is negative
};
