// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * New firmware for boards of one type: the image, and the addresses of the boards that are to get it. Travels in a QVariant under
 * its name, also as the map that its struct is; over XML-RPC a struct of the members below.
 *
 * Board types are 1 to 15. Type 2 is the board of a circuit, whose address is the circuit's position, 1 to 200; of any other type a
 * machine has one board, with the address 200 + type. The address 0 stands for all boards of a type.
 */
class QUVFRAMEWORK_EXPORT FirmwareFile
{
public:
    static constexpr char IMAGE[] = "image";                     ///< binary
    static constexpr char BOARD_ADDRESSES[] = "board_addresses"; ///< array of ints
    static constexpr char BOARD_TYPE[] = "board_type";           ///< int
    static constexpr char PARALLEL_SEND[] = "parallel_send";     ///< bool; false where it is missing

    FirmwareFile() = default; ///< no image, no boards, type -1
    FirmwareFile(const QByteArray &image, const QList<int> &addresses, int boardType);
    /** Type and addresses are not checked. \throws std::invalid_argument for a member that is missing or of another type */
    explicit FirmwareFile(const XmlRpc::XmlRpcValue &value);
    explicit FirmwareFile(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FirmwareFile(int) = delete;
    explicit FirmwareFile(double) = delete;
    explicit FirmwareFile(const char *) = delete;

    const QByteArray &image() const { return m_image; }
    const QList<int> &addresses() const { return m_addresses; }
    int boardType() const { return m_boardType; }
    /** True when the boards take the image all at once, so that it is sent in full to the first of them alone. */
    bool isParallelSendSupported() const { return m_parallelSend; }
    void setParallelSendSupported(bool supported) { m_parallelSend = supported; }

    static bool checkBoardType(int boardType);
    /** With \a orAll the 0 that stands for all boards is an address, too. */
    static bool checkBoardAddress(int address, bool orAll);
    /** The addresses that boards of the type can have, with \a orAll 0 before them; none for a type that there is not. */
    static QList<int> boardAddresses(int boardType, bool orAll);

    QString traceString() const; ///< one line for people, in English
    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FirmwareFile &other) const;
    bool operator!=(const FirmwareFile &other) const { return !(*this == other); }

private:
    QByteArray m_image;
    QList<int> m_addresses;
    int m_boardType = -1;
    bool m_parallelSend = false;
};

/** An update: its files in the order in which they are sent. Travels in a QVariant under the name "FirmwareFiles". */
using FirmwareFiles = QList<FirmwareFile>;

Q_DECLARE_METATYPE(FirmwareFile)
