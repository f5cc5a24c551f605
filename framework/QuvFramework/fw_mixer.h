// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

/** A can mixer. */
class QUVFRAMEWORK_EXPORT FW_Mixer : public FW_Machine
{
public:
    FW_Mixer() = default;

    FW_Mixer *clone() const override;
    SerialDeviceType machineType() const override;
};
