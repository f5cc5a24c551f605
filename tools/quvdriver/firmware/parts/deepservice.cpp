// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/deepservice.h"

#include "firmware/wirereader.h"

namespace quv {
namespace {

const QLatin1String deepServiceCode("002C");

} // namespace

std::vector<FirmwareCode> DeepService::codes()
{
    return {{deepServiceCode,
             {},
             [this](int module, const QList<int> &numbers) { return handThrough(module, numbers); },
             true}};
}

FirmwareReply DeepService::handThrough(int module, const QList<int> &parameters) const
{
    constexpr int MaxByte = 255;
    constexpr int Hexadecimal = 16;
    WireReader reader(parameters);
    const int board = reader.next(0, MaxByte);
    const int high = reader.next(0, MaxByte);
    const int low = reader.next(0, MaxByte);
    if (!reader.isGood())
        return refused(Reason::WrongParameters);
    const QString code = QStringLiteral("%1%2")
                             .arg(high, 2, Hexadecimal, QLatin1Char('0'))
                             .arg(low, 2, Hexadecimal, QLatin1Char('0'))
                             .toUpper();
    if (code == deepServiceCode) // boards hand nothing on
        return refused(Reason::UnknownCode);
    return m_execute(code, board == 0 ? module : board, parameters.mid(reader.place()));
}

} // namespace quv
