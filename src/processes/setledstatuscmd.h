// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QtGui/QColor>

/** What a led shows; the values between are the firmware's own. */
enum class LedMode : int {
    Colour = 0, ///< that of the command
    Unset = 245
};

/** SET_LED_STATUS: switches a led and sets its colour. */
class QUVPROTOCOL_EXPORT SetLedStatusCmd : public quv::DescribedCommand<SetLedStatusCmd, SerialProtoCommand>
{
public:
    struct Description;

    SetLedStatusCmd() = default;
    SetLedStatusCmd(int led, LedMode mode, const QColor &colour);
    /**
     * Led (int), and optionally mode (int) and colour, a text as "#AARRGGBB", "#RRGGBB" or a name of a colour, empty for none. Throws
     * DE02271, DE02272 or DE02273 for another type of argument, and for a mode or a colour that there is not.
     */
    explicit SetLedStatusCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list, in which the colour may be a QColor. Throws DE02274, DE02335 or DE02336 likewise. */
    explicit SetLedStatusCmd(QList<QVariant> list);
    explicit SetLedStatusCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetLedStatusCmd(int) = delete;
    explicit SetLedStatusCmd(double) = delete;
    explicit SetLedStatusCmd(const char *) = delete;

    SetLedStatusCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< the colour as "#AARRGGBB", empty for none
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** Led, mode and five values: in the mode of the colour the digits of its four bytes, which zeros follow, else five zeros. */
    QList<int> serialParameters(int family) const override;

    int led() const { return m_led; }
    LedMode mode() const { return m_mode; }
    const QColor &colour() const { return m_colour; }

    static bool checkLedMode(int mode); ///< 0 to 245

private:
    int m_led = 0;
    LedMode m_mode = LedMode::Unset;
    QColor m_colour;
};
