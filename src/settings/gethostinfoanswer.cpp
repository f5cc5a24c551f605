// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/gethostinfoanswer.h"

#include "base/describedanswer_p.h"

namespace {

constexpr char invalid[] = "GetHostInfoAnswer decoding failed: invalid QVariant value";

} // namespace

struct GetHostInfoAnswer::Description
{
    static std::vector<quv::Member<GetHostInfoAnswer>> members()
    {
        using Answer = GetHostInfoAnswer;
        return {{hostName_TAG,
                 &Answer::m_hostName,
                 {"DE01927", "GetHostInfoAnswer: expected host name value"},
                 {"DE01926", invalid}},
                {btRadioOn_TAG,
                 &Answer::m_btRadioOn,
                 {"DE01928", "GetHostInfoAnswer: expected bluetooth radio ON value"},
                 {"DE01925", invalid}}};
    }
};

template class quv::DescribedAnswer<GetHostInfoAnswer, ConfProtoAnswer>;

GetHostInfoAnswer::GetHostInfoAnswer(QString hostName, bool btRadioOn)
    : m_hostName(hostName),
      m_btRadioOn(btRadioOn)
{}

GetHostInfoAnswer::GetHostInfoAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetHostInfoAnswer::GetHostInfoAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetHostInfoAnswer *GetHostInfoAnswer::clone() const
{
    return new GetHostInfoAnswer(*this);
}
