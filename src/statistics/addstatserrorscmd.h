// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_errorlist.h>

/** ADD_STATS_ERRORS: adds errors to the history in the driver's statistics. Over XML-RPC its one argument is a struct of one array. */
class QUVPROTOCOL_EXPORT AddStatsErrorsCmd : public quv::DescribedCommand<AddStatsErrorsCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char errorList_TAG[] = "error_list";

    AddStatsErrorsCmd() = default; ///< no errors
    explicit AddStatsErrorsCmd(const FW_ErrorList &errors);
    /** Throws DE02896 without an array "error_list" in a struct, and what FW_ErrorList throws of its elements. */
    explicit AddStatsErrorsCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * An FW_ErrorList, or a list of variants of which each is an error of any kind, or the map that stands for it. Throws DE02897 for
     * anything else, and what FW_ErrorList throws of a bad map.
     */
    explicit AddStatsErrorsCmd(QList<QVariant> list);
    explicit AddStatsErrorsCmd(int) = delete; // would be an XML-RPC value

    AddStatsErrorsCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const FW_ErrorList &errorList() const { return m_errors; }

private:
    FW_ErrorList m_errors;
};
