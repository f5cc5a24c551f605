# SPDX-License-Identifier: LGPL-3.0-or-later
"""What scripts/mutate breaks in pieces of C++, and what it leaves alone. Usage: mutate_test.py SCRIPTS"""

import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import textwrap
import unittest

SCRIPTS = pathlib.Path(sys.argv.pop(1))
sys.dont_write_bytecode = True
LOADER = importlib.machinery.SourceFileLoader("mutate", str(SCRIPTS / "mutate"))
mutate = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutate", LOADER))
sys.modules["mutate"] = mutate
LOADER.exec_module(mutate)


def changes(source):
    return [(mutant.old, mutant.new) for mutant in mutate.mutants_of("foo.cpp", textwrap.dedent(source))]


class OfOneToken(unittest.TestCase):
    def test_comparison(self):
        self.assertEqual(changes("a == b != c < d <= e > f >= g"),
                         [("==", "!="), ("!=", "=="), ("<", "<="), ("<=", "<"), (">", ">="), (">=", ">")])

    def test_arithmetic(self):
        self.assertEqual(changes("a + b - c; a += b; a -= b;"), [("+", "-"), ("-", "+"), ("+=", "-="), ("-=", "+=")])

    def test_logic(self):
        self.assertEqual(changes("a && b || !c"), [("&&", "||"), ("||", "&&"), ("!", "")])

    def test_steps(self):
        self.assertEqual(changes("++i; i--;"), [("++", "--"), ("--", "++")])

    def test_truth(self):
        self.assertEqual(changes("f(true, false, trueness)"), [("true", "false"), ("false", "true")])

    def test_numbers(self):
        self.assertEqual(changes("0 9 246u 0xff 0x0FFFULL 017 0b0111 1'000'000 0.5 1e-9"),
                         [("0", "1"), ("9", "10"), ("246u", "247u"), ("0xff", "0x100"), ("0x0FFFULL", "0x1000ULL"),
                          ("017", "020"), ("0b0111", "0b1000"), ("1'000'000", "1000001"), ("0.5", "10.5"), ("1e-9", "11e-9")])

    def test_codes(self):
        self.assertEqual(changes('f("DE00076", "DE99999");'), [('"DE00076"', '"DE00077"'), ('"DE99999"', '"DE00000"')])

    def test_keys(self):
        self.assertEqual(changes('value["cmd_code"]'), [('"cmd_code"', '"cmd_code_"')])

    def test_texts_are_left(self):
        self.assertEqual(changes(r'f("Empty answer received", "", "two \"words\"", R"(raw == text)");'), [])


class OfStatements(unittest.TestCase):
    def test_guards(self):
        source = """
            void f(int i)
            {
                if (i)
                    return;
                if (g(i))
                    throw E({c, d});
                for (;;)
                    continue;
            }
            """
        self.assertEqual(changes(source), [("return;", "{}"), ("throw E({c, d});", "{}")])

    def test_returned_bool(self):
        source = """
            bool C::f(int i) const
            {
                while (h(i)) {
                    return g(i);
                }
            }
            """
        self.assertEqual(changes(source), [("g(i)", "!(g(i))")])

    def test_other_returns_are_left(self):
        self.assertEqual(changes("int f(bool b)\n{\n    return g(b);\n}\n"), [])
        self.assertEqual(changes("bool f()\n{\n    h([](int i) { return i; });\n}\n"), [])
        self.assertEqual(changes("int f()\n{\n    h([](int i) -> bool { return i; });\n}\n"), [("i", "!(i)")])

    def test_a_returned_comparison_is_broken_once(self):
        self.assertEqual(changes("bool f(int i)\n{\n    return i < j;\n}\n"), [("<", "<=")])
        self.assertEqual(changes("bool f(int i)\n{\n    return !g(i);\n}\n"), [("!", "")])


class LeftAlone(unittest.TestCase):
    def none(self, source):
        self.assertEqual(changes(source), [])

    def test_comments(self):
        self.none("// a == 1\n/* b == 2\n c && d */\n// further \\\n 3\n")

    def test_directives(self):
        self.none('#include "foo.h"\n#  if FOO == 1\n#define BAR(x) \\\n    ((x) + 1)\n#endif\n')

    def test_attributes(self):
        self.none("[[deprecated(since_1 == 1)]] void f();")

    def test_what_only_the_compiler_reads(self):
        self.none("static_assert(sizeof(int) == 4); void f() noexcept(true && b); alignas(8) char c;")

    def test_template_brackets_and_references(self):
        self.none("template <class T, int = 1> std::map<int, QList<T>> f(T &&a, const T &b);\nQList<int> *g() { h<T>(-a, *b); }")

    def test_names_of_operators(self):
        self.none("bool operator==(const C &l, const C &r); C operator+(C c); C &operator++(); bool operator()(C c);")

    def test_pure_virtual_functions(self):
        self.none("virtual int f() const = 0; virtual int g() = 0;")

    def test_where_translators_look(self):
        self.assertEqual(changes('QT_TRANSLATE_NOOP("QuvProtocol", "Ready")'), [('"Ready"', '"Ready_"')])

    def test_texts_put_together(self):
        self.none('text = "Some text " + name;')


class Places(unittest.TestCase):
    def test_line_and_text(self):
        mutant = mutate.mutants_of("src/base/foo.cpp", "// one\n\nint f()\n{\n    return a\n        + 1;\n}\n")[0]
        self.assertEqual(str(mutant), "src/base/foo.cpp:6: +  ->  -")
        self.assertEqual(mutant.broken("// one\n\nint f()\n{\n    return a\n        + 1;\n}\n"),
                         "// one\n\nint f()\n{\n    return a\n        - 1;\n}\n")

    def test_long_ones_are_cut(self):
        mutant = mutate.Mutant("foo.cpp", 1, 0, 0, "return " + 80 * "x" + ";", "")
        self.assertEqual(str(mutant), f"foo.cpp:1: return {27 * 'x'} ... {30 * 'x'};  ->  nothing")


class Samples(unittest.TestCase):
    def test_same_seed_same_sample(self):
        self.assertEqual(mutate.sampled(list(range(1000)), 20, 7), mutate.sampled(list(range(1000)), 20, 7))
        self.assertNotEqual(mutate.sampled(list(range(1000)), 20, 7), mutate.sampled(list(range(1000)), 20, 8))

    def test_in_order_and_no_more_than_there_are(self):
        sample = mutate.sampled(list(range(1000)), 20, 7)
        self.assertEqual((sample, len(set(sample))), (sorted(sample), 20))
        self.assertEqual(mutate.sampled([1, 2], 20, 7), [1, 2])
        self.assertEqual(mutate.sampled([1, 2], None, 7), [1, 2])


class Files(unittest.TestCase):
    def test_what_was_broken_is_mended(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "foo.cpp"
            path.write_text("a == b", encoding="utf-8")
            before = path.stat().st_mtime_ns
            with self.assertRaises(KeyboardInterrupt), mutate.Broken(path, mutate.Mutant("foo.cpp", 1, 2, 4, "==", "!=")):
                self.assertEqual(path.read_text(encoding="utf-8"), "a != b")
                raise KeyboardInterrupt
            self.assertEqual((path.read_text(encoding="utf-8"), path.stat().st_mtime_ns), ("a == b", before))


class Linking(unittest.TestCase):
    def test_the_step_that_links(self):
        self.assertEqual(mutate.link_words(": && c++ -g a.o -o bin/t x.a && cd tests && cmake -P find.cmake"),
                         ["c++", "-g", "a.o", "-o", "bin/t", "x.a"])

    def test_an_object_takes_the_place_of_its_own(self):
        words = ["c++", "-o", "lib/l.so", "a.o", "b.o"]
        self.assertEqual(mutate.linked_with(words, "made/l.so", {"b.o": "made/b.o"}, ["-fuse-ld=lld"]),
                         ["c++", "-o", "made/l.so", "a.o", "made/b.o", "-fuse-ld=lld"])

    def test_or_stands_before_the_archive_that_holds_it(self):
        self.assertEqual(mutate.linked_with(["c++", "t.o", "-o", "bin/t", "x.a"], "made/t", {"b.o": "made/b.o"}, []),
                         ["c++", "t.o", "-o", "made/t", "made/b.o", "x.a"])


if __name__ == "__main__":
    unittest.main()
