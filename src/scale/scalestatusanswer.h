// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** Whether the scale is connected, the answer to GET_SCALE_STATUS. */
class QUVPROTOCOL_EXPORT ScaleStatusAnswer : public quv::DescribedAnswer<ScaleStatusAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char connected_TAG[] = "connected";

    ScaleStatusAnswer() = default;
    explicit ScaleStatusAnswer(bool connected);
    /** Throws DE02359 without "connected", or when it is no bool. */
    explicit ScaleStatusAnswer(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02360. */
    explicit ScaleStatusAnswer(QList<QVariant> &list);
    explicit ScaleStatusAnswer(int) = delete; // would read as a flag, as would the next two
    explicit ScaleStatusAnswer(double) = delete;
    explicit ScaleStatusAnswer(const char *) = delete;

    ScaleStatusAnswer *clone() const override;

    bool connected() const { return m_connected; }

private:
    bool m_connected = false;
};
