// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

/// "refusal": why a firmware refuses, by "tokens", or whether the "raw" text of an answer is a refusal. \throws as runOperation
OrderedJson refusalOperation(const Request &request);

} // namespace quv
