// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getcolorantusagestatscmd.h"

#include "base/describedcommand_p.h"
#include "statistics/getcolorantusagestatsanswer.h"

#include <QuvFramework/fw_machine.h>

namespace quv {

/** A colorant by a text or by a number, as it came. */
struct ColorantCode
{
    QVariant code;
};

} // namespace quv

Q_DECLARE_METATYPE(quv::ColorantCode) // the teller of arguments asks for it

namespace quv {

bool decodeVariant(const QVariant &variant, ColorantCode &out)
{
    QString text;
    int number = 0;
    if (decodeVariant(variant, text))
        out.code = text;
    else if (decodeVariant(variant, number))
        out.code = number;
    else
        return false;
    return true;
}

bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, ColorantCode &out)
{
    return decodeVariant(DecodeXmlRpcVariant(value), out);
}

template <>
const FieldType &fieldType<ColorantCode>()
{
    static const FieldType type = {fieldType<QString>().name};
    return type;
}

} // namespace quv

namespace {

constexpr QLatin1Char bar('|');
constexpr int informationIndex = 2;

/** A request, as it travels. */
struct UsageRequest
{
    QString serialNumber;
    quv::ColorantCode colorant;
    QString information;
    int count = 0;
};

} // namespace

struct GetColorantUsageStatsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_COL_USAGE_STATS;

    static constexpr char answerFailed[] = "Failed to create GetColorantUsageStatsAnswer";
    static constexpr quv::AnsweredBy<GetColorantUsageStatsAnswer> answer = {
        {}, {"DE03332", answerFailed}, {"DE03333", answerFailed}, {}};

    /** For readers and for the teller: what is written has the colorant as it came. */
    template <class Archive>
    static void arguments(UsageRequest &request, Archive &archive)
    {
        constexpr quv::Refusal noSerial = {"DE02262", "Serial number: error in value decoding"};
        constexpr quv::Refusal badSerial = {"DE02263", "Serial number: error in serial number format"};
        constexpr quv::Refusal noColorant = {"DE02264", "Colorant code: error in value decoding"};
        constexpr quv::Refusal noInformation = {"DE02265", "Return info list: error in value decoding"};
        constexpr quv::Refusal noCount = {"DE02266", "Count: error in value decoding"};
        archive.required({"serial_number", "of the machine"}, request.serialNumber, {noSerial, noSerial},
                         {noSerial, noSerial});
        archive.refuseUnless(FW_Machine::checkSerialNumber(request.serialNumber), {badSerial, badSerial});
        archive.required({"colorant_code", "a text or an int"}, request.colorant, {noColorant, noColorant},
                         {noColorant, noColorant});
        archive.required({"information",
                          "what is wanted to know, with a bar between: colorant_code, from, to, dispensed, "
                          "purged, refilled, dispensations; all when it is empty"},
                         request.information, {noInformation, noInformation}, {noInformation, noInformation});
        archive.required({"count", "of records, at most"}, request.count, {noCount, noCount},
                         {noCount, noCount});
    }

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        UsageRequest request;
        arguments(request, teller);
    }
};

template class quv::DescribedCommand<GetColorantUsageStatsCmd, ConfProtoCommand>;

GetColorantUsageStatsCmd::GetColorantUsageStatsCmd(const QString &serialNumber, const QString &colorantCode,
                                                   const QStringList &information, int count)
    : m_serialNumber(serialNumber),
      m_colorantCode(colorantCode),
      m_information(information),
      m_count(count)
{}

GetColorantUsageStatsCmd::GetColorantUsageStatsCmd(const QString &serialNumber, int colorantCode,
                                                   const QStringList &information, int count)
    : m_serialNumber(serialNumber),
      m_colorantCode(colorantCode),
      m_information(information),
      m_count(count)
{}

GetColorantUsageStatsCmd::GetColorantUsageStatsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    take(quv::ValueReader(value, Q_FUNC_INFO));
}

GetColorantUsageStatsCmd::GetColorantUsageStatsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    QStringList information;
    if (quv::decodeVariant(list.value(informationIndex), information))
        list[informationIndex] = buildInfoListStr(information);
    take(quv::ListReader(list, Q_FUNC_INFO));
}

template <class Reader>
void GetColorantUsageStatsCmd::take(Reader reader)
{
    UsageRequest request;
    Description::arguments(request, reader);
    m_serialNumber = request.serialNumber;
    m_colorantCode = request.colorant.code;
    m_information = buildInfoList(request.information);
    m_count = request.count;
}

GetColorantUsageStatsCmd *GetColorantUsageStatsCmd::clone() const
{
    return new GetColorantUsageStatsCmd(*this);
}

QList<QVariant> GetColorantUsageStatsCmd::parameters() const
{
    return {m_serialNumber, m_colorantCode, buildInfoListStr(m_information), m_count};
}

XmlRpc::XmlRpcValue GetColorantUsageStatsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    return EncodeXmlRpcVariant(parameters());
}

QString GetColorantUsageStatsCmd::buildInfoListStr(const QStringList &information)
{
    return information.join(bar);
}

QStringList GetColorantUsageStatsCmd::buildInfoList(const QString &text)
{
    return text.split(bar, Qt::SkipEmptyParts);
}
