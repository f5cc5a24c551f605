// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/** Code and text of a refusal. */
struct Refusal
{
    const char *code = "";
    const char *text = "";
};

/** True for a refusal with a code. */
constexpr bool isGiven(const Refusal &refusal)
{
    return *refusal.code != '\0';
}

/** Throws the refusal as FW_Exception of the function with this signature. */
[[noreturn]] void throwRefusal(const Refusal &refusal, const char *function);

} // namespace quv
