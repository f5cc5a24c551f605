// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedfirmware.h"

#include "firmware/parts/activecircuits.h"
#include "firmware/parts/cap.h"
#include "firmware/parts/cappingstation.h"
#include "firmware/parts/cleaning.h"
#include "firmware/parts/deepservice.h"
#include "firmware/parts/dispenserstatus.h"
#include "firmware/parts/dosing.h"
#include "firmware/parts/errors.h"
#include "firmware/parts/levelsensors.h"
#include "firmware/parts/mixer.h"
#include "firmware/parts/recirculation.h"
#include "firmware/parts/resetting.h"
#include "firmware/parts/safety.h"
#include "firmware/parts/sensors.h"
#include "firmware/parts/shelf.h"
#include "firmware/parts/stirring.h"
#include "firmware/parts/stopping.h"
#include "firmware/parts/turntable.h"
#include "firmware/parts/versions.h"
#include "firmware/parts/workingmode.h"
#include "firmware/wirereply.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

namespace quv {
namespace {

constexpr int MaxModule = 255; // the address is one byte

} // namespace

SimulatedFirmware::SimulatedFirmware(const FW_Machine &machine, double speed, Clock clock,
                                     SimulatedConfiguration configuration)
    : m_machine(machine, speed, std::move(clock))
{
    const FW_Version version = configuration.version;
    add<Safety>(); // before the others: what it stops must not go on
    add<Errors>();
    m_rows = &add<Rows>(machine, std::move(configuration));
    add<Versions>(version, [this] { return codes(); });
    add<Resetting>();
    add<Stopping>();
    if (m_machine.type() == SerialDeviceType::Dispenser) {
        add<DispenserStatusPart>();
        add<Dosing>();
        add<WorkingMode>();
        add<Stirring>();
        add<Recirculation>();
        add<Cleaning>();
        add<LevelSensors>();
        add<Shelf>();
        add<Turntable>();
        add<Cap>();
        add<CappingStation>();
        add<ActiveCircuits>();
        add<Sensors>();
        add<DeepService>([this](const QString &code, int module, const QList<int> &parameters) {
            return execute(code, module, parameters);
        });
    } else {
        add<Mixer>();
    }
}

template <class Part, class... Arguments>
Part &SimulatedFirmware::add(Arguments &&...arguments)
{
    auto part = std::make_unique<Part>(m_machine, std::forward<Arguments>(arguments)...);
    Part &added = *part;
    const bool isOfFamily2 = m_machine.dispenser().commandFamily() == FW_Dispenser::CommandFamily2;
    for (FirmwareCode &code : part->codes()) {
        if (isOfFamily2)
            code.code = code.family2;
        if (!code.code.isEmpty())
            m_codes.push_back(std::move(code));
    }
    m_machine.add(std::move(part));
    return added;
}

QStringList SimulatedFirmware::codes() const
{
    QStringList codes;
    for (const FirmwareCode &code : m_codes)
        codes.append(code.code);
    return codes;
}

SimulatedFirmware::Clock SimulatedFirmware::steadyClock()
{
    return [] {
        using namespace std::chrono;
        return qint64(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
    };
}

FirmwareReply SimulatedFirmware::execute(const QString &code, int module, const QList<int> &parameters)
{
    m_machine.goOn();
    if (m_machine.faults().linkLost)
        throw std::runtime_error("the firmware gives no reply");
    const auto served = std::find_if(m_codes.begin(), m_codes.end(), [&code](const FirmwareCode &candidate) {
        return candidate.code == code;
    });
    if (served == m_codes.end())
        return refused(Reason::UnknownCode);
    if (module < 0 || module > MaxModule)
        return refused(Reason::WrongModule);
    if (!parameters.isEmpty() && !served->takesParameters)
        return refused(Reason::WrongParameters);
    if (m_machine.refuses(module))
        return refused(Reason::NotAvailable, QStringLiteral("the board at %1 refuses").arg(module));
    return served->run(module, parameters);
}

} // namespace quv
