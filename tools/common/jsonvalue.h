// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <nlohmann/json.hpp>
#include <xmlrpcpp/XmlRpcValue.h>

#include <stdexcept>
#include <string>
#include <string_view>

// JSON text to and from the values of the protocol.
//
//   JSON                              XML-RPC     QVariant
//   number without point or exponent  int         int           (beyond 32 bits: refused)
//   any other number                  double      double
//   true, false                       boolean     bool
//   string                            string      QString
//   {"$base64": "…"}                  base64      QByteArray
//   array                             array       QList<QVariant>
//   any other object                  struct      QMap<QString, QVariant>
//
// In the other direction a date and time becomes a string in ISO 8601, and null stands for what JSON cannot tell: an empty
// value, or a double that is no finite number. null is not read.

namespace quv {

/// What is written keeps the order in which it was put together.
using OrderedJson = nlohmann::ordered_json;

/// Text that is no JSON, or JSON that is no value. The text is for the user, and ASCII wherever the input was not.
class JsonError : public std::runtime_error
{
public:
    explicit JsonError(const std::string &text) : std::runtime_error(text) {}
};

/// Arrays and objects inside each other.
inline constexpr int jsonNesting = 64;
/// Values of one text, arrays and objects counted as well.
inline constexpr int jsonValues = 200000;

/**
 * The one JSON value that \a text holds. Valid UTF-8 only, each member of an object once, at most jsonNesting levels and
 * jsonValues values, whole numbers of at most 64 bits.
 * \throws JsonError
 */
nlohmann::json parseJson(std::string_view text);

/// One line of valid UTF-8, in which control and format characters are escaped. Doubles read back exactly, and as doubles.
std::string writeJson(const OrderedJson &document);

/// \throws JsonError for null, whole numbers beyond 32 bits and bad base64
XmlRpc::XmlRpcValue toXmlRpcValue(const nlohmann::json &source);
/// \throws JsonError as toXmlRpcValue
QVariant toVariant(const nlohmann::json &source);

/// Text that is not UTF-8 reads as Latin-1.
OrderedJson toJson(const XmlRpc::XmlRpcValue &value);
OrderedJson toJson(const QVariant &variant);
OrderedJson toJson(const QString &text);

} // namespace quv
