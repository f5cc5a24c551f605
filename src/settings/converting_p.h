// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/fieldtype_p.h"

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <limits>

namespace quv {

// Whatever converts, since readers of settings files know texts only. False, and the target left alone, for what does not convert
// or does not fit.

bool convertSetting(const QVariant &variant, bool &out);
bool convertSetting(const QVariant &variant, QString &out);
bool convertSetting(const QVariant &variant, long long &out); ///< a fraction is rounded

template <class Whole>
bool convertSetting(const QVariant &variant, Whole &out)
{
    using Limits = std::numeric_limits<Whole>;
    long long number = 0;
    if (!convertSetting(variant, number) || number < Limits::min() || number > Limits::max())
        return false;
    out = static_cast<Whole>(number);
    return true;
}

/** An object, or a list of them, as in a list of parameters; what its own class refuses is not taken either. */
template <class T>
bool takeObject(const QVariant &variant, T &out)
{
    try {
        return fieldType<T>().readVariant(variant, &out);
    } catch (const FW_Exception &) {
        return false;
    }
}

} // namespace quv
