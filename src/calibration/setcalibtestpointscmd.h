// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_calibrationtest.h>

#include <QtCore/QList>
#include <QtCore/QString>

/** SET_CALIB_TEST_POINTS: saves the pours by which a calibration was tested. */
class QUVPROTOCOL_EXPORT SetCalibTestPointsCmd
    : public quv::DescribedCommand<SetCalibTestPointsCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char calibrationTests_TAG[] = "calib_tests";

    SetCalibTestPointsCmd() = default;
    SetCalibTestPointsCmd(QString calibrationUID, const QList<FW_CalibrationTest> &calibrationTests);
    /**
     * The calibration's UID (string), and a struct with the array "calib_tests". Throws DE01816 for a UID that is no string, DE01845
     * without the struct or the array, DE01848 for a test that cannot be read.
     */
    explicit SetCalibTestPointsCmd(const XmlRpc::XmlRpcValue &value);
    /** The UID and the list of tests. Throws DE01849 for a UID that is no text, DE01850 for anything but tests. */
    explicit SetCalibTestPointsCmd(QList<QVariant> list);
    explicit SetCalibTestPointsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetCalibTestPointsCmd(int) = delete;
    explicit SetCalibTestPointsCmd(double) = delete;
    explicit SetCalibTestPointsCmd(const char *) = delete;

    SetCalibTestPointsCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QString &calibrationUID() const { return m_calibrationUID; }
    const QList<FW_CalibrationTest> &calibrationTests() const { return m_calibrationTests; }

private:
    QString m_calibrationUID;
    QList<FW_CalibrationTest> m_calibrationTests;
};
