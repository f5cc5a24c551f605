// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/refusal_p.h"

#include <QtCore/QStringList>

#include <limits>

namespace quv {

/** Reads a hexadecimal number of 32 bits with all that QString::toUInt allows: blanks, a sign, a prefix, leading zeros. */
bool parseAnyHex(const QString &token, unsigned &number);

/** The value of a hexadecimal digit; negative for any other character. */
inline int hexDigit(QChar character)
{
    const unsigned c = character.unicode();
    const unsigned decimal = c - '0';
    if (decimal < 10)
        return static_cast<int>(decimal);
    const unsigned letter = (c | 0x20U) - 'a';
    return letter < 6 ? static_cast<int>(letter) + 10 : -1;
}

/** Reads a hexadecimal number of 32 bits; false, and 0, for anything else. Nearly all tokens have one digit or two. */
inline bool parseHex(const QString &token, unsigned &number)
{
    const int size = token.size();
    const QChar *text = token.constData();
    if (size == 1 || size == 2) {
        const int high = size == 2 ? hexDigit(text[0]) : 0;
        const int low = hexDigit(text[size - 1]);
        if ((high | low) >= 0) {
            number = static_cast<unsigned>(high * 16 + low);
            return true;
        }
    }
    return parseAnyHex(token, number);
}

/**
 * Walks the hexadecimal tokens of a firmware answer. The throwing readers raise FW_Exception with the refusal that they
 * are handed when the tokens have run out or one is no number.
 */
class TokenReader
{
public:
    /** \a tokens must outlive the reader; \a function is the signature that refusals name. */
    TokenReader(const QStringList &tokens, int first, const char *function)
        : m_tokens(tokens),
          m_index(first),
          m_function(function)
    {}

    int remaining() const { return qMax(m_tokens.size() - m_index, 0); }
    bool atEnd() const { return remaining() == 0; }

    /** The next number, without throwing; false at the end and on a bad token, which is stepped over. */
    bool next(unsigned &number) { return !atEnd() && parseHex(m_tokens.at(m_index++), number); }
    /** The next token as a number that is not checked: 0 for anything that is none. */
    unsigned nextUnchecked()
    {
        unsigned number = 0;
        return next(number) ? number : 0;
    }

    int next(const Refusal &refusal);
    int nextSigned(const Refusal &refusal); ///< takes a negative number, too
    unsigned nextUnsigned(const Refusal &refusal);
    /** A number of \a digits base-246 digits, low digit first; one above \a greatest is refused as well. */
    long long nextNumber(int digits, const Refusal &refusal,
                         long long greatest = std::numeric_limits<long long>::max());
    /** Refuses when fewer than \a count tokens remain. */
    void require(int count, const Refusal &refusal) const;

private:
    [[noreturn]] void refuse(const Refusal &refusal) const;

    const QStringList &m_tokens;
    int m_index = 0;
    const char *m_function = "";
};

} // namespace quv
