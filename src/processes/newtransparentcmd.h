// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/commandcode.h"
#include "../base/describedcommand.h"

struct FW_Version;

/**
 * DEEP_SERVICE: hands a firmware command of the client's own through to a board of the machine; the answer is a
 * NewTransparentCmdAnswer. The module, through which the board is reached, is the serial address.
 */
class QUVPROTOCOL_EXPORT NewTransparentCmd
    : public quv::DescribedCommand<NewTransparentCmd, SerialProtoCommand>
{
public:
    struct Description;

    NewTransparentCmd() = default; ///< no command yet
    /** Throws DE03171 for a code that is not four hexadecimal digits. */
    NewTransparentCmd(int module, int board, const CommandCode &commandCode,
                      const QList<int> &commandParameters);
    /**
     * Module and board (ints), the code (a text of four hexadecimal digits) and optionally the command's parameters (array of ints).
     * Throws DE03172, DE03173, DE03174 or DE03175 for another type, DE03176 for a text that is no code.
     */
    explicit NewTransparentCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE03177 to DE03181 likewise. */
    explicit NewTransparentCmd(QList<QVariant> list);
    explicit NewTransparentCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit NewTransparentCmd(int) = delete;
    explicit NewTransparentCmd(double) = delete;
    explicit NewTransparentCmd(const char *) = delete;

    NewTransparentCmd *clone() const override;

    QList<QVariant> parameters() const override;
    /** Board, the two bytes of the code, and the command's parameters as they are. */
    QList<int> serialParameters(int family) const override;
    bool isSupportedCommand(const FW_Version &version) const override;
    static bool isCommandSupported(const FW_Version &version); ///< on every firmware whose version is known

    int board() const { return m_board; }
    const CommandCode &commandCode() const { return m_commandCode; }
    const QList<int> &commandParameters() const { return m_commandParameters; }

private:
    int m_board = 0;
    CommandCode m_commandCode;
    QList<int> m_commandParameters;
};
