// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_calibration.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_utils.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace {

const bool isCalibrationRegistered = RegisterTravellingType<FW_Calibration>("FW_Calibration");

using Points = QVector<FW_CalibrationPoint>;

bool rises(const Points &points)
{
    long long steps = 0;
    double quantity = 0;
    for (const FW_CalibrationPoint &point : points) {
        if (point.steps <= steps || !(point.quantity > quantity) || !std::isfinite(point.quantity))
            return false;
        steps = point.steps;
        quantity = point.quantity;
    }
    return !points.isEmpty();
}

/** The value at \a x of the line through the points; From and To read the two coordinates of a point. */
template <class From, class To>
double interpolated(const Points &points, double x, From from, To to)
{
    const auto right = std::find_if(points.cbegin(), points.cend(),
                                    [&](const FW_CalibrationPoint &point) { return from(point) >= x; });
    if (right == points.cbegin())
        return x * to(*right) / from(*right);
    const FW_CalibrationPoint &left = *(right - 1);
    if (right == points.cend())
        return x * to(left) / from(left);
    return to(left) + (x - from(left)) * (to(*right) - to(left)) / (from(*right) - from(left));
}

constexpr auto stepsOf = [](const FW_CalibrationPoint &point) { return double(point.steps); };
constexpr auto quantityOf = [](const FW_CalibrationPoint &point) { return point.quantity; };

/** The speed that goes before all others; 0 when no point has one. */
template <class Order>
int firstSpeed(const Points &points, Order comesFirst)
{
    int first = 0;
    for (const FW_CalibrationPoint &point : points) {
        if (point.speed > 0 && (first == 0 || comesFirst(point.speed, first)))
            first = point.speed;
    }
    return first;
}

template <class T>
T result(T value, bool good, bool *ok)
{
    if (ok)
        *ok = good;
    return good ? value : T();
}

} // namespace

bool FW_CalibrationPoint::operator==(const FW_CalibrationPoint &other) const
{
    return quv::haveSameMembers(*this, other);
}

FW_Calibration::FW_Calibration(QVector<FW_CalibrationPoint> points)
{
    setPoints(std::move(points));
}

void FW_Calibration::setPoints(QVector<FW_CalibrationPoint> points)
{
    m_points = std::move(points);
    m_usable = rises(m_points);
}

FW_Calibration::FW_Calibration(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_Calibration::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

long long FW_Calibration::steps(double quantity, bool *ok) const
{
    if (!m_usable)
        return result(0LL, false, ok);
    const double steps =
        std::copysign(interpolated(m_points, std::abs(quantity), quantityOf, stepsOf), quantity);
    // beyond it a double has no digit for the single step
    const bool good =
        std::abs(steps) <= static_cast<double>(MaxWholeNumber); // false for what is no number, too
    return result(good ? std::llround(steps) : 0LL, good, ok);
}

double FW_Calibration::quantity(long long steps, bool *ok) const
{
    if (!m_usable)
        return result(0.0, false, ok);
    const double quantity = interpolated(m_points, std::abs(double(steps)), stepsOf, quantityOf);
    return result(std::copysign(quantity, double(steps)), true, ok);
}

int FW_Calibration::speed(double quantity, bool *ok) const
{
    if (!m_usable)
        return result(0, false, ok);
    const int speed = pointReaching(quantity).speed;
    return result(speed, speed > 0, ok);
}

int FW_Calibration::nozzleValveID(double quantity, bool *ok) const
{
    return m_usable ? result(pointReaching(quantity).nozzleValveID, true, ok) : result(0, false, ok);
}

int FW_Calibration::minSpeed() const
{
    return firstSpeed(m_points, std::less<>());
}

int FW_Calibration::maxSpeed() const
{
    return firstSpeed(m_points, std::greater<>());
}

const FW_CalibrationPoint &FW_Calibration::pointReaching(double quantity) const
{
    const auto point =
        std::find_if(m_points.cbegin(), m_points.cend(), [&](const FW_CalibrationPoint &candidate) {
            return candidate.quantity >= std::abs(quantity);
        });
    return point == m_points.cend() ? m_points.constLast() : *point;
}
