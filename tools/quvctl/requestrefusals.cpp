// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requestrefusals.h"

#include "machines.h"

#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_machine.h>

#include <algorithm>
#include <memory>

namespace quv {

namespace {

/// One for which the command is: what a command refuses without a machine is another matter.
std::unique_ptr<FW_Machine> machineFor(const QString &command)
{
    if (ProtoCommandList::targetIsDispenser(command))
        return machineByName(QStringLiteral("dispenser"));
    return machineByName(ProtoCommandList::targetIsMixer(command) ? QStringLiteral("mixer")
                                                                  : QStringLiteral("none"));
}

class Asker
{
public:
    explicit Asker(const CommandFacts &command) : m_command(command), m_machine(machineFor(command.name)) {}

    template <class Args>
    void ask(const char *form, const QString &when, Args args)
    {
        try {
            const std::unique_ptr<ProtoCommand> made(
                ProtoCommandList::getProtoCommand(m_command.name, args, m_machine.get()));
        } catch (const FW_Exception &refusal) {
            add({QString::fromLatin1(form), when, refusal.code(), textFor(refusal.text())});
        }
    }

    QList<RefusalFacts> refusals() const { return m_refusals; }

private:
    /// Where two or more are asked for, how many came is for the request to say.
    QString textFor(QString text) const
    {
        return ProtoCommandList::cmdParamNum(m_command.name, true) > 1
                   ? text.replace(QLatin1String("received 0 instead"),
                                  QStringLiteral("received \u2026 instead"))
                   : text;
    }

    void add(const RefusalFacts &refusal)
    {
        const auto tells = [&](const ArgumentFacts &argument) {
            return std::any_of(argument.refusals.begin(), argument.refusals.end(), [&](const auto &told) {
                return told.form == refusal.form && told.code == refusal.code;
            });
        };
        if (std::none_of(m_command.arguments.begin(), m_command.arguments.end(), tells))
            m_refusals.append(refusal);
    }

    const CommandFacts &m_command;
    const std::unique_ptr<FW_Machine> m_machine;
    QList<RefusalFacts> m_refusals;
};

} // namespace

QList<RefusalFacts> requestRefusals(const CommandFacts &command)
{
    const int minimum = ProtoCommandList::cmdParamNum(command.name, true);
    const QString tooFew = minimum > 1 ? QStringLiteral("there are fewer than %1 arguments").arg(minimum)
                                       : QStringLiteral("there are no arguments");
    const QString noArray = QStringLiteral("the arguments are no array");
    XmlRpc::XmlRpcValue empty;
    empty.setSize(0);

    Asker asker(command);
    asker.ask("XML-RPC", noArray, XmlRpc::XmlRpcValue(0));
    asker.ask("XML-RPC", tooFew, empty);
    asker.ask("list", tooFew, QList<QVariant>());
    return asker.refusals();
}

} // namespace quv
