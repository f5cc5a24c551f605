// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/newtransparentcmd.h"

#include "base/describedcommand_p.h"
#include "base/tokens_p.h"
#include "processes/newtransparentcmdanswer.h"

#include <QuvFramework/fw_version.h>

#include <algorithm>

namespace {

constexpr char noCode[] = "NewTransparentCmd: expected a command code of four hexadecimal digits";

bool isCode(const QString &text)
{
    constexpr int digits = 4;
    const auto isDigit = [](QChar character) { return quv::hexDigit(character) >= 0; };
    return text.size() == digits && std::all_of(text.begin(), text.end(), isDigit);
}

} // namespace

struct NewTransparentCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::DEEP_SERVICE;

    static constexpr char answerFailed[] = "Failed to create NewTransparentCmdAnswer";
    static constexpr quv::AnsweredBy<NewTransparentCmdAnswer> answer = {{"DE03182", answerFailed},
                                                                        {"DE03183", answerFailed},
                                                                        {"DE03184", answerFailed},
                                                                        {"DE03185", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noModule = {"DE03172", "DE03177",
                                                   "NewTransparentCmd: expected a module"};
        constexpr quv::ArgumentRefusal noBoard = {"DE03173", "DE03178",
                                                  "NewTransparentCmd: expected a board"};
        constexpr quv::ArgumentRefusal noText = {"DE03174", "DE03179",
                                                 "NewTransparentCmd: expected a command code"};
        archive.required({"module", "through which the board is reached"}, self.m_moduleID, noModule,
                         noModule);
        archive.required({"board", "that carries the command out; 0 the module's own"}, self.m_board, noBoard,
                         noBoard);
        archive.required({"code", "four hexadecimal digits"}, self.m_commandCode.code, noText, noText);
        archive.refuseUnless(isCode(self.m_commandCode.code), {"DE03176", "DE03181", noCode});
        archive.optional({"parameters", "of the command"}, self.m_commandParameters,
                         {"DE03175", "DE03180", "NewTransparentCmd: expected the command's parameters"});
    }
};

template class quv::DescribedCommand<NewTransparentCmd, SerialProtoCommand>;

NewTransparentCmd::NewTransparentCmd(int module, int board, const CommandCode &commandCode,
                                     const QList<int> &commandParameters)
    : m_board(board),
      m_commandParameters(commandParameters)
{
    if (!isCode(commandCode.code))
        throw FW_Exception("DE03171", noCode, Q_FUNC_INFO);
    m_moduleID = module;
    m_commandCode.setCommandCode(commandCode.code);
}

NewTransparentCmd::NewTransparentCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
    m_commandCode.setCommandCode(m_commandCode.code);
}

NewTransparentCmd::NewTransparentCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
    m_commandCode.setCommandCode(m_commandCode.code);
}

NewTransparentCmd *NewTransparentCmd::clone() const
{
    return new NewTransparentCmd(*this);
}

QList<QVariant> NewTransparentCmd::parameters() const
{
    // variants of integer lists do not compare
    return {m_moduleID, m_board, m_commandCode.code, intListToVariant(m_commandParameters)};
}

QList<int> NewTransparentCmd::serialParameters(int) const
{
    const auto hi = static_cast<int>(m_commandCode.command_HI());
    const auto lo = static_cast<int>(m_commandCode.command_LO());
    return QList<int>{m_board, hi, lo} + m_commandParameters;
}

bool NewTransparentCmd::isSupportedCommand(const FW_Version &version) const
{
    return isCommandSupported(version);
}

bool NewTransparentCmd::isCommandSupported(const FW_Version &version)
{
    return version.isValid();
}
