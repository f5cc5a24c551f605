// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_error.h>

/** What constructors and the factory throw: a driver error that knows who raised it. */
class QUVFRAMEWORK_EXPORT FW_Exception : public FW_DriverError
{
public:
    /**
     * \a function is the signature of the thrower (Q_FUNC_INFO). It is kept as g++ prints it, whichever compiler
     * made it, because users search for it in reports.
     */
    FW_Exception(const QString &code, const QString &text, const QString &function);
    FW_Exception(const FW_DriverError &error, const QString &function);

    FW_Exception *clone() const override;
};
