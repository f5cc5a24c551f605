// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "jsonvalue.h"

#include <optional>
#include <stdexcept>

namespace quv {

/// A request that cannot be understood; the text says which member is wrong.
class BadRequest : public std::runtime_error
{
public:
    explicit BadRequest(const std::string &text) : std::runtime_error(text) {}
};

/**
 * The members of a request. Each reader throws BadRequest for a member of another type and, without a default, for one that
 * is missing. Members that nobody reads are passed over.
 */
class Request
{
public:
    explicit Request(nlohmann::json object);

    bool has(const char *name) const { return m_object.contains(name); }
    const nlohmann::json &member(const char *name) const;

    bool flag(const char *name, std::optional<bool> otherwise = std::nullopt) const;
    int number(const char *name, std::optional<int> otherwise = std::nullopt) const; ///< 32 bits
    long long longNumber(const char *name, std::optional<long long> otherwise = std::nullopt) const;
    QString text(const char *name, std::optional<QString> otherwise = std::nullopt) const;
    QStringList texts(const char *name) const;
    XmlRpc::XmlRpcValue value(const char *name) const;
    QList<QVariant> variants(const char *name) const; ///< an array; empty when it is missing

private:
    nlohmann::json m_object;
};

} // namespace quv
