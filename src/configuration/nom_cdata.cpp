// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/nom_cdata.h"

#include "configuration/confrow_p.h"

#include <QuvFramework/fw_machine.h>

namespace {

constexpr int code = 2;
constexpr char nameMissing[] = "Structure name field not found in answer";

} // namespace

NOM_cdata::NOM_cdata() : ConfData(code) {}

NOM_cdata::NOM_cdata(const FW_Machine *machine) : ConfData(code, machine)
{
    if (!machine)
        throw FW_Exception("DE00178", "Invalid Machine data", Q_FUNC_INFO);
    setCommandEnable(true);
    m_name = machine->confStructureName();
}

NOM_cdata::NOM_cdata(QStringList tokens, int fieldCount) : ConfData(code, tokens)
{
    const int index = m_enabledFieldLength + 1;
    if (index >= tokens.size())
        throw FW_Exception("DE00180", nameMissing, Q_FUNC_INFO);
    parseConfigurationParam(&m_name, tokens.mid(index));
    // What the firmware counts is stepped over as numbers; the first of them is the name once more.
    int next = index;
    for (int position = 1; position < fieldCount; ++position) {
        const int length = quv::confFieldLength(tokens, next);
        if (length == 0)
            throw FW_Exception("DE00183", quv::confFieldNotFound(quv::newDataLabel), Q_FUNC_INFO);
        next += length + 1;
    }
}

NOM_cdata::NOM_cdata(QString row) : ConfData(code, row)
{
    const QStringList parts = row.split(QLatin1Char(','));
    if (parts.size() < 2)
        throw FW_Exception("DE00184", nameMissing, Q_FUNC_INFO);
    m_name = parts.at(1);
}

NOM_cdata *NOM_cdata::clone() const
{
    return new NOM_cdata(*this);
}

QStringList NOM_cdata::labels()
{
    return {QStringLiteral("Structure name")};
}

void NOM_cdata::clear()
{
    m_name.clear();
}

bool NOM_cdata::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *, QList<int> *) const
{
    if (!machine)
        return false;
    machine->setConfStructureName(m_name);
    return true;
}

QList<int> NOM_cdata::serialParams(bool *ok) const
{
    QList<int> out;
    const bool enabledWritten = createSerialParam(m_cmdEnabled, &out);
    const bool nameWritten = createSerialParam(m_name, &out);
    if (ok)
        *ok = enabledWritten && nameWritten;
    return out;
}

QString NOM_cdata::configurationParamsStr() const
{
    // at once: a name may hold the mark of an argument
    return QStringLiteral("%1,%2").arg(QString::number(m_cmdEnabled), m_name);
}

int NOM_cdata::numOfConfigurationParams() const
{
    return 1;
}

XmlRpc::XmlRpcValue NOM_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
