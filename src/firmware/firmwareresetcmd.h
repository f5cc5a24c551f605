// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

class FirmwareFile;

/** RESET_FW: restarts boards of one type. The firmware gets the type and the address of each board. */
class QUVPROTOCOL_EXPORT FirmwareResetCmd : public quv::DescribedCommand<FirmwareResetCmd, SerialProtoCommand>
{
public:
    struct Description;

    static constexpr char BOARD_ADDRESSES_TAG[] = "board_addresses";

    FirmwareResetCmd() = default; ///< type -1, no addresses
    /** All boards of the type. Throws DE00821 for a type that there is not. */
    explicit FirmwareResetCmd(int boardType);
    /** Throws DE00821 for a type and DE00823 for an address that there is not. */
    FirmwareResetCmd(int boardType, int boardAddress);
    FirmwareResetCmd(int boardType, QList<int> boardAddresses); ///< throws DE01486 and DE01487 likewise
    /** The boards of the file. Throws DE01489 and DE01490 likewise. */
    explicit FirmwareResetCmd(const FirmwareFile &file);
    // The two that decode check no range: which boards there are is for the firmware to say.
    /**
     * The type (int), and a struct with the array of the addresses (ints), which may be left out for none. Throws DE00826 for
     * another type of the first, DE00827 for a second that gives no address; without any argument the base refuses (DE00312).
     */
    explicit FirmwareResetCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The type, and the list of the addresses, which may be left out for none. Throws DE00829 for another type of the first,
     * DE00830 for an address that is no int, DE01488 for a second that gives no address; without any argument the base refuses
     * (DE00313).
     */
    explicit FirmwareResetCmd(QList<QVariant> list);
    explicit FirmwareResetCmd(bool) = delete; // would read as a type, as would the next two
    explicit FirmwareResetCmd(double) = delete;
    explicit FirmwareResetCmd(const char *) = delete;

    FirmwareResetCmd *clone() const override;
    void setDefaults();

    /** Always both arguments, so that a command without addresses is not read back. */
    QList<QVariant> parameters() const override;
    /** The type, and with addresses the struct of them. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override; ///< the type, then the addresses

    int boardType() const { return m_boardType; }
    const QList<int> &boardAddresses() const { return m_boardAddresses; }
    void setAllBoardAddress(int boardType); ///< the addresses of all boards of the type

    // As FirmwareFile checks them; the address that stands for all boards is none.
    static bool checkBoardType(int boardType);
    static bool checkBoardAddress(int boardAddress);
    static bool checkBoardAddresses(QList<int> boardAddresses); ///< true for none

private:
    int m_boardType = -1;
    QList<int> m_boardAddresses;
};
