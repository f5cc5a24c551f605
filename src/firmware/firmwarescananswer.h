// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <QuvFramework/fw_program.h>

#include <QtCore/QList>

/** The answer to FW_SCAN and FW_SCAN_READ: the firmware on each slave board. Over XML-RPC a struct with one array. */
class QUVPROTOCOL_EXPORT FirmwareScanAnswer
    : public quv::DescribedAnswer<FirmwareScanAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char slaveFwVersions_TAG[] = "slave_versions";

    FirmwareScanAnswer() = default;
    explicit FirmwareScanAnswer(QList<QVariant> &list); ///< cleared; the list is not read
    explicit FirmwareScanAnswer(const QList<FW_Program> &programs);
    /**
     * Tokens: the number of slaves, then for each a block, all of one size that is not told, each an FW_Program of a slave. What remains
     * behind the blocks is not read. Throws DE01455 without any token, DE01456 for a number that is none, DE01457 for a block that is no
     * program, and what SerialProtoAnswer throws.
     */
    explicit FirmwareScanAnswer(QStringList tokens);
    /**
     * Throws DE01460 for what is no struct, DE01463 without the member, DE01461 when it is no array, DE01462 for an element that is no
     * program.
     */
    explicit FirmwareScanAnswer(const XmlRpc::XmlRpcValue &value);

    FirmwareScanAnswer *clone() const override;
    void clear() { m_programs.clear(); }

    const QList<FW_Program> &programs() const { return m_programs; }

private:
    QList<FW_Program> m_programs;
};
