// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

/// "waterchange": what a status of the ultrasound cleaning's water says. \throws as runOperation
OrderedJson waterChangeOperation(const Request &request);

} // namespace quv
