// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

/// "series": the commands by which a driver carries out one that the firmware does not know. \throws as runOperation
OrderedJson seriesOperation(const Request &request);

} // namespace quv
