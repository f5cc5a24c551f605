// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <QuvFramework/fw_errorlist.h>

/**
 * The answer to GET_ERRORS: the errors that the driver keeps, of all kinds. Over XML-RPC a struct of one array. Two answers
 * are equal when their lists are.
 */
class QUVPROTOCOL_EXPORT GetErrorsAnswer : public quv::DescribedAnswer<GetErrorsAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    GetErrorsAnswer() = default;
    explicit GetErrorsAnswer(const FW_ErrorList &errors);
    /** The list stays empty: no firmware tells it. Throws what SerialProtoAnswer throws. */
    explicit GetErrorsAnswer(QStringList tokens);
    explicit GetErrorsAnswer(QList<QVariant> &list); ///< the errors in it, see FW_ErrorList; throws DE00467
    /** Throws DE00471 without the member "fw_errors", DE00470, or what FW_ErrorList throws. */
    explicit GetErrorsAnswer(const XmlRpc::XmlRpcValue &value);

    GetErrorsAnswer *clone() const override;
    void clear();

    const FW_ErrorList &errorList() const { return m_errors; }

private:
    FW_ErrorList m_errors;
};
