// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/arguments_p.h"

namespace quv {

namespace {

template <class T>
bool decodeByFramework(const QVariant &variant, T &out)
{
    return DecodeVariantList({variant}, 0, out);
}

} // namespace

bool decodeVariant(const QVariant &variant, bool &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, int &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, long long &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, double &out)
{
    long long whole = 0;
    if (variant.userType() == QMetaType::Double || variant.userType() == QMetaType::Float)
        out = variant.toDouble();
    else if (decodeVariant(variant, whole))
        out = static_cast<double>(whole);
    else
        return false;
    return true;
}

bool decodeVariant(const QVariant &variant, QString &out)
{
    if (variant.userType() != QMetaType::QString)
        return false;
    out = variant.toString();
    return true;
}

bool decodeVariant(const QVariant &variant, QStringList &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, QList<int> &out)
{
    return decodeByFramework(variant, out);
}

} // namespace quv
