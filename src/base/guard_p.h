// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_exception.h>

#include <utility>

namespace quv {

/**
 * For a catch (...) block: turns the exception in flight into \a error, when it is given. An FW_Exception keeps its own
 * code and text, anything else gets \a code and \a text. Always false.
 */
bool reportCurrentException(const char *code, const char *text, FW_DriverError *error);

/** For a catch (...) block: passes an FW_Exception on and throws \a code and \a text in place of anything else. */
[[noreturn]] void rethrowCurrentException(const char *code, const char *text, const char *function);

/** Runs what may throw; false and \a error filled when it did. */
template <class Work>
bool guarded(const char *code, const char *text, FW_DriverError *error, Work &&work)
{
    try {
        std::forward<Work>(work)();
        return true;
    } catch (...) {
        return reportCurrentException(code, text, error);
    }
}

} // namespace quv
