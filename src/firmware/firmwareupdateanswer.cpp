// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareupdateanswer.h"

#include "base/argumentteller_p.h"
#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "firmware/fwupdateresultlist_p.h"

#include <utility>

namespace {

constexpr quv::Refusal emptyList = {"DE00964",
                                    "FirmwareUpdateAnswer decoding failed: invalid QVariant value"};
constexpr char invalidResults[] = "FirmwareUpdateAnswer: invalid FwUpdateResultList parameter";

quv::Decoded readResults(const XmlRpc::XmlRpcValue &value, void *field)
{
    return value.getType() == XmlRpc::XmlRpcValue::TypeArray
               ? quv::readObject<FwUpdateResultList>(value, field)
               : quv::Decoded::OtherType;
}

/** Takes the results also as a list of them, and as a list of variants that each hold one. */
bool readResultsVariant(const QVariant &variant, void *field)
{
    if (variant.userType() == qMetaTypeId<FwUpdateResultList>()) {
        *static_cast<FwUpdateResultList *>(field) = variant.value<FwUpdateResultList>();
        return true;
    }
    QList<FwUpdateResult> results;
    if (!quv::readObjectsVariant<FwUpdateResult>(variant, &results))
        return false;
    *static_cast<FwUpdateResultList *>(field) = FwUpdateResultList(results);
    return true;
}

} // namespace

namespace quv {

template <>
const FieldType &fieldType<FwUpdateResultList>()
{
    using List = FwUpdateResultList;
    static constexpr FieldType type = {
        nameOf<List>,       FieldType::Other,         readResults,
        readResultsVariant, writeObject<List>,        equalFields<List>,
        resetField<List>,   ownRefusals<List>.data(), ownRefusals<List>.size()};
    return type;
}

} // namespace quv

struct FirmwareUpdateAnswer::Description
{
    using Answer = FirmwareUpdateAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(fwUpdateResultList_TAG, &Answer::m_results, {"DE00972", invalidResults},
                                {"DE00967", invalidResults})
                .otherType({"DE00971", invalidResults})
                .meaning("of each board its address and how its update has ended: 0 updated, 1 interrupted, "
                         "2 failed, 3 and 4 taken for updated, 5 and 6 failed and in need of a reboot")};
    }
};

template class quv::DescribedAnswer<FirmwareUpdateAnswer, SerialProtoAnswer>;

FirmwareUpdateAnswer::FirmwareUpdateAnswer(FwUpdateResultList results) : m_results(std::move(results)) {}

FirmwareUpdateAnswer::FirmwareUpdateAnswer(QList<FwUpdateResult> results) : m_results(std::move(results)) {}

FirmwareUpdateAnswer::FirmwareUpdateAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

FirmwareUpdateAnswer::FirmwareUpdateAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

FirmwareUpdateAnswer *FirmwareUpdateAnswer::clone() const
{
    return new FirmwareUpdateAnswer(*this);
}

QList<quv::MemberFacts> FirmwareUpdateAnswer::memberFacts()
{
    QList<quv::MemberFacts> members = DescribedAnswer::memberFacts();
    QList<quv::RefusalFacts> &refusals = members.first().refusals;
    refusals.last().when = QStringLiteral("another type");
    quv::appendRefusal(refusals, "list", "missing", emptyList);
    return members;
}
