// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** SCALE_RESET: restarts the scale. Only a driver makes it: in a client's request the name gives a plain command. */
class QUVPROTOCOL_EXPORT ScaleResetCmd : public quv::DescribedCommand<ScaleResetCmd, ConfProtoCommand>
{
public:
    struct Description;

    ScaleResetCmd() = default;
    explicit ScaleResetCmd(bool hardReset);
    /** Whether it is a hard reset (bool), optional. Throws DE02171 for another type. */
    explicit ScaleResetCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02172. */
    explicit ScaleResetCmd(QList<QVariant> list);
    explicit ScaleResetCmd(int) = delete; // would read as a flag, as would the next two
    explicit ScaleResetCmd(double) = delete;
    explicit ScaleResetCmd(const char *) = delete;

    ScaleResetCmd *clone() const override;

    bool hardReset() const { return m_hardReset; }

private:
    bool m_hardReset = false;
};
