// SPDX-License-Identifier: LGPL-3.0-or-later
#include "store/firmwarestate.h"

#include "excerpt.h"
#include "jsonvalue.h"

#include <QtCore/QFile>

#include <limits>
#include <set>
#include <stdexcept>
#include <utility>

namespace quv {
namespace {

using Json = nlohmann::json;
using Lock = std::lock_guard<std::mutex>;

constexpr char CodeMember[] = "code";
constexpr char ValuesMember[] = "row";
constexpr char NameMember[] = "name";

struct Kind
{
    SerialDeviceType type;
    const char *name;
};
constexpr Kind Kinds[] = {{SerialDeviceType::Dispenser, "dispenser"}, {SerialDeviceType::Mixer, "mixer"}};

[[noreturn]] void refuse(const std::string &text)
{
    throw std::runtime_error(text);
}

int numberIn(const Json &value, const std::string &where)
{
    constexpr int Highest = std::numeric_limits<int>::max();
    const bool isNumber = value.is_number_integer() && value >= 0 && value <= Highest;
    if (!isNumber)
        refuse(where + " must be a whole number from 0 to 2147483647");
    return value.get<int>();
}

QByteArray nameIn(const Json &value, const std::string &where)
{
    const QString name = value.is_string() ? QString::fromStdString(value.get<std::string>()) : QString();
    QByteArray latin1 = name.toLatin1();
    constexpr int MostCharacters = 255;
    if (!value.is_string() || QString::fromLatin1(latin1) != name || latin1.size() > MostCharacters)
        refuse(where + " must be a text of at most 255 characters in Latin-1");
    return latin1;
}

ConfigurationRow rowIn(const Json &value, const std::string &where)
{
    if (!value.is_object() || !value.contains(CodeMember) || !value.contains(ValuesMember))
        refuse(where + " must be an object with \"code\" and \"row\"");
    ConfigurationRow row;
    for (const auto &member : value.items()) {
        const std::string place = where + "." + excerpt(member.key());
        if (member.key() == CodeMember) {
            row.code = numberIn(member.value(), place);
        } else if (member.key() == NameMember) {
            row.name = nameIn(member.value(), place);
        } else if (member.key() == ValuesMember) {
            if (!member.value().is_array() || member.value().empty())
                refuse(place + " must be an array of numbers");
            for (const Json &number : member.value())
                row.values.append(numberIn(number, place));
        } else {
            refuse(place + ": unknown member");
        }
    }
    if (row.name && row.code != NameStructure)
        refuse(where + ".name: only structure 2 has one");
    return row;
}

std::vector<ConfigurationRow> rowsIn(const Json &value, const std::string &where)
{
    if (!value.is_array())
        refuse(where + " must be an array of rows");
    std::vector<ConfigurationRow> rows;
    std::set<std::pair<int, int>> known;
    for (const Json &element : value) {
        const std::string place = where + "[" + std::to_string(rows.size()) + "]";
        rows.push_back(rowIn(element, place));
        if (!known.insert({rows.back().code, instanceOf(rows.back())}).second)
            refuse(place + ": the same row for the second time");
    }
    return rows;
}

OrderedJson jsonOf(const ConfigurationRow &row)
{
    OrderedJson values = OrderedJson::array();
    for (const int value : row.values)
        values.push_back(value);
    OrderedJson json = OrderedJson::object({{CodeMember, row.code}, {ValuesMember, values}});
    if (row.name)
        json[NameMember] = QString::fromLatin1(*row.name).toStdString();
    return json;
}

/// A line for each row.
QByteArray textOf(const std::vector<ConfigurationRow> &rows)
{
    QByteArray text("[");
    for (const ConfigurationRow &row : rows)
        text += (&row == &rows.front() ? "\n    " : ",\n    ") +
                QByteArray::fromStdString(writeJson(jsonOf(row)));
    return text + (rows.empty() ? "]" : "\n  ]");
}

using Key = std::pair<SerialDeviceType, std::optional<int>>;

QByteArray nameOf(const Key &key)
{
    QByteArray name;
    for (const Kind &kind : Kinds) {
        if (kind.type == key.first)
            name = kind.name;
    }
    return key.second ? name + ':' + QByteArray::number(*key.second) : name;
}

/// "dispenser", or "dispenser:2"; nothing for another name.
std::optional<Key> keyOf(const QString &name)
{
    bool isNumber = true;
    std::optional<int> id;
    if (name.contains(QLatin1Char(':')))
        id = name.section(QLatin1Char(':'), 1).toInt(&isNumber);
    for (const Kind &kind : Kinds) {
        const Key key{kind.type, id};
        // an ID has one way of writing only
        if (isNumber && id.value_or(0) >= 0 && QString::fromLatin1(nameOf(key)) == name)
            return key;
    }
    return std::nullopt;
}

} // namespace

FirmwareState::FirmwareState(const QString &path) : m_path(path)
{
    if (!QFile::exists(path))
        return;
    try {
        const QByteArray text = loadFile(path, MaxStateFileSize + 1);
        if (text.size() > MaxStateFileSize)
            refuse("it is greater than 1 MiB");
        m_machines = machinesIn(text.toStdString());
    } catch (const std::runtime_error &error) {
        fail(error.what());
    }
}

void FirmwareState::claim()
{
    try {
        m_lock.emplace(m_path);
        checkSavable(m_path);
    } catch (const FileError &error) {
        fail(error.what());
    }
}

void FirmwareState::fail(const std::string &reason) const
{
    throw std::runtime_error("State file \"" + m_path.toStdString() + "\": " + reason);
}

FirmwareState::Machines FirmwareState::machinesIn(const std::string &text)
{
    const Json document = parseJson(text);
    if (!document.is_object())
        refuse("it must hold an object");
    Machines machines;
    for (const auto &member : document.items()) {
        const auto key = keyOf(QString::fromStdString(member.key()));
        if (!key)
            refuse(
                "its members must be \"dispenser\" and \"mixer\", or one of them with an ID, as \"mixer:2\"");
        machines[*key] = rowsIn(member.value(), member.key());
    }
    return machines;
}

std::vector<ConfigurationRow> FirmwareState::rows(SerialDeviceType type, std::optional<int> id) const
{
    const Lock lock(m_mutex);
    const auto found = m_machines.find({type, id});
    return found == m_machines.end() ? std::vector<ConfigurationRow>() : found->second;
}

void FirmwareState::keep(SerialDeviceType type, std::vector<ConfigurationRow> rows, std::optional<int> id)
{
    const Lock lock(m_mutex);
    Machines machines = m_machines;
    machines[{type, id}] = std::move(rows);
    write(machines);
    m_machines = std::move(machines);
}

void FirmwareState::write(const Machines &machines) const
{
    QByteArray text("{");
    for (const auto &[key, rows] : machines)
        text += QByteArray(text.size() > 1 ? ",\n" : "\n") + "  \"" + nameOf(key) + "\": " + textOf(rows);
    text += "\n}\n";
    try {
        saveFile(m_path, text);
    } catch (const FileError &error) {
        fail(error.what());
    }
}

} // namespace quv
