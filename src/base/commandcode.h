// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QString>

/** A firmware code of four hexadecimal digits, and the two bytes that it is made of. */
struct QUVPROTOCOL_EXPORT CommandCode
{
    CommandCode() = default;
    /** The code alone: the bytes stay empty. */
    explicit CommandCode(const QString &code);
    CommandCode(const QString &hi, const QString &lo);

    /** The bytes are taken from a code of four characters; of any other length they stay as they were. */
    void setCommandCode(const QString &code);
    void setCommand_HI_LO(const QString &hi, const QString &lo);

    // A byte as a number; 0, and \a ok false, for one that is empty or not hexadecimal.
    unsigned int command_HI(bool *ok = nullptr) const;
    unsigned int command_LO(bool *ok = nullptr) const;

    QString code;
    QString hi;
    QString lo;
};
