// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardmemoryanswer.h"

#include "base/decoding_p.h"
#include "base/describedanswer_p.h"

#include <QuvFramework/fw_serial.h>

#include <algorithm>
#include <string>

namespace {

constexpr int base = 246;
constexpr int firstDigit = 5; // behind the length token and four parameters
constexpr long long none = -1;

constexpr char noBoardAnswer[] = "BoardMemoryAnswer: expected board answer value";

bool readDigits(const QString &text, void *field)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    if (!std::all_of(text.cbegin(), text.cend(), isDigit))
        return false;
    bool ok = true;
    const long long number = text.isEmpty() ? none : text.toLongLong(&ok);
    if (ok)
        *static_cast<long long *>(field) = number;
    return ok;
}

/** A number as decimal text, since XML-RPC has no integers of 64 bits; an empty text for a negative one. */
constexpr quv::FieldType decimalText = {"string",
                                        quv::FieldType::Other,
                                        [](const XmlRpc::XmlRpcValue &value, void *field) {
                                            QString text;
                                            return DecodeXmlRpcValue(value, text) && readDigits(text, field)
                                                       ? quv::Decoded::Good
                                                       : quv::Decoded::OtherType;
                                        },
                                        [](const QVariant &variant, void *field) {
                                            QString text;
                                            return quv::decodeVariant(variant, text) &&
                                                   readDigits(text, field);
                                        },
                                        [](const void *field, XmlRpc::XmlRpcValue &value) {
                                            const long long number = *static_cast<const long long *>(field);
                                            value = number < 0 ? std::string() : std::to_string(number);
                                        },
                                        quv::equalFields<long long>,
                                        quv::resetField<long long>};

} // namespace

struct BoardMemoryAnswer::Description
{
    using Answer = BoardMemoryAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(boardAnswer_TAG, &Answer::m_boardAnswer, {"DE03300", noBoardAnswer},
                                    {"DE03301", noBoardAnswer})
                    .as(decimalText)
                    .meaning("a number in decimal digits; empty for none")};
    }
};

template class quv::DescribedAnswer<BoardMemoryAnswer, SerialProtoAnswer>;

BoardMemoryAnswer::BoardMemoryAnswer(qlonglong boardAnswer) : m_boardAnswer(boardAnswer) {}

BoardMemoryAnswer::BoardMemoryAnswer(QStringList tokens)
    : DescribedAnswer(tokens),
      m_boardAnswer(joinValues(tokens.mid(firstDigit), base, true))
{}

BoardMemoryAnswer::BoardMemoryAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

BoardMemoryAnswer::BoardMemoryAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

BoardMemoryAnswer *BoardMemoryAnswer::clone() const
{
    return new BoardMemoryAnswer(*this);
}
