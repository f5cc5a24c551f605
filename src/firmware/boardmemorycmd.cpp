// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardmemorycmd.h"

#include "base/describedcommand_p.h"
#include "firmware/boardmemoryanswer.h"

#include <algorithm>
#include <array>

namespace {

constexpr char badParameter[] = "BoardMemoryCmd: error in parameter decoding";

constexpr int characterCount = 2;
constexpr int addressNumbers = 4;
constexpr int allNumbers = 8;

/** The arguments one by one, as they travel. */
struct Elements
{
    QString operation;
    QString subject;
    std::array<int, allNumbers> numbers{};
};

int codeOf(QChar character)
{
    constexpr int codes = 256;
    return character.unicode() < codes ? character.unicode() : 0;
}

} // namespace

struct BoardMemoryCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::BOARD_MEMORY;

    static constexpr char answerFailed[] = "Failed to create BoardMemoryAnswer";
    static constexpr quv::AnsweredBy<BoardMemoryAnswer> answer = {{"DE00557", answerFailed},
                                                                  {"DE00696", answerFailed},
                                                                  {"DE01179", answerFailed},
                                                                  {"DE00556", answerFailed}};

    /** No list is read, so that no refusal has a code for one. */
    template <class Archive>
    static void arguments(Elements &elements, Archive &archive)
    {
        auto &numbers = elements.numbers;
        archive.required({"operation", "one character, R to read"}, elements.operation, {},
                         {{"DE00402", badParameter}, {}});
        archive.refuseUnless(elements.operation.size() == 1, {{"DE00402", badParameter}, {}});
        archive.required({"subject", "one character"}, elements.subject, {}, {{"DE00407", badParameter}, {}});
        archive.refuseUnless(elements.subject.size() == 1, {{"DE00407", badParameter}, {}});
        archive.required({"address_1", "of the board's own meaning, as all numbers here"}, numbers[0], {},
                         {{"DE00342", badParameter}, {}});
        archive.required("address_2", numbers[1], {}, {{"DE00558", badParameter}, {}});
        archive.required("address_3", numbers[2], {}, {{"DE00431", badParameter}, {}});
        archive.required("address_4", numbers[3], {}, {{"DE00695", badParameter}, {}});
        archive.optional("data_1", numbers[4], {{"DE00695", badParameter}, {}});
        archive.optional("data_2", numbers[5], {{"DE00695", badParameter}, {}});
        archive.optional("data_3", numbers[6], {{"DE00695", badParameter}, {}});
        archive.optional("data_4", numbers[7], {{"DE00695", badParameter}, {}});
    }
    static void tellArguments(quv::ArgumentTeller &teller)
    {
        Elements none;
        arguments(none, teller);
    }
};

template class quv::DescribedCommand<BoardMemoryCmd, SerialProtoCommand>;

BoardMemoryCmd::BoardMemoryCmd(QChar operation, QChar subject, const QList<int> &address,
                               const QList<int> &data)
    : m_operation(operation),
      m_subject(subject),
      m_address(address),
      m_data(data)
{}

BoardMemoryCmd::BoardMemoryCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    Elements elements;
    quv::ValueReader reader(value, Q_FUNC_INFO);
    Description::arguments(elements, reader);
    m_operation = elements.operation.at(0);
    m_subject = elements.subject.at(0);
    const auto behindAddress = elements.numbers.cbegin() + addressNumbers;
    const int dataNumbers = std::min(value.size() - characterCount, allNumbers) - addressNumbers;
    m_address = QList<int>(elements.numbers.cbegin(), behindAddress);
    m_data = QList<int>(behindAddress, behindAddress + dataNumbers);
}

BoardMemoryCmd::BoardMemoryCmd(QList<QVariant> list) : DescribedCommand(list) {}

BoardMemoryCmd *BoardMemoryCmd::clone() const
{
    return new BoardMemoryCmd(*this);
}

QList<QVariant> BoardMemoryCmd::parameters() const
{
    return {};
}

XmlRpc::XmlRpcValue BoardMemoryCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    const QList<QVariant> characters = {QString(m_operation), QString(m_subject)};
    return EncodeXmlRpcVariant(characters + intListToVariant(m_address + m_data));
}

QList<int> BoardMemoryCmd::serialParameters(int) const
{
    return QList<int>{codeOf(m_operation), codeOf(m_subject)} + m_address + m_data;
}
