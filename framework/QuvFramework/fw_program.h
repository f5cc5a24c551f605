// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>
#include <QuvFramework/fw_version.h>

#include <QtCore/QMetaType>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The firmware on a board: its application and, where the board tells it, its boot loader. Travels in a QVariant under its name, also
 * as the map that its struct is; over XML-RPC a struct of the members below, of which a version is an array of its six integers, or
 * an empty one while nobody knows it.
 */
class QUVFRAMEWORK_EXPORT FW_Program
{
public:
    static constexpr char BOARD_ADDRESS[] = "board_address"; ///< int
    static constexpr char APP_VERSION[] = "app_version";
    static constexpr char BOOT_VERSION[] = "boot_version";

    static constexpr int noAddress = -1; ///< of a board that was asked by itself

    FW_Program() = default;
    FW_Program(int boardAddress, const FW_Version &application, const FW_Version &bootLoader);
    /**
     * Hexadecimal tokens: the address of a slave board, when it is one; the application's version; and of a board that tells it
     * the boot loader's in the same length. A version is its six integers, or family and revision alone.
     * \throws std::invalid_argument for another number of tokens, and for one that is no number of 31 bits
     */
    FW_Program(const QStringList &tokens, bool isSlave);
    /** \throws std::invalid_argument for a member that is missing, of another type, or no version */
    explicit FW_Program(const XmlRpc::XmlRpcValue &value);
    explicit FW_Program(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FW_Program(int) = delete;
    explicit FW_Program(double) = delete;
    explicit FW_Program(const char *) = delete;

    int boardAddress() const { return m_boardAddress; }
    const FW_Version &applicationVersion() const { return m_application; }
    /** Not valid when the board does not tell it. */
    const FW_Version &bootLoaderVersion() const { return m_bootLoader; }

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Program &other) const;
    bool operator!=(const FW_Program &other) const { return !(*this == other); }

private:
    int m_boardAddress = noAddress;
    FW_Version m_application;
    FW_Version m_bootLoader;
};

Q_DECLARE_METATYPE(FW_Program)
