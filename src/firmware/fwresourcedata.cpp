// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwresourcedata.h"

#include "base/record_p.h"
#include "base/tokens_p.h"
#include "base/wire_p.h"
#include "firmware/bytes_p.h"
#include "firmware/fwresourcedata_p.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int headSize = 5;
constexpr int addressBase = 244;
constexpr int halvesOfByte = 2;
constexpr unsigned halfByte = 16;

constexpr char badValues[] = "Error during command answer decoding: bad values";

bool registerType()
{
    using Map = QMap<QString, QVariant>;
    qRegisterMetaType<FwResourceData>("FwResourceData");
    QMetaType::registerEqualsComparator<FwResourceData>();
    // one way only: what a block writes is no struct
    QMetaType::registerConverter<Map, FwResourceData>(
        [](const Map &members) { return FwResourceData(EncodeXmlRpcObject(members)); });
    return true;
}

const bool isRegistered = registerType();

const quv::Record<FwResourceData> &record()
{
    using Data = FwResourceData;
    static const quv::Record<Data> record({
        {Data::subcommand_TAG, &Data::subcommand, quv::badSubcommand},
        {Data::resourceIndex_TAG, &Data::resourceIndex, quv::badResourceIndex},
        {Data::blockAddress_TAG, &Data::blockAddress, quv::badBlockAddress},
        quv::Member<Data>(Data::data_TAG, &Data::data, quv::badBlockData).as(quv::bytesOrText()),
    });
    return record;
}

void appendAddress(QList<int> &parameters, int address)
{
    if (address < 0 || address >= addressBase * addressBase) // else a block would go to the place of another
        parameters << quv::unsetDigit << quv::unsetDigit;
    else
        parameters << address % addressBase << address / addressBase;
}

int nextAddress(quv::TokenReader &reader, const char *function)
{
    constexpr quv::Refusal bad = {"DE02744", badValues};
    constexpr unsigned greatest = std::numeric_limits<int>::max();
    const unsigned given = reader.nextUnchecked();
    const long long low = given > greatest ? 0 : given; // what is no int is as good as no number
    const long long address = low + static_cast<long long>(addressBase) * reader.next(bad);
    if (address > greatest)
        quv::throwRefusal(bad, function);
    return static_cast<int>(address);
}

QByteArray nextBytes(quv::TokenReader &reader, const char *function)
{
    const unsigned count = reader.nextUnsigned({"DE02745", badValues});
    if (count > static_cast<unsigned>(reader.remaining() / halvesOfByte))
        quv::throwRefusal({"DE02746", badValues}, function);
    QByteArray bytes(static_cast<int>(count), Qt::Uninitialized);
    for (char &byte : bytes) {
        const unsigned high = reader.nextUnchecked();
        byte = static_cast<char>(high * halfByte + reader.nextUnchecked());
    }
    return bytes;
}

} // namespace

FwResourceData::FwResourceData(RFM_Subcommand blockSubcommand, int index, int address, QByteArray bytes)
    : subcommand(blockSubcommand),
      resourceIndex(index),
      blockAddress(address),
      data(std::move(bytes))
{}

FwResourceData::FwResourceData(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

FwResourceData::FwResourceData(QStringList parameters)
{
    const char *function = Q_FUNC_INFO;
    quv::TokenReader reader(parameters, 0, function);
    reader.require(headSize, {"DE02741", "Error during command answer decoding: bad length"});
    subcommand = reader.nextSigned({"DE02742", badValues});
    resourceIndex = reader.nextSigned({"DE02743", badValues});
    blockAddress = nextAddress(reader, function);
    data = nextBytes(reader, function);
}

void FwResourceData::setDefaults()
{
    *this = FwResourceData();
}

QList<int> FwResourceData::serialParameters() const
{
    QList<int> parameters;
    parameters.reserve(headSize + halvesOfByte * data.size());
    parameters << subcommand << resourceIndex;
    appendAddress(parameters, blockAddress);
    parameters << data.size();
    if (std::all_of(data.begin(), data.end(), [](char byte) { return byte == 0; }))
        return parameters;
    for (const char byte : data) {
        const unsigned bits = static_cast<unsigned char>(byte);
        parameters << static_cast<int>(bits / halfByte) << static_cast<int>(bits % halfByte);
    }
    return parameters;
}

XmlRpc::XmlRpcValue FwResourceData::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue array;
    array.setSize(4);
    array[0] = subcommand;
    array[1] = resourceIndex;
    array[2] = blockAddress;
    array[3] = data.toInt();
    return array;
}

bool FwResourceData::operator==(const FwResourceData &other) const
{
    return record().equal(*this, other);
}
