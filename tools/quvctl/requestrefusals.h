// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "catalogue/commandfacts.h"

#include <QtCore/QList>

namespace quv {

/// How the library refuses a request for the command that has no arguments at all, or none that are arguments. It is asked: each
/// refusal is one that it gave. Those that the command tells of its arguments are left out.
QList<RefusalFacts> requestRefusals(const CommandFacts &command);

} // namespace quv
