// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machines.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <QtCore/QFile>

#include <nlohmann/json.hpp>

#include <limits>
#include <set>
#include <stdexcept>

namespace quv {
namespace {

using Json = nlohmann::json;

constexpr qint64 MaxFileSize = 64 * 1024;

[[noreturn]] void refuse(const QString &text)
{
    throw std::runtime_error(text.toStdString());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(QStringLiteral("no machine of this name, and no file that can be read: %1")
                   .arg(file.errorString()));
    QByteArray content = file.read(MaxFileSize + 1);
    if (content.size() > MaxFileSize)
        refuse(QStringLiteral("the file is larger than %1 bytes").arg(MaxFileSize));
    return content;
}

/// The members of the file's object, each taken once; what nobody took is refused at the end.
class Members
{
public:
    explicit Members(const QByteArray &content);

    bool has(const char *key) const { return m_object.contains(key); }
    QString text(const char *key);
    int integer(const char *key, int min, int max);
    void refuseOthers() const;

private:
    const Json &take(const char *key);

    Json m_object{};
    std::set<std::string> m_taken{};
};

Members::Members(const QByteArray &content)
{
    std::set<std::string> keys;
    // The parser itself would let the last member of a name win.
    const auto refuseTwice = [&keys](int depth, Json::parse_event_t event, const Json &value) {
        if (depth == 1 && event == Json::parse_event_t::key && !keys.insert(value.get<std::string>()).second)
            refuse(QStringLiteral("the member \"%1\" stands twice")
                       .arg(QString::fromStdString(value.get<std::string>())));
        return true;
    };
    try {
        m_object = Json::parse(content.cbegin(), content.cend(), refuseTwice);
    } catch (const Json::exception &error) {
        refuse(QStringLiteral("no JSON: %1").arg(QString::fromStdString(error.what())));
    }
    if (!m_object.is_object())
        refuse(QStringLiteral("the file holds no JSON object"));
}

const Json &Members::take(const char *key)
{
    m_taken.insert(key);
    return m_object[key];
}

QString Members::text(const char *key)
{
    const Json &value = take(key);
    if (!value.is_string())
        refuse(QStringLiteral("the member \"%1\" must be a text").arg(QLatin1String(key)));
    return QString::fromStdString(value.get<std::string>());
}

int Members::integer(const char *key, int min, int max)
{
    const Json &value = take(key);
    // A number beyond 63 bits is unsigned to the parser, and out of every range here.
    const bool isSmall = value.is_number_integer() &&
                         (!value.is_number_unsigned() ||
                          value.get<std::uint64_t>() <= std::uint64_t(std::numeric_limits<int>::max()));
    if (!isSmall || value.get<std::int64_t>() < min || value.get<std::int64_t>() > max)
        refuse(QStringLiteral("the member \"%1\" must be an integer from %2 to %3")
                   .arg(QLatin1String(key))
                   .arg(min)
                   .arg(max));
    return value.get<int>();
}

void Members::refuseOthers() const
{
    for (const auto &member : m_object.items()) {
        if (m_taken.count(member.key()) == 0)
            refuse(QStringLiteral("unknown member \"%1\"").arg(QString::fromStdString(member.key())));
    }
}

std::unique_ptr<FW_Machine> builtInDispenser()
{
    auto dispenser = std::make_unique<FW_Dispenser>();
    dispenser->setId(1);
    dispenser->setModel(MachineModel::GenericDispenser);
    dispenser->setModelName(QStringLiteral("Generic dispenser"));
    dispenser->setSerialNumber(QStringLiteral("SIM-D-0001"));
    return dispenser;
}

std::unique_ptr<FW_Machine> builtInMixer()
{
    auto mixer = std::make_unique<FW_Mixer>();
    mixer->setId(2);
    mixer->setModel(MachineModel::GenericMixer);
    mixer->setModelName(QStringLiteral("Generic mixer"));
    mixer->setSerialNumber(QStringLiteral("SIM-M-0001"));
    return mixer;
}

void readShared(Members &members, FW_Machine &machine)
{
    constexpr int Max = std::numeric_limits<int>::max();
    if (members.has("id"))
        machine.setId(members.integer("id", 0, Max));
    if (members.has("model")) {
        machine.setModel(static_cast<MachineModel>(members.integer("model", 0, Max)));
        if (FW_Machine::getMachineType(machine.model()) != static_cast<int>(machine.machineType()))
            refuse(QStringLiteral("the member \"model\" is of the other kind of machine than \"type\""));
    }
    if (members.has("model_name"))
        machine.setModelName(members.text("model_name"));
    if (members.has("sid"))
        machine.setSID(members.text("sid"));
    if (members.has("description"))
        machine.setDescription(members.text("description"));
    if (members.has("product_code"))
        machine.setProductCode(members.text("product_code"));
    if (members.has("serial_number")) {
        machine.setSerialNumber(members.text("serial_number"));
        if (!FW_Machine::checkSerialNumber(machine.serialNumber()))
            refuse(QStringLiteral("the member \"serial_number\" is no serial number"));
    }
}

std::unique_ptr<FW_Machine> readDispenser(Members &members)
{
    auto dispenser = std::make_unique<FW_Dispenser>();
    readShared(members, *dispenser);
    if (members.has("heads"))
        dispenser->setHeadArrangement(
            static_cast<FW_Dispenser::HeadArrangement>(members.integer("heads", 1, 2)));
    if (members.has("command_family"))
        dispenser->setCommandFamily(
            static_cast<FW_Dispenser::CommandFamily>(members.integer("command_family", 1, 2)));
    return dispenser;
}

std::unique_ptr<FW_Machine> readMixer(Members &members)
{
    auto mixer = std::make_unique<FW_Mixer>();
    readShared(members, *mixer);
    return mixer;
}

std::unique_ptr<FW_Machine> readMachine(const QByteArray &content)
{
    Members members(content);
    if (!members.has("type"))
        refuse(QStringLiteral("the member \"type\" is missing"));
    const QString type = members.text("type");
    if (type != QLatin1String("dispenser") && type != QLatin1String("mixer"))
        refuse(QStringLiteral("the member \"type\" must be \"dispenser\" or \"mixer\""));
    auto machine = type == QLatin1String("dispenser") ? readDispenser(members) : readMixer(members);
    members.refuseOthers();
    return machine;
}

} // namespace

std::unique_ptr<FW_Machine> machineByName(const QString &nameOrFile)
{
    if (nameOrFile == QLatin1String("none"))
        return nullptr;
    if (nameOrFile == QLatin1String("dispenser"))
        return builtInDispenser();
    if (nameOrFile == QLatin1String("mixer"))
        return builtInMixer();
    try {
        return readMachine(contentOf(nameOrFile));
    } catch (const std::runtime_error &error) {
        refuse(QStringLiteral("Machine \"%1\": %2").arg(nameOrFile, QString::fromUtf8(error.what())));
    }
}

} // namespace quv
