// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/pausing.h"

#include "machines/refusal.h"

#include "processes/pausecmd.h"

namespace quv {

FW_ErrorList pause(ProcedureRun &run)
{
    run.wait(std::chrono::milliseconds(run.progress->expected()));
    return {};
}

void checkPause(const ProtoCommand &command)
{
    constexpr int Longest = 600000;
    const int time = dynamic_cast<const PauseCmd &>(command).milliseconds();
    if (time < 0 || time > Longest)
        refuse(InvalidRequest, "DE03412", QStringLiteral("A pause lasts 0 to %1 ms").arg(Longest));
}

} // namespace quv
