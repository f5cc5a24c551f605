// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "scaleconfigbase.h"

/** The answer to GET_SCALE_CONFIG: the setup of the scale, or that there is none. */
class QUVPROTOCOL_EXPORT GetScaleConfigAnswer : public ConfProtoAnswer, public ScaleConfigBase
{
public:
    GetScaleConfigAnswer() = default;
    explicit GetScaleConfigAnswer(const FW_Scale &scale);
    // As ScaleConfigBase, with its refusals.
    explicit GetScaleConfigAnswer(const XmlRpc::XmlRpcValue &value);
    explicit GetScaleConfigAnswer(QList<QVariant> &list);
    explicit GetScaleConfigAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetScaleConfigAnswer(int) = delete;
    explicit GetScaleConfigAnswer(double) = delete;
    explicit GetScaleConfigAnswer(const char *) = delete;

    GetScaleConfigAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override; ///< the same class and the same scale
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;    ///< xmlrpcvalue
};
