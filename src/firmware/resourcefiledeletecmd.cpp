// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefiledeletecmd.h"

#include "base/describedcommand_p.h"

struct ResourceFileDeleteCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RES_FILE_DELETE;
    static constexpr auto commandText = "Resource file delete";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Deleting resource file");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::Refusal invalid = {"DE02774", "ResourceFileDeleteCmd: invalid parameter"};
        archive.required({"resource", "a number by which the driver knows the file"}, self.m_resource,
                         {invalid, {"DE02775", "Too few parameters received"}},
                         {invalid, {"DE02776", "ResourceFileDeleteCmd: bad parameter"}});
    }
};

template class quv::DescribedCommand<ResourceFileDeleteCmd, SerialProtoCommand>;

ResourceFileDeleteCmd::ResourceFileDeleteCmd(int resource) : m_resource(resource) {}

ResourceFileDeleteCmd::ResourceFileDeleteCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ResourceFileDeleteCmd::ResourceFileDeleteCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ResourceFileDeleteCmd *ResourceFileDeleteCmd::clone() const
{
    return new ResourceFileDeleteCmd(*this);
}
