// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getswversionanswer.h"

#include "base/describedanswer_p.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <iterator>

namespace {

template <class V>
void setField(const QVariant &value, V &field)
{
    quv::fieldType<V>().readVariant(value, &field);
}

template <class V>
void setField(const XmlRpc::XmlRpcValue &value, V &field)
{
    quv::fieldType<V>().read(value, &field);
}

} // namespace

struct GetSwVersionAnswer::Description
{
    static std::vector<quv::Member<GetSwVersionAnswer>> members()
    {
        using Answer = GetSwVersionAnswer;
        constexpr quv::Refusal invalid = {"DE01310",
                                          "GetSwVersionAnswer decoding failed: invalid QVariant value"};
        return {{swVersion_TAG, &Answer::m_swVersion, invalid, invalid},
                {buildRevision_TAG, &Answer::m_buildRevision, invalid, invalid},
                {buildTS_TAG, &Answer::m_buildTS, invalid, invalid},
                {releaseType_TAG, &Answer::m_releaseType, invalid, invalid},
                {gitSha_TAG, &Answer::m_gitSha, invalid, invalid}};
    }
};

template class quv::DescribedAnswer<GetSwVersionAnswer, ConfProtoAnswer>;

GetSwVersionAnswer::GetSwVersionAnswer(QString swVersion, unsigned long long buildRevision, QDateTime buildTS,
                                       QString releaseType, QString gitSha)
    : m_swVersion(swVersion),
      m_buildRevision(buildRevision),
      m_buildTS(buildTS),
      m_releaseType(releaseType),
      m_gitSha(gitSha)
{}

GetSwVersionAnswer::GetSwVersionAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetSwVersionAnswer::GetSwVersionAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetSwVersionAnswer *GetSwVersionAnswer::clone() const
{
    return new GetSwVersionAnswer(*this);
}

bool GetSwVersionAnswer::getSwVersion(int &major, int &minor, int &patch) const
{
    const QStringList parts = m_swVersion.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    int numbers[3] = {};
    if (parts.size() < 3)
        return false;
    for (int i = 0; i < 3; ++i) {
        bool isNumber = false;
        numbers[i] = parts.at(i).toInt(&isNumber);
        if (!isNumber)
            return false;
    }
    major = numbers[0];
    minor = numbers[1];
    patch = numbers[2];
    return true;
}

QVersionNumber GetSwVersionAnswer::version() const
{
    int major = 0;
    int minor = 0;
    int patch = 0;
    getSwVersion(major, minor, patch);
    return {major, minor, patch};
}

void GetSwVersionAnswer::setSwVersion(const QVariant &swVersion)
{
    setField(swVersion, m_swVersion);
}

void GetSwVersionAnswer::setSwVersion(const XmlRpc::XmlRpcValue &swVersion)
{
    setField(swVersion, m_swVersion);
}

void GetSwVersionAnswer::setBuildRevision(const QVariant &buildRevision)
{
    setField(buildRevision, m_buildRevision);
}

void GetSwVersionAnswer::setBuildRevision(const XmlRpc::XmlRpcValue &buildRevision)
{
    setField(buildRevision, m_buildRevision);
}

void GetSwVersionAnswer::setBuildTS(const QVariant &buildTS)
{
    setField(buildTS, m_buildTS);
}

void GetSwVersionAnswer::setBuildTS(const XmlRpc::XmlRpcValue &buildTS)
{
    setField(buildTS, m_buildTS);
}

void GetSwVersionAnswer::setReleaseType(const QVariant &releaseType)
{
    setField(releaseType, m_releaseType);
}

void GetSwVersionAnswer::setReleaseType(const XmlRpc::XmlRpcValue &releaseType)
{
    setField(releaseType, m_releaseType);
}

void GetSwVersionAnswer::setGitSha(const QVariant &gitSha)
{
    setField(gitSha, m_gitSha);
}

void GetSwVersionAnswer::setGitSha(const XmlRpc::XmlRpcValue &gitSha)
{
    setField(gitSha, m_gitSha);
}
