// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_utils.h>

#include <QtCore/QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

std::mt19937 &threadGenerator()
{
    thread_local std::mt19937 generator{std::random_device{}()};
    return generator;
}

bool isAlphanumeric(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= '0' && u <= '9') || (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z');
}

} // namespace

QString createListStr(const QList<int> &numbers, QChar separator)
{
    QString text;
    for (int number : numbers) {
        if (!text.isEmpty())
            text += separator;
        text += QString::number(number);
    }
    return text;
}

double roundD(double value, unsigned int digits)
{
    const double factor = std::pow(10.0, digits);
    const double scaled = value * factor;
    // from here on a double has no such decimals: the value is already round
    constexpr double wholeFrom = 4503599627370496.0; // 2 to the power of 52
    return std::abs(scaled) < wholeFrom ? std::round(scaled) / factor : value;
}

int maxValue(const QList<int> &values)
{
    return values.isEmpty() ? 0 : *std::max_element(values.cbegin(), values.cend());
}

bool isValidAsciiValue(int code)
{
    return code >= 32 && code <= 126;
}

QString getFirstAlphanumericPattern(const QString &text)
{
    const auto begin = std::find_if(text.cbegin(), text.cend(), isAlphanumeric);
    const auto end = std::find_if_not(begin, text.cend(), isAlphanumeric);
    return QString(begin, static_cast<int>(end - begin));
}

int getRandomNumber(int min, int max)
{
    const auto [low, high] = std::minmax(min, max);
    return std::uniform_int_distribution<int>(low, high)(threadGenerator());
}

double getRandomNumber(double min, double max)
{
    const auto [low, high] = std::minmax(min, max);
    if (!(low < high))
        return low;
    // a share of each limit: the distance of the two may be beyond the range of a double
    const double share =
        std::uniform_real_distribution<double>(0.0, std::nextafter(1.0, 2.0))(threadGenerator());
    return std::clamp(low * (1.0 - share) + high * share, low, high);
}

int getThRandom()
{
    return std::uniform_int_distribution<int>(0, std::numeric_limits<int>::max())(threadGenerator());
}

QString stringVariableToStringProperty(const char *variable)
{
    return QString::fromLatin1(variable);
}
