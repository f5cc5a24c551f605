// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/** ZDR_ACTUATOR_MOVE: moves one actuator of the capping station. What its numbers mean is the firmware's. */
class QUVPROTOCOL_EXPORT ZDRActuatorMovingCmd
    : public quv::DescribedCommand<ZDRActuatorMovingCmd, SerialProtoCommand>
{
public:
    struct Description;

    // Any number is taken for either.
    enum ActuatorType : int { DefaultActuator = 1 };
    enum ActuatorOperation : int { NoOperation = 245 }; ///< not set

    ZDRActuatorMovingCmd() = default;
    /** Of the default actuator. */
    explicit ZDRActuatorMovingCmd(ActuatorOperation operation, int parameter1 = 0,
                                  int parameter2 = defaultParameter2, int parameter3 = defaultParameter3,
                                  int value = 0);
    explicit ZDRActuatorMovingCmd(ActuatorType actuatorType, int operation = NoOperation, int parameter1 = 0,
                                  int parameter2 = defaultParameter2, int parameter3 = defaultParameter3,
                                  int value = 0);
    /**
     * Actuator type, operation, three parameters and a value (ints), none required. Throws DE02882 to DE02887 for the first
     * of another type.
     */
    explicit ZDRActuatorMovingCmd(const XmlRpc::XmlRpcValue &value);
    explicit ZDRActuatorMovingCmd(QList<QVariant> list); ///< the same as a list
    explicit ZDRActuatorMovingCmd(bool) = delete;        // would be an XML-RPC value, as would the next three
    explicit ZDRActuatorMovingCmd(int) = delete;
    explicit ZDRActuatorMovingCmd(double) = delete;
    explicit ZDRActuatorMovingCmd(const char *) = delete;

    ZDRActuatorMovingCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** The first five in their order; of a value above 0 the number of its digits and the digits. */
    QList<int> serialParameters(int family) const override;
    bool isSupportedCommand(const FW_Version &version) const override;
    static bool checkSupportedCommand(const FW_Version &version); ///< family 63 above revision 38

    ActuatorType actuatorType() const { return static_cast<ActuatorType>(m_actuatorType); }
    ActuatorOperation operation() const { return static_cast<ActuatorOperation>(m_operation); }
    int parameter1() const { return m_parameter1; }
    int parameter2() const { return m_parameter2; }
    int parameter3() const { return m_parameter3; }
    int value() const { return m_value; }

private:
    static constexpr int defaultParameter2 = 64;
    static constexpr int defaultParameter3 = 245;

    int m_actuatorType = DefaultActuator;
    int m_operation = NoOperation;
    int m_parameter1 = 0;
    int m_parameter2 = defaultParameter2;
    int m_parameter3 = defaultParameter3;
    int m_value = 0;
};
