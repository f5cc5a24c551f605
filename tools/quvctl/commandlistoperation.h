// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

/// What one machine can do, as its driver knows it; or what a client reads of that. \throws as runOperation
OrderedJson commandListOperation(const Request &request);

} // namespace quv
