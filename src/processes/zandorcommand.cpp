// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zandorcommand.h"

#include "base/record_p.h"
#include "processes/zandorcommand_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<ZandorCommand>("ZandorCommand");

const quv::Record<ZandorCommand> &record()
{
    static const quv::Record<ZandorCommand> record({
        {ZandorCommand::code_TAG, &ZandorCommand::code, quv::badZandorCommands},
        {ZandorCommand::fields_TAG, &ZandorCommand::fields, quv::badZandorCommands},
    });
    return record;
}

} // namespace

ZandorCommand::ZandorCommand(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue ZandorCommand::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool ZandorCommand::operator==(const ZandorCommand &other) const
{
    return record().equal(*this, other);
}
