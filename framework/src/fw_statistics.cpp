// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_statistics.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>
#include <tuple>

namespace {

using XmlRpc::XmlRpcValue;

bool registerTypes()
{
    return RegisterTravellingList<EventStatData>("EventStatData", "QList<EventStatData>") &&
           RegisterTravellingList<RefillStatData>("RefillStatData", "QList<RefillStatData>") &&
           RegisterTravellingList<ColorantUsageStatData>("ColorantUsageStatData",
                                                         "QList<ColorantUsageStatData>") &&
           RegisterTravellingList<DispError>("DispError", "QList<DispError>") &&
           RegisterTravellingList<WaterChangeStatData>("WaterChangeStatData", "QList<WaterChangeStatData>");
}

const bool areRegistered = registerTypes();

/** A member of a record's struct, and the field that has it. */
template <class Data, class T>
struct Member
{
    const char *key;
    T Data::*field;
};
template <class Data, class T>
Member(const char *, T Data::*) -> Member<Data, T>;

/** Reading, writing and comparing a record all come from these. */
template <class Data>
constexpr std::nullptr_t membersOf = nullptr;

template <>
constexpr auto
    membersOf<EventStatData> = std::make_tuple(Member{EventStatData::TIMESTAMP, &EventStatData::timestamp},
                                               Member{EventStatData::EVENT_CODE, &EventStatData::eventCode},
                                               Member{EventStatData::POSITION_ID, &EventStatData::positionID},
                                               Member{EventStatData::VALUE, &EventStatData::value});

template <>
constexpr auto membersOf<RefillStatData> =
    std::make_tuple(Member{RefillStatData::TIMESTAMP, &RefillStatData::timestamp},
                    Member{RefillStatData::CANISTER_ID, &RefillStatData::canisterID},
                    Member{RefillStatData::COLORANT_CODE, &RefillStatData::colorantCode},
                    Member{RefillStatData::PREVIOUS_QUANTITY, &RefillStatData::previousQuantity},
                    Member{RefillStatData::CURRENT_QUANTITY, &RefillStatData::currentQuantity});

template <>
constexpr auto membersOf<ColorantUsageStatData> =
    std::make_tuple(Member{ColorantUsageStatData::COLORANT_CODE, &ColorantUsageStatData::colorantCode},
                    Member{ColorantUsageStatData::FROM, &ColorantUsageStatData::from},
                    Member{ColorantUsageStatData::TO, &ColorantUsageStatData::to},
                    Member{ColorantUsageStatData::DISPENSED, &ColorantUsageStatData::dispensed},
                    Member{ColorantUsageStatData::PURGED, &ColorantUsageStatData::purged},
                    Member{ColorantUsageStatData::REFILLED, &ColorantUsageStatData::refilled},
                    Member{ColorantUsageStatData::DISPENSATIONS, &ColorantUsageStatData::dispensations});

template <>
constexpr auto membersOf<DispError> = std::make_tuple(Member{DispError::TIMESTAMP, &DispError::timestamp},
                                                      Member{DispError::ERROR_TYPE, &DispError::errorType},
                                                      Member{DispError::POSITION_ID, &DispError::positionID},
                                                      Member{DispError::ERROR_CODE, &DispError::errorCode},
                                                      Member{DispError::DESCRIPTION,
                                                             &DispError::description});

template <>
constexpr auto membersOf<WaterChangeStatData> =
    std::make_tuple(Member{WaterChangeStatData::TIMESTAMP, &WaterChangeStatData::timestamp},
                    Member{WaterChangeStatData::CLEANING_CYCLES, &WaterChangeStatData::cleaningCycles});

template <class T>
bool decode(const XmlRpcValue &value, T &field)
{
    return DecodeXmlRpcValue(value, field);
}

bool decode(const XmlRpcValue &value, QDateTime &field)
{
    QString text;
    if (DecodeXmlRpcValue(value, text) && text.isEmpty()) {
        field = QDateTime();
        return true;
    }
    return DecodeXmlRpcTimestamp(value, field, true);
}

template <class T>
void readMember(const XmlRpcValue *value, T &field)
{
    if (!value || !decode(*value, field))
        throw std::invalid_argument("a member of the statistics is missing or of another type");
}

template <class T>
void readMember(const XmlRpcValue *value, std::optional<T> &field)
{
    if (value)
        readMember(value, field.emplace());
}

template <class Data>
void read(const XmlRpcValue &value, Data &data)
{
    if (value.getType() != XmlRpcValue::TypeStruct)
        throw std::invalid_argument("a record of the statistics is no struct");
    const auto readAll = [&](const auto &...member) {
        (readMember(FindXmlRpcMember(value, member.key), data.*member.field), ...);
    };
    std::apply(readAll, membersOf<Data>);
}

template <class T>
void writeMember(XmlRpcValue &value, const char *key, const T &field)
{
    value[key] = EncodeXmlRpcVariant(QVariant::fromValue(field));
}

void writeMember(XmlRpcValue &value, const char *key, const QDateTime &field)
{
    value[key] = EncodeXmlRpcText(field.toUTC().toString(Qt::ISODateWithMs));
}

template <class T>
void writeMember(XmlRpcValue &value, const char *key, const std::optional<T> &field)
{
    if (field)
        writeMember(value, key, *field);
}

/** Without names all members. */
template <class Data>
XmlRpcValue written(const Data &data, const QStringList &names = {})
{
    XmlRpcValue value;
    value.begin(); // a struct, even without members
    const auto write = [&](const auto &member) {
        if (names.isEmpty() || names.contains(QLatin1String(member.key)))
            writeMember(value, member.key, data.*member.field);
    };
    std::apply([&](const auto &...member) { (write(member), ...); }, membersOf<Data>);
    return value;
}

/** As they travel: so times are the same that are less than a millisecond apart. */
template <class Data>
bool same(const Data &left, const Data &right)
{
    return SameXmlRpcValue(written(left), written(right));
}

} // namespace

EventStatData::EventStatData(const QDateTime &time, int code, int position, double amount)
    : timestamp(time),
      eventCode(code),
      positionID(position),
      value(amount)
{}

EventStatData::EventStatData(const XmlRpcValue &encoded)
{
    read(encoded, *this);
}

XmlRpcValue EventStatData::toXmlRpcValue() const
{
    return written(*this);
}

bool EventStatData::operator==(const EventStatData &other) const
{
    return same(*this, other);
}

RefillStatData::RefillStatData(const QDateTime &time, int canister, const QString &colorant, double before,
                               double after)
    : timestamp(time),
      canisterID(canister),
      colorantCode(colorant),
      previousQuantity(before),
      currentQuantity(after)
{}

RefillStatData::RefillStatData(const XmlRpcValue &encoded)
{
    read(encoded, *this);
}

XmlRpcValue RefillStatData::toXmlRpcValue() const
{
    return written(*this);
}

bool RefillStatData::operator==(const RefillStatData &other) const
{
    return same(*this, other);
}

ColorantUsageStatData::ColorantUsageStatData(const XmlRpcValue &encoded)
{
    read(encoded, *this);
}

XmlRpcValue ColorantUsageStatData::toXmlRpcValue(const QStringList &information) const
{
    return written(*this, information);
}

bool ColorantUsageStatData::operator==(const ColorantUsageStatData &other) const
{
    return same(*this, other);
}

DispError::DispError(const QDateTime &time, int type, int position, const QString &code, const QString &text)
    : timestamp(time),
      errorType(type),
      positionID(position),
      errorCode(code),
      description(text)
{}

DispError::DispError(const XmlRpcValue &encoded)
{
    read(encoded, *this);
}

XmlRpcValue DispError::toXmlRpcValue() const
{
    return written(*this);
}

bool DispError::operator==(const DispError &other) const
{
    return same(*this, other);
}

WaterChangeStatData::WaterChangeStatData(const QDateTime &time, int cycles)
    : timestamp(time),
      cleaningCycles(cycles)
{}

WaterChangeStatData::WaterChangeStatData(const XmlRpcValue &encoded)
{
    read(encoded, *this);
}

XmlRpcValue WaterChangeStatData::toXmlRpcValue() const
{
    return written(*this);
}

bool WaterChangeStatData::operator==(const WaterChangeStatData &other) const
{
    return same(*this, other);
}
