// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QtCore/QChar>

/**
 * BOARD_MEMORY: reads or writes the raw memory of a board. Two characters tell what to do and with what, numbers where and how
 * much; what they mean is the board's own.
 */
class QUVPROTOCOL_EXPORT BoardMemoryCmd : public quv::DescribedCommand<BoardMemoryCmd, SerialProtoCommand>
{
public:
    struct Description;

    BoardMemoryCmd() = default; ///< 'R', 'B' and no numbers
    BoardMemoryCmd(QChar operation, QChar subject, const QList<int> &address, const QList<int> &data);
    /**
     * Two texts of one character, then four numbers of the address and up to four of the data (int). Throws DE00402, DE00407,
     * DE00342, DE00558, DE00431 and DE00695 for the first to the sixth of another type, DE00695 also for those behind.
     */
    explicit BoardMemoryCmd(const XmlRpc::XmlRpcValue &value);
    explicit BoardMemoryCmd(QList<QVariant> list); ///< only counted: a list gives the command no values
    explicit BoardMemoryCmd(bool) = delete;        // would be an XML-RPC value, as would the next three
    explicit BoardMemoryCmd(int) = delete;
    explicit BoardMemoryCmd(double) = delete;
    explicit BoardMemoryCmd(const char *) = delete;

    BoardMemoryCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< none
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** The codes of the two characters, 0 for one from 256 on, then both lists. */
    QList<int> serialParameters(int family) const override;

    QChar operation() const { return m_operation; }
    QChar subject() const { return m_subject; }
    const QList<int> &address() const { return m_address; }
    const QList<int> &data() const { return m_data; }

private:
    QChar m_operation = QLatin1Char('R');
    QChar m_subject = QLatin1Char('B');
    QList<int> m_address;
    QList<int> m_data;
};
