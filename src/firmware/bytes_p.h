// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/fieldtype_p.h"

#include <QtCore/QByteArray>

namespace quv {

/** Bytes that a client may also give as a text, whose bytes they then are: people write short files so. */
inline const FieldType &bytesOrText()
{
    static const FieldType type = [] {
        FieldType bytes = fieldType<QByteArray>();
        bytes.read = [](const XmlRpc::XmlRpcValue &value, void *field) {
            if (value.getType() != XmlRpc::XmlRpcValue::TypeString)
                return fieldType<QByteArray>().read(value, field);
            *static_cast<QByteArray *>(field) =
                QByteArray::fromStdString(static_cast<const std::string &>(value));
            return Decoded::Good;
        };
        return bytes;
    }();
    return type;
}

} // namespace quv
