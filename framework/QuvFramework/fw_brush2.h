// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_brushbase.h>

/** The second brush. */
class QUVFRAMEWORK_EXPORT FW_Brush2 : public FW_BrushBase
{
public:
    FW_Brush2() : FW_BrushBase(Brush2) {}
    FW_Brush2 *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);
};
