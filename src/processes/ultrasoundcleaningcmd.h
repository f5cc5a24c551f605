// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "fwprocess.h"

/** ULTRASOUND_CLEAN: fills the ultrasound station, cleans in it and empties it, or one of the three. */
class QUVPROTOCOL_EXPORT UltrasoundCleaningCmd
    : public quv::DescribedCommand<UltrasoundCleaningCmd, SerialProtoCommand>,
      public FWProcess
{
public:
    struct Description;

    enum UltrasoundCleaningType : int { FullCleaning = 1, Emptying = 2, Filling = 3, Clean = 4 };

    /** The duration that stands for the one that the station is configured to. */
    static constexpr int configuredDuration = 245;

    UltrasoundCleaningCmd() = default; ///< the full cleaning
    /** A duration of 0 and below leaves the default. Throws DE01745 for a bad duration. */
    UltrasoundCleaningCmd(UltrasoundCleaningType type, qlonglong duration);
    /**
     * The type, then the duration (int), which may be left out. Throws DE02193 or DE02195 for another type of argument,
     * DE02192 or DE02194 for a type or duration that there is not.
     */
    explicit UltrasoundCleaningCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * Both as a list, whose ranges are not checked. Throws DE02196 or DE02198 for another type of argument, DE02197 or
     * DE02199 when one is missing.
     */
    explicit UltrasoundCleaningCmd(QList<QVariant> list);

    UltrasoundCleaningCmd *clone() const override;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** The type; but for the full cleaning also two digits of the duration. */
    QList<int> serialParameters(int family) const override;
    /** By the duration, or by the times of the dispenser's station. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    TString actionString(bool detailed) const override;

    UltrasoundCleaningType type() const { return static_cast<UltrasoundCleaningType>(m_type); }
    static bool checkCleaningType(int type); ///< 1 to 4

private:
    int m_type = FullCleaning;
};
