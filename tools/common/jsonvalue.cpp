// SPDX-License-Identifier: LGPL-3.0-or-later
#include "jsonvalue.h"

#include "excerpt.h"
#include "unseencharacters.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QDateTime>
#include <QtCore/QMap>

#include <algorithm>
#include <limits>
#include <optional>
#include <set>
#include <vector>

namespace quv {

namespace {

using nlohmann::json;
using XmlRpc::XmlRpcValue;

constexpr char base64Key[] = "$base64";

/// Builds the document, and refuses what the parser itself lets pass.
class Builder : public nlohmann::json_sax<json>
{
public:
    Builder() { m_open.reserve(jsonNesting); }
    Builder(const Builder &) = delete;
    Builder &operator=(const Builder &) = delete;

    json take() { return std::move(m_root); }
    const std::string &refusal() const { return m_refusal; }

    bool null() override { return put(nullptr); }
    bool boolean(bool value) override { return put(value); }
    bool number_integer(number_integer_t value) override { return put(value); }
    bool number_unsigned(number_unsigned_t value) override
    {
        if (value > static_cast<number_unsigned_t>(std::numeric_limits<number_integer_t>::max()))
            return refuse("the whole number " + std::to_string(value) + " does not fit in 64 bits");
        return put(static_cast<number_integer_t>(value));
    }

    // the parser also hands over whole numbers that are too large for it, as doubles
    bool number_float(number_float_t value, const string_t &digits) override
    {
        if (digits.find_first_of(".eE") == string_t::npos)
            return refuse("the whole number " + excerpt(digits) + " does not fit in 64 bits");
        return put(value);
    }

    bool string(string_t &value) override { return put(std::move(value)); }
    bool binary(binary_t &) override { return refuse("binary is written as {\"$base64\": \"...\"}"); }

    bool start_object(std::size_t) override { return open(json::object()); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(json::array()); }
    bool end_array() override { return close(); }

    bool key(string_t &name) override
    {
        if (m_open.back()->contains(name))
            return refuse("the member \"" + excerpt(name) + "\" stands twice in one object");
        m_key = std::move(name);
        return true;
    }

    bool parse_error(std::size_t, const std::string &, const nlohmann::detail::exception &error) override
    {
        // without the library's own number, and without the input that it repeats
        std::string text = error.what();
        text.erase(0, text.find("] ") + 2);
        text.erase(std::min(text.find("; last read"), text.size()));
        if (error.id == 406)
            text = "a number is too large for a double";
        return refuse("no JSON: " + asciiOnly(text));
    }

private:
    static std::string asciiOnly(std::string text)
    {
        for (char &c : text)
            c = c >= ' ' && c <= '~' ? c : '?';
        return text;
    }

    bool refuse(const std::string &text)
    {
        m_refusal = text;
        return false;
    }

    json *place(json value)
    {
        if (m_open.empty()) {
            m_root = std::move(value);
            return &m_root;
        }
        json &parent = *m_open.back();
        if (parent.is_object())
            return &(parent[m_key] = std::move(value));
        parent.push_back(std::move(value));
        return &parent.back();
    }

    /// Each takes many times the bytes that it stands in.
    bool isOneTooMany() { return ++m_values > jsonValues; }

    bool refuseNumber() { return refuse("it holds more than " + std::to_string(jsonValues) + " values"); }

    bool put(json value)
    {
        if (isOneTooMany())
            return refuseNumber();
        place(std::move(value));
        return true;
    }

    bool open(json value)
    {
        if (isOneTooMany())
            return refuseNumber();
        if (m_open.size() == jsonNesting)
            return refuse("arrays and objects are nested more than " + std::to_string(jsonNesting) +
                          " levels deep");
        m_open.push_back(place(std::move(value)));
        return true;
    }

    bool close()
    {
        m_open.pop_back();
        return true;
    }

    json m_root;
    std::vector<json *> m_open; ///< pointers stay valid: a parent grows only after its last child is closed
    std::string m_key;
    std::string m_refusal;
    int m_values = 0;
};

int intOf(const json &value)
{
    const auto number = value.get<json::number_integer_t>();
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        throw JsonError("the whole number " + std::to_string(number) + " does not fit in 32 bits");
    return static_cast<int>(number);
}

/// The bytes of an object that stands for binary; nothing for any other object.
std::optional<QByteArray> binaryOf(const json &object)
{
    const auto member = object.find(base64Key);
    if (member == object.end())
        return std::nullopt;
    if (object.size() != 1 || !member->is_string())
        throw JsonError("\"$base64\" is a string and the only member of its object");
    const auto result =
        QByteArray::fromBase64Encoding(QByteArray::fromStdString(member->get_ref<const std::string &>()),
                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!result)
        throw JsonError("\"$base64\" holds no valid base64");
    return result.decoded;
}

[[noreturn]] void refuseNull()
{
    throw JsonError("null is no value of the protocol");
}

XmlRpcValue binaryValue(QByteArray bytes)
{
    return XmlRpcValue(bytes.data(), bytes.size());
}

// Filled in place: an XML-RPC value has no move, and each copy is deep.
void fill(const json &from, XmlRpcValue &to)
{
    switch (from.type()) {
    case json::value_t::boolean:
        to = from.get<bool>();
        return;
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
        to = intOf(from);
        return;
    case json::value_t::number_float:
        to = from.get<double>();
        return;
    case json::value_t::string:
        to = XmlRpcValue(from.get_ref<const std::string &>());
        return;
    case json::value_t::array:
        to.setSize(static_cast<int>(from.size()));
        for (std::size_t i = 0; i < from.size(); ++i)
            fill(from[i], to[static_cast<int>(i)]);
        return;
    case json::value_t::object:
        if (auto bytes = binaryOf(from)) {
            to = binaryValue(std::move(*bytes));
            return;
        }
        to.begin(); // makes the value a struct, also without members
        for (const auto &[key, member] : from.items())
            fill(member, to[key]);
        return;
    case json::value_t::null:
    case json::value_t::binary:
    case json::value_t::discarded:
        break;
    }
    refuseNull();
}

QString textOf(const std::string &utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

OrderedJson binaryJson(const QByteArray &bytes)
{
    return OrderedJson::object({{base64Key, bytes.toBase64().toStdString()}});
}

/// Appends without looking for the name: members of a struct are unique, and searching for each makes large ones slow.
void addMember(OrderedJson &object, std::string name, OrderedJson member)
{
    object.get_ref<OrderedJson::object_t &>().emplace_back(std::move(name), std::move(member));
}

std::string isoText(const std::tm &time)
{
    return QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02d", time.tm_year + 1900, time.tm_mon + 1,
                             time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec)
        .toStdString();
}

OrderedJson arrayJson(const XmlRpcValue &value)
{
    OrderedJson array = OrderedJson::array();
    for (int i = 0; i < value.size(); ++i)
        array.push_back(toJson(value[i]));
    return array;
}

OrderedJson structJson(const XmlRpcValue &value)
{
    OrderedJson object = OrderedJson::object();
    object.get_ref<OrderedJson::object_t &>().reserve(static_cast<std::size_t>(value.size()));
    for (const auto &[name, member] : value)
        addMember(object, DecodeXmlRpcText(name).toStdString(), toJson(member));
    return object;
}

OrderedJson listJson(const QVariantList &list)
{
    OrderedJson array = OrderedJson::array();
    for (const QVariant &element : list)
        array.push_back(toJson(element));
    return array;
}

OrderedJson mapJson(const QVariantMap &map)
{
    OrderedJson object = OrderedJson::object();
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        addMember(object, it.key().toStdString(), toJson(it.value()));
    return object;
}

/// As JSON writes it: beyond 16 bits by two surrogates.
QString escape(uint character)
{
    QString text;
    for (const QChar unit : utf16Of(character))
        text += QString::asprintf("\\u%04x", static_cast<unsigned>(unit.unicode()));
    return text;
}

} // namespace

json parseJson(std::string_view text)
{
    // the parser takes a NUL for the end of the text
    if (text.find('\0') != std::string_view::npos)
        throw JsonError("no JSON: it holds a NUL byte");
    Builder builder;
    if (!json::sax_parse(text.begin(), text.end(), &builder))
        throw JsonError(builder.refusal());
    return builder.take();
}

std::string writeJson(const OrderedJson &document)
{
    std::string text = document.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
    return isPlain ? text : withoutUnseen(QString::fromStdString(text), escape).toStdString();
}

XmlRpcValue toXmlRpcValue(const json &source)
{
    XmlRpcValue value;
    fill(source, value);
    return value;
}

QVariant toVariant(const json &source)
{
    switch (source.type()) {
    case json::value_t::boolean:
        return source.get<bool>();
    case json::value_t::number_integer:
    case json::value_t::number_unsigned:
        return intOf(source);
    case json::value_t::number_float:
        return source.get<double>();
    case json::value_t::string:
        return textOf(source.get_ref<const std::string &>());
    case json::value_t::array: {
        QVariantList list;
        for (const auto &element : source)
            list.append(toVariant(element));
        return list;
    }
    case json::value_t::object: {
        if (const auto bytes = binaryOf(source))
            return *bytes;
        QVariantMap map;
        for (const auto &[key, member] : source.items())
            map.insert(textOf(key), toVariant(member));
        return map;
    }
    case json::value_t::null:
    case json::value_t::binary:
    case json::value_t::discarded:
        break;
    }
    refuseNull();
}

OrderedJson toJson(const XmlRpcValue &value)
{
    switch (value.getType()) {
    case XmlRpcValue::TypeBoolean:
        return static_cast<const bool &>(value);
    case XmlRpcValue::TypeInt:
        return static_cast<const int &>(value);
    case XmlRpcValue::TypeDouble:
        return static_cast<const double &>(value); // not finite: the writer makes it null
    case XmlRpcValue::TypeString:
        return toJson(DecodeXmlRpcText(static_cast<const std::string &>(value)));
    case XmlRpcValue::TypeDateTime:
        return isoText(static_cast<const std::tm &>(value));
    case XmlRpcValue::TypeBase64: {
        const auto &bytes = static_cast<const XmlRpcValue::BinaryData &>(value);
        return binaryJson(QByteArray(bytes.data(), static_cast<int>(bytes.size())));
    }
    case XmlRpcValue::TypeArray:
        return arrayJson(value);
    case XmlRpcValue::TypeStruct:
        return structJson(value);
    case XmlRpcValue::TypeInvalid:
        break;
    }
    return nullptr;
}

OrderedJson toJson(const QVariant &variant)
{
    switch (static_cast<QMetaType::Type>(variant.userType())) {
    case QMetaType::Bool:
        return variant.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return variant.toLongLong();
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return variant.toULongLong();
    case QMetaType::Float:
    case QMetaType::Double:
        return variant.toDouble();
    case QMetaType::QByteArray:
        return binaryJson(variant.toByteArray());
    case QMetaType::QDateTime:
        return toJson(variant.toDateTime().toString(Qt::ISODateWithMs));
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return listJson(variant.toList());
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return mapJson(variant.toMap());
    default:
        break;
    }
    if (variant.userType() >= QMetaType::User && variant.canConvert<QVariantMap>())
        return mapJson(variant.value<QVariantMap>());
    if (variant.userType() >= QMetaType::User && variant.canConvert<QVariantList>())
        return listJson(variant.value<QVariantList>());
    if (QMetaType::typeFlags(variant.userType()).testFlag(QMetaType::IsEnumeration))
        return variant.toLongLong();
    if (variant.canConvert<QString>())
        return toJson(variant.toString());
    return nullptr;
}

OrderedJson toJson(const QString &text)
{
    return text.toStdString();
}

} // namespace quv
