// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfparamsanswer.h"

#include "base/describedanswer_p.h"

namespace {

constexpr char invalid[] = "GetShelfParamsAnswer: invalid parameter";

} // namespace

struct GetShelfParamsAnswer::Description
{
    using Answer = GetShelfParamsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        constexpr quv::Refusal noPlane = {"DE02941", invalid};
        constexpr quv::Refusal noHeight = {"DE02942", invalid};
        return {quv::Member<Answer>(shelfRefPlane_TAG, &Answer::m_referencePlane, noPlane, noPlane)
                    .meaning("whether the shelf has a reference plane"),
                quv::Member<Answer>(shelfRefHeight_TAG, &Answer::m_referenceHeight, noHeight, noHeight)
                    .meaning("millimetres")};
    }
};

template class quv::DescribedAnswer<GetShelfParamsAnswer, ConfProtoAnswer>;

GetShelfParamsAnswer::GetShelfParamsAnswer(bool hasReferencePlane, int referenceHeight)
    : m_referencePlane(hasReferencePlane),
      m_referenceHeight(referenceHeight)
{}

GetShelfParamsAnswer::GetShelfParamsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetShelfParamsAnswer::GetShelfParamsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetShelfParamsAnswer *GetShelfParamsAnswer::clone() const
{
    return new GetShelfParamsAnswer(*this);
}
