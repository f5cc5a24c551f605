// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getdriversettingsanswer.h"

#include "base/describedanswer_p.h"
#include "settings/driversettings_p.h"

struct GetDriverSettingsAnswer::Description
{
    static std::vector<quv::Member<GetDriverSettingsAnswer>> members()
    {
        constexpr quv::Refusal invalid = {"DE00974",
                                          "GetDriverSettingsAnswer decoding failed: invalid QVariant value"};
        return {quv::Member<GetDriverSettingsAnswer>(
                    driverSettings_TAG, &GetDriverSettingsAnswer::m_driverSettings, invalid, invalid)
                    .meaning("the settings by their keys; those of the logger are a struct of their own")};
    }
};

template class quv::DescribedAnswer<GetDriverSettingsAnswer, ConfProtoAnswer>;

GetDriverSettingsAnswer::GetDriverSettingsAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetDriverSettingsAnswer::GetDriverSettingsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetDriverSettingsAnswer *GetDriverSettingsAnswer::clone() const
{
    return new GetDriverSettingsAnswer(*this);
}

void GetDriverSettingsAnswer::setDriverSettings(QVariant driverSettings)
{
    quv::fieldType<DriverSettings>().readVariant(driverSettings, &m_driverSettings);
}
