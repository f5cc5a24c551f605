// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_brushbase.h>

/** The first brush. */
class QUVFRAMEWORK_EXPORT FW_Brush : public FW_BrushBase
{
public:
    FW_Brush() : FW_BrushBase(Brush) {}
    FW_Brush *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);
};
