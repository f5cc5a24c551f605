// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/certifysessioncmd.h"

#include "base/describedcommand_p.h"
#include "sessions/certifysessionanswer.h"
#include "sessions/keytext_p.h"

struct CertifySessionCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CERTIFY_SESSION;

    static constexpr char answerFailed[] = "Failed to create CertifySessionAnswer";
    static constexpr quv::AnsweredBy<CertifySessionAnswer> answer = {
        {}, {"DE00983", answerFailed}, {"DE01037", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noID = {"DE01031", "DE01031",
                                               "Session ID decoding failed: expected String type"};
        constexpr quv::ArgumentRefusal noKey = {"DE01035", "DE01035",
                                                "Shared key decoding failed: expected String type"};
        archive.required({"session_id", "as LOGIN gave it"}, self.m_sessionID, noID, noID);
        archive.refuseUnless(!self.m_sessionID.isEmpty(),
                             {"DE01030", "DE01030", "Session ID decoding failed: empty String received"});
        archive.required({"shared_key", "the session's key, a decimal number"}, self.m_sharedKey, noKey,
                         noKey);
        archive.refuseUnless(!self.m_sharedKey.isEmpty(),
                             {"DE01034", "DE01034", "Shared key decoding failed: empty String received"});
        archive.refuseUnless(
            quv::holdsInt(self.m_sharedKey),
            {"DE01032", "DE01032", "Shared key decoding failed: expected String containing an Int value"});
    }
};

template class quv::DescribedCommand<CertifySessionCmd, ConfProtoCommand>;

CertifySessionCmd::CertifySessionCmd(QString sessionID, QString sharedKey)
    : m_sessionID(sessionID),
      m_sharedKey(sharedKey)
{}

CertifySessionCmd::CertifySessionCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

CertifySessionCmd::CertifySessionCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

CertifySessionCmd *CertifySessionCmd::clone() const
{
    return new CertifySessionCmd(*this);
}
