// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/circuitsstatusanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "status/dispenserstatusanswerslist_p.h"
#include "status/dispenserstatuscmd.h"

#include <utility>

namespace quv {

template <>
const FieldType &fieldType<DispenserStatusAnswersList>()
{
    static constexpr FieldType type = objectType<DispenserStatusAnswersList>();
    return type;
}

} // namespace quv

struct CircuitsStatusAnswer::Description
{
    using Answer = CircuitsStatusAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        static constexpr char invalid[] =
            "CircuitsStatusAnswer: invalid DispenserStatusAnswersList parameter";
        return {quv::Member<Answer>(circuitsStatusAnswer_TAG, &Answer::m_answers, {"DE01173", invalid})
                    .unmade({"DE01172", invalid})
                    .meaning("of each circuit its position and its status")};
    }
};

template class quv::DescribedAnswer<CircuitsStatusAnswer, SerialProtoAnswer>;

CircuitsStatusAnswer::CircuitsStatusAnswer(QList<QVariant> &list) : DescribedAnswer(list) {}

CircuitsStatusAnswer::CircuitsStatusAnswer(DispenserStatusAnswersList answers) : m_answers(std::move(answers))
{}

CircuitsStatusAnswer::CircuitsStatusAnswer(QList<QPair<int, DispenserStatusAnswer>> answers)
    : m_answers(std::move(answers))
{}

CircuitsStatusAnswer::CircuitsStatusAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

CircuitsStatusAnswer *CircuitsStatusAnswer::clone() const
{
    return new CircuitsStatusAnswer(*this);
}

bool CircuitsStatusAnswer::appendDispenserStatusAnswer(DispenserStatusAnswer *answer,
                                                       DispenserStatusCmd *command, FW_DriverError *error)
{
    if (!answer || !command)
        return FW_DriverError::D_E("DE01174", "Invalid status objects", error);
    m_answers.appendDispenserStatusAnswer(command->moduleID(), *answer);
    return true;
}
