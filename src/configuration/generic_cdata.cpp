// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/generic_cdata.h"

#include "configuration/confrow_p.h"

namespace {

constexpr quv::ConfCodes codes = {
    "DE00284", "Invalid Dispenser data", "DE02805", "DE00285", "DE00286", "DE00287", "DE00288"};

} // namespace

GENERIC_cdata::GENERIC_cdata(const FW_Machine *machine)
{
    quv::confDispenser(machine, codes, Q_FUNC_INFO);
    setCommandEnable(true);
}

GENERIC_cdata::GENERIC_cdata(QStringList tokens, int fieldCount) : ConfData(0, tokens)
{
    quv::readConfTokens(quv::noConfFields, codes, tokens, m_enabledFieldLength, fieldCount, m_parameters,
                        Q_FUNC_INFO);
    quv::updateLocalDataOrThrow(*this, codes.tokensData, Q_FUNC_INFO);
}

GENERIC_cdata::GENERIC_cdata(QString row) : ConfData(0, row)
{
    quv::updateLocalDataOrThrow(*this, codes.textData, Q_FUNC_INFO);
}

GENERIC_cdata *GENERIC_cdata::clone() const
{
    return new GENERIC_cdata(*this);
}

bool GENERIC_cdata::updateConfiguration(FW_Machine *, FW_CalibrationProfiles *, QList<int> *) const
{
    return true;
}

XmlRpc::XmlRpcValue GENERIC_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
