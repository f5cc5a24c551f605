// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/dispinfocmd.h"

#include "setup/dispinfocmd_p.h"

#include <QuvFramework/fw_version.h>

#include <utility>

DispInfoCmd::DispInfoCmd(QString command, const FW_Machine *machine)
    : SerialProtoCommand(std::move(command), machine)
{}

DispInfoCmd::DispInfoCmd(QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine)
    : SerialProtoCommand(std::move(command), value, machine)
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    Description::arguments(*this, reader);
}

DispInfoCmd::DispInfoCmd(QString command, QList<QVariant> list, const FW_Machine *machine)
    : SerialProtoCommand(std::move(command), list, machine)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    Description::arguments(*this, reader);
}

bool DispInfoCmd::checkDispInfoType(int type)
{
    return type >= 1 && type <= keyCodeType;
}

bool DispInfoCmd::isSupportedDispInfoType(int type, const FW_Version &version)
{
    return version.isValid() && checkDispInfoType(type);
}
