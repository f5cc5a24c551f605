// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_members.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace quv {
namespace {

using XmlRpc::XmlRpcValue;

/** What has a description of its own. */
template <class T>
constexpr bool isDescribed = std::is_class_v<T> && !std::is_same_v<T, QString> &&
                             !std::is_same_v<T, MachineTime> && !IsOptional<T>::value && !IsList<T>::value;

constexpr char modelMember[] = "machine_model"; // by which a machine's struct tells its kind

// --- writing

template <class T>
void writeInto(XmlRpcValue &target, const T &value);

/** Runs a description to write a struct in place. */
template <class T>
class Writer
{
public:
    static constexpr auto &modelKey = modelMember;

    Writer(const T &object, XmlRpcValue &written) : m_object(object), m_written(written) {}

    void constant(const char *key, const char *text) { m_written[key] = text; }

    template <class Get, class Set>
    void required(const char *key, Get get, Set /*set*/, Range /*range*/ = {})
    {
        const auto &value = std::invoke(get, m_object);
        if constexpr (IsOptional<std::decay_t<decltype(value)>>::value) {
            if (value)
                writeInto(m_written[key], *value);
        } else {
            writeInto(m_written[key], value);
        }
    }

    template <class Get, class Set>
    void optional(const char *key, Get get, Set set, Range range = {})
    {
        required(key, get, set, range);
    }

    template <class Get, class Set, class Remove>
    void removable(const char *key, Get get, Set set, Remove /*remove*/)
    {
        if (std::invoke(get, m_object))
            required(key, get, set);
        else
            m_written[key] = 0; // an empty value cannot be read back from a document
    }

    template <class Describe>
    void group(const char *key, Describe describeGroup)
    {
        XmlRpcValue members;
        Writer writer(m_object, members);
        describeGroup(writer);
        if (members.valid()) // nor can an empty struct
            m_written[key] = members;
    }

private:
    const T &m_object;
    XmlRpcValue &m_written;
};

template <class List>
void writeList(XmlRpcValue &target, const List &list)
{
    target.setSize(list.size());
    for (int i = 0; i < list.size(); ++i)
        writeInto(target[i], list.at(i));
}

template <class T>
void writeInto(XmlRpcValue &target, const T &value)
{
    if constexpr (std::is_enum_v<T>) {
        target = static_cast<int>(value);
    } else if constexpr (std::is_same_v<T, long long>) {
        if (value > MaxInt)
            target = static_cast<double>(value);
        else
            target = static_cast<int>(value);
    } else if constexpr (std::is_arithmetic_v<T>) {
        target = value;
    } else if constexpr (std::is_same_v<T, QString>) {
        target = EncodeXmlRpcText(value);
    } else if constexpr (std::is_same_v<T, MachineTime>) {
        target = EncodeXmlRpcText(toText(value));
    } else if constexpr (IsList<T>::value) {
        writeList(target, value);
    } else {
        Writer<T> writer(value, target);
        describe(writer);
    }
}

// --- reading

/** The keys of a description, with where each stands in it, sorted as a struct keeps its members. */
using Keys = std::vector<std::pair<std::string, std::size_t>>;

/** Runs a description to learn its keys. */
template <class T>
class KeyCollector
{
public:
    static constexpr auto &modelKey = modelMember;

    void constant(const char *key, const char * /*text*/) { m_keys.emplace_back(key, m_keys.size()); }
    template <class Get, class Set>
    void required(const char *key, Get /*get*/, Set /*set*/, Range /*range*/ = {})
    {
        constant(key, nullptr);
    }
    template <class Get, class Set>
    void optional(const char *key, Get /*get*/, Set /*set*/, Range /*range*/ = {})
    {
        constant(key, nullptr);
    }
    template <class Get, class Set, class Remove>
    void removable(const char *key, Get /*get*/, Set /*set*/, Remove /*remove*/)
    {
        constant(key, nullptr);
    }
    template <class Describe>
    void group(const char *key, Describe /*describeGroup*/)
    {
        constant(key, nullptr);
    }

    Keys sorted() const
    {
        Keys keys = m_keys;
        std::sort(keys.begin(), keys.end());
        return keys;
    }

private:
    Keys m_keys{};
};

template <class T, class Describe>
const Keys &keysOf(Describe describeObject)
{
    static const Keys keys = [&] {
        KeyCollector<T> collector;
        describeObject(collector);
        return collector.sorted();
    }();
    return keys;
}

/** A member or an element on its way from the struct that is read; the path is put together when it is told. */
struct Place
{
    const Place *outer = nullptr;
    const char *key = nullptr; ///< null for an element
    int index = 0;

    QString path() const
    {
        if (!outer)
            return {};
        const QString object = outer->path();
        return key ? memberPath(object, QLatin1String(key)) : elementPath(object, index);
    }
};

[[noreturn]] void refuse(const Place &place, const QString &text)
{
    throw MemberFault{place.path(), text};
}

template <class T>
T readValue(const XmlRpcValue &value, const Place &place, Range range);

/**
 * Runs a description to read a struct. The struct is gone through once, side by side with the sorted keys, so that no name is looked
 * up; the description then takes its members in its own order.
 */
template <class T>
class Reader
{
public:
    static constexpr auto &modelKey = modelMember;

    Reader(const XmlRpcValue &source, const Place &place, const Keys &keys, T &object)
        : m_place(place),
          m_object(object)
    {
        if (source.getType() != XmlRpcValue::TypeStruct)
            refuse(m_place, QStringLiteral("must be a struct"));
        auto key = keys.cbegin();
        for (auto member = source.begin(); member != source.end(); ++member) {
            int order = -1;
            while (key != keys.cend() && (order = key->first.compare(member->first)) < 0)
                ++key;
            if (key == keys.cend())
                break;
            if (order == 0)
                m_members.at((key++)->second) = &member->second;
        }
    }

    void constant(const char *key, const char *text)
    {
        const XmlRpcValue *member = take();
        if (member && (member->getType() != XmlRpcValue::TypeString ||
                       static_cast<const std::string &>(*member) != text))
            refuse({&m_place, key}, QStringLiteral("must be \"%1\"").arg(QLatin1String(text)));
    }

    template <class Get, class Set>
    void required(const char *key, Get get, Set set, Range range = {})
    {
        if (!m_members.at(m_next))
            refuse({&m_place, key}, QStringLiteral("is missing"));
        optional(key, get, set, range);
    }

    template <class Get, class Set>
    void optional(const char *key, Get /*get*/, Set set, Range range = {})
    {
        using Value = std::decay_t<std::invoke_result_t<Get, const T &>>;
        if (const XmlRpcValue *member = take())
            std::invoke(set, m_object, readValue<Value>(*member, {&m_place, key}, range));
    }

    template <class Get, class Set, class Remove>
    void removable(const char *key, Get get, Set set, Remove remove)
    {
        const XmlRpcValue *member = m_members.at(m_next);
        if (!member || member->getType() != XmlRpcValue::TypeInt || static_cast<const int &>(*member) != 0) {
            optional(key, get, set);
            return;
        }
        take();
        std::invoke(remove, m_object);
    }

    template <class Describe>
    void group(const char *key, Describe describeGroup)
    {
        const XmlRpcValue *value = take();
        if (!value)
            return;
        const Place place{&m_place, key};
        Reader members(*value, place, keysOf<T>(describeGroup), m_object);
        describeGroup(members);
    }

private:
    const XmlRpcValue *take() { return m_members.at(m_next++); }

    const Place &m_place;
    T &m_object;
    static constexpr std::size_t maxMembers = 40;
    std::array<const XmlRpcValue *, maxMembers>
        m_members{}; ///< in the description's order, null for a missing one
    std::size_t m_next = 0;
};

template <class T>
void readObject(const XmlRpcValue &value, const Place &place, T &object)
{
    Reader<T> reader(value, place, keysOf<T>([](auto &archive) { describe(archive); }), object);
    describe(reader);
}

long long readInteger(const XmlRpcValue &value, const Place &place, Range range)
{
    long long number = 0;
    if (value.getType() == XmlRpcValue::TypeInt)
        number = static_cast<const int &>(value);
    else if (!DecodeXmlRpcValue(value, number))
        number = range.min - 1;
    if (number < range.min || number > range.max)
        refuse(place, mustBeInteger(range));
    return number;
}

double readNumber(const XmlRpcValue &value, const Place &place, Range range)
{
    double number = 0;
    const auto max = static_cast<double>(std::min<long long>(range.max, MaxQuantity));
    if (!DecodeXmlRpcValue(value, number) || !(number >= static_cast<double>(range.min) && number <= max))
        refuse(place, mustBeNumber(range));
    return number;
}

QString readText(const XmlRpcValue &value, const Place &place)
{
    QString text;
    if (!DecodeXmlRpcValue(value, text))
        refuse(place, mustBeText());
    return text;
}

bool readFlag(const XmlRpcValue &value, const Place &place)
{
    bool flag = false;
    if (!DecodeXmlRpcValue(value, flag))
        refuse(place, mustBeFlag());
    return flag;
}

MachineTime readTime(const XmlRpcValue &value, const Place &place)
{
    QString text;
    DecodeXmlRpcValue(value, text);
    const auto time = machineTimeFromText(text);
    if (!time)
        refuse(place, mustBeTime());
    return *time;
}

template <class List>
List readList(const XmlRpcValue &value, const Place &place, Range range)
{
    if (value.getType() != XmlRpcValue::TypeArray)
        refuse(place, mustBeArray());
    List list;
    list.reserve(value.size());
    using Element = typename List::value_type;
    for (int i = 0; i < value.size(); ++i) {
        const Place element{&place, nullptr, i};
        if constexpr (isDescribed<Element>) { // read in its place
            list.append(Element());
            readObject(value[i], element, list.last());
        } else {
            list.append(readValue<Element>(value[i], element, range));
        }
    }
    return list;
}

template <class T>
T readValue(const XmlRpcValue &value, const Place &place, Range range)
{
    if constexpr (std::is_same_v<T, bool>) {
        return readFlag(value, place);
    } else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>) {
        return static_cast<T>(readInteger(value, place, range));
    } else if constexpr (std::is_same_v<T, double>) {
        return readNumber(value, place, range);
    } else if constexpr (std::is_same_v<T, QString>) {
        return readText(value, place);
    } else if constexpr (std::is_same_v<T, MachineTime>) {
        return readTime(value, place);
    } else if constexpr (IsOptional<T>::value) {
        return readValue<typename T::value_type>(value, place, range);
    } else if constexpr (IsList<T>::value) {
        return readList<T>(value, place, range);
    } else {
        T object;
        readObject(value, place, object);
        return object;
    }
}

} // namespace

template <class T>
XmlRpcValue writtenMembers(const T &object)
{
    XmlRpcValue value;
    writeInto(value, object);
    return value;
}

template <class T>
void readMembers(const XmlRpcValue &value, T &object, const char *function)
{
    try {
        readObject(value, Place(), object);
    } catch (const MemberFault &fault) {
        const QString member = fault.path.isEmpty() ? fault.path : fault.path + QLatin1Char(' ');
        throw FW_Exception(QStringLiteral("DE03350"),
                           QStringLiteral("Machine data: %1%2").arg(member, fault.text),
                           QString::fromUtf8(function));
    }
}

template XmlRpcValue writtenMembers(const FW_Calibration &);
template XmlRpcValue writtenMembers(const FW_CalibrationProfiles &);
template XmlRpcValue writtenMembers(const FW_Canister &);
template XmlRpcValue writtenMembers(const FW_CanisterLevelSensor &);
template XmlRpcValue writtenMembers(const FW_Circuit &);
template XmlRpcValue writtenMembers(const FW_CleaningMotor &);
template XmlRpcValue writtenMembers(const FW_Colorant &);
template XmlRpcValue writtenMembers(const FW_Dispenser &);
template XmlRpcValue writtenMembers(const FW_DosingMotor &);
template XmlRpcValue writtenMembers(const FW_Mixer &);
template XmlRpcValue writtenMembers(const FW_RecirculationMotor &);
template XmlRpcValue writtenMembers(const FW_StirringMotor &);
template XmlRpcValue writtenMembers(const GravimetricSettings &);
template void readMembers(const XmlRpcValue &, FW_Calibration &, const char *);
template void readMembers(const XmlRpcValue &, FW_CalibrationProfiles &, const char *);
template void readMembers(const XmlRpcValue &, FW_Canister &, const char *);
template void readMembers(const XmlRpcValue &, FW_CanisterLevelSensor &, const char *);
template void readMembers(const XmlRpcValue &, FW_Circuit &, const char *);
template void readMembers(const XmlRpcValue &, FW_CleaningMotor &, const char *);
template void readMembers(const XmlRpcValue &, FW_Colorant &, const char *);
template void readMembers(const XmlRpcValue &, FW_Dispenser &, const char *);
template void readMembers(const XmlRpcValue &, FW_DosingMotor &, const char *);
template void readMembers(const XmlRpcValue &, FW_Mixer &, const char *);
template void readMembers(const XmlRpcValue &, FW_RecirculationMotor &, const char *);
template void readMembers(const XmlRpcValue &, FW_StirringMotor &, const char *);
template void readMembers(const XmlRpcValue &, GravimetricSettings &, const char *);

} // namespace quv
