// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

/** The inverter, motor and encoder behind a dosing motor that is no stepper. Motors share one by its reference. */
struct QUVFRAMEWORK_EXPORT FW_SingleTransmission
{
    explicit FW_SingleTransmission(int reference = 0) : configRef(reference) {}
    void setDefaults(); ///< keeps the reference

    bool operator==(const FW_SingleTransmission &other) const;
    bool operator!=(const FW_SingleTransmission &other) const { return !(*this == other); }

    int configRef = 0;                 ///< 0 for none
    double motorRatedCurrent = 2.5;    ///< amperes
    double inverterRatedCurrent = 4.0; ///< amperes
    double inverterOverloadMultiplier = 1.5;
    double motorCurrentMultiplier = 1.25;
    double motorOverloadTimeout = 30; ///< seconds
    double motorMaxSpeed = 1400;
    double y1 = 10; ///< two points of the inverter's curve of voltage over frequency
    double y2 = 50;
    double x1 = 5;
    double x2 = 50;
    double motorSpeedErrorTolerance = 10; ///< percent
    double encoderPulses = 1000;          ///< a turn
    double encoderChannels = 2;
    double encoderStepFraction = 4;
    int inverterCurrentMax = 10;
    int inverterVoltageMax = 230;
};
