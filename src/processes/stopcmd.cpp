// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stopcmd.h"

#include "processes/stopcmd_p.h"

StopCmd::StopCmd(int fwStopType, int swStopType) : m_fwStopType(fwStopType), m_swStopType(swStopType)
{
    if (!checkFwStopType(fwStopType))
        quv::throwRefusal(quv::badFwStopType, Q_FUNC_INFO);
    if (!checkSwStopType(swStopType))
        quv::throwRefusal(quv::badSwStopType, Q_FUNC_INFO);
}

bool StopCmd::checkFwStopType(int type)
{
    return type >= 0 && type <= 3;
}

bool StopCmd::checkSwStopType(int type)
{
    return type >= 0 && type <= 2;
}

bool StopCmd::isSoftStopSupported(const FW_Version &)
{
    return false;
}
