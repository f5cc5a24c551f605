// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dispenser.h>

#include <memory>

namespace {

bool isOfLine(const QString &modelName, QLatin1String line)
{
    return modelName.startsWith(line, Qt::CaseInsensitive);
}

} // namespace

FW_Dispenser *FW_Dispenser::clone() const
{
    return std::make_unique<FW_Dispenser>(*this).release();
}

SerialDeviceType FW_Dispenser::machineType() const
{
    return SerialDeviceType::Dispenser;
}

bool FW_Dispenser::isZANDORDispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("ZANDOR"));
}

bool FW_Dispenser::isLUMINAdispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("LUMINA"));
}

bool FW_Dispenser::isSOLA100dispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("SOLA100"));
}

bool FW_Dispenser::isLIRADORdispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("LIRADOR"));
}
