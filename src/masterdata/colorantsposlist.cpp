// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/colorantsposlist.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace {

const bool isRegistered = RegisterTravellingType<ColorantsPOSList>("ColorantsPOSList");

} // namespace

ColorantsPOSList::ColorantsPOSList(const FW_Colorant &whichColorant, int mask)
    : colorant(whichColorant),
      dispAlgorithmMask(mask)
{}

ColorantsPOSList::ColorantsPOSList(const XmlRpc::XmlRpcValue &value) : colorant(value)
{
    DecodeXmlRpcValue(value, QLatin1String(dispAlgorithmMask_TAG), dispAlgorithmMask);
}

XmlRpc::XmlRpcValue ColorantsPOSList::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value = colorant.toXmlRpcValue();
    value[dispAlgorithmMask_TAG] = dispAlgorithmMask;
    return value;
}
