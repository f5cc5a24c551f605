// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

// Operations on configuration rows. Both throw as runOperation.

/// One row, of the tokens of an answer, of a text, or of a machine.
OrderedJson rowOperation(const Request &request);
/// Gives rows to a machine, and tells all its rows then.
OrderedJson applyOperation(const Request &request);

} // namespace quv
