// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/errornumanswer.h"

#include "base/describedanswer_p.h"
#include "base/digitnumber_p.h"

#include <utility>

struct ErrorNumAnswer::Description
{
    using Answer = ErrorNumAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(numErrors_TAG, &Answer::num_errors,
                                    {"DE00445", "ErrorNumAnswer: expected num_errors value"})
                    .meaning("errors that wait in the firmware"),
                quv::Member<Answer>(packetsCount_TAG, &Answer::packets_count,
                                    {"DE00446", "ErrorNumAnswer: expected packets_count value"})
                    .meaning("packets in which it tells them")};
    }
};

template class quv::DescribedAnswer<ErrorNumAnswer, SerialProtoAnswer>;

ErrorNumAnswer::ErrorNumAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

ErrorNumAnswer::ErrorNumAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    const char *function = Q_FUNC_INFO;
    quv::TokenReader reader(m_parameters, 0, function);
    reader.require(3, {"DE00088", "Error during command answer decoding: bad length"});
    num_errors = quv::nextOfDigits(reader,
                                   {{"DE00131", "Error during command answer decoding: error number low"},
                                    {"DE00132", "Error during command answer decoding: error number high"}},
                                   function);
    packets_count = reader.next({"DE00133", "Error during command answer decoding: packets count"});
}

ErrorNumAnswer *ErrorNumAnswer::clone() const
{
    return new ErrorNumAnswer(*this);
}

void ErrorNumAnswer::clear()
{
    num_errors = 0;
    packets_count = 0;
}
