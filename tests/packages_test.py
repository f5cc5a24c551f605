# SPDX-License-Identifier: LGPL-3.0-or-later
"""
The library as others use it: installed, as a part of their project, and static.
Usage: packages_test.py SOURCE BUILD [unittest options]; Whole compiles the library, which takes minutes.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path()
BUILD = pathlib.Path()

# A user's project, and what must not have changed in it once the library is found.
CALLER = """cmake_minimum_required(VERSION 3.22)
project(caller LANGUAGES CXX)
set(CMAKE_MODULE_PATH first second)
{how}
if(NOT CMAKE_MODULE_PATH STREQUAL "first;second")
    message(FATAL_ERROR "the module path became ${{CMAKE_MODULE_PATH}}")
endif()
if(DEFINED BUILD_SHARED_LIBS)
    message(FATAL_ERROR "BUILD_SHARED_LIBS became ${{BUILD_SHARED_LIBS}}")
endif()
foreach(module IN ITEMS Widgets Network Xml)
    if(TARGET Qt5::${{module}})
        message(FATAL_ERROR "nobody has asked for Qt5::${{module}}")
    endif()
endforeach()
add_executable(caller main.cpp)
target_link_libraries(caller PRIVATE QuvProtocol::QuvProtocol)
"""


def cached(name):
    """A variable of the build that is tested."""
    for line in (BUILD / "CMakeCache.txt").read_text(encoding="utf-8").splitlines():
        if re.match(rf"{name}:\w+=", line):
            return line.partition("=")[2]
    return ""


class PackagesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.expected = (SOURCE / "examples/consumer/expected.txt").read_text(encoding="utf-8")

    @classmethod
    def run_tool(cls, *words, **environment):
        result = subprocess.run([str(word) for word in words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True, check=False, env={**os.environ, **environment})
        if result.returncode != 0:
            raise AssertionError(" ".join(map(str, words)) + "\n" + result.stdout)
        return result.stdout

    @classmethod
    def configure(cls, source, build, *options):
        return cls.run_tool("cmake", "-G", "Ninja", "-S", source, "-B", build,
                            f"-DCMAKE_CXX_COMPILER={cached('CMAKE_CXX_COMPILER')}",
                            f"-DCMAKE_CXX_COMPILER_LAUNCHER={cached('CMAKE_CXX_COMPILER_LAUNCHER')}", *options)

    def caller(self, how):
        """The folder of a project with the example's program that uses the library in one of the ways of README.md."""
        readme = (SOURCE / "README.md").read_text(encoding="utf-8")
        lines = next(fence for fence in re.findall(r"```cmake\n(.*?)```", readme, re.DOTALL) if how in fence)
        if how == "find_package":
            lines = re.search("find_package.*", lines).group()
        folder = self.folder / self.id()
        folder.mkdir()
        (folder / "CMakeLists.txt").write_text(CALLER.format(how=lines), encoding="utf-8")
        shutil.copy(SOURCE / "examples/consumer/main.cpp", folder)
        (folder / "quvprotocol").symlink_to(SOURCE)
        return folder


class Installed(PackagesTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.prefix = cls.folder / "prefix"
        cls.run_tool("cmake", "--install", BUILD, "--prefix", cls.prefix)
        cls.library_dir = cls.prefix / cached("CMAKE_INSTALL_LIBDIR")
        cls.headers = sorted((cls.prefix / "include/QuvProtocol").glob("**/*.h"))

    def traps(self):
        """A folder of the user's that has a file of the name of each of our headers."""
        traps = self.folder / self.id() / "traps"
        for header in self.headers:
            trap = traps / header.relative_to(self.prefix / "include/QuvProtocol")
            trap.parent.mkdir(parents=True, exist_ok=True)
            trap.write_text("#error a file of the user\n", encoding="utf-8")
        self.assertTrue((traps / "base/protoanswer.h").exists())
        return traps

    def flags(self, *options):
        environment = {"PKG_CONFIG_PATH": str(self.library_dir / "pkgconfig")}
        return self.run_tool("pkg-config", *options, "QuvProtocol", **environment).split()

    def test_found_by_cmake_beside_files_of_the_same_names(self):
        caller = self.caller("find_package")
        self.configure(caller, caller / "build", f"-DCMAKE_PREFIX_PATH={self.prefix}",
                       f"-DCMAKE_CXX_FLAGS=-I{self.traps()}")
        self.run_tool("cmake", "--build", caller / "build")
        self.assertEqual(self.run_tool(caller / "build/caller"), self.expected)

    def test_found_by_pkg_config(self):
        program = self.folder / "by_pkg_config"
        self.run_tool(cached("CMAKE_CXX_COMPILER"), "-std=c++17", SOURCE / "examples/consumer/main.cpp",
                      *self.flags("--cflags", "--libs"), "-o", program)
        self.assertEqual(self.run_tool(program, LD_LIBRARY_PATH=str(self.library_dir)), self.expected)
        self.assertEqual([flag for flag in self.flags("--cflags", "--libs") if re.match("-lQt5(?!Core|Gui|SerialPort)", flag)], [])

    def test_every_header_stands_by_itself_beside_files_of_the_same_names(self):
        caller = self.caller("find_package")
        includes = [f"#include <{header.relative_to(self.prefix / 'include')}>\n" for header in self.headers]
        self.assertGreater(len(includes), 80)
        self.assertFalse([line for line in includes if line.endswith("_p.h>\n")])
        (caller / "all.cpp").write_text("".join(includes), encoding="utf-8")
        self.run_tool(cached("CMAKE_CXX_COMPILER"), "-std=c++17", "-fsyntax-only", f"-I{self.traps()}",
                      *self.flags("--cflags"), caller / "all.cpp")

    def test_the_examples_are_installed_and_build(self):
        examples = self.prefix / "share/doc/QuvProtocol/examples"
        for name in ("consumer", "client"):
            self.configure(examples / name, self.folder / name, f"-DCMAKE_PREFIX_PATH={self.prefix}")
            self.run_tool("cmake", "--build", self.folder / name)
        self.assertEqual(self.run_tool(self.folder / "consumer/consumer"), self.expected)

    def test_documents_and_licences_are_installed(self):
        documents = self.prefix / "share/doc/QuvProtocol"
        for name in ("LICENSE", "COPYING", "README.md", "CHANGELOG.md", "docs/tint.md"):
            self.assertEqual((documents / name).read_bytes(), (SOURCE / name).read_bytes())
        for document in documents.glob("**/*.md"):
            for link in re.findall(r"\]\((?!https?:)([^)#]+)", document.read_text(encoding="utf-8")):
                with self.subTest(document=document.name, link=link):
                    self.assertTrue((document.parent / link).exists())

    def test_the_soname_holds_the_minor_version(self):
        for library in ("QuvProtocol", "QuvFramework"):
            told = self.run_tool("readelf", "-d", self.library_dir / f"lib{library}.so")
            self.assertRegex(told, rf"\(SONAME\) .*\[lib{library}\.so\.0\.\d+\]")

    def test_the_tool_runs(self):
        self.assertRegex(self.run_tool(self.prefix / "bin/quvctl", "--version"), r"^quvctl \d+\.\d+\.\d+\n")


class PartOfAnotherProject(PackagesTest):
    """Configured, and compiled as little as tells something; Whole compiles it all."""

    def check(self, how):
        caller = self.caller(how)
        self.configure(caller, caller / "build", f"-DFETCHCONTENT_SOURCE_DIR_QUVPROTOCOL={SOURCE}")
        self.run_tool("cmake", "--install", caller / "build", "--prefix", caller / "prefix")
        self.assertFalse((caller / "prefix").exists())
        targets = self.run_tool("ninja", "-C", caller / "build", "-t", "targets", "all")
        self.assertIn("libQuvProtocol.so", targets)
        self.assertNotIn("quvctl", targets)
        # the user's own file tells whether it finds the headers
        self.run_tool("ninja", "-C", caller / "build", "CMakeFiles/caller.dir/main.cpp.o")

    def test_by_add_subdirectory(self):
        self.check("add_subdirectory")

    def test_by_fetch_content(self):
        self.check("FetchContent")


class Whole(PackagesTest):
    # what is compiled fastest
    UNOPTIMISED = ("-DCMAKE_BUILD_TYPE=Debug", "-DQUVPROTOCOL_WERROR=ON")

    def test_part_of_another_project(self):
        caller = self.caller("FetchContent")
        self.configure(caller, caller / "build", f"-DFETCHCONTENT_SOURCE_DIR_QUVPROTOCOL={SOURCE}", *self.UNOPTIMISED)
        self.run_tool("cmake", "--build", caller / "build")
        self.assertEqual(self.run_tool(caller / "build/caller"), self.expected)

    def test_static(self):
        build, prefix = self.folder / "static", self.folder / "prefix"
        # the release that the README builds, by the same compiler, but for the optimiser, which takes minutes
        self.configure(SOURCE, build, "--preset", "release", "-DBUILD_SHARED_LIBS=OFF", "-DCMAKE_CXX_COMPILER=c++",
                       "-DCMAKE_CXX_FLAGS_RELEASE=-O0 -DNDEBUG", "-DQUVPROTOCOL_BUILD_TESTS=ON",
                       f"-DQUVPROTOCOL_TESTS_FROM={BUILD}")
        self.run_tool("cmake", "--build", build)
        self.run_tool("ctest", "--test-dir", build, "-R", "_test$", "-j", os.cpu_count(), "--no-tests=error",
                      "--output-on-failure", QUV_LANG="en")
        self.run_tool("cmake", "--install", build, "--prefix", prefix)
        self.assertEqual(list(prefix.glob("**/*.so*")), [])

        caller = self.caller("find_package")
        self.configure(caller, caller / "build", f"-DCMAKE_PREFIX_PATH={prefix}")
        self.run_tool("cmake", "--build", caller / "build")
        self.assertEqual(self.run_tool(caller / "build/caller"), self.expected)
        self.assertNotIn("libQuv", self.run_tool("ldd", caller / "build/caller"))


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop(1)).resolve()
    BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
