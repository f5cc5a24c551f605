// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/dispenserinfo.h"

#include "base/dispenserinfo_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_metatype.h>

#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<DispenserInfo>("DispenserInfo");

const quv::InfoRecords<DispenserInfo> &records()
{
    using Info = DispenserInfo;
    static const quv::InfoRecords<Info> ofDispenser({
        {Info::dispID_TAG, &Info::disp_id, quv::noDispenserID},
        {Info::tintingParallelism_TAG, &Info::tinting_parallelism, quv::noTintingParallelism},
        {Info::rotatingDisp_TAG, &Info::rotating_disp},
    });
    return ofDispenser;
}

} // namespace

DispenserInfo::DispenserInfo(const MachineInfo &machine, int dispenserID, int parallelism, bool isRotating)
    : MachineInfo(machine),
      disp_id(dispenserID),
      tinting_parallelism(parallelism),
      rotating_disp(isRotating)
{}

DispenserInfo::DispenserInfo(const FW_Dispenser *dispenser, QString connection)
    : MachineInfo(dispenser, std::move(connection))
{
    if (!dispenser)
        return;
    disp_id = dispenser->id();
    tinting_parallelism = dispenser->tintingParallelism();
    rotating_disp = FW_Dispenser::isRotatingDispenserModel(dispenser->model());
}

DispenserInfo::DispenserInfo(const XmlRpc::XmlRpcValue &value) : MachineInfo(value)
{
    records().own.decode(value, *this, Q_FUNC_INFO);
}

DispenserInfo *DispenserInfo::clone() const
{
    return new DispenserInfo(*this);
}

XmlRpc::XmlRpcValue DispenserInfo::toXmlRpcValue() const
{
    return records().whole.encode(*this);
}

bool DispenserInfo::equalTo(const MachineInfo &other, bool strict) const
{
    return MachineInfo::equalTo(other, strict) &&
           records().own.equal(*this, static_cast<const DispenserInfo &>(other)); // which is one, when equal
}
