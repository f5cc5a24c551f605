// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescananswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "base/tokens_p.h"

#include <utility>

namespace quv {

template <>
inline constexpr const char *markOf<FW_Program> = FW_Program::APP_VERSION;

template <>
const FieldType &fieldType<QList<FW_Program>>()
{
    static constexpr FieldType type = objectListType<FW_Program>();
    return type;
}

} // namespace quv

struct FirmwareScanAnswer::Description
{
    using Answer = FirmwareScanAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(slaveFwVersions_TAG, &Answer::m_programs,
                                    {"DE01463", "FirmwareScanAnswer: Errors during FW_Program list creation"})
                    .otherType({"DE01461", "FirmwareScanAnswer decoding failed: expected xml-rpc array type"})
                    .element({"DE01462", "FirmwareScanAnswer failed: expected FW_Program type parameter"})
                    .meaning("of each slave \"board_address\", \"app_version\" and \"boot_version\"")};
    }
};

template class quv::DescribedAnswer<FirmwareScanAnswer, SerialProtoAnswer>;

FirmwareScanAnswer::FirmwareScanAnswer(QList<QVariant> &list) : DescribedAnswer(list) {}

FirmwareScanAnswer::FirmwareScanAnswer(const QList<FW_Program> &programs) : m_programs(programs) {}

FirmwareScanAnswer::FirmwareScanAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    constexpr quv::Refusal noProgram = {"DE01457", "FirmwareScanAnswer: error in firmware version decoding"};
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(1, {"DE01455", "Error during command answer decoding: bad length"});
    const int slaves = reader.next({"DE01456", "Error during address ID decoding"});
    const int size = slaves > 0 ? reader.remaining() / slaves : 0;
    for (int i = 0; i < slaves; ++i)
        m_programs.append(quv::madeOrRefused(
            noProgram, Q_FUNC_INFO, [&] { return FW_Program(m_parameters.mid(1 + i * size, size), true); }));
}

FirmwareScanAnswer::FirmwareScanAnswer(const XmlRpc::XmlRpcValue &value)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throw FW_Exception("DE01460", "FirmwareScanAnswer decoding failed: invalid xml-rpc type",
                           Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
}

FirmwareScanAnswer *FirmwareScanAnswer::clone() const
{
    return new FirmwareScanAnswer(*this);
}
