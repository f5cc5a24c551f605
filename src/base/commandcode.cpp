// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commandcode.h"

CommandCode::CommandCode(const QString &text) : code(text) {}

CommandCode::CommandCode(const QString &high, const QString &low) : code(high + low), hi(high), lo(low) {}

void CommandCode::setCommandCode(const QString &text)
{
    code = text;
    if (text.size() != 4)
        return;
    hi = code.left(2); // the text may be one of the two
    lo = code.right(2);
}

void CommandCode::setCommand_HI_LO(const QString &high, const QString &low)
{
    *this = CommandCode(high, low);
}

unsigned int CommandCode::command_HI(bool *ok) const
{
    return hi.toUInt(ok, 16);
}

unsigned int CommandCode::command_LO(bool *ok) const
{
    return lo.toUInt(ok, 16);
}
