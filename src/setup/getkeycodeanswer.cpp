// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getkeycodeanswer.h"

#include "base/describedanswer_p.h"

struct GetKeyCodeAnswer::Description
{
    static std::vector<quv::Member<GetKeyCodeAnswer>> members()
    {
        return {quv::Member<GetKeyCodeAnswer>(
            keyCode_TAG, &GetKeyCodeAnswer::m_keyCode,
            {"DE01769", "GetKeyCodeAnswer decoding failed: invalid xml-rpc type"},
            {"DE01768", "GetKeyCodeAnswer decoding failed: invalid QVariant value"})};
    }
};

template class quv::DescribedAnswer<GetKeyCodeAnswer, SerialProtoAnswer>;

GetKeyCodeAnswer::GetKeyCodeAnswer(const QString &keyCode) : m_keyCode(keyCode) {}

GetKeyCodeAnswer::GetKeyCodeAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetKeyCodeAnswer::GetKeyCodeAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetKeyCodeAnswer *GetKeyCodeAnswer::clone() const
{
    return new GetKeyCodeAnswer(*this);
}
