// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/tokens_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_serial.h>

#include <limits>

namespace quv {

namespace {

constexpr int numberBase = 246;

int hexDigit(char16_t c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const int letter = c | 0x20;
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

} // namespace

bool parseHex(const QString &token, unsigned &number)
{
    const int size = token.size();
    const QChar *text = token.constData();
    unsigned parsed = 0;
    bool plain = size > 0 && size <= 8;
    for (int i = 0; plain && i < size; ++i) {
        const int digit = hexDigit(text[i].unicode());
        plain = digit >= 0;
        parsed = parsed << 4 | static_cast<unsigned>(digit);
    }
    if (!plain)
        parsed = token.toUInt(&plain, 16); // blanks around, a sign, a prefix, leading zeros
    number = plain ? parsed : 0;
    return plain;
}

bool TokenReader::next(unsigned &number)
{
    if (atEnd())
        return false;
    return parseHex(m_tokens.at(m_index++), number);
}

unsigned TokenReader::nextUnchecked()
{
    unsigned number = 0;
    return next(number) ? number : 0;
}

int TokenReader::next(const TokenRefusal &refusal)
{
    unsigned number = 0;
    if (!next(number) || number > static_cast<unsigned>(std::numeric_limits<int>::max()))
        refuse(refusal);
    return static_cast<int>(number);
}

long long TokenReader::nextNumber(int digits, const TokenRefusal &refusal)
{
    require(digits, refusal);
    bool ok = false;
    const long long number = joinValues(m_tokens.mid(m_index, digits), numberBase, true, &ok);
    if (!ok)
        refuse(refusal);
    m_index += digits;
    return number;
}

void TokenReader::require(int count, const TokenRefusal &refusal) const
{
    if (remaining() < count)
        refuse(refusal);
}

void TokenReader::refuse(const TokenRefusal &refusal) const
{
    throw FW_Exception(refusal.code, refusal.text, m_function);
}

} // namespace quv
