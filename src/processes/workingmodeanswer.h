// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/** The answer to WORKING_MODE: the working mode of the machine. */
class QUVPROTOCOL_EXPORT WorkingModeAnswer : public quv::DescribedAnswer<WorkingModeAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char workingMode_TAG[] = "working_mode";

    WorkingModeAnswer() = default;
    explicit WorkingModeAnswer(int workingMode);
    /** One token. Throws DE00093 without one, DE00094 for one that is no number, and what SerialProtoAnswer throws. */
    explicit WorkingModeAnswer(QStringList tokens);
    explicit WorkingModeAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE03169 without the member
    explicit WorkingModeAnswer(QList<QVariant> &list); ///< a whole number; throws DE03170 without one
    explicit WorkingModeAnswer(bool) = delete;         // would read as a mode, as would the next two
    explicit WorkingModeAnswer(double) = delete;
    explicit WorkingModeAnswer(const char *) = delete;

    WorkingModeAnswer *clone() const override;

    /** As the firmware tells it, whether it is a mode or not. */
    int workingMode() const { return m_workingMode; }
    static bool checkWorkingMode(int workingMode); ///< 0 to 8

private:
    int m_workingMode = 0;
};
