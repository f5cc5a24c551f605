// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/asyncanswer.h"

#include "base/basetesting.h"

#include <memory>

using namespace testing_base;

namespace {

void expectNoTicket(const Value &value)
{
    expectRefusal("DE00573", "AsyncAnswer decoding failed: invalid xml-rpc value",
                  "AsyncAnswer::AsyncAnswer(const XmlRpc::XmlRpcValue&)", [&] { AsyncAnswer{value}; });
}

} // namespace

TEST(AsyncAnswer, holdsATicket)
{
    EXPECT_STREQ(AsyncAnswer::ticketID_TAG, "ticket_id");
    EXPECT_EQ(AsyncAnswer().ticketID(), QString());
    EXPECT_EQ(AsyncAnswer(QString("T-1")).ticketID(), "T-1");
    EXPECT_EQ(AsyncAnswer(QString("T-1")).protoType(), 2);
    EXPECT_EQ(AsyncAnswer(structOf({{"ticket_id", "T-2"}, {"more", 1}})).ticketID(), "T-2");
    List list = {"T-3", "T-4"};
    EXPECT_EQ(AsyncAnswer(list).ticketID(), "T-3");
}

TEST(AsyncAnswer, refusesAValueWithoutATicket)
{
    expectNoTicket(Value());
    expectNoTicket(Value("T-1"));
    expectNoTicket(arrayOf("T-1"));
    expectNoTicket(structOf({}));
    expectNoTicket(structOf({{"ticket_id", 5}}));
}

TEST(AsyncAnswer, refusesAnEmptyList)
{
    expectRefusal("DE00572", "AsyncAnswer decoding failed: invalid QVariant value",
                  "AsyncAnswer::AsyncAnswer(QList<QVariant>&)", [] {
                      List list;
                      AsyncAnswer{list};
                  });
}

TEST(AsyncAnswer, writesTheTicket)
{
    EXPECT_EQ(dumped(AsyncAnswer(QString("T-1")).toXmlRpcValue()), R"({"ticket_id": "T-1"})");
    EXPECT_EQ(dumped(AsyncAnswer().toXmlRpcValue()), R"({"ticket_id": ""})");
}

TEST(AsyncAnswer, takesATicketThatIsThere)
{
    AsyncAnswer answer(QString("T-1"));
    answer.setTicketID(QVariant("T-2"));
    EXPECT_EQ(answer.ticketID(), "T-2");
    answer.setTicketID(QVariant(77));
    EXPECT_EQ(answer.ticketID(), "77");
    answer.setTicketID(structOf({{"ticket_id", "T-3"}}));
    EXPECT_EQ(answer.ticketID(), "T-3");
}

TEST(AsyncAnswer, keepsTheTicketWhenThereIsNoneToTake)
{
    AsyncAnswer answer(QString("T-1"));
    answer.setTicketID(QVariant());
    answer.setTicketID(QVariant(List{1, 2}));
    answer.setTicketID(QVariant(QStringList{"T-2", "T-3"}));
    answer.setTicketID(Value());
    answer.setTicketID(Value("T-2"));
    answer.setTicketID(structOf({{"ticket_id", 5}}));
    EXPECT_EQ(answer.ticketID(), "T-1");
}

TEST(AsyncAnswer, clonesAndCompares)
{
    const AsyncAnswer answer(QString("T-1"));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "AsyncAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const AsyncAnswer other(QString("T-2"));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
}
