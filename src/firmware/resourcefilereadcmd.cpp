// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilereadcmd.h"

#include "base/describedcommand_p.h"
#include "firmware/resourcefilereadanswer.h"

struct ResourceFileReadCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RES_FILE_READ;
    static constexpr auto commandText = "Resource file read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading resource file");

    static constexpr char answerFailed[] = "Failed to create ResourceFileReadAnswer";
    static constexpr quv::AnsweredBy<ResourceFileReadAnswer> answer = {
        {}, {"DE02765", answerFailed}, {"DE02765", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal invalid = {"DE02760", "ResourceFileReadCmd: invalid parameter"};
        archive.required({"resource", "a number by which the driver knows the file"}, self.m_resource,
                         {invalid, {"DE02761", "Too few parameters received"}},
                         {invalid, {"DE02762", "ResourceFileDeleteCmd: bad parameter"}});
    }
};

template class quv::DescribedCommand<ResourceFileReadCmd, SerialProtoCommand>;

ResourceFileReadCmd::ResourceFileReadCmd(int resource) : m_resource(resource) {}

ResourceFileReadCmd::ResourceFileReadCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ResourceFileReadCmd::ResourceFileReadCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ResourceFileReadCmd *ResourceFileReadCmd::clone() const
{
    return new ResourceFileReadCmd(*this);
}
