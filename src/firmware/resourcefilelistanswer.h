// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "fwresourcefile.h"

/** The answer to RES_FILE_LIST: the files that the firmware keeps. Over XML-RPC a struct with an array of structs. */
class QUVPROTOCOL_EXPORT ResourceFileListAnswer
    : public quv::DescribedAnswer<ResourceFileListAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char resourceFiles_TAG[] = "res_file_list";

    ResourceFileListAnswer() = default;
    explicit ResourceFileListAnswer(const QList<FwResourceFile> &files);
    /**
     * Throws DE03260 without an array, DE02759 for an empty one, what FwResourceFile throws of a file, and DE02758 for any other failure
     * of one.
     */
    explicit ResourceFileListAnswer(const XmlRpc::XmlRpcValue &value);
    /**
     * The files as one QList<FwResourceFile>, or as a list of variants of which each is one, or the map that stands for it; it may be
     * empty. Throws DE02756 (nothing), DE02757 (anything else), and what FwResourceFile throws of a map.
     */
    explicit ResourceFileListAnswer(QList<QVariant> &list);

    ResourceFileListAnswer *clone() const override;

    static QList<quv::MemberFacts> memberFacts();

    const QList<FwResourceFile> &resourceFiles() const { return m_files; }

private:
    QList<FwResourceFile> m_files;
};
