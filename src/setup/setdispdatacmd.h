// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

class FW_Dispenser;

/** SET_DISP_DATA: gives the dispenser another description; carried out by the driver. */
class QUVPROTOCOL_EXPORT SetDispDataCmd : public quv::DescribedCommand<SetDispDataCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetDispDataCmd() = default;
    /** The description (string). Throws DE00684 for another type; without it the base refuses (DE00312). */
    SetDispDataCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list. Throws DE00804, and the base DE00313. */
    SetDispDataCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    SetDispDataCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QString dispenserDescription() const { return m_dispenserDescription; }

private:
    QString m_dispenserDescription;
};
