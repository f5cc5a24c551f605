// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilemanagementcmd.h"

#include "base/describedcommand_p.h"
#include "firmware/resourcefilemanagementanswer.h"
#include "firmware/resourcefilemanagementbase_p.h"

namespace {

constexpr char answerFailed[] = "Failed to create ResourceFileManagementAnswer";

/** The struct itself, or what stands first in a request's array. */
const XmlRpc::XmlRpcValue &structIn(const XmlRpc::XmlRpcValue &value)
{
    const XmlRpc::XmlRpcValue *element = FindXmlRpcElement(value, 0);
    return element ? *element : value;
}

} // namespace

struct ResourceFileManagementCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RES_FILE_MNGM;

    static constexpr quv::AnsweredBy<ResourceFileManagementAnswer> answer = {{"DE02739", answerFailed},
                                                                             {"DE02737", answerFailed},
                                                                             {"DE02738", answerFailed},
                                                                             {"DE02726", answerFailed}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({resourceData_TAG,
                         "a struct of this one member: a struct of \"subcmd\", \"res_index\", "
                         "\"block_address\" (ints) and \"data\" (base64, or a text)"},
                        "struct");
        teller.refuse("missing", {quv::noResourceData, quv::emptyResourceList});
        teller.refuse("another type", {{}, quv::otherThanResourceData});
        for (const auto &[when, refusal] : quv::ownRefusals<FwResourceData>)
            teller.refuse(when, {refusal, {}});
    }
};

template class quv::DescribedCommand<ResourceFileManagementCmd, SerialProtoCommand>;

ResourceFileManagementCmd::ResourceFileManagementCmd() = default;

ResourceFileManagementCmd::ResourceFileManagementCmd(const FwResourceData &data)
    : ResourceFileManagementBase(data)
{}

// The base of commands counts in neither form: a struct is a request, and one element carries what the catalogue counts as two.

ResourceFileManagementCmd::ResourceFileManagementCmd(const XmlRpc::XmlRpcValue &value)
    : ResourceFileManagementBase(structIn(value))
{}

ResourceFileManagementCmd::ResourceFileManagementCmd(QList<QVariant> list) : ResourceFileManagementBase(list)
{}

ResourceFileManagementCmd *ResourceFileManagementCmd::clone() const
{
    return new ResourceFileManagementCmd(*this);
}

void ResourceFileManagementCmd::setDefaults()
{
    m_moduleID = 0;
    setDefaultsBase();
}

QList<QVariant> ResourceFileManagementCmd::parameters() const
{
    return ResourceFileManagementBase::parameters();
}

XmlRpc::XmlRpcValue ResourceFileManagementCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    return xmlRpcValue();
}

XmlRpc::XmlRpcValue ResourceFileManagementCmd::toXmlRpcValue(QString leading, bool *ok) const
{
    XmlRpc::XmlRpcValue array;
    array[0] = xmlrpc_parameters();
    return buildXmlRpcValue(m_command, array, leading, ok);
}

QList<int> ResourceFileManagementCmd::serialParameters(int) const
{
    return ResourceFileManagementBase::serialParameters();
}

bool ResourceFileManagementCmd::setAnswer(ResourceFileManagementAnswer &answer, FW_DriverError *error)
{
    return replaceProtoAnswer("DE02736", answerFailed, error, [&] { return answer.clone(); });
}
