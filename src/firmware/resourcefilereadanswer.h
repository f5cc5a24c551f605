// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "fwresourcefile.h"

/** The answer to RES_FILE_READ: a file that the driver has read from the firmware. Over XML-RPC a struct with one struct. */
class QUVPROTOCOL_EXPORT ResourceFileReadAnswer
    : public quv::DescribedAnswer<ResourceFileReadAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char resourceFile_TAG[] = "res_file";

    ResourceFileReadAnswer() = default;
    explicit ResourceFileReadAnswer(const FwResourceFile &file);
    /** Throws DE02754 without the file, what FwResourceFile throws of it, and DE02755 for any other failure. */
    explicit ResourceFileReadAnswer(const XmlRpc::XmlRpcValue &value);
    /** One FwResourceFile, or the map that stands for it. Throws DE02754 (an empty list), DE02755 (anything else). */
    explicit ResourceFileReadAnswer(QList<QVariant> &list);

    ResourceFileReadAnswer *clone() const override;

    const FwResourceFile &resourceFile() const { return m_file; }

private:
    FwResourceFile m_file;
};
