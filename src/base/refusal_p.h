// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/** Code and text of a refusal. */
struct Refusal
{
    const char *code = "";
    const char *text = "";
};

} // namespace quv
