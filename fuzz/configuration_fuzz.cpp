// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamanswer.h"
#include "configuration/writeconfigurationparamcmd.h"
#include "fuzzinput.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>

#include <memory>

namespace {

FW_Dispenser machineToSetUp()
{
    FW_Dispenser machine;
    machine.addCanister(FW_Canister(1));
    machine.addNewCircuit(1, 1, 1);
    return machine;
}

/** A row goes to a machine, which then has one of the same structure. */
void apply(const ConfData &row)
{
    FW_Dispenser machine = machineToSetUp();
    QList<int> extra;
    row.updateConfiguration(&machine, nullptr, &extra);
    row.updateConfiguration(nullptr, nullptr, nullptr);
    const int code = row.commandCode();
    if (!ConfData::isCommandCodeSupported(code, SerialDeviceType::Dispenser))
        return;
    try {
        const WriteConfigurationParamCmd written(code, &machine, 1);
        quv::require(written.confData() != nullptr, "a written row is there");
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code() == QLatin1String("DE00176"),
                     "a machine's row is refused for a number alone");
    }
}

/** The firmware's row, sent back to it, is the same row; but an empty name is none. */
void readTokens(const QString &text)
{
    const ReadConfigurationParamAnswer answer(text.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    const ConfData *row = answer.confData();
    quv::require(row != nullptr, "an answer has its row");
    bool ok = false;
    QStringList tokens{QStringLiteral("00"), QString::number(static_cast<unsigned>(row->commandCode()), 16),
                       QStringLiteral("01"), QString::number(row->numOfConfigurationParams() + 1, 16)};
    for (const int integer : row->serialParams(&ok))
        tokens.append(QString::number(integer, 16));
    quv::require(ok, "a received row can be sent");
    if (answer.configurationDataStr().startsWith(QLatin1String("@NOM")) &&
        answer.configurationDataStr().endsWith(QLatin1Char(',')))
        return;
    quv::require(ReadConfigurationParamAnswer(tokens).equalTo(&answer),
                 "a row reads back from what is sent of it");
    apply(*row);
}

/** A structure code, a blank and the row as text. */
void readText(const QString &text)
{
    const int blank = text.indexOf(QLatin1Char(' '));
    XmlRpc::XmlRpcValue value;
    value["cmd_value"] = text.left(blank).toInt();
    value["cmd_parameters"] = text.mid(blank + 1).toStdString();
    const WriteConfigurationParamCmd command(value);
    if (!command.confData())
        return;
    const WriteConfigurationParamCmd again(command.xmlrpc_parameters());
    quv::require(again.configurationDataStr() == command.configurationDataStr(),
                 "a row reads back from its request");
    quv::require(again.serialParameters(1) == command.serialParameters(1), "and is sent alike");
    apply(*command.confData());
}

} // namespace

/** A row that the firmware answers, or behind a "t" one as text: a structure, or a refusal with its code. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    try {
        if (text.startsWith(QLatin1Char('t')))
            readText(text.mid(1));
        else
            readTokens(text);
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code().size() == 7 && !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                     "a refusal has its code, its text and its function");
    }
    return 0;
}
