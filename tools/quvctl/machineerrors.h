// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "driver.h"

#include <QuvFramework/fw_errorlist.h>

#include <optional>

namespace quv {

/// The errors that wait in the machine's firmware; nothing when the driver does not tell them. \throws TransportError
std::optional<FW_ErrorList> errorsOf(const Driver &driver);

/// Without the time: what is wrong, and where.
QString errorInWords(const FW_Error &error);

/// A line an error, with its time.
void printErrors(const FW_ErrorList &errors);
OrderedJson errorsJson(const FW_ErrorList &errors);

} // namespace quv
