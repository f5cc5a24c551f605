// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/firmwarecommandsanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "base/tokens_p.h"
#include "machine/fw_command_p.h"

#include <utility>

namespace quv {

template <>
const FieldType &fieldType<QList<FW_Command>>()
{
    static constexpr FieldType type = objectListType<FW_Command>();
    return type;
}

} // namespace quv

namespace {

constexpr char noCommand[] = "FirmwareCommandsAnswer failed: expected FW_Command type parameter";
constexpr quv::Refusal otherCommand = {"DE00676", noCommand};

} // namespace

struct FirmwareCommandsAnswer::Description
{
    using Answer = FirmwareCommandsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(fwCommandList_TAG, &Answer::m_commands,
                                {"DE00677", "FirmwareCommandsAnswer: Errors during FW_Command list creation"},
                                otherCommand)
                .otherType({"DE00801", "FirmwareCommandsAnswer decoding failed: expected xml-rpc array type"})
                .unmadeElement(otherCommand)
                .meaning("of each command cmd_code, cmd_status (2 keeps the machine busy) and cmd_exec (1 "
                         "can be carried out)")};
    }
};

template class quv::DescribedAnswer<FirmwareCommandsAnswer, SerialProtoAnswer>;

FirmwareCommandsAnswer::FirmwareCommandsAnswer(const QList<FW_Command> &commands) : m_commands(commands) {}

FirmwareCommandsAnswer::FirmwareCommandsAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    const char *function = Q_FUNC_INFO;
    quv::TokenReader reader(m_parameters, 0, function);
    reader.require(4, {"DE00670", "Error during command answer decoding: bad length"});
    const int count = reader.next(
        {"DE00671", "Error during command answer decoding: expected number of commands parameter"});
    const int size = count > 0 ? reader.remaining() / count : 0;
    for (int i = 0; i < count; ++i) {
        quv::madeOrRefused({"DE00672", noCommand}, function, [&] {
            m_commands.append(FW_Command(m_parameters.mid(1 + i * size, size))); // behind the number
        });
    }
}

FirmwareCommandsAnswer::FirmwareCommandsAnswer(const XmlRpc::XmlRpcValue &value)
{
    if (!value.valid())
        throw FW_Exception("DE00675", "FirmwareCommandsAnswer decoding failed: invalid xml-rpc type",
                           Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
}

FirmwareCommandsAnswer::FirmwareCommandsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(QList<QVariant>{QVariant(list)}, Q_FUNC_INFO); // the list is the one member
}

FirmwareCommandsAnswer *FirmwareCommandsAnswer::clone() const
{
    return new FirmwareCommandsAnswer(*this);
}
