// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/errors.h"

#include "status/errornumanswer.h"
#include "status/errornumcmd.h"
#include "status/fwerroranswer.h"
#include "status/fwerrorcmd.h"
#include "status/geterrorsanswer.h"

namespace quv {

FW_ErrorList askErrors(ProcedureRun &run)
{
    constexpr int FirstPacket = 1; // the packet 0 would clear the buffer
    ErrorNumCmd question;
    run.ask(question);
    const int packets = dynamic_cast<const ErrorNumAnswer &>(*question.getProtoAnswer()).packets_count;
    FW_ErrorList errors;
    for (int packet = FirstPacket; packet < FirstPacket + packets; ++packet) {
        FwErrorCmd asked(packet);
        run.ask(asked);
        errors.append(dynamic_cast<const FwErrorAnswer &>(*asked.getProtoAnswer()).errorList());
    }
    GetErrorsAnswer answer(errors);
    run.command.setProtoAnswer(&answer);
    return {};
}

} // namespace quv
