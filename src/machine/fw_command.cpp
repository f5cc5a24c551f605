// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/fw_command.h"

#include "base/digitnumber_p.h"
#include "base/record_p.h"
#include "machine/fw_command_p.h"

#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<FW_Command>("FW_Command");

constexpr char badCode[] = "Error during command code decoding";
constexpr char badStatus[] = "Error during command status decoding";

constexpr int executable = static_cast<int>(CmdExecution::Yes);
constexpr int notExecutable = static_cast<int>(CmdExecution::No);

const quv::Record<FW_Command> &record()
{
    static const quv::Record<FW_Command> record({
        {FW_Command::cmdCode_TAG, &FW_Command::cmdCode, quv::noCmdCode},
        {FW_Command::cmdStatus_TAG, &FW_Command::cmdStatus, quv::noCmdStatus},
        {FW_Command::cmdExecution_TAG, &FW_Command::cmdExecution}, // optional
    });
    return record;
}

} // namespace

FW_Command::FW_Command(unsigned int code, int status, CmdExecution execution)
    : cmdCode(code),
      cmdStatus(status),
      cmdExecution(static_cast<int>(execution))
{}

FW_Command::FW_Command(QStringList tokens)
{
    const char *function = Q_FUNC_INFO;
    quv::TokenReader reader(tokens, 0, function);
    reader.require(3, {"DE00818", "Error during command answer decoding: bad length"});
    cmdCode = static_cast<unsigned>(
        quv::nextOfDigits(reader, {{"DE00327", badCode}, {"DE00666", badCode}}, function));
    cmdStatus = reader.next({"DE00667", badStatus});
    if (!reader.atEnd())
        cmdExecution = reader.next({"DE02595", badStatus}) == executable ? executable : notExecutable;
}

FW_Command::FW_Command(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

void FW_Command::clear()
{
    *this = FW_Command();
}

XmlRpc::XmlRpcValue FW_Command::toXmlRpcValue() const
{
    return record().encode(*this);
}

bool FW_Command::operator==(const FW_Command &other) const
{
    return record().equal(*this, other);
}
