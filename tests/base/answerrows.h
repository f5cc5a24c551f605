// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

#include <QtCore/QStringList>

/** Which class the answer to a command has that has no class of its own, and what it can be made of. */
struct AnswerRow
{
    const char *command;
    const char *answerClass;
    testing_base::Value value = testing_base::arrayOf();
    testing_base::List list = {};
    QStringList tokens = {QStringLiteral("0")};
};
