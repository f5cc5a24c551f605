// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/** GET_LEVEL_SENSORS: reads the level sensors of circuits; the answer is a GetLevelSensorsAnswer. */
class QUVPROTOCOL_EXPORT GetLevelSensorsCmd
    : public quv::DescribedCommand<GetLevelSensorsCmd, SerialProtoCommand>
{
public:
    struct Description;

    GetLevelSensorsCmd() = default; ///< no positions: whichever the firmware reads by itself
    explicit GetLevelSensorsCmd(const QList<int> &positions);
    /** The positions (array of ints), which may be left out. Throws DE02847 for another type. */
    explicit GetLevelSensorsCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list, whose first element is the list of positions. Throws DE02848 for another type. */
    explicit GetLevelSensorsCmd(QList<QVariant> list);
    explicit GetLevelSensorsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetLevelSensorsCmd(int) = delete;
    explicit GetLevelSensorsCmd(double) = delete;
    explicit GetLevelSensorsCmd(const char *) = delete;

    GetLevelSensorsCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<QVariant> parameters() const override;
    QList<int> serialParameters(int family) const override; ///< 0, then the positions
    /** 8 seconds for each time that as many sensors are read as circuits pour at once; 0 for what is no dispenser. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    bool isSupportedCommand(const FW_Version &version) const override;
    static bool checkSupportedCommand(const FW_Version &version);

    TString actionString(bool detailed) const override;

    const QList<int> &positions() const { return m_positions; }

private:
    QList<int> m_positions;
};
