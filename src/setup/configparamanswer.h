// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "configparams.h"

/** The answer to CONFIG_PARAM: the parameters as the machine now has them. */
class QUVPROTOCOL_EXPORT ConfigParamAnswer : public quv::DescribedAnswer<ConfigParamAnswer, ConfProtoAnswer>,
                                             public ConfigParams
{
public:
    struct Description;

    ConfigParamAnswer() = default;
    explicit ConfigParamAnswer(const QMap<QString, QVariant> &params);
    // As ConfigParams, with its refusals.
    explicit ConfigParamAnswer(const XmlRpc::XmlRpcValue &value);
    explicit ConfigParamAnswer(QList<QVariant> &list);
    explicit ConfigParamAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ConfigParamAnswer(int) = delete;
    explicit ConfigParamAnswer(double) = delete;
    explicit ConfigParamAnswer(const char *) = delete;

    ConfigParamAnswer *clone() const override;

    using DescribedAnswer::operator==;
    using DescribedAnswer::operator!=;
};
