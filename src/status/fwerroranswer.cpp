// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/fwerroranswer.h"

#include "base/describedanswer_p.h"
#include "base/digitnumber_p.h"
#include "base/objectfield_p.h"

#include <QuvFramework/fw_exception.h>

#include <stdexcept>
#include <utility>

namespace quv {

namespace {

FW_ErrorList listOf(const PacketErrors &errors)
{
    FW_ErrorList list;
    list.append(errors.hardware);
    list.append(errors.configuration);
    return list;
}

void appendError(PacketErrors &errors, const XmlRpc::XmlRpcValue &error)
{
    if (error.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throw std::invalid_argument("no error");
    const FW_Error::Type kind = FW_Error::errorType(error);
    if (kind == FW_Error::Hardware)
        errors.hardware.append(FW_HwError(error));
    else if (kind == FW_Error::Configuration)
        errors.configuration.append(FW_ConfError(error));
}

Decoded readErrors(const XmlRpc::XmlRpcValue &value, void *field)
{
    const bool isRead = fillField<PacketErrors>(field, [&] {
        if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
            throw std::invalid_argument("no array");
        PacketErrors errors;
        for (int i = 0; i < value.size(); ++i)
            appendError(errors, value[i]);
        return errors;
    });
    return isRead ? Decoded::Good : Decoded::OtherType;
}

void writeErrors(const void *field, XmlRpc::XmlRpcValue &value)
{
    value = listOf(*static_cast<const PacketErrors *>(field)).toXmlRpcValue();
}

bool equalErrors(const void *left, const void *right)
{
    return listOf(*static_cast<const PacketErrors *>(left)) ==
           listOf(*static_cast<const PacketErrors *>(right));
}

/** One error of a packet. */
struct BufferedError
{
    int module = 0;
    int code = 0;
    unsigned flags = 0;

    int value() const { return static_cast<int>(flags & 0x1FU); }
    bool flag() const { return (flags & 0x20U) != 0 || (flags & 0x40U) == 0; }
};

BufferedError nextError(TokenReader &reader, const char *function)
{
    BufferedError error;
    reader.require(1, {"DE00092", "Error during command answer decoding: module value not found"});
    error.module = reader.next({"DE00136", "Error during command answer decoding: module value"});
    reader.require(4, {"DE00168", "Error during command answer decoding: errors value expected"});
    error.code = nextOfDigits(reader,
                              {{"DE00138", "Error during command answer decoding: error low value"},
                               {"DE00139", "Error during command answer decoding: error high value"},
                               {"DE00860", "Error during command answer decoding: error upper high value"}},
                              function);
    error.flags = reader.nextUnsigned({"DE00451", "Error during command answer decoding: extra flag value"});
    return error;
}

} // namespace

template <>
const FieldType &fieldType<PacketErrors>()
{
    static constexpr FieldType type = {
        "array of errors", FieldType::Other,        readErrors, nullptr, writeErrors,
        equalErrors,       resetField<PacketErrors>};
    return type;
}

} // namespace quv

struct FwErrorAnswer::Description
{
    static std::vector<quv::Member<FwErrorAnswer>> members()
    {
        return {quv::Member<FwErrorAnswer>(XR_FW_ERROR_LIST, &FwErrorAnswer::m_errors,
                                           {"DE00450", "FwErrorAnswer: Errors during FW_Error list creation"})
                    .otherType({"DE00449", "FwErrorAnswer: errors during FW_Error creation"})
                    .meaning("hardware errors, then configuration errors")};
    }
};

template class quv::DescribedAnswer<FwErrorAnswer, SerialProtoAnswer>;

FwErrorAnswer::FwErrorAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

FwErrorAnswer::FwErrorAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    const char *function = Q_FUNC_INFO;
    quv::TokenReader reader(m_parameters, 0, function);
    reader.require(3, {"DE00090", "Error during command answer decoding: bad length"});
    const unsigned type =
        reader.nextUnsigned({"DE00166", "Error during command answer decoding: error type"});
    if (!checkErrorAnswerType(static_cast<int>(type)))
        throw FW_Exception("DE00137", "Error during command answer decoding: invalid error type", function);
    reader.nextUnsigned({"DE00134", "Error during command answer decoding: error packet index"});
    const unsigned count =
        reader.nextUnsigned({"DE00135", "Error during command answer decoding: errors count"});
    if (count == 0)
        throw FW_Exception("DE00167", "Error during command answer decoding: error count value equal to 0",
                           function);
    for (unsigned i = 0; i < count; ++i) {
        const quv::BufferedError error = quv::nextError(reader, function);
        if (type == HardwareErrors)
            m_errors.hardware.append(FW_HwError(error.code, error.module, error.value(), error.flag(),
                                                SerialDeviceType::Dispenser));
        else
            m_errors.configuration.append(
                FW_ConfError(error.code, error.module, error.value(), error.flag()));
    }
}

FwErrorAnswer *FwErrorAnswer::clone() const
{
    return new FwErrorAnswer(*this);
}

void FwErrorAnswer::clear()
{
    m_errors = {};
}

FW_ErrorList FwErrorAnswer::errorList() const
{
    return quv::listOf(m_errors);
}

int FwErrorAnswer::errorsType() const
{
    if (!m_errors.hardware.isEmpty())
        return HardwareErrors;
    return m_errors.configuration.isEmpty() ? NoErrors : ConfigurationErrors;
}

bool FwErrorAnswer::checkErrorAnswerType(int type)
{
    return type == HardwareErrors || type == ConfigurationErrors;
}
