// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "configparams.h"

/**
 * CONFIG_PARAM: reads or writes a few parameters of a machine by their names; carried out by the driver. Either way the answer is
 * a ConfigParamAnswer. So far there is one group of parameters, those of the ultrasound cleaning: "ultrasound_duration",
 * "emptying_time" and "filling_time", in seconds.
 */
class QUVPROTOCOL_EXPORT ConfigParamCmd : public quv::DescribedCommand<ConfigParamCmd, ConfProtoCommand>,
                                          public ConfigParams
{
public:
    struct Description;

    /** The groups of parameters; a number without a name is another driver's. */
    enum ConfigParam : int { UltrasoundCleaning = 0 };
    enum ConfigCmdType : int { Read = 0, Write = 1 };

    ConfigParamCmd() = default;
    ConfigParamCmd(ConfigParam configParam, ConfigCmdType type, const QMap<QString, QVariant> &params = {});
    /**
     * The group and the type (int), then the parameters as the struct of ConfigParams, which may be left out. Throws DE02816 and
     * DE02817 for another type, and as ConfigParams; the base counts two arguments before (DE00312).
     */
    explicit ConfigParamCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list, with the parameters as a map. Throws DE02818 and DE02819, as ConfigParams, and the base DE00313. */
    explicit ConfigParamCmd(QList<QVariant> list);
    explicit ConfigParamCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ConfigParamCmd(int) = delete;
    explicit ConfigParamCmd(double) = delete;
    explicit ConfigParamCmd(const char *) = delete;

    ConfigParamCmd *clone() const override;
    using DescribedCommand::setDefaults;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    ConfigParam configParam() const { return static_cast<ConfigParam>(m_configParam); }
    ConfigCmdType configCmdType() const { return static_cast<ConfigCmdType>(m_configCmdType); }

    /**
     * For the driver: gives the machine the parameters of a command that writes. False when that changes nothing: for a command that
     * reads, a machine without ultrasound cleaning (none, a mixer), and no parameter that it knows. One of another type is passed over.
     */
    bool updateMachine(FW_Machine *machine) const;
    /** What the answer tells of the machine: all parameters, or none without ultrasound cleaning. */
    static QMap<QString, QVariant> buildAnswerParams(const FW_Machine *machine);

    bool operator==(const ConfigParamCmd &other) const; ///< all arguments, not only the parameters
    bool operator!=(const ConfigParamCmd &other) const { return !(*this == other); }

private:
    int m_configParam = UltrasoundCleaning;
    int m_configCmdType = Read;
};
