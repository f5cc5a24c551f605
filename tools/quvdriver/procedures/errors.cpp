// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/errors.h"

#include "machines/refusal.h"

#include "status/errornumanswer.h"
#include "status/errornumcmd.h"
#include "status/fwerroranswer.h"
#include "status/fwerrorcmd.h"
#include "status/geterrorsanswer.h"

namespace quv {
namespace {

int packetCount(const ProcedureRun &run)
{
    ErrorNumCmd question;
    run.ask(question);
    return dynamic_cast<const ErrorNumAnswer &>(*question.getProtoAnswer()).packets_count;
}

FW_ErrorList errorsOf(const ProcedureRun &run, int packets)
{
    constexpr int FirstPacket = 1; // the packet 0 would clear the buffer
    FW_ErrorList errors;
    for (int packet = FirstPacket; packet < FirstPacket + packets; ++packet) {
        FwErrorCmd asked(packet);
        run.ask(asked);
        errors.append(dynamic_cast<const FwErrorAnswer &>(*asked.getProtoAnswer()).errorList());
    }
    return errors;
}

/// Anew when others have cleared the errors meanwhile.
FW_ErrorList keptErrors(const ProcedureRun &run)
{
    int packets = packetCount(run);
    while (true) {
        try {
            return errorsOf(run, packets);
        } catch (const CallRefusal &) {
            const int left = packetCount(run);
            if (left >= packets)
                throw;
            packets = left;
        }
    }
}

} // namespace

FW_ErrorList askErrors(ProcedureRun &run)
{
    GetErrorsAnswer answer(run.machine.withFirstTimes(keptErrors(run)));
    run.command.setProtoAnswer(&answer);
    return {};
}

} // namespace quv
