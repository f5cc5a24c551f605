// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <QuvFramework/fw_errorlist.h>

namespace quv {

/** The errors of a packet, by their kind. */
struct PacketErrors
{
    QList<FW_HwError> hardware;
    QList<FW_ConfError> configuration;
};

} // namespace quv

/**
 * The answer to GET_ERROR_PKT: a packet of errors, which the firmware fills with errors of one type. Over XML-RPC a struct of
 * one array, the hardware errors first.
 */
class QUVPROTOCOL_EXPORT FwErrorAnswer : public quv::DescribedAnswer<FwErrorAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char XR_FW_ERROR_LIST[] = "fw_errors";

    /** As the firmware tells it, which is not FW_Error::Type. */
    enum ErrorsType : int { NoErrors = -1, HardwareErrors = 1, ConfigurationErrors = 2 };

    FwErrorAnswer() = default;
    /**
     * Hardware and configuration errors; those of another kind are dropped. Throws DE00450 without the member, DE00449 when it
     * is no array of structs, or what the errors throw.
     */
    explicit FwErrorAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * Type, index of the packet, number of errors, then of each error its module, three digits of its code, and its flags;
     * whatever follows is not read. Throws DE00090 (fewer than three parameters), DE00166 or DE00137 (type), DE00134 (index),
     * DE00135 or DE00167 (number), DE00092 or DE00136 (module), DE00168 (error cut short), DE00138, DE00139 or DE00860
     * (code), DE00451 (flags), or what SerialProtoAnswer throws.
     */
    explicit FwErrorAnswer(QStringList tokens);

    FwErrorAnswer *clone() const override;
    void clear();

    const QList<FW_HwError> &hwErrors() const { return m_errors.hardware; }
    const QList<FW_ConfError> &confErrors() const { return m_errors.configuration; }
    FW_ErrorList errorList() const; ///< the hardware errors first
    int errorsType() const;         ///< 1 when there is a hardware error, else 2 or -1, see ErrorsType

    static bool checkErrorAnswerType(int type); ///< 1 or 2

private:
    quv::PacketErrors m_errors;
};
