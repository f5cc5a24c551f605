// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/finalising.h"

#include "procedures/machineconfiguration.h"
#include "procedures/waiting.h"

#include "base/serialprotocommand.h"

#include <algorithm>

namespace quv {

FW_ErrorList finaliseConfiguration(ProcedureRun &run)
{
    DrivenMachine &machine = run.machine;
    run.ask(dynamic_cast<SerialProtoCommand &>(run.command));
    WaitRules rules;
    rules.expected = run.progress->expected();
    if (waitUntil(hasFallen(&MachineStatusAnswer::conf_writing), machine, rules, run.isDriverGoing) ==
        WaitEnd::Stopped)
        run.requireToGoOn();
    QStringList problems;
    const auto ask = [&machine](const QString &code, const QList<int> &parameters) {
        return machine.exchange(code, 0, parameters);
    };
    const RowKeys written = machine.takeWrittenRows();
    const ToldRows rows = readRows(written, ask, problems);
    for (const RowKey &key : written) {
        const bool isTold =
            std::any_of(rows.begin(), rows.end(), [&key](const ToldRow &row) { return row.key == key; });
        if (!isTold) // as when the link is lost: the next time it is read again
            machine.rowWritten(key);
    }
    machine.configure([&](FW_Machine &changed) { applyRows(changed, rows, problems); });
    FW_ErrorList errors;
    for (const QString &problem : problems)
        errors.append(FW_DriverError(
            QStringLiteral("DE03120"),
            QStringLiteral("The driver's machine does not follow the configuration: %1").arg(problem)));
    return errors;
}

} // namespace quv
