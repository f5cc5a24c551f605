// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getdeviceparamsanswer.h"

#include "base/confprotocommand.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

XmlRpc::XmlRpcValue pumpParams()
{
    XmlRpc::XmlRpcValue value;
    value["speed"] = 120;
    value["name"] = "pump";
    return value;
}

TEST(GetDeviceParamsAnswer, writesWhatItWasMadeOf)
{
    const GetDeviceParamsAnswer answer(pumpParams());
    const XmlRpc::XmlRpcValue written = answer.toXmlRpcValue();
    ASSERT_EQ(written.size(), 2);
    EXPECT_EQ(static_cast<const int &>(written["speed"]), 120);
    EXPECT_EQ(static_cast<const std::string &>(written["name"]), "pump");
    EXPECT_EQ(answer.protoType(), 2);
}

TEST(GetDeviceParamsAnswer, writesAListAsAnArray)
{
    QList<QVariant> list{7, QStringLiteral("valve")};
    const XmlRpc::XmlRpcValue written = GetDeviceParamsAnswer(list).toXmlRpcValue();
    ASSERT_EQ(written.getType(), XmlRpc::XmlRpcValue::TypeArray);
    ASSERT_EQ(written.size(), 2);
    EXPECT_EQ(static_cast<const int &>(written[0]), 7);
    EXPECT_EQ(static_cast<const std::string &>(written[1]), "valve");
}

TEST(GetDeviceParamsAnswer, writesZeroWhenThereIsNothing)
{
    const XmlRpc::XmlRpcValue written = GetDeviceParamsAnswer().toXmlRpcValue();
    ASSERT_EQ(written.getType(), XmlRpc::XmlRpcValue::TypeInt);
    EXPECT_EQ(static_cast<const int &>(written), 0);
}

TEST(GetDeviceParamsAnswer, refusesAnEmptyValue)
{
    try {
        const GetDeviceParamsAnswer answer{XmlRpc::XmlRpcValue()};
        FAIL() << "accepted";
    } catch (const FW_Exception &refusal) {
        EXPECT_EQ(refusal.code(), QStringLiteral("DE00909"));
        EXPECT_EQ(refusal.text(), QStringLiteral("ProtoAnswer decoding failed: invalid xml-rpc type"));
        EXPECT_EQ(refusal.function(),
                  QStringLiteral("ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)"));
    }
}

TEST(GetDeviceParamsAnswer, isEqualToTheSameParameters)
{
    const GetDeviceParamsAnswer answer(pumpParams());
    const std::unique_ptr<GetDeviceParamsAnswer> copy(answer.clone());
    EXPECT_TRUE(answer.equalTo(copy.get()));

    XmlRpc::XmlRpcValue renamed;
    renamed["velocity"] = 120;
    renamed["name"] = "pump";
    const GetDeviceParamsAnswer other(renamed);
    EXPECT_FALSE(answer.equalTo(&other));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetDeviceParamsAnswer, answersItsCommand)
{
    XmlRpc::XmlRpcValue none;
    none.setSize(0);
    const std::unique_ptr<ProtoCommand> command(
        ProtoCommandList::getProtoCommand(QStringLiteral("GET_DEVICE_PARAMS"), none, nullptr));
    ASSERT_TRUE(command->buildProtoAnswer(pumpParams(), nullptr));
    const auto *answer = dynamic_cast<const GetDeviceParamsAnswer *>(command->getProtoAnswer());
    ASSERT_NE(answer, nullptr);
    EXPECT_TRUE(SameXmlRpcValue(answer->deviceParams(), pumpParams()));
}

} // namespace
