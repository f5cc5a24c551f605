// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "../base/scaleprotocommand.h"

#include <QuvFramework/scaleutils.h>

/** TARE_SET: gives the scale a tare that is known, without weighing it. */
class QUVPROTOCOL_EXPORT TareSetCmd : public quv::DescribedCommand<TareSetCmd, ScaleProtoCommand>
{
public:
    struct Description;

    TareSetCmd() = default; ///< 0
    TareSetCmd(double presetValue, ScaleUtils::ScaleUnit unit);
    /** Preset value (double) and unit (int), each optional. Throws DE02104 or DE02105 for one of another type. */
    explicit TareSetCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02106 or DE02107, whose text asks for a DOUBLE. */
    explicit TareSetCmd(QList<QVariant> list);
    explicit TareSetCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit TareSetCmd(int) = delete;
    explicit TareSetCmd(double) = delete;
    explicit TareSetCmd(const char *) = delete;

    TareSetCmd *clone() const override;

    double presetValue() const { return m_presetValue; }
    ScaleUtils::ScaleUnit scaleUnit() const { return static_cast<ScaleUtils::ScaleUnit>(m_scaleUnit); }

private:
    double m_presetValue = 0;
    int m_scaleUnit = ScaleUtils::NoUnit; // as it travels
};
