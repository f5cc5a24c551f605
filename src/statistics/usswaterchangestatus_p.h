// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "statistics/usswaterchangestatus.h"

namespace quv {

const Record<UssWaterChangeStatus> &ussWaterChangeRecord();

} // namespace quv
