// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>

namespace quv {

/// The longest request, in bytes without the line's end.
inline constexpr std::size_t longestRequest = 16 * 1024 * 1024;

/// The reply to one request, without the line's end. Never throws.
std::string replyTo(const std::string &line);

/// One reply a line for each line of \a in, flushed each, to its end.
void runBatch(std::istream &in, std::ostream &out);

} // namespace quv
