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

/// The name of a C++ class.
std::string typeName(const std::type_info &type);

/// The name of the class that \a object has, which may be derived from T.
template <class T>
std::string className(const T &object)
{
    return typeName(typeid(object));
}

OrderedJson numbers(const QList<int> &list);

/// What "machine" names; null for "none". \throws BadRequest
std::unique_ptr<FW_Machine> machineOf(const Request &request);

} // namespace quv
