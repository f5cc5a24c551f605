// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

/** What a scale tells, by the numbers that travel. */
class QUVFRAMEWORK_EXPORT ScaleUtils
{
public:
    ScaleUtils() = delete;

    /** Which weight a scale is asked for. */
    enum WeightType : int {
        NetWeight = 0, ///< without the tare
        GrossWeight = 1,
        TareWeight = 2
    };

    enum ScaleUnit : int {
        NoUnit = -1, ///< the one that the scale is set to
        Gram = 0,
        Kilogram = 1,
        Ounce = 2,
        Pound = 3
    };
};
