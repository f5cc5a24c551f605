// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvProtocol/catalogue/protocommandlist.h>
#include <QuvProtocol/status/dispenserstatusanswer.h>
#include <QuvProtocol/status/dispenserstatuscmd.h>

#include <iostream>

// Asks a dispenser for its status, and reads what its firmware answers.
int main()
{
    DispenserStatusCmd command;
    std::cout << "request: " << command.toXmlRpcValue("").toXml() << '\n'
              << "code: "
              << qPrintable(ProtoCommandList::cmdCode(command.command(), FW_Dispenser::CommandFamily1))
              << '\n';

    FW_DriverError error;
    const QStringList tokens = {"06", "00", "02", "04", "02", "00", "08"};
    if (!command.setSerialAnswer(tokens, &error)) {
        std::cerr << qPrintable(error.toPrintableString()) << '\n';
        return 1;
    }
    const auto *status = static_cast<const DispenserStatusAnswer *>(command.getProtoAnswer());
    for (const auto &[text, bad] : status->getStatusDescriptions(nullptr))
        std::cout << (bad ? "bad: " : "status: ") << qPrintable(text) << '\n';
    return 0;
}
