// SPDX-License-Identifier: LGPL-3.0-or-later
#include "catalogwords.h"

#include "catalogue/protocommandlist.h"

#include <QtCore/QStringList>

namespace quv {

namespace {

constexpr int dependsOnParameters = 9999999;

QString nothing()
{
    return QStringLiteral("-");
}

QString joined(const QStringList &words)
{
    return words.isEmpty() ? nothing() : words.join(QStringLiteral(", "));
}

QString yesOrNo(bool yes)
{
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace

QString codesInWords(const CMD_STRUCT &row)
{
    if (row.code.isEmpty())
        return nothing();
    return row.altCode.isEmpty() ? row.code : QStringLiteral("%1 (%2)").arg(row.code, row.altCode);
}

QString parametersInWords(const CMD_STRUCT &row)
{
    if (row.minParams == row.maxParams)
        return QString::number(row.minParams);
    return QStringLiteral("%1 to %2").arg(row.minParams).arg(row.maxParams);
}

QString familiesInWords(const CMD_STRUCT &row)
{
    QStringList families;
    for (const int family : {1, 2})
        if ((row.familyMask & family) != 0)
            families.append(QString::number(family));
    return joined(families);
}

QString machinesInWords(const CMD_STRUCT &row)
{
    QStringList machines;
    if (ProtoCommandList::targetIsDispenser(row.name))
        machines.append(QStringLiteral("dispenser"));
    if (ProtoCommandList::targetIsMixer(row.name))
        machines.append(QStringLiteral("mixer"));
    return joined(machines);
}

QString kindInWords(const CMD_STRUCT &row)
{
    static const QStringList kinds = {
        QStringLiteral("serial"),
        QStringLiteral("configuration"),
        QStringLiteral("serial and configuration"),
        QStringLiteral("configuration and serial"),
        QStringLiteral("special"),
        QStringLiteral("special and serial"),
        QStringLiteral("special and configuration"),
        QStringLiteral("scale"),
    };
    return kinds.value(row.type, nothing());
}

QString timeoutInWords(const CMD_STRUCT &row)
{
    if (row.busyTimeout == 0)
        return nothing();
    if (row.busyTimeout == dependsOnParameters)
        return QStringLiteral("depends on the parameters");
    return QStringLiteral("%1 s").arg(static_cast<double>(row.busyTimeout) / 1000);
}

QList<QPair<QString, QString>> rowInWords(const CMD_STRUCT &row)
{
    return {
        {QStringLiteral("Row"), QString::number(row.id)},
        {QStringLiteral("Code"), codesInWords(row)},
        {QStringLiteral("Parameters"), parametersInWords(row)},
        {QStringLiteral("Kind"), kindInWords(row)},
        {QStringLiteral("Machine"), machinesInWords(row)},
        {QStringLiteral("Command families"), familiesInWords(row)},
        {QStringLiteral("Addressed to"),
         row.addressMachine ? QStringLiteral("a machine") : QStringLiteral("the driver")},
        {QStringLiteral("Priority"), QStringLiteral("working %1, scheduling %2")
                                         .arg(row.workingPriorityLevel)
                                         .arg(row.schedulingPriorityLevel)},
        {QStringLiteral("Looks at busy state"), yesOrNo(row.checkBusy)},
        {QStringLiteral("Time-out"), timeoutInWords(row)},
        {QStringLiteral("Measures its time"), yesOrNo(row.trackExecutionTime)},
        {QStringLiteral("In the statistics"), yesOrNo(row.recordInStats)},
        {QStringLiteral("Machine object use"), QString::number(row.machineObjUsage)},
        {QStringLiteral("Multiple"), yesOrNo(row.multiple)},
        {QStringLiteral("Private"), yesOrNo(row.privateCommand)},
        {QStringLiteral("Delivers colorant"), yesOrNo(row.erogationCommand)},
    };
}

} // namespace quv
