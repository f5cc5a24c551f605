// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilelistanswer.h"

#include "base/argumentteller_p.h"
#include "base/describedanswer_p.h"
#include "firmware/fwresourcefile_p.h"

namespace {

constexpr quv::Refusal tooFew = {"DE02756", "Too few parameters received"};
constexpr quv::Refusal noFile = {"DE02759", "ResourceFileListAnswer: no FwResourceFile found"};

} // namespace

struct ResourceFileListAnswer::Description
{
    using Answer = ResourceFileListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(resourceFiles_TAG, &Answer::m_files,
                                {"DE03260", "ResourceFileListAnswer: expected res_file_list value"},
                                {"DE02757", "ResourceFileWriteCmd: expected FwResourceFile type parameter"})
                .unmadeElement({"DE02758", "ResourceFileListAnswer: invalid FwResourceFile parameter"})
                .alsoInList("the list is empty", tooFew)
                .meaning("of each file res_data_stream (base64), res_name, res_type and res_index")};
    }
};

template class quv::DescribedAnswer<ResourceFileListAnswer, SerialProtoAnswer>;

ResourceFileListAnswer::ResourceFileListAnswer(const QList<FwResourceFile> &files) : m_files(files) {}

ResourceFileListAnswer::ResourceFileListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
    if (m_files.isEmpty())
        quv::throwRefusal(noFile, Q_FUNC_INFO);
}

ResourceFileListAnswer::ResourceFileListAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        quv::throwRefusal(tooFew, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

ResourceFileListAnswer *ResourceFileListAnswer::clone() const
{
    return new ResourceFileListAnswer(*this);
}

QList<quv::MemberFacts> ResourceFileListAnswer::memberFacts()
{
    QList<quv::MemberFacts> members = DescribedAnswer::memberFacts();
    quv::appendRefusal(members.first().refusals, "XML-RPC", "empty", noFile);
    return members;
}
