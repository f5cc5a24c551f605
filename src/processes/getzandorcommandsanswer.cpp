// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getzandorcommandsanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "base/tokens_p.h"
#include "processes/zandorcommand_p.h"

#include <limits>
#include <utility>

namespace quv {

template <>
inline constexpr const char *markOf<ZandorCommand> = ZandorCommand::code_TAG;

template <>
const FieldType &fieldType<QList<ZandorCommand>>()
{
    static constexpr FieldType type = objectListType<ZandorCommand>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal badLength = {"DE02891", "Invalid answer length"};
constexpr quv::Refusal badCode = {"DE02893", "Invalid command code type found in answer"};

int nextCode(quv::TokenReader &reader)
{
    constexpr int digits = 2;
    reader.require(digits, badLength);
    return static_cast<int>(reader.nextNumber(digits, badCode, std::numeric_limits<int>::max()));
}

QList<int> nextFields(quv::TokenReader &reader)
{
    reader.require(1, badLength);
    const int count = reader.next({"DE02894", "Invalid field count type found in answer"});
    reader.require(count, badLength);
    QList<int> fields;
    fields.reserve(count);
    for (int i = 0; i < count; ++i)
        fields.append(reader.next(quv::badZandorCommands));
    return fields;
}

} // namespace

struct GetZandorCommandsAnswer::Description
{
    using Answer = GetZandorCommandsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(commands_TAG, &Answer::m_commands, quv::badZandorCommands,
                                    quv::badZandorCommands)
                    .meaning("of each command its code, and fields about it")};
    }
};

template class quv::DescribedAnswer<GetZandorCommandsAnswer, SerialProtoAnswer>;

GetZandorCommandsAnswer::GetZandorCommandsAnswer(const QList<ZandorCommand> &commands) : m_commands(commands)
{}

GetZandorCommandsAnswer::GetZandorCommandsAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(1, badLength);
    const int count = reader.next({"DE02892", "Invalid command count type found in answer"});
    for (int i = 0; i < count; ++i) {
        const int code = nextCode(reader);
        m_commands.append(ZandorCommand(code, nextFields(reader)));
    }
}

GetZandorCommandsAnswer::GetZandorCommandsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetZandorCommandsAnswer::GetZandorCommandsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(QList<QVariant>{QVariant(list)}, Q_FUNC_INFO); // the list is the one member
}

GetZandorCommandsAnswer *GetZandorCommandsAnswer::clone() const
{
    return new GetZandorCommandsAnswer(*this);
}
