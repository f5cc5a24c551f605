// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/converting_p.h"

#include "base/decoding_p.h"

#include <QuvFramework/fw_utils.h>

#include <cmath>
#include <limits>

namespace quv {

namespace {

/** Of an unsigned number, which Qt would make a negative one. */
bool isBeyondLong(const QVariant &variant)
{
    const int type = variant.userType();
    return (type == QMetaType::ULong || type == QMetaType::ULongLong) &&
           variant.toULongLong() > static_cast<qulonglong>(std::numeric_limits<qlonglong>::max());
}

} // namespace

bool convertSetting(const QVariant &variant, bool &out)
{
    if (!variant.canConvert<bool>())
        return false;
    out = variant.toBool();
    return true;
}

bool convertSetting(const QVariant &variant, QString &out)
{
    QVariant text = variant;
    if (!text.convert(QMetaType::QString))
        return false;
    out = text.toString();
    return true;
}

bool convertSetting(const QVariant &variant, long long &out)
{
    if (decodeVariant(variant, out))
        return true;
    if (isBeyondLong(variant))
        return false;
    double fraction = 0;
    bool converts = true;
    long long number = 0;
    if (!decodeVariant(variant, fraction))
        number = variant.toLongLong(&converts);
    else if ((converts = std::abs(fraction) <= static_cast<double>(MaxWholeNumber)))
        number = std::llround(fraction);
    if (converts)
        out = number;
    return converts;
}

} // namespace quv
