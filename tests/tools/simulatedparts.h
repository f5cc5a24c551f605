// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/parts/cap.h"
#include "firmware/parts/cappingstation.h"
#include "firmware/parts/dispenserstatus.h"
#include "firmware/parts/dosing.h"
#include "firmware/parts/mixer.h"
#include "firmware/parts/resetting.h"
#include "firmware/parts/shelf.h"
#include "firmware/parts/turntable.h"
#include "firmware/simulatedmachine.h"
#include "firmware/wirereply.h"

#include <string>

/// A simulated machine of the parts that move, under a clock that tests set. Its parts can be reached without a code.
class SimulatedParts
{
public:
    explicit SimulatedParts(const FW_Machine &machine, double speed = 1)
        : m_machine(machine, speed, [this] { return now; })
    {
        add<quv::Resetting>();
        if (m_machine.type() == SerialDeviceType::Mixer) {
            add<quv::Mixer>();
            return;
        }
        add<quv::DispenserStatusPart>();
        add<quv::Dosing>();
        add<quv::Shelf>();
        add<quv::Turntable>();
        add<quv::Cap>();
        add<quv::CappingStation>();
    }

    /// The reply's tokens, after "refused " those of a refusal.
    std::string ask(const char *code, const QList<int> &parameters = {})
    {
        return askAt(code, 0, parameters);
    }
    /// The same at a serial address.
    std::string askAt(const char *code, int module, const QList<int> &parameters)
    {
        for (const auto &part : m_machine.parts())
            part->goOn();
        for (const auto &part : m_machine.parts()) {
            for (const quv::FirmwareCode &served : part->codes()) {
                if (served.code != QLatin1String(code))
                    continue;
                const quv::FirmwareReply reply = served.run(module, parameters);
                return (reply.refused ? "refused " : "") + reply.tokens.join(' ').toStdString();
            }
        }
        return "no such code";
    }

    /// The ten masks of the sensors.
    std::string sensors()
    {
        quv::SensorWords sensors;
        for (const auto &part : m_machine.parts()) {
            part->goOn();
            part->tellSensors(sensors);
        }
        return quv::replied(sensors.numbers(1, 10)).tokens.mid(1).join(' ').toStdString();
    }
    void stop()
    {
        for (const auto &part : m_machine.parts())
            part->stop();
    }

    qint64 now = 1000; ///< milliseconds

private:
    template <class Part>
    void add()
    {
        m_machine.add(std::make_unique<Part>(m_machine));
    }

    quv::SimulatedMachine m_machine;
};
