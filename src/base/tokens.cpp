// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/tokens_p.h"

#include "base/wire_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_serial.h>

namespace quv {

bool parseAnyHex(const QString &token, unsigned &number)
{
    bool ok = false;
    number = token.toUInt(&ok, 16);
    return ok;
}

int TokenReader::next(const Refusal &refusal)
{
    unsigned number = 0;
    if (!next(number) || number > static_cast<unsigned>(std::numeric_limits<int>::max()))
        refuse(refusal);
    return static_cast<int>(number);
}

int TokenReader::nextSigned(const Refusal &refusal)
{
    bool ok = false;
    const int number = atEnd() ? 0 : m_tokens.at(m_index++).toInt(&ok, 16);
    if (!ok)
        refuse(refusal);
    return number;
}

unsigned TokenReader::nextUnsigned(const Refusal &refusal)
{
    unsigned number = 0;
    if (!next(number))
        refuse(refusal);
    return number;
}

long long TokenReader::nextNumber(int digits, const Refusal &refusal, long long greatest)
{
    require(digits, refusal);
    bool ok = false;
    const long long number = joinValues(m_tokens.mid(m_index, digits), serialBase, true, &ok);
    if (!ok || number > greatest)
        refuse(refusal);
    m_index += digits;
    return number;
}

void TokenReader::require(int count, const Refusal &refusal) const
{
    if (remaining() < count)
        refuse(refusal);
}

void TokenReader::refuse(const Refusal &refusal) const
{
    throw FW_Exception(refusal.code, refusal.text, m_function);
}

} // namespace quv
