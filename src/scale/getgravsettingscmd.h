// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** GET_GRAV_SETTINGS: asks how circuits are dosed by a scale; the answer is a GravSettingsAnswer. */
class QUVPROTOCOL_EXPORT GetGravSettingsCmd
    : public quv::DescribedCommand<GetGravSettingsCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char positionsID_TAG[] = "positions_id";

    GetGravSettingsCmd() = default; ///< of all circuits
    explicit GetGravSettingsCmd(const QList<int> &positions);
    /**
     * One optional struct with an array of positions. Throws DE02410 for what is no struct, DE02411 without the member, DE02412 when
     * it is no array, and DE02409 for an element that is no int.
     */
    explicit GetGravSettingsCmd(const XmlRpc::XmlRpcValue &value);
    /** One optional list of positions. Throws DE02412 when it is none, and DE02409 for an element that is no int. */
    explicit GetGravSettingsCmd(QList<QVariant> list);
    explicit GetGravSettingsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetGravSettingsCmd(int) = delete;
    explicit GetGravSettingsCmd(double) = delete;
    explicit GetGravSettingsCmd(const char *) = delete;

    GetGravSettingsCmd *clone() const override;

    QList<QVariant> parameters() const override;                              ///< nothing for all circuits
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override; ///< likewise

    const QList<int> &positionsID() const { return m_positions; } ///< none stands for all

private:
    QList<int> m_positions;
};
