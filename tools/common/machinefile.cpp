// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinefile.h"

#include "excerpt.h"
#include "jsonvalue.h"

#include <QuvFramework/fw_members.h>

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <type_traits>

namespace quv {
namespace {

using nlohmann::json;

[[noreturn]] void refuse(const QString &path, const QString &text)
{
    throw std::runtime_error((path + QStringLiteral(": ") + text).toStdString());
}

template <class T>
T readValue(const json &value, const QString &path, Range range);
template <class T>
OrderedJson writtenValue(const T &value);

/// Runs a description to read an object. What the description does not name is refused at the end.
template <class T>
class Reader
{
public:
    static constexpr char modelKey[] = "model";

    Reader(const json &source, const QString &path, T &object)
        : m_source(source),
          m_path(path),
          m_object(object)
    {
        if (!m_source.is_object())
            refuse(m_path, QStringLiteral("must be an object"));
    }

    void constant(const char *key, const char * /*text*/) { take(key); }

    template <class Get, class Set>
    void required(const char *key, Get get, Set set, Range range = {})
    {
        if (!m_source.contains(key))
            refuse(memberPath(m_path, QLatin1String(key)), QStringLiteral("is missing"));
        optional(key, get, set, range);
    }

    template <class Get, class Set>
    void optional(const char *key, Get /*get*/, Set set, Range range = {})
    {
        using Value = std::decay_t<std::invoke_result_t<Get, const T &>>;
        if (const json *value = take(key))
            std::invoke(set, m_object,
                        readValue<Value>(*value, memberPath(m_path, QLatin1String(key)), range));
    }

    template <class Get, class Set, class Remove>
    void removable(const char *key, Get get, Set set, Remove remove)
    {
        const auto member = m_source.find(key);
        if (member == m_source.end() || !member->is_null()) {
            optional(key, get, set);
            return;
        }
        take(key);
        std::invoke(remove, m_object);
    }

    /// Members of the object that stand in an object of their own.
    template <class Describe>
    void group(const char *key, Describe describeGroup)
    {
        const json *value = take(key);
        if (!value)
            return;
        Reader members(*value, memberPath(m_path, QLatin1String(key)), m_object);
        describeGroup(members);
        members.refuseOthers();
    }

    void refuseOthers() const
    {
        for (const auto &member : m_source.items()) {
            if (m_taken.count(member.key()) == 0)
                refuse(memberPath(m_path, excerpt(QString::fromStdString(member.key()))),
                       QStringLiteral("unknown member"));
        }
    }

private:
    const json *take(const char *key)
    {
        m_taken.insert(key);
        const auto member = m_source.find(key);
        return member == m_source.end() ? nullptr : &*member;
    }

    const json &m_source;
    const QString m_path;
    T &m_object;
    std::set<std::string> m_taken{};
};

/// Runs a description to write an object, without what is as in any other.
template <class T>
class Writer
{
public:
    static constexpr char modelKey[] = "model";

    explicit Writer(const T &object) : m_object(object) {}

    void constant(const char *key, const char *text) { m_written[key] = text; }

    template <class Get, class Set>
    void required(const char *key, Get get, Set /*set*/, Range /*range*/ = {})
    {
        m_written[key] = writtenValue(std::invoke(get, m_object));
    }

    template <class Get, class Set>
    void optional(const char *key, Get get, Set /*set*/, Range /*range*/ = {})
    {
        const auto &value = std::invoke(get, m_object);
        if (!(value == std::invoke(get, m_default)))
            m_written[key] = writtenValue(value);
    }

    template <class Get, class Set, class Remove>
    void removable(const char *key, Get get, Set set, Remove /*remove*/)
    {
        optional(key, get, set);
    }

    template <class Describe>
    void group(const char *key, Describe describeGroup)
    {
        Writer members(m_object);
        describeGroup(members);
        if (!members.written().empty())
            m_written[key] = members.written();
    }

    const OrderedJson &written() const { return m_written; }

private:
    const T &m_object;
    const T m_default{};
    OrderedJson m_written = OrderedJson::object();
};

// --- values, by their types

long long readInteger(const json &value, const QString &path, Range range)
{
    // false for what is no integer, so that both refusals are one
    const long long number = value.is_number_integer() ? value.get<long long>() : range.min - 1;
    if (number < range.min || number > range.max)
        refuse(path, mustBeInteger(range));
    return number;
}

double readNumber(const json &value, const QString &path, Range range)
{
    const auto min = static_cast<int>(range.min);
    const auto max = static_cast<int>(std::min<long long>(range.max, MaxQuantity));
    const double number = value.is_number() ? value.get<double>() : min - 1.0;
    if (!(number >= min && number <= max))
        refuse(path, mustBeNumber(range));
    return number;
}

MachineTime readTime(const json &value, const QString &path)
{
    const auto time = value.is_string()
                          ? machineTimeFromText(QString::fromStdString(value.get_ref<const std::string &>()))
                          : std::nullopt;
    if (!time)
        refuse(path, mustBeTime());
    return *time;
}

QString readText(const json &value, const QString &path)
{
    if (!value.is_string())
        refuse(path, mustBeText());
    return QString::fromStdString(value.get_ref<const std::string &>());
}

bool readFlag(const json &value, const QString &path)
{
    if (!value.is_boolean())
        refuse(path, mustBeFlag());
    return value.get<bool>();
}

template <class List>
List readList(const json &value, const QString &path, Range range)
{
    if (!value.is_array())
        refuse(path, mustBeArray());
    List list;
    for (const json &element : value)
        list.append(readValue<typename List::value_type>(element, elementPath(path, list.size()), range));
    return list;
}

template <class T>
T readValue(const json &value, const QString &path, Range range)
{
    if constexpr (std::is_same_v<T, bool>) {
        return readFlag(value, path);
    } else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>) {
        return static_cast<T>(readInteger(value, path, range));
    } else if constexpr (std::is_same_v<T, double>) {
        return readNumber(value, path, range);
    } else if constexpr (std::is_same_v<T, QString>) {
        return readText(value, path);
    } else if constexpr (std::is_same_v<T, MachineTime>) {
        return readTime(value, path);
    } else if constexpr (IsOptional<T>::value) {
        return readValue<typename T::value_type>(value, path, range);
    } else if constexpr (IsList<T>::value) {
        return readList<T>(value, path, range);
    } else {
        T object;
        Reader<T> reader(value, path, object);
        describe(reader);
        reader.refuseOthers();
        return object;
    }
}

template <class T>
OrderedJson writtenValue(const T &value)
{
    if constexpr (std::is_enum_v<T>) {
        return static_cast<int>(value);
    } else if constexpr (std::is_arithmetic_v<T>) {
        return value;
    } else if constexpr (std::is_same_v<T, QString>) {
        return value.toStdString();
    } else if constexpr (std::is_same_v<T, MachineTime>) {
        return toText(value).toStdString();
    } else if constexpr (IsOptional<T>::value) {
        return value ? writtenValue(*value) : OrderedJson();
    } else if constexpr (IsList<T>::value) {
        OrderedJson list = OrderedJson::array();
        for (const auto &element : value)
            list.push_back(writtenValue(element));
        return list;
    } else {
        Writer<T> writer(value);
        describe(writer);
        return writer.written();
    }
}

// --- what goes beyond the single member

/// Refuses a second one of what must be single.
template <class T>
class Unique
{
public:
    explicit Unique(const char *what) : m_what(QLatin1String(what)) {}

    void add(const T &value, const QString &path)
    {
        if (m_values.contains(value))
            refuse(path, QStringLiteral("is that of another %1").arg(m_what));
        m_values.insert(value);
    }
    bool contains(const T &value) const { return m_values.contains(value); }

private:
    QString m_what;
    QSet<T> m_values{};
};

void checkShared(const FW_Machine &machine)
{
    if (machine.model() != MachineModel::None &&
        FW_Machine::getMachineType(machine.model()) != static_cast<int>(machine.machineType()))
        refuse(QStringLiteral("model"), QStringLiteral("is of the other kind of machine than \"type\""));
    if (!machine.serialNumber().isEmpty() && !FW_Machine::checkSerialNumber(machine.serialNumber()))
        refuse(QStringLiteral("serial_number"),
               QStringLiteral("must be 1 to 20 letters, digits, blanks, dots, slashes and hyphens"));
}

/// Refuses two parts of one reference that differ: whoever reads one by its reference reads them all.
template <class Part>
class Shared
{
public:
    explicit Shared(const char *key) : m_key(QLatin1String(key)) {}

    /// \a part is null for a motor without; 0 is no reference.
    void add(const Part *part, int reference, const QString &motorPath)
    {
        if (!part || reference == 0)
            return;
        const auto known = m_parts.emplace(reference, *part).first;
        if (known->second != *part)
            refuse(memberPath(motorPath, m_key),
                   QStringLiteral("is not equal to another of reference %1").arg(reference));
    }

private:
    QString m_key;
    std::map<int, Part> m_parts{};
};

Unique<QString> checkedColorantCodes(const FW_Dispenser &dispenser)
{
    Unique<QString> codes("colorant");
    for (int i = 0; i < dispenser.colorants().size(); ++i) {
        const QString path = memberPath(elementPath(QStringLiteral("colorants"), i), QStringLiteral("code"));
        if (dispenser.colorants().at(i).code().isEmpty())
            refuse(path, QStringLiteral("must not be empty"));
        codes.add(dispenser.colorants().at(i).code(), path);
    }
    return codes;
}

void checkCanisters(const FW_Dispenser &dispenser, const Unique<QString> &colorantCodes)
{
    Unique<int> canisterIds("canister");
    Unique<int> circuitIds("circuit");
    Unique<int> positions("circuit");
    for (int i = 0; i < dispenser.canisters().size(); ++i) {
        const FW_Canister &canister = dispenser.canisters().at(i);
        const QString path = elementPath(QStringLiteral("canisters"), i);
        canisterIds.add(canister.id(), memberPath(path, QStringLiteral("id")));
        if (!canister.colorantCode().isEmpty() && !colorantCodes.contains(canister.colorantCode()))
            refuse(memberPath(path, QStringLiteral("colorant")),
                   QStringLiteral("there is no colorant \"%1\"").arg(excerpt(canister.colorantCode())));
        for (int j = 0; j < canister.circuits().size(); ++j) {
            const FW_Circuit &circuit = canister.circuits().at(j);
            const QString circuitPath = elementPath(memberPath(path, QStringLiteral("circuits")), j);
            circuitIds.add(circuit.id(), memberPath(circuitPath, QStringLiteral("id")));
            positions.add(circuit.positionId(), memberPath(circuitPath, QStringLiteral("position_id")));
        }
    }
}

void checkSharedParts(const FW_Dispenser &dispenser)
{
    Shared<FW_Ramp> ramps("ramp");
    Shared<FW_SingleTransmission> transmissions("single_transmission");
    Shared<FW_FlowCorrection> corrections("flow_correction");
    for (int i = 0; i < dispenser.canisters().size(); ++i) {
        const QString circuits = elementPath(QStringLiteral("canisters"), i) + QStringLiteral(".circuits");
        for (int j = 0; j < dispenser.canisters().at(i).circuits().size(); ++j) {
            const FW_DosingMotor &motor = dispenser.canisters().at(i).circuits().at(j).dosingMotor();
            const QString path = memberPath(elementPath(circuits, j), QStringLiteral("dosing_motor"));
            ramps.add(motor.ramp(), motor.rampConfigRef(), path);
            transmissions.add(motor.singleTransmission(), motor.singleTransmissionConfigRef(), path);
            corrections.add(motor.flowCorrection(), motor.flowCorrectionConfigRef(), path);
        }
    }
}

void checkTurntable(const FW_Dispenser &dispenser)
{
    const auto *table = dynamic_cast<const FW_Turntable *>(dispenser.getDevice(FW_Device::Turntable));
    if (!table)
        return;
    Unique<int> positions("place of the table");
    for (int i = 0; i < table->positions().size(); ++i) {
        const int position = table->positions().at(i);
        const QString path = elementPath(QStringLiteral("devices.turntable.positions"), i);
        if (!dispenser.hasCircuitPosition(position, false))
            refuse(path, QStringLiteral("there is no circuit at position %1").arg(position));
        positions.add(position, path);
    }
}

void check(const FW_Dispenser &dispenser)
{
    checkShared(dispenser);
    checkCanisters(dispenser, checkedColorantCodes(dispenser));
    checkSharedParts(dispenser);
    checkTurntable(dispenser);
}

void check(const FW_Mixer &mixer)
{
    checkShared(mixer);
}

template <class Machine>
std::unique_ptr<FW_Machine> readAs(const json &document)
{
    auto machine = std::make_unique<Machine>(readValue<Machine>(document, QString(), {}));
    check(*machine);
    return machine;
}

// --- what is no part of the machine

constexpr char FirmwareVersionKey[] = "firmware_version";
constexpr char FaultsKey[] = "faults";

/// One that is not valid when the document has none. Nobody else knows the member, so it is taken out.
FW_Version takeFirmwareVersion(json &document)
{
    constexpr int Integers = 6;
    constexpr Range OneDigit{0, 245}; // each travels as one
    const auto member = document.find(FirmwareVersionKey);
    if (member == document.end())
        return {};
    const QString path = QLatin1String(FirmwareVersionKey);
    const auto numbers = readValue<QList<int>>(*member, path, OneDigit);
    if (numbers.size() != Integers)
        refuse(path, QStringLiteral("must be an array of 6 integers"));
    document.erase(member);
    return {numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3), numbers.at(4), numbers.at(5)};
}

/// An array, empty when the document has none. It is taken out as well.
json takeFaults(json &document)
{
    const auto member = document.find(FaultsKey);
    if (member == document.end())
        return json::array();
    if (!member->is_array())
        refuse(QLatin1String(FaultsKey), QStringLiteral("must be an array"));
    json faults = std::move(*member);
    document.erase(member);
    return faults;
}

// --- lines

constexpr std::size_t LineWidth = 120;

/// On one line what fits there, all else a member or element a line.
void addLines(const OrderedJson &value, const std::string &key, const std::string &indent, const char *end,
              std::string &text)
{
    const std::string line = indent + key + writeJson(value) + end;
    if (!value.is_structured() || value.empty() || line.size() <= LineWidth) {
        text += line + '\n';
        return;
    }
    text += indent + key + (value.is_object() ? "{\n" : "[\n");
    std::size_t left = value.size();
    for (const auto &member : value.items()) {
        const std::string name = value.is_object() ? writeJson(member.key()) + ": " : std::string();
        addLines(member.value(), name, indent + "  ", --left == 0 ? "" : ",", text);
    }
    text += indent + (value.is_object() ? "}" : "]") + end + '\n';
}

} // namespace

DescribedMachine readDescribedMachine(const QByteArray &text)
{
    json document = parseJson({text.constData(), static_cast<std::size_t>(text.size())});
    if (!document.is_object())
        throw std::runtime_error("the file holds no JSON object");
    const auto type = document.find("type");
    if (type == document.end())
        refuse(QStringLiteral("type"), QStringLiteral("is missing"));
    const bool isMixer = *type == "mixer";
    if (!isMixer && *type != "dispenser")
        refuse(QStringLiteral("type"), QStringLiteral("must be \"dispenser\" or \"mixer\""));
    DescribedMachine described;
    described.firmwareVersion = takeFirmwareVersion(document);
    described.faults = takeFaults(document);
    described.machine = isMixer ? readAs<FW_Mixer>(document) : readAs<FW_Dispenser>(document);
    return described;
}

std::unique_ptr<FW_Machine> readMachineFile(const QByteArray &text)
{
    return readDescribedMachine(text).machine;
}

QByteArray machineFileOf(const FW_Machine &machine, const FW_Version &firmwareVersion)
{
    OrderedJson document;
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        document = writtenValue(*dispenser);
    else if (const auto *mixer = dynamic_cast<const FW_Mixer *>(&machine))
        document = writtenValue(*mixer);
    if (firmwareVersion.isValid())
        document[FirmwareVersionKey] = {firmwareVersion.m_family, firmwareVersion.m_hardware,
                                        firmwareVersion.m_major,  firmwareVersion.m_minor,
                                        firmwareVersion.m_patch,  firmwareVersion.m_revision};
    std::string text;
    addLines(document, std::string(), std::string(), "", text);
    return QByteArray::fromStdString(text);
}

} // namespace quv
