// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

/** The cap that closes the nozzles by itself. */
class QUVFRAMEWORK_EXPORT FW_Autocap : public FW_Device
{
public:
    FW_Autocap() : FW_Device(Autocap) {}
    FW_Autocap *clone() const override;
};
