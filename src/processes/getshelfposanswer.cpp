// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfposanswer.h"

#include "base/describedanswer_p.h"
#include "base/digitnumber_p.h"
#include "base/wire_p.h"

#include <utility>

namespace {

void writeHeight(const void *field, XmlRpc::XmlRpcValue &value)
{
    const int height = *static_cast<const int *>(field);
    value = height == quv::unsetTwoDigits ? -1 : height;
}

/** An int, but for the height that a firmware does not know. */
const quv::FieldType &heightType()
{
    static const quv::FieldType type = [] {
        quv::FieldType made = quv::fieldType<int>();
        made.speed = quv::FieldType::Other;
        made.write = writeHeight;
        return made;
    }();
    return type;
}

} // namespace

struct GetShelfPosAnswer::Description
{
    using Answer = GetShelfPosAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        constexpr quv::Refusal noHeight = {"DE01450",
                                           "GetShelfPosAnswer: Errors during shelf position decoding"};
        return {quv::Member<Answer>(XR_SHELF_POS, &Answer::m_height, noHeight, noHeight)
                    .as(heightType())
                    .meaning("millimetres; -1 when the firmware does not know it")};
    }
};

template class quv::DescribedAnswer<GetShelfPosAnswer, SerialProtoAnswer>;

GetShelfPosAnswer::GetShelfPosAnswer(int height) : m_height(height) {}

GetShelfPosAnswer::GetShelfPosAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(2, {"DE01447", "Error during command answer decoding: bad length"});
    m_height = quv::nextOfDigits(reader,
                                 {{"DE01448", "Error during command answer decoding: height low value"},
                                  {"DE01449", "Error during command answer decoding: height high value"}},
                                 Q_FUNC_INFO);
}

GetShelfPosAnswer::GetShelfPosAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetShelfPosAnswer::GetShelfPosAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetShelfPosAnswer *GetShelfPosAnswer::clone() const
{
    return new GetShelfPosAnswer(*this);
}
