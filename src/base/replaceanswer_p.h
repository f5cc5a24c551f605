// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/guard_p.h"
#include "base/protoanswer.h"
#include "base/protocommand.h"

namespace quv {

/** What most failures to make an answer say. */
constexpr char answerFailed[] = "Failed to create answer";

} // namespace quv

template <class Make>
bool ProtoCommand::replaceProtoAnswer(const char *code, const char *text, FW_DriverError *error, Make make)
{
    // made first: what it is made of may be a part of the answer that goes
    std::unique_ptr<ProtoAnswer> answer;
    const bool made = quv::guarded(code, text, error, [&] { answer.reset(make()); });
    m_protoAnswer = std::move(answer);
    return made;
}
