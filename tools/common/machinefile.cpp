// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinefile.h"

#include "jsonvalue.h"

#include <QuvFramework/fw_autocap.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>
#include <QuvFramework/fw_turntable.h>

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <stdexcept>
#include <type_traits>

namespace quv {
namespace {

using nlohmann::json;

constexpr int MaxInt = std::numeric_limits<int>::max();
constexpr int MaxPosition = 245; // addresses beyond it are not one parameter on the serial link
constexpr double MaxQuantity = 1e9;
constexpr long long MaxSteps = 1LL << 53; // beyond it a double has no digit for the single step

/// What an integer may be; a number with a fraction has 0 to MaxQuantity.
struct Range
{
    long long min = 0;
    long long max = MaxInt;
};

[[noreturn]] void refuse(const QString &path, const QString &text)
{
    throw std::runtime_error((path + QStringLiteral(": ") + text).toStdString());
}

/// What a refusal repeats of the file: enough to find it, never a megabyte.
QString excerpt(const QString &text)
{
    constexpr int Longest = 40;
    return text.size() <= Longest ? text : text.left(Longest) + QStringLiteral("...");
}

QString joined(const QString &path, const QString &key)
{
    return path.isEmpty() ? key : path + QLatin1Char('.') + key;
}

QString elementPath(const QString &list, int index)
{
    return QStringLiteral("%1[%2]").arg(list).arg(index);
}

template <class T>
struct IsOptional : std::false_type
{};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type
{};

template <class T>
struct IsList : std::false_type
{};
template <class T>
struct IsList<QList<T>> : std::true_type
{};
template <class T>
struct IsList<QVector<T>> : std::true_type
{};

template <class T>
T readValue(const json &value, const QString &path, Range range);
template <class T>
OrderedJson writtenValue(const T &value);

/// Runs a description to read an object. What the description does not name is refused at the end.
template <class T>
class Reader
{
public:
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
            refuse(joined(m_path, QLatin1String(key)), QStringLiteral("is missing"));
        optional(key, get, set, range);
    }

    template <class Get, class Set>
    void optional(const char *key, Get /*get*/, Set set, Range range = {})
    {
        using Value = std::decay_t<std::invoke_result_t<Get, const T &>>;
        if (const json *value = take(key))
            std::invoke(set, m_object, readValue<Value>(*value, joined(m_path, QLatin1String(key)), range));
    }

    /// Members of the object that stand in an object of their own.
    template <class Describe>
    void group(const char *key, Describe describeGroup)
    {
        const json *value = take(key);
        if (!value)
            return;
        Reader members(*value, joined(m_path, QLatin1String(key)), m_object);
        describeGroup(members);
        members.refuseOthers();
    }

    void refuseOthers() const
    {
        for (const auto &member : m_source.items()) {
            if (m_taken.count(member.key()) == 0)
                refuse(joined(m_path, excerpt(QString::fromStdString(member.key()))),
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

/// Runs a description to write an object, all of its members.
template <class T>
class Writer
{
public:
    explicit Writer(const T &object) : m_object(object) {}

    void constant(const char *key, const char *text) { m_written[key] = text; }

    template <class Get, class Set>
    void required(const char *key, Get get, Set set, Range range = {})
    {
        optional(key, get, set, range);
    }

    template <class Get, class Set>
    void optional(const char *key, Get get, Set /*set*/, Range /*range*/ = {})
    {
        const auto &value = std::invoke(get, m_object);
        if constexpr (IsOptional<std::decay_t<decltype(value)>>::value) {
            if (value)
                m_written[key] = writtenValue(*value);
        } else {
            m_written[key] = writtenValue(value);
        }
    }

    template <class Describe>
    void group(const char *key, Describe describeGroup)
    {
        Writer members(m_object);
        describeGroup(members);
        m_written[key] = members.written();
    }

    const OrderedJson &written() const { return m_written; }

private:
    const T &m_object;
    OrderedJson m_written = OrderedJson::object();
};

// --- what a file holds, a line a member

template <template <class> class Archive>
void describe(Archive<FW_CalibrationPoint> &point)
{
    // a pointer to a data member gets; setting it needs a word more
    using Point = FW_CalibrationPoint;
    point.required("steps", &Point::steps, [](Point &p, long long steps) { p.steps = steps; }, {0, MaxSteps});
    point.required("quantity", &Point::quantity, [](Point &p, double quantity) { p.quantity = quantity; });
    point.required("speed", &Point::speed, [](Point &p, int speed) { p.speed = speed; });
    point.optional("nozzle_valve", &Point::nozzleValveID, [](Point &p, int id) { p.nozzleValveID = id; });
}

template <template <class> class Archive>
void describe(Archive<FW_DosingMotor> &motor)
{
    motor.optional("id", &FW_DosingMotor::motorID, &FW_DosingMotor::setMotorId);
    motor.optional("resolution", &FW_DosingMotor::resolution, &FW_DosingMotor::setResolution, {1, MaxInt});
    motor.optional("max_speed", &FW_DosingMotor::maxSpeed,
                   [](FW_DosingMotor &m, int speed) { m.setMaxSpeed(speed); });
    motor.optional("steps_per_stroke", &FW_DosingMotor::stepsPerStroke, &FW_DosingMotor::setStepsPerStroke);
    motor.optional("gravimetric", &FW_DosingMotor::isGravimetricSw, &FW_DosingMotor::setGravimetricSw);
}

template <template <class> class Archive>
void describe(Archive<FW_Valve> &valve)
{
    valve.required("id", &FW_Valve::id, &FW_Valve::setId);
    valve.optional("board_id", &FW_Valve::boardID, &FW_Valve::setBoardID);
    valve.optional("type", &FW_Valve::valveType, &FW_Valve::setValveType);
}

template <template <class> class Archive>
void describe(Archive<FW_Circuit> &circuit)
{
    circuit.required("id", &FW_Circuit::id, &FW_Circuit::setId, {1, MaxInt});
    circuit.required("position_id", &FW_Circuit::positionId,
                     [](FW_Circuit &c, int position) { c.setPositionId(position); }, {1, MaxPosition});
    circuit.optional("enabled", &FW_Circuit::isEnabled, &FW_Circuit::setEnabled);
    circuit.optional("head", &FW_Circuit::headId, &FW_Circuit::setHeadId, {1, 2});
    circuit.optional("queue_id", &FW_Circuit::queueID, &FW_Circuit::setQueueID);
    circuit.optional("nozzle_valves", &FW_Circuit::nozzleValvesID, &FW_Circuit::setNozzleValvesID,
                     {1, MaxInt});
    circuit.optional("valves", &FW_Circuit::valves, &FW_Circuit::setValves);
    circuit.optional("dosing_motor", &FW_Circuit::dosingMotor,
                     [](FW_Circuit &c, const FW_DosingMotor &motor) { c.setDosingMotor(motor); });
    circuit.optional(
        "calibration", [](const FW_Circuit &c) { return c.calibration().points(); },
        [](FW_Circuit &c, const QVector<FW_CalibrationPoint> &points) {
            c.setCalibration(FW_Calibration(points));
        });
}

template <template <class> class Archive>
void describe(Archive<FW_Canister> &canister)
{
    using Circuits = QList<FW_Circuit>;
    canister.required("id", &FW_Canister::id, &FW_Canister::setId, {1, MaxInt});
    canister.optional("enabled", &FW_Canister::isEnabled, &FW_Canister::setEnabled);
    canister.optional("colorant", &FW_Canister::colorantCode, &FW_Canister::setColorantCode);
    canister.optional("maximum", &FW_Canister::maximumQuantity, &FW_Canister::setMaximumQuantity);
    canister.optional("current", &FW_Canister::currentQuantity, &FW_Canister::setCurrentQuantity);
    canister.optional("reserve", &FW_Canister::reserveQuantity, &FW_Canister::setReserveQuantity);
    canister.optional("warning", &FW_Canister::warningQuantity, &FW_Canister::setWarningQuantity);
    canister.optional(
        "circuits", [](const FW_Canister &c) { return c.circuits(); },
        [](FW_Canister &c, const Circuits &circuits) { c.circuits() = circuits; });
}

template <template <class> class Archive>
void describe(Archive<FW_Colorant> &colorant)
{
    colorant.required("code", &FW_Colorant::code, &FW_Colorant::setCode);
    colorant.optional("name", &FW_Colorant::name, &FW_Colorant::setName);
    colorant.optional("enabled", &FW_Colorant::isEnabled, &FW_Colorant::setEnabled);
}

template <template <class> class Archive>
void describe(Archive<FW_Autocap> &autocap)
{
    autocap.optional("enabled", &FW_Autocap::isEnabled, &FW_Autocap::setEnabled);
}

template <template <class> class Archive>
void describe(Archive<FW_Turntable> &table)
{
    table.optional("enabled", &FW_Turntable::isEnabled, &FW_Turntable::setEnabled);
    table.optional("refill_angle", &FW_Turntable::refillAngle, &FW_Turntable::setRefillAngle, {0, 360});
    table.optional("step_time", &FW_Turntable::stepTime, &FW_Turntable::setStepTime);
    table.optional("positions", &FW_Turntable::positions, &FW_Turntable::setPositions, {1, MaxPosition});
}

template <class Archive>
void describeShared(Archive &machine)
{
    // a machine without a model has no such member
    const auto model = [](const FW_Machine &m) {
        return m.model() == MachineModel::None ? std::nullopt : std::make_optional(m.model());
    };
    machine.optional("id", &FW_Machine::id, &FW_Machine::setId);
    machine.optional("model", model,
                     [](FW_Machine &m, std::optional<MachineModel> number) { m.setModel(*number); });
    machine.optional("model_name", &FW_Machine::modelName, &FW_Machine::setModelName);
    machine.optional("sid", &FW_Machine::SID, &FW_Machine::setSID);
    machine.optional("description", &FW_Machine::description, &FW_Machine::setDescription);
    machine.optional("product_code", &FW_Machine::productCode, &FW_Machine::setProductCode);
    machine.optional("serial_number", &FW_Machine::serialNumber, &FW_Machine::setSerialNumber);
    machine.optional("connection_name", &FW_Machine::connectionName, &FW_Machine::setConnectionName);
    machine.optional("conf_structure_name", &FW_Machine::confStructureName,
                     &FW_Machine::setConfStructureName);
}

/// A device of the dispenser, left out when it has none.
template <class Device, class Archive>
void describeDevice(Archive &dispenser, const char *key)
{
    const auto get = [](const FW_Dispenser &d) {
        const auto *device = dynamic_cast<const Device *>(d.getDevice(Device().kind()));
        return device ? std::make_optional(*device) : std::nullopt;
    };
    dispenser.optional(key, get,
                       [](FW_Dispenser &d, const std::optional<Device> &device) { d.setDevice(*device); });
}

template <template <class> class Archive>
void describe(Archive<FW_Dispenser> &dispenser)
{
    const auto addCanisters = [](FW_Dispenser &d, const QList<FW_Canister> &canisters) {
        for (const FW_Canister &canister : canisters)
            d.addCanister(canister);
    };
    const auto addColorants = [](FW_Dispenser &d, const QList<FW_Colorant> &colorants) {
        for (const FW_Colorant &colorant : colorants)
            d.addColorant(colorant);
    };
    dispenser.constant("type", "dispenser");
    describeShared(dispenser);
    dispenser.optional("heads", &FW_Dispenser::headArrangement, &FW_Dispenser::setHeadArrangement, {1, 2});
    dispenser.optional("command_family", &FW_Dispenser::commandFamily, &FW_Dispenser::setCommandFamily,
                       {1, 2});
    dispenser.optional("tinting_parallelism", &FW_Dispenser::tintingParallelism,
                       &FW_Dispenser::setTintingParallelism, {1, MaxPosition});
    dispenser.optional("nozzle_based_dosing", &FW_Dispenser::hasNozzleBasedDosing,
                       &FW_Dispenser::setNozzleBasedDosing);
    dispenser.optional("colorants", &FW_Dispenser::colorants, addColorants);
    dispenser.optional("canisters", &FW_Dispenser::canisters, addCanisters);
    dispenser.group("devices", [](auto &devices) {
        describeDevice<FW_Autocap>(devices, "autocap");
        describeDevice<FW_Turntable>(devices, "turntable");
    });
}

template <template <class> class Archive>
void describe(Archive<FW_Mixer> &mixer)
{
    mixer.constant("type", "mixer");
    describeShared(mixer);
}

// --- values, by their types

long long readInteger(const json &value, const QString &path, Range range)
{
    // false for what is no integer, so that both refusals are one
    const long long number = value.is_number_integer() ? value.get<long long>() : range.min - 1;
    if (number < range.min || number > range.max)
        refuse(path, QStringLiteral("must be an integer from %1 to %2").arg(range.min).arg(range.max));
    return number;
}

double readQuantity(const json &value, const QString &path)
{
    const double number = value.is_number() ? value.get<double>() : -1;
    if (!(number >= 0 && number <= MaxQuantity))
        refuse(path, QStringLiteral("must be a number from 0 to %1").arg(MaxQuantity, 0, 'f', 0));
    return number;
}

QString readText(const json &value, const QString &path)
{
    if (!value.is_string())
        refuse(path, QStringLiteral("must be a text"));
    return QString::fromStdString(value.get_ref<const std::string &>());
}

bool readFlag(const json &value, const QString &path)
{
    if (!value.is_boolean())
        refuse(path, QStringLiteral("must be true or false"));
    return value.get<bool>();
}

template <class List>
List readList(const json &value, const QString &path, Range range)
{
    if (!value.is_array())
        refuse(path, QStringLiteral("must be an array"));
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
        return readQuantity(value, path);
    } else if constexpr (std::is_same_v<T, QString>) {
        return readText(value, path);
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

Unique<QString> checkedColorantCodes(const FW_Dispenser &dispenser)
{
    Unique<QString> codes("colorant");
    for (int i = 0; i < dispenser.colorants().size(); ++i) {
        const QString path = joined(elementPath(QStringLiteral("colorants"), i), QStringLiteral("code"));
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
        canisterIds.add(canister.id(), joined(path, QStringLiteral("id")));
        if (!canister.colorantCode().isEmpty() && !colorantCodes.contains(canister.colorantCode()))
            refuse(joined(path, QStringLiteral("colorant")),
                   QStringLiteral("there is no colorant \"%1\"").arg(excerpt(canister.colorantCode())));
        for (int j = 0; j < canister.circuits().size(); ++j) {
            const FW_Circuit &circuit = canister.circuits().at(j);
            const QString circuitPath = elementPath(joined(path, QStringLiteral("circuits")), j);
            circuitIds.add(circuit.id(), joined(circuitPath, QStringLiteral("id")));
            positions.add(circuit.positionId(), joined(circuitPath, QStringLiteral("position_id")));
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

/// Control characters that JSON lets stand would not reach a terminal as they are.
QString withoutControls(const QString &text)
{
    QString escaped;
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control && c != QLatin1Char('\n'))
            escaped += QString::asprintf("\\u%04x", static_cast<unsigned>(c.unicode()));
        else
            escaped += c;
    }
    return escaped;
}

} // namespace

std::unique_ptr<FW_Machine> readMachineFile(const QByteArray &text)
{
    const json document = parseJson({text.constData(), static_cast<std::size_t>(text.size())});
    if (!document.is_object())
        throw std::runtime_error("the file holds no JSON object");
    const auto type = document.find("type");
    if (type == document.end())
        refuse(QStringLiteral("type"), QStringLiteral("is missing"));
    if (*type == "dispenser")
        return readAs<FW_Dispenser>(document);
    if (*type == "mixer")
        return readAs<FW_Mixer>(document);
    refuse(QStringLiteral("type"), QStringLiteral("must be \"dispenser\" or \"mixer\""));
}

QByteArray machineFileOf(const FW_Machine &machine)
{
    OrderedJson document;
    if (const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&machine))
        document = writtenValue(*dispenser);
    else if (const auto *mixer = dynamic_cast<const FW_Mixer *>(&machine))
        document = writtenValue(*mixer);
    std::string text;
    addLines(document, std::string(), std::string(), "", text);
    return withoutControls(QString::fromStdString(text)).toUtf8();
}

} // namespace quv
