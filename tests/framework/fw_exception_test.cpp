// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_exception.h>

#include "values.h"

#include <memory>
#include <type_traits>

namespace {

TEST(FW_Exception, knowsCodeTextAndThrower)
{
    const FW_Exception exception("DE00289", "Too few parameters received", "void Shelf::read(int)");
    EXPECT_EQ(exception.code(), "DE00289");
    EXPECT_EQ(exception.text(), "Too few parameters received");
    EXPECT_EQ(exception.function(), "void Shelf::read(int)");
    EXPECT_TRUE(exception.timestamp().isValid());
}

TEST(FW_Exception, isCaughtAsADriverErrorAndCopiedIntoOne)
{
    EXPECT_TRUE((std::is_base_of_v<FW_DriverError, FW_Exception>));
    FW_DriverError error;
    try {
        throw FW_Exception("DE00289", "Too few parameters received", "void Shelf::read(int)");
    } catch (const FW_DriverError &caught) {
        error = caught;
    }
    EXPECT_EQ(error.code(), "DE00289");
    EXPECT_EQ(error.text(), "Too few parameters received");
    EXPECT_EQ(error.function(), "void Shelf::read(int)");
}

TEST(FW_Exception, takesOverADriverErrorWithItsTime)
{
    FW_DriverError error("DE00001", "no machine");
    error.setTimestamp(QDateTime(QDate(2024, 2, 29), QTime(12, 30), Qt::UTC));
    const FW_Exception exception(error, "int f()");
    EXPECT_EQ(exception.code(), "DE00001");
    EXPECT_EQ(exception.text(), "no machine");
    EXPECT_EQ(exception.function(), "int f()");
    EXPECT_EQ(exception.timestamp(), error.timestamp());
}

TEST(FW_Exception, ofAnExceptionTellsTheLastThrower)
{
    const FW_Exception first("DE00001", "no machine", "int first()");
    EXPECT_EQ(FW_Exception(first, "int second()").function(), "int second()");
}

TEST(FW_Exception, copiesAndClonesAreExceptionsOfTheSameContent)
{
    auto original = std::make_unique<FW_Exception>("DE00002", "text", "int f()");
    const FW_Exception copy(*original);
    const FW_Error &root = *original;
    const std::unique_ptr<FW_Error> clone(root.clone());
    original.reset();

    EXPECT_EQ(copy.code(), "DE00002");
    EXPECT_EQ(copy.text(), "text");
    EXPECT_EQ(copy.function(), "int f()");
    const auto *cloned = dynamic_cast<const FW_Exception *>(clone.get());
    ASSERT_NE(cloned, nullptr);
    EXPECT_EQ(cloned->code(), "DE00002");
    EXPECT_EQ(cloned->text(), "text");
    EXPECT_EQ(cloned->function(), "int f()");
}

TEST(FW_Exception, functionReadsTheSameWhicheverCompilerMadeIt)
{
    EXPECT_EQ(FW_Exception("", "", "A::A(const B &, C *, D &&, const E *&)").function(),
              "A::A(const B&, C*, D&&, const E*&)");
    EXPECT_EQ(FW_Exception("", "", "A::A(const B&, C*, D&&, const E*&)").function(),
              "A::A(const B&, C*, D&&, const E*&)");
    EXPECT_EQ(FW_Exception("", "", "static A *A::f(QList<B *> &)").function(), "static A* A::f(QList<B*>&)");
    EXPECT_EQ(FW_Exception("", "", "static A* A::f(QList<B*>&)").function(), "static A* A::f(QList<B*>&)");
    EXPECT_EQ(FW_Exception("", "", "A **_f(B *const, void (*)(C *))").function(),
              "A** _f(B* const, void (*)(C*))");
    EXPECT_EQ(FW_Exception(FW_DriverError(), "bool f(A &)").function(), "bool f(A&)");
    // the arguments' own class
    EXPECT_EQ(FW_Exception("", "", "A::A(V<A::B>, const A::B &, AA::B, N::A::B, bool)").function(),
              "A::A(V<B>, const B&, AA::B, N::A::B, bool)");
    EXPECT_EQ(FW_Exception("", "", "A::A(V<B>, const B&, AA::B, N::A::B, bool)").function(),
              "A::A(V<B>, const B&, AA::B, N::A::B, bool)");
    EXPECT_EQ(FW_Exception("", "", "static A::B N::A::f(N::A::B, A::B) const").function(),
              "static A::B N::A::f(B, A::B) const");
}

} // namespace
