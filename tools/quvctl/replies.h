// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

#include <QuvFramework/fw_machine.h>

#include <QtCore/QList>

#include <memory>
#include <string>
#include <typeinfo>

// What the operations have in common.

namespace quv {

/// A reply that says no more than that.
OrderedJson success();

/// The name of a C++ class: className(typeid(object)).
std::string className(const std::type_info &type);

OrderedJson numbers(const QList<int> &list);

/// What "machine" names; null for "none". \throws BadRequest
std::unique_ptr<FW_Machine> machineOf(const Request &request);

} // namespace quv
