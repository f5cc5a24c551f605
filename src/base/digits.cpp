// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/digits_p.h"

#include "base/wire_p.h"

namespace quv {

void appendCounted(QList<int> &parameters, const QList<int> &digits)
{
    parameters.append(digits.size());
    parameters.append(digits);
}

void appendCountedDigits(QList<int> &parameters, long long number)
{
    const int place = parameters.size();
    parameters.append(0);
    appendDigits(parameters, number);
    parameters[place] = parameters.size() - place - 1;
}

void appendDigits(QList<int> &parameters, long long number)
{
    // as splitValue does, but without a list for each of a formula's numbers
    if (number < 0)
        return;
    do {
        parameters.append(static_cast<int>(number % serialBase));
        number /= serialBase;
    } while (number > 0);
}

void appendTwoDigits(QList<int> &parameters, long long number)
{
    const int place = parameters.size();
    appendDigits(parameters, number);
    if (parameters.size() == place + 1)
        parameters.append(0);
}

} // namespace quv
