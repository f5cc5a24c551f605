// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandfacts.h"

namespace testing_base {

/** Expects that arguments which are absent, of another type or out of range are refused, each in both forms. */
void expectRefusals(const CommandFacts &facts);

} // namespace testing_base
