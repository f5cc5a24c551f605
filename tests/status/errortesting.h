// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

#include <QuvFramework/fw_errorlist.h>

#include <QtCore/QStringList>

#include <string>

// What the tests of errors and refusals share.

namespace testing_status {

using namespace testing_base;

/** The tokens in a line, the length token first. */
QStringList tokensOf(const char *line);

constexpr char errorTime[] = "2024-02-29T23:59:58.123Z";

Value driverErrorStruct(const char *code);
Value hardwareErrorStruct(int code);
Value configurationErrorStruct(int code);

/** The errors by kind and numbers: "hw code module value flag device", "conf code module value flag" or "driver code". */
std::string shown(const FW_ErrorList &errors);

using testing_base::shown;

} // namespace testing_status
