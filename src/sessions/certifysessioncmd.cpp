// SPDX-License-Identifier: LGPL-3.0-or-later
#include "sessions/certifysessioncmd.h"

#include "base/describedcommand_p.h"
#include "sessions/certifysessionanswer.h"
#include "sessions/sessiontexts_p.h"

namespace {

constexpr quv::SessionText texts[] = {
    {{"session_id", "as LOGIN gave it"},
     {"DE01031", "Session ID decoding failed: expected String type"},
     {"DE01030", "Session ID decoding failed: empty String received"},
     {}},
    {{"shared_key", "the session's key, a decimal number"},
     {"DE01035", "Shared key decoding failed: expected String type"},
     {"DE01034", "Shared key decoding failed: empty String received"},
     {"DE01032", "Shared key decoding failed: expected String containing an Int value"}},
};

} // namespace

struct CertifySessionCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CERTIFY_SESSION;

    static constexpr char answerFailed[] = "Failed to create CertifySessionAnswer";
    static constexpr quv::AnsweredBy<CertifySessionAnswer> answer = {
        {}, {"DE00983", answerFailed}, {"DE01037", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller) { quv::tellSessionTexts(texts, teller); }
};

template class quv::DescribedCommand<CertifySessionCmd, ConfProtoCommand>;

CertifySessionCmd::CertifySessionCmd(QString sessionID, QString sharedKey)
{
    m_parameters = {sessionID, sharedKey};
}

CertifySessionCmd::CertifySessionCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    m_parameters = quv::readSessionTexts(quv::ValueSource(value), texts, Q_FUNC_INFO);
}

CertifySessionCmd::CertifySessionCmd(QList<QVariant> list) : DescribedCommand(list)
{
    m_parameters = quv::readSessionTexts(quv::ListSource(list), texts, Q_FUNC_INFO);
}

CertifySessionCmd *CertifySessionCmd::clone() const
{
    return new CertifySessionCmd(*this);
}

XmlRpc::XmlRpcValue CertifySessionCmd::xmlrpc_parameters(bool *ok) const
{
    return quv::writtenSessionTexts(m_parameters, ok);
}
