// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandfacts.h"

// One command, compared with the request that it was made of.

namespace testing_base {

/** All that the facts tell of it, but not its machine and its answers. */
void expectContents(const ProtoCommand &command, const CommandFacts &facts, const Request &request);
/** Its words in a language in which every text stands between angle quotes. */
void expectTranslatedWords(const ProtoCommand &command, const CommandFacts &facts, const Request &request);
/** What nobody gave it a command does not have; of a machine it has a copy. */
void expectOwned(const ProtoCommand &command, const FW_Machine *machine);

} // namespace testing_base
