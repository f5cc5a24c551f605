// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwupdateresult.h"

#include "base/record_p.h"
#include "firmware/fwupdateresult_p.h"

#include <QuvFramework/fw_firmwarefile.h>
#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<FwUpdateResult>("FwUpdateResult");

const quv::Record<FwUpdateResult> &record()
{
    using Result = FwUpdateResult;
    static const quv::Record<Result> record({
        {Result::boardAddress_TAG, &Result::boardAddress, quv::noBoardAddress},
        {Result::updateResult_TAG, &Result::updateResult, quv::noUpdateResult},
    });
    return record;
}

} // namespace

FwUpdateResult::FwUpdateResult(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

bool FwUpdateResult::checkBoardAddress(int address)
{
    return FirmwareFile::checkBoardAddress(address, false);
}

bool FwUpdateResult::checkUpdateResult(int result)
{
    return result >= Updated && result <= FailedNeedsRebootToo;
}

XmlRpc::XmlRpcValue FwUpdateResult::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool FwUpdateResult::operator==(const FwUpdateResult &other) const
{
    return record().equal(*this, other);
}
