// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

/** What a command gets back. A plain answer says only who answered; subclasses hold data. */
class QUVPROTOCOL_EXPORT ProtoAnswer
{
public:
    ProtoAnswer() = default;
    explicit ProtoAnswer(int type);
    ProtoAnswer(int type, QList<QVariant> &list); ///< the list is not read
    /** The value is not read. Throws DE00909 when it is empty. */
    ProtoAnswer(int type, const XmlRpc::XmlRpcValue &value);
    ProtoAnswer(const ProtoAnswer &) = default;
    ProtoAnswer &operator=(const ProtoAnswer &) = default;
    virtual ~ProtoAnswer();

    virtual ProtoAnswer *clone() const; ///< a copy, owned by the caller
    virtual bool equalTo(const ProtoAnswer *other) const;
    virtual XmlRpc::XmlRpcValue toXmlRpcValue() const; ///< a plain answer writes the integer 0

    int protoType() const { return m_protoType; } ///< 0 plain, 1 serial, 2 configuration, 3 scale
    void clearProtoAnswer() { m_protoType = 0; }

    /** The English text of an envelope's return code. */
    static QString getRetCodeMessage(int retCode);

protected:
    int m_protoType = 0;
};
