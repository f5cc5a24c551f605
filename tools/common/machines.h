// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

#include <memory>

namespace quv {

/**
 * The machine that a user names: null for "none", the built-in "dispenser" (one head, command family 1) and "mixer", else
 * what the JSON file of that path describes.
 *
 * A file holds one object. "type" ("dispenser" or "mixer") is required; "id" and "model" (integers), "model_name", "sid",
 * "description", "product_code" and "serial_number" (texts) may follow, for a dispenser "heads" and "command_family"
 * (1 or 2) as well. Anything else in it is refused.
 *
 * \throws std::runtime_error with a text for the user
 */
std::unique_ptr<FW_Machine> machineByName(const QString &nameOrFile);

} // namespace quv
