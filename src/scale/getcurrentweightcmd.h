// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** GET_CURRENT_WEIGHT: asks for the weight that the driver knows; the answer is a WeightAnswer. */
class QUVPROTOCOL_EXPORT GetCurrentWeightCmd
    : public quv::DescribedCommand<GetCurrentWeightCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetCurrentWeightCmd() = default;
    explicit GetCurrentWeightCmd(bool forceReading);
    /** Whether to weigh again (bool), optional. Throws DE02166 for another type. */
    explicit GetCurrentWeightCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetCurrentWeightCmd(QList<QVariant> list); ///< the same as a list
    explicit GetCurrentWeightCmd(int) = delete;         // would read as a flag, as would the next two
    explicit GetCurrentWeightCmd(double) = delete;
    explicit GetCurrentWeightCmd(const char *) = delete;

    GetCurrentWeightCmd *clone() const override;

    bool forceReading() const { return m_forceReading; } ///< true when the driver is to weigh again

private:
    bool m_forceReading = false;
};
