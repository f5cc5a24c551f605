// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/**
 * GET_STATS_ERRORS: asks the driver for the history of errors in its statistics, of all errors or of some. The answer is a
 * GetStatsErrorsAnswer.
 */
class QUVPROTOCOL_EXPORT GetStatsErrorsCmd : public quv::DescribedCommand<GetStatsErrorsCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetStatsErrorsCmd() = default; ///< all errors
    GetStatsErrorsCmd(int errorType, int positionID, const QString &errorCode);
    /** All may be left out. Throws DE01385 (type), DE01386 (position) and DE01387 (code) for one of another type. */
    explicit GetStatsErrorsCmd(const XmlRpc::XmlRpcValue &value);
    /** Likewise. Throws DE01388 (type), DE01389 (position) and DE01390 (code). */
    explicit GetStatsErrorsCmd(QList<QVariant> list);
    explicit GetStatsErrorsCmd(int) = delete; // would be an XML-RPC value

    GetStatsErrorsCmd *clone() const override;

    int errorType() const { return m_errorType; }            ///< FW_Error::Type; 0 for all
    int positionID() const { return m_positionID; }          ///< 0 for all
    const QString &errorCode() const { return m_errorCode; } ///< empty for all

private:
    int m_errorType = 0;
    int m_positionID = 0;
    QString m_errorCode;
};
