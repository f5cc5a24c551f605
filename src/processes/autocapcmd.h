// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/** AUTOCAP_MOVE: moves the automatic cap that closes the nozzles. */
class QUVPROTOCOL_EXPORT AutocapCmd : public quv::DescribedCommand<AutocapCmd, SerialProtoCommand>
{
public:
    struct Description;

    /** 2 to 6 are further movements of the cap; the later ones need a newer firmware. */
    enum AutocapMovementType : int {
        Close = 0,
        Open = 1,
        Movement2,
        Movement3,
        Movement4,
        Movement5,
        Movement6
    };

    AutocapCmd() = default; ///< no movement yet
    explicit AutocapCmd(int movementType);
    /** The movement type (int). Throws DE00290 for another type; without one the base refuses (DE00312). */
    explicit AutocapCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00292 for another type; without one the base refuses (DE00313). */
    explicit AutocapCmd(QList<QVariant> list);
    explicit AutocapCmd(bool) = delete; // would read as a movement type, as would the next two
    explicit AutocapCmd(double) = delete;
    explicit AutocapCmd(const char *) = delete;

    AutocapCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Empty, and \a ok false, for no movement. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override;
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    QString commandString() const override;
    TString actionString(bool detailed) const override;

    int movementType() const { return m_movementType; }

    static bool checkMovementType(int movementType); ///< 0 to 6
    static bool isSupportedMovement(AutocapMovementType movementType, const FW_Version &version);
    /** 0 for no version, 2 for a firmware that has all movements, otherwise 1. */
    static int commandVersion(const FW_Version *version);

private:
    static constexpr int noMovement = -1;

    int m_movementType = noMovement;
};
