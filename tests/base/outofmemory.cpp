// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/outofmemory.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

thread_local bool failsNext = false;

} // namespace

void *operator new(std::size_t size)
{
    void *memory = failsNext ? nullptr : std::malloc(size != 0 ? size : 1);
    failsNext = false;
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

// the sanitizer's own would not fit the deletes below
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return std::malloc(size != 0 ? size : 1);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

OutOfMemoryOnce::OutOfMemoryOnce()
{
    failsNext = true;
}

OutOfMemoryOnce::~OutOfMemoryOnce()
{
    failsNext = false;
}
