// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getdriverinfoanswer.h"

#include "base/describedanswer_p.h"
#include "settings/converting_p.h"
#include "settings/driverinfo_p.h"

struct GetDriverInfoAnswer::Description
{
    static std::vector<quv::Member<GetDriverInfoAnswer>> members()
    {
        constexpr quv::Refusal invalid = {"DE00448",
                                          "GetDriverInfoAnswer decoding failed: invalid QVariant value"};
        return {{driverInfo_TAG, &GetDriverInfoAnswer::m_driverInfo, invalid, invalid}};
    }
};

template class quv::DescribedAnswer<GetDriverInfoAnswer, ConfProtoAnswer>;

GetDriverInfoAnswer::GetDriverInfoAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetDriverInfoAnswer::GetDriverInfoAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetDriverInfoAnswer *GetDriverInfoAnswer::clone() const
{
    return new GetDriverInfoAnswer(*this);
}

void GetDriverInfoAnswer::setDriverInfo(QVariant driverInfo)
{
    quv::takeObject(driverInfo, m_driverInfo);
}
