// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "catalogue/protocommandlist.h"
#include "factory/commandtables_p.h"

#include <vector>

namespace quv {

// What is still to come. A row of the factory whose class does not exist yet is listed here, and nowhere else: the factory
// gives the plain command of its kind for it, with the arguments counted and kept, and an answer class that does not exist
// yet is a plain answer. Whoever adds a class moves its rows from here to the table of its dispatch operation.

struct PendingCommand
{
    Dispatch dispatch;
    unsigned forms;
    ProtoCommandList::CommandListValue name;
    const char *className;
};

struct PendingAnswer
{
    unsigned kind; ///< the m_protoType of the command
    ProtoCommandList::CommandListValue command;
    const char *className;
};

const std::vector<PendingCommand> &pendingCommands();
const std::vector<PendingAnswer> &pendingAnswers();

bool isPending(Dispatch dispatch, Form form, int row);

} // namespace quv
