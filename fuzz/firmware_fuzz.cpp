// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescananswer.h"
#include "firmware/firmwareupdatecmd.h"
#include "firmware/firmwareversionanswer.h"
#include "firmware/fwupdateresultlist.h"
#include "fuzzinput.h"
#include "requests.h"
#include "xmlrpccodec.h"

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace {

/** What is made of the source; nothing when it is refused with a code. */
template <class Class, class Source>
std::optional<Class> madeOf(const Source &source)
{
    try {
        return Class(source);
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code().size() == 7 && !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                     "a refusal has its code, its text and its function");
        return std::nullopt;
    }
}

void readProgram(const QStringList &tokens)
{
    const auto answer = madeOf<FirmwareVersionAnswer>(tokens);
    if (!answer)
        return;
    quv::require(answer->program().applicationVersion().isValid(), "a program has its version");
    quv::require(FirmwareVersionAnswer(answer->toXmlRpcValue()) == *answer,
                 "a program reads back from its struct");
}

void readScan(const QStringList &tokens)
{
    const auto answer = madeOf<FirmwareScanAnswer>(tokens);
    if (!answer)
        return;
    for (const FW_Program &program : answer->programs())
        quv::require(program.applicationVersion().isValid() && program.boardAddress() >= 0,
                     "a slave's program has its version and its address");
    quv::require(FirmwareScanAnswer(answer->toXmlRpcValue()) == *answer, "a scan reads back from its struct");
}

void readUpdate(const XmlRpc::XmlRpcValue &arguments)
{
    constexpr long long shortest = 31000;
    const auto command = madeOf<FirmwareUpdateCmd>(arguments);
    if (!command)
        return;
    quv::require(!command->files().isEmpty(), "an update has files");
    quv::require(FirmwareUpdateCmd(command->xmlrpc_parameters()).files() == command->files(),
                 "files read back from their request");
    quv::require(FirmwareUpdateCmd(command->parameters()).files() == command->files(), "and from a list");
    quv::require(command->getCmdEstimatedExecutionTime(nullptr) >= shortest, "an update takes its time");
    const FwUpdateResultList results(command->files());
    quv::require(results.hasSoftErrors() && results.getCommandStatusResult() == 1,
                 "nothing has been updated yet");
    quv::require(results.results().isEmpty() || FwUpdateResultList(results.toXmlRpcValue()) == results,
                 "results read back from their array");
}

} // namespace

/** An XML-RPC call as an update, and anything else as blank-separated tokens that tell the firmware of boards. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    if (!input.startsWith('<')) {
        const QStringList tokens = QString::fromUtf8(input).split(QLatin1Char(' '));
        readProgram(tokens);
        readScan(tokens);
        return 0;
    }
    try {
        readUpdate(quv::argumentsOf(quv::parseMethodCall(input).params));
    } catch (const quv::CodecError &) {
        return 0; // refused before there was a request
    }
    return 0;
}
