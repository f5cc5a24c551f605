// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** TOGGLE_TEMPORIZED: holds stirring, recirculation and other timed processes, or lets them run again. */
class QUVPROTOCOL_EXPORT ToggleTemporizedCmd
    : public quv::DescribedCommand<ToggleTemporizedCmd, SerialProtoCommand>
{
public:
    struct Description;

    /** Bits of the process mask. */
    enum TimedProcess : int { Recirculation = 1, Stirring = 2, Humidifier = 4, Cleaning = 8 };

    static constexpr int defaultFreezeTimeout = 120; ///< seconds

    ToggleTemporizedCmd() = default; ///< holds all processes for 120 seconds
    /** \a processMask: 0 for all processes. Throws DE00518 for a bad mask, DE00519 for a bad timeout. */
    ToggleTemporizedCmd(bool disable, int processMask, int freezeTimeout);
    /**
     * Disable (bool), process mask and freeze timeout (ints), all of which may be left out. Throws DE00508, DE00509 or DE00511 for
     * another type, DE00510 for a bad mask, DE00512 for a bad timeout.
     */
    explicit ToggleTemporizedCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00513, DE00514, DE00516, DE00515 and DE00517 likewise. */
    explicit ToggleTemporizedCmd(QList<QVariant> list);
    explicit ToggleTemporizedCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ToggleTemporizedCmd(int) = delete;
    explicit ToggleTemporizedCmd(double) = delete;
    explicit ToggleTemporizedCmd(const char *) = delete;

    ToggleTemporizedCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** In family 1 a working mode, the mask and the timeout; none in family 2, whose code says all. */
    QList<int> serialParameters(int family) const override;

    QString commandString() const override;
    TString actionString(bool detailed) const override;

    bool disable() const { return m_disable; }
    int processMask() const { return m_processMask; }
    int freezeTimeout() const { return m_freezeTimeout; } ///< seconds

    static bool checkProcessMask(int mask);      ///< 0 to 15
    static bool checkFreezeTimeout(int timeout); ///< 0 to 245

private:
    bool m_disable = true;
    int m_processMask = 0;
    int m_freezeTimeout = defaultFreezeTimeout;
};
