// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/**
 * GET_KEY: exchanges public values with the driver, of which both make the session's key; the answer is a GetKeyAnswer.
 *
 * Both sides call createSharedKey, send each other the value that it gives, and give the other's value and their own secret to
 * createLoginKey. The two results are the same; CERTIFY_SESSION shows it to the driver.
 */
class QUVPROTOCOL_EXPORT GetKeyCmd : public quv::DescribedCommand<GetKeyCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetKeyCmd() = default;
    GetKeyCmd(QString sessionID, QString clientKey);
    /**
     * Session ID and public value, both strings. Throws DE00918 or DE00917 (empty) for the first; DE00910, DE00916 (empty) or
     * DE00915 (no int in it) for the second.
     */
    explicit GetKeyCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetKeyCmd(QList<QVariant> list); ///< likewise

    GetKeyCmd *clone() const override;

    QString sessionID() const { return m_sessionID; }
    QString clientKey() const { return m_clientKey; }

    static int
    getRandomValue(); ///< an exponent from 2 to 9; from -5 to 2 should the framework draw a negative number
    /** Draws a \a secret, and gives the public value that goes with it as decimal \a key. False when one of them is null. */
    static bool createSharedKey(QString *key, int *secret);
    /** The session's key; empty when the other's public value is no positive decimal number, or \a secret below 1. */
    static QString createLoginKey(QString otherKey, int secret);

private:
    QString m_sessionID;
    QString m_clientKey;
};
