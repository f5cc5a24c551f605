// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_turntable.h>

#include <algorithm>
#include <cstdlib>

FW_Device::~FW_Device() = default;

FW_Autocap *FW_Autocap::clone() const
{
    return new FW_Autocap(*this);
}

FW_Turntable *FW_Turntable::clone() const
{
    return new FW_Turntable(*this);
}

int FW_Turntable::distance(int from, int to) const
{
    const int begin = m_positions.indexOf(from);
    const int end = m_positions.indexOf(to);
    if (begin < 0 || end < 0)
        return 0;
    const int way = std::abs(end - begin);
    return std::min(way, m_positions.size() - way);
}
