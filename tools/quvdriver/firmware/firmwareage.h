// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/configurationrow.h"

#include <QtCore/QString>

#include <optional>

namespace quv {

/// How a firmware's configuration stands to what the library knows of it.
enum class FirmwareAge {
    Older, ///< some structures end before the fields that came later
    Equal,
    Newer ///< structures have fields more than the library knows
};

/// "older", "equal" or "newer"; nothing for another name.
std::optional<FirmwareAge> firmwareAgeOf(const QString &name);

/// Of the configuration's layout; the minor version is 0.
int configurationVersion(FirmwareAge age);

/// The row as a firmware of this age has it: without the later fields, or with values in the further ones.
ConfigurationRow agedRow(ConfigurationRow row, FirmwareAge age);

} // namespace quv
