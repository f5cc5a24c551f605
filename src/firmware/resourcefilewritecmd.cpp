// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilewritecmd.h"

#include "base/describedcommand_p.h"
#include "firmware/fwresourcefile_p.h"

namespace {

constexpr quv::Refusal invalid = {"DE02722", "ResourceFileWriteCmd: invalid FwResourceFile parameter"};
constexpr quv::Refusal noFile = {"DE02723", "ResourceFileWriteCmd: no FwResourceFile found"};
constexpr quv::Refusal tooFew = {"DE02724", "Too few parameters received"};
constexpr quv::Refusal noFiles = {"DE02725", "ResourceFileWriteCmd: expected FwResourceFile type parameter"};

} // namespace

struct ResourceFileWriteCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RES_FILE_WRITE;
    static constexpr auto commandText = "Resource file write";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Sending resource file");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"files",
             "each \"res_data_stream\" (base64, or a text), \"res_name\", \"res_type\" (0 generic, 1 "
             "configuration, 2 messages, 3 dump, 4 corrupted) and \"res_index\""},
            "array of structs");
        teller.refuse("another type", {invalid, noFiles});
        teller.refuse("without a file", {noFile, {}});
        for (const auto &[when, refusal] : quv::ownRefusals<FwResourceFile>)
            teller.refuse(when, {refusal, {}});
    }
};

template class quv::DescribedCommand<ResourceFileWriteCmd, SerialProtoCommand>;

ResourceFileWriteCmd::ResourceFileWriteCmd(const QList<FwResourceFile> &files) : m_files(files) {}

ResourceFileWriteCmd::ResourceFileWriteCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpc::XmlRpcValue *files = FindXmlRpcElement(value, 0);
    if (!files || quv::readObjects<FwResourceFile>(*files, &m_files) != quv::Decoded::Good)
        quv::throwRefusal(invalid, Q_FUNC_INFO);
    if (m_files.isEmpty())
        quv::throwRefusal(noFile, Q_FUNC_INFO);
}

ResourceFileWriteCmd::ResourceFileWriteCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty()) // the contract of this class, should the base ever let such a list pass
        quv::throwRefusal(tooFew, Q_FUNC_INFO);
    m_files = quv::decodedList<FwResourceFile>(list.constFirst(), noFiles, noFiles, Q_FUNC_INFO);
}

ResourceFileWriteCmd *ResourceFileWriteCmd::clone() const
{
    return new ResourceFileWriteCmd(*this);
}

void ResourceFileWriteCmd::setDefaults()
{
    m_files.clear();
}

QList<QVariant> ResourceFileWriteCmd::parameters() const
{
    return {QVariant::fromValue(m_files)};
}

XmlRpc::XmlRpcValue ResourceFileWriteCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    quv::writeObjects<FwResourceFile>(&m_files, array[0]);
    return array;
}
