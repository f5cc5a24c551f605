// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_flowcorrection.h>
#include <QuvFramework/fw_gravimetricsettings.h>
#include <QuvFramework/fw_motor.h>
#include <QuvFramework/fw_ramp.h>
#include <QuvFramework/fw_singletransmission.h>

#include <QtCore/QMetaType>
#include <QtCore/QSharedData>
#include <QtCore/QSharedDataPointer>
#include <QtCore/QVector>

#include <xmlrpcpp/XmlRpcValue.h>

#include <optional>

/**
 * The motor that moves the pump of a circuit. Its speed is in turns per minute. Copies share all but what every pour needs
 * until one of them is changed.
 */
class QUVFRAMEWORK_EXPORT FW_DosingMotor : public FW_Motor
{
public:
    /** Whose number a maximum speed is. */
    enum SpeedOrigin { PumpSpeed = 0, ConfiguredSpeed = 1 };
    /** What a supplying current is for. */
    enum CurrentDuty { Holding = 0, Running = 2 };
    /** How a motor may pour; the values are bits of a dispensing algorithm mask. */
    enum DispensingAlgorithm { Volumetric = 1, Gravimetric = 2, Continuous = 4 };

    /** What is added to a pour's speed: its multiplier and offset from this speed on. */
    struct SpeedMpxOffset
    {
        int speed = 0;
        double multiplier = 1;
        double offset = 0;

        bool operator==(const SpeedMpxOffset &other) const;
        bool operator!=(const SpeedMpxOffset &other) const { return !(*this == other); }
    };

    using GravimetricSettings = ::GravimetricSettings;

    FW_DosingMotor() = default;
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_DosingMotor(const XmlRpc::XmlRpcValue &value);

    int maxSpeed() const { return m_maxSpeed; }
    int maxSpeedOrigin() const { return m_maxSpeedOrigin; }
    void setMaxSpeed(int speed) { setMaxSpeed(speed, ConfiguredSpeed); }
    void setMaxSpeed(int speed, int origin);
    static bool checkMaxSpeed(int speed); ///< 1 to 2000
    /** Steps of one full stroke of the pump; 0 when it is not known. */
    int stepsPerStroke() const { return m_stepsPerStroke; }
    void setStepsPerStroke(int steps) { m_stepsPerStroke = steps; }
    /** Steps of so many strokes. */
    long long stepsFromStrokes(int strokes) const
    {
        return static_cast<long long>(strokes) * m_stepsPerStroke;
    }
    /** True when the driver doses this circuit by a scale, weighing as it pours. */
    bool isGravimetricSw() const { return m_gravimetricSw; }
    void setGravimetricSw(bool gravimetric) { m_gravimetricSw = gravimetric; }

    // The pump. Its value is its size, 0 for the usual one of its type.
    int pumpType() const { return m_details->pumpType; }
    int pumpValue() const { return m_details->pumpValue; }
    void setPumpType(int type, int pumpValue);
    static int defaultPumpType(FW_ModelNumber model);
    /** Tenths of an ampere; \a duty is one of CurrentDuty. */
    static int defaultSupplyingCurrentForPump(int pumpType, int duty);
    int strokeValue() const { return m_details->strokeValue; } ///< a stroke in the units of the level sensors
    void setStrokeValue(int value) { m_details->strokeValue = value; }
    int suctionSpeed() const { return m_details->suctionSpeed; }
    void setSuctionSpeed(int speed) { m_details->suctionSpeed = speed; }
    /** True when the motor starts without waiting for the pump's zero signal. */
    bool zeroPump() const { return m_details->zeroPump; }
    void setZeroPump(bool withoutSignal) { m_details->zeroPump = withoutSignal; }
    /** True for pumps that give a zero signal, so that a motor that nobody has configured waits for it. */
    static bool defaultZeroPump(int pumpType);

    // How it pours.
    int activationTime() const
    {
        return m_details->activationTime;
    } ///< tenths of a second before the valve opens
    void setActivationTime(int time) { m_details->activationTime = time; }
    int delay() const { return m_details->delay; } ///< tenths of a second between suction and pour
    void setDelay(int time) { m_details->delay = time; }
    int maxSpeedLimit() const { return m_details->maxSpeedLimit; } ///< 0 for none
    void setMaxSpeedLimit(int speed) { m_details->maxSpeedLimit = speed; }
    static bool checkMaxSpeedLimit(int speed); ///< 1 to 2000
    /** Seconds between two pours, in halves; -1.0 when it is not told. */
    double interDispensingTime() const { return m_details->interDispensingTime; }
    void setInterDispensingTime(double seconds) { m_details->interDispensingTime = seconds; }
    static double defaultInterDispensingTime(FW_ModelNumber model);
    /** Bits of DispensingAlgorithm; -1 when it is not told. */
    int dispensingAlgorithmMask() const { return m_details->dispensingAlgorithmMask; }
    void setDispensingAlgorithmMask(int mask) { m_details->dispensingAlgorithmMask = mask; }
    static bool checkDispensingAlgorithmMask(int mask); ///< known bits, one at least
    static int defaultDispensingAlgorithmMask(FW_ModelNumber model);
    bool hasSmartSpeedReduction() const { return m_details->smartSpeedReduction; }
    void setSmartSpeedReduction(bool reduction) { m_details->smartSpeedReduction = reduction; }
    /** The group of the temperature sensor's speeds, -1 for none. */
    int speedThrTempReductionGroupID() const { return m_details->speedThrTempReductionGroupID; }
    void setSpeedThrTempReductionGroupID(int group) { m_details->speedThrTempReductionGroupID = group; }
    static bool checkSpeedThrTempReductionGroupID(int group); ///< -1, 1 or 2
    const QVector<SpeedMpxOffset> &speedMpxOffsets() const { return m_details->speedMpxOffsets; }
    void addSpeedMpxOffset(const SpeedMpxOffset &entry) { m_details->speedMpxOffsets.append(entry); }
    /** The first that was added; multiplier 1 and offset 0 when there is none. */
    SpeedMpxOffset getFirstSpeedMpxOffset() const { return m_details->speedMpxOffsets.value(0); }

    bool hasGravimetricSettings() const { return m_details->gravimetricSettings.has_value(); }
    GravimetricSettings gravimetricSettings() const
    {
        return m_details->gravimetricSettings.value_or(GravimetricSettings());
    }
    void setGravimetricSettings(const GravimetricSettings &settings)
    {
        m_details->gravimetricSettings = settings;
    }
    void setDefaultGravimetricSettings() { m_details->gravimetricSettings = GravimetricSettings(); }
    void removeGravimetricSettings();

    // What it is wired to.
    int headRefID() const { return m_details->headRefID; }
    void setHeadRefID(int id) { m_details->headRefID = id; }
    int pressureSensorWireBoardId() const { return m_details->pressureSensorWireBoardId; }
    void setPressureSensorWireBoardId(int id) { m_details->pressureSensorWireBoardId = id; }
    int pressureSensorWireConnectorId() const { return m_details->pressureSensorWireConnectorId; }
    void setPressureSensorWireConnectorId(int id) { m_details->pressureSensorWireConnectorId = id; }

    // Parts that a motor may have and share with others by reference. Pointers are null, references 0, when it has none.
    const FW_Ramp *ramp() const { return pointerTo(m_details->ramp); }
    int rampConfigRef() const { return ramp() ? ramp()->configRef() : 0; }
    void setRamp(const FW_Ramp &ramp) { m_details->ramp = ramp; }
    void removeRamp();
    const FW_SingleTransmission *singleTransmission() const
    {
        return pointerTo(m_details->singleTransmission);
    }
    int singleTransmissionConfigRef() const
    {
        return singleTransmission() ? singleTransmission()->configRef : 0;
    }
    void setSingleTransmission(const FW_SingleTransmission &part) { m_details->singleTransmission = part; }
    void removeSingleTransmission();
    const FW_FlowCorrection *flowCorrection() const { return pointerTo(m_details->flowCorrection); }
    int flowCorrectionConfigRef() const { return flowCorrection() ? flowCorrection()->configRef : 0; }
    void setFlowCorrection(const FW_FlowCorrection &part) { m_details->flowCorrection = part; }
    void removeFlowCorrection();

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_DosingMotor &other) const;
    bool operator!=(const FW_DosingMotor &other) const { return !(*this == other); }

private:
    struct Details : QSharedData
    {
        int pumpType = defaultPumpType(-1);
        int pumpValue = 0;
        int strokeValue = 100;
        int suctionSpeed = 50;
        bool zeroPump = false;
        int activationTime = 2;
        int delay = 0;
        int maxSpeedLimit = 0;
        // a motor nobody has configured is told to the firmware as well, so the two are not -1
        double interDispensingTime = defaultInterDispensingTime(-1);
        int dispensingAlgorithmMask = defaultDispensingAlgorithmMask(-1);
        bool smartSpeedReduction = false;
        int speedThrTempReductionGroupID = -1;
        QVector<SpeedMpxOffset> speedMpxOffsets;
        std::optional<GravimetricSettings> gravimetricSettings;
        int headRefID = 0;
        int pressureSensorWireBoardId = 0;
        int pressureSensorWireConnectorId = 0;
        std::optional<FW_Ramp> ramp;
        std::optional<FW_SingleTransmission> singleTransmission;
        std::optional<FW_FlowCorrection> flowCorrection;
    };

    template <class Part>
    static const Part *pointerTo(const std::optional<Part> &part)
    {
        return part ? &*part : nullptr;
    }

    int m_maxSpeed = 50;
    int m_maxSpeedOrigin = ConfiguredSpeed;
    int m_stepsPerStroke = 0;
    bool m_gravimetricSw = false;
    QSharedDataPointer<Details> m_details = QSharedDataPointer<Details>(new Details);
};

Q_DECLARE_METATYPE(FW_DosingMotor)
