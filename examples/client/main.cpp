// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/formula.h>
#include <QuvFramework/fw_error.h>
#include <QuvProtocol/base/asyncanswer.h>
#include <QuvProtocol/base/getcommandstatusanswer.h>
#include <QuvProtocol/base/getcommandstatuscmd.h>
#include <QuvProtocol/base/xmlrpcanswer.h>
#include <QuvProtocol/catalogue/protocommandlist.h>
#include <QuvProtocol/dispensing/tintcmd.h>
#include <QuvProtocol/status/dispenserstatusanswer.h>
#include <QuvProtocol/status/dispenserstatuscmd.h>

#include <xmlrpcpp/XmlRpcClient.h>
#include <xmlrpcpp/XmlRpcException.h>

#include <chrono>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>

// Asks a driver's dispenser for its status, and has it pour a formula of colorants by weight or volume.

namespace {

/// A driver, called with the HTTP client of XmlRpc++.
class Driver
{
public:
    Driver(const std::string &host, int port) : m_client(host.c_str(), port) {}

    /// Has the command carried out and waits for its answer, which the command then holds.
    void execute(ProtoCommand &command) { send(command, ProtoCommandList::BlockingCall); }

    /// Only begins the command; gives the ticket by which the driver tells how far it is.
    QString start(ProtoCommand &command)
    {
        send(command, ProtoCommandList::NonBlockingCall);
        return answerOf<AsyncAnswer>(command).ticketID();
    }

    template <class Answer>
    static const Answer &answerOf(const ProtoCommand &command)
    {
        const auto *answer = dynamic_cast<const Answer *>(command.getProtoAnswer());
        if (!answer)
            throw std::runtime_error(command.command().toStdString() + ": unexpected answer");
        return *answer;
    }

    static void refuse(const XmlRpcAnswer &envelope)
    {
        throw std::runtime_error(envelope.toPrintableString().join(QLatin1Char('\n')).toStdString());
    }

private:
    void send(ProtoCommand &command, ProtoCommandList::CallKind kind)
    {
        const std::string method = ProtoCommandList::functionCallStr(kind).toStdString();
        XmlRpc::XmlRpcValue reply;
        if (!m_client.execute(method.c_str(), command.toXmlRpcValue(QString()), reply))
            throw std::runtime_error("the driver does not reply");
        if (m_client.isFault())
            throw std::runtime_error("the driver did not understand: " + reply.toXml());
        FW_DriverError error;
        if (!command.setAnswer(reply, kind == ProtoCommandList::NonBlockingCall, &error))
            throw FW_DriverError(error);
        if (command.getXmlRpcAnswer()->retCode() != 0)
            refuse(*command.getXmlRpcAnswer());
    }

    XmlRpc::XmlRpcClient m_client;
};

void showStatus(Driver &driver)
{
    DispenserStatusCmd command;
    driver.execute(command);
    const auto &status = Driver::answerOf<DispenserStatusAnswer>(command);
    for (const auto &[text, bad] : status.getStatusDescriptions(nullptr))
        std::cout << (bad ? "bad: " : "status: ") << qPrintable(text) << '\n';
}

/// "B=12.5"
FormulaItem itemOf(const QString &word)
{
    bool ok = false;
    FormulaItem item;
    item.id = word.section(QLatin1Char('='), 0, 0);
    item.quantity = word.section(QLatin1Char('='), 1).toDouble(&ok);
    if (!ok)
        throw std::invalid_argument("expected COLORANT=QUANTITY, not " + word.toStdString());
    return item;
}

CmdStatus statusOf(Driver &driver, const QString &ticket)
{
    GetCommandStatusCmd command(ticket);
    driver.execute(command);
    return Driver::answerOf<GetCommandStatusAnswer>(command).cmdStatus();
}

void tint(Driver &driver, const Formula &formula)
{
    TintCmd command(formula, nullptr);
    const QString ticket = driver.start(command);
    std::cout << "ticket: " << qPrintable(ticket) << '\n';
    CmdStatus now = statusOf(driver, ticket);
    while (now.status() > CmdStatus::Done) {
        std::cout << now.percentage() << " %, " << qPrintable(now.timeLeftStr(false)) << " left\n";
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        now = statusOf(driver, ticket);
    }
    bool ended = false;
    const XmlRpcAnswer envelope = now.getXmlRpcAnswer(&ended);
    if (!ended)
        throw std::runtime_error(now.info().toStdString());
    if (envelope.retCode() != 0)
        Driver::refuse(envelope);
    // a pour that gave less than asked was carried out, and tells so in the errors beside its answer
    if (const QStringList errors = envelope.getDriverErrorsStrings(); !errors.isEmpty())
        throw std::runtime_error(errors.join(QLatin1Char('\n')).toStdString());
    std::cout << "poured\n";
}

} // namespace

int main(int argc, char *argv[])
try {
    if (argc < 3) {
        std::cerr << "usage: tintclient HOST PORT [COLORANT=QUANTITY...]\n";
        return 2;
    }
    Formula formula;
    formula.setFormulaType(Formula::ColorantCodes);
    formula.setQuantityUnit(Formula::WeightOrVolume);
    formula.setLevelsManagementPolicy(Formula::CheckLevels);
    for (int index = 3; index < argc; ++index)
        formula.addItem(itemOf(QString::fromLocal8Bit(argv[index])));

    Driver driver(argv[1], std::stoi(argv[2]));
    showStatus(driver);
    if (!formula.isEmpty())
        tint(driver, formula);
    return 0;
} catch (const FW_DriverError &refusal) {
    std::cerr << "tintclient: " << qPrintable(refusal.toPrintableString()) << '\n';
    return 1;
} catch (const XmlRpc::XmlRpcException &failure) {
    std::cerr << "tintclient: " << failure.getMessage() << '\n';
    return 1;
} catch (const std::exception &failure) {
    std::cerr << "tintclient: " << failure.what() << '\n';
    return 1;
}
