# SPDX-License-Identifier: LGPL-3.0-or-later
"""What is collected of refusals from pieces of C++. Usage: refusals_test.py FOLDER_OF_THE_COLLECTOR"""

import subprocess
import sys
import tempfile
import textwrap
import unittest
from pathlib import Path

FOLDER = Path(sys.argv.pop(1))
sys.path.insert(0, str(FOLDER))

from cpptokens import read, walk  # noqa: E402
from refusals import Refusal, Unresolved, collected  # noqa: E402

REFUSAL = "struct Refusal { const char *code = \"\"; const char *text = \"\"; };\n"
ARGUMENTS = """
    struct ArgumentRefusal { const char *valueCode = ""; const char *listCode = ""; const char *text = ""; };
    template <class Source> class ArgumentReader {
    public:
        template <class T> void required(T &field, const ArgumentRefusal &absent, const ArgumentRefusal &otherType)
        {
            if (m_index >= m_source.size())
                refuse(absent);
        }
    private:
        [[noreturn]] void refuse(const ArgumentRefusal &refusal) const
        {
            throw FW_Exception(Source::code(refusal), refusal.text, m_function);
        }
    };
"""


class Collected(unittest.TestCase):
    maxDiff = None

    def refusals(self, source, path="foocmd.cpp", **headers):
        files = {name + "_p.h": text for name, text in headers.items()}
        return collected({path: textwrap.dedent(source), **files})

    def raised(self, source, **headers):
        """Code, text, class, form and circumstance of each."""
        return [(one.code, one.text, one.refuser, one.form, one.when) for one in self.refusals(source, **headers)]


class Literals(Collected):
    def test_beside_each_other(self):
        self.assertEqual(self.raised(r'''
            FooCmd::FooCmd(const XmlRpc::XmlRpcValue &value)
            {
                // throw FW_Exception("DE00001", "a comment", Q_FUNC_INFO);
                /* "DE00002", "another" */
                throw FW_Exception("DE00003", "First \"half\", "
                                              "second h\u00e4lf", Q_FUNC_INFO);
            }
            #define NOT_READ "DE00004"
            '''), [("DE00003", 'First "half", second h\u00e4lf', "FooCmd", "XML-RPC value", "")])

    def test_wrapped_and_raw(self):
        self.assertEqual(self.raised('''
            bool FooCmd::checkFormula(FW_DriverError &error) const
            {
                if (bad)
                    return FW_DriverError::D_E(QStringLiteral("DE00001"), R"x(raw "text" )x", error);
                return ok || FW_DriverError::D_E("DE00002",
                    QStringLiteral("Canister %1 of %2").arg(canister.id()).arg("two"), error);
            }
            '''), [("DE00001", 'raw "text" ', "FooCmd", "check of the formula", ""),
                   ("DE00002", "Canister \u2026 of two", "FooCmd", "check of the formula", "")])

    def test_nothing_that_is_no_literal_of_a_code(self):
        self.assertEqual(self.raised('''
            bool isKnown(const FW_DriverError &error)
            {
                log("DE00001: told in a text");
                return error.code() == QLatin1String("DE00002");
            }
            '''), [])

    def test_nothing_that_is_only_told(self):
        self.assertEqual(self.raised('''
            constexpr Refusal toldOfParts = {"DE00001", "raised elsewhere"};
            constexpr Refusal noParts = {"DE00002", "no parts"};
            FooCmd::FooCmd(int x) { throw FW_Exception(noParts.code, noParts.text, told(toldOfParts)); }
            ''', base=REFUSAL), [("DE00002", "no parts", "FooCmd", "typed", "")])

    def test_unbalanced_brackets_do_not_stop_it(self):
        self.assertEqual([type(node).__name__ for node in walk(read("a ( b } c"))], ["Token", "Group", "Token", "Token"])


class Constants(Collected):
    def test_texts_and_refusals_with_names(self):
        self.assertEqual(self.raised(REFUSAL + '''
            namespace {
            constexpr char invalid[] = "FooCmd failed";
            constexpr Refusal expected = {"DE00001", "expected a formula"};
            }
            FooCmd::FooCmd(const Formula &formula) : m_formula(copied(formula, {"DE00002", invalid}, Q_FUNC_INFO)) {}
            FooCmd::FooCmd(QList<QVariant> list) : m_formula(decoded(list, expected, Q_FUNC_INFO)) {}
            '''), [("DE00001", "expected a formula", "FooCmd", "list", ""),
                   ("DE00002", "FooCmd failed", "FooCmd", "typed", "")])

    def test_of_variants_with_more_behind_them(self):
        self.assertEqual(self.raised('''
            FooCmd::FooCmd(QVariant item, qlonglong duration) { throw FW_Exception("DE00001", "a", Q_FUNC_INFO); }
            FooCmd::FooCmd(const QList<QVariant> &items, int type, const FW_Dispenser *dispenser)
            {
                throw FW_Exception("DE00002", "b", Q_FUNC_INFO);
            }
            FooCmd::FooCmd(int type, QList<QVariant> list, const FW_Machine *machine)
            {
                throw FW_Exception("DE00003", "c", Q_FUNC_INFO);
            }
            '''), [("DE00001", "a", "FooCmd", "typed", ""), ("DE00002", "b", "FooCmd", "typed", ""),
                   ("DE00003", "c", "FooCmd", "list", "")])

    def test_of_a_header(self):
        self.assertEqual(self.raised('''
            FooCmd::FooCmd(QStringList tokens)
            {
                throw FW_Exception("DE00001", quv::answerFailed, Q_FUNC_INFO);
            }
            ''', base='namespace quv { constexpr char answerFailed[] = "Failed to create answer"; }'),
            [("DE00001", "Failed to create answer", "FooCmd", "tokens", "")])

    def test_code_with_a_name(self):
        self.assertEqual(self.raised('''
            constexpr char flagCode[] = "DE00001";
            FooAnswer::FooAnswer(const XmlRpcValue &value)
            {
                throw FW_Exception(flagCode, "no flag", Q_FUNC_INFO);
            }
            bool FooAnswer::read(FW_DriverError *error)
            {
                return FW_DriverError::D_E(flagCode, "unreadable", error);
            }
            '''), [("DE00001", "no flag", "FooAnswer", "XML-RPC value", ""), ("DE00001", "unreadable", "FooAnswer", "", "")])


class Functions(Collected):
    def test_code_handed_to_a_function(self):
        self.assertEqual(self.raised('''
            constexpr char invalidMovement[] = "invalid movement";
            void requireMovement(int type, const char *code, const char *function)
            {
                if (!isMovement(type))
                    throw FW_Exception(code, invalidMovement, function);
            }
            FooCmd::FooCmd(int type) { requireMovement(type, "DE00001", Q_FUNC_INFO); }
            FooCmd::FooCmd(QList<QVariant> list) { requireMovement(list[0], "DE00002", Q_FUNC_INFO); }
            '''), [("DE00001", "invalid movement", "FooCmd", "typed", ""),
                   ("DE00002", "invalid movement", "FooCmd", "list", "")])

    def test_two_codes_of_one_call(self):
        self.assertEqual(self.raised('''
            void FooCmd::check(const char *typeCode, const char *unitCode, const char *function) const
            {
                if (badType)
                    throw FW_Exception(typeCode, "bad type", function);
                throw FW_Exception(unitCode, "bad unit", function);
            }
            FooCmd::FooCmd(const XmlRpcValue &value) { check("DE00001", "DE00002", Q_FUNC_INFO); }
            '''), [("DE00001", "bad type", "FooCmd", "XML-RPC value", "type"),
                   ("DE00002", "bad unit", "FooCmd", "XML-RPC value", "unit")])

    def test_lambda(self):
        self.assertEqual(self.raised('''
            FooAnswer::FooAnswer(const XmlRpcValue &value)
            {
                const auto refuse = [function = Q_FUNC_INFO](const char *code, QLatin1String label) {
                    throw FW_Exception(code, QStringLiteral("%1 is missing").arg(label), function);
                };
                refuse("DE00001", QLatin1String("x"));
                refuse("DE00002", QLatin1String("y"));
            }
            '''), [("DE00001", "x is missing", "FooAnswer", "XML-RPC value", ""),
                   ("DE00002", "y is missing", "FooAnswer", "XML-RPC value", "")])

    def test_function_that_makes_the_refusal(self):
        self.assertEqual(self.raised(REFUSAL + '''
            constexpr Refusal badAnswer(const char *code) { return {code, "bad answer"}; }
            Report nextCircuits(TokenReader &reader) { reader.next(badAnswer("DE00001")); }
            FooAnswer::FooAnswer(QStringList tokens) { m_report = nextCircuits(tokens); }
            '''), [("DE00001", "bad answer", "FooAnswer", "tokens", "")])

    def test_text_that_a_function_fills(self):
        self.assertEqual(self.raised('''
            bool FooCmd::checkParameters(int count, QString *error) const
            {
                if (count >= minimum)
                    return true;
                *error = QStringLiteral("expected at least %1 parameters").arg(minimum);
                return false;
            }
            FooCmd::FooCmd(QList<QVariant> list)
            {
                QString missing;
                if (!checkParameters(list.size(), &missing))
                    throw FW_Exception("DE00001", missing, Q_FUNC_INFO);
            }
            '''), [("DE00001", "expected at least \u2026 parameters", "FooCmd", "list", "")])

    def test_one_of_several_texts(self):
        self.assertEqual(self.raised('''
            void FooCmd::check() { throw FW_Exception("DE00001", isLow ? "too low" : "too high", Q_FUNC_INFO); }
            '''), [("DE00001", "too high", "FooCmd", "", ""), ("DE00001", "too low", "FooCmd", "", "")])

    def test_answers(self):
        self.assertEqual(self.raised('''
            bool FooCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
            {
                return replaceProtoAnswer("DE00001", answerFailed, error, [&] { return new FooAnswer(tokens); });
            }
            bool FooCmd::setAnswer(ProtoAnswer *answer, ProtoCommand *, FW_DriverError *error)
            {
                return takeProtoAnswer(answer, "DE00002", "DE00003", error);
            }
            ''', base='''
            constexpr char answerFailed[] = "Failed to create answer";
            bool ProtoCommand::takeProtoAnswer(const ProtoAnswer *answer, const char *nullCode, const char *cloneCode,
                                               FW_DriverError *error)
            {
                if (!answer)
                    return FW_DriverError::D_E(nullCode, answerFailed, error);
                return replaceProtoAnswer(cloneCode, answerFailed, error, [&] { return answer->clone(); });
            }
            '''), [("DE00001", "Failed to create answer", "FooCmd", "answer, tokens", ""),
                   ("DE00002", "Failed to create answer", "FooCmd", "answer", "null"),
                   ("DE00003", "Failed to create answer", "FooCmd", "answer", "clone")])


class Structs(Collected):
    POUR = '''
        struct LevelsCodes { const char *failed = ""; /* none */ const char *belowReserve = ""; };
        struct PourCodes
        {
            const char *negative = "";
            LevelsCodes levels;
            void (*unused)(int) = nullptr;
            const char *steps = nullptr; ///< of a pour
        };
        bool levelsSuffice(const LevelsCodes &codes, FW_DriverError &error)
        {
            if (result == 200)
                return FW_DriverError::D_E(codes.belowReserve, "below the critical level", error);
            return FW_DriverError::D_E(codes.failed, "errors in level check", error);
        }
        bool canPourItem(const PourCodes &codes, FW_DriverError &error)
        {
            return FW_DriverError::D_E(codes.steps, "errors in steps", error);
        }
        bool canPour(const Formula &formula, const PourCodes &codes, FW_DriverError &error)
        {
            if (formula.hasNegativeValues())
                return FW_DriverError::D_E(codes.negative, "Bad values", error);
            return levelsSuffice(codes.levels, error) && canPourItem(codes, error);
        }
        '''

    def test_codes_whose_texts_stand_where_they_are_used(self):
        self.assertEqual(self.raised('''
            constexpr quv::PourCodes codes = {"DE00001", {"DE00002", "DE00003"}, nullptr, "DE00004"};
            bool FooCmd::checkFormula(FW_DriverError &error) const { return quv::canPour(m_formula, codes, error); }
            ''', pour=self.POUR),
            [("DE00001", "Bad values", "FooCmd", "check of the formula", "negative"),
             ("DE00002", "errors in level check", "FooCmd", "check of the formula", "failed"),
             ("DE00003", "below the critical level", "FooCmd", "check of the formula", "below reserve"),
             ("DE00004", "errors in steps", "FooCmd", "check of the formula", "steps")])

    def test_codes_without_a_name(self):
        self.assertEqual(self.raised('''
            bool FooCmd::checkFormula(FW_DriverError &error) const { return levelsSuffice({"DE00001", "DE00002"}, error); }
            ''', pour=self.POUR),
            [("DE00001", "errors in level check", "FooCmd", "check of the formula", "failed"),
             ("DE00002", "below the critical level", "FooCmd", "check of the formula", "below reserve")])

    def test_same_members_of_two_structs(self):
        self.assertEqual(self.raised('''
            struct A { const char *empty = ""; };
            struct B { const char *empty = ""; };
            void raise(const A &codes) { throw FW_Exception(codes.empty, "of A", ""); }
            void raise(const B &others) { throw FW_Exception(others.empty, "of B", ""); }
            constexpr A a = {"DE00001"};
            constexpr B b = {"DE00002"};
            void FooCmd::check() { raise(a); raise(b); }
            '''), [("DE00001", "of A", "FooCmd", "", "empty"), ("DE00002", "of B", "FooCmd", "", "empty")])

    def test_table_of_fields(self):
        self.assertEqual(self.raised('''
            constexpr Field<Row> fields[] = {
                {"Canister ID", "DE00001", of<&Row::a, &Row::b>},
                {"Position", "DE00002", of<&Row::c, &Row::d>, 8, [](Row &row) { row.set(0); }},
            };
            QStringList FooData::labels() { return labelsOf(fields); }
            FooData::FooData(QStringList tokens) { read(fields, tokens, Q_FUNC_INFO); }
            ''', rows='''
            template <class Object> struct Field { const char *label = ""; const char *code = ""; Access<Object> access; };
            QString notFound(const QString &label) { return QStringLiteral("%1 %2").arg(label, "not found"); }
            template <class Table> QStringList labelsOf(const Table &table)
            {
                for (const auto &field : table)
                    labels.append(field.label);
            }
            template <class Table> void read(const Table &table, const QStringList &tokens, const char *function)
            {
                const auto next = [&](const char *code, QLatin1String label) {
                    throw FW_Exception(code, notFound(label), function);
                };
                for (const auto &field : table)
                    next(field.code, QLatin1String(field.label));
            }
            '''), [("DE00001", "Canister ID not found", "FooData", "tokens", ""),
                   ("DE00002", "Position not found", "FooData", "tokens", "")])

    def test_table_that_another_file_reads(self):
        self.assertEqual(collected({
            "fields_p.h": "struct Field { const char *label = \"\"; const char *code = \"\"; };\n"
                          "extern const std::array<Field, 2> fooFields;",
            "fields.cpp": 'constexpr std::array<Field, 2> quv::fooFields = {{{"A", "DE00001"}, {"B", "DE00002"}}};',
            "foodata.cpp": """
                FooData::FooData(QStringList tokens)
                {
                    for (const auto &field : quv::fooFields)
                        throw FW_Exception(field.code, QStringLiteral("no %1").arg(field.label), Q_FUNC_INFO);
                }
                QStringList FooData::labels() { return labelsOf(quv::fooFields); }"""})[1:],
            [Refusal("DE00002", "no B", (), "FooData", "tokens", "", ("FooData::FooData",), "fields.cpp")])

    def test_record_whose_key_fills_the_text(self):
        found = self.refusals('''
            using Row = Member<Foo>;
            constexpr char flagCode[] = "DE00001";
            constexpr char ofMachine[] = "Foo: expected %1 value";
            Row required(const char *key, bool Foo::*field) { return {key, field, "DE00002", "Foo: missing %1"}; }
            const Record<Foo> &record()
            {
                static const Record<Foo> all({
                    {"first", &Foo::first, flagCode, ofMachine},
                    {"second", &Foo::second, flagCode, ofMachine},
                    {"third", &Foo::third},
                    required("fourth", &Foo::fourth),
                });
                return all;
            }
            Foo::Foo(const XmlRpcValue &value) { record().decode(value, *this); }
            bool Foo::operator==(const Foo &other) const { return record().equal(*this, other); }
            ''', base='''
            template <class T> struct Member { std::string key; Field field; const char *code = nullptr;
                                               const char *text = nullptr; };
            template <class T> class Record { public: using Row = Member<T>; explicit Record(std::vector<Row> rows) {} };
            ''')
        self.assertEqual([(one.code, one.text, one.names, one.refuser, one.form, one.functions) for one in found],
                         [("DE00001", "Foo: expected \u2026 value", ("first", "second"), "Foo", "XML-RPC value",
                           ("Foo::Foo",)),
                          ("DE00002", "Foo: missing \u2026", ("fourth",), "Foo", "XML-RPC value", ("Foo::Foo",))])


class Described(Collected):
    def test_arguments(self):
        self.assertEqual(self.raised('''
            template <class Self, class Archive> void FooCmd::arguments(Self &self, Archive &archive)
            {
                archive.required(self.m_type, {"DE00001", "DE00002", "Too few"}, {"DE00003", "DE00004", "expected INT"});
            }
            ''', arguments=ARGUMENTS),
            [("DE00001", "Too few", "FooCmd", "XML-RPC value", "absent"), ("DE00002", "Too few", "FooCmd", "list", "absent"),
             ("DE00003", "expected INT", "FooCmd", "XML-RPC value", "other type"),
             ("DE00004", "expected INT", "FooCmd", "list", "other type")])

    def test_description_of_a_command(self):
        found = self.refusals('''
            struct FooCmd::Description : quv::Description
            {
                static constexpr auto command = ProtoCommandList::FOO;
                static constexpr quv::AnsweredBy<FooAnswer> answer = {{"DE00005", "no value"}, {"DE00006", "no list"}};
                static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "In progress");

                template <class Self, class Archive>
                static void arguments(Self &self, Archive &archive)
                {
                    archive.required("type", self.m_type, {"DE00001", "DE00002", "%1: too few"},
                                     {"DE00003", "DE00004", "expected INT"});
                }
            };
            template class quv::DescribedSerialCommand<FooCmd>;
            ''', arguments=ARGUMENTS.replace("T &field,", "const char *name, T &field,"),
            answered=REFUSAL + "template <class Answer> struct AnsweredBy { Refusal value; Refusal list; };")
        self.assertEqual([(one.code, one.text, one.names, one.refuser, one.form, one.when) for one in found],
                         [("DE00001", "\u2026: too few", ("type",), "FooCmd", "XML-RPC value", "missing"),
                          ("DE00002", "\u2026: too few", ("type",), "FooCmd", "list", "missing"),
                          ("DE00003", "expected INT", (), "FooCmd", "XML-RPC value", "another type"),
                          ("DE00004", "expected INT", (), "FooCmd", "list", "another type"),
                          ("DE00005", "no value", (), "FooCmd", "answer, XML-RPC value", ""),
                          ("DE00006", "no list", (), "FooCmd", "answer, list", "")])

    def test_refusal_that_is_made_by_a_constructor(self):
        self.assertEqual(self.raised('''
            struct FooCmd::Description
            {
                static constexpr char failed[] = "Failed to create FooAnswer";
                static constexpr AnsweredBy<FooAnswer> answer = {{"DE00004", failed}, {}, {"DE00005", quv::failed}};
                template <class Self, class Archive> static void arguments(Self &self, Archive &archive)
                {
                    archive.optional({"position", "of a circuit"}, self.m_position, {"DE00001", "DE00002", "expected INT"});
                    archive.optional("id", self.m_id, {{"DE00003", "no value"}, {"DE00006", "no list"}});
                }
            };
            ''', base=REFUSAL + '''
            namespace quv { constexpr char failed[] = "Failed"; }
            template <class Answer>
            struct AnsweredBy { using Class = Answer; Refusal tokens; Refusal value; Refusal envelope; };
            struct ArgumentRefusal
            {
                constexpr ArgumentRefusal(const char *valueCode, const char *listCode, const char *text)
                    : value{valueCode, text},
                      list{listCode, text}
                {}
                constexpr ArgumentRefusal(const Refusal &ofValue, const Refusal &ofList) : value(ofValue), list(ofList) {}

                Refusal value;
                Refusal list;
            };
            template <class Source> class ArgumentReader
            {
                template <class T> void optional(const ArgumentName &, T &field, const ArgumentRefusal &otherType) { go(); }
            };
            '''), [("DE00001", "expected INT", "FooCmd", "XML-RPC value", "another type"),
                   ("DE00002", "expected INT", "FooCmd", "list", "another type"),
                   ("DE00003", "no value", "FooCmd", "XML-RPC value", "another type"),
                   ("DE00004", "Failed to create FooAnswer", "FooCmd", "answer, tokens", ""),
                   ("DE00005", "Failed", "FooCmd", "answer, envelope", ""),
                   ("DE00006", "no list", "FooCmd", "list", "another type")])

    def places(self, source, **headers):
        """Code, form, subject, circumstance and functions of each."""
        return [(one.code, one.form, one.subject, one.when, one.functions) for one in self.refusals(source, **headers)]

    def test_place_of_each_argument(self):
        made = ("FooCmd::FooCmd",)
        self.assertEqual(self.places('''
            struct FooCmd::Description : quv::Description
            {
                static constexpr char speed[] = "speed";
                static constexpr Refusal badFormula = {"DE00010", "bad"};
                static constexpr AnsweredBy<FooAnswer> answer = {{"DE00013", "failed"}, {}, {}, {"DE00014", "failed"}};

                template <class Self, class Archive> static void arguments(Self &self, Archive &archive)
                {
                    constexpr ArgumentRefusal noId = {"DE00001", "DE00002", "no ID"};
                    archive.required({"id", "of a circuit"}, self.m_id, noId, noId);
                    archive.convertible(speed, self.m_speed, {{"DE00003", "no"}, {"DE00004", "no"}});
                    archive.whenRead([&self](const char *function) { self.check(function); });
                    archive.refuseUnless(self.m_speed < 9, {"DE00005", "DE00006", "too fast"});
                    archive.object("formula", self.m_formula, {{"DE00007", "no"}, badFormula}, {"DE00008", "bad"});
                    archive.object("other", self.m_other, {{"DE00009", "no"}, badFormula}, badFormula);
                    archive.unread("rest", self.m_rest);
                    archive.optional("last", self.m_last, {{}, {"DE00011", "no"}});
                    archive.requiredIf(isBent(self.m_id, 2), {"angle", "degrees"}, self.m_angle,
                                       {"DE00015", "DE00016", "no angle"}, {"DE00017", "DE00018", "bad angle"});
                    archive.refuseUnless(self.m_angle < 9, {"DE00019", "DE00020", "too far"});
                }
            };
            ''', base=REFUSAL + '''
            template <class Answer> struct AnsweredBy { Refusal tokens; Refusal value; Refusal list; Refusal envelope; };
            struct ArgumentRefusal
            {
                constexpr ArgumentRefusal(const char *valueCode, const char *listCode, const char *text)
                    : value{valueCode, text}, list{listCode, text} {}
                constexpr ArgumentRefusal(const Refusal &ofValue, const Refusal &ofList) : value(ofValue), list(ofList) {}
                Refusal value;
                Refusal list;
            };
            template <class Source> class ArgumentReader
            {
                template <class T>
                void required(const Name &, T &, const ArgumentRefusal &absent, const ArgumentRefusal &otherType) { go(); }
                template <class T>
                void requiredIf(bool condition, const Name &, T &, const ArgumentRefusal &absent,
                                const ArgumentRefusal &otherType) { go(); }
                template <class T> void optional(const Name &, T &field, const ArgumentRefusal &otherType) { go(); }
                void convertible(const Name &, int &field, const ArgumentRefusal &refusal) { go(); }
                template <class T>
                void object(const Name &, T &field, const ArgumentRefusal &refusal, const Refusal &unreadable) { go(); }
                void refuseUnless(bool good, const ArgumentRefusal &refusal) const { go(); }
            };
            '''), [("DE00001", "XML-RPC value", "id", "another type", made),
                   ("DE00001", "XML-RPC value", "id", "missing", made),
                   ("DE00002", "list", "id", "another type", made), ("DE00002", "list", "id", "missing", made),
                   ("DE00003", "XML-RPC value", "speed", "missing or another type", made),
                   ("DE00004", "list", "speed", "missing or another type", made),
                   ("DE00005", "XML-RPC value", "speed", "out of range", made),
                   ("DE00006", "list", "speed", "out of range", made),
                   ("DE00007", "XML-RPC value", "formula", "missing or another type", made),
                   ("DE00008", "list", "formula", "unreadable", made),
                   ("DE00009", "XML-RPC value", "other", "missing or another type", made),
                   ("DE00010", "list", "formula", "missing or another type", made),
                   ("DE00010", "list", "other", "missing or another type", made),
                   ("DE00010", "list", "other", "unreadable", made),
                   ("DE00011", "list", "last", "another type", made),
                   ("DE00013", "answer, tokens", "the answer", "", ("FooCmd::buildProtoAnswer",)),
                   ("DE00014", "answer, envelope", "the answer", "", ("FooCmd::setAnswer",)),
                   ("DE00015", "XML-RPC value", "angle", "missing", made),
                   ("DE00016", "list", "angle", "missing", made),
                   ("DE00017", "XML-RPC value", "angle", "another type", made),
                   ("DE00018", "list", "angle", "another type", made),
                   ("DE00019", "XML-RPC value", "angle", "out of range", made),
                   ("DE00020", "list", "angle", "out of range", made)])

    def test_place_of_each_member(self):
        made = ("FooAnswer::FooAnswer",)
        self.assertEqual(self.places('''
            struct FooAnswer::Description
            {
                using Answer = FooAnswer;
                static std::vector<quv::Member<Answer>> members()
                {
                    return {quv::Member<Answer>(TIME, &Answer::m_time, {"DE00001", "no"}, {"DE00002", "no"})
                                .as(cutToInt()).otherType({"DE00003", "bad"}).meaning("s"),
                            quv::Member<Answer>("ids", &Answer::m_ids, {"DE00004", "no"})
                                .meaning("circuits").element({"DE00005", "bad"}),
                            {"rest", &Answer::m_rest, {"DE00006", "no"}, {"DE00007", "no"}},
                            quv::Member<Answer>::writtenWhenFilled("masks", &Answer::m_masks, {"DE00008", "no"},
                                                                   {"DE00009", "no"}).meaning("of each"),
                            quv::Member<Answer>("pins", &Answer::m_pins).unmadeElement({"DE00010", "bad"})
                                .alsoInList("an element without a value", {"DE00011", "bad"}).meaning("of each")};
                }
            };
            ''', record=REFUSAL + '''
            template <class T> class Member
            {
            public:
                template <class C, class V>
                Member(const char *key, V C::*field, const Refusal &refusal = {}, const Refusal &inList = {}) { go(); }
                template <class C, class V>
                static Member writtenWhenFilled(const char *key, V C::*field, const Refusal &refusal = {},
                                                const Refusal &inList = {}) { go(); }
                Member &otherType(const Refusal &refusal) { return *this; }
                Member &element(const Refusal &refusal) { return *this; }
                Member &unmadeElement(const Refusal &refusal) { return *this; }
                Member &alsoInList(const char *when, const Refusal &refusal) { return *this; }
            private:
                MemberRow m_row;
            };
            ''', fooanswer='class FooAnswer { static constexpr char TIME[] = "time"; int m_time = 0; };'),
            [("DE00001", "XML-RPC value", "time", "missing", made),
             ("DE00002", "list", "time", "missing or another type", made),
             ("DE00003", "XML-RPC value", "time", "another type", made),
             ("DE00004", "XML-RPC value", "ids", "missing or another type", made),
             ("DE00005", "XML-RPC value", "ids", "an element of another type", made),
             ("DE00006", "XML-RPC value", "rest", "missing or another type", made),
             ("DE00007", "list", "rest", "missing or another type", made),
             ("DE00008", "XML-RPC value", "masks", "another type", made),
             ("DE00009", "list", "masks", "missing or another type", made),
             ("DE00010", "XML-RPC value", "pins", "an element that cannot be made", made),
             ("DE00011", "list", "pins", "an element without a value", made)])

    def test_member_that_is_also_refused_by_hand(self):
        self.assertEqual(self.places('''
            constexpr quv::Refusal notMade = {"DE00001", "not made"};
            struct FooAnswer::Description
            {
                static std::vector<quv::Member<FooAnswer>> members()
                {
                    return {quv::Member<FooAnswer>("pins", &FooAnswer::m_pins).unmadeElement(notMade)};
                }
            };
            FooAnswer::FooAnswer(const XmlRpc::XmlRpcValue &value) { madeOrRefused(notMade, [&] { read(value); }); }
            FooAnswer::FooAnswer(QList<QVariant> &list) { madeOrRefused(notMade, [&] { read(list); }); }
            ''', base=REFUSAL + '''
            template <class Make> auto madeOrRefused(const Refusal &refusal, Make make)
            {
                throw FW_Exception(refusal.code, refusal.text, Q_FUNC_INFO);
            }
            template <class T> class Member
            {
            public:
                template <class C, class V> Member(const char *key, V C::*field, const Refusal &refusal = {}) { go(); }
                Member &unmadeElement(const Refusal &refusal) { return *this; }
            };
            '''), [("DE00001", "XML-RPC value", "pins", "an element that cannot be made", ("FooAnswer::FooAnswer",)),
                   ("DE00001", "list", "", "", ("FooAnswer::FooAnswer",))])

    def test_elements_of_a_list(self):
        member = '''
            template <class T> class Member
            {
            public:
                template <class C, class V>
                Member(const char *key, V C::*field, const Refusal &refusal = {}, const Refusal &inList = {}) { go(); }
            };
            '''
        for body, when in [("for (const QVariant &element : list) append(element);", "an element of another type"),
                           ("read(list, Q_FUNC_INFO);", "missing or another type")]:
            self.assertEqual(self.places('''
                struct FooAnswer::Description
                {
                    static std::vector<quv::Member<FooAnswer>> members()
                    {
                        return {quv::Member<FooAnswer>("pins", &FooAnswer::m_pins, {}, {"DE00001", "no pin"})};
                    }
                };
                FooAnswer::FooAnswer(QList<QVariant> &list) { %s }
                ''' % body, base=REFUSAL + member), [("DE00001", "list", "pins", when, ("FooAnswer::FooAnswer",))])

    def test_answer_that_a_class_makes_in_part_by_itself(self):
        self.assertEqual(self.places('''
            struct FooCmd::Description : quv::Description
            {
                static constexpr AnsweredBy<FooAnswer> answer = {{"DE00001", "failed"}, {"DE00002", "failed"},
                                                                 {"DE00003", "failed"}, {"DE00004", "failed"}};
            };
            bool FooCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
            {
                const quv::Refusal &failed = Description::answer.tokens;
                return replaceProtoAnswer(failed.code, failed.text, error, [&] { return new FooAnswer(tokens, m_process); });
            }
            ''', base=REFUSAL + '''
            template <class Answer> struct AnsweredBy { Refusal tokens; Refusal value; Refusal list; Refusal envelope; };
            '''), [("DE00001", "answer, tokens", "the answer", "", ("FooCmd::buildProtoAnswer",)),
                   ("DE00002", "answer, XML-RPC value", "the answer", "", ("FooCmd::buildProtoAnswer",)),
                   ("DE00003", "answer, list", "the answer", "", ("FooCmd::buildProtoAnswer",)),
                   ("DE00004", "answer, envelope", "the answer", "", ("FooCmd::setAnswer",))])

    def test_flags_that_are_required(self):
        found = self.refusals('''
            constexpr StatusFlag<Foo> flags[] = {
                {"first", &Foo::first, 1, Required | Lasting, "Required"},
                {"second", &Foo::second, 2, Lasting, "not Required"},
                {"third", &Foo::third, 3, quv::Required},
            };
            constexpr Refusal flagMissing = {"DE00001", "Foo: expected %1 value"};
            std::vector<Member<Foo>> members()
            {
                return membersOf(flags, flagMissing);
            }
            Foo::Foo(const XmlRpcValue &value) { read(members(), value, Q_FUNC_INFO); }
            ''', flags=REFUSAL + '''
            template <class T> struct StatusFlag { const char *key = ""; bool T::*flag = nullptr; int bit = 0;
                                                   unsigned traits = Plain; const char *on = nullptr; };
            template <class T, std::size_t count>
            std::vector<Member<T>> membersOf(const StatusFlag<T> (&flags)[count], const Refusal &missing)
            {
                for (const StatusFlag<T> &row : flags)
                    members.emplace_back(row.key, row.flag, row.has(Required) ? missing : Refusal());
            }
            ''')
        self.assertEqual([(one.text, one.names, one.refuser, one.form) for one in found],
                         [("Foo: expected \u2026 value", ("first", "third"), "Foo", "XML-RPC value")])

    def test_flags_of_an_answer_that_are_required(self):
        self.assertEqual(self.places('''
            constexpr quv::StatusFlag<FooAnswer> flags[] = {{"first", &FooAnswer::first, quv::Required}};
            constexpr quv::Refusal flagMissing = {"DE00001", "FooAnswer: expected %1 value"};
            struct FooAnswer::Description
            {
                static std::vector<quv::Member<FooAnswer>> members() { return quv::membersOf(flags, flagMissing); }
            };
            ''', flags=REFUSAL + '''
            template <class T> struct StatusFlag { const char *key = ""; bool T::*flag = nullptr; unsigned traits = Plain; };
            template <class T, std::size_t count>
            std::vector<Member<T>> membersOf(const StatusFlag<T> (&flags)[count], const Refusal &missing)
            {
                for (const StatusFlag<T> &row : flags)
                    members.emplace_back(row.key, row.flag, row.has(Required) ? missing : Refusal());
            }
            '''), [("DE00001", "XML-RPC value", "", "", ("FooAnswer::FooAnswer",))])

    def test_table_of_an_answer(self):
        self.assertEqual(self.raised('''
            const AnswerTable<FooAnswer> &table()
            {
                static const AnswerTable<FooAnswer> members = {
                    {"position", &FooAnswer::m_position, {"DE00001", "expected position"}, {"DE00002", "bad position"}},
                    {"id", &FooAnswer::m_id, {"DE00003", "expected id"}, {"DE00004", "bad id"}},
                };
                return members;
            }
            FooAnswer::FooAnswer(const XmlRpcValue &value) { table().read(value, Q_FUNC_INFO); }
            FooAnswer::FooAnswer(QList<QVariant> &list) { table().read(list, Q_FUNC_INFO); }
            ''', answers=REFUSAL + '''
            template <class T> struct AnswerMember { const char *key = ""; Field<T> field; Refusal value; Refusal list; };
            template <class T> using AnswerTable = std::vector<AnswerMember<T>>;
            '''), [("DE00001", "expected position", "FooAnswer", "XML-RPC value", ""),
                   ("DE00002", "bad position", "FooAnswer", "list", ""),
                   ("DE00003", "expected id", "FooAnswer", "XML-RPC value", ""),
                   ("DE00004", "bad id", "FooAnswer", "list", "")])


class Whole(Collected):
    def test_every_place_is_told(self):
        found = collected({"src/a/foocmd.cpp": 'FooCmd::FooCmd(int x) { throw FW_Exception("DE00001", "No", ""); }',
                           "src/b/barcmd.cpp": 'BarCmd::BarCmd(int x) { throw FW_Exception("DE00001", "No", ""); }\n'
                                               'void BarCmd::go() { throw FW_Exception("DE00001", "No", ""); }'})
        self.assertEqual([(one.refuser, one.form, one.functions, one.file) for one in found],
                         [("BarCmd", "", ("BarCmd::go",), "src/b/barcmd.cpp"),
                          ("BarCmd", "typed", ("BarCmd::BarCmd",), "src/b/barcmd.cpp"),
                          ("FooCmd", "typed", ("FooCmd::FooCmd",), "src/a/foocmd.cpp")])

    def test_a_code_without_a_text(self):
        with self.assertRaises(Unresolved) as caught:
            self.raised('FooCmd::FooCmd(int x) { refuse("DE00001"); log("DE00002", x); }')
        self.assertEqual(str(caught.exception), "foocmd.cpp: DE00001: no text was found that it is raised with\n"
                                                "foocmd.cpp: DE00002: no text was found that it is raised with")

    def run_collector(self, folder):
        return subprocess.run([sys.executable, "-B", FOLDER / "collect.py", folder, folder / "out.cpp", "src"],
                              capture_output=True, text=True, timeout=30, check=False)

    def test_program(self):
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            (folder / "src").mkdir()
            source = folder / "src" / "foocmd.cpp"
            source.write_text('FooCmd::FooCmd() { throw FW_Exception("DE00001", "a \\"b\\" \\\\ c", ""); }',
                              encoding="utf-8")
            self.assertEqual(self.run_collector(folder).returncode, 0)
            output = folder / "out.cpp"
            self.assertIn('{"DE00001", "a \\"b\\" \\\\ c", "", "FooCmd", "typed", "", "FooCmd::FooCmd", "src/foocmd.cpp"},',
                          output.read_text(encoding="utf-8"))
            self.assertNotIn(name, output.read_text(encoding="utf-8"))
            before = output.stat().st_mtime_ns
            self.assertEqual(self.run_collector(folder).returncode, 0)
            self.assertEqual(output.stat().st_mtime_ns, before)
            source.write_text('FooCmd::FooCmd() { throw code("DE00001"); }', encoding="utf-8")
            failed = self.run_collector(folder)
            self.assertEqual((failed.returncode, failed.stderr),
                             (1, "src/foocmd.cpp: DE00001: no text was found that it is raised with\n"))


if __name__ == "__main__":
    unittest.main()
