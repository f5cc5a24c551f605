// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/slavejumpcmd.h"

#include "base/describedcommand_p.h"

#include <QuvFramework/fw_firmwarefile.h>

namespace {

constexpr char badAddress[] = "SlaveJumpCmd: invalid slave address parameter";
constexpr char badJump[] = "SlaveJumpCmd: invalid jump type parameter";

// refused by the base already, as long as the catalogue asks for both arguments
constexpr quv::ArgumentRefusal tooFew = {{"DE00943", "SlaveJumpCmd: too few parameters received"},
                                         {"DE00948", "Too few parameters received"}};

bool checkSlaveAddress(int address)
{
    return FirmwareFile::checkBoardAddress(address, false);
}

} // namespace

struct SlaveJumpCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SLAVE_JUMP;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // both types are told in the words of a restart: users know the texts
        archive.required({"slave", "the slave's address; read, but never written"}, self.m_moduleID, tooFew,
                         {"DE00945", "DE00949", "SlaveJumpCmd: board type: expected INT parameter"});
        archive.refuseUnless(checkSlaveAddress(self.m_moduleID), {"DE00944", "DE00950", badAddress});
        archive.required({"jump_type", "2 or 3"}, self.m_jumpType, tooFew,
                         {"DE00947", "DE00951", "SlaveJumpCmd: board address: expected INT parameter"});
        archive.refuseUnless(checkJumpType(self.m_jumpType), {"DE00946", "DE00952", badJump});
    }
};

template class quv::DescribedCommand<SlaveJumpCmd, SerialProtoCommand>;

SlaveJumpCmd::SlaveJumpCmd(int slaveAddress, int jumpType) : m_jumpType(jumpType)
{
    m_moduleID = slaveAddress;
    if (!checkSlaveAddress(slaveAddress))
        throw FW_Exception("DE00940", badAddress, Q_FUNC_INFO);
    if (!checkJumpType(jumpType))
        throw FW_Exception("DE00941", badJump, Q_FUNC_INFO);
}

SlaveJumpCmd::SlaveJumpCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    // the contract of this class, should the base ever let such a value pass
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00942", "SlaveJumpCmd: invalid xml-rpc type (not array)", Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
}

SlaveJumpCmd::SlaveJumpCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SlaveJumpCmd *SlaveJumpCmd::clone() const
{
    return new SlaveJumpCmd(*this);
}

QList<QVariant> SlaveJumpCmd::parameters() const
{
    return {m_jumpType};
}

XmlRpc::XmlRpcValue SlaveJumpCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0] = m_jumpType;
    return array;
}

QList<int> SlaveJumpCmd::serialParameters(int) const
{
    return {m_jumpType};
}

bool SlaveJumpCmd::checkJumpType(int jumpType)
{
    return jumpType == 2 || jumpType == 3;
}
