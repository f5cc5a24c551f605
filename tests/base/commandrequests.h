// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandfacts.h"

#include <vector>

// Commands made of the requests that the facts tell.

namespace testing_base {

/** Of the first request; null, and the test failed, when it is refused. */
Made firstCommand(const CommandFacts &facts);

struct Copy
{
    const char *name = "";
    Made command;
};
std::vector<Copy> copiesOf(const ProtoCommand &command, const CommandFacts &facts);

/** Expects the request in every form, what is read back of it, and its copies. */
void expectRequest(const CommandFacts &facts, const Request &request);

} // namespace testing_base
