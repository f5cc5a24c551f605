// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilelistcmd.h"

#include "base/describedcommand_p.h"
#include "firmware/resourcefilelistanswer.h"

struct ResourceFileListCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RES_FILE_LIST;
    static constexpr auto commandText = "Resource files list read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading resource files list");

    static constexpr char answerFailed[] = "Failed to create ResourceFileListAnswer";
    static constexpr quv::AnsweredBy<ResourceFileListAnswer> answer = {
        {}, {"DE02771", answerFailed}, {"DE02772", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal invalid = {"DE02767", "ResourceFileListCmd: invalid parameter"};
        archive.required({"resource", "a number by which the driver knows the files"}, self.m_resource,
                         {invalid, {"DE02768", "Too few parameters received"}},
                         {invalid, {"DE02769", "ResourceFileListCmd: bad parameter"}});
    }
};

template class quv::DescribedCommand<ResourceFileListCmd, SerialProtoCommand>;

ResourceFileListCmd::ResourceFileListCmd(int resource) : m_resource(resource) {}

ResourceFileListCmd::ResourceFileListCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ResourceFileListCmd::ResourceFileListCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ResourceFileListCmd *ResourceFileListCmd::clone() const
{
    return new ResourceFileListCmd(*this);
}
