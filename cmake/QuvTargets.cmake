# What every target of this project shares: warnings and sanitizers, how a library is versioned and installed, and what a
# program is made of.

# The code of a TEST is not itself instrumented for the sanitizers, what it calls is: that halves the time to compile it. Threads are
# the exception, since tests start some.
function(quv_compile_options target)
    cmake_parse_arguments(ARG "TEST" "" "" ${ARGN})
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow)
    if(QUVPROTOCOL_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(QUVPROTOCOL_SANITIZERS)
        if(NOT ARG_TEST OR QUVPROTOCOL_SANITIZERS MATCHES "thread")
            target_compile_options(${target} PRIVATE -fsanitize=${QUVPROTOCOL_SANITIZERS} -fno-omit-frame-pointer
                -fno-sanitize-recover=all)
        endif()
        target_link_options(${target} PRIVATE -fsanitize=${QUVPROTOCOL_SANITIZERS})
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
endfunction()

# Lets the compiler parse headers once a target that nearly all of its sources include. A source includes what it needs all the
# same: clang-tidy in .ci/run, without this, finds what was forgotten.
function(quv_precompile_headers target)
    if(QUVPROTOCOL_PRECOMPILE_HEADERS)
        if(ARGV1 STREQUAL REUSE_FROM)
            target_precompile_headers(${target} REUSE_FROM ${ARGV2})
        else()
            target_precompile_headers(${target} PRIVATE ${ARGN})
        endif()
        # for ccache
        if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
            target_compile_options(${target} PRIVATE -fpch-preprocess)
        elseif(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
            target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
        endif()
    endif()
endfunction()

# Compiles the sources of a target several at a time, but for those in ALONE: half of the work of one by itself are templates that
# headers make for each anew.
function(quv_join_sources target)
    cmake_parse_arguments(ARG "" "" "ALONE" ${ARGN})
    if(NOT QUVPROTOCOL_JOIN_SOURCES)
        return()
    endif()
    find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
    get_target_property(sources ${target} SOURCES)
    list(REMOVE_ITEM sources ${ARG_ALONE})
    list(TRANSFORM sources PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ REGEX "^[^/$]")
    execute_process(
        COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/cmake/group_sources.py ${sources}
        OUTPUT_VARIABLE groups OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE ";" "|" groups "${groups}")
    string(REPLACE "\n" ";" groups "${groups}")
    foreach(line IN LISTS groups)
        string(REPLACE "|" ";" line "${line}")
        list(GET line 0 source)
        list(GET line 1 group)
        set_source_files_properties(${source} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${group})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

# Below version 1.0 each minor version may break what was built against another one, so that it is a part of the soname.
function(quv_version_library target)
    set(soversion ${PROJECT_VERSION_MAJOR})
    if(soversion EQUAL 0)
        set(soversion 0.${PROJECT_VERSION_MINOR})
    endif()
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${soversion})
endfunction()

# Installs a library with its CMake package, which looks for further packages first, and its pkg-config file; headers are
# installed where they are listed.
function(quv_install_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "QT;PACKAGES")
    install(TARGETS ${target} EXPORT ${target}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${target})
    install(EXPORT ${target}Targets NAMESPACE ${target}:: DESTINATION ${package_dir})
    list(JOIN arg_QT " " qt_components)
    string(PREPEND qt_components "Core ")
    set(further_packages ${arg_PACKAGES})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/LibraryConfig.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/${target}Config.cmake INSTALL_DESTINATION ${package_dir})
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${target}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/${target}Config.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/${target}ConfigVersion.cmake
        ${PROJECT_SOURCE_DIR}/cmake/FindXmlRpcpp.cmake
        DESTINATION ${package_dir})
    file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${target}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${target}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# A program for the shell. It is a thin shell itself: what it does is the library <name>_core, so that tests reach it.
function(quv_add_tool name)
    add_executable(${name} main.cpp)
    quv_compile_options(${name})
    target_compile_definitions(${name} PRIVATE QUV_VERSION="${PROJECT_VERSION}")
    target_link_libraries(${name} PRIVATE ${name}_core)
    if(QUVPROTOCOL_INSTALL)
        install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
        install(FILES completion/${name}.bash
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${name})
    endif()
endfunction()
