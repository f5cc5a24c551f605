// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_modelnumber.h>

/** How dosing motors make up for what colorant and pump give way. Motors share one by its reference. */
struct QUVFRAMEWORK_EXPORT FW_FlowCorrection
{
    explicit FW_FlowCorrection(int reference = 0) : configRef(reference) {}
    void setDefaults(FW_ModelNumber model); ///< keeps the reference

    bool operator==(const FW_FlowCorrection &other) const;
    bool operator!=(const FW_FlowCorrection &other) const { return !(*this == other); }

    int configRef = 0; ///< 0 for none
    int overchargeSteps = 10;
    int predispenseSteps = 5;
    double bottomDelay = 0.5; ///< seconds at the lower end of a stroke
    double topDelay = 0.5;    ///< seconds at the upper end
    int zonalFlowCorrectionLevel = 1;
    int zonalDelayLevel = 1;
};
