// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwresourcefile.h"
#include "firmware/resourcefilemanagementanswer.h"
#include "fuzzinput.h"

#include <QuvFramework/fw_exception.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <algorithm>

namespace {

constexpr int headSize = 5;
constexpr int addresses = 244 * 244;

QStringList tokensOf(const QList<int> &parameters)
{
    QStringList tokens;
    for (const int number : parameters)
        tokens.append(number < 0 ? QLatin1Char('-') + QString::number(-static_cast<long long>(number), 16)
                                 : QString::number(number, 16));
    return tokens;
}

/** Zeros are sent as their number, which is refused when it is read. */
void checkZeros(const QStringList &tokens)
{
    try {
        const FwResourceData block(tokens);
        quv::require(false, "a block without its bytes is refused");
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code() == QLatin1String("DE02746"), "what misses is its bytes");
    }
}

void checkBlock(const FwResourceData &block, int tokenCount)
{
    quv::require(headSize + 2 * block.data.size() <= tokenCount, "no byte without its tokens");
    const QList<int> sent = block.serialParameters();
    const bool isBlank =
        std::all_of(block.data.begin(), block.data.end(), [](char byte) { return byte == 0; });
    quv::require(sent.size() == headSize + (isBlank ? 0 : 2 * block.data.size()), "a half for each token");
    quv::require(sent.at(4) == block.data.size(), "a block tells its length");
    quv::require(
        std::all_of(sent.begin() + headSize, sent.end(), [](int half) { return half >= 0 && half < 16; }),
        "half a byte is below 16");
    if (isBlank && !block.data.isEmpty())
        checkZeros(tokensOf(sent));
    else if (block.blockAddress < addresses)
        quv::require(FwResourceData(tokensOf(sent)) == block, "a block reads back from what is sent");
}

void checkName(const QString &name)
{
    FwResourceFile file;
    file.setResourceNameAndType(name);
    quv::require(file.type >= FwResourceFile::GenericFile && file.type <= FwResourceFile::DumpFile,
                 "a name tells one of four types");
    quv::require(name.contains(file.findSAPcode()), "a code is a part of the name");
    quv::require(FwResourceFile(file.toXmlRpcValue()).type == file.type, "a file reads back from its struct");
}

} // namespace

/** Blank-separated tokens give a block of a resource file, or a refusal with its code; the text is a file's name as well. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    checkName(text);
    const QStringList tokens = text.split(QLatin1Char(' '));
    ResourceFileManagementAnswer answer;
    try {
        answer = ResourceFileManagementAnswer(tokens);
    } catch (const FW_Exception &refusal) {
        quv::require(refusal.code().size() == 7 && !refusal.text().isEmpty() && !refusal.function().isEmpty(),
                     "a refusal has its code, its text and its function");
        return 0;
    }
    checkBlock(answer.resourceData(), tokens.size() - 1);
    return 0;
}
