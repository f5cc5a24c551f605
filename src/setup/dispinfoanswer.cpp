// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/dispinfoanswer.h"

#include "base/describedanswer_p.h"
#include "base/tokens_p.h"
#include "setup/dispinfocmd.h"

#include <QuvFramework/fw_exception.h>

#include <utility>

namespace {

constexpr char badInfo[] = "DispInfoAnswer: error in decoding";

constexpr unsigned lastLatin1 = 255;

} // namespace

struct DispInfoAnswer::Description
{
    static std::vector<quv::Member<DispInfoAnswer>> members()
    {
        return {quv::Member<DispInfoAnswer>(value_TAG, &DispInfoAnswer::m_value, {"DE00302", badInfo})};
    }
};

template class quv::DescribedAnswer<DispInfoAnswer, SerialProtoAnswer>;

DispInfoAnswer::DispInfoAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

DispInfoAnswer::DispInfoAnswer(QStringList tokens, int infoType) : DescribedAnswer(std::move(tokens))
{
    QString characters;
    for (const QString &token : std::as_const(m_parameters)) {
        unsigned code = 0;
        if (!quv::parseHex(token, code) || code > lastLatin1)
            throw FW_Exception("DE00453", badInfo, Q_FUNC_INFO);
        characters.append(QLatin1Char(static_cast<char>(code)));
    }
    // no text begins with the control character that a type would be
    const bool isTold = DispInfoCmd::checkDispInfoType(infoType) && !characters.isEmpty() &&
                        characters.front().unicode() == infoType;
    m_value = isTold ? characters.mid(1) : characters;
}

DispInfoAnswer *DispInfoAnswer::clone() const
{
    return new DispInfoAnswer(*this);
}
