// SPDX-License-Identifier: LGPL-3.0-or-later
#include "stopping.h"

#include "executed.h"

#include "processes/stopserialcmd.h"

#include <QuvFramework/fw_error.h>

namespace quv {

namespace {

QString toldOfStopping(const Driver &driver)
{
    const auto failed = [&driver](const QString &why) {
        return QStringLiteral("the machine was not stopped: %1; try again with: quvctl stop%2")
            .arg(why, driver.sameMachine());
    };
    try {
        stopMachine(driver);
        return QStringLiteral("the machine has been told to stop");
    } catch (const RequestRefused &refusal) {
        return failed(refusal.lines().value(0));
    } catch (const FW_DriverError &error) {
        return failed(error.toPrintableString());
    } catch (const std::exception &error) {
        return failed(QString::fromUtf8(error.what()));
    }
}

} // namespace

void stopMachine(const Driver &driver)
{
    StopSerialCmd command;
    requireDone(driver.execute(command));
}

InterruptPlan stoppedBySecond(const Driver &driver, InterruptPlan plan)
{
    return withSecond(std::move(plan), QStringLiteral("Ctrl-C again within 2 seconds stops the machine"),
                      [&driver] { return toldOfStopping(driver); });
}

} // namespace quv
