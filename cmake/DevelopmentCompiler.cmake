# The compiler of development where none is named: clang, which takes half of g++'s time for code that is not optimised.
# What is released is built by the machine's own compiler.
if(NOT DEFINED ENV{CXX})
    find_program(CMAKE_CXX_COMPILER clang++)
    if(NOT CMAKE_CXX_COMPILER)
        unset(CMAKE_CXX_COMPILER CACHE)
    endif()
endif()
