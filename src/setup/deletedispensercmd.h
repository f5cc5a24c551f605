// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QtCore/QList>

/** DELETE_DISPENSER: makes the driver forget dispensers. */
class QUVPROTOCOL_EXPORT DeleteDispenserCmd
    : public quv::DescribedCommand<DeleteDispenserCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char dispIDList_TAG[] = "disp_id_list";

    DeleteDispenserCmd() = default; ///< none
    explicit DeleteDispenserCmd(QList<int> dispIDs);
    /**
     * A struct with "disp_id_list", an array of ints. Throws DE01529 for what is no struct and without the array, DE01532 for an element
     * of another type.
     */
    explicit DeleteDispenserCmd(const XmlRpc::XmlRpcValue &value);
    /** A list of ints. Throws DE01528 for an empty list of arguments, DE01527 for another type. */
    explicit DeleteDispenserCmd(QList<QVariant> list);
    explicit DeleteDispenserCmd(int) = delete; // would be an XML-RPC value

    DeleteDispenserCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QVariant dispIDValue() const { return QVariant::fromValue(m_dispIDs); } ///< a QList<int>

private:
    QList<int> m_dispIDs;
};
