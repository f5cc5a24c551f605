// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ics_cdata.h"

#include "configuration/confrow_p.h"

namespace {

constexpr int code = 1;

} // namespace

ICS_cdata::ICS_cdata() : ConfData(code) {}

ICS_cdata::ICS_cdata(const FW_Machine *machine) : ConfData(code, machine)
{
    setCommandEnable(true);
}

ICS_cdata::ICS_cdata(QStringList tokens, int fieldCount) : ConfData(code, tokens)
{
    quv::readConfFields(quv::noConfFields, "DE00177", tokens, m_enabledFieldLength + 1, fieldCount,
                        m_parameters, Q_FUNC_INFO);
}

ICS_cdata::ICS_cdata(QString row) : ConfData(code, row) {}

ICS_cdata *ICS_cdata::clone() const
{
    return new ICS_cdata(*this);
}

bool ICS_cdata::updateConfiguration(FW_Machine *, FW_CalibrationProfiles *, QList<int> *) const
{
    return true;
}

XmlRpc::XmlRpcValue ICS_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
