// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"
#include "confdata.h"

#include <memory>

namespace quv {
struct MemberFacts;
}

/** The row that the firmware has of one structure. */
class QUVPROTOCOL_EXPORT ReadConfigurationParamAnswer : public SerialProtoAnswer
{
public:
    ReadConfigurationParamAnswer();
    /**
     * Behind the length token: structure code, ID (tested, not kept), field count, then the row. A code that no class stands
     * for gives a GENERIC_cdata. Throws DE00078 to DE00083, what the base throws, and what the structure's class throws.
     */
    explicit ReadConfigurationParamAnswer(QStringList tokens);
    explicit ReadConfigurationParamAnswer(const XmlRpc::XmlRpcValue &value); ///< keeps nothing of the value
    ReadConfigurationParamAnswer(const ReadConfigurationParamAnswer &other);
    ReadConfigurationParamAnswer &operator=(const ReadConfigurationParamAnswer &) = delete;
    ~ReadConfigurationParamAnswer() override;

    ReadConfigurationParamAnswer *clone() const override;
    void clear();                                          ///< drops the row
    bool equalTo(const ProtoAnswer *other) const override; ///< the same structure with the same row

    const ConfData *confData() const { return m_confData.get(); } ///< null without a row
    /** The structure's name, a blank, the row as text; empty without a row. */
    QString configurationDataStr() const;
    /** Applies the row; false only without one. */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles, QList<int> *extra);

    /** A struct of "cmd_code" (string), "cmd_value" (int) and "cmd_parameters" (string); the integer 0 without a row. */
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    static QList<quv::MemberFacts> memberFacts();

private:
    std::unique_ptr<ConfData> m_confData;
};
