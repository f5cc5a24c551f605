// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwresourcedata.h"
#include "ratios.h"
#include "suites.h"

#include <QuvFramework/fw_serial.h>

namespace {

constexpr int blockSize = 100;
constexpr int subcommand = 2;
constexpr int resourceIndex = 243;
constexpr int address = 300;

QByteArray blockOfBytes()
{
    QByteArray bytes;
    for (int i = 0; i < blockSize; ++i)
        bytes.append(static_cast<char>(i * 37));
    return bytes;
}

FwResourceData block()
{
    return {RFM_Subcommand{subcommand}, resourceIndex, address, blockOfBytes()};
}

QStringList blockTokens()
{
    QStringList tokens;
    for (const int number : block().serialParameters())
        tokens.append(QString::number(number, 16).toUpper().rightJustified(2, QLatin1Char('0')));
    return tokens;
}

QList<int> splitByHand(const QByteArray &bytes)
{
    QList<int> integers = {subcommand, resourceIndex};
    integers.append(splitValue(address, 244));
    integers.append(bytes.size());
    for (const char byte : bytes) {
        const QList<int> halves = splitValue(static_cast<unsigned char>(byte), 16);
        integers.append(halves.value(1));
        integers.append(halves.constFirst());
    }
    return integers;
}

FwResourceData joinByHand(const QStringList &tokens)
{
    constexpr int head = 5;
    FwResourceData joined;
    joined.subcommand = tokens.at(0).toInt(nullptr, 16);
    joined.resourceIndex = tokens.at(1).toInt(nullptr, 16);
    joined.blockAddress = static_cast<int>(joinValues(tokens.mid(2, 2), 244, true));
    for (int i = head; i + 1 < tokens.size(); i += 2)
        joined.data.append(
            static_cast<char>(joinValues(QStringList{tokens.at(i + 1), tokens.at(i)}, 16, true)));
    return joined;
}

} // namespace

void quv::addResourceRatios()
{
    addRatio("resource block: to integers", 1.5, repeat([data = block()] { return data.serialParameters(); }),
             repeat([bytes = blockOfBytes()] { return splitByHand(bytes); }));
    addRatio("resource block: from tokens", 1.5,
             repeat([tokens = blockTokens()] { return FwResourceData(tokens); }),
             repeat([tokens = blockTokens()] { return joinByHand(tokens); }));
}
