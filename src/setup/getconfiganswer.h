// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QuvFramework/fw_configuration.h>

/** The answer to GET_CONFIG: the configuration of the driver's machines, the member "configuration" of a struct. */
class QUVPROTOCOL_EXPORT GetConfigAnswer : public quv::DescribedAnswer<GetConfigAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char configuration_TAG[] = "configuration";

    GetConfigAnswer() = default;
    explicit GetConfigAnswer(const FW_Configuration &configuration);
    /** Throws DE03363 without the member, and what the configuration is refused with. */
    explicit GetConfigAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * A configuration or its map; an empty configuration for anything else. Throws DE00368 when the list is empty, and what the
     * configuration is refused with.
     */
    explicit GetConfigAnswer(QList<QVariant> &list);

    GetConfigAnswer *clone() const override;

    const FW_Configuration &configuration() const { return m_configuration; }

private:
    FW_Configuration m_configuration;
};
