// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "../base/scaleprotocommand.h"

/** TARE: makes what is on the scale its tare. */
class QUVPROTOCOL_EXPORT TareCmd : public quv::DescribedCommand<TareCmd, ScaleProtoCommand>
{
public:
    struct Description;

    TareCmd() = default; ///< at once, and checked
    TareCmd(bool stability, bool checkTare);
    /** Stability and check of the tare (bool), each optional. Throws DE02102 or DE02103 for one of another type. */
    explicit TareCmd(const XmlRpc::XmlRpcValue &value);
    explicit TareCmd(QList<QVariant> list); ///< the same as a list
    explicit TareCmd(bool) = delete;        // would be an XML-RPC value, as would the next three
    explicit TareCmd(int) = delete;
    explicit TareCmd(double) = delete;
    explicit TareCmd(const char *) = delete;

    TareCmd *clone() const override;

    bool stability() const { return m_stability; } ///< true when the scale waits for a stable weight first
    bool checkTare() const { return m_checkTare; } ///< true when it is weighed again to see that it is 0

private:
    bool m_stability = false;
    bool m_checkTare = true;
};
