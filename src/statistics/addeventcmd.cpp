// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/addeventcmd.h"

#include "base/describedcommand_p.h"
#include "base/objectfield_p.h"
#include "base/objectlist_p.h"
#include "base/requeststruct_p.h"
#include "statistics/statrecords_p.h"

namespace {

constexpr char badValue[] = "AddEventCmd: error in xmlrpc decoding";
constexpr quv::Refusal noType = {"DE02474", badValue};
constexpr quv::Refusal noArray = {"DE02475", badValue};
constexpr quv::Refusal badRecords = {"DE02476", badValue};
constexpr quv::Refusal noStruct = {"DE02478", badValue};

constexpr char badVariant[] = "AddEventCmd decoding failed: invalid QVariant value";
constexpr quv::Refusal noRecordsInList = {"DE02477", badVariant};
constexpr quv::Refusal noTypeInList = {"DE02479", badVariant};

bool isEventType(int type)
{
    return type == AddEventCmd::Events || type == AddEventCmd::Refills;
}

} // namespace

struct AddEventCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ADD_EVENT;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"events",
             "\"event_type\": 0 events, 1 refills; and \"stat_events\": an array of structs, of "
             "each event \"timestamp\", \"event_code\", \"position_id\" and \"value\", of each refill "
             "\"timestamp\", \"canister_id\", \"colorant_code\", \"previous_quantity\" and "
             "\"current_quantity\"; in a list two arguments"},
            "struct");
        teller.refuse("another type", {noStruct, {}});
        teller.refuse("without a good event_type", {noType, noTypeInList});
        teller.refuse("stat_events is no array", {noArray, noRecordsInList});
        teller.refuse("with a bad record", {badRecords, noRecordsInList});
    }
};

template class quv::DescribedCommand<AddEventCmd, ConfProtoCommand>;

AddEventCmd::AddEventCmd(const QList<EventStatData> &events) : m_events(events) {}

AddEventCmd::AddEventCmd(const QList<RefillStatData> &refills) : m_eventType(Refills), m_refills(refills) {}

AddEventCmd::AddEventCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpc::XmlRpcValue &request = quv::structArgument(value, noStruct, Q_FUNC_INFO);
    if (!DecodeXmlRpcValue(request, QLatin1String(eventType_TAG), m_eventType) || !isEventType(m_eventType))
        quv::throwRefusal(noType, Q_FUNC_INFO);
    const XmlRpc::XmlRpcValue &records =
        quv::arrayMember(request, statEvents_TAG, noArray, noArray, Q_FUNC_INFO);
    const quv::Decoded decoded = m_eventType == Refills
                                     ? quv::readObjects<RefillStatData>(records, &m_refills)
                                     : quv::readObjects<EventStatData>(records, &m_events);
    if (decoded != quv::Decoded::Good)
        quv::throwRefusal(badRecords, Q_FUNC_INFO);
}

AddEventCmd::AddEventCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (!quv::decodeVariant(list.value(0), m_eventType) || !isEventType(m_eventType))
        quv::throwRefusal(noTypeInList, Q_FUNC_INFO);
    const QVariant records = list.value(1);
    if (m_eventType == Refills)
        m_refills = quv::decodedList<RefillStatData>(records, noRecordsInList, noRecordsInList, Q_FUNC_INFO);
    else
        m_events = quv::decodedList<EventStatData>(records, noRecordsInList, noRecordsInList, Q_FUNC_INFO);
}

AddEventCmd *AddEventCmd::clone() const
{
    return new AddEventCmd(*this);
}

QList<QVariant> AddEventCmd::parameters() const
{
    return {m_eventType,
            m_eventType == Refills ? QVariant::fromValue(m_refills) : QVariant::fromValue(m_events)};
}

XmlRpc::XmlRpcValue AddEventCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0][eventType_TAG] = m_eventType;
    XmlRpc::XmlRpcValue &records = array[0][statEvents_TAG];
    if (m_eventType == Refills)
        quv::writeObjects<RefillStatData>(&m_refills, records);
    else
        quv::writeObjects<EventStatData>(&m_events, records);
    return array;
}
