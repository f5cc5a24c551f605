// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareversionanswer.h"

#include "base/argumentteller_p.h"
#include "base/decoding_p.h"

#include <utility>

namespace {

constexpr quv::Refusal noProgram = {"DE00628",
                                    "FirmwareVersionAnswer failed: expected FW_Version type parameter"};
constexpr quv::Refusal badStruct = {
    "DE01474", "FirmwareVersionAnswer failed: expected firmware app version type parameter"};

quv::MemberFacts member(const char *key, const char *type, const char *meaning)
{
    quv::MemberFacts facts{
        QString::fromLatin1(key), QString::fromLatin1(type), QString::fromLatin1(meaning), true, {}};
    quv::appendRefusal(facts.refusals, "XML-RPC", "missing or another type", badStruct);
    return facts;
}

} // namespace

FirmwareVersionAnswer::FirmwareVersionAnswer(const FW_Program &program) : m_program(program) {}

FirmwareVersionAnswer::FirmwareVersionAnswer(QStringList tokens)
    : SerialProtoAnswer(std::move(tokens)),
      m_program(
          quv::madeOrRefused(noProgram, Q_FUNC_INFO, [this] { return FW_Program(m_parameters, false); }))
{}

FirmwareVersionAnswer::FirmwareVersionAnswer(const XmlRpc::XmlRpcValue &value)
    : m_program(quv::madeOrRefused(badStruct, Q_FUNC_INFO, [&value] { return FW_Program(value); }))
{}

FirmwareVersionAnswer *FirmwareVersionAnswer::clone() const
{
    return new FirmwareVersionAnswer(*this);
}

bool FirmwareVersionAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const FirmwareVersionAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue FirmwareVersionAnswer::toXmlRpcValue() const
{
    return m_program.toXmlRpcValue();
}

QList<quv::MemberFacts> FirmwareVersionAnswer::memberFacts()
{
    constexpr char integers[] = "array of ints";
    return {
        member(FW_Program::BOARD_ADDRESS, "int", "-1 of a module that was asked by itself"),
        member(FW_Program::APP_VERSION, integers, "six: family, hardware, major, minor, patch, revision"),
        member(FW_Program::BOOT_VERSION, integers, "the same of the boot loader; empty when it is not told")};
}
