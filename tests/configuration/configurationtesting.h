// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

#include "configuration/confdata.h"

#include <QuvFramework/fw_dispenser.h>

#include <QtCore/QStringList>

// What the tests of configuration rows share.

namespace testing_configuration {

using namespace testing_base;

/** Blank-separated tokens. */
inline QStringList tokens(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/** The integers that a row sends, or nothing when it cannot be written. */
inline QList<int> sent(const ConfData &row)
{
    bool ok = false;
    const QList<int> integers = row.serialParams(&ok);
    return ok ? integers : QList<int>();
}

} // namespace testing_configuration
