// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/setcalibtestpointscmd.h"

#include "base/describedcommand_p.h"
#include "base/objectfield_p.h"
#include "base/requeststruct_p.h"
#include "calibration/calibrationarguments_p.h"

#include <utility>

namespace quv {

template <>
inline constexpr const char *markOf<FW_CalibrationTest> = FW_CalibrationTest::TARGET_QUANTITY;

template <>
const FieldType &fieldType<QList<FW_CalibrationTest>>()
{
    static constexpr FieldType type = objectListType<FW_CalibrationTest>();
    return type;
}

} // namespace quv

namespace {

constexpr char badUID[] = "Calibration UID_value: error in value decoding";
constexpr char badTests[] = "SetCalibTestPointsCmd: Errors during FW_CalibrationTest list creation";
constexpr quv::ArgumentRefusal noUID = {"DE01816", "DE01849", badUID};
constexpr quv::ArgumentRefusal badTest = {"DE01848", "DE01850", badTests};
constexpr quv::Refusal noTests = {"DE01845", "SetCalibTestPointsCmd decoding failed: invalid xml-rpc type"};

} // namespace

struct SetCalibTestPointsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_CALIB_TEST_POINTS;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        uid(SetCalibTestPointsCmd(), teller);
        teller.argument({"tests", "member \"calib_tests\": an array of structs, each \"target_quantity\", "
                                  "\"quantity\", \"steps\", \"speed\" and \"nozzle_valve\""},
                        "struct");
        teller.refuse("without calib_tests, or no array there", {noTests, {}});
        teller.refuse("another type", {{}, badTest.list});
        teller.refuse("a test that cannot be read", badTest);
    }

    template <class Self, class Archive>
    static void uid(Self &&self, Archive &archive)
    {
        archive.required({"calibration_uid", "by which the driver knows the calibration"},
                         self.m_calibrationUID, noUID, noUID);
    }
};

template class quv::DescribedCommand<SetCalibTestPointsCmd, ConfProtoCommand>;

SetCalibTestPointsCmd::SetCalibTestPointsCmd(QString calibrationUID,
                                             const QList<FW_CalibrationTest> &calibrationTests)
    : m_calibrationUID(std::move(calibrationUID)),
      m_calibrationTests(calibrationTests)
{}

SetCalibTestPointsCmd::SetCalibTestPointsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    Description::uid(*this, reader);
    m_calibrationTests = quv::memberArgument<QList<FW_CalibrationTest>>(value, 1, calibrationTests_TAG,
                                                                        noTests, badTest.value, Q_FUNC_INFO);
}

SetCalibTestPointsCmd::SetCalibTestPointsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    Description::uid(*this, reader);
    const bool areTests = quv::madeOrRefused(badTest.list, Q_FUNC_INFO, [&] {
        return quv::readObjectsVariant<FW_CalibrationTest>(list.value(1), &m_calibrationTests);
    });
    if (!areTests)
        quv::throwRefusal(badTest.list, Q_FUNC_INFO);
}

SetCalibTestPointsCmd *SetCalibTestPointsCmd::clone() const
{
    return new SetCalibTestPointsCmd(*this);
}

QList<QVariant> SetCalibTestPointsCmd::parameters() const
{
    return {m_calibrationUID, QVariant::fromValue(m_calibrationTests)};
}

XmlRpc::XmlRpcValue SetCalibTestPointsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0] = EncodeXmlRpcText(m_calibrationUID);
    quv::writeMemberArgument(array[1], calibrationTests_TAG, m_calibrationTests);
    return array;
}
