// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** LOGOUT: ends a session. */
class QUVPROTOCOL_EXPORT LogoutCmd : public quv::DescribedCommand<LogoutCmd, ConfProtoCommand>
{
public:
    struct Description;

    LogoutCmd() = default;
    explicit LogoutCmd(QString sessionID);
    explicit LogoutCmd(
        const XmlRpc::XmlRpcValue &value);     ///< the session ID, a string; throws DE00162 for another type
    explicit LogoutCmd(QList<QVariant> list);  ///< likewise
    explicit LogoutCmd(const char *) = delete; // a QString or a value? say which

    LogoutCmd *clone() const override;

    QString sessionID() const { return m_sessionID; }

private:
    QString m_sessionID;
};
