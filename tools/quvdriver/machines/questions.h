// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/drivenmachine.h"
#include "machines/refusal.h"

#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_exception.h>

#include <memory>

namespace quv {

/// Asks the machine's firmware, or one of its modules, a question without parameters. \throws what an exchange throws
FirmwareReply ask(DrivenMachine &machine, ProtoCommandList::CommandListValue question, int module = 0);

/// What the firmware tells; null when it refuses to. \throws CallRefusal for a reply that cannot be read
template <class Answer>
std::unique_ptr<Answer> told(const FirmwareReply &reply)
{
    if (reply.refused)
        return nullptr;
    try {
        return std::make_unique<Answer>(reply.tokens);
    } catch (const FW_Exception &error) {
        throw CallRefusal{InvalidSerialAnswer, FW_DriverError(error.code(), error.text())};
    }
}

} // namespace quv
