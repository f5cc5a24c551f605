// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QChar>
#include <QtCore/QList>
#include <QtCore/QString>

/** Up to which a double holds every whole number: 2^53. */
constexpr long long MaxWholeNumber = 1LL << 53;

/** The numbers in decimal, joined by \a separator. */
QUVFRAMEWORK_EXPORT QString createListStr(const QList<int> &numbers, QChar separator);

/** \a value rounded to \a digits decimals, halves away from zero. */
QUVFRAMEWORK_EXPORT double roundD(double value, unsigned int digits);

/** The greatest element; 0 for an empty list. */
QUVFRAMEWORK_EXPORT int maxValue(const QList<int> &values);

/** True for a printable ASCII character code: 32 (blank) to 126. */
QUVFRAMEWORK_EXPORT bool isValidAsciiValue(int code);

/** The first unbroken run of ASCII letters and digits; empty when there is none. */
QUVFRAMEWORK_EXPORT QString getFirstAlphanumericPattern(const QString &text);

/** A random number between the two limits, both included; the limits may come in either order. */
QUVFRAMEWORK_EXPORT int getRandomNumber(int min, int max);
QUVFRAMEWORK_EXPORT double getRandomNumber(double min, double max);

/** A random number from 0 up, from a generator that every thread has of its own. */
QUVFRAMEWORK_EXPORT int getThRandom();

/** The name under which a member variable travels: its own name. */
QUVFRAMEWORK_EXPORT QString stringVariableToStringProperty(const char *variable);
