// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/** ZDR_CYCLE_OPERATION: runs a whole work cycle of the capping station. What its numbers mean is the firmware's. */
class QUVPROTOCOL_EXPORT ZDRCycleOperationCmd
    : public quv::DescribedCommand<ZDRCycleOperationCmd, SerialProtoCommand>
{
public:
    struct Description;

    enum CycleType : int { DefaultCycle = 2 }; ///< any number is taken

    ZDRCycleOperationCmd() = default;
    explicit ZDRCycleOperationCmd(CycleType cycleType, int parameter1 = 0, int parameter2 = 0);
    /** Cycle type and two parameters (ints), none required. Throws DE02879 to DE02881 for the first of another type. */
    explicit ZDRCycleOperationCmd(const XmlRpc::XmlRpcValue &value);
    explicit ZDRCycleOperationCmd(QList<QVariant> list); ///< the same as a list
    explicit ZDRCycleOperationCmd(bool) = delete;        // would be an XML-RPC value, as would the next three
    explicit ZDRCycleOperationCmd(int) = delete;
    explicit ZDRCycleOperationCmd(double) = delete;
    explicit ZDRCycleOperationCmd(const char *) = delete;

    ZDRCycleOperationCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< the three in their order
    bool isSupportedCommand(const FW_Version &version) const override;
    static bool checkSupportedCommand(const FW_Version &version); ///< family 63 above revision 38

    CycleType cycleType() const { return static_cast<CycleType>(m_cycleType); }
    int parameter1() const { return m_parameter1; }
    int parameter2() const { return m_parameter2; }

private:
    int m_cycleType = DefaultCycle;
    int m_parameter1 = 0;
    int m_parameter2 = 0;
};
