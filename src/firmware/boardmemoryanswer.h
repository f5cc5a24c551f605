// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <type_traits>

/** What the memory of a board holds, the answer to BOARD_MEMORY. */
class QUVPROTOCOL_EXPORT BoardMemoryAnswer : public quv::DescribedAnswer<BoardMemoryAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char boardAnswer_TAG[] = "board_answer";

    BoardMemoryAnswer() = default; ///< 0
    explicit BoardMemoryAnswer(qlonglong boardAnswer);
    /**
     * Behind the fifth token the digits of base 246; 0 when there is none there, and for digits that are none or are more than 63
     * bits. Throws what SerialProtoAnswer throws.
     */
    explicit BoardMemoryAnswer(QStringList tokens);
    /** The member "board_answer", a text of decimal digits; an empty one is -1. Throws DE03300 for anything else. */
    explicit BoardMemoryAnswer(const XmlRpc::XmlRpcValue &value);
    /** The same text alone. Throws DE03301 for anything else. */
    explicit BoardMemoryAnswer(QList<QVariant> &list);
    // a flag, a fraction or a text is no such number
    template <class T, std::enable_if_t<std::is_same_v<T, bool> || std::is_floating_point_v<T> ||
                                            std::is_same_v<T, const char *>,
                                        int> = 0>
    explicit BoardMemoryAnswer(T) = delete;

    BoardMemoryAnswer *clone() const override;
    void clear() { m_boardAnswer = 0; }

    long long boardAnswer() const
    {
        return m_boardAnswer;
    } ///< negative for none, which is written as an empty text

private:
    long long m_boardAnswer = 0;
};
