// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** GET_CONFIG: asks the driver for the configuration of its machines; the answer is a GetConfigAnswer. */
class QUVPROTOCOL_EXPORT GetConfigCmd : public quv::DescribedCommand<GetConfigCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetConfigCmd(); ///< of the default type
    /** One that is not valid leaves the default. */
    explicit GetConfigCmd(int configurationType);
    /** One optional int, the configuration type. Throws DE00930 for another type, DE00929 for one that is not valid. */
    explicit GetConfigCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetConfigCmd(QList<QVariant> list); ///< keeps the list as it is
    explicit GetConfigCmd(bool) = delete;        // would read as a configuration type, as would the next two
    explicit GetConfigCmd(double) = delete;
    explicit GetConfigCmd(const char *) = delete;

    GetConfigCmd *clone() const override;

    /** The default type stands for that of a command without arguments. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    static bool isAValidConfigurationType(int configurationType); ///< 0 and 1
    static int defaultConfigurationType() { return 0; }
    int configurationType() const; ///< the first argument; -1 when there is none or it is no int
    bool
    setConfigurationType(int configurationType); ///< false, and nothing changes, for one that is not valid
};
