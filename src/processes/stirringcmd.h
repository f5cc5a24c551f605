// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <type_traits>

/**
 * STIRRING: turns the stirring motor of a circuit, or of all circuits. The position is the serial address, 0 for all; a
 * duration of 0 stops the motor.
 */
class QUVPROTOCOL_EXPORT StirringCmd : public quv::DescribedCommand<StirringCmd, SerialProtoCommand>
{
public:
    struct Description;

    StirringCmd() = default; ///< all circuits for 30 seconds
    /** All circuits, for so many seconds. Throws DE01891 for a duration that there is not. */
    explicit StirringCmd(qlonglong duration);
    // a flag, a fraction or a text is no duration
    template <class T, std::enable_if_t<std::is_same_v<T, bool> || std::is_floating_point_v<T> ||
                                            std::is_same_v<T, const char *>,
                                        int> = 0>
    explicit StirringCmd(T) = delete;
    /** Throws DE01892 for a duration that there is not. */
    StirringCmd(int position, qlonglong duration, bool busyExecution);
    /**
     * Position and duration (int), then busy execution (bool), which may be left out. Throws DE00646 to DE00649 or DE02607
     * for what is missing or has another type, DE01893 for a duration that there is not.
     */
    explicit StirringCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00650 to DE00653 or DE02608; DE00652 also for a duration that there is not. */
    explicit StirringCmd(QList<QVariant> list);
    StirringCmd(const StirringCmd &other) = default;  ///< deep
    StirringCmd &operator=(const StirringCmd &other); ///< likewise; lists of the commands need it
    ~StirringCmd() override = default;

    StirringCmd *clone() const override;

    /** Two digits of the seconds, busy execution. */
    QList<int> serialParameters(int family) const override;
    /** Of a dispenser, when the command lasts as long as the stirring: for busy execution, or all circuits. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    TString actionString(bool detailed) const override;

    long long duration() const { return m_duration; } ///< seconds
    bool isBusyExecution() const { return m_busyExecution; }

    static long long infiniteDuration();                        ///< 60515: no end
    static long long maxDuration();                             ///< 60514
    static int maxDuration(const QList<StirringCmd> &commands); ///< the greatest of theirs; 0 for none
    static bool checkDuration(long long duration); ///< 0 to maxDuration(), and infiniteDuration()
    static bool isStirAllSupported(const FW_Version &version);
    static bool isBusyExecutionSupported(const FW_Version &version);
    /** 0 for no version, 2 for a firmware that has all circuits and busy execution, 1 without the latter, otherwise 0. */
    static int commandVersion(const FW_Version *version);

private:
    long long m_duration = 30;
    bool m_busyExecution = false;
};
