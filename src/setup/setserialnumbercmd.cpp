// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setserialnumbercmd.h"

#include "base/describedcommand_p.h"

#include <QuvFramework/fw_machine.h>

#include <utility>

namespace {

constexpr char badFormat[] = "Serial number: error in serial number format";

} // namespace

struct SetSerialNumberCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_SERIAL_NUMBER;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noText = {"DE01774", "DE01775",
                                                 "Serial number: error in value decoding"};
        archive.required({"serial_number", "1 to 20 letters, digits, blanks, dots, slashes and hyphens"},
                         self.m_serialNumber, noText, noText);
        archive.refuseUnless(FW_Machine::checkSerialNumber(self.m_serialNumber),
                             {"DE01781", "DE01782", badFormat});
    }
};

template class quv::DescribedCommand<SetSerialNumberCmd, ConfProtoCommand>;

SetSerialNumberCmd::SetSerialNumberCmd(QString serialNumber) : m_serialNumber(std::move(serialNumber))
{
    if (!FW_Machine::checkSerialNumber(m_serialNumber))
        throw FW_Exception("DE01780", badFormat, Q_FUNC_INFO);
}

SetSerialNumberCmd::SetSerialNumberCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

SetSerialNumberCmd::SetSerialNumberCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SetSerialNumberCmd *SetSerialNumberCmd::clone() const
{
    return new SetSerialNumberCmd(*this);
}
