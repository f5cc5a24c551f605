// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareversioncmd.h"

#include "base/describedcommand_p.h"
#include "firmware/firmwareversionanswer.h"

struct FirmwareVersionCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::READ_FW_VERSION;

    static constexpr char answerFailed[] = "Failed to create FirmwareVersionAnswer";
    static constexpr quv::AnsweredBy<FirmwareVersionAnswer> answer = {
        {"DE00610", answerFailed}, {"DE03241", answerFailed}, {}, {}};

    static constexpr auto commandText = "Read firmware version";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading firmware version");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noModule = {"DE00591", "DE00608", "Module ID: expected INT parameter"};
        archive.required({"module", "0 is the machine itself"}, self.m_moduleID, noModule, noModule);
    }
};

template class quv::DescribedCommand<FirmwareVersionCmd, SerialProtoCommand>;

FirmwareVersionCmd::FirmwareVersionCmd(int moduleID)
{
    setModuleID(moduleID);
}

FirmwareVersionCmd::FirmwareVersionCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

FirmwareVersionCmd::FirmwareVersionCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

FirmwareVersionCmd *FirmwareVersionCmd::clone() const
{
    return new FirmwareVersionCmd(*this);
}

TString FirmwareVersionCmd::actionString(bool detailed) const
{
    if (!detailed)
        return DescribedCommand::actionString(false);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Reading firmware version from module %1"),
                   quv::translationContext)
        .arg(QString::number(m_moduleID), false);
}
