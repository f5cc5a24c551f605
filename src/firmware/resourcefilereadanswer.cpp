// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilereadanswer.h"

#include "base/describedanswer_p.h"
#include "firmware/fwresourcefile_p.h"

namespace {

constexpr char invalid[] =
    "ResourceFileWriteCmd: invalid FwResourceFile parameter"; // users know it by the text of writing

} // namespace

struct ResourceFileReadAnswer::Description
{
    using Answer = ResourceFileReadAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        static constexpr quv::Refusal badFile = {"DE02755", invalid};
        return {quv::Member<Answer>(resourceFile_TAG, &Answer::m_file, {"DE02754", invalid}, badFile)
                    .unmade(badFile)
                    .meaning("res_data_stream (base64), res_name, res_type and res_index")};
    }
};

template class quv::DescribedAnswer<ResourceFileReadAnswer, SerialProtoAnswer>;

ResourceFileReadAnswer::ResourceFileReadAnswer(const FwResourceFile &file) : m_file(file) {}

ResourceFileReadAnswer::ResourceFileReadAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

ResourceFileReadAnswer::ResourceFileReadAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        throw FW_Exception("DE02754", invalid, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

ResourceFileReadAnswer *ResourceFileReadAnswer::clone() const
{
    return new ResourceFileReadAnswer(*this);
}
