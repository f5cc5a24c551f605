// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"
#include "resourcefilemanagementbase.h"

namespace quv {
struct MemberFacts;
}

/** The answer to RES_FILE_MNGM: the block as the firmware tells it. */
class QUVPROTOCOL_EXPORT ResourceFileManagementAnswer : public SerialProtoAnswer,
                                                        public ResourceFileManagementBase
{
public:
    ResourceFileManagementAnswer() = default;
    explicit ResourceFileManagementAnswer(const FwResourceData &data);
    // All three throw what SerialProtoAnswer throws, and then what ResourceFileManagementBase throws.
    explicit ResourceFileManagementAnswer(QList<QVariant> &list);
    explicit ResourceFileManagementAnswer(const XmlRpc::XmlRpcValue &value);
    explicit ResourceFileManagementAnswer(QStringList tokens);
    explicit ResourceFileManagementAnswer(bool) =
        delete; // would be an XML-RPC value, as would the next three
    explicit ResourceFileManagementAnswer(int) = delete;
    explicit ResourceFileManagementAnswer(double) = delete;
    explicit ResourceFileManagementAnswer(const char *) = delete;

    ResourceFileManagementAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override; ///< the same class and the same block
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;    ///< cannot be read back

    using ResourceFileManagementBase::serialParameters; // the tokens are those of SerialProtoAnswer

    static QList<quv::MemberFacts> memberFacts();
};
