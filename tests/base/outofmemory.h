// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

/** Lets the next allocation with new in this thread fail. This is how an answer fails without a word of its own. */
class OutOfMemoryOnce
{
public:
    OutOfMemoryOnce();
    ~OutOfMemoryOnce();
    OutOfMemoryOnce(const OutOfMemoryOnce &) = delete;
    OutOfMemoryOnce &operator=(const OutOfMemoryOnce &) = delete;
};

template <class Work>
auto outOfMemoryOnce(Work work) -> decltype(work())
{
    const OutOfMemoryOnce shortage;
    return work();
}
