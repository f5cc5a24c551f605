// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines/questions.h"

namespace quv {

FirmwareReply ask(DrivenMachine &machine, ProtoCommandList::CommandListValue question, int module)
{
    return machine.exchange(ProtoCommandList::cmdCode(ProtoCommandList::cmdStr(question), machine.family()),
                            module, {});
}

} // namespace quv
