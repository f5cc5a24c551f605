// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_gravimetricsettings.h>

/** GE_TEST: has the driver work out one test step of gravimetric dosing; the answer is a GETestAnswer. */
class QUVPROTOCOL_EXPORT GETestCmd : public quv::DescribedCommand<GETestCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char currentScaleWeight_TAG[] = "current_scale_weight";
    static constexpr char gravimetricSettings_TAG[] = "driver_GE_settings";

    GETestCmd() = default; ///< nothing on the scale, settings as those of a pump that nobody has set
    GETestCmd(double currentScaleWeight, const GravimetricSettings &settings);
    /**
     * A struct of the two. Throws DE02230 for what is no struct, DE02231 without a weight (double), DE02232 for settings that cannot
     * be read, and what GravimetricSettings throws.
     */
    explicit GETestCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a map, in which the settings may be the object itself. */
    explicit GETestCmd(QList<QVariant> list);
    explicit GETestCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GETestCmd(int) = delete;
    explicit GETestCmd(double) = delete;
    explicit GETestCmd(const char *) = delete;

    GETestCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    double currentScaleWeight() const { return m_currentScaleWeight; } ///< in grams
    const GravimetricSettings &gravimetricSettings() const { return m_gravimetricSettings; }

private:
    double m_currentScaleWeight = 0;
    GravimetricSettings m_gravimetricSettings;
};
