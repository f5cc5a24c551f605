// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_mixer.h>

#include <memory>

FW_Mixer *FW_Mixer::clone() const
{
    return std::make_unique<FW_Mixer>(*this).release();
}

SerialDeviceType FW_Mixer::machineType() const
{
    return SerialDeviceType::Mixer;
}
