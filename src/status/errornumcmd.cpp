// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/errornumcmd.h"

#include "base/describedcommand_p.h"
#include "status/errornumanswer.h"

struct ErrorNumCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ERRORS_NUM;

    static constexpr char answerFailed[] = "Failed to create ErrorNumAnswer";
    static constexpr quv::AnsweredBy<ErrorNumAnswer> answer = {{"DE00100", "Failed to create ProtoAnswer"},
                                                               {"DE00444", answerFailed},
                                                               {},
                                                               {"DE00444", answerFailed}};
};

template class quv::DescribedCommand<ErrorNumCmd, SerialProtoCommand>;

ErrorNumCmd *ErrorNumCmd::clone() const
{
    return new ErrorNumCmd(*this);
}

QList<int> ErrorNumCmd::serialParameters(int) const
{
    constexpr int numberOfErrors = 245; // what tells it from a packet, since the code is the same
    return {numberOfErrors};
}
