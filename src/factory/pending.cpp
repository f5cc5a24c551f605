// SPDX-License-Identifier: LGPL-3.0-or-later
#include "factory/pending_p.h"

#include "base/prototypes_p.h"

#include <array>
#include <cstddef>

namespace {

constexpr std::size_t operationCount = static_cast<std::size_t>(quv::Dispatch::Scale) + 1;

/** The forms in which a row of an operation is pending. */
using FormsOfRows = std::array<std::array<unsigned char, ProtoCommandList::rowCount>, operationCount>;

FormsOfRows formsOfRows()
{
    FormsOfRows forms{};
    for (const quv::PendingCommand &pending : quv::pendingCommands())
        forms[static_cast<std::size_t>(pending.dispatch)][static_cast<std::size_t>(pending.name)] |=
            static_cast<unsigned char>(pending.forms);
    return forms;
}

} // namespace

namespace quv {

// clang-format off
const std::vector<PendingCommand> &pendingCommands()
{
    static const std::vector<PendingCommand> commands = {
    };
    return commands;
}

const std::vector<PendingAnswer> &pendingAnswers()
{
    static const std::vector<PendingAnswer> answers = {
    };
    return answers;
}
// clang-format on

bool isPending(Dispatch dispatch, Form form, int row)
{
    static const FormsOfRows forms = formsOfRows();
    return (forms[static_cast<std::size_t>(dispatch)][static_cast<std::size_t>(row)] & form) != 0;
}

} // namespace quv
