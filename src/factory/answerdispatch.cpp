// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/answerdispatch_p.h"

#include "base/confprotoanswer.h"
#include "base/serialprotoanswer.h"
#include "calibration/getcalibrationprofilesanswer.h"
#include "factory/answertables_p.h"
#include "masterdata/getdeviceparamsanswer.h"
#include "processes/getshelfparamsanswer.h"
#include "processes/getturntablepositionsanswer.h"
#include "processes/getzandorcommandsanswer.h"
#include "scale/getscaleconfiganswer.h"
#include "scale/scalestatusanswer.h"
#include "scale/weightanswer.h"
#include "settings/getconnectionstatusanswer.h"
#include "settings/getdriverinfoanswer.h"
#include "settings/getdriversettingsanswer.h"
#include "settings/gethostinfoanswer.h"
#include "setup/getkeycodeanswer.h"
#include "statistics/getusswaterstatusanswer.h"
#include "status/getactivedispanswer.h"
#include "status/geterrorsanswer.h"
#include "status/mixerdriverstatusanswer.h"
#include "status/sensorsstatusanswer.h"

namespace quv {

namespace {

using Cmd = ProtoCommandList;

const std::vector<AnswerRow> &serialRows()
{
    static const std::vector<AnswerRow> rows = {
        answerRow<GetErrorsAnswer>(Cmd::GET_ERRORS),
        answerRow<GetKeyCodeAnswer>(Cmd::GET_KEY_CODE), // tokens give none: a key code is asked of the driver
        answerRow<GetTurntablePositionsAnswer>(Cmd::GET_TURNTABLE_POSITIONS),
        answerRow<SensorsStatusAnswer>(Cmd::GET_SENSORS_STATUS),
        answerRow<GetZandorCommandsAnswer>(Cmd::ZDR_GET_COMMANDS),
    };
    return rows;
}

const std::vector<AnswerRow> &configurationRows()
{
    static const std::vector<AnswerRow> rows = {
        answerRow<GetCalibrationProfilesAnswer>(Cmd::GET_CALIB_PROFILES),
        answerRow<GetActiveDispAnswer>(Cmd::GET_ACTIVE_DISP),
        answerRow<MixerDriverStatusAnswer>(Cmd::GET_MIXER_STATUS),
        answerRow<GetConnectionStatusAnswer>(Cmd::GET_CONN_STATUS),
        answerRow<GetDeviceParamsAnswer>(Cmd::GET_DEVICE_PARAMS),
        answerRow<GetDriverInfoAnswer>(Cmd::GET_DRIVER_INFO),
        answerRow<GetDriverSettingsAnswer>(Cmd::GET_DRIVER_SETTINGS),
        answerRow<GetHostInfoAnswer>(Cmd::GET_HOST_INFO),
        answerRow<GetShelfParamsAnswer>(Cmd::GET_SHELF_PARAMS),
        answerRow<WeightAnswer>(Cmd::GET_CURRENT_WEIGHT),
        answerRow<GetScaleConfigAnswer>(Cmd::GET_SCALE_CONFIG),
        answerRow<ScaleStatusAnswer>(Cmd::GET_SCALE_STATUS),
        answerRow<GetUssWaterStatusAnswer>(Cmd::GET_USS_W_STATUS),
    };
    return rows;
}

const AnswerRow *find(const std::vector<AnswerRow> &rows, const QString &command)
{
    if (const CMD_STRUCT *found = Cmd::row(command)) {
        for (const AnswerRow &row : rows) {
            if (row.command == found->id)
                return &row;
        }
    }
    return nullptr;
}

template <class Plain, class Source>
ProtoAnswer *make(const AnswerRow *row, AnswerRow::Maker<Source> AnswerRow::*maker, Source &source)
{
    return row && row->*maker ? (row->*maker)(source) : new Plain(source);
}

} // namespace

const AnswerRow *serialAnswerRow(const QString &command)
{
    return find(serialRows(), command);
}

const AnswerRow *configurationAnswerRow(const QString &command)
{
    return find(configurationRows(), command);
}

ProtoAnswer *makeSerialAnswer(const QString &command, const XmlRpc::XmlRpcValue &value)
{
    return make<SerialProtoAnswer>(serialAnswerRow(command), &AnswerRow::fromValue, value);
}

ProtoAnswer *makeSerialAnswer(const QString &command, QList<QVariant> &list)
{
    return make<SerialProtoAnswer>(serialAnswerRow(command), &AnswerRow::fromList, list);
}

ProtoAnswer *makeSerialAnswer(const QString &command, const QStringList &tokens)
{
    return make<SerialProtoAnswer>(serialAnswerRow(command), &AnswerRow::fromTokens, tokens);
}

ProtoAnswer *makeConfigurationAnswer(const QString &command, const XmlRpc::XmlRpcValue &value)
{
    return make<ConfProtoAnswer>(configurationAnswerRow(command), &AnswerRow::fromValue, value);
}

ProtoAnswer *makeConfigurationAnswer(const QString &command, QList<QVariant> &list)
{
    return make<ConfProtoAnswer>(configurationAnswerRow(command), &AnswerRow::fromList, list);
}

} // namespace quv
