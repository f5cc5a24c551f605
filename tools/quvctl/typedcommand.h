// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "suggestions.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_error.h>

namespace quv {

/// What \a work gives. When it fails because the catalogue has no command \a name, its error tells what may have been meant.
template <class Work>
auto withCommandName(const QString &name, Work work) -> decltype(work())
{
    try {
        return work();
    } catch (const FW_DriverError &error) {
        if (ProtoCommandList::existsCommand(name))
            throw;
        throw FW_DriverError(error.code(), error.text() + didYouMeanCommand(name));
    }
}

} // namespace quv
