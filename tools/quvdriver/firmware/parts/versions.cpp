// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/versions.h"

#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

#include <utility>

namespace quv {
namespace {

/// Those that keep the machine busy while they are carried out.
bool versionsKeepBusy(const QString &code)
{
    static const QSet<QString> busy{
        QStringLiteral("0001"), QStringLiteral("0003"), QStringLiteral("0004"), QStringLiteral("0005"),
        QStringLiteral("0015"), QStringLiteral("0016"), QStringLiteral("0017"), QStringLiteral("0018"),
        QStringLiteral("0020"), QStringLiteral("0023"), QStringLiteral("0024"), QStringLiteral("0025"),
        QStringLiteral("0027"), QStringLiteral("0028"), QStringLiteral("002C"), QStringLiteral("002F"),
        QStringLiteral("0030"), QStringLiteral("0031"), QStringLiteral("0032"), QStringLiteral("0035"),
        QStringLiteral("0041"), QStringLiteral("0067"), QStringLiteral("0071")};
    return busy.contains(code);
}

/// Whether the firmware tells of each command that it can be carried out, to who asks for it.
bool versionsTellExecution(const FW_Version &version)
{
    switch (version.m_family) {
    case 63:
        return version.m_revision > 38;
    case 70:
        return version.m_revision > 1;
    case 72:
    case 78:
        return true;
    default:
        return false;
    }
}

FW_Version versionsUsual(SerialDeviceType type)
{
    return type == SerialDeviceType::Mixer ? FW_Version(100, 1, 1, 0, 0, 1) : FW_Version(63, 1, 1, 0, 0, 40);
}

} // namespace

Versions::Versions(SimulatedMachine &machine, const FW_Version &version, Codes allCodes)
    : m_machine(machine),
      m_version(version.isValid() ? version : versionsUsual(machine.type())),
      m_codes(std::move(allCodes))
{}

std::vector<FirmwareCode> Versions::codes()
{
    using Numbers = QList<int>;
    return {
        {QStringLiteral("000F"), {}, [this](int module, const Numbers &) { return tellVersion(module); }},
        {QStringLiteral("0014"),
         {},
         [this](int, const Numbers &numbers) { return tellCommands(numbers); },
         true},
        {QStringLiteral("0068"),
         {},
         [this](int, const Numbers &numbers) { return tellPlaces(numbers); },
         true},
    };
}

/// The boards of the circuits run the same firmware as the machine.
FirmwareReply Versions::tellVersion(int module) const
{
    if (module != 0 && !m_machine.circuitAt(module))
        return refused(Reason::WrongModule);
    return replied({m_version.m_family, m_version.m_hardware, m_version.m_major, m_version.m_minor,
                    m_version.m_patch, m_version.m_revision});
}

FirmwareReply Versions::tellCommands(const QList<int> &numbers) const
{
    constexpr int Hexadecimal = 16;
    WireReader reader(numbers);
    const bool asksForExecution = !numbers.isEmpty() && reader.next(0, 1) == 1;
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    const QStringList codes = m_codes();
    QList<int> table{static_cast<int>(codes.size())};
    for (const QString &code : codes) {
        const int number = code.toInt(nullptr, Hexadecimal);
        table << number % WireBase << number / WireBase << (versionsKeepBusy(code) ? 2 : 1);
        if (asksForExecution && versionsTellExecution(m_version))
            table << 1;
    }
    return replied(table);
}

/// Rows of the table count from 1.
FirmwareReply Versions::tellPlaces(const QList<int> &numbers) const
{
    constexpr int Highest = 0xFFFF;
    constexpr int Hexadecimal = 16;
    WireReader reader(numbers);
    const int code = reader.next(0, Highest);
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    const QStringList codes = m_codes();
    QList<int> places;
    for (int i = 0; i < codes.size(); ++i) {
        if (codes.at(i).toInt(nullptr, Hexadecimal) == code)
            places.append(i + 1);
    }
    places.prepend(static_cast<int>(places.size()));
    return replied(places);
}

} // namespace quv
