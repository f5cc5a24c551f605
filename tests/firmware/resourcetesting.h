// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

#include <QtCore/QByteArray>

#include <initializer_list>
#include <vector>

// What the tests of resource files share.

namespace testing_firmware {

using namespace testing_base;

constexpr char ofFile[] = "FwResourceFile::FwResourceFile(const XmlRpc::XmlRpcValue&)";
constexpr char badFile[] = "FwResourceFile: bad parameter";
constexpr char ofBlock[] = "FwResourceData::FwResourceData(const XmlRpc::XmlRpcValue&)";
constexpr char badBlock[] = "FwResourceData: bad parameters";

inline Value binary(QByteArray bytes)
{
    return Value(static_cast<void *>(bytes.data()), bytes.size());
}

/** The bytes 0x00 and 0xA5, which are no text. */
inline QByteArray twoBytes()
{
    return QByteArray("\x00\xA5", 2);
}

inline Value fileStruct(const Value &data, const Value &name, const Value &type, const Value &index)
{
    return structOf(
        {{"res_data_stream", data}, {"res_name", name}, {"res_type", type}, {"res_index", index}});
}

inline QVariantMap fileMap(const QVariant &data, const QVariant &name, const QVariant &type,
                           const QVariant &index)
{
    return {{"res_data_stream", data}, {"res_name", name}, {"res_type", type}, {"res_index", index}};
}

inline Value blockStruct(const Value &subcommand, const Value &index, const Value &address, const Value &data)
{
    return structOf(
        {{"subcmd", subcommand}, {"res_index", index}, {"block_address", address}, {"data", data}});
}

inline QVariantMap blockMap(const QVariant &subcommand, const QVariant &index, const QVariant &address,
                            const QVariant &data)
{
    return {{"subcmd", subcommand}, {"res_index", index}, {"block_address", address}, {"data", data}};
}

/** A member of a struct: what its absence is called, and each of the values of another type. */
struct NeededMember
{
    const char *key;
    const char *code;
    std::vector<Value> others;
};

/** Expects that a T needs each of the members of a struct of which it can be made. */
template <class T>
void expectMembersNeeded(const Value &good, std::initializer_list<NeededMember> members, const char *text,
                         const char *function)
{
    const auto expectRefused = [&](const char *code, const Value &value) {
        SCOPED_TRACE(dumped(value));
        expectRefusal(code, text, function, [&] { const T made(value); });
    };
    for (const NeededMember &needed : members) {
        Value without = structOf({});
        for (const auto &[key, member] : good) {
            if (key != needed.key)
                without[key] = member;
        }
        expectRefused(needed.code, without);
        for (const Value &other : needed.others) {
            Value with = good;
            with[needed.key] = other;
            expectRefused(needed.code, with);
        }
    }
    for (const Value &none : {Value(), Value(7), Value("text"), arrayOf(good), structOf({})})
        expectRefused(members.begin()->code, none);
}

} // namespace testing_firmware
