// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QtCore/QDateTime>
#include <QtCore/QVersionNumber>

/** The answer to GET_SW_VERSION: the version of the driver's software, and the build that it comes from. */
class QUVPROTOCOL_EXPORT GetSwVersionAnswer : public quv::DescribedAnswer<GetSwVersionAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char swVersion_TAG[] = "sw_version";
    static constexpr char buildRevision_TAG[] = "build_revision";
    static constexpr char buildTS_TAG[] = "build_TS";
    static constexpr char releaseType_TAG[] = "release_type";
    static constexpr char gitSha_TAG[] = "git_sha";

    GetSwVersionAnswer() = default;
    GetSwVersionAnswer(QString swVersion, unsigned long long buildRevision, QDateTime buildTS,
                       QString releaseType, QString gitSha);
    explicit GetSwVersionAnswer(
        const XmlRpc::XmlRpcValue &value); ///< throws DE01310 without one of the members
    /** Version, revision, time of the build, type of release, hash. Throws DE01310 for one that is missing or of another type. */
    explicit GetSwVersionAnswer(QList<QVariant> &list);

    GetSwVersionAnswer *clone() const override;

    QString swVersion() const { return m_swVersion; }
    unsigned long long buildRevision() const { return m_buildRevision; }
    QDateTime buildTS() const { return m_buildTS; }
    QString releaseType() const { return m_releaseType; }
    QString gitSha() const { return m_gitSha; }

    /** The first three numbers of the version. False, and all three left alone, when there are fewer or one is no number. */
    bool getSwVersion(int &major, int &minor, int &patch) const;
    QVersionNumber version() const; ///< of these three; 0.0.0 without them

    // For the driver. A value of another type leaves the field alone.
    void setSwVersion(const QVariant &swVersion);
    void setSwVersion(const XmlRpc::XmlRpcValue &swVersion);
    void setBuildRevision(const QVariant &buildRevision);
    void setBuildRevision(const XmlRpc::XmlRpcValue &buildRevision);
    void setBuildTS(const QVariant &buildTS);
    void setBuildTS(const XmlRpc::XmlRpcValue &buildTS);
    void setReleaseType(const QVariant &releaseType);
    void setReleaseType(const XmlRpc::XmlRpcValue &releaseType);
    void setGitSha(const QVariant &gitSha);
    void setGitSha(const XmlRpc::XmlRpcValue &gitSha);

private:
    QString m_swVersion;
    unsigned long long m_buildRevision = 0;
    QDateTime m_buildTS;
    QString m_releaseType;
    QString m_gitSha;
};
