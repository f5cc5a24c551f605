// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_firmwarefile.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_utils.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace {

using XmlRpc::XmlRpcValue;

constexpr int allBoards = 0;
constexpr int circuitBoard = 2;
constexpr int circuitBoards = 200;
constexpr int boardTypes = 15;

const bool areRegistered = RegisterTravellingList<FirmwareFile>("FirmwareFile", "FirmwareFiles");

template <class T>
T required(const XmlRpcValue &value, const char *key)
{
    T field{};
    if (!DecodeXmlRpcValue(value, QLatin1String(key), field))
        throw std::invalid_argument("a member of the firmware file is missing or of another type");
    return field;
}

bool optionalFlag(const XmlRpcValue &value, const char *key)
{
    return FindXmlRpcMember(value, key) && required<bool>(value, key);
}

} // namespace

FirmwareFile::FirmwareFile(const QByteArray &image, const QList<int> &addresses, int boardType)
    : m_image(image),
      m_addresses(addresses),
      m_boardType(boardType)
{}

FirmwareFile::FirmwareFile(const XmlRpcValue &value)
    : m_image(required<QByteArray>(value, IMAGE)),
      m_addresses(required<QList<int>>(value, BOARD_ADDRESSES)),
      m_boardType(required<int>(value, BOARD_TYPE)),
      m_parallelSend(optionalFlag(value, PARALLEL_SEND))
{}

bool FirmwareFile::checkBoardType(int boardType)
{
    return boardType >= 1 && boardType <= boardTypes;
}

bool FirmwareFile::checkBoardAddress(int address, bool orAll)
{
    return address == allBoards ? orAll : address > 0 && address <= circuitBoards + boardTypes;
}

QList<int> FirmwareFile::boardAddresses(int boardType, bool orAll)
{
    QList<int> addresses;
    if (!checkBoardType(boardType))
        return addresses;
    if (orAll)
        addresses.append(allBoards);
    if (boardType != circuitBoard)
        return addresses << circuitBoards + boardType;
    for (int position = 1; position <= circuitBoards; ++position)
        addresses.append(position);
    return addresses;
}

QString FirmwareFile::traceString() const
{
    const QString boards =
        m_addresses.isEmpty() ? QStringLiteral("No boards")
                              : QStringLiteral("Boards %1").arg(createListStr(m_addresses, QLatin1Char(',')));
    return QStringLiteral("%1 of type %2: %3 bytes").arg(boards).arg(m_boardType).arg(m_image.size());
}

XmlRpcValue FirmwareFile::toXmlRpcValue() const
{
    XmlRpcValue value;
    value[IMAGE] = EncodeXmlRpcVariant(m_image);
    EncodeXmlRpcValue(value, QLatin1String(BOARD_ADDRESSES), m_addresses);
    value[BOARD_TYPE] = m_boardType;
    value[PARALLEL_SEND] = m_parallelSend;
    return value;
}

bool FirmwareFile::operator==(const FirmwareFile &other) const
{
    return m_image == other.m_image && m_addresses == other.m_addresses && m_boardType == other.m_boardType &&
           m_parallelSend == other.m_parallelSend;
}
