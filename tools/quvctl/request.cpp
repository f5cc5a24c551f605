// SPDX-License-Identifier: LGPL-3.0-or-later
#include "request.h"

#include <limits>

namespace quv {

namespace {

[[noreturn]] void refuse(const char *name, const std::string &why)
{
    throw BadRequest('"' + std::string(name) + "\" " + why);
}

/// What \a convert gives, with the member's name in front of a refusal.
template <class Convert>
auto converted(const char *name, Convert convert)
{
    try {
        return convert();
    } catch (const JsonError &error) {
        throw BadRequest('"' + std::string(name) + "\": " + error.what());
    }
}

QString qtText(const nlohmann::json &json)
{
    return QString::fromStdString(json.get_ref<const std::string &>());
}

} // namespace

Request::Request(nlohmann::json object) : m_object(std::move(object))
{
    if (!m_object.is_object())
        throw BadRequest("a request is a JSON object");
}

const nlohmann::json &Request::member(const char *name) const
{
    const auto member = m_object.find(name);
    if (member == m_object.end())
        refuse(name, "is missing");
    return *member;
}

bool Request::flag(const char *name, std::optional<bool> otherwise) const
{
    if (otherwise && !has(name))
        return *otherwise;
    if (!member(name).is_boolean())
        refuse(name, "must be true or false");
    return member(name).get<bool>();
}

int Request::number(const char *name, std::optional<int> otherwise) const
{
    const long long number = longNumber(name, otherwise);
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        refuse(name, "must be a whole number of 32 bits");
    return static_cast<int>(number);
}

long long Request::longNumber(const char *name, std::optional<long long> otherwise) const
{
    if (otherwise && !has(name))
        return *otherwise;
    if (!member(name).is_number_integer())
        refuse(name, "must be a whole number");
    return member(name).get<long long>();
}

QString Request::text(const char *name, std::optional<QString> otherwise) const
{
    if (otherwise && !has(name))
        return *otherwise;
    if (!member(name).is_string())
        refuse(name, "must be a string");
    return qtText(member(name));
}

QStringList Request::texts(const char *name) const
{
    const nlohmann::json &array = member(name);
    if (!array.is_array())
        refuse(name, "must be an array of strings");
    QStringList texts;
    for (const auto &element : array) {
        if (!element.is_string())
            refuse(name, "must be an array of strings");
        texts.append(qtText(element));
    }
    return texts;
}

XmlRpc::XmlRpcValue Request::value(const char *name) const
{
    return converted(name, [&] { return toXmlRpcValue(member(name)); });
}

QList<QVariant> Request::variants(const char *name) const
{
    if (!has(name))
        return {};
    if (!member(name).is_array())
        refuse(name, "must be an array");
    return converted(name, [&] { return toVariant(member(name)).toList(); });
}

} // namespace quv
