// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** GET_SHELF_POS: asks a dispenser's firmware how high the shelf stands; the answer is a GetShelfPosAnswer. */
class QUVPROTOCOL_EXPORT GetShelfPosCmd : public quv::DescribedCommand<GetShelfPosCmd, SerialProtoCommand>
{
public:
    struct Description;

    GetShelfPosCmd() = default;
    explicit GetShelfPosCmd(int positionType); ///< not checked
    /** One optional int, the position type. Throws DE01439 for another type, DE01438 for a position type that there is not. */
    explicit GetShelfPosCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01440 and DE01441 likewise. */
    explicit GetShelfPosCmd(QList<QVariant> list);
    explicit GetShelfPosCmd(bool) = delete; // would read as a position type, as would the next two
    explicit GetShelfPosCmd(double) = delete;
    explicit GetShelfPosCmd(const char *) = delete;

    GetShelfPosCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override;

    int positionType() const { return m_positionType; }

    static bool checkPositionType(int positionType); ///< 3 alone

private:
    static constexpr int onlyPositionType = 3;

    int m_positionType = onlyPositionType;
};
