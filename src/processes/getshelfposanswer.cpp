// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfposanswer.h"

#include "base/describedanswer_p.h"
#include "base/tokens_p.h"
#include "base/wire_p.h"

#include <limits>
#include <utility>

namespace {

constexpr quv::Refusal badHighDigit = {"DE01449", "Error during command answer decoding: height high value"};

void writeHeight(const void *field, XmlRpc::XmlRpcValue &value)
{
    constexpr int unknown = quv::serialBase * quv::serialBase - 1; // the greatest of two digits
    const int height = *static_cast<const int *>(field);
    value = height == unknown ? -1 : height;
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
    const long long low = reader.next({"DE01448", "Error during command answer decoding: height low value"});
    const long long height = low + reader.next(badHighDigit) * static_cast<long long>(quv::serialBase);
    if (height > std::numeric_limits<int>::max())
        quv::throwRefusal(badHighDigit, Q_FUNC_INFO);
    m_height = static_cast<int>(height);
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
