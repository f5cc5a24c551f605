// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getcommandlistanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "masterdata/protocolcommandinfo_p.h"

namespace quv {

template <>
const FieldType &fieldType<QList<ProtocolCommandInfo>>()
{
    static constexpr FieldType type = listedObjectsType<ProtocolCommandInfo>();
    return type;
}

} // namespace quv

namespace {

constexpr char noCommand[] = "GetCommandListAnswer: errors during ProtocolCommandInfo creation";
constexpr quv::Refusal otherVariant = {"DE00429", noCommand};
constexpr quv::Refusal invalidVariant = {"DE00430",
                                         "GetCommandListAnswer decoding failed: invalid QVariant value"};

} // namespace

struct GetCommandListAnswer::Description
{
    using Answer = GetCommandListAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    commandList_TAG, &Answer::m_commands,
                    {"DE00433", "GetCommandListAnswer: Errors during ProtocolCommandInfo list creation"},
                    otherVariant)
                    .unmadeElement({"DE00432", noCommand})
                    .alsoInList("an element without a value", invalidVariant)
                    .meaning("of each command its row of the catalogue, and what the machine makes of it")};
    }
};

template class quv::DescribedAnswer<GetCommandListAnswer, ConfProtoAnswer>;

GetCommandListAnswer::GetCommandListAnswer(const QList<ProtocolCommandInfo> &commands) : m_commands(commands)
{}

GetCommandListAnswer::GetCommandListAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetCommandListAnswer::GetCommandListAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    m_commands.reserve(list.size());
    for (const QVariant &variant : std::as_const(list)) {
        if (!variant.isValid())
            quv::throwRefusal(invalidVariant, Q_FUNC_INFO);
        m_commands.append(
            quv::decodedVariant<ProtocolCommandInfo>(variant, otherVariant, otherVariant, Q_FUNC_INFO));
    }
}

GetCommandListAnswer *GetCommandListAnswer::clone() const
{
    return new GetCommandListAnswer(*this);
}
