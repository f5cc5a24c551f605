// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/guard_p.h"

#include "base/refusal_p.h"

namespace quv {

bool reportCurrentException(const char *code, const char *text, FW_DriverError *error)
{
    try {
        throw;
    } catch (const FW_Exception &exception) {
        if (error)
            *error = static_cast<const FW_DriverError &>(exception);
    } catch (...) {
        FW_DriverError::D_E(code, text, error);
    }
    return false;
}

void throwRefusal(const Refusal &refusal, const char *function)
{
    throw FW_Exception(refusal.code, refusal.text, function);
}

void rethrowCurrentException(const char *code, const char *text, const char *function)
{
    try {
        throw;
    } catch (const FW_Exception &) {
        throw;
    } catch (...) {
        throw FW_Exception(code, text, function);
    }
}

} // namespace quv
