// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"

/**
 * The answer to GET_DEVICE_PARAMS. Which parameters a machine's devices have is for the driver and its client to know; the
 * answer carries them as they are, in whatever shape the driver gives them.
 */
class QUVPROTOCOL_EXPORT GetDeviceParamsAnswer : public ConfProtoAnswer
{
public:
    GetDeviceParamsAnswer() = default;
    explicit GetDeviceParamsAnswer(
        const XmlRpc::XmlRpcValue &value);                 ///< any value; throws DE00909 for an empty one
    explicit GetDeviceParamsAnswer(QList<QVariant> &list); ///< travels as an array

    GetDeviceParamsAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override; ///< the integer 0 when there is nothing

    const XmlRpc::XmlRpcValue &deviceParams() const { return m_deviceParams; }

private:
    XmlRpc::XmlRpcValue m_deviceParams{0};
};
