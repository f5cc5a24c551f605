// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** CLONE_DISPENSER: makes a copy of what the driver keeps of a dispenser; the answer is a CloneDispenserAnswer. */
class QUVPROTOCOL_EXPORT CloneDispenserCmd : public quv::DescribedCommand<CloneDispenserCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char dispData_TAG[] = "disp_data";
    static constexpr char dispID_TAG[] = "disp_id";

    CloneDispenserCmd() = default; ///< of dispenser 0
    explicit CloneDispenserCmd(int dispID);
    /**
     * A struct with "disp_data", a struct of "disp_id" (int). Throws DE01535 for what is no struct, DE01536 without the data, DE01537 for
     * data that are no struct, DE01538 without the ID.
     */
    explicit CloneDispenserCmd(const XmlRpc::XmlRpcValue &value);
    /** The ID (int). Throws DE01534 for an empty list, DE01533 for another type. */
    explicit CloneDispenserCmd(QList<QVariant> list);
    explicit CloneDispenserCmd(bool) = delete; // would read as an ID, as would the next two
    explicit CloneDispenserCmd(double) = delete;
    explicit CloneDispenserCmd(const char *) = delete;

    CloneDispenserCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QVariant dispIDValue() const { return m_dispID; }

private:
    int m_dispID = 0;
};
