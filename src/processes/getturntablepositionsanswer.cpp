// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getturntablepositionsanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "base/tokens_p.h"
#include "processes/ttcircuitdata_p.h"

#include <QuvFramework/fw_utils.h>

#include <utility>

namespace quv {

template <>
const FieldType &fieldType<QList<TTCircuitData>>()
{
    static constexpr FieldType type = objectListType<TTCircuitData>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal badAnswer(const char *code)
{
    return {code, "Error during turntable positions answer decoding: bad answer received"};
}

long long nextSteps(quv::TokenReader &reader, const char *countCode, const char *digitsCode)
{
    // to clients a greater one would travel as a double that cannot hold it
    return reader.nextNumber(reader.next(badAnswer(countCode)), badAnswer(digitsCode), MaxWholeNumber);
}

} // namespace

struct GetTurntablePositionsAnswer::Description
{
    using Answer = GetTurntablePositionsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    turntableCircuits_TAG, &Answer::m_turntableCircuits,
                    {"DE01757", "GetTurntablePositionsAnswer: Errors during TTCircuitData list creation"},
                    {"DE01758", "GetTurntablePositionsAnswer decoding failed: invalid QVariant value "
                                "(expected TTCircuitData)"})
                    .unmadeElement(
                        {"DE01756", "GetTurntablePositionsAnswer: errors during TTCircuitData creation"})
                    .meaning("of each circuit position_id, steps_pos and fin_size, in steps")};
    }
};

template class quv::DescribedAnswer<GetTurntablePositionsAnswer, SerialProtoAnswer>;

GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(const QList<TTCircuitData> &circuits)
    : m_turntableCircuits(circuits)
{}

GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(QStringList tokens)
    : DescribedAnswer(std::move(tokens))
{
    constexpr quv::Refusal tooFew = badAnswer("DE01750");
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    const int count = reader.next(badAnswer("DE01749"));
    if (count > 0)
        reader.require(2, tooFew); // with the count three
    for (int i = 0; i < count; ++i) {
        reader.require(1, tooFew);
        const int position = reader.next(badAnswer("DE01751"));
        const long long steps = nextSteps(reader, "DE01752", "DE01753");
        const long long fin = nextSteps(reader, "DE01754", "DE01755");
        m_turntableCircuits.append(TTCircuitData(position, steps, fin));
    }
}

GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(QList<QVariant>{QVariant(list)}, Q_FUNC_INFO); // the list is the one member
}

GetTurntablePositionsAnswer *GetTurntablePositionsAnswer::clone() const
{
    return new GetTurntablePositionsAnswer(*this);
}
