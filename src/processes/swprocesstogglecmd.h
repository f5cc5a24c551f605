// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/** SW_PROCESS_TOGGLE: switches a software process of the machine. What its four numbers mean is the firmware's. */
class QUVPROTOCOL_EXPORT SwProcessToggleCmd
    : public quv::DescribedCommand<SwProcessToggleCmd, SerialProtoCommand>
{
public:
    struct Description;

    SwProcessToggleCmd() = default;
    SwProcessToggleCmd(int first, int second, int third, int fourth);
    /** The four numbers (ints), of which the last two may be left out. Throws DE02572 to DE02575, one each, for another type. */
    explicit SwProcessToggleCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02905 to DE02908 likewise. */
    explicit SwProcessToggleCmd(QList<QVariant> list);
    explicit SwProcessToggleCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SwProcessToggleCmd(int) = delete;
    explicit SwProcessToggleCmd(double) = delete;
    explicit SwProcessToggleCmd(const char *) = delete;

    SwProcessToggleCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< the four numbers
    bool isSupportedCommand(const FW_Version &version) const override;

    int first() const { return m_first; }
    int second() const { return m_second; }
    int third() const { return m_third; }
    int fourth() const { return m_fourth; }

private:
    int m_first = 1;
    int m_second = 1;
    int m_third = 0;
    int m_fourth = 0;
};
