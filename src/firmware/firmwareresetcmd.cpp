// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwareresetcmd.h"

#include "base/describedcommand_p.h"

#include <QuvFramework/fw_firmwarefile.h>

#include <algorithm>

namespace {

using XmlRpc::XmlRpcValue;

constexpr char badType[] = "FirmwareResetCmd: invalid board type parameter";
constexpr char badAddress[] = "FirmwareResetCmd: invalid board address parameter";
constexpr char badAddresses[] = "FirmwareResetCmd: invalid board addresses parameter";
constexpr char noType[] = "FirmwareResetCmd: board type: expected INT parameter";
constexpr char noAddresses[] = "FirmwareResetCmd: error in board addresses decoding";

constexpr quv::Refusal noValueType = {"DE00826", noType};
constexpr quv::Refusal noListType = {"DE00829", noType};
constexpr quv::Refusal noValueAddresses = {"DE00827", noAddresses};
constexpr quv::Refusal noListAddresses = {"DE01488", noAddresses};
constexpr quv::Refusal otherAddress = {"DE00830", "FirmwareResetCmd: board address: expected INT parameter"};

void require(bool holds, const quv::Refusal &refusal, const char *function)
{
    if (!holds)
        quv::throwRefusal(refusal, function);
}

} // namespace

struct FirmwareResetCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::RESET_FW;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"board_type", "1 to 15"}, "int");
        teller.refuse("another type", {noValueType, noListType});
        XmlRpcValue none;
        none[BOARD_ADDRESSES_TAG].setSize(0);
        teller.argument(
            {"board_addresses",
             "member \"board_addresses\": an array of one int at least (in a list the list itself)"},
            "struct", none);
        teller.refuse("without an address", {noValueAddresses, noListAddresses});
        teller.refuse("with an address of another type", {noValueAddresses, otherAddress});
    }
};

template class quv::DescribedCommand<FirmwareResetCmd, SerialProtoCommand>;

FirmwareResetCmd::FirmwareResetCmd(int boardType) : m_boardType(boardType)
{
    require(checkBoardType(boardType), {"DE00821", badType}, Q_FUNC_INFO);
    setAllBoardAddress(boardType);
}

FirmwareResetCmd::FirmwareResetCmd(int boardType, int boardAddress)
    : m_boardType(boardType),
      m_boardAddresses({boardAddress})
{
    require(checkBoardType(boardType), {"DE00821", badType}, Q_FUNC_INFO);
    require(checkBoardAddress(boardAddress), {"DE00823", badAddress}, Q_FUNC_INFO);
}

FirmwareResetCmd::FirmwareResetCmd(int boardType, QList<int> boardAddresses)
    : m_boardType(boardType),
      m_boardAddresses(boardAddresses)
{
    require(checkBoardType(boardType), {"DE01486", badType}, Q_FUNC_INFO);
    require(checkBoardAddresses(boardAddresses), {"DE01487", badAddresses}, Q_FUNC_INFO);
}

FirmwareResetCmd::FirmwareResetCmd(const FirmwareFile &file)
    : m_boardType(file.boardType()),
      m_boardAddresses(file.addresses())
{
    require(checkBoardType(m_boardType), {"DE01489", badType}, Q_FUNC_INFO);
    require(checkBoardAddresses(m_boardAddresses), {"DE01490", badAddresses}, Q_FUNC_INFO);
}

FirmwareResetCmd::FirmwareResetCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    // the contract of this class, should the base ever let such a value pass
    require(value.getType() == XmlRpcValue::TypeArray,
            {"DE00824", "FirmwareResetCmd: invalid xml-rpc type (not array)"}, Q_FUNC_INFO);
    require(value.size() > 0, {"DE00825", "FirmwareResetCmd: too few parameters received"}, Q_FUNC_INFO);
    require(DecodeXmlRpcValue(value, 0, m_boardType), noValueType, Q_FUNC_INFO);
    if (const XmlRpcValue *addresses = FindXmlRpcElement(value, 1)) {
        DecodeXmlRpcValue(*addresses, BOARD_ADDRESSES_TAG, m_boardAddresses);
        require(!m_boardAddresses.isEmpty(), noValueAddresses, Q_FUNC_INFO);
    }
}

FirmwareResetCmd::FirmwareResetCmd(QList<QVariant> list) : DescribedCommand(list)
{
    require(!list.isEmpty(), {"DE00828", "Too few parameters received"}, Q_FUNC_INFO); // as above
    require(quv::decodeVariant(list.constFirst(), m_boardType), noListType, Q_FUNC_INFO);
    if (list.size() > 1) {
        const QVariant &addresses = list.at(1);
        const bool isList = addresses.userType() == QMetaType::QVariantList ||
                            addresses.userType() == qMetaTypeId<QList<int>>();
        require(!isList || quv::decodeVariant(addresses, m_boardAddresses), otherAddress, Q_FUNC_INFO);
        require(!m_boardAddresses.isEmpty(), noListAddresses, Q_FUNC_INFO);
    }
}

FirmwareResetCmd *FirmwareResetCmd::clone() const
{
    return new FirmwareResetCmd(*this);
}

void FirmwareResetCmd::setDefaults()
{
    m_boardType = -1;
    m_boardAddresses.clear();
}

QList<QVariant> FirmwareResetCmd::parameters() const
{
    return {m_boardType, intListToVariant(m_boardAddresses)}; // variants of integer lists do not compare
}

XmlRpcValue FirmwareResetCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array[0] = m_boardType;
    if (!m_boardAddresses.isEmpty())
        EncodeXmlRpcValue(array[1], BOARD_ADDRESSES_TAG, m_boardAddresses);
    return array;
}

QList<int> FirmwareResetCmd::serialParameters(int) const
{
    return QList<int>{m_boardType} + m_boardAddresses;
}

void FirmwareResetCmd::setAllBoardAddress(int boardType)
{
    m_boardAddresses = FirmwareFile::boardAddresses(boardType, false);
}

bool FirmwareResetCmd::checkBoardType(int boardType)
{
    return FirmwareFile::checkBoardType(boardType);
}

bool FirmwareResetCmd::checkBoardAddress(int boardAddress)
{
    return FirmwareFile::checkBoardAddress(boardAddress, false);
}

bool FirmwareResetCmd::checkBoardAddresses(QList<int> boardAddresses)
{
    return std::all_of(boardAddresses.cbegin(), boardAddresses.cend(), checkBoardAddress);
}
