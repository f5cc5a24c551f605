// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

/// "settings": a driver's settings out of their struct, or the defaults, and then out of a hash. \throws as runOperation
OrderedJson settingsOperation(const Request &request);

} // namespace quv
