// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** CERTIFY_SESSION: shows the driver the session's key, which GetKeyCmd::createLoginKey gives; the answer is a CertifySessionAnswer. */
class QUVPROTOCOL_EXPORT CertifySessionCmd : public quv::DescribedCommand<CertifySessionCmd, ConfProtoCommand>
{
public:
    struct Description;

    CertifySessionCmd() = default;
    CertifySessionCmd(QString sessionID, QString sharedKey);
    /**
     * Session ID and key, both strings. Throws DE01031 or DE01030 (empty) for the first; DE01035, DE01034 (empty) or DE01032
     * (no int in it) for the second.
     */
    explicit CertifySessionCmd(const XmlRpc::XmlRpcValue &value);
    explicit CertifySessionCmd(QList<QVariant> list); ///< likewise

    CertifySessionCmd *clone() const override;

    QString sessionID() const { return m_sessionID; }
    QString sharedKey() const { return m_sharedKey; }

private:
    QString m_sessionID;
    QString m_sharedKey;
};
