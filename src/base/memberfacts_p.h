// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "catalogue/commandfacts.h"

namespace quv {

/** The members as they are told to people. */
QList<MemberFacts> factsOf(const std::vector<MemberRow> &rows);

} // namespace quv
